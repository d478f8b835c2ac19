#include <string>

#include <gtest/gtest.h>

#include "help/RtfReader.h"
#include "help/RtfTexts.h"

/// How much of a document is read: some three hundred pages.
namespace norlaplan {
namespace {

using namespace testing;

std::string repeated(const std::string& piece, std::size_t times) {
    std::string text;
    text.reserve(piece.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        text += piece;
    return text;
}

struct Limit {
    const char* name;
    std::string piece;
    std::size_t times;
};

void PrintTo(const Limit& limit, std::ostream* out) {
    *out << limit.name;
}

class RtfLimits : public ::testing::TestWithParam<Limit> {};

INSTANTIATE_TEST_SUITE_P(Rows, RtfLimits,
                         ::testing::Values(Limit{"TenThousandParagraphs", "a\\par ", 10000},
                                           Limit{"TenThousandParagraphsOfCells", "\\intbl\\par ", 10000},
                                           Limit{"TenThousandLines", "a\\line ", 10000},
                                           Limit{"TwentyThousandRuns", "\\b a\\b0 b", 10000},
                                           Limit{"ThreeThousandRows", "\\row ", 3000},
                                           Limit{"ThreeThousandCells", "\\cell ", 3000},
                                           Limit{"FiftyThousandTabs", "\\tab ", 50000},
                                           Limit{"AMegabyteOfText", "x", 1U << 20U}),
                         [](const auto& one) { return std::string(one.param.name); });

TEST_P(RtfLimits, CutADocumentShortAndSaySo) {
    const auto below = readRtf("{\\rtf1 " + repeated(GetParam().piece, GetParam().times - 1) + "}");
    const auto at = readRtf("{\\rtf1 " + repeated(GetParam().piece, GetParam().times) + "}");
    const auto beyond =
        readRtf("{\\rtf1 " + repeated(GetParam().piece, GetParam().times) + "\\pard behind\\par}");
    EXPECT_FALSE(below->cutShort);
    EXPECT_TRUE(at->cutShort);
    EXPECT_EQ(textOf(*beyond).find("behind"), std::string::npos);
}

std::string picture(std::size_t bytes) {
    return "{\\pict\\pngblip\\bin" + std::to_string(bytes) + " " + std::string(bytes, 'p') + "}";
}

TEST(RtfPictureLimits, AreSixteenMegabytesForOneAndThirtyTwoForAll) {
    constexpr std::size_t kMegabyte = 1U << 20U;
    const auto one = readRtf("{\\rtf1" + picture(16 * kMegabyte + 1) + "\\par}");
    const auto& run = std::get<PictureRun>(std::get<Paragraph>(one->blocks.at(0)).runs.at(0));
    EXPECT_EQ(run.bytes.size(), 16 * kMegabyte);
    EXPECT_FALSE(one->cutShort);
    EXPECT_FALSE(readRtf("{\\rtf1" + picture(16 * kMegabyte) + picture(16 * kMegabyte - 1) + "}")->cutShort);
    EXPECT_TRUE(readRtf("{\\rtf1" + picture(16 * kMegabyte) + picture(16 * kMegabyte) + "}")->cutShort);
}

TEST(RtfTableLimits, AreTwoHundredFiftySixFontsAndAThousandTwentyFourColours) {
    std::string fonts, colours;
    for (int i = 1; i <= 257; ++i)
        fonts += "{\\f" + std::to_string(i) + " F" + std::to_string(i) + ";}";
    for (int i = 0; i < 1025; ++i)
        colours += "\\red1\\green2\\blue3;";
    const auto look = [&](const std::string& words) {
        return firstRun(*readRtf("{\\rtf1{\\fonttbl" + fonts + "}{\\colortbl" + colours + "}" + words +
                                 " x\\par}"))
            .look;
    };
    EXPECT_EQ(look("\\f256").font, "F256");
    EXPECT_EQ(look("\\f257").font, "");
    EXPECT_EQ(look("\\cf1023").colour, 0x030201U);
    EXPECT_FALSE(look("\\cf1024").colour.has_value());
}

TEST(RtfDefaults, OfACellOrPictureThatSaysNothing) {
    const auto document = readRtf(R"({\rtf1\trowd\clbrdrl\brdrs\cellx900\pard\intbl a\cell b\cell\row})");
    const auto& row = std::get<TableRow>(document->blocks.at(0));
    ASSERT_EQ(row.cells.size(), 2U);
    EXPECT_EQ(row.leftEdge, 0);
    const CellLook& look = row.cells[1].look;
    EXPECT_EQ(look.rightEdge, 0) << "the definition has no such cell";
    EXPECT_FALSE(look.left || look.top || look.right || look.bottom || look.fill.has_value());
    const auto shown = readRtf(R"({\rtf1{\pict\pngblip ff}x\par})");
    const auto& run = std::get<PictureRun>(std::get<Paragraph>(shown->blocks.at(0)).runs.at(0));
    EXPECT_EQ(run.width, 0);
    EXPECT_EQ(run.height, 0);
    const ParagraphLook paragraph = firstParagraph(*readRtf(R"({\rtf1 x\par})"));
    EXPECT_EQ(paragraph.leftIndent, 0);
    EXPECT_EQ(paragraph.rightIndent, 0);
    EXPECT_EQ(paragraph.firstIndent, 0);
    EXPECT_EQ(paragraph.spaceBefore, 0);
    EXPECT_EQ(paragraph.spaceAfter, 0);
    EXPECT_EQ(paragraph.lineSpacing, 1.0);
    EXPECT_FALSE(paragraph.pageBreakBefore);
    EXPECT_FALSE(paragraph.fill.has_value());
    EXPECT_TRUE(paragraph.tabs.empty());
    const CharacterLook letter = firstRun(*readRtf(R"({\rtf1 x\par})")).look;
    EXPECT_FALSE(letter.bold || letter.italic || letter.underline || letter.strike || letter.hidden);
    EXPECT_EQ(letter.script, Script::Normal);
    EXPECT_FALSE(letter.colour.has_value() || letter.highlight.has_value());
}

}  // namespace
}  // namespace norlaplan
