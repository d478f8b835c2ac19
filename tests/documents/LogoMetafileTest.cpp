#include <algorithm>
#include <cmath>
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

/// The parameters of the records of one function, as the format has them.
std::vector<std::vector<int>> recordsOf(std::uint16_t function) {
    const std::vector<std::uint16_t> words = wordsOf(logoMetafileHex());
    std::vector<std::vector<int>> found;
    for (std::size_t at = 9; at + 2 < words.size() && words[at + 2] != 0; at += words[at]) {
        if (words[at + 2] != function) continue;
        std::vector<int> parameters;
        for (std::size_t i = at + 3; i < at + words[at]; ++i)
            parameters.push_back(static_cast<std::int16_t>(words[i]));
        found.push_back(parameters);
    }
    return found;
}

// An ellipse is told by its bottom, right, top and left.
TEST(LogoMetafile, DrawsTheRingsAndTheBallsOfTheMark) {
    const std::vector<std::vector<int>> ellipses = recordsOf(0x0418);
    const std::vector<MarkCircle> circles = markCircles();
    ASSERT_EQ(ellipses.size(), circles.size());
    for (std::size_t i = 0; i < circles.size(); ++i) {
        const auto& [x, y, radius] = circles[i];
        EXPECT_EQ(ellipses[i], (std::vector<int>{y + radius, x + radius, y - radius, x - radius})) << i;
    }
}

TEST(LogoMetafile, WritesTheNameInBoldNavyBesideTheMark) {
    // The window is told by its height and width, a colour by red and green, then blue.
    EXPECT_EQ(recordsOf(0x020C), (std::vector<std::vector<int>>{{mark::kHeight, mark::kWidth}}));
    EXPECT_EQ(recordsOf(0x0209), (std::vector<std::vector<int>>{{40 << 8, 110}}));
    EXPECT_EQ(recordsOf(0x02FA), (std::vector<std::vector<int>>{{0, mark::kPen, 0, 40 << 8, 110}}));
    const std::vector<std::vector<int>> fonts = recordsOf(0x02FB);
    ASSERT_EQ(fonts.size(), 1U);
    EXPECT_EQ(fonts[0][0], -mark::kNameSize) << "the height of its letters, not of its lines";
    EXPECT_EQ(fonts[0][4], 700) << "bold";
    EXPECT_EQ(fonts[0][9], 'A' | 'r' << 8);
    // Its length, two letters a word, then y and x.
    EXPECT_EQ(recordsOf(0x0521),
              (std::vector<std::vector<int>>{
                  {6, 'V' | 'A' << 8, 'R' | 'D' << 8, 'E' | 'N' << 8, mark::kNameTop, mark::kNameLeft}}));
    EXPECT_EQ(recordsOf(0x012D), (std::vector<std::vector<int>>{{0}, {1}, {2}}))
        << "pen, brush and font in use";
}

TEST(LogoMetafile, SaysWhatAReaderMustKnowBeforeItDraws) {
    using Records = std::vector<std::vector<int>>;
    const std::vector<std::uint16_t> words = wordsOf(logoMetafileHex());
    EXPECT_EQ(words[2], 0x0300) << "of the third version of the format";
    EXPECT_EQ(words[5], 3) << "pen, brush and font";
    EXPECT_EQ(words[7], 0);
    EXPECT_EQ(words[8], 0);
    EXPECT_EQ(recordsOf(0x0103), (Records{{8}})) << "a window of any shape";
    EXPECT_EQ(recordsOf(0x020B), (Records{{0, 0}})) << "which begins at its corner";
    EXPECT_EQ(recordsOf(0x0102), (Records{{1}})) << "no ground behind the name";
    EXPECT_EQ(recordsOf(0x02FC), (Records{{0, -1, 0xFF, 0}})) << "a solid brush, red, green and blue of 255";
    const std::vector<int> font = recordsOf(0x02FB).at(0);
    ASSERT_EQ(font.size(), 25U) << "nine numbers and a name of 32 letters";
    for (const std::size_t place : {1U, 2U, 3U, 5U, 6U, 7U, 8U})
        EXPECT_EQ(font[place], 0) << place;
    EXPECT_EQ(font[10], 'i' | 'a' << 8);
    EXPECT_EQ(font[11], 'l');
    for (std::size_t place = 12; place < font.size(); ++place)
        EXPECT_EQ(font[place], 0) << place;
}

TEST(LogoMetafile, IsWrittenInLinesOfThirtyTwoWords) {
    const std::string hex = logoMetafileHex();
    std::size_t begin = hex.find("\r\n");
    EXPECT_EQ(begin, 0U) << "behind the words of the picture";
    for (std::size_t end = hex.find("\r\n", 2); end != std::string::npos; end = hex.find("\r\n", begin + 2)) {
        EXPECT_EQ(end - begin - 2, 128U);
        begin = end;
    }
    EXPECT_LE(hex.size() - begin - 2, 128U);
}

TEST(LogoMetafile, LeavesTheBallsFreeOfTheRingsAndOfEachOther) {
    const std::vector<MarkCircle> circles = markCircles();
    for (std::size_t i = 2; i < circles.size(); ++i) {
        const MarkCircle& next = circles[i + 1 < circles.size() ? i + 1 : 2];
        const auto apart = [&](const MarkCircle& other) {
            return std::hypot(circles[i].x - other.x, circles[i].y - other.y);
        };
        EXPECT_GT(apart(next), circles[i].radius + next.radius);
        EXPECT_GT(apart(circles[1]), circles[1].radius + circles[i].radius);
        EXPECT_LT(apart(circles[0]), circles[0].radius - circles[i].radius);
    }
}

TEST(LogoMetafile, HasTwelveBallsBetweenItsRings) {
    const std::vector<MarkCircle> circles = markCircles();
    ASSERT_EQ(circles.size(), 14U);
    const MarkCircle outer = circles[0], inner = circles[1];
    EXPECT_EQ(outer.x, inner.x);
    EXPECT_EQ(outer.y, inner.y);
    EXPECT_GT(outer.radius, inner.radius);
    for (std::size_t i = 0; i < 12; ++i) {
        const MarkCircle& ball = circles[2 + i];
        const double angle = static_cast<double>(i) * M_PI / 6.0;
        const double pitch = (outer.radius + inner.radius) / 2.0;
        EXPECT_NEAR(ball.x, outer.x + pitch * std::cos(angle), 1.0) << i;
        EXPECT_NEAR(ball.y, outer.y + pitch * std::sin(angle), 1.0) << i;
        EXPECT_EQ(ball.radius, circles[2].radius) << i;
    }
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
