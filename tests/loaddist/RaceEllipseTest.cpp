#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "loaddist/EllipticEstimate.h"
#include "loaddist/EllipticIntegrals.h"
#include "loaddist/RaceEllipse.h"
#include "support/FullCount.h"
#include "support/PlainContact.h"

namespace norlaplan {
namespace {

/// The plain search for a ratio: with two curvatures of which one is the ratio times the other.
void expectThePlainEllipse(double ratio) {
    const plain::Race expected = plain::matchRace(0.0, 0.0, 2.0 * ratio, 2.0);
    const RaceEllipse found = matchRaceEllipse(ratio);
    ASSERT_EQ(found.K.stored(), expected.K) << ratio;
    ASSERT_EQ(found.E.stored(), expected.E) << ratio;
    ASSERT_EQ(found.kappaSq.stored(), expected.kappaSq) << ratio;
}

double complementRounded(double m) {
    return 1.0 / double{Single(1.0 - m)};
}

double ratioOf(double m, const EllipticResult& integrals) {
    const double kappaSq = Single(complementRounded(m));
    return (kappaSq * integrals.E - integrals.K) / (integrals.K - integrals.E);
}

TEST(RaceEllipse, AgreesWithThePlainTranscriptionForRandomRatios) {
    std::mt19937_64 random(14);
    // Beyond the ratios that are estimated, too.
    std::uniform_real_distribution<double> logarithm(std::log(1.0001), std::log(4000.0));
    for (int i = testing::fullCount(300, 20000); i > 0; --i)
        expectThePlainEllipse(std::exp(logarithm(random)));
}

TEST(RaceEllipse, AgreesWhereTheEstimatesBeginAndEnd) {
    for (const double ratio : {1.25, 250.0}) {
        for (const double place : {std::nextafter(ratio, 0.0), ratio, std::nextafter(ratio, 1e9)})
            expectThePlainEllipse(place);
    }
}

/// Calls `meet(m)` for 32-bit values of m, one after the other, until it gives true; fails without.
template <typename Meet>
void lookAlong(double first, Meet meet) {
    auto m = static_cast<float>(first);
    for (int i = 0; i < 100000; ++i, m = std::nextafter(m, 1.0F)) {
        if (meet(static_cast<double>(m))) return;
    }
    FAIL() << "no such place in 100000 neighbours";
}

TEST(RaceEllipse, LetsThePanelsDecideWhereTheRoundingOfTheRatioIsInDoubt) {
    for (const double first : {0.3, 0.6, 0.97}) {
        lookAlong(first, [](double m) {
            const double kappaSq = Single(complementRounded(m));
            if (settledCurvatureRatio(m, kappaSq)) return false;
            // The search for this very ratio, and for the neighbours of its rounding, hangs on the doubtful
            // bit.
            const double ratio = ratioOf(m, EllipticIntegrals(m));
            const auto near = static_cast<float>(ratio);
            for (const float rounded : {std::nextafter(near, 0.0F), near, std::nextafter(near, 1e9F)})
                expectThePlainEllipse(static_cast<double>(rounded));
            expectThePlainEllipse(ratio);
            return true;
        });
    }
}

TEST(RaceEllipse, LetsThePanelsDecideWhereTheRoundingOfTheIntegralsIsInDoubt) {
    for (const double first : {0.3, 0.6, 0.97}) {
        lookAlong(first, [](double m) {
            const double kappaSq = Single(complementRounded(m));
            if (settledEllipse(m, kappaSq)) return false;
            // With its own rounded ratio the search ends at this m, unless a neighbour has the same ratio.
            const double ratio = Single(ratioOf(m, EllipticIntegrals(m)));
            if (matchRaceEllipse(ratio).kappaSq != kappaSq) return false;
            expectThePlainEllipse(ratio);
            return true;
        });
    }
}

TEST(RaceEllipse, SettlesNearlyEveryRatioBetweenItsEndsAndNoneBeyond) {
    int settled = 0;
    for (int i = 0; i < 1000; ++i) {
        const double m = 0.26 + 0.0007 * i;
        settled += settledCurvatureRatio(m, Single(complementRounded(m))) ? 1 : 0;
    }
    EXPECT_GT(settled, 900);
    for (const double m : {0.01, 0.1, 0.2, 0.24, 0.99999}) {
        EXPECT_FALSE(settledCurvatureRatio(m, Single(complementRounded(m)))) << m;
        EXPECT_FALSE(settledEllipse(m, Single(complementRounded(m)))) << m;
    }
}

TEST(RaceEllipse, EstimatesTheEccentricityFarWithinTheWindowInWhichItIsTrusted) {
    for (double ratio = 1.25; ratio <= 250.0; ratio *= 1.003) {
        const auto m = estimateEccentricity(ratio);
        ASSERT_TRUE(m) << ratio;
        const EllipticResult integrals = EllipticIntegrals(*m);
        const double met = (integrals.E / (1.0 - *m) - integrals.K) / (integrals.K - integrals.E);
        EXPECT_NEAR(std::log(met / ratio), 0.0, 1e-7) << ratio;
    }
    EXPECT_FALSE(estimateEccentricity(1.249));
    EXPECT_FALSE(estimateEccentricity(250.1));
    EXPECT_FALSE(estimateEccentricity(std::numeric_limits<double>::quiet_NaN()));
}

TEST(RaceEllipse, RestsOnARatioThatRisesWithTheEccentricity) {
    // The argument of the search: over t = -ln q the ratio's logarithm rises by 0.75 at least.
    double before = 0.0;
    for (double q = 0.75; q > 4e-4; q *= 0.999) {
        const EllipticResult integrals = estimateEllipticIntegrals(1.0 - q, q);
        const double now = std::log((integrals.E / q - integrals.K) / (integrals.K - integrals.E));
        if (before != 0.0) {
            EXPECT_GT((now - before) / -std::log(0.999), 0.75) << q;
        }
        before = now;
    }
}

}  // namespace
}  // namespace norlaplan
