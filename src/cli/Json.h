#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "numbers/Int16.h"
#include "numbers/Single.h"

namespace norlaplan::cli {

/// Results keep the order in which they are put in.
using Json = nlohmann::ordered_json;

/// Values as they go into a result: each prints as the shortest text that reads back to its own width.
Json toJson(const Single& value);
Json toJson(double value);
Json toJson(const Int16& value);
Json toJson(const std::string& value);

/// The value, or null where there is none.
template <typename Value>
Json jsonOrNull(const Value* value) {
    return value != nullptr ? toJson(*value) : Json(nullptr);
}

/// An array for each row, of the numbers that `members` point to.
template <typename Rows, typename... Members>
Json rowsJson(const Rows& rows, Members... members) {
    Json json = Json::array();
    for (const auto& row : rows)
        json.push_back(Json::array({toJson(row.*members)...}));
    return json;
}

/// The text of a result, indented by two. Numbers never follow the locale; bytes that are no UTF-8 are
/// replaced.
std::string writeJson(const Json& value);

}  // namespace norlaplan::cli
