#include <algorithm>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "documents/SampleSheet.h"
#include "documents/SheetWriter.h"

namespace norlaplan {
namespace {

using testing::RecordingCanvas;
using testing::Sheet;

constexpr Colour kGrease = 16711680;
constexpr Colour kOil = 255;

bool hasLine(const RecordingCanvas& canvas, PagePoint from, PagePoint to, const PagePen& pen) {
    const auto near = [](double one, double other) { return std::abs(one - other) < 1e-9; };
    return std::any_of(canvas.lines.begin(), canvas.lines.end(), [&](const auto& line) {
        return near(line.from.x, from.x) && near(line.from.y, from.y) && near(line.to.x, to.x) &&
               near(line.to.y, to.y) && line.pen.colour == pen.colour && line.pen.width == pen.width;
    });
}

const RecordingCanvas::Text* textOf(const RecordingCanvas& canvas, const std::string& words) {
    const auto at = std::find_if(canvas.texts.begin(), canvas.texts.end(),
                                 [&](const auto& text) { return text.text == words; });
    return at == canvas.texts.end() ? nullptr : &*at;
}

TEST(SpeedPanel, DrawsFullSpeedUpToTwentyPerCentAndAFifthFromOneHundredAndFifty) {
    Sheet sheet;
    const RecordingCanvas canvas = sheet.draw();
    // Oil 1200, so the scale ends at 1500: 1.43 + 1.65 x 1200 / 1500 = 2.75; 1.43 + 1.65 x 0.2 x 0.8 = 1.694.
    const PagePen oil{kOil, 19050.0, 0};
    EXPECT_TRUE(hasLine(canvas, {4.79, 2.75}, {4.45, 2.75}, oil));
    EXPECT_TRUE(hasLine(canvas, {4.79, 2.75}, {7.0, 1.694}, oil));
    EXPECT_TRUE(hasLine(canvas, {7.0, 1.694}, {7.85, 1.694}, oil));
    // Grease 900: 1.43 + 1.65 x 0.6 = 2.42; 1.43 + 1.65 x 0.2 x 0.6 = 1.628.
    const PagePen grease{kGrease, 19050.0, 0};
    EXPECT_TRUE(hasLine(canvas, {4.79, 2.42}, {4.45, 2.42}, grease));
    EXPECT_TRUE(hasLine(canvas, {4.79, 2.42}, {7.0, 1.628}, grease));
    EXPECT_TRUE(hasLine(canvas, {7.0, 1.628}, {7.85, 1.628}, grease));
}

TEST(SpeedPanel, NumbersBothAxes) {
    Sheet sheet;
    const RecordingCanvas canvas = sheet.draw();
    for (const char* const label : {" 300", " 600", " 900", " 1200", " 1500"}) {
        EXPECT_NE(textOf(canvas, label), nullptr) << label;
    }
    const auto* const scale = textOf(canvas, " 600");
    ASSERT_NE(scale, nullptr);
    // 1.43 + 1.65 x 600 / 1500 = 2.09
    EXPECT_NEAR(scale->box.top, 2.14, 1e-9);
    EXPECT_NEAR(scale->box.bottom, 2.04, 1e-9);
    const auto* const percent = textOf(canvas, " 100%");
    ASSERT_NE(percent, nullptr);
    // 4.45 + 0.017 x 100 = 6.15, less and plus 5 x 0.024; the blank stands 30 twips outside.
    EXPECT_NEAR(percent->box.left, 6.03 - 30.0 / 1440.0, 1e-9);
    EXPECT_NEAR(percent->box.right, 6.27, 1e-9);
    const PagePen grid{rgb(192, 192, 192), 9525.0, 0};
    EXPECT_TRUE(hasLine(canvas, {6.15, 3.08}, {6.15, 1.43}, grid));
    EXPECT_TRUE(hasLine(canvas, {4.4, 1.76}, {7.85, 1.76}, grid));
    EXPECT_EQ(textOf(canvas, " 225%"), nullptr);
}

TEST(SpeedPanel, WritesEachLimitInItsColourAboveItsCurve) {
    Sheet sheet;
    const RecordingCanvas canvas = sheet.draw();
    const auto* const limit = textOf(canvas, "900");
    ASSERT_NE(limit, nullptr);
    EXPECT_EQ(limit->look.colour, colours::kBlue);
    EXPECT_EQ(limit->box.left, 4.45);
    EXPECT_EQ(limit->box.right, 4.79);
    EXPECT_NEAR(limit->box.bottom, 2.42, 1e-9);
    const auto* const oil = textOf(canvas, "Oil Lubricated");
    ASSERT_NE(oil, nullptr);
    EXPECT_EQ(oil->look.colour, colours::kRed);
}

/// Feet and heads of the figures of a text at 7 points, by the metrics of Times: a line of text reaches 0.891
/// em above the feet of its figures, which are 0.676 em high and 0.5 em wide.
PageBox figuresOf(const RecordingCanvas::Text& text) {
    constexpr double kEm = 7.0 / 72.0;
    const double feet = text.box.top - 0.891 * kEm;
    return {text.box.left, feet + 0.676 * kEm,
            text.box.left + 0.5 * kEm * static_cast<double>(text.text.size()), feet};
}

struct FigureCase {
    double grease, oil, mist;
    bool greaseAbove, oilAbove, mistAbove;
};

void PrintTo(const FigureCase& row, std::ostream* out) {
    *out << row.grease << ", " << row.oil << ", " << row.mist;
}

class SpeedFigures : public ::testing::TestWithParam<FigureCase> {
  protected:
    RecordingCanvas draw() {
        BearingSpec& bearing = sheet.state.bearing;
        bearing.precisionCode = "6";
        bearing.limitSpeedGrease = GetParam().grease;
        bearing.limitSpeedOil = GetParam().oil;
        bearing.limitSpeedMist = GetParam().mist;
        return sheet.draw();
    }
    static std::string shown(double limit) { return std::to_string(std::lround(limit)); }

