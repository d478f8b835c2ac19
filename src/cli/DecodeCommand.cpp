#include <vector>

#include "cli/Commands.h"
#include "cli/TextTable.h"
#include "numbers/Text.h"
#include "state/BearingFields.h"

namespace norlaplan::cli {
namespace {

std::string shown(const std::string& value) {
    return value;
}
std::string shown(const Single& value) {
    return shortestText(value);
}
std::string shown(double value) {
    return shortestText(value);
}
std::string shown(const Int16& value) {
    return plainText(static_cast<int>(value));
}

}  // namespace

CommandResult decodeCommand(Session& session, const PartNumberOption& number) {
    session.decode(number);
    const BearingSpec& bearing = session.state().bearing;
    CommandResult result;
    if (session.asksForJson()) {
        visitBearing(bearing,
                     [&](const char* name, const auto& value) { result.json[name] = toJson(value); });
        return result;
    }
    TextRows rows;
    visitBearing(bearing, [&](const char* name, const auto& value) { rows.push_back({name, shown(value)}); });
    result.text = textTable(rows, false);
    return result;
}

}  // namespace norlaplan::cli
