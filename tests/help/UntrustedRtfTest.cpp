#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "help/RtfReader.h"
#include "help/RtfTexts.h"
#include "state/WholeFile.h"
#include "support/Folders.h"
#include "support/ProcessorTime.h"

namespace norlaplan {
namespace {

using namespace testing;

std::string repeated(const std::string& text, std::size_t bytes) {
    std::string all;
    all.reserve(bytes + text.size());
    while (all.size() < bytes)
        all += text;
    return all;
}

struct LargeRow {
    const char* name;
    std::string piece;
};

// Watched by the sanitizers the same takes many times as long, and a tenth shows as much.
#ifdef NORLAPLAN_SANITIZE
constexpr std::size_t kLarge = 5U << 20U;
constexpr std::size_t kCutsApart = 29;
#else
constexpr std::size_t kLarge = 50U << 20U;
constexpr std::size_t kCutsApart = 3;
#endif

class LargeRtf : public ::testing::TestWithParam<LargeRow> {};

std::size_t runsOf(const RichDocument& document) {
    std::size_t count = 0;
    for (const Block& block : document.blocks) {
        if (const auto* const paragraph = std::get_if<Paragraph>(&block)) count += paragraph->runs.size();
    }
    return count;
}

// It takes a second or two; what the limit is held against is a cost that grows with the square.
TEST_P(LargeRtf, EndsSoonWithADocumentOfBoundedSize) {
    const std::string rtf = "{\\rtf1 " + repeated(GetParam().piece, kLarge);
    const double start = processorSeconds();
    const auto document = readRtf(rtf);
    EXPECT_LT(processorSeconds() - start, 60.0);
    ASSERT_TRUE(document.has_value());
    EXPECT_LE(document->blocks.size(), 10001U);
    EXPECT_LE(runsOf(*document), 20001U);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LargeRtf,
    ::testing::Values(LargeRow{"Text", "words and words\r\n"}, LargeRow{"Paragraphs", "\\par\n"},
                      LargeRow{"Runs", "\\b a\\b0 b"}, LargeRow{"Openings", "{"}, LargeRow{"Closings", "}"},
                      LargeRow{"Groups", "{}"}, LargeRow{"Words", "\\b"}, LargeRow{"Tabs", "\\tx1{}"},
                      LargeRow{"Cells", "\\cell"}, LargeRow{"Rows", "\\cell\\row"},
                      LargeRow{"Edges", "\\cellx9"}, LargeRow{"CellParagraphs", "\\intbl\\par"},
                      LargeRow{"Fonts", "{\\fonttbl{\\f1 a;}{\\f2 b}}"}, LargeRow{"Backslashes", "\\"},
                      LargeRow{"LongWord", "\\aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"},
                      LargeRow{"Zeros", std::string(64, '\0')}, LargeRow{"HexBytes", "\\'e4"},
                      LargeRow{"Pictures", "{\\pict\\pngblip 00112233}"},
                      LargeRow{"Unicode", "\\uc0\\u8364"}),
    [](const auto& row) { return row.param.name; });

TEST(HostileRtf, ALongDocumentIsCutShortAndSaysSo) {
    EXPECT_TRUE(readRtf("{\\rtf1 " + repeated("\\par ", 100000))->cutShort);
    EXPECT_FALSE(readRtf("{\\rtf1 a\\par}")->cutShort);
}

TEST(HostileRtf, WhatTakesAViewerLongestIsCutShort) {
    const struct {
        const char* piece;
        std::size_t most, cut;
    } rows[] = {{"a\\line ", 9000, 11000},
                {"a\\tab ", 49000, 51000},
                {"\\trowd\\cellx100\\intbl a\\cell\\row ", 2900, 3100},
                {"\\trowd\\cellx1\\cellx2\\intbl a\\cell b\\cell\\row ", 1450, 1550}};
    for (const auto& row : rows) {
        const auto times = [&](std::size_t count) {
            std::string rtf = "{\\rtf1 ";
            for (std::size_t i = 0; i < count; ++i)
                rtf += row.piece;
            return readRtf(rtf + "\\pard\\par}")->cutShort;
        };
        EXPECT_FALSE(times(row.most)) << row.piece;
        EXPECT_TRUE(times(row.cut)) << row.piece;
    }
    EXPECT_FALSE(readRtf("{\\rtf1 " + repeated("words ", 1000000) + "}")->cutShort);
    EXPECT_TRUE(readRtf("{\\rtf1 " + repeated("words ", 1100000) + "}")->cutShort);
}

TEST(HostileRtf, ManyFontsUnderManyNumbersStaySmall) {
    std::string fonts;
    for (int i = 0; i < 200000; ++i)
        fonts += "\\f" + std::to_string(i) + " Name;";
    EXPECT_EQ(textOf("{\\rtf1{\\fonttbl" + fonts + "}a\\f199999 b\\par}"), "ab|");
}

TEST(HostileRtf, SurvivesGroupsThatNestWithoutEnd) {
    EXPECT_EQ(textOf("{\\rtf1 a" + std::string(1000000, '{') + "b"), "ab|");
    EXPECT_EQ(textOf("{\\rtf1 " + std::string(5000, '{') + "a" + std::string(5000, '}') + "b\\par}"), "ab|");
}

TEST(HostileRtf, SurvivesEveryCutOfARealDocument) {
    const std::string whole = readWholeFile(programFolder() / "help/Break Down.rtf");
    for (std::size_t length = 0; length < whole.size(); length += kCutsApart) {
        EXPECT_NO_THROW(readRtf(std::string_view(whole).substr(0, length))) << length;
    }
}

TEST(HostileRtf, SurvivesAnyByteInPlaceOfAnother) {
    const std::string whole = readWholeFile(programFolder() / "help/Distributor.rtf");
    unsigned random = 12345;
    for (int round = 0; round < 2000; ++round) {
        std::string damaged = whole;
        for (int i = 0; i < 5; ++i) {
            random = random * 1664525U + 1013904223U;
            damaged[6 + random % (damaged.size() - 6)] =
                static_cast<char>(static_cast<unsigned char>(random >> 24U));
        }
        EXPECT_NO_THROW(readRtf(damaged));
    }
}

}  // namespace
}  // namespace norlaplan