    Sheet sheet;
};

// The scale ends at the step not below the mist's limit; 1.65 inches of chart stand for it.
INSTANTIATE_TEST_SUITE_P(
    Limits, SpeedFigures,
    ::testing::Values(FigureCase{9000, 11700, 13500, true, true, true},
                      FigureCase{1000, 1300, 1500, true, true,
                                 false},                               // the mist's curve is the frame's line
                      FigureCase{1000, 1300, 1412, true, true, true},  // 0.097 inches below the frame
                      FigureCase{1000, 1300, 1420, true, true, false},  // 0.088: no room above
                      FigureCase{1000, 1050, 1300, false, true, true},  // oil 0.055 above grease
                      FigureCase{10, 60, 90, true, true, true}));

TEST_P(SpeedFigures, StandAboveTheirCurveOrBelowItWhereTheFrameOrAnotherCurveIsTooNear) {
    const RecordingCanvas canvas = draw();
    const double most = NiceAxisMaximum(GetParam().mist);
    const std::pair<double, bool> rows[] = {{GetParam().grease, GetParam().greaseAbove},
                                            {GetParam().oil, GetParam().oilAbove},
                                            {GetParam().mist, GetParam().mistAbove}};
    for (const auto& [limit, above] : rows) {
        const auto* const text = textOf(canvas, shown(limit));
        ASSERT_NE(text, nullptr) << limit;
        EXPECT_EQ(text->box.left, 4.45);
        EXPECT_EQ(text->box.right, 4.79);
        const double y = 1.43 + 1.65 * limit / most;
        const PageBox ink = figuresOf(*text);
        if (above) {
            EXPECT_GT(ink.bottom, y + 0.0104) << limit << ": half of the curve's width";
            EXPECT_LT(ink.bottom, y + 0.04) << limit;
            EXPECT_LT(ink.top, 3.08 - 0.0052) << limit << ": half of the frame's width";
        } else {
            EXPECT_LT(ink.top, y - 0.0104) << limit;
            EXPECT_GT(ink.top, y - 0.04) << limit;
        }
    }
}

TEST_P(SpeedFigures, HaveWhiteBehindThemThatHidesTheGridAndNoCurve) {
    const RecordingCanvas canvas = draw();
    for (const double limit : {GetParam().grease, GetParam().oil, GetParam().mist}) {
        const auto* const text = textOf(canvas, shown(limit));
        ASSERT_NE(text, nullptr) << limit;
        const PageBox ink = figuresOf(*text);
        bool covered = false;
        for (const auto& line : canvas.lines) {
            const double half = line.pen.width / 914400.0 / 2.0;
            if (line.pen.colour == colours::kWhite) {
                covered = covered || (line.from.x <= ink.left && line.to.x >= ink.right &&
                                      line.from.y + half >= ink.top && line.from.y - half <= ink.bottom);
                continue;
            }
            const bool level =
                line.from.y == line.to.y && line.from.y + half > ink.bottom && line.from.y - half < ink.top;
            const bool along =
                std::min(line.from.x, line.to.x) < ink.right && std::max(line.from.x, line.to.x) > ink.left;
            const bool grid = line.pen.colour == rgb(192, 192, 192);
            if (level && along) {
                EXPECT_TRUE(grid && !covered) << limit << ": a line at " << line.from.y;
            }
        }
        EXPECT_TRUE(covered) << limit;
    }
}

TEST(SpeedPanel, KeepsTheFiguresOfAFiveDigitScaleClearOfTheGrid) {
    Sheet sheet;
    sheet.state.bearing.limitSpeedOil = 15000.0;
    const RecordingCanvas canvas = sheet.draw();
    const auto* const label = textOf(canvas, " 15000");
    ASSERT_NE(label, nullptr);
    // A blank of 0.25 em and five figures of 0.5 em at 7 points; the grid begins at 4.4.
    EXPECT_LT(label->box.left + 2.75 * 7.0 / 72.0, 4.4);
}

TEST(SpeedPanel, ShowsGreaseAloneForLooseSeparators) {
    for (const char* const code : {"ZT", "ZP", "S"}) {
        Sheet sheet;
        sheet.state.bearing.separatorCode = code;
        sheet.state.bearing.precisionCode = "6";
        const RecordingCanvas canvas = sheet.draw();
        EXPECT_TRUE(canvas.hasText("Grease Lubricated")) << code;
        EXPECT_FALSE(canvas.hasText("Oil Lubricated")) << code;
        EXPECT_FALSE(canvas.hasText("Oil Mist Lubricated")) << code;
        EXPECT_TRUE(canvas.hasText(" 1000")) << "the scale ends above the grease limit of 900";
    }
}

TEST(SpeedPanel, ShowsOilMistForTheFinestPrecisionWithTheScaleOfItsLimit) {
    Sheet sheet;
    EXPECT_FALSE(sheet.draw().hasText("Oil Mist Lubricated"));
    sheet.state.bearing.precisionCode = "6";
    sheet.state.bearing.limitSpeedMist = 1501.0;
    const RecordingCanvas canvas = sheet.draw();
    const auto* const mist = textOf(canvas, "Oil Mist Lubricated");
    ASSERT_NE(mist, nullptr);
    EXPECT_EQ(mist->look.colour, colours::kPurple);
    EXPECT_TRUE(canvas.hasText(" 2000"));
}

TEST(SpeedPanel, SaysWhyThereIsNoSpeedWithoutASeparator) {
    Sheet sheet;
    sheet.state.bearing.separatorCode = "F";
    const RecordingCanvas canvas = sheet.draw();
    EXPECT_TRUE(canvas.hasText("Speed Data"));
    EXPECT_TRUE(canvas.hasText("Varden Engineering."));
    EXPECT_FALSE(canvas.hasText("Speed in RPM"));
    EXPECT_FALSE(canvas.hasText(" Speeds shown are for '0' preload "));
}

TEST(SpeedPanel, LeavesTheNoteOnPreloadOutForASpecialFitup) {
    Sheet sheet;
    EXPECT_TRUE(sheet.draw().hasText(" Speeds shown are for '0' preload "));
    sheet.state.bearing.fitLetter = "Z";
    EXPECT_FALSE(sheet.draw().hasText(" Speeds shown are for '0' preload "));
}

TEST(NiceAxisMaximum, IsTheSmallestStepThatIsNotBelow) {
    const double rows[][2] = {{0, 100},       {100, 100},     {100.5, 200},   {201, 300},     {400, 400},
                              {401, 500},     {501, 600},     {601, 800},     {1000, 1000},   {1001, 1500},
                              {1501, 2000},   {2001, 3000},   {3001, 4000},   {4001, 5000},   {5001, 7500},
                              {7500, 7500},   {7501, 10000},  {10001, 15000}, {15001, 20000}, {20001, 25000},
                              {25001, 30000}, {30001, 35000}, {35001, 40000}, {40000, 40000}, {40001, 50000},
                              {90000, 50000}};
    for (const auto& row : rows)
        EXPECT_EQ(NiceAxisMaximum(row[0]), row[1]) << row[0];
}

}  // namespace
}  // namespace norlaplan
