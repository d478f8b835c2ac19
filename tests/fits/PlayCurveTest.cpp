#include <cmath>

#include <gtest/gtest.h>

#include "fits/PlayCurve.h"
#include "fits/SampleBearings.h"
#include "support/FaultOf.h"
#include "support/PlainPlay.h"

namespace norlaplan {
namespace {

using testing::faultOf;
using testing::fitLettersOf;
using testing::PlainPlay;
using testing::plainPlay;
using testing::SampleBearings;
using testing::sampleSizes;

constexpr double kThirty = 94.2477796077 / 180.0;

struct Case {
    const char* style;
    const char* units;
};

class ThePlayCurve : public ::testing::TestWithParam<Case> {
  protected:
    const PlayCurve& curveOf(const std::string& number) {
        EXPECT_TRUE(run.decoded(number)) << number;
        computePlayCurve(run.bearing(), run.state.units, run.state.play);
        return run.state.play;
    }

    SampleBearings run{GetParam().units};
    std::string style = GetParam().style;
};

TEST_P(ThePlayCurve, EqualsThePlainCalculationToTheLastBitForEveryBearingOfTheCatalogue) {
    for (const std::string& size : sampleSizes()) {
        for (const std::string& letter : fitLettersOf(style)) {
            const std::string number = size + style + "P0" + letter;
            const PlayCurve& found = curveOf(number);
            const PlainPlay plain = plainPlay(run.bearing(), run.state.units.lengthFactor.stored());
            ASSERT_EQ(found.rowCount, static_cast<int>(plain.rows.size())) << number;
            for (int i = 1; i <= found.rowCount; ++i) {
                const PlainPlay::Row& row = plain.rows[static_cast<std::size_t>(i - 1)];
                ASSERT_EQ(found.row(i).clearance.stored(), row.clearance) << number << " " << i;
                ASSERT_EQ(found.row(i).axialPlay.stored(), row.play) << number << " " << i;
                ASSERT_EQ(found.row(i).tilt.stored(), row.tilt) << number << " " << i;
            }
            EXPECT_EQ(found.curveClearanceMax.stored(), plain.most);
            EXPECT_EQ(found.clearanceLow, plain.low);
            EXPECT_EQ(found.clearanceHigh, plain.high);
            EXPECT_EQ(found.playAtLow.stored(), plain.playAtLow) << number;
            EXPECT_EQ(found.playAtHigh.stored(), plain.playAtHigh) << number;
            EXPECT_EQ(found.tiltAtLow.stored(), plain.tiltAtLow) << number;
            EXPECT_EQ(found.tiltAtHigh.stored(), plain.tiltAtHigh) << number;
            EXPECT_EQ(found.sx, plain.sx);
            EXPECT_EQ(found.sy, plain.sy);
            EXPECT_EQ(found.sTilt, plain.sTilt);
        }
    }
}

TEST_P(ThePlayCurve, IsTheArcCosineOfTheOpenedContact) {
    for (const std::string& size : sampleSizes()) {
        const PlayCurve& found = curveOf(size + style + "P0");
        const BearingSpec& b = run.bearing();
        const double free = style == "C" ? 0.0 : kThirty;
        const double A = 2.0 * b.raceRadius - b.ballDiameter;
        const double shown = std::string(GetParam().units) == "US" ? 1.0 : 25.4;
        for (int i = 2; i <= found.rowCount; ++i) {
            const double P = found.row(i).clearance / shown;
            const double opened = std::acos(std::cos(free) - P / (2.0 * A));
            const double play = 2.0 * A * (std::sin(opened) - std::sin(free));
            EXPECT_NEAR(found.row(i).axialPlay / shown, play, 1e-6 * play) << size << i;
            EXPECT_NEAR(found.row(i).tilt, play / b.pitchDiameter, 1e-6 * play) << size << i;
        }
    }
}

TEST_P(ThePlayCurve, BeginsAtZeroAndRisesWithTheClearance) {
    for (const std::string size : {"K04008", "K19013", "K50020"}) {
        const PlayCurve& found = curveOf(size + style + "P0");
        EXPECT_EQ(found.row(1).axialPlay, 0.0);
        EXPECT_EQ(found.row(1).tilt, 0.0);
        for (int i = 2; i <= found.rowCount; ++i) {
            EXPECT_GT(found.row(i).clearance, found.row(i - 1).clearance);
            EXPECT_GT(found.row(i).axialPlay, found.row(i - 1).axialPlay);
            EXPECT_GT(found.row(i).tilt, found.row(i - 1).tilt);
        }
    }
}

TEST_P(ThePlayCurve, FillsTheHeightOfThePlot) {
    const PlayCurve& found = curveOf("K19013" + style + "P0");
    EXPECT_NEAR(found.sy * found.last().axialPlay, 4.0, 1e-12);
    EXPECT_NEAR(found.sTilt * found.last().tilt, 4.0, 1e-12);
}

TEST_P(ThePlayCurve, MarksTheRangeOfAClearanceLetterAndTheStandardOneOtherwise) {
    for (const std::string letter : {"A", "E", "J"}) {
        curveOf("K19013" + style + "P0" + letter);
        EXPECT_EQ(run.state.play.clearanceLow, run.bearing().fitLow) << letter;
        EXPECT_EQ(run.state.play.clearanceHigh, run.bearing().fitHigh) << letter;
    }
    for (const std::string letter : {"", "K", "R", "Y", "Z"}) {
        curveOf("K19013" + style + "P0" + letter);
        EXPECT_EQ(run.state.play.clearanceLow, run.bearing().stdClearanceLow) << letter;
        EXPECT_EQ(run.state.play.clearanceHigh, run.bearing().stdClearanceHigh) << letter;
    }
}

INSTANTIATE_TEST_SUITE_P(StylesAndUnits, ThePlayCurve,
                         ::testing::Values(Case{"C", "US"}, Case{"X", "US"}, Case{"C", "METRIC"},
                                           Case{"X", "METRIC"}));

class APlayCurve : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(run.decoded("K19013XP0")); }
    void compute() { computePlayCurve(bearing, run.state.units, curve); }

