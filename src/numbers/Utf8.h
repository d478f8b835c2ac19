#pragma once

#include <cstddef>
#include <string_view>

namespace norlaplan {

/// Whether a byte of UTF-8 goes on with the character that began before it.
constexpr bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The first bytes of a text, `most` of them or so many fewer that no character is cut in two.
constexpr std::string_view wholeCharacters(std::string_view text, std::size_t most) {
    if (text.size() <= most) return text;
    std::size_t end = most;
    while (end > 0 && continuesCharacter(text[end]))
        --end;
    return text.substr(0, end);
}

/// How many characters a text of UTF-8 has.
constexpr std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (const char byte : text)
        count += continuesCharacter(byte) ? 0 : 1;
    return count;
}

}  // namespace norlaplan
