#include <gtest/gtest.h>

#include "capacity/SpeedLimits.h"
#include "numbers/RuntimeError.h"

namespace norlaplan {
namespace {

TEST(LoadLevelFactor, StepsDownAboveTwentyAndEndsAtAFifth) {
    EXPECT_EQ(loadLevelFactor(20.0), 1.0);
    EXPECT_NEAR(loadLevelFactor(20.001), 0.98, 1e-5);
    EXPECT_LT(loadLevelFactor(20.001), 0.98);
    EXPECT_NEAR(loadLevelFactor(20.1), 0.9794, 1e-6);
    EXPECT_NEAR(loadLevelFactor(85.0), 0.59, 1e-6);
    EXPECT_NEAR(loadLevelFactor(150.0), 0.2, 1e-6);
    EXPECT_EQ(loadLevelFactor(151.0).stored(), 0.2F);
}

TEST(LoadPercent, IsAHundredForAMillionRevolutions) {
    EXPECT_EQ(loadPercentOfLife(1e6), 100.0);
    EXPECT_NEAR(loadPercentOfLife(8e6), 50.0, 1e-12);
    EXPECT_THROW(loadPercentOfLife(0.0), RuntimeError);
}

SpeedLine numberedLine() {
    SpeedLine line;
    for (std::size_t i = 0; i < 24; ++i) {
        line.thrust[i] = 100.0 + static_cast<double>(i);
        line.other[i] = 1.0 + static_cast<double>(i);
    }
    return line;
}

BearingSpec bearingOf(const char* style, const char* separator) {
    BearingSpec bearing;
    bearing.styleLetter = style;
    bearing.separatorCode = separator;
    bearing.bore = 2.0;
    bearing.pitchDiameter = 8.0;
    bearing.speedIndex = 3;
    bearing.speedFactor = 1.0;
    return bearing;
}

TEST(BaseSpeeds, AddressTheBlockByPrecisionLubricationAndColumn) {
    BearingSpec bearing = bearingOf("C", "P");
    setBaseSpeeds(bearing, numberedLine());
    // Numbers 3, 7 and 11 of the block: T x 1000 / 2.
    EXPECT_EQ(bearing.tableSpeedGrease, "1500");
    EXPECT_EQ(bearing.tableSpeedOil, "3500");
    EXPECT_EQ(bearing.tableSpeedMist, "5500");
    bearing.speedColumnBase = 12.0;
    setBaseSpeeds(bearing, numberedLine());
    EXPECT_EQ(bearing.tableSpeedGrease, "7500") << "number 15";
}

TEST(BaseSpeeds, OfAFourPointBearingComeFromBothBlocks) {
    BearingSpec bearing = bearingOf("X", "P");
    setBaseSpeeds(bearing, numberedLine());
    EXPECT_EQ(bearing.thrustSpeedGrease, "51000") << "number 3 of the thrust block is 102";
    EXPECT_EQ(bearing.otherSpeedGrease, "1500");
}

TEST(BaseSpeeds, BeyondTheBlockAreASubscriptError) {
    BearingSpec bearing = bearingOf("C", "P");
    bearing.speedColumnBase = 12.0;
    bearing.speedIndex = 5;
    EXPECT_THROW(setBaseSpeeds(bearing, numberedLine()), RuntimeError);
}

TEST(BaseSpeeds, OfSeparatorsWithoutATableAreSurfaceSpeedsOfTheBallCircle) {
    // 600 / (8 x 3.14159265359) = 23.87; 6000 / ... = 238.73
    BearingSpec full = bearingOf("X", "F");
    EXPECT_FALSE(takesSpeedsFromTable(full));
    setBaseSpeeds(full, std::nullopt);
    EXPECT_EQ(full.otherSpeedGrease, "24");
    EXPECT_EQ(full.otherSpeedOil, "0");
    EXPECT_EQ(full.thrustSpeedGrease, "0");
    BearingSpec slugs = bearingOf("C", "ZT");
    setBaseSpeeds(slugs, std::nullopt);
    EXPECT_EQ(slugs.tableSpeedGrease, "239");
    EXPECT_FALSE(takesSpeedsFromTable(bearingOf("B", "ZP")));
    EXPECT_TRUE(takesSpeedsFromTable(bearingOf("X", "ZP")))
        << "toroids are a separator of angular contact bearings";
}

TEST(BaseSpeeds, StayAsTheyWereWithoutALine) {
    BearingSpec bearing = bearingOf("C", "Q");
    bearing.tableSpeedGrease = "77";
    setBaseSpeeds(bearing, std::nullopt);
    EXPECT_EQ(bearing.tableSpeedGrease, "77");
}

TEST(WorkingLimits, AreRoundedByThePictureAndReadAGroupedTextWhole) {
    BearingSpec bearing = bearingOf("C", "P");
    bearing.tableSpeedGrease = "1,733";
    bearing.tableSpeedOil = "";
    bearing.tableSpeedMist = "101";
    bearing.speedFactor = 0.5;
    setWorkingLimits(bearing);
    EXPECT_EQ(bearing.limitSpeedGrease, 867.0) << "866.5 rounds away from zero";
    EXPECT_EQ(bearing.limitSpeedOil, 0.0);
    EXPECT_EQ(bearing.limitSpeedMist, 51.0);
}

TEST(WorkingLimits, OfAFourPointBearingAloneComeFromTheSpeedsOfOtherLoads) {
    for (const char* const style : {"X", "C", "A", "B", "F"}) {
        BearingSpec bearing = bearingOf(style, "P");
        bearing.tableSpeedGrease = "100";
        bearing.tableSpeedOil = "200";
        bearing.tableSpeedMist = "300";
        bearing.otherSpeedGrease = "1,000";
        bearing.otherSpeedOil = "2,000";
        bearing.otherSpeedMist = "3,000";
        bearing.speedFactor = 0.5;
        setWorkingLimits(bearing);
        const double scale = std::string(style) == "X" ? 500.0 : 50.0;
        EXPECT_EQ(bearing.limitSpeedGrease, scale) << style;
        EXPECT_EQ(bearing.limitSpeedOil, 2.0 * scale) << style;
        EXPECT_EQ(bearing.limitSpeedMist, 3.0 * scale) << style;
    }
}

}  // namespace
}  // namespace norlaplan
