#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "documents/LogoMetafile.h"

namespace norlaplan {
namespace {

std::vector<std::uint16_t> wordsOf(const std::string& hex) {
    std::string digits;
    for (const char c : hex) {
        if (c != '\r' && c != '\n') digits += c;
    }
    std::vector<std::uint16_t> words;
    for (std::size_t at = 0; at + 4 <= digits.size(); at += 4) {
        const auto byte = [&](std::size_t place) { return std::stoul(digits.substr(place, 2), nullptr, 16); };
        words.push_back(static_cast<std::uint16_t>(byte(at) | byte(at + 2) << 8U));
    }
    return words;
}

TEST(LogoMetafile, IsAPlainMetafileWhoseSizesAreTrue) {
    const std::vector<std::uint16_t> words = wordsOf(logoMetafileHex());
    ASSERT_GT(words.size(), 12U);
    EXPECT_EQ(words[0], 1) << "a metafile in memory, without the head of a placeable one";
    EXPECT_EQ(words[1], 9);
    EXPECT_EQ(words[3] | static_cast<std::uint32_t>(words[4]) << 16U, words.size());
    std::size_t at = 9;
    std::uint32_t largest = 0;
    while (at + 2 < words.size() && words[at + 2] != 0) {
        const std::uint32_t size = words[at] | static_cast<std::uint32_t>(words[at + 1]) << 16U;
        ASSERT_GE(size, 3U);
        largest = std::max(largest, size);
        at += size;
    }
    EXPECT_EQ(at + 3, words.size()) << "the last record is the end";
    EXPECT_EQ(words[6], largest);
}

TEST(LogoMetafile, KeepsItsMarkWithinThePicture) {
    for (const MarkCircle& circle : markCircles()) {
        EXPECT_GE(circle.x - circle.radius, 0);
        EXPECT_LE(circle.x + circle.radius, mark::kNameLeft) << "clear of the name";
        EXPECT_GE(circle.y - circle.radius, 0);
        EXPECT_LE(circle.y + circle.radius, mark::kHeight);
    }
    // Widths of V A R D E N in bold Arial, thousandths of the size: 667 722 722 722 667 722.
    EXPECT_LE(mark::kNameLeft + mark::kNameSize * 4222 / 1000, mark::kWidth);
}

}  // namespace
}  // namespace norlaplan
