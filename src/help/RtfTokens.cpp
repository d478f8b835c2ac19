#include "help/RtfTokens.h"

#include <algorithm>
#include <array>

namespace norlaplan {
namespace {

constexpr int kLargestNumber = 100000000;
constexpr std::size_t kLongestText = 4096;

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool isNoText(unsigned code) {
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    const bool noCharacter = (code >= 0xFDD0 && code <= 0xFDEF) || (code & 0xFFFEU) == 0xFFFE;
    const bool separator = code == 0x2028 || code == 0x2029 || code == 0xFFFC;
    return code > 0x10FFFF || surrogate || noCharacter || separator;
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The characters of code page 1252 from 0x80 to 0x9F; 0 where it has none.
constexpr std::array<unsigned, 32> kWestern = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

}  // namespace

RtfToken RtfTokens::next() {
    while (!rest_.empty() && (rest_.front() == '\r' || rest_.front() == '\n' || rest_.front() == '\0')) {
        rest_.remove_prefix(1);
    }
    if (rest_.empty()) return {};
    switch (rest_.front()) {
        case '{':
            rest_.remove_prefix(1);
            return {RtfToken::Kind::Open, {}, false, 0};
        case '}':
            rest_.remove_prefix(1);
            return {RtfToken::Kind::Close, {}, false, 0};
        case '\\':
            return control();
        default:
            break;
    }
    const std::string_view reach = rest_.substr(0, kLongestText);
    const std::size_t length = std::min(reach.find_first_of(std::string_view("{}\\\r\n\0", 6)), reach.size());
    const RtfToken token{RtfToken::Kind::Text, rest_.substr(0, length), false, 0};
    rest_.remove_prefix(length);
    return token;
}

RtfToken RtfTokens::control() {
    rest_.remove_prefix(1);
    if (rest_.empty()) return {};
    if (!isLetter(rest_.front())) {
        const RtfToken token{RtfToken::Kind::Symbol, rest_.substr(0, 1), false, 0};
        rest_.remove_prefix(1);
        return token;
    }
    std::size_t length = 0;
    while (length < rest_.size() && isLetter(rest_[length]))
        ++length;
    RtfToken token{RtfToken::Kind::Word, rest_.substr(0, length), false, 0};
    rest_.remove_prefix(length);
    const bool minus = rest_.size() > 1 && rest_[0] == '-' && isDigit(rest_[1]);
    if (minus) rest_.remove_prefix(1);
    while (!rest_.empty() && isDigit(rest_.front())) {
        token.hasNumber = true;
        token.number = std::min(token.number * 10 + (rest_.front() - '0'), kLargestNumber);
        rest_.remove_prefix(1);
    }
    if (minus) token.number = -token.number;
    if (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
    return token;
}

std::string_view RtfTokens::take(std::size_t count) {
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

std::string utf8Of(unsigned code) {
    if ((code < 0x20 && code != '\t') || (code >= 0x7F && code < 0xA0)) return {};
    if (isNoText(code)) code = 0xFFFD;
    std::string text;
    const auto add = [&](unsigned byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (code < 0x80) {
        add(code);
    } else if (code < 0x800) {
        add(0xC0U | code >> 6U);
        add(0x80U | (code & 0x3FU));
    } else if (code < 0x10000) {
        add(0xE0U | code >> 12U);
        add(0x80U | (code >> 6U & 0x3FU));
        add(0x80U | (code & 0x3FU));
    } else {
        add(0xF0U | code >> 18U);
        add(0x80U | (code >> 12U & 0x3FU));
        add(0x80U | (code >> 6U & 0x3FU));
        add(0x80U | (code & 0x3FU));
    }
    return text;
}

std::string utf8OfWestern(unsigned char byte) {
    return utf8Of(byte >= 0x80 && byte <= 0x9F ? kWestern[byte - 0x80U] : byte);
}

std::string utf8OfSign(unsigned char byte) {
    constexpr unsigned char kRound = 0xB7;
    constexpr unsigned char kSquare = 0xA7;
    if (byte == kRound) return "\u2022";
    return byte == kSquare ? "\u25AA" : utf8OfWestern(byte);
}

}  // namespace norlaplan
