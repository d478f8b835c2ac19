#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "support/DeflectionCases.h"
#include "support/PlainDeflection.h"

namespace norlaplan {
namespace {

using testing::bearingOf;
using testing::deflectionOf;
using testing::kPreloads;
using testing::numbersOfStyle;
using testing::PlainDeflection;
using testing::PlainDeflectionSolver;
using testing::PlainPoint;
using testing::usualInput;

PlainDeflection plainly(const BearingSpec& bearing, const DeflectionInput& input) {
    return PlainDeflectionSolver(bearing, input.preload)
        .solve(input.maxRadialLoad, input.maxAxialLoad, input.maxMomentLoad);
}

void expectSameCurve(const std::vector<CurvePoint>& curve, const std::vector<PlainPoint>& plain) {
    ASSERT_EQ(curve.size(), plain.size());
    for (std::size_t i = 0; i < curve.size(); ++i) {
        EXPECT_EQ(curve[i].load, plain[i].load) << i;
        EXPECT_EQ(curve[i].deflection, plain[i].deflection) << i;
    }
}

void expectSameRates(const DeflectionResult& result, const PlainDeflection& plain) {
    const bool diagonal = result.styleLetter != "C";
    if (result.input.preload != 0.0) {
        EXPECT_EQ(result.radialSpringRate, plain.radialSpringRate);
        EXPECT_EQ(result.radialReliefLoad.value().stored(), plain.radialReliefLoad);
    }
    if (result.input.preload != 0.0 && diagonal) {
        EXPECT_EQ(result.axialSpringRate, plain.axialSpringRate);
        EXPECT_EQ(result.momentSpringRate, plain.momentSpringRate);
        EXPECT_EQ(result.axialReliefLoad.value().stored(), plain.axialReliefLoad);
        EXPECT_EQ(result.momentReliefLoad.value().stored(), plain.momentReliefLoad);
    }
    EXPECT_EQ(result.radialConstant, plain.radialConstant);
    if (diagonal) {
        EXPECT_EQ(result.momentConstant1, plain.momentConstant1);
        EXPECT_EQ(result.momentConstant2, plain.momentConstant2);
    }
    if (result.styleLetter == "X") {
        EXPECT_EQ(result.initialTilt, plain.initialTilt);
    }
    EXPECT_EQ(result.curveOffset.stored(), plain.curveOffset);
}

void expectSame(const DeflectionResult& result, const PlainDeflection& plain) {
    expectSameRates(result, plain);
    ASSERT_EQ(result.axialPoints.size(), plain.rows.size());
    for (std::size_t i = 0; i < plain.rows.size(); ++i) {
        EXPECT_EQ(result.axialPoints[i].load, plain.rows[i].load) << i;
        EXPECT_EQ(result.axialPoints[i].contactAngle, plain.rows[i].angle) << i;
        EXPECT_EQ(result.axialPoints[i].deflection, plain.rows[i].deflection) << i;
        EXPECT_EQ(result.axialPoints[i].relief, plain.rows[i].relief) << i;
    }
    expectSameCurve(result.radialCurve, plain.radialCurve);
    expectSameCurve(result.axialCurve, plain.axialCurve);
    expectSameCurve(result.momentCurve, plain.momentCurve);
}

class AStyle : public ::testing::TestWithParam<const char*> {
  protected:
    template <typename Claim>
    void forEachBearingAndPreload(Claim claim) const {
        for (const std::string& number : numbersOfStyle(GetParam())) {
            const BearingSpec bearing = bearingOf(number);
            ASSERT_EQ(bearing.partNumber, number);
            for (const double preload : kPreloads) {
                SCOPED_TRACE(number + " at " + std::to_string(preload));
                claim(bearing, preload);
            }
        }
    }
};

TEST_P(AStyle, EqualsThePlainCalculationToTheLastBit) {
    forEachBearingAndPreload([](const BearingSpec& bearing, double preload) {
        const DeflectionInput input = usualInput(bearing, preload);
        expectSame(deflectionOf(bearing, input), plainly(bearing, input));
    });
}

TEST_P(AStyle, EqualsThePlainCalculationForOtherMaximaAndPreloads) {
    const BearingSpec bearing = bearingOf(numbersOfStyle(GetParam())[3]);
    for (const double preload : {0.0001, 0.00025, 0.0007, 0.0014, 0.002, 0.005}) {
        for (const double maximum : {500.0, 925.5, 1000.0, 3777.7, 12345.0}) {
            SCOPED_TRACE(std::to_string(preload) + " to " + std::to_string(maximum));
            const DeflectionInput input{preload, maximum / 3.0, maximum, maximum * 1.5};
            expectSame(deflectionOf(bearing, input), plainly(bearing, input));
        }
    }
}

TEST_P(AStyle, GivesCurvesOf51PointsFromTheOriginThatRise) {
    forEachBearingAndPreload([](const BearingSpec& bearing, double preload) {
        const DeflectionResult result = deflectionOf(bearing, usualInput(bearing, preload));
        for (const auto* curve : {&result.radialCurve, &result.axialCurve, &result.momentCurve}) {
            if (curve->empty()) continue;
            ASSERT_EQ(curve->size(), 51U);
            EXPECT_EQ(curve->front().load, 0.0);
            EXPECT_EQ(curve->front().deflection, 0.0);
            for (std::size_t i = 1; i <= 50; ++i) {
                // The axial row at relief stands at whole pounds, which may lie before the row that precedes
                // it.
                const bool relief = curve == &result.axialCurve && result.axialPoints[i].relief;
                EXPECT_GT((*curve)[i].load, (*curve)[i - 1].load - (relief ? 1.0 : 0.0));
                if (relief) continue;
                EXPECT_GT((*curve)[i].deflection, (*curve)[i - 1].deflection) << i;
            }
        }
    });
}

TEST_P(AStyle, WithNoPreloadHasReliefLoadsOfMinusOneAndNoRate) {
    for (const std::string& number : numbersOfStyle(GetParam())) {
        const BearingSpec bearing = bearingOf(number);
        const DeflectionResult result = deflectionOf(bearing, usualInput(bearing, 0.0));
        for (const auto& relief : {result.radialReliefLoad, result.axialReliefLoad, result.momentReliefLoad})
            EXPECT_EQ(relief.value(), -1.0);
        for (const auto& rate : {result.radialSpringRate, result.axialSpringRate, result.momentSpringRate})
            EXPECT_FALSE(rate);
        EXPECT_EQ(result.curveOffset, 0.0);
        const double load = result.radialCurve[50].load;
        EXPECT_DOUBLE_EQ(result.radialCurve[50].deflection,
                         std::cbrt(load * load) * result.radialConstant.value());
    }
}

INSTANTIATE_TEST_SUITE_P(Styles, AStyle, ::testing::Values("X", "C", "B", "F"));

/// The corner of a curve: the point at `load`.
std::size_t cornerOf(const std::vector<CurvePoint>& curve, double load) {
    for (std::size_t i = 0; i < curve.size(); ++i) {
        if (curve[i].load == load) return i;
    }
    return curve.size();
}

class AStyleWithRelief : public AStyle {};

TEST_P(AStyleWithRelief, HasACornerExactlyAtTheReliefLoadOfTheRadialAndMomentCurve) {
    forEachBearingAndPreload([](const BearingSpec& bearing, double preload) {
        if (preload == 0.0) return;
        DeflectionInput input = usualInput(bearing, preload);
        const DeflectionResult first = deflectionOf(bearing, input);
        // Maxima that the relief loads divide in no even way.
        input.maxRadialLoad = 2.345 * first.radialReliefLoad.value();
        if (first.momentReliefLoad) input.maxMomentLoad = 3.21 * first.momentReliefLoad.value();
        const DeflectionResult result = deflectionOf(bearing, input);
        const std::size_t radial = cornerOf(result.radialCurve, result.radialReliefLoad.value());
        ASSERT_LT(radial, 50U);
        EXPECT_EQ(radial, 22U);  // 50 / 2.345 is 21.3
        EXPECT_EQ(result.radialCurve[radial].deflection,
                  result.radialReliefLoad.value() / result.radialSpringRate.value());
        if (!first.momentReliefLoad) return;
        const std::size_t moment = cornerOf(result.momentCurve, result.momentReliefLoad.value());
        EXPECT_EQ(moment, 16U);  // 50 / 3.21 is 15.6
    });
}

TEST_P(AStyleWithRelief, GoesOnWithoutAJumpBeyondRelief) {
    forEachBearingAndPreload([](const BearingSpec& bearing, double preload) {
        if (preload == 0.0) return;
        DeflectionInput input = usualInput(bearing, preload);
        input.maxRadialLoad = 2.345 * deflectionOf(bearing, input).radialReliefLoad.value();
        const DeflectionResult result = deflectionOf(bearing, input);
        const double relief = result.radialReliefLoad.value();
        const CurvePoint& next = result.radialCurve[cornerOf(result.radialCurve, relief) + 1];
        const double beyond =
            (std::cbrt(next.load * next.load) - std::cbrt(relief * relief)) * result.radialConstant.value();
        // The offset between the two laws is a 32-bit number.
        EXPECT_NEAR((relief / result.radialSpringRate.value() + beyond) / next.deflection, 1.0, 1e-6);
    });
}

INSTANTIATE_TEST_SUITE_P(Styles, AStyleWithRelief, ::testing::Values("X", "C", "B", "F"));

class ADiagonalStyle : public AStyle {};

TEST_P(ADiagonalStyle, ListsTheReliefRowOnceAtItsWholePounds) {
    forEachBearingAndPreload([](const BearingSpec& bearing, double preload) {
        DeflectionInput input = usualInput(bearing, preload);
        if (preload != 0.0) {
            input.maxAxialLoad = std::floor(2.2 * deflectionOf(bearing, input).axialReliefLoad.value());
        }
        const DeflectionResult result = deflectionOf(bearing, input);
        int rows = 0;
        for (std::size_t i = 0; i < result.axialPoints.size(); ++i) {
            const AxialPoint& row = result.axialPoints[i];
            if (!row.relief) continue;
            ++rows;
            EXPECT_EQ(row.load, std::floor(result.axialReliefLoad.value()));
            // The counter loses the whole pounds of a step and gains a step: less than a pound is left over.
            const double step = input.maxAxialLoad / 50.0;
            const double passed = static_cast<double>(i) * step;
            EXPECT_NEAR(result.axialPoints[i + 1].load, passed + step - std::floor(step), 1e-6);
        }
        EXPECT_EQ(rows, preload == 0.0 ? 0 : 1);
    });
}

TEST_P(ADiagonalStyle, HasAxialRowsWhoseAngleCarriesTheirLoadWithinATenthOfAPound) {
    forEachBearingAndPreload([](const BearingSpec& bearing, double preload) {
        const DeflectionResult result = deflectionOf(bearing, usualInput(bearing, preload));
        const double D = bearing.ballDiameter;
        const double rings = ((bearing.bore + bearing.innerSection) / bearing.innerSection +
                              (bearing.outsideDiameter - bearing.outerSection) / bearing.outerSection) /
                             (5.8e7 * bearing.innerWidth * 3.14159265359);
        const double perBall = 0.06 / (bearing.ciPlusCo * 7.810637e-6);
        for (std::size_t i = 1; i < result.axialPoints.size(); ++i) {
            const AxialPoint& row = result.axialPoints[i];
            // The approach that is left when the rings have given way loads the balls to the same thrust.
            const double free =
                0.06 * D * (std::cos(bearing.contactAngle) / std::cos(row.contactAngle) - 1.0);
            const auto carried = [&](double thrust) {
                const double approach = free - rings * thrust / (2.0 * std::sin(row.contactAngle));
                const double q = approach <= 0.0 ? 0.0 : std::pow(approach / (0.06 * D), 1.5);
                return bearing.ballCount * std::pow(perBall, 1.5) * D * D * q * std::sin(row.contactAngle);
            };
            // `carried` falls with the thrust, so the balance lies between the window's ends.
            EXPECT_GE(carried(row.load - 0.1001), row.load - 0.1001) << i;
            EXPECT_LE(carried(row.load + 0.1001), row.load + 0.1001) << i;
        }
    });
}

TEST_P(ADiagonalStyle, StartsItsAxialTableWithTheUnloadedRow) {
    const BearingSpec bearing = bearingOf(numbersOfStyle(GetParam())[3]);
    const DeflectionResult result = deflectionOf(bearing, usualInput(bearing, 0.001));
    EXPECT_EQ(result.axialPoints[0].load, 0.0);
    EXPECT_DOUBLE_EQ(result.axialPoints[0].contactAngle * 180.0 / 3.14159265359, 30.0);
    EXPECT_EQ(result.axialPoints[0].deflection, 0.0);
}

INSTANTIATE_TEST_SUITE_P(Styles, ADiagonalStyle, ::testing::Values("X", "B", "F"));

TEST(ARadialContactBearing, HasNeitherAxialNorMomentData) {
    const BearingSpec bearing = bearingOf("K19013CP0");
    const DeflectionResult result = deflectionOf(bearing, usualInput(bearing, 0.001));
    EXPECT_FALSE(result.axialSpringRate);
    EXPECT_FALSE(result.momentSpringRate);
    EXPECT_FALSE(result.axialReliefLoad);
    EXPECT_FALSE(result.momentReliefLoad);
    EXPECT_FALSE(result.momentConstant1);
    EXPECT_FALSE(result.momentConstant2);
    EXPECT_FALSE(result.initialTilt);
    EXPECT_FALSE(result.initialAngle);
    EXPECT_TRUE(result.axialPoints.empty());
    EXPECT_TRUE(result.axialCurve.empty());
    EXPECT_TRUE(result.momentCurve.empty());
}

TEST(ARadialContactBearing, IsRelievedWhenTheRingsHaveMovedByHalfThePreload) {
    // At relief the ball opposite to the load is just free: each approach is p/2 (1 + cos t). The integral of
    // (1 + cos t)^1.5 cos t from 0 to pi is, with u = t/2, 2^2.5 (2 I5 - I3), I3 = 2/3 and I5 = 8/15 being
    // those of the third and fifth power of the cosine from 0 to pi/2.
    const double integral = std::pow(2.0, 2.5) * (2.0 * 8.0 / 15.0 - 2.0 / 3.0);
    const BearingSpec bearing = bearingOf("K19013CP0");
    const double preload = 0.001;
    const DeflectionResult result = deflectionOf(bearing, usualInput(bearing, preload));
    const double perBall = std::pow(std::cbrt(bearing.ballDiameter) / (bearing.ciPlusCo * 7.810637e-6), 1.5);
    const double relief =
        bearing.ballCount * perBall * std::pow(preload / 2.0, 1.5) * integral / 3.14159265359;
    // The rule takes a degree a step, and its last point too often: within a thousandth.
    EXPECT_NEAR(result.radialReliefLoad.value() / relief, 1.0, 1e-3);
    EXPECT_NEAR(result.radialSpringRate.value(), result.radialReliefLoad.value() / (preload / 2.0), 1.0);
}

class AFourPointBearing : public ::testing::Test {
  protected:
    BearingSpec bearing = bearingOf("K19013XP0");
};

TEST_F(AFourPointBearing, HasNoInitialTiltAtThirtyDegrees) {
    const DeflectionResult result = deflectionOf(bearing, usualInput(bearing, 0.001));
    EXPECT_EQ(result.initialTilt, 0.0);
    EXPECT_EQ(result.initialAngle, 30.0);
}

TEST_F(AFourPointBearing, MeetsItsReliefEquations) {
    const double p = 0.001, alpha = bearing.contactAngle;
    const DeflectionResult result = deflectionOf(bearing, usualInput(bearing, p));
    const double B = std::cbrt(bearing.ballDiameter) * std::pow(bearing.ballCount, 2.0 / 3.0);
    const double hertz = bearing.ciPlusCo * 7.810637e-6 / (std::pow(std::sin(alpha), 2.0 / 3.0) * B);
    const double rings =
        std::cos(alpha) / (5.8e7 * 3.14159265359 * std::tan(alpha)) *
        ((bearing.bore + bearing.innerSection) / (bearing.innerSection * bearing.innerWidth) +
         (bearing.outsideDiameter - bearing.outerSection) / (bearing.outerSection * bearing.outerWidth));
    const double axial = result.axialReliefLoad.value();
    EXPECT_NEAR(axial * rings + hertz * std::cbrt(axial * axial), p * std::cos(alpha), 1e-9);
}

TEST_F(AFourPointBearing, IsStifferAndRelievedLaterWithMorePreload) {
    const DeflectionResult light = deflectionOf(bearing, usualInput(bearing, 0.0005));
    const DeflectionResult heavy = deflectionOf(bearing, usualInput(bearing, 0.001));
    EXPECT_GT(heavy.radialSpringRate, light.radialSpringRate);
    EXPECT_GT(heavy.axialSpringRate, light.axialSpringRate);
    EXPECT_GT(heavy.momentSpringRate, light.momentSpringRate);
    EXPECT_GT(heavy.axialReliefLoad.value(), light.axialReliefLoad.value());
}

class APair : public ::testing::TestWithParam<const char*> {};

TEST_P(APair, TakesItsAxialRateFromItsReliefLoad) {
    for (const std::string& number : numbersOfStyle(GetParam())) {
        const BearingSpec bearing = bearingOf(number);
        for (const double preload : {0.0005, 0.001, 0.0035}) {
            const DeflectionResult result = deflectionOf(bearing, usualInput(bearing, preload));
            EXPECT_EQ(result.axialSpringRate, 2.0 * result.axialReliefLoad.value() / preload);
            // Rate and relief load of the moment share the arm: rate = relief x pitch diameter / preload.
            EXPECT_NEAR(result.momentSpringRate.value() /
                            (result.momentReliefLoad.value() * bearing.pitchDiameter / preload),
                        1.0, 1e-6);
        }
    }
}

TEST_P(APair, FindsReliefLoadsThatAreSumsOfTheSearchsSteps) {
    const BearingSpec bearing = bearingOf(numbersOfStyle(GetParam())[3]);
    for (const double preload : {0.0005, 0.001, 0.0035}) {
        const double relief = deflectionOf(bearing, usualInput(bearing, preload)).axialReliefLoad.value();
        // 949, 94.9, 9.49 ...: a whole multiple of a step that the window of 1e-5 inch lets stand.
        EXPECT_NEAR(std::round(relief / 0.0949) * 0.0949 / relief, 1.0, 1e-7);
    }
}

INSTANTIATE_TEST_SUITE_P(Styles, APair, ::testing::Values("B", "F"));

TEST(PairsBackToBackAndFaceToFace, DifferInTheirMomentArmAlone) {
    const BearingSpec back = bearingOf("K19013BP0T");
    const BearingSpec face = bearingOf("K19013FP0T");
    const DeflectionResult b = deflectionOf(back, usualInput(back, 0.001));
    const DeflectionResult f = deflectionOf(face, usualInput(face, 0.001));
    EXPECT_EQ(b.axialReliefLoad.value(), f.axialReliefLoad.value());
    EXPECT_EQ(b.radialSpringRate, f.radialSpringRate);
    EXPECT_EQ(b.radialReliefLoad.value(), f.radialReliefLoad.value());
    EXPECT_GT(b.momentReliefLoad.value(), f.momentReliefLoad.value());
    // The arms are pitch diameter plus and minus the same reach.
    const double sum =
        (b.momentReliefLoad.value() + f.momentReliefLoad.value()) * 2.0 / b.axialReliefLoad.value();
    EXPECT_NEAR(sum, 2.0 * back.pitchDiameter, 1e-5);
}

TEST(DeflectionEntries, ProposeAFifthOfTheRatingsInWholeDisplayUnits) {
    const BearingSpec bearing = bearingOf("K19013XP0");
    UnitMode units = initialUnits();
    const DeflectionEntry us = proposedDeflectionEntry(bearing, units);
    EXPECT_EQ(us.preload, 0.0);
    EXPECT_EQ(us.maxRadialLoad, std::floor(bearing.dynamicRadial * 0.2));
    EXPECT_EQ(us.maxAxialLoad, std::floor(bearing.dynamicThrust * 0.2));
    EXPECT_EQ(us.maxMomentLoad, std::floor(bearing.dynamicMoment * 0.2));
    ApplyUnitSystem("METRIC", units);
    const DeflectionEntry metric = proposedDeflectionEntry(bearing, units);
    EXPECT_EQ(metric.maxRadialLoad, std::floor(bearing.dynamicRadial * 0.2 / 0.2248089F));
    EXPECT_EQ(metric.maxMomentLoad, std::floor(bearing.dynamicMoment * 0.2 / 8.850744F));
}

TEST(DeflectionEntries, AreTakenToInchesAndPounds) {
    UnitMode units = initialUnits();
    ApplyUnitSystem("METRIC", units);
    const DeflectionInput input = deflectionInput({0.0254, 1000.0, 2000.0, 10.0}, units);
    EXPECT_NEAR(input.preload, 0.001, 1e-9);
    EXPECT_NEAR(input.maxRadialLoad, 224.8089, 1e-4);
    EXPECT_NEAR(input.maxAxialLoad, 449.6178, 1e-4);
    EXPECT_NEAR(input.maxMomentLoad, 88.50744, 1e-5);
}

}  // namespace
}  // namespace norlaplan
