#include <string>

#include <gtest/gtest.h>

#include "numbers/Utf8.h"

namespace norlaplan {
namespace {

const std::string kText = "M\xC3\xBCller 5 \xE2\x82\xAC \xF0\x9F\x98\x80";

TEST(WholeCharacters, AreAsManyBytesAsFitWithNoCharacterCut) {
    // The bytes at which each character of the text ends, counted by hand.
    const std::size_t ends[] = {0, 1, 3, 4, 5, 6, 7, 8, 9, 10, 13, 14, 18};
    for (std::size_t most = 0; most <= kText.size() + 2; ++most) {
        std::size_t last = 0;
        for (const std::size_t end : ends)
            if (end <= most) last = end;
        EXPECT_EQ(wholeCharacters(kText, most), kText.substr(0, last)) << most;
    }
    EXPECT_EQ(wholeCharacters("\x80\x80\x80", 2), "");
}

TEST(CharacterCount, CountsCharactersAndNotTheirBytes) {
    EXPECT_EQ(characterCount(""), 0U);
    EXPECT_EQ(characterCount(kText), 12U);
}

}  // namespace
}  // namespace norlaplan
