#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "catalogue/DuplexPreload.h"
#include "catalogue/SmallCatalogue.h"
#include "support/PlainPreload.h"

namespace norlaplan {
namespace {

using testing::Decoding;
using testing::PlainPreload;
using testing::PlainPreloadSolver;
using testing::shippedFolder;
using testing::SmallCatalogue;

constexpr double kPi = 3.14159265359;
constexpr double kThirty = 94.2477796077 / 180.0;

/// Each preload letter, on small, middle and large bearings of all sections, of each style that takes it.
std::vector<std::string> preloadedNumbers(const std::string& style) {
    std::vector<std::string> numbers;
    for (const std::string size : {"04008", "19008", "04013", "19013", "36013", "06020", "19020", "50020"}) {
        for (char letter = 'K'; letter <= 'Y'; ++letter)
            numbers.push_back("K" + size + style + "P0" + letter);
    }
    return numbers;
}

class APreloadedStyle : public ::testing::TestWithParam<const char*> {
  protected:
    bool isPair() const { return GetParam()[0] == 'B' || GetParam()[0] == 'F'; }
    Decoding run{shippedFolder()};
};

TEST_P(APreloadedStyle, EqualsThePlainCalculationToTheLastBit) {
    for (const std::string& number : preloadedNumbers(GetParam())) {
        ASSERT_EQ(run.decode(number).end, DecodeEnd::Decoded) << number;
        const BearingSpec& b = run.bearing();
        const PlainPreloadSolver solver(b);
        const PlainPreload plain = isPair() ? solver.pair() : solver.singleRow(GetParam()[0] == 'C');
        EXPECT_EQ(b.preloadBore.stored(), plain.preloadBore) << number;
        EXPECT_EQ(b.preloadOd.stored(), plain.preloadOd) << number;
        EXPECT_EQ(b.meanClearance.stored(), plain.meanClearance) << number;
        EXPECT_EQ(b.loadPercent.stored(), plain.loadPercent) << number;
        if (!isPair()) continue;
        EXPECT_EQ(b.contactAngleDegrees.stored(), plain.contactAngleDegrees) << number;
        EXPECT_EQ(searchDuplexAngle(b, run.messages), plain.beta) << number;
    }
}

TEST_P(APreloadedStyle, ShrinksTheBoreWidensTheOutsideAndLeavesNoClearance) {
    for (const std::string& number : preloadedNumbers(GetParam())) {
        ASSERT_EQ(run.decode(number).end, DecodeEnd::Decoded) << number;
        const BearingSpec& b = run.bearing();
        EXPECT_LE(b.preloadBore, b.bore) << number;
        EXPECT_GE(b.preloadOd, b.outsideDiameter) << number;
        EXPECT_LT(b.meanClearance, 0.0) << number;
        EXPECT_GT(b.loadPercent, 0.0) << number;
    }
}

TEST_P(APreloadedStyle, HasOneColumnOfFitsAroundItsMountedSizes) {
    ASSERT_EQ(run.decode(std::string("K19013") + GetParam() + "P0T").end, DecodeEnd::Decoded);
    const BearingSpec& b = run.bearing();
    const auto rounded = [](double value) { return static_cast<float>(value); };
    EXPECT_EQ(b.fitShaft1.stored(), rounded(b.boreTolerance + b.preloadBore));
    EXPECT_EQ(b.fitShaft2.stored(), rounded(2.0 * b.boreTolerance + b.preloadBore));
    EXPECT_EQ(b.fitHousing1.stored(), b.preloadOd.stored());
    EXPECT_EQ(b.fitHousing2.stored(), rounded(b.preloadOd - b.odTolerance));
    for (const Single& second : {b.fitShaft3, b.fitShaft4, b.fitHousing3, b.fitHousing4})
        EXPECT_EQ(second, 0.0);
}

INSTANTIATE_TEST_SUITE_P(Styles, APreloadedStyle, ::testing::Values("B", "F", "C", "X"));

TEST(ASingleRowUnderPreload, TakesUpTheWholePreloadInRingsAndBalls) {
    for (const std::string style : {"C", "X"}) {
        Decoding run(shippedFolder());
        for (const std::string& number : preloadedNumbers(style)) {
            ASSERT_EQ(run.decode(number).end, DecodeEnd::Decoded) << number;
            const BearingSpec& b = run.bearing();
            const double rings = (b.bore - b.preloadBore) + (b.preloadOd - b.outsideDiameter);
            // The diameters are 32-bit: up to 20 inches they carry an error of 1e-6 each.
            EXPECT_NEAR(rings - b.meanClearance, b.fitHigh, 4e-6) << number;
        }
    }
}

/// The load at an angle by halving, which needs no derivative: y + U y^(2/3) rises with y.
double loadByHalving(double U, double V) {
    double low = 0.0, high = V;
    for (int i = 0; i < 200; ++i) {
        const double middle = (low + high) / 2.0;
        (middle + U * std::pow(middle, 2.0 / 3.0) < V ? low : high) = middle;
    }
    return low;
}

TEST(APairUnderPreload, MeetsHalfThePreloadAtTheFoundAngleWithinAHundredThousandth) {
    for (const std::string style : {"B", "F"}) {
        Decoding run(shippedFolder());
        for (const std::string& number : preloadedNumbers(style)) {
            ASSERT_EQ(run.decode(number).end, DecodeEnd::Decoded) << number;
            const BearingSpec& b = run.bearing();
            const double beta = searchDuplexAngle(b, run.messages);
            const double D = b.ballDiameter;
            const double B = 2.0 * b.raceRadius / D - 1.0;
            const double K = b.ciPlusCo * 7.810637e-6;
            const double rings =
                (b.bore + b.innerSection) / (b.innerSection * 5.8e7 * b.innerWidth * kPi) +
                (b.outsideDiameter - b.outerSection) / (b.outerSection * 5.8e7 * b.outerWidth * kPi);
            const double balls = std::pow(b.ballCount * std::pow(B / K, 1.5) * D * D, 2.0 / 3.0);
            const double U = 2.0 * B * D * std::cbrt(std::sin(beta)) / (balls * rings);
            const double V =
                2.0 * B * D * std::sin(beta) * (std::cos(kThirty) / std::cos(beta) - 1.0) / rings;
            const double y = loadByHalving(U, V);
            const double got =
                B * D * (std::tan(beta) * std::cos(kThirty) - std::sin(kThirty)) - rings * y / 2.0;
            EXPECT_LE(std::fabs(got - b.fitHigh / 2.0), 1.001e-5) << number;
        }
    }
}

class PreloadLetters : public ::testing::Test {
  protected:
    SmallCatalogue catalogue;
    Decoding run{catalogue.path()};
};

TEST_F(PreloadLetters, PutTheThrustSpeedsOfEveryStyleButRadialContactToZero) {
    ASSERT_EQ(run.decode("K19013XP0").end, DecodeEnd::Decoded);
    EXPECT_EQ(run.bearing().thrustSpeedGrease, "401");
    ASSERT_EQ(run.decode("K19013CP0K").end, DecodeEnd::Decoded);
    EXPECT_EQ(run.bearing().thrustSpeedGrease, "401");
    for (const std::string style : {"X", "B", "F"}) {
        ASSERT_EQ(run.decode("K19013XP0").end, DecodeEnd::Decoded);
        ASSERT_EQ(run.decode("K19013" + style + "P0K").end, DecodeEnd::Decoded);
        EXPECT_EQ(run.bearing().thrustSpeedGrease, "0");
        EXPECT_EQ(run.bearing().thrustSpeedOil, "0");
        EXPECT_EQ(run.bearing().thrustSpeedMist, "0");
    }
    EXPECT_NE(run.bearing().tableSpeedGrease, "0");
}

TEST_F(PreloadLetters, LeaveTheNominalContactAngleOfAPairInItsField) {
    ASSERT_EQ(run.decode("K19013BP0Y").end, DecodeEnd::Decoded);
    EXPECT_EQ(run.bearing().contactAngle, kThirty);
    EXPECT_GT(run.bearing().contactAngleDegrees, 20.0);
    EXPECT_LT(run.bearing().contactAngleDegrees, 45.0);
}

TEST_F(PreloadLetters, WithAHigherPreloadLoadASingleRowMore) {
    ASSERT_EQ(run.decode("K19013XP0K").end, DecodeEnd::Decoded);
    const Single light = run.bearing().loadPercent;
    ASSERT_EQ(run.decode("K19013XP0Y").end, DecodeEnd::Decoded);
    EXPECT_GT(run.bearing().loadPercent, light);
}

TEST_F(PreloadLetters, WithAPreloadThatNoAngleMeetsEndTheRunAsNotConverging) {
    catalogue.write("Fitnumber.doc", "K,0,-0.5,Preload\n");
    const DecodeResult result = run.decode("K19013BP0K");
    EXPECT_EQ(result.end, DecodeEnd::Stopped);
    EXPECT_TRUE(result.failed);
    EXPECT_FALSE(result.faultNumber);
    ASSERT_EQ(run.messages.shown.size(), 1U);
    EXPECT_EQ(run.messages.shown[0].title, "The calculation does not converge");
    EXPECT_EQ(run.bearing().partNumber, "");
}

}  // namespace
}  // namespace norlaplan
