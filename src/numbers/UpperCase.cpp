#include <array>

#include "numbers/Text.h"
#include "numbers/Utf8.h"

namespace norlaplan {
namespace {

/// Small letters in a row: each is so far from its capital. In rows of pairs, where capital and small letter
/// take turns, the capital stands just before every second one.
struct SmallLetters {
    char32_t first, last;
    int toCapital;
    bool pairs = false;
};

constexpr std::array kSmallLetters = {
    SmallLetters{0x61, 0x7A, -32},  // Latin
    SmallLetters{0xE0, 0xF6, -32},          SmallLetters{0xF8, 0xFE, -32},
    SmallLetters{0xFF, 0xFF, 121},          SmallLetters{0x101, 0x12F, -1, true},
    SmallLetters{0x133, 0x137, -1, true},   SmallLetters{0x13A, 0x148, -1, true},
    SmallLetters{0x14B, 0x177, -1, true},   SmallLetters{0x17A, 0x17E, -1, true},
    SmallLetters{0x1E01, 0x1E95, -1, true}, SmallLetters{0x1EA1, 0x1EFF, -1, true},
    SmallLetters{0x3AC, 0x3AC, -38},  // Greek
    SmallLetters{0x3AD, 0x3AF, -37},        SmallLetters{0x3B1, 0x3C1, -32},
    SmallLetters{0x3C2, 0x3C2, -31},        SmallLetters{0x3C3, 0x3CB, -32},
    SmallLetters{0x3CC, 0x3CC, -64},        SmallLetters{0x3CD, 0x3CE, -63},
    SmallLetters{0x430, 0x44F, -32},  // Cyrillic
    SmallLetters{0x450, 0x45F, -80},        SmallLetters{0x461, 0x481, -1, true},
    SmallLetters{0x48B, 0x4BF, -1, true},   SmallLetters{0x4C2, 0x4CE, -1, true},
    SmallLetters{0x4CF, 0x4CF, -15},        SmallLetters{0x4D1, 0x52F, -1, true},
    SmallLetters{0x561, 0x586, -48},  // Armenian
};

char32_t capitalOf(char32_t letter) {
    for (const SmallLetters& row : kSmallLetters) {
        if (letter < row.first || letter > row.last) continue;
        if (row.pairs && (letter - row.first) % 2 != 0) return letter;
        return static_cast<char32_t>(static_cast<int>(letter) + row.toCapital);
    }
    return letter;
}

/// The bytes of a character at the start of the text: 1 to 3, or 0 for bytes that make up none of those.
std::size_t lengthAt(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t length = lead < 0x80U              ? 1
                               : (lead & 0xE0U) == 0xC0U ? 2
                               : (lead & 0xF0U) == 0xE0U ? 3
                                                         : 0;
    if (length > text.size()) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if (!continuesCharacter(text[i])) return 0;
    }
    return length;
}

char32_t characterOf(std::string_view bytes) {
    constexpr std::array<unsigned, 4> kLeadBits = {0, 0x7F, 0x1F, 0x0F};
    char32_t character = static_cast<unsigned char>(bytes[0]) & kLeadBits[bytes.size()];
    for (std::size_t i = 1; i < bytes.size(); ++i)
        character = (character << 6U) | (static_cast<unsigned char>(bytes[i]) & 0x3FU);
    return character;
}

void append(std::string& text, char32_t character) {
    if (character < 0x80U) {
        text += static_cast<char>(character);
        return;
    }
    const auto tail = [&](unsigned shift) {
        text += static_cast<char>(0x80U | ((character >> shift) & 0x3FU));
    };
    if (character < 0x800U) {
        text += static_cast<char>(0xC0U | (character >> 6U));
    } else {
        text += static_cast<char>(0xE0U | (character >> 12U));
        tail(6);
    }
    tail(0);
}

}  // namespace

std::string upperCase(std::string_view text) {
    std::string upper;
    upper.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = lengthAt(text);
        if (length == 0)
            upper += text[0];
        else
            append(upper, capitalOf(characterOf(text.substr(0, length))));
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return upper;
}

}  // namespace norlaplan
