#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "catalogue/SmallCatalogue.h"

namespace norlaplan {
namespace {

using testing::Decoding;
using testing::SmallCatalogue;

// The bore of 190 mm is 7.4803150 inches: a number T of a table is Int(T x 1000 / 7.4803150) rpm, that is
// T x 133.68421.
class DecodedSpeeds : public ::testing::Test {
  protected:
    const BearingSpec& decode(const std::string& number) {
        EXPECT_EQ(run.decode(number).end, DecodeEnd::Decoded) << number;
        return run.bearing();
    }

    SmallCatalogue catalogue;
    Decoding run{catalogue.path()};
};

TEST_F(DecodedSpeeds, OfAFourPointBearingComeFromBothBlocksOfTheLineWhoseSecondKeyIsItsSeparator) {
    const BearingSpec& b = decode("K19013XP0");
    // Index 3, and 4 and 8 further: numbers 3, 7, 11 and 103, 107, 111.
    EXPECT_EQ(b.thrustSpeedGrease, "401");
    EXPECT_EQ(b.thrustSpeedOil, "935");
    EXPECT_EQ(b.thrustSpeedMist, "1470");
    EXPECT_EQ(b.otherSpeedGrease, "13769");
    EXPECT_EQ(b.otherSpeedOil, "14304");
    EXPECT_EQ(b.otherSpeedMist, "14838");
    EXPECT_EQ(b.limitSpeedGrease, 13769.0);
    EXPECT_EQ(b.limitSpeedMist, 14838.0);
}

TEST_F(DecodedSpeeds, RoundTheNumbersOfTheirTableToThirtyTwoBitsButThoseOfFourPointBearings) {
    std::string block = "P" + std::string(23, ',');
    for (int i = 0; i < 24; ++i)
        block += ",10.4";
    for (const char* const family : {"C", "X"}) {
        catalogue.write(std::string("13-") + family + ".csv",
                        "0.6,,,,,,,,,\n13,,,,,,,,,\nfive inches,1,127,153,1,1,1,1,1,60\n");
    }
    catalogue.write("CLS0.csv", ",,,,,,,,,\n127,0,0,0,0,0,0,.001,.002,0\n");
    catalogue.write("SPEEDC.CSV", block + "\n");
    catalogue.write("SPEEDX.CSV", block + "," + block + "\n");
    EXPECT_EQ(decode("K12713CP0").tableSpeedGrease, "2079") << "10.39999962 x 1000 / 5 is 2079.99992";
    EXPECT_EQ(decode("K12713XP0").otherSpeedGrease, "2080") << "10.4 x 1000 / 5";
    EXPECT_EQ(run.bearing().thrustSpeedMist, "2080");
}

TEST_F(DecodedSpeeds, OfTheFinerRunoutsComeFromTheSecondHalf) {
    for (const std::string number : {"K19013CP2", "K19013CP6"}) {
        const BearingSpec& b = decode(number);
        EXPECT_EQ(b.speedColumnBase, 12.0);
        // Numbers 15, 19, 23.
        EXPECT_EQ(b.tableSpeedGrease, "2005");
        EXPECT_EQ(b.tableSpeedOil, "2540");
        EXPECT_EQ(b.tableSpeedMist, "3074");
    }
    EXPECT_EQ(decode("K19013CP4").speedColumnBase, 0.0);
    EXPECT_EQ(run.bearing().tableSpeedGrease, "401");
}

TEST_F(DecodedSpeeds, OfTheOtherStylesComeFromTheAngularTable) {
    catalogue.write("SPEEDA.CSV", testing::speedBlock("P", 11));
    for (const std::string number : {"K19013AP0", "K19013UP0", "K19013TP0", "K19013BP0A", "K19013FP0A"}) {
        EXPECT_EQ(decode(number).tableSpeedGrease, "1737") << number;  // number 13
        EXPECT_EQ(run.bearing().limitSpeedGrease, 1737.0) << number;
    }
}

TEST_F(DecodedSpeeds, OfTouchingBallsAndLooseSeparatorsAreFixedSurfaceSpeeds) {
    // The pitch circle of 203 mm is 25.10799 inches: 600 and 6000 divided by it are 23.897 and 238.97.
    EXPECT_EQ(decode("K19013XF0").otherSpeedGrease, "24");
    EXPECT_EQ(run.bearing().otherSpeedOil, "0");
    EXPECT_EQ(run.bearing().thrustSpeedGrease, "0");
    EXPECT_EQ(decode("K19013AS0").tableSpeedGrease, "239");
    EXPECT_EQ(run.bearing().tableSpeedMist, "0");
    EXPECT_EQ(run.bearing().limitSpeedGrease, 239.0);
}

TEST_F(DecodedSpeeds, StayAsTheyWereForASeparatorWithoutALine) {
    decode("K19013CP0");
    EXPECT_EQ(decode("K19013CM0").tableSpeedGrease, "401");
    EXPECT_EQ(run.bearing().limitSpeedGrease, 401.0);
}

TEST_F(DecodedSpeeds, OfAnEmptyTextLimitTheBearingToZero) {
    EXPECT_EQ(decode("K19013CM0").tableSpeedGrease, "");
    EXPECT_EQ(run.bearing().limitSpeedGrease, 0.0);
}

TEST_F(DecodedSpeeds, BeyondTheTwentyFourNumbersAreASubscriptError) {
    // Column 13 of the second half is number 25.
    const DecodeResult result = run.decode("K22013XP6");
    EXPECT_EQ(result.end, DecodeEnd::Stopped);
    EXPECT_EQ(result.faultNumber, 9);
}

TEST_F(DecodedSpeeds, OfABlankSpeedIndexAreASubscriptError) {
    catalogue.write("13-C.csv", ",,,,,,,,,\n,,,,,,,,,\nname,1,190,216,1,1,1,1,,80\n");
    EXPECT_EQ(run.decode("K19013CP0").faultNumber, 9);
}

TEST_F(DecodedSpeeds, OfAPreloadedBearingAreLoweredByItsLoadLevel) {
    const BearingSpec& b = decode("K19013CP0Y");
    ASSERT_GT(b.loadPercent, 0.0);
    const double factor = b.loadPercent <= 20.0    ? 1.0
                          : b.loadPercent <= 150.0 ? 1.1 - 0.3 / 50.0 * b.loadPercent
                                                   : 0.2;
    EXPECT_EQ(b.speedFactor.stored(), static_cast<float>(factor));
    EXPECT_EQ(b.limitSpeedGrease, std::floor(401.0 * b.speedFactor + 0.5));
}

}  // namespace
}  // namespace norlaplan
