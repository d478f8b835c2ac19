#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "documents/SampleSheet.h"

namespace norlaplan {
namespace {

using testing::RecordingCanvas;
using testing::Sheet;

/// The sheet of another style, with reference diameters that tell where they stand.
struct StyledSheet : Sheet {
    explicit StyledSheet(const std::string& letter) {
        place.write("overlays/" + letter + ".ovl", "IN;");
        for (const char* const suffix : {"XC", "U", "A"})
            place.write(std::string("overlays/RIBBON") + suffix + ".sep", "IN;");
        state.bearing.styleLetter = letter;
        state.bearing.referenceDiameter1 = 1.25;
        state.bearing.referenceDiameter2 = 2.25;
        state.bearing.referenceDiameter3 = 3.25;
    }
};

bool stands(const RecordingCanvas& canvas, const std::string& words, const PageBox& box) {
    return std::any_of(canvas.texts.begin(), canvas.texts.end(), [&](const auto& text) {
        return text.text == words && text.box.left == box.left && text.box.top == box.top &&
               text.box.right == box.right && text.box.bottom == box.bottom;
    });
}

TEST(SizeTexts, PlaceTheReferenceDiametersByStyle) {
    const PageBox up{5.313, 9.631, 7.833, 9.281};
    const PageBox third{4.25, 5.47, 6.75, 5.12};
    const PageBox second{4.31, 5.487, 6.83, 5.137};
    const struct {
        const char* style;
        bool up, third, second;
    } rows[] = {{"U", true, true, false},  {"A", true, true, false},  {"T", true, true, false},
                {"B", false, true, false}, {"C", false, false, true}, {"X", false, false, true},
                {"F", false, false, true}};
    for (const auto& row : rows) {
        StyledSheet sheet(row.style);
        const RecordingCanvas canvas = sheet.draw();
        EXPECT_TRUE(stands(canvas, "Ø 1.250 Ref.", {4.563, 5.741, 7.083, 5.391})) << row.style;
        EXPECT_EQ(stands(canvas, "Ø 2.250 Ref.", up), row.up) << row.style;
        EXPECT_EQ(stands(canvas, "Ø 3.250 Ref.", third), row.third) << row.style;
        EXPECT_EQ(stands(canvas, "Ø 2.250 Ref.", second), row.second) << row.style;
    }
}

TEST(SizeTexts, PlaceTheRadialRunoutsByStyle) {
    for (const char* const style : {"X", "C"}) {
        StyledSheet sheet(style);
        EXPECT_TRUE(stands(sheet.draw(), ".00160", {5.236, 6.102, 6.706, 5.752})) << style;
    }
    for (const char* const style : {"A", "B", "F", "T", "U"}) {
        StyledSheet sheet(style);
        EXPECT_TRUE(stands(sheet.draw(), ".00160", {4.706, 6.102, 6.176, 5.752})) << style;
    }
}

TEST(SizeTexts, WriteTheZeroLimitAboveTheTolerance) {
    Sheet sheet;
    const RecordingCanvas canvas = sheet.draw();
    EXPECT_TRUE(stands(canvas, "+.00000", {6.558, 6.479, 7.293, 6.304}));
    EXPECT_TRUE(stands(canvas, "-.00120", {6.558, 6.389, 7.293, 6.214}));
    EXPECT_TRUE(stands(canvas, "-.005", {1.824, 8.041, 2.349, 7.866}));
    EXPECT_TRUE(stands(canvas, "-.005", {7.328, 7.922, 7.853, 7.747}));
    EXPECT_TRUE(stands(canvas, "0.5000", {1.056, 8.14, 2.316, 7.79}));
    EXPECT_TRUE(stands(canvas, "0.5000", {6.558, 8.022, 7.818, 7.672}));
}

TEST(DataSheetOverlays, TakeTheSeparatorsDrawingOfTheStylesOwnSuffix) {
    const struct {
        const char *style, *suffix;
    } rows[] = {{"X", "XC"}, {"C", "XC"}, {"U", "U"}, {"A", "A"}, {"B", "A"}, {"F", "A"}, {"T", "A"}};
    for (const auto& row : rows) {
        StyledSheet sheet(row.style);
        sheet.place.write(std::string("overlays/RIBBON") + row.suffix + ".sep", "SP13;PD10,10;");
        const RecordingCanvas canvas = sheet.draw();
        const auto drawn = std::count_if(canvas.lines.begin(), canvas.lines.end(),
                                         [](const auto& line) { return line.pen.colour == 16711935U; });
        EXPECT_EQ(drawn, 1) << row.style;
    }
}

TEST(PartNumberDetail, NamesTheBallsOfStainlessAndCoatedRings) {
    Sheet sheet;
    EXPECT_FALSE(sheet.draw().hasText("< 440C Balls >"));
    for (const char* const material : {"S", "N"}) {
        sheet.state.bearing.materialCode = material;
        EXPECT_TRUE(sheet.draw().hasText("< 440C Balls >")) << material;
    }
}

TEST(PartNumberDetail, GivesTheRangeOfAFitLetterInDisplayUnits) {
    StyledSheet sheet("B");
    BearingSpec& bearing = sheet.state.bearing;
    bearing.fitLetter = "N";
    bearing.fitLow = 0.0002;
    bearing.fitHigh = 0.0004;
    bearing.clearanceKind = "Preload";
    EXPECT_TRUE(sheet.draw().hasText(" = .0002 - .0004 Preload"));
    EXPECT_TRUE(sheet.draw().hasText("'N - Preload' Recommended Fits"));
    sheet.state.unitSystem = "METRIC";
    ApplyUnitSystem("METRIC", sheet.state.units);
    // 0.0002 x 25.4 = 0.00508, 0.0004 x 25.4 = 0.01016
    EXPECT_TRUE(sheet.draw().hasText(" = 0.005 - 0.010 Preload"));
    bearing.fitLetter = "A";
    EXPECT_TRUE(sheet.draw().hasText("'A - Clearance' Recommended Fits"));
}

TEST(RecommendedFits, HeadTheirTwoPairsByStyle) {
    for (const char* const style : {"U", "A", "T"}) {
        StyledSheet sheet(style);
        EXPECT_TRUE(sheet.draw().hasText("If Rotating Shaft")) << style;
    }
    for (const char* const style : {"B", "F", "C", "X"}) {
        StyledSheet sheet(style);
        EXPECT_TRUE(sheet.draw().hasText("If Used Face-to-Face")) << style;
    }
}

TEST(DataSheetDocument, ClosesEveryGroupWhateverItsTextsHold) {
    Sheet sheet;
    sheet.state.options.footerText = "a } b \\ c { \xC3";
    sheet.state.bearing.ballsText = "}}}\\";
    sheet.draw();
    const std::string& rtf = sheet.files.rtf;
    int depth = 0;
    for (std::size_t at = 0; at < rtf.size(); ++at) {
        if (rtf[at] == '\\') {
            ++at;
        } else if (rtf[at] == '{' || rtf[at] == '}') {
            depth += rtf[at] == '{' ? 1 : -1;
            ASSERT_GT(depth + (at + 3 >= rtf.size() ? 1 : 0), 0) << "the document ends early, at " << at;
        }
    }
    EXPECT_EQ(depth, 0);
}

}  // namespace
}  // namespace norlaplan
