#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "catalogue/SmallCatalogue.h"

namespace norlaplan {
namespace {

using testing::Decoding;
using testing::SmallCatalogue;

constexpr double kPi = 3.14159265359;
constexpr double kThirty = 94.2477796077 / 180.0;

float rounded(double value) {
    return static_cast<float>(value);
}

class ADecodedBearing : public ::testing::Test {
  protected:
    const BearingSpec& decode(const std::string& number) {
        const DecodeResult result = run.decode(number);
        EXPECT_EQ(result.end, DecodeEnd::Decoded) << number;
        return run.bearing();
    }

    SmallCatalogue catalogue;
    Decoding run{catalogue.path()};
};

TEST_F(ADecodedBearing, HasItsSizesInInches) {
    const BearingSpec& b = decode("K19013XP0");
    EXPECT_EQ(b.bore.stored(), rounded(190.0 / 25.4));
    EXPECT_EQ(b.outsideDiameter.stored(), rounded(216.0 / 25.4));
    EXPECT_EQ(b.pitchDiameter.stored(), rounded(203.0 / 25.4));
    EXPECT_EQ(b.height.stored(), rounded(13.0 / 25.4));
    EXPECT_EQ(b.filletRadius.stored(), rounded(static_cast<double>(0.6F) / 25.4));
    EXPECT_EQ(b.referenceDiameter1.stored(), rounded(198.5 / 25.4));
    EXPECT_EQ(b.referenceDiameter2.stored(), rounded(207.5 / 25.4));
    EXPECT_EQ(b.referenceDiameter3.stored(), rounded(209.0 / 25.4));
    EXPECT_EQ(b.mass.stored(), rounded(static_cast<double>(0.6F) * 2.204622));
}

TEST_F(ADecodedBearing, HasTheValuesOfItsPrecisionRow) {
    const BearingSpec& b = decode("K19013XP0");
    EXPECT_EQ(b.boreTolerance.stored(), -0.0012F);
    EXPECT_EQ(b.odTolerance.stored(), -0.0014F);
    EXPECT_EQ(b.innerRadialRunout.stored(), 0.0016F);
    EXPECT_EQ(b.innerAxialRunout.stored(), 0.0017F);
    EXPECT_EQ(b.outerRadialRunout.stored(), 0.0018F);
    EXPECT_EQ(b.outerAxialRunout.stored(), 0.0019F);
    EXPECT_EQ(b.stdClearanceLow.stored(), 0.0008F);
    EXPECT_EQ(b.stdClearanceHigh.stored(), 0.0019F);
    EXPECT_EQ(b.widthTolerance.stored(), -0.005F);
}

TEST_F(ADecodedBearing, HasTheConstantsOfItsSection) {
    const BearingSpec& b = decode("K19013XP0");
    EXPECT_EQ(b.ballDiameter, 0.25);
    EXPECT_EQ(b.drawingScale.stored(), 3.91F);
    EXPECT_EQ(b.raceRadius.stored(), 0.1325F);
    EXPECT_EQ(b.innerWidth.stored(), rounded(13.0 / 25.4));
    EXPECT_EQ(b.outerWidth.stored(), rounded(13.0 / 25.4));
    EXPECT_EQ(b.innerSection.stored(), 0.1656F);
    EXPECT_EQ(b.outerSection.stored(), 0.1656F);
    EXPECT_EQ(b.staticFactor, 1.0);
    EXPECT_EQ(b.crossSectionText, "13 = .512 x .512 Cross Section");
    const BearingSpec& a = decode("K19013AP0");
    EXPECT_EQ(a.innerSection.stored(), 0.1647F);
    EXPECT_EQ(a.outerSection.stored(), 0.1523F);
}

TEST_F(ADecodedBearing, ShowsItsSectionInDisplayUnits) {
    ApplyUnitSystem("METRIC", run.state.units);
    EXPECT_EQ(decode("K19013XP0").crossSectionText, "13 = 13 x 13 Cross Section");
    EXPECT_EQ(decode("K10008XP0").crossSectionText, "08 = 8 x 8 Cross Section");
}

TEST_F(ADecodedBearing, TakesTheFirstRowOfItsBore) {
    const BearingSpec& b = decode("K10013XP0");
    EXPECT_EQ(b.outsideDiameter.stored(), rounded(126.0 / 25.4));
    EXPECT_EQ(b.ballCount, 40);
}

TEST_F(ADecodedBearing, OfARadialContactIsServedByTheFourPointSeparators) {
    catalogue.write("XSEPARATOR.CSV", "Y,Y= Four-point only,RIBBON\n");
    EXPECT_EQ(decode("K19013CY0").separatorText, "Y= Four-point only");
}

TEST_F(ADecodedBearing, HasAContactAngleOfThirtyDegreesButForRadialContacts) {
    EXPECT_EQ(decode("K19013XP0").contactAngle, kThirty);
    EXPECT_EQ(decode("K19013AP0").contactAngle, kThirty);
    EXPECT_EQ(decode("K19013CP0").contactAngle, 0.0);
}

TEST_F(ADecodedBearing, HasTheArmOfAPairRoundedInMillimetresAndAgainInInches) {
    const double offset = 13.0 / std::tan(kPi / 6.0);
    const BearingSpec& back = decode("K19013BP0A");
    EXPECT_EQ(back.momentArm.stored(), rounded(static_cast<double>(rounded(203.0 + offset)) / 25.4));
    const BearingSpec& face = decode("K19013FP0A");
    EXPECT_EQ(face.momentArm.stored(), rounded(static_cast<double>(rounded(203.0 - offset)) / 25.4));
}

TEST_F(ADecodedBearing, OfFourPointContactTakesItsPitchDiameterAsArm) {
    const BearingSpec& b = decode("K19013XP0");
    EXPECT_EQ(b.momentArm.stored(), b.pitchDiameter.stored());
}

TEST_F(ADecodedBearing, OfASingleAngularContactHasNoArmEvenAfterAPair) {
    decode("K19013BP0A");
    EXPECT_EQ(decode("K19013AP0").momentArm, 0.0);
    EXPECT_EQ(run.bearing().staticMoment, 0.0);
}

TEST_F(ADecodedBearing, HasItsStaticRatingsFromBallsAndSection) {
    // Z D^2 is 81 x 0.0625.
    const double radial = 2280.0 * 81.0 * 0.0625;
    const double thrust = 11400.0 * 81.0 * 0.0625 * std::sin(kThirty);
    EXPECT_FLOAT_EQ(decode("K19013CP0").staticRadial.stored(), rounded(radial));
    EXPECT_FLOAT_EQ(decode("K19013XP0").staticThrust.stored(), rounded(thrust));
    EXPECT_FLOAT_EQ(decode("K19013BP0A").staticRadial.stored(), rounded(2.0 * radial * std::cos(kThirty)));
    EXPECT_FLOAT_EQ(decode("K19013TP0").staticThrust.stored(), rounded(2.0 * thrust));
}

TEST_F(ADecodedBearing, DoublesWidthMassAndWidthToleranceOfASetAfterItsArm) {
    for (const std::string number : {"K19013BP0A", "K19013FP0A", "K19013TP0"}) {
        const BearingSpec& b = decode(number);
        EXPECT_EQ(b.height.stored(), 2.0F * rounded(13.0 / 25.4)) << number;
        EXPECT_EQ(b.mass.stored(), 2.0F * rounded(static_cast<double>(0.6F) * 2.204622)) << number;
        EXPECT_EQ(b.widthTolerance.stored(), -0.01F) << number;
        EXPECT_EQ(b.ballCount, 81) << number;
        EXPECT_EQ(b.ballsText, "162 Balls per Set, Ø.250 Nominal") << number;
        EXPECT_EQ(b.drawingScale.stored(), 1.96F) << number;
    }
}

TEST_F(ADecodedBearing, OfAUniversalGroundStyleIsNoSet) {
    const BearingSpec& b = decode("K19013UP0");
    EXPECT_EQ(b.height.stored(), rounded(13.0 / 25.4));
    EXPECT_EQ(b.drawingScale.stored(), 3.91F);
    EXPECT_EQ(b.ballsText, "81 Balls, Ø .250 Nominal");
}

TEST_F(ADecodedBearing, HasTwoColumnsOfFitsWithoutAFitLetter) {
    const BearingSpec& b = decode("K19013XP0");
    const double bore = b.bore, od = b.outsideDiameter, db = b.boreTolerance, dd = b.odTolerance;
    EXPECT_EQ(b.fitShaft1.stored(), rounded(bore));
    EXPECT_EQ(b.fitShaft2.stored(), rounded(bore - db));
    EXPECT_EQ(b.fitHousing1.stored(), rounded(od));
    EXPECT_EQ(b.fitHousing2.stored(), rounded(od - dd));
    EXPECT_EQ(b.fitShaft3.stored(), rounded(bore + db));
    EXPECT_EQ(b.fitShaft4.stored(), rounded(bore + 2.0 * db));
    EXPECT_EQ(b.fitHousing3.stored(), rounded(dd + od));
    EXPECT_EQ(b.fitHousing4.stored(), rounded(od + 2.0 * dd));
}

TEST_F(ADecodedBearing, HasOneColumnOfLooseFitsWithAClearanceOrSpecialLetter) {
    for (const std::string number : {"K19013XP0A", "K19013CP0Z", "K19013BP0A"}) {
        const BearingSpec& b = decode(number);
        const double bore = b.bore, od = b.outsideDiameter, db = b.boreTolerance, dd = b.odTolerance;
        EXPECT_EQ(b.fitShaft1.stored(), rounded(bore + db)) << number;
        EXPECT_EQ(b.fitShaft2.stored(), rounded(bore + 2.0 * db)) << number;
        EXPECT_EQ(b.fitHousing1.stored(), rounded(od)) << number;
        EXPECT_EQ(b.fitHousing2.stored(), rounded(od - dd)) << number;
        for (const Single& second : {b.fitShaft3, b.fitShaft4, b.fitHousing3, b.fitHousing4})
            EXPECT_EQ(second, 0.0) << number;
    }
    EXPECT_EQ(run.bearing().speedFactor, 1.0);
}

struct Coated {
    const char* number;
    double boreAddition, boreBase, odAddition, odBase;
};
class ACoatedBearing : public ::testing::TestWithParam<Coated> {};

TEST_P(ACoatedBearing, TakesAdditionsAndTolerancesFromTheTableOfItsPrecision) {
    const SmallCatalogue catalogue;
    Decoding run(catalogue.path());
    ASSERT_EQ(run.decode(GetParam().number).end, DecodeEnd::Decoded);
    const BearingSpec& b = run.bearing();
    const auto field = [](double value) { return static_cast<double>(rounded(value)); };
    EXPECT_EQ(b.bore.stored(), rounded(190.0 / 25.4 + field(GetParam().boreAddition)));
    EXPECT_EQ(b.boreTolerance.stored(), rounded(field(GetParam().boreBase) + field(GetParam().boreAddition)));
    EXPECT_EQ(b.outsideDiameter.stored(), rounded(216.0 / 25.4 + field(GetParam().odAddition)));
    EXPECT_EQ(b.odTolerance.stored(), rounded(field(GetParam().odBase) - field(GetParam().odAddition)));
}

INSTANTIATE_TEST_SUITE_P(Precisions, ACoatedBearing,
                         ::testing::Values(Coated{"N19013XP0", -.0002, -.0011, .0003, -.0013},
                                           Coated{"N19013XP1", -.0002, -.0011, .0003, -.0013},
                                           Coated{"N19013XP2", -.0002, -.0011, .0003, -.0013},
                                           Coated{"N19013XP4", -.0004, -.0021, .0005, -.0023},
                                           Coated{"N19013XP6", -.0006, -.0031, .0007, -.0033}));

TEST_F(ADecodedBearing, CoatedButMissingInTheCoatingTableStaysInMillimetres) {
    const BearingSpec& b = decode("N20013XP0");
    EXPECT_EQ(b.bore, 200.0);
    EXPECT_EQ(b.outsideDiameter, 226.0);
    EXPECT_EQ(b.pitchDiameter.stored(), rounded(213.0 / 25.4));
    EXPECT_EQ(b.boreTolerance.stored(), -0.0012F);
}

TEST_F(ADecodedBearing, WithASecondDecodeOfTheSameNumberIsTheSame) {
    const BearingSpec first = decode("K19013BP0K");
    const BearingSpec& second = decode("K19013BP0K");
    EXPECT_EQ(first.momentArm.stored(), second.momentArm.stored());
    EXPECT_EQ(first.height.stored(), second.height.stored());
    EXPECT_EQ(first.dynamicMoment.stored(), second.dynamicMoment.stored());
    EXPECT_EQ(first.meanClearance.stored(), second.meanClearance.stored());
    EXPECT_EQ(first.ballsText, second.ballsText);
    ASSERT_EQ(run.sheets.stored.size(), 2U);
    EXPECT_EQ(run.sheets.stored[0].records, run.sheets.stored[1].records);
}

}  // namespace
}  // namespace norlaplan
