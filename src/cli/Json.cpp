#include "cli/Json.h"

#include <algorithm>

#include "numbers/Encoding.h"
#include "numbers/Text.h"

namespace norlaplan::cli {
namespace {

/// What stands in quotes as it is: nearly every name and text.
bool isPlain(char c) {
    return c >= ' ' && c < 127 && c != '"' && c != '\\';
}

void writeQuoted(const std::string& text, std::string& out) {
    if (std::all_of(text.begin(), text.end(), isPlain)) {
        out += '"';
        out += text;
        out += '"';
    } else {
        out += Json(utf8Text(text)).dump();
    }
}

void write(const Json& value, const std::string& indent, std::string& out);

/// Writes the members of an object or array between its brackets, one a line; `member` writes one.
template <typename Member>
void writeMembers(const Json& value, const std::string& indent, std::string& out, Member member) {
    const bool object = value.is_object();
    if (value.empty()) {
        out += object ? "{}" : "[]";
        return;
    }
    const std::string inner = indent + "  ";
    out += object ? "{" : "[";
    const char* separator = "\n";
    for (auto at = value.begin(); at != value.end(); ++at) {
        out += separator;
        out += inner;
        member(at, inner);
        separator = ",\n";
    }
    out += "\n" + indent + (object ? "}" : "]");
}

void write(const Json& value, const std::string& indent, std::string& out) {
    if (value.is_object()) {
        writeMembers(value, indent, out, [&](const auto& at, const std::string& inner) {
            writeQuoted(at.key(), out);
            out += ": ";
            write(at.value(), inner, out);
        });
    } else if (value.is_array()) {
        writeMembers(value, indent, out,
                     [&](const auto& at, const std::string& inner) { write(*at, inner, out); });
    } else if (value.is_number_float()) {
        out += shortestText(value.get<double>());
    } else if (value.is_string()) {
        writeQuoted(value.get_ref<const std::string&>(), out);
    } else {
        out += value.dump();
    }
}

}  // namespace

// The shortest text of a 32-bit value has nine digits at most, so its 64-bit reading prints as the same
// digits.
Json toJson(const Single& value) {
    return leadingNumber(shortestText(value));
}
Json toJson(double value) {
    return value;
}
Json toJson(const Int16& value) {
    return static_cast<int>(value);
}
Json toJson(const std::string& value) {
    return value;
}

std::string writeJson(const Json& value) {
    std::string text;
    write(value, "", text);
    return text + "\n";
}

}  // namespace norlaplan::cli
