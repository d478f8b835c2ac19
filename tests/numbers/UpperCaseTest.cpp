#include <clocale>
#include <cwctype>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "numbers/Text.h"

namespace norlaplan {
namespace {

TEST(UpperCase, ChangesLettersOfTheAlphabetAlone) {
    EXPECT_EQ(upperCase("k19o13xp0"), "K19O13XP0");
    EXPECT_EQ(lowerCase("AbC-8"), "abc-8");
    EXPECT_EQ(trimmed("  a b\t"), "a b");
}

TEST(UpperCase, EndsWithTheFirstAndTheLastLetter) {
    // The neighbours of a, z, A and Z in ASCII are no letters.
    EXPECT_EQ(upperCase("`az{@AZ["), "`AZ{@AZ[");
    EXPECT_EQ(lowerCase("`az{@AZ["), "`az{@az[");
}

TEST(UpperCase, TakesLettersBeyondAsciiLikeTheOthers) {
    EXPECT_EQ(upperCase("k190äéøß÷13"), "K190ÄÉØß÷13") << "the sharp s has no capital of one letter";
    EXPECT_EQ(upperCase("ÿ ā ķ ĺ ň ŋ ž ẁ ỹ"), "Ÿ Ā Ķ Ĺ Ň Ŋ Ž Ẁ Ỹ");
    EXPECT_EQ(upperCase("άέήίόύώ αβγ ς ρσω ϋ"), "ΆΈΉΊΌΎΏ ΑΒΓ Σ ΡΣΩ Ϋ");
    EXPECT_EQ(upperCase("жя ѐџ ѡҁ ґ ӂ ӏ ә"), "ЖЯ ЀЏ ѠҀ Ґ Ӂ Ӏ Ә");
    EXPECT_EQ(upperCase("աֆ"), "ԱՖ");
}

TEST(UpperCase, LeavesWhatIsUpperCaseOrNoLetter) {
    for (const char* const text : {"ÄÉØŸĀŽ", "ΑΣΩ", "ЖЯ", "×™€漢字 😀", "µ ı ĸ ŉ"})
        EXPECT_EQ(upperCase(text), text);
}

TEST(UpperCase, LeavesBytesThatAreNoUtf8) {
    for (const char* const text : {"\xE4", "K\xC3", "\xC3\x28", "\xFF\xFE", "\xE1\xBA", "\x80"})
        EXPECT_EQ(upperCase(text), text);
    EXPECT_EQ(upperCase("\xC3k\xE4z"), "\xC3K\xE4Z");
}

/// A character below 0x800 takes two bytes, the others here three: RFC 3629, section 3.
std::string utf8(wchar_t character) {
    const auto code = static_cast<unsigned>(character);
    const auto byte = [](unsigned value) { return std::string(1, static_cast<char>(value)); };
    const std::string tail = byte(0x80U + code % 64U);
    if (code < 0x80U) return byte(code);
    if (code < 0x800U) return byte(0xC0U + code / 64U) + tail;
    return byte(0xE0U + code / 4096U) + byte(0x80U + code / 64U % 64U) + tail;
}

TEST(UpperCase, IsTheCLibrarysForEveryLetterOfItsAlphabets) {
    const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (unicode == nullptr) GTEST_SKIP() << "the C library here has no locale of Unicode";
    const std::pair<wchar_t, wchar_t> alphabets[] = {{0x01, 0x17E},     // Latin
                                                     {0x1E00, 0x1E95},  // with a dot, a bar or a ring
                                                     {0x1EA0, 0x1EFF},  // of Vietnamese
                                                     {0x386, 0x3CE},    // Greek
                                                     {0x400, 0x52F},    // Cyrillic
                                                     {0x531, 0x586}};   // Armenian
    const std::wstring kept =
        L"\u00B5\u0131";  // micro and the i without a dot: their capitals are other letters
    for (const auto& [first, last] : alphabets) {
        for (wchar_t letter = first; letter <= last; ++letter) {
            const bool stays = kept.find(letter) != std::wstring::npos;
            const auto capital = static_cast<wchar_t>(towupper_l(static_cast<wint_t>(letter), unicode));
            EXPECT_EQ(upperCase("a" + utf8(letter) + "b"), "A" + utf8(stays ? letter : capital) + "B")
                << "letter " << static_cast<long>(letter);
        }
    }
    freelocale(unicode);
}

TEST(UpperCase, EndsWhereItsTextEndsWhateverStandsBehindIt) {
    EXPECT_EQ(upperCase(std::string_view("K\xC3\xA4").substr(0, 2)), "K\xC3") << "half a letter";
    EXPECT_EQ(upperCase(std::string_view("\xE1\xBA\x81").substr(0, 2)), "\xE1\xBA");
    EXPECT_EQ(upperCase(std::string_view("ab").substr(0, 1)), "A");
}

}  // namespace
}  // namespace norlaplan
