#include <gtest/gtest.h>

#include "documents/RTFroutines.h"
#include "documents/RtfReadBack.h"

namespace norlaplan {
namespace {

using namespace testing;

std::string headed() {
    RtfDocument document;
    document.RtfHeader();
    return document.rtf();
}

SheetText textOf(const char* colour, bool bold = false) {
    SheetText text;
    text.box = {1.0, 10.0, 3.0, 9.0};
    text.colour = colour;
    text.text = "words";
    text.size = 10.0;
    text.bold = bold;
    text.font = "TNR";
    return text;
}

TEST(RtfColours, OfATextAreThoseOfTheDocumentsTable) {
    const std::vector<RtfColour> table = colourTableOf(headed());
    const struct {
        const char* name;
        RtfColour colour;
    } rows[] = {{"RED", {255, 0, 0}},
                {"BLUE", {0, 0, 255}},
                {"GREEN", {0, 255, 0}},
                {"BLACK", {0, 0, 0}},
                {"PURPLE", {255, 0, 255}}};
    for (const auto& row : rows) {
        RtfDocument document;
        document.RTFDATASHEETTEXT(textOf(row.name));
        const auto entry = static_cast<std::size_t>(numbersOf(document.rtf()).at("cf"));
        ASSERT_LT(entry, table.size()) << row.name;
        ASSERT_GT(entry, 0U) << row.name;
        EXPECT_EQ(table[entry], row.colour) << row.name;
    }
}

TEST(RtfFonts, OfATextAreThoseOfTheDocumentsTable) {
    const std::string table = groupOf(headed(), "{\\fonttbl");
    const struct {
        const char *stored, *face;
    } rows[] = {{"TNR", "Times New Roman"}, {"ARIEL", "Arial"}, {"Courier New", "Courier New"}};
    for (const auto& row : rows) {
        RtfDocument document;
        SheetText text = textOf("BLACK");
        text.font = row.stored;
        document.RTFDATASHEETTEXT(text);
        const std::vector<int> used = numbersOf(groupOf(document.rtf(), "{\\shptxt"), "f");
        const int number = used.empty() ? 0 : used.back();
        const std::string entry = groupOf(table, "{\\f" + std::to_string(number) + "\\");
        EXPECT_NE(entry.find(std::string(row.face) + ";"), std::string::npos) << row.stored << ": " << entry;
    }
}

int boldWords(const std::string& rtf) {
    int count = 0;
    for (const RtfWord& word : wordsOf(rtf))
        count += word.name == "b" && word.number.value_or(1) != 0 ? 1 : 0;
    return count;
}

TEST(RtfTextShape, IsBoldInTheShapeAndInItsOldFormatWhenAsked) {
    RtfDocument plain, bold;
    plain.RTFDATASHEETTEXT(textOf("BLACK", false));
    bold.RTFDATASHEETTEXT(textOf("BLACK", true));
    EXPECT_EQ(boldWords(plain.rtf()), 0);
    EXPECT_EQ(boldWords(groupOf(bold.rtf(), "{\\shptxt")), 1);
    EXPECT_EQ(boldWords(groupOf(bold.rtf(), "{\\shprslt")), 1);
}

/// The old-format line of a shape: where it runs in twips, its width and colour.
struct OldLine {
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0, width = 0;
    RtfColour colour;
};

OldLine oldLine(PagePoint from, PagePoint to, Colour colour, double width) {
    RtfDocument document;
    document.RTFLINE(from, to, colour, width);
    const std::string old = groupOf(document.rtf(), "{\\shprslt");
    bool line = false;
    for (const RtfWord& word : wordsOf(old))
        line = line || word.name == "dpline";
    EXPECT_TRUE(line) << old;
    const auto numbers = numbersOf(old);
    const std::vector<int> x = numbersOf(old, "dpptx");
    const std::vector<int> y = numbersOf(old, "dppty");
    if (x.size() != 2 || y.size() != 2) {
        ADD_FAILURE() << "a line has two points: " << old;
        return {};
    }
    const int left = numbers.at("dpx");
    const int top = numbers.at("dpy");
    return {
        left + x[0],           top + y[0],
        left + x[1],           top + y[1],
        numbers.at("dplinew"), {numbers.at("dplinecor"), numbers.at("dplinecog"), numbers.at("dplinecob")}};
}

TEST(RtfLine, RunsTheSameWayInTheOldFormat) {
    // Twips from the upper left: 1440 x and 1440 (11 - y).
    for (const bool turned : {false, true}) {
        const PagePoint upper{1.0, 9.0};
        const PagePoint lower{3.0, 8.0};
        const OldLine falls = turned ? oldLine(lower, upper, 0, 9525.0) : oldLine(upper, lower, 0, 9525.0);
        EXPECT_EQ(falls.x1, 1440);
        EXPECT_EQ(falls.y1, 2880);
        EXPECT_EQ(falls.x2, 4320);
        EXPECT_EQ(falls.y2, 4320);
        const PagePoint start{1.0, 8.0};
        const PagePoint end{3.0, 9.0};
        const OldLine rises = turned ? oldLine(end, start, 0, 9525.0) : oldLine(start, end, 0, 9525.0);
        EXPECT_EQ(rises.x1, 1440);
        EXPECT_EQ(rises.y1, 4320);
        EXPECT_EQ(rises.x2, 4320);
        EXPECT_EQ(rises.y2, 2880);
    }
}

TEST(RtfLine, HasItsWidthAndColourInTheOldFormat) {
    // 635 EMU are a twip.
    EXPECT_EQ(oldLine({1, 1}, {2, 2}, 0, 9525.0).width, 15);
    EXPECT_EQ(oldLine({1, 1}, {2, 2}, 0, 19050.0).width, 30);
    EXPECT_EQ(oldLine({1, 1}, {2, 2}, rgb(12, 34, 56), 9525.0).colour, (RtfColour{12, 34, 56}));
}

TEST(RtfLine, HasTheBoxOfItsEndsInBothFormats) {
    RtfDocument document;
    document.RTFLINE({1.0, 8.0}, {3.0, 9.0}, 0, 9525.0);
    const auto shape = numbersOf(document.rtf());
    EXPECT_EQ(shape.at("shpleft"), 1440);
    EXPECT_EQ(shape.at("shptop"), 2880);
    EXPECT_EQ(shape.at("shpright"), 4320);
    EXPECT_EQ(shape.at("shpbottom"), 4320);
    EXPECT_EQ(shape.at("dpx"), 1440);
    EXPECT_EQ(shape.at("dpy"), 2880);
    EXPECT_EQ(shape.at("dpxsize"), 2880);
    EXPECT_EQ(shape.at("dpysize"), 1440);
}

TEST(RtfCircle, IsAnEllipseInItsBoxInTheOldFormat) {
    RtfDocument document;
    document.RTFCIRCLE({4.0, 8.0}, 0.5, rgb(9, 8, 7), 19050.0);
    const std::string old = groupOf(document.rtf(), "{\\shprslt");
    EXPECT_NE(old.find("\\dpellipse"), std::string::npos);
    const auto numbers = numbersOf(old);
    EXPECT_EQ(numbers.at("dpx"), 5040);
    EXPECT_EQ(numbers.at("dpy"), 3600);
    EXPECT_EQ(numbers.at("dpxsize"), 1440);
    EXPECT_EQ(numbers.at("dpysize"), 1440);
    EXPECT_EQ(numbers.at("dplinew"), 30);
    EXPECT_EQ(numbers.at("dplinecor"), 9);
    EXPECT_EQ(numbers.at("dplinecog"), 8);
    EXPECT_EQ(numbers.at("dplinecob"), 7);
    EXPECT_EQ(numbers.at("dpfillpat"), 0) << "hollow";
}

TEST(RtfTextBox, IsFilledInTheOldFormatAndHasItsPlace) {
    RtfDocument document;
    document.RTFTEXTWBOX({textOf("BLACK"), rgb(221, 210, 200)});
    const auto numbers = numbersOf(groupOf(document.rtf(), "{\\shprslt"));
    EXPECT_EQ(numbers.at("dpfillbgcr"), 221);
    EXPECT_EQ(numbers.at("dpfillbgcg"), 210);
    EXPECT_EQ(numbers.at("dpfillbgcb"), 200);
    EXPECT_EQ(numbers.at("dpfillpat"), 1);
    EXPECT_EQ(numbers.at("dpx"), 1440);
    EXPECT_EQ(numbers.at("dpy"), 1440);
    EXPECT_EQ(numbers.at("dpxsize"), 2880);
    EXPECT_EQ(numbers.at("dpysize"), 1440);
}

TEST(RtfTint, HasItsTwoColoursInBothFormats) {
    RtfDocument document;
    document.TINTEDTTEXTBOX({1.0, 10.0, 3.0, 9.0}, rgb(1, 2, 3), rgb(4, 5, 6));
    const std::string& rtf = document.rtf();
    EXPECT_NE(rtf.find("{\\sn fillColor}{\\sv " + std::to_string(rgb(1, 2, 3)) + "}"), std::string::npos);
    EXPECT_NE(rtf.find("{\\sn fillBackColor}{\\sv " + std::to_string(rgb(4, 5, 6)) + "}"), std::string::npos);
    const auto old = numbersOf(groupOf(rtf, "{\\shprslt"));
    EXPECT_EQ(old.at("dpfillbgcr"), 1);
    EXPECT_EQ(old.at("dpfillbgcb"), 3);
    EXPECT_EQ(old.at("dpfillfgcr"), 4);
    EXPECT_EQ(old.at("dpfillfgcb"), 6);
    EXPECT_EQ(document.shapeCounter(), 1);
}

TEST(RtfShapes, AreNumberedThroughAndTheLogoAmongThem) {
    RtfDocument document;
    document.RtfHeader();
    EXPECT_EQ(numbersOf(document.rtf(), "shplid"), std::vector<int>{1025}) << "the head's own picture";
    document.RTFLINE({1, 1}, {2, 2}, 0, 9525.0);
    document.RtfPlainText(textOf("BLACK"));
    document.RtfLogoPicture();
    document.RTFCIRCLE({4.0, 8.0}, 0.5, 0, 9525.0);
    EXPECT_EQ(document.shapeCounter(), 4);
    EXPECT_EQ(numbersOf(document.rtf(), "shplid"), (std::vector<int>{1025, 1027, 1028, 1029, 1030}));
}

TEST(RtfHead, CarriesTheLogoAsAMetafileOfItsSize) {
    const std::string picture = groupOf(headed(), "{\\pict");
    const auto numbers = numbersOf(picture);
    EXPECT_EQ(numbers.at("picscalex"), 23);
    EXPECT_EQ(numbers.at("picscaley"), 23);
    EXPECT_EQ(numbers.at("wmetafile"), 8);
    EXPECT_EQ(numbers.at("picwgoal"), 12780);
    EXPECT_EQ(numbers.at("pichgoal"), 4175);
    std::size_t hex = 0;
    for (const char c : picture.substr(picture.find("wmetafile8") + 10))
        hex += (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F') ? 1U : 0U;
    EXPECT_GT(hex, 100U);
    EXPECT_EQ(hex % 2, 0U);
}

TEST(RtfHead, HasLetterMarginsAndALevelForEveryListNumbering) {
    const auto numbers = numbersOf(headed());
    EXPECT_EQ(numbers.at("margl"), 720);
    EXPECT_EQ(numbers.at("margr"), 720);
    EXPECT_EQ(numbers.at("margt"), 936);
    EXPECT_EQ(numbers.at("margb"), 720);
    EXPECT_EQ(numbersOf(headed(), "pnseclvl"), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

}  // namespace
}  // namespace norlaplan
