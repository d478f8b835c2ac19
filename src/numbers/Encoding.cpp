#include "numbers/Encoding.h"

#include <algorithm>
#include <cstddef>

#include "numbers/Utf8.h"

namespace norlaplan {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

/// 0x80 to 0x9F in Windows-1252; the five that it leaves free are the control characters of Latin-1.
constexpr unsigned kWindowsLetters[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                          0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                          0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                          0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

unsigned byteAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

/// How many bytes at the start of a text are one character of UTF-8 beyond ASCII; 0 when they are none: cut
/// short, longer than needed, half of a pair, or beyond the last character.
std::size_t lengthOfUtf8(std::string_view text) {
    const unsigned lead = byteAt(text, 0);
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
    for (std::size_t at = 1; at < length; ++at) {
        if (!continuesCharacter(text[at])) return 0;
    }
    const unsigned second = byteAt(text, 1);
    const bool tooLong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
    const bool beyond = (lead == 0xED && second > 0x9F) || (lead == 0xF4 && second > 0x8F);
    return tooLong || beyond ? 0 : length;
}

void appendUtf8(std::string& text, unsigned code) {
    const auto append = [&](unsigned byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (code < 0x800) {
        append(0xC0U | code >> 6U);
    } else {
        append(0xE0U | code >> 12U);
        append(0x80U | (code >> 6U & 0x3FU));
    }
    append(0x80U | (code & 0x3FU));
}

bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

}  // namespace

std::string utf8Text(std::string_view bytes) {
    if (std::all_of(bytes.begin(), bytes.end(), isAscii)) return std::string(bytes);
    std::string text;
    while (!bytes.empty()) {
        const unsigned byte = byteAt(bytes, 0);
        std::size_t length = byte < 0x80 ? 1 : lengthOfUtf8(bytes);
        if (length > 0) {
            text += bytes.substr(0, length);
        } else {
            appendUtf8(text, byte < 0xA0 ? kWindowsLetters[byte - 0x80] : byte);
            length = 1;
        }
        bytes.remove_prefix(length);
    }
    return text;
}

std::string fileText(std::string_view bytes) {
    while (bytes.starts_with(kMark))
        bytes.remove_prefix(kMark.size());
    return utf8Text(bytes);
}

}  // namespace norlaplan
