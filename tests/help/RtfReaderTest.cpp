#include <string>

#include <gtest/gtest.h>

#include "help/RtfReader.h"
#include "help/RtfTexts.h"

namespace norlaplan {
namespace {

using namespace testing;

struct TextRow {
    const char* name;
    std::string rtf, text;
};

class RtfTexts : public ::testing::TestWithParam<TextRow> {};

TEST_P(RtfTexts, ReadAs) {
    EXPECT_EQ(textOf(GetParam().rtf), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RtfTexts,
    ::testing::Values(
        TextRow{"Paragraphs", R"({\rtf1 one\par two\par})", "one|two|"},
        TextRow{"UnendedParagraph", R"({\rtf1 one)", "one|"},
        TextRow{"LineEndsAreNoText", "{\\rtf1 on\r\ne\\par}", "one|"},
        TextRow{"Escapes", R"({\rtf1 a\{b\}c\\d\par})", "a{b}c\\d|"},
        TextRow{"WesternBytes", R"({\rtf1 \'d8 \'93x\'94\par})", "Ø “x”|"},
        TextRow{"UnicodeWithFallback", R"({\rtf1\uc1 \u8482?!\par})", "™!|"},
        TextRow{"UnicodeWithTwoFallbackBytes", R"({\rtf1\uc2 \u916??D\par})", "ΔD|"},
        TextRow{"NegativeUnicode", R"({\rtf1 \u-4064?\par})", "\xEF\x80\xA0|"},
        TextRow{"Symbols", R"({\rtf1 a\tab b\emdash c\bullet\line d\par})", "a\tb—c•\nd|"},
        TextRow{"UnicodeWithoutFallback", R"({\rtf1\uc0 \u8364 x\par})", "€x|"},
        TextRow{"FallbackEndsWithItsGroup", R"({\rtf1{\uc4\u8364 ab}cd\par})", "€cd|"},
        TextRow{"WordAsFallback", R"({\rtf1\u8226\bullet x\par})", "•x|"},
        TextRow{"CharacterOfTwoHalves", R"({\rtf1\u-10179?\u-8704?\par})", "😀|"},
        TextRow{"HalfACharacterIsNone", R"({\rtf1\u-10179?a\u-8704?\par})", "a\xEF\xBF\xBD|"},
        TextRow{"CharacterThatTextCantHold", R"({\rtf1 a\u8233?\u-4?\par})", "a\xEF\xBF\xBD\xEF\xBF\xBD|"},
        TextRow{"BulletOfAFontOfSigns",
                R"({\rtf1{\fonttbl{\f1\fcharset2 Symbol;}}{\pntext\f1\'b7\tab}x\par})", "•\tx|"},
        TextRow{"ListTextsAreRead", R"({\rtf1{\*\pn\pnlvlbody{\pntxta .}}{\listtext 1.\tab}x\par})",
                "1.\tx|"},
        TextRow{"UnbreakableSigns", R"({\rtf1 a\~b\_c\-d\:\par})", "a\u00A0b\u2011cd|"},
        TextRow{"HiddenText", R"({\rtf1 a{\v b}c\par})", "ac|"},
        TextRow{"BinaryHoldsBraces", "{\\rtf1 a{\\pict\\bin4 }}{{}b\\par}", "ab|"},
        TextRow{"LineEndAsAWord", "{\\rtf1 a\\\nb\\\n}", "a|b|"},
        TextRow{"ByteOrderMark", "\xEF\xBB\xBF{\\rtf1 a\\par}", "a|"},
        TextRow{"NestedTableIsReadAsText", R"({\rtf1\pard\intbl a\nestcell{\nonesttables\par}b\par})",
                "a|b|"},
        TextRow{"UnknownStarredGroup", R"({\rtf1 a{\*\mystery b{c}}d\par})", "ad|"},
        TextRow{"UnknownPlainGroupIsRead", R"({\rtf1 a{\mystery b}c\par})", "abc|"},
        TextRow{"HeadersAndStyles", R"({\rtf1{\stylesheet{\s1 Normal;}}{\info{\title T}}{\footer F}x\par})",
                "x|"},
        TextRow{"FieldShowsItsResult", R"({\rtf1{\field{\*\fldinst HYPERLINK}{\fldrslt here}}\par})",
                "here|"},
        TextRow{"CutInAWord", R"({\rtf1 a\pa)", "a|"}, TextRow{"CutInHex", R"({\rtf1 a\'d)", "a|"},
        TextRow{"CutInAGroup", R"({\rtf1 a{\b b)", "ab|"},
        TextRow{"TooManyClosings", R"({\rtf1 a}}}}b\par)", "ab|"},
        TextRow{"HugeNumbers", R"({\rtf1\fs99999999999999999999\li-99999999999999 a\par})", "a|"},
        TextRow{"BinaryLongerThanTheFile", R"({\rtf1 a{\pict\bin2000000000 xyz)", "a|"},
        TextRow{"NegativeBinary", R"({\rtf1 a{\pict\bin-5 }b\par})", "ab|"}),
    [](const auto& row) { return row.param.name; });

TEST(RtfReader, RefusesWhatIsNoRtf) {
    EXPECT_FALSE(readRtf("").has_value());
    EXPECT_FALSE(readRtf("plain text").has_value());
    EXPECT_FALSE(readRtf("\x89PNG\r\n").has_value());
}

TEST(RtfReader, ReadsFontsSizesAndColours) {
    const auto document = readRtf(
        R"({\rtf1\deff0{\fonttbl{\f0 Arial;}{\f1 Courier New;}}{\colortbl;\red255\green0\blue0;\red1\green2\blue3;}\f1\fs28\cf2\b\i\ul x\par})");
    const CharacterLook& look = firstRun(*document).look;
    EXPECT_EQ(look.font, "Courier New");
    EXPECT_EQ(look.points, 14.0);
    EXPECT_TRUE(look.bold && look.italic && look.underline);
    EXPECT_EQ(look.colour, 0x030201U);
}

TEST(RtfReader, AGroupsEndBringsTheLookBack) {
    const auto document = readRtf(R"({\rtf1 {\b x}y\par})");
    const auto& runs = std::get<Paragraph>(document->blocks.at(0)).runs;
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_TRUE(std::get<TextRun>(runs[0]).look.bold);
    EXPECT_FALSE(std::get<TextRun>(runs[1]).look.bold);
}

TEST(RtfReader, ReadsAlignmentIndentsAndTabs) {
    const auto document = readRtf(R"({\rtf1\pard\qc\li720\fi-360\tx1440\tqr\tx2880 x\par})");
    const ParagraphLook& look = std::get<Paragraph>(document->blocks.at(0)).look;
    EXPECT_EQ(look.alignment, TextAlignment::Centre);
    EXPECT_EQ(look.leftIndent, 720);
    EXPECT_EQ(look.firstIndent, -360);
    EXPECT_EQ(look.tabs, (std::vector<TabStop>{{1440, TabAlignment::Left}, {2880, TabAlignment::Right}}));
}

TEST(RtfReader, ReadsATable) {
    const auto document = readRtf(
        R"({\rtf1\trowd\cellx1000\cellx2000\pard\intbl a\cell b\cell\row\trowd\cellx1000\cellx2000\pard\intbl c\cell d\cell\row\pard e\par})");
    ASSERT_EQ(document->blocks.size(), 3U);
    const auto& row = std::get<TableRow>(document->blocks[1]);
    ASSERT_EQ(row.cells.size(), 2U);
    EXPECT_EQ(row.cells[0].look.rightEdge, 1000);
    EXPECT_EQ(row.cells[1].look.rightEdge, 2000);
    EXPECT_EQ(textOf(row.cells[1]), "d");
    EXPECT_EQ(textOf(*document), "e|");
}

TEST(RtfReader, ReadsHighlightSpacingAndFill) {
    const auto document = readRtf(
        R"({\rtf1{\colortbl;\red255\green255\blue0;\red0\green0\blue128;}\sb100\sa-5\sl480\cbpat2\highlight1\strike\super x\par})");
    const ParagraphLook& paragraph = firstParagraph(*document);
    EXPECT_EQ(paragraph.spaceBefore, 100);
    EXPECT_EQ(paragraph.spaceAfter, 0);
    EXPECT_EQ(paragraph.lineSpacing, 2.0);
    EXPECT_EQ(paragraph.fill, 0x800000U);
    const CharacterLook& look = firstRun(*document).look;
    EXPECT_EQ(look.highlight, 0x00FFFFU);
    EXPECT_FALSE(look.colour.has_value());
    EXPECT_TRUE(look.strike);
    EXPECT_EQ(look.script, Script::Super);
}

TEST(RtfReader, ColourZeroOfAnEmptyEntryIsAutomatic) {
    const auto document = readRtf(R"({\rtf1{\colortbl;\red255;}\cf1\cf0 x\par})");
    EXPECT_FALSE(firstRun(*document).look.colour.has_value());
}

TEST(RtfReader, TheDefaultFontHoldsUntilAnotherIsNamed) {
    const auto document = readRtf(R"({\rtf1\deff1{\fonttbl{\f0 Arial;}{\f1 Courier New;}}x\par})");
    EXPECT_EQ(firstRun(*document).look.font, "Courier New");
}

TEST(RtfReader, AnEmptyParagraphKeepsTheSizeOfItsEnd) {
    const auto document = readRtf(R"({\rtf1 a\par{\fs8\par}})");
    const auto& empty = std::get<Paragraph>(document->blocks.at(1));
    EXPECT_TRUE(empty.runs.empty());
    EXPECT_EQ(empty.endLook.points, 4.0);
}

TEST(RtfReader, APageBreakStandsBeforeTheNextParagraph) {
    const auto document = readRtf(R"({\rtf1 a\par\page b\par c\par})");
    EXPECT_FALSE(std::get<Paragraph>(document->blocks.at(0)).look.pageBreakBefore);
    EXPECT_TRUE(std::get<Paragraph>(document->blocks.at(1)).look.pageBreakBefore);
    EXPECT_FALSE(std::get<Paragraph>(document->blocks.at(2)).look.pageBreakBefore);
}

TEST(RtfReader, ReadsTheLinesAndFillsOfCells) {
    const auto document = readRtf(
        R"({\rtf1{\colortbl;\red1\green2\blue3;}\trowd\trleft100\clbrdrt\brdrs\brdrw10\clbrdrb\brdrnone\clcbpat1\cellx1000\cellx2000\pard\intbl a\cell b\cell\row})");
    const auto& row = std::get<TableRow>(document->blocks.at(0));
    EXPECT_EQ(row.leftEdge, 100);
    const CellLook& first = row.cells.at(0).look;
    EXPECT_EQ(first.rightEdge, 1000);
    EXPECT_TRUE(first.top && !first.left && !first.right && !first.bottom);
    EXPECT_EQ(first.fill, 0x030201U);
    const CellLook& second = row.cells.at(1).look;
    EXPECT_FALSE(second.top || second.fill.has_value());
}

TEST(RtfReader, ARowOfMoreCellsThanItsDefinitionKeepsThem) {
    const auto document = readRtf(R"({\rtf1\trowd\cellx900\pard\intbl a\cell b\cell\row})");
    EXPECT_EQ(std::get<TableRow>(document->blocks.at(0)).cells.size(), 2U);
}

TEST(RtfReader, AParagraphThatNoCellEndsIsText) {
    EXPECT_EQ(textOf(R"({\rtf1\pard\intbl a\par b)"), "a|b|");
}

TEST(RtfReader, ReadsAPictureWithItsGoalSize) {
    const auto document =
        readRtf(R"({\rtf1{\*\shppict{\pict\pngblip\picwgoal1440\pichgoal720\picscalex50 89504e47}}\par})");
    const auto& picture = std::get<PictureRun>(std::get<Paragraph>(document->blocks.at(0)).runs.at(0));
    EXPECT_EQ(picture.format, "png");
    EXPECT_EQ(picture.bytes, "\x89PNG");
    EXPECT_EQ(picture.width, 720);
    EXPECT_EQ(picture.height, 720);
}

// A bitmap of two pixels with 24 bits each, as its head of 40 bytes and one row.
const char* const kDib =
    "28000000"
    "02000000"
    "01000000"
    "0100"
    "1800"
    "00000000"
    "08000000"
    "00000000"
    "00000000"
    "00000000"
    "00000000"
    "0000ff00ff000000";

TEST(RtfReader, ADeviceIndependentBitmapBecomesABitmapFile) {
    const auto document = readRtf("{\\rtf1{\\pict\\dibitmap0 " + std::string(kDib) + "}\\par}");
    const auto& picture = std::get<PictureRun>(std::get<Paragraph>(document->blocks.at(0)).runs.at(0));
    EXPECT_EQ(picture.format, "bmp");
    // File mark, size 14 + 48, nothing, and the pixels behind both heads.
    EXPECT_EQ(picture.bytes.substr(0, 14), std::string("BM\x3E\0\0\0\0\0\0\0\x36\0\0\0", 14));
    EXPECT_EQ(picture.bytes.size(), 62U);
}

TEST(RtfReader, AMetafileGivesTheBitmapItDraws) {
    // Head of nine words, then one record of 14 + 24 words: 28 bytes of it stand before the bitmap.
    const std::string metafile =
        "010009000003000000000000000000000000"
        "26000000"
        "430f" +
        std::string(44, '0') + kDib;
    const auto document = readRtf("{\\rtf1{\\pict\\wmetafile8 " + metafile + "}\\par}");
    const auto& picture = std::get<PictureRun>(std::get<Paragraph>(document->blocks.at(0)).runs.at(0));
    EXPECT_EQ(picture.format, "bmp");
    EXPECT_EQ(picture.bytes.size(), 62U);
}

TEST(RtfReader, PicturesThatSayNothingAreLeftOut) {
    for (const char* const picture :
         {"\\wmetafile8 0100", "\\wmetafile8 010009000003000000000000000000000000ffffffff430f0000",
          "\\pngblip", "\\dibitmap0 28000000", "\\emfblip 0102", "\\pngblip{\\pict\\jpegblip ffd8}"}) {
        EXPECT_EQ(textOf(std::string("{\\rtf1 a{\\pict") + picture + "}b\\par}"), "ab|") << picture;
    }
}

TEST(RtfReader, APictureInsideAnotherLeavesNothingBehind) {
    const auto document = readRtf(R"({\rtf1{\pict\pict\jpegblip ffd8}{\pict\pngblip 8950}\par})");
    const auto& runs = std::get<Paragraph>(document->blocks.at(0)).runs;
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(std::get<PictureRun>(runs[0]).bytes, "\x89P");
}

}  // namespace
}  // namespace norlaplan
