#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "help/RtfReader.h"
#include "state/ProgramFolder.h"

namespace norlaplan {
namespace {

/// The text of all paragraphs outside of tables, each ended by "|".
std::string textOf(const RichDocument& document) {
    std::string text;
    for (const Block& block : document.blocks) {
        const auto* const paragraph = std::get_if<Paragraph>(&block);
        if (paragraph == nullptr) continue;
        for (const Run& run : paragraph->runs) {
            if (const auto* const words = std::get_if<TextRun>(&run)) text += words->text;
        }
        text += "|";
    }
    return text;
}

std::string textOf(const std::string& rtf) {
    const auto document = readRtf(rtf);
    return document ? textOf(*document) : "(none)";
}

const TextRun& firstRun(const RichDocument& document) {
    return std::get<TextRun>(std::get<Paragraph>(document.blocks.at(0)).runs.at(0));
}

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
    ::testing::Values(TextRow{"Paragraphs", R"({\rtf1 one\par two\par})", "one|two|"},
                      TextRow{"UnendedParagraph", R"({\rtf1 one)", "one|"},
                      TextRow{"LineEndsAreNoText", "{\\rtf1 on\r\ne\\par}", "one|"},
                      TextRow{"Escapes", R"({\rtf1 a\{b\}c\\d\par})", "a{b}c\\d|"},
                      TextRow{"WesternBytes", R"({\rtf1 \'d8 \'93x\'94\par})", "Ø “x”|"},
                      TextRow{"UnicodeWithFallback", R"({\rtf1\uc1 \u8482?!\par})", "™!|"},
                      TextRow{"UnicodeWithTwoFallbackBytes", R"({\rtf1\uc2 \u916??D\par})", "ΔD|"},
                      TextRow{"NegativeUnicode", R"({\rtf1 \u-4064?\par})", "\xEF\x80\xA0|"},
                      TextRow{"Symbols", R"({\rtf1 a\tab b\emdash c\bullet\line d\par})", "a\tb—c•\nd|"},
                      TextRow{"UnknownStarredGroup", R"({\rtf1 a{\*\mystery b{c}}d\par})", "ad|"},
                      TextRow{"UnknownPlainGroupIsRead", R"({\rtf1 a{\mystery b}c\par})", "abc|"},
                      TextRow{"HeadersAndStyles",
                              R"({\rtf1{\stylesheet{\s1 Normal;}}{\info{\title T}}{\footer F}x\par})", "x|"},
                      TextRow{"FieldShowsItsResult",
                              R"({\rtf1{\field{\*\fldinst HYPERLINK}{\fldrslt here}}\par})", "here|"},
                      TextRow{"CutInAWord", R"({\rtf1 a\pa)", "a|"},
                      TextRow{"CutInHex", R"({\rtf1 a\'d)", "a|"},
                      TextRow{"CutInAGroup", R"({\rtf1 a{\b b)", "ab|"},
                      TextRow{"TooManyClosings", R"({\rtf1 a}}}}b\par)", "ab|"},
                      TextRow{"HugeNumbers", R"({\rtf1\fs99999999999999999999\li-99999999999999 a\par})",
                              "a|"},
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
    EXPECT_TRUE(look.bold && look.italic && look.underline && look.hasColour);
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
    const auto document = readRtf(R"({\rtf1\pard\qc\li720\fi-360\tx1440\tx2880 x\par})");
    const ParagraphLook& look = std::get<Paragraph>(document->blocks.at(0)).look;
    EXPECT_EQ(look.alignment, TextAlignment::Centre);
    EXPECT_EQ(look.leftIndent, 720);
    EXPECT_EQ(look.firstIndent, -360);
    EXPECT_EQ(look.tabs, (std::vector<int>{1440, 2880}));
}

TEST(RtfReader, ReadsATable) {
    const auto document = readRtf(
        R"({\rtf1\trowd\cellx1000\cellx2000\pard\intbl a\cell b\cell\row\trowd\cellx1000\cellx2000\pard\intbl c\cell d\cell\row\pard e\par})");
    ASSERT_EQ(document->blocks.size(), 3U);
    const auto& row = std::get<TableRow>(document->blocks[1]);
    EXPECT_EQ(row.edges, (std::vector<int>{1000, 2000}));
    ASSERT_EQ(row.cells.size(), 2U);
    EXPECT_EQ(std::get<TextRun>(row.cells[1].at(0).runs.at(0)).text, "d");
    EXPECT_EQ(textOf(*document), "e|");
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

TEST(RtfReader, SkipsAMetafile) {
    EXPECT_EQ(textOf(R"({\rtf1 a{\pict\wmetafile8 0100}b\par})"), "ab|");
}

TEST(RtfReader, SurvivesGroupsThatNestWithoutEnd) {
    EXPECT_EQ(textOf("{\\rtf1 a" + std::string(1000000, '{') + "b"), "ab|");
    EXPECT_EQ(textOf("{\\rtf1 " + std::string(5000, '{') + "a" + std::string(5000, '}') + "b\\par}"), "ab|");
}

TEST(RtfReader, SurvivesEveryCutOfARealDocument) {
    const std::string whole =
        readWholeFile(std::filesystem::path(NORLAPLAN_PROGRAM_FOLDER) / "help/Break Down.rtf");
    for (std::size_t length = 0; length < whole.size(); length += 3) {
        EXPECT_NO_THROW(readRtf(std::string_view(whole).substr(0, length))) << length;
    }
}

TEST(RtfReader, SurvivesAnyByteInPlaceOfAnother) {
    const std::string whole =
        readWholeFile(std::filesystem::path(NORLAPLAN_PROGRAM_FOLDER) / "help/Distributor.rtf");
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
