#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "documents/OverlayReader.h"

namespace norlaplan {
namespace {

std::vector<SheetRecord> drawn(const std::string& plot) {
    RtfDocument document;
    OverlayToRtf(document, plot);
    return readSheetRecords(document.records());
}

std::size_t shapes(const std::string& plot) {
    return drawn(plot).size();
}

const SheetLine& line(const std::vector<SheetRecord>& records, std::size_t index) {
    return std::get<SheetLine>(records.at(index));
}

TEST(Overlay, MapsPlotterUnitsToPageInches) {
    const auto records = drawn("IN;PU1016,2032;PD2032,2032,2032,0;");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_DOUBLE_EQ(line(records, 0).from.x, 1.25);
    EXPECT_DOUBLE_EQ(line(records, 0).from.y, 2.625);
    EXPECT_DOUBLE_EQ(line(records, 0).to.x, 2.25);
    EXPECT_DOUBLE_EQ(line(records, 1).from.x, 2.25) << "the pen has moved";
    EXPECT_DOUBLE_EQ(line(records, 1).to.y, 0.625);
}

TEST(Overlay, StartsThickAndBlackAndGoesThinWithItsPens) {
    const auto records = drawn("PD1,1;SP1;PD2,2;SP99;PD3,3;PW.45;PD4,4;LT5;PD5,5;LT-3;PD6,6;LT0;PD7,7;");
    ASSERT_EQ(records.size(), 7U);
    EXPECT_EQ(line(records, 0).width, 19050.0);
    EXPECT_EQ(line(records, 0).colour, 0U);
    EXPECT_EQ(line(records, 1).width, 9525.0);
    EXPECT_EQ(line(records, 1).colour, 255U);
    EXPECT_EQ(line(records, 2).colour, 255U) << "another pen changes nothing";
    EXPECT_EQ(line(records, 3).colour, 16711680U);
    EXPECT_EQ(line(records, 4).dash, 8);
    EXPECT_EQ(line(records, 5).dash, 6);
    EXPECT_EQ(line(records, 6).dash, 0);
}

TEST(Overlay, DrawsNothingForAPenThatGoesNowhere) {
    EXPECT_EQ(shapes("PU100,100;PD;"), 0U);
    EXPECT_EQ(shapes("PU;PD5,5;"), 1U);
    EXPECT_EQ(shapes("LBTEXT PD1,1;"), 0U) << "capitals belong to a label";
    EXPECT_EQ(shapes("\x1B.PD1,1;\nPD1,1;"), 1U) << "an escape skips its line";
}

TEST(Overlay, ReadsParametersUpToTheNextMnemonic) {
    EXPECT_EQ(shapes("PU0 0PD 10  10PD20,20"), 2U);
}

TEST(Overlay, DrawsAFullTurnAsOneCircle) {
    for (const char* const sweep : {"359", "360", "720"}) {
        const auto records = drawn(std::string("PU1016,0;AA0,0,") + sweep + ";");
        ASSERT_EQ(records.size(), 1U);
        EXPECT_DOUBLE_EQ(std::get<SheetCircle>(records[0]).radius, 1.0);
    }
    EXPECT_EQ(shapes("PU1016,0;AA0,0,0;"), 0U) << "no sweep, no arc";
}

TEST(Overlay, TakesMoreChordsForALargerArc) {
    const struct {
        double radius;
        std::size_t chords;
    } rows[] = {{0.02, 6}, {0.04, 10}, {0.2, 20}, {0.9, 30}, {1.5, 50}};
    for (const auto& row : rows) {
        const std::string x = std::to_string(static_cast<int>(row.radius * 1016.0));
        EXPECT_EQ(shapes("PU" + x + ",0;AA0,0,90;"), row.chords) << row.radius;
    }
}

TEST(Overlay, BeginsAnArcAtThePensAngle) {
    const struct {
        const char* pen;
        double x, y;  ///< where the first chord begins, from the centre in inches
    } rows[] = {{"1016,0", 1, 0},    {"0,1016", 0, 1},      {"-1016,0", -1, 0},      {"0,-1016", 0, -1},
                {"1016,1016", 1, 1}, {"-1016,1016", -1, 1}, {"-1016,-1016", -1, -1}, {"1016,-1016", 1, -1}};
    for (const auto& row : rows) {
        const auto records = drawn(std::string("PU") + row.pen + ";AA0,0,90;");
        EXPECT_NEAR(line(records, 0).from.x - 0.25, row.x, 1e-6) << row.pen;
        EXPECT_NEAR(line(records, 0).from.y - 0.625, row.y, 1e-6) << row.pen;
        // A quarter turn counter-clockwise of (x, y) is (-y, x).
        EXPECT_NEAR(line(records, records.size() - 1).to.x - 0.25, -row.y, 1e-6) << row.pen;
        EXPECT_NEAR(line(records, records.size() - 1).to.y - 0.625, row.x, 1e-6) << row.pen;
    }
}

TEST(Overlay, SnapsTheStartOfAnArcToTheAxisWithinNineThousandths) {
    // 9 units are 0.00886 inch, 10 are 0.00984; the radius is the pen's true distance.
    const auto snapped = drawn("PU1016,9;AA0,0,90;");
    EXPECT_DOUBLE_EQ(line(snapped, 0).from.y, 0.625);
    EXPECT_DOUBLE_EQ(line(snapped, 0).from.x, 0.25 + std::sqrt(1.0 + (9.0 / 1016.0) * (9.0 / 1016.0)));
    const auto free = drawn("PU1016,10;AA0,0,90;");
    EXPECT_NEAR(line(free, 0).from.y, 0.625 + 10.0 / 1016.0, 1e-9);
}

TEST(Overlay, DividesAnArcIntoEqualChordsEitherWay) {
    constexpr double kThreeDegrees = 3.14159265359 / 60.0;
    const auto left = drawn("PU1016,0;AA0,0,90;");
    ASSERT_EQ(left.size(), 30U);
    EXPECT_NEAR(line(left, 0).to.x, 0.25 + std::cos(kThreeDegrees), 1e-12);
    EXPECT_NEAR(line(left, 0).to.y, 0.625 + std::sin(kThreeDegrees), 1e-12);
    const auto right = drawn("PU1016,0;AA0,0,-90;");
    ASSERT_EQ(right.size(), 30U);
    EXPECT_NEAR(line(right, 0).to.y, 0.625 - std::sin(kThreeDegrees), 1e-12);
}

// The standard's own rule: the pen goes along the arc.
TEST(Overlay, AnArcLeavesThePenWhereItEnds) {
    const struct {
        const char* sweep;
        double x, y;  ///< from the centre in inches, with the pen at (1, 0) before
    } rows[] = {{"90", 0, 1}, {"-90", 0, -1}, {"180", -1, 0}, {"270", 0, -1}};
    for (const auto& row : rows) {
        const auto records = drawn(std::string("PU1016,0;AA0,0,") + row.sweep + ";PD0,2032;");
        ASSERT_EQ(records.size(), 31U) << row.sweep;
        EXPECT_NEAR(line(records, 30).from.x - 0.25, row.x, 1e-9) << row.sweep;
        EXPECT_NEAR(line(records, 30).from.y - 0.625, row.y, 1e-9) << row.sweep;
    }
    const auto circle = drawn("PU1016,0;AA0,0,360;PD0,2032;");
    ASSERT_EQ(circle.size(), 2U);
    EXPECT_DOUBLE_EQ(line(circle, 1).from.x, 1.25) << "a full turn ends where it began";
    EXPECT_DOUBLE_EQ(line(circle, 1).from.y, 0.625);
}

TEST(Overlay, TakesTwoPointsAnInstructionAndNoMore) {
    EXPECT_EQ(shapes("PD1,1,2,2,3,3;"), 2U);
    EXPECT_EQ(shapes("PD1,1,2;"), 1U) << "half a point is none";
}

TEST(Overlay, TakesParametersThatAreNoNumbersForZero) {
    const auto records = drawn("PU1016,1016;PDx,{2};");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_DOUBLE_EQ(line(records, 0).to.x, 0.25);
    EXPECT_DOUBLE_EQ(line(records, 0).to.y, 0.625);
}

TEST(Overlay, KnowsItsPens) {
    const struct {
        const char* choice;
        Colour colour;
    } rows[] = {{"PW0.05", 255},   {"PW0.15", 0},     {"PW0.35", 3394611}, {"PW0.45", 16711680},
                {"SP1", 255},      {"SP6", 255},      {"SP2", 0},          {"SP15", 0},
                {"SP3", 16711680}, {"SP4", 16711680}, {"SP10", 49344},     {"SP13", 16711935}};
    for (const auto& row : rows) {
        const auto records = drawn(std::string(row.choice) + ";PD1,1;");
        EXPECT_EQ(line(records, 0).colour, row.colour) << row.choice;
        EXPECT_EQ(line(records, 0).width, 9525.0) << row.choice;
    }
    for (const char* const other : {"PW0.2", "SP5", "SP", "PW"}) {
        const auto records = drawn(std::string(other) + ";PD1,1;");
        EXPECT_EQ(line(records, 0).width, 19050.0) << other;
    }
}

std::string repeated(const std::string& part, std::size_t size) {
    std::string plot;
    plot.reserve(size + part.size());
    while (plot.size() < size)
        plot += part;
    return plot;
}

TEST(Overlay, DrawsNoMoreThanADrawingOfABearingCouldHave) {
    const struct {
        const char* instruction;
        int times;
        std::size_t drawn;
        bool whole;
    } rows[] = {{"PD1,2;", 5000, 5000, true},         {"PD1,2;", 5001, 5000, false},
                {"PD1,2,3,4;", 2501, 5000, false},    {"AA0,0,360;", 500, 500, true},
                {"AA0,0,360;", 20000, 500, false},    {"AA30480,0,360;", 1, 1, true},
                {"AA30490,0,360;", 20000, 0, false},  {"AA2000,2000,90;", 100, 5000, true},
                {"AA2000,2000,90;", 101, 5000, false}};
    for (const auto& row : rows) {
        RtfDocument document;
        std::string plot = "PU0,0;";
        for (int i = 0; i < row.times; ++i)
            plot += row.instruction;
        EXPECT_EQ(OverlayToRtf(document, plot), row.whole) << row.instruction << row.times;
        EXPECT_EQ(readSheetRecords(document.records()).size(), row.drawn) << row.instruction << row.times;
    }
}

TEST(Overlay, ReadsNoMoreOfAFileThanADrawingCanHold) {
    constexpr std::size_t kFiftyMegabytes = 50U << 20U;
    EXPECT_LE(shapes(repeated("PD1,2;PD3,4;", kFiftyMegabytes)), 20100U);
    EXPECT_EQ(shapes("PD" + repeated("9", kFiftyMegabytes)), 0U);
    EXPECT_EQ(shapes(repeated("LB", kFiftyMegabytes)), 0U);
    EXPECT_EQ(shapes(repeated("\x1B", kFiftyMegabytes)), 0U);
}

TEST(Overlay, SurvivesEveryCut) {
    const std::string plot = "IN;PW.15;PU1016,2032;PD2032,2032,2032,0;AA10,10,-90;LT-5;LBx\x03SP3;";
    for (std::size_t length = 0; length <= plot.size(); ++length)
        EXPECT_NO_THROW(shapes(plot.substr(0, length))) << length;
}

TEST(Overlay, SurvivesGarbage) {
    std::string garbage;
    unsigned random = 99;
    for (int i = 0; i < 300000; ++i) {
        random = random * 1664525U + 1013904223U;
        garbage += static_cast<char>(static_cast<unsigned char>(random >> 24U));
    }
    EXPECT_NO_THROW(shapes(garbage));
    EXPECT_NO_THROW(shapes("PD99999999999999999999,1e308,nan,inf;AA1e99,2,3;PDx,y;AA"));
}

}  // namespace
}  // namespace norlaplan
