#include <string>

#include <gtest/gtest.h>

#include "catalogue/BallCount.h"
#include "numbers/RuntimeError.h"

namespace norlaplan {
namespace {

struct CountCase {
    const char* code;
    double ballDiameter;
    int balls;
};

BearingSpec bearingWith(const std::string& code, double ballDiameter, const std::string& family) {
    BearingSpec bearing;
    bearing.separatorCode = code;
    bearing.ballDiameter = ballDiameter;
    bearing.familyCode = family;
    bearing.pitchDiameter = 8.0;
    bearing.ballCount = 77;
    return bearing;
}

class ASeparator : public ::testing::TestWithParam<CountCase> {};

TEST_P(ASeparator, LeavesRoomForItsBalls) {
    BearingSpec bearing = bearingWith(GetParam().code, GetParam().ballDiameter, "A");
    setBallCount(bearing);
    EXPECT_EQ(bearing.ballCount, GetParam().balls);
}

// The pitch circle of 8 inches is 25.13274 inches long; each count is that circle by hand.
INSTANTIATE_TEST_SUITE_P(Codes, ASeparator,
                         ::testing::Values(CountCase{"F", 0.15625, 160},   // 160.85
                                           CountCase{"F", 0.25, 100},      // 100.53
                                           CountCase{"F", 0.375, 67},      // 67.02
                                           CountCase{"M", 0.15625, 147},   // 146.975 + 0.95
                                           CountCase{"M", 0.25, 91},       // 90.406 + 0.95
                                           CountCase{"M", 0.375, 61},      // 60.854 + 0.95
                                           CountCase{"W", 0.15625, 147},   // 146.975 + 0.95
                                           CountCase{"W", 0.25, 93},       // 92.502 + 0.95
                                           CountCase{"W", 0.375, 70},      // 69.427 + 0.95
                                           CountCase{"S", 0.15625, 81},    // 80.425 + 1
                                           CountCase{"S", 0.25, 51},       // 50.265 + 1
                                           CountCase{"S", 0.375, 34},      // 33.510 + 1
                                           CountCase{"ZP", 0.15625, 122},  // 2 x 61.56
                                           CountCase{"ZP", 0.25, 72},      // 2 x 36.80
                                           CountCase{"ZP", 0.375, 50},     // 2 x 25.16
                                           CountCase{"ZV", 0.15625, 122},  // 2 x 61.56
                                           CountCase{"ZV", 0.25, 74},      // 2 x 37.51
                                           CountCase{"ZV", 0.375, 50},     // 2 x 25.16
                                           CountCase{"ZS", 0.15625, 81},   // 81.73
                                           CountCase{"ZS", 0.25, 51},      // 51.88
                                           CountCase{"ZS", 0.375, 34},     // 34.22
                                           CountCase{"ZT", 0.15625, 76},   // 76.39
                                           CountCase{"ZT", 0.25, 49},      // 49.97
                                           CountCase{"ZT", 0.375, 31},     // 31.14
                                           CountCase{"J", 0.15625, 109},   // 24.97649 / 0.228 = 109.55
                                           CountCase{"J", 0.25, 81},       // 24.88274 / 0.307 = 81.05
                                           CountCase{"J", 0.375, 52},      // 24.75774 / 0.472 = 52.45
                                           CountCase{"N", 0.15625, 80},    // 24.97649 / 0.311 = 80.31
                                           CountCase{"N", 0.25, 49},       // 24.88274 / 0.5 = 49.77
                                           CountCase{"N", 0.375, 32},      // 24.75774 / 0.752 = 32.92
                                           CountCase{"P", 0.25, 77}, CountCase{"R", 0.25, 77}));

TEST(BallCount, OfAStripOnARadialOrFourPointBearingIsTheTables) {
    for (const std::string family : {"C", "X"}) {
        BearingSpec bearing = bearingWith("W", 0.25, family);
        setBallCount(bearing);
        EXPECT_EQ(bearing.ballCount, 77);
        setBallsText(bearing, initialUnits(), false);
        EXPECT_EQ(bearing.ballsText, "Approximately 77 Balls, Ø .250 Nominal");
    }
}

TEST(BallCount, IsADivisionByZeroForABallSizeWithoutAConstant) {
    BearingSpec bearing = bearingWith("M", 0.5, "A");
    try {
        setBallCount(bearing);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 11);
    }
}

TEST(BallsText, SaysApproximatelyForTheSeparatorsWhoseCountVaries) {
    for (const std::string code : {"W", "F", "M", "ZP", "ZV", "ZS"}) {
        BearingSpec bearing = bearingWith(code, 0.375, "A");
        setBallsText(bearing, initialUnits(), false);
        EXPECT_EQ(bearing.ballsText, "Approximately 77 Balls, Ø .375 Nominal");
        setBallsText(bearing, initialUnits(), true);
        EXPECT_EQ(bearing.ballsText, "Approximately 154 Balls per Set, Ø.375 Nominal");
    }
    for (const std::string code : {"P", "R", "S", "ZT", "J", "N"}) {
        BearingSpec bearing = bearingWith(code, 0.375, "A");
        setBallsText(bearing, initialUnits(), false);
        EXPECT_EQ(bearing.ballsText, "77 Balls, Ø .375 Nominal");
    }
}

TEST(BallsText, ShowsTheBallInDisplayUnits) {
    UnitMode metric;
    ApplyUnitSystem("METRIC", metric);
    BearingSpec bearing = bearingWith("P", 0.375, "A");
    setBallsText(bearing, metric, false);
    EXPECT_EQ(bearing.ballsText, "77 Balls, Ø 9.525 Nominal");
}

}  // namespace
}  // namespace norlaplan