    SampleBearings run;
    BearingSpec& bearing = run.state.bearing;
    PlayCurve curve;
};

TEST_F(APlayCurve, IsLongerWhenTheRangeReachesSixThousandthsAsASingle) {
    bearing.stdClearanceHigh = 0.0059999;
    compute();
    EXPECT_EQ(curve.curveClearanceMax.stored(), 0.006F);
    const int shorter = curve.rowCount;
    bearing.stdClearanceHigh = 0.006;
    compute();
    EXPECT_EQ(curve.curveClearanceMax.stored(), 0.012F);
    EXPECT_NEAR(curve.rowCount, 2 * shorter, 2);
    EXPECT_LE(curve.rowCount, PlayCurve::kMostRows);
}

TEST_F(APlayCurve, LooksItsLimitsUpDownward) {
    // Half way between two rows the lower one counts; at a row its own does.
    bearing.stdClearanceLow = 0.00105;
    bearing.stdClearanceHigh = 0.002;
    compute();
    EXPECT_NEAR(curve.row(11).clearance, 0.001, 1e-9);
    EXPECT_EQ(curve.playAtLow, curve.row(11).axialPlay);
    EXPECT_EQ(curve.tiltAtLow, curve.row(11).tilt);
    EXPECT_EQ(curve.playAtHigh, curve.row(21).axialPlay);
    EXPECT_EQ(curve.tiltAtHigh, curve.row(21).tilt);
}

TEST_F(APlayCurve, KeepsTheValuesOfBeforeAtARangeBelowEveryRow) {
    compute();
    const double held = curve.playAtLow;
    ASSERT_GT(curve.playAtHigh, held);
    bearing.stdClearanceLow = -0.001;
    bearing.stdClearanceHigh = -0.0005;
    const double high = curve.playAtHigh;
    compute();
    EXPECT_EQ(curve.playAtLow, held);
    EXPECT_EQ(curve.playAtHigh, high);
}

TEST_F(APlayCurve, OfACosineOfExactlyOneIsADivisionByZero) {
    compute();
    const double rows = curve.rowCount;
    bearing.contactAngle = 0.0;
    // Races so wide that the first step leaves the cosine at 1 in its 15 digits.
    bearing.raceRadius = 1e15;
    EXPECT_EQ(faultOf([&] { compute(); }), fault::kDivisionByZero);
    EXPECT_EQ(curve.rowCount, rows);
}

TEST_F(APlayCurve, OfRacesAsWideAsTheBallIsADivisionByZero) {
    bearing.raceRadius = bearing.ballDiameter / 2.0;
    EXPECT_EQ(faultOf([&] { compute(); }), fault::kDivisionByZero);
}

TEST_F(APlayCurve, OfAGapSmallerThanItsClearanceIsTheRootOfANegativeNumber) {
    bearing.raceRadius = bearing.ballDiameter / 2.0 + 1e-4;
    EXPECT_EQ(faultOf([&] { compute(); }), fault::kInvalidCall);
}

TEST_F(APlayCurve, KeepsTheTextThatTheCosineWentThrough) {
    compute();
    const double A = 2.0 * bearing.raceRadius - bearing.ballDiameter;
    const double cosine = std::cos(kThirty) - curve.last().clearance / (2.0 * A);
    EXPECT_NEAR(std::stod(curve.cosineText), cosine, 1e-6);
    EXPECT_LE(curve.cosineText.size(), 17U);
}

}  // namespace
}  // namespace norlaplan
