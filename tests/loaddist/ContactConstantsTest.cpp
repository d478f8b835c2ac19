#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "loaddist/ContactConstants.h"
#include "loaddist/EllipticEstimate.h"
#include "loaddist/EllipticIntegrals.h"
#include "loaddist/radlodestar2.h"
#include "support/ContactInputs.h"
#include "support/PlainContact.h"
#include "support/SolverCases.h"

namespace norlaplan {
namespace {

using testing::inputsOf;

constexpr double kTruePi = 3.141592653589793;
constexpr double kTrueHalfPi = kTruePi / 2.0;

TEST(EllipticIntegrals, AreAQuarterTurnForACircleAndNearTheTextbookElsewhere) {
    const EllipticResult circle = EllipticIntegrals(0.0);
    EXPECT_NEAR(circle.K, kTrueHalfPi, 1e-9);
    EXPECT_NEAR(circle.E, kTrueHalfPi, 1e-9);
    for (const double m : {0.1, 0.5, 0.9, 0.99}) {
        const EllipticResult sum = EllipticIntegrals(m);
        EXPECT_NEAR(sum.K, std::comp_ellint_1(std::sqrt(m)), 1e-6) << m;
        EXPECT_NEAR(sum.E, std::comp_ellint_2(std::sqrt(m)), 1e-6) << m;
    }
}

TEST(EllipticIntegrals, AgreeWithThePlainTranscriptionToTheLastBit) {
    for (double m1 = 1.0; m1 > 1e-6; m1 *= 0.97) {
        const EllipticResult sum = EllipticIntegrals(1.0 - m1);
        EXPECT_EQ(sum.K, plain::ellipticIntegrals(1.0 - m1).K) << m1;
        EXPECT_EQ(sum.E, plain::ellipticIntegrals(1.0 - m1).E) << m1;
    }
}

double curvatureRatio(double m, const EllipticResult& sum) {
    return (1.0 / (1.0 - m) * sum.E - sum.K) / (sum.K - sum.E);
}

TEST(EllipticEstimate, GivesTheCurvatureRatioOfThePanelsFarWithinItsMargin) {
    double worst = 0.0;
    for (double m1 = kLeastEstimatedComplement; m1 < 0.75; m1 *= 1.02) {
        const double m = 1.0 - m1;
        const double panels = curvatureRatio(m, EllipticIntegrals(m));
        const double estimate = curvatureRatio(m, estimateEllipticIntegrals(m, m1));
        worst = std::max(worst, std::fabs(estimate / panels - 1.0));
    }
    EXPECT_LT(worst, 1e-11);
}

void expectSameRace(const plain::Race& expected, Single K, Single E, Single kappaSq, Single kappa,
                    Single curvatureSum) {
    ASSERT_EQ(K.stored(), expected.K);
    ASSERT_EQ(E.stored(), expected.E);
    ASSERT_EQ(kappaSq.stored(), expected.kappaSq);
    ASSERT_EQ(kappa.stored(), expected.kappa);
    ASSERT_EQ(curvatureSum.stored(), expected.curvatureSum);
}

TEST(ContactConstants, AgreeWithThePlainTranscriptionToTheLastBitForAnyGeometry) {
    for (const float percent : {50.02F, 50.5F, 51.0F, 52.0F, 53.0F, 54.7F, 58.0F, 75.0F, 150.0F}) {
        for (float pitch = 0.9F; pitch < 40.0F; pitch *= 1.6F) {
            for (const float ball : {0.125F, 0.25F, 0.4375F}) {
                for (const float angle : {0.0F, 0.5235988F}) {
                    plain::Bearing bearing;
                    bearing.pitchDiameter = pitch;
                    bearing.ballDiameter = ball;
                    bearing.grooveRadius = ball * percent / 100.0F;
                    plain::Result expected;
                    plain::contactConstants(bearing, static_cast<double>(angle), expected);
                    SolverState state = inputsOf(bearing, static_cast<double>(angle));
                    ContactConstants(state);
                    SCOPED_TRACE(std::to_string(percent) + " % " + std::to_string(pitch));
                    expectSameRace(expected.inner, state.InnerK, state.InnerE, state.InnerKappaSq,
                                   state.InnerKappa, state.InnerCurvatureSum);
                    expectSameRace(expected.outer, state.OuterK, state.OuterE, state.OuterKappaSq,
                                   state.OuterKappa, state.OuterCurvatureSum);
                    ASSERT_EQ(state.Kn.stored(), expected.Kn);
                    ASSERT_EQ(state.CiCo, expected.CiCo);
                }
            }
        }
    }
}

TEST(ContactConstants, TakeTheContactAngleAsZeroWhenToldTo) {
    const plain::Bearing bearing = testing::solverCases('X')[0];
    SolverState flat = inputsOf(bearing, 0.0);
    ContactConstants(flat);
    SolverState forced = inputsOf(bearing, 0.5235988);
    forced.ForceZeroAngle = 1;
    ContactConstants(forced);
    EXPECT_EQ(forced.InnerCurvatureSum.stored(), flat.InnerCurvatureSum.stored());
    EXPECT_EQ(forced.Kn.stored(), flat.Kn.stored());
}

/// Approach of a ball and one race under a load, straight from Hertz: the ellipse is found on exact integrals
/// with an exact pi.
double hertzApproach(double load, double sum, double difference, double elasticSum) {
    double lo = 0.0;
    double hi = 1.0;
    for (int pass = 0; pass < 200; ++pass) {
        const double m = (lo + hi) / 2.0;
        const double K = std::comp_ellint_1(std::sqrt(m));
        const double E = std::comp_ellint_2(std::sqrt(m));
        const double k2 = 1.0 / (1.0 - m);
        // cos(tau) of the contact, (k^2 + 1) E - 2 K over (k^2 - 1) E.
        const double cosTau = ((k2 + 1.0) * E - 2.0 * K) / ((k2 - 1.0) * E);
        (cosTau < difference / sum ? lo : hi) = m;
    }
    const double k2 = 1.0 / (1.0 - lo);
    const double K = std::comp_ellint_1(std::sqrt(lo));
    const double E = std::comp_ellint_2(std::sqrt(lo));
    const double a = std::cbrt(3.0 * k2 * E * load * elasticSum / (kTruePi * sum));
    // Approach = 3 Q K (sum of (1 - v^2)/E) / (2 pi a).
    return 3.0 * load * K * elasticSum / (2.0 * kTruePi * a);
}

TEST(ContactConstants, GiveTheApproachThatHertzGives) {
    // A ball of 1/4 inch in grooves of 53 % on a pitch circle of 4 inches.
    plain::Bearing bearing;
    bearing.pitchDiameter = 4.0F;
    bearing.ballDiameter = 0.25F;
    bearing.grooveRadius = 0.1325F;
    SolverState state = inputsOf(bearing, 0.0);
    ContactConstants(state);
    // By hand: 2 (1 - 0.0625) / 29e6 = 6.4655172e-8; 16 + 2/3.75 - 7.5471698 = 8.9861636;
    // 16 - 2/4.25 - 7.5471698 = 7.9822420.
    EXPECT_NEAR(state.ElasticSum, 6.4655172e-8, 1e-14);
    EXPECT_NEAR(state.InnerCurvatureSum, 8.9861636, 1e-5);
    EXPECT_NEAR(state.OuterCurvatureSum, 7.9822420, 1e-5);
    // The curvatures' differences are 2/3.75 + 7.5471698 and -2/4.25 + 7.5471698.
    const double inner = hertzApproach(100.0, 8.98616352, 8.08050314, 6.46551724e-8);
    const double outer = hertzApproach(100.0, 7.98224195, 7.07658158, 6.46551724e-8);
    EXPECT_NEAR(100.0 / std::pow(inner + outer, 1.5) / state.Kn, 1.0, 1e-5);
}

TEST(ContactConstants, OfAGrooveAsRoundAsTheBallAreADivisionByZero) {
    plain::Bearing bearing = testing::solverCases('X')[0];
    bearing.ballDiameter = 0.25F;
    bearing.grooveRadius = 0.125F;
    SolverState state = inputsOf(bearing, 0.0);
    try {
        ContactConstants(state);
        FAIL() << "a groove without clearance has no ellipse";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), fault::kDivisionByZero);
    }
}

}  // namespace
}  // namespace norlaplan
