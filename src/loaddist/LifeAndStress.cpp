#include "loaddist/LifeAndStress.h"

#include <cmath>
#include <cstddef>

#include "loaddist/RoundedPowers.h"
#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

constexpr double kNewtonsPerPound = 4.448;
constexpr double kMpaPerPsi = 0.006895;
constexpr double kMillimetresPerInch = 25.4;

/// Semi-major axis per cube root of the load, after Hertz: a^3 = 3 kappa^2 E Q S / (pi R) with the elastic
/// sum S and the curvature sum R (Harris, Rolling Bearing Analysis, contact stress and deformation).
double ellipseFactor(double elasticSum, double E, double kappaSq, double curvatureSum) {
    return power(divide(((elasticSum * 3.0) * E) * kappaSq, curvatureSum * PiValue), kOneThird);
}

/// The ball's ellipses and its largest Hertz stress, 3 Q / (2 pi a b).
void stressOfBall(SolverState& state, int row, int ball, const RoundedPowers& powers) {
    const double Q = state.BallLoad(row, ball);
    if (Q == 0.0) {
        // The axes keep what the last solve left there.
        state.InnerStress(row, ball) = 0.0;
        state.OuterStress(row, ball) = 0.0;
        return;
    }
    Single& innerMajor = state.InnerSemiMajor(row, ball);
    Single& innerMinor = state.InnerSemiMinor(row, ball);
    innerMajor = powers.rootTimes(ball, state.InnerEllipseFactor);
    innerMinor = divide(innerMajor, state.InnerKappa);
    state.InnerStress(row, ball) = divide(Q * 1.5, (innerMajor * PiValue) * innerMinor);
    Single& outerMajor = state.OuterSemiMajor(row, ball);
    Single& outerMinor = state.OuterSemiMinor(row, ball);
    outerMajor = powers.rootTimes(ball, state.OuterEllipseFactor);
    outerMinor = divide(outerMajor, state.OuterKappa);
    state.OuterStress(row, ball) = divide(Q * 1.5, (outerMajor * PiValue) * outerMinor);
}

/// Sums over the loads of a row, in 32 bits.
struct RowSums {
    Single cubes, tenThirds;
};

RowSums sumsOfPowers(const SolverState& state, int row, const RoundedPowers& powers) {
    RowSums sums;
    for (int ball = 1; ball <= state.BallCount; ++ball) {
        // Half of the balls and more carry nothing, and nothing adds nothing.
        if (state.BallLoad(row, ball) != 0.0) sums.cubes = powers.cubeOnto(sums.cubes, ball);
    }
    for (int ball = 1; ball <= state.BallCount; ++ball) {
        if (state.BallLoad(row, ball) != 0.0) sums.tenThirds = powers.tenThirdsOnto(sums.tenThirds, ball);
    }
    return sums;
}

/// Lundberg and Palmgren's mean loads of the balls of a row: the cube mean for the ring that turns, for the
/// ring that stands still the mean with exponent 3 e = 10/3, where e = 10/9 is the Weibull slope of point
/// contact.
void meanLoads(SolverState& state, const RoundedPowers& one, const RoundedPowers& two) {
    const double Z = state.BallCount;
    const RowSums first = sumsOfPowers(state, 1, one);
    const RowSums second = sumsOfPowers(state, 2, two);
    state.RmcRow1 = power(divide(first.cubes, Z), kOneThird);
    state.RmcRow2 = power(divide(second.cubes, Z), kOneThird);
    state.MeanRow1 = power(divide(first.tenThirds, Z), 0.3);
    state.MeanRow2 = power(divide(second.tenThirds, Z), 0.3);
    state.RmcRow1Newtons = state.RmcRow1 * kNewtonsPerPound;
    state.RmcRow2Newtons = state.RmcRow2 * kNewtonsPerPound;
}

/// Basic dynamic capacity of a point contact, by Lundberg and Palmgren (Dynamic Capacity of Rolling Bearings,
/// Acta Polytechnica, Mechanical Engineering Series, 1947): fc (2f / (2f - 1))^0.41 (1 -+ g)^1.39 / (1 +-
/// g)^(1/3) (g / cos alpha)^0.3 D^1.8 Z^(-1/3), the upper signs for the inner race, with D^1.4 for balls
/// above an inch. Conformities are per cent here, and the inner one serves both races.
void dynamicCapacities(SolverState& state) {
    const double D = state.BallDiameter;
    const double fi = state.InnerConformityPct;
    state.DynamicExponent = D > 1.0 ? 1.4 : 1.8;
    const double ratio = divide(D, state.PitchDiameter);
    state.GeometryRatio = ratio * std::cos(state.ContactAngle);
    const double g = state.GeometryRatio;
    const double c = power(divide(fi + fi, (fi + fi) - 100.0), 0.41);
    const double gi = divide(power(1.0 - g, 1.39), power(g + 1.0, kOneThird));
    const double go = divide(power(g + 1.0, 1.39), power(1.0 - g, kOneThird));
    const double set = (((state.RatingFactor * c) * power(ratio, 0.3)) * power(D, state.DynamicExponent)) *
                       power(state.BallCount, -1.0 / 3.0);
    state.InnerDynamicCapacity = set * gi;
    state.OuterDynamicCapacity = set * go;
}

/// L10 in revolutions of a row, from the mean loads that its inner and outer race see. Each race lives (Qc /
/// Q)^3 million revolutions; both together, by Weibull with slope 10/9, (Li^(-10/9) + Lo^(-10/9))^(-9/10).
double rowLife(const SolverState& state, double innerMean, double outerMean) {
    const double ratioI = divide(state.InnerDynamicCapacity, innerMean);
    const double ratioO = divide(state.OuterDynamicCapacity, outerMean);
    const double Li = power(ratioI, 3.0);
    const double Lo = power(ratioO, 3.0);
    constexpr double kExponent = -10.0 / 9.0;
    return power(10.0, 6.0) * power(power(Li, kExponent) + power(Lo, kExponent), -0.9);
}

/// The race that turns takes the cube mean, the fixed one the mean with exponent 10/3.
void lives(SolverState& state) {
    const bool secondRow = state.RowCount != 1 && state.RmcRow2 != 0.0;
    state.L10InnerRotationRow1 = rowLife(state, state.RmcRow1, state.MeanRow1);
    if (secondRow) state.L10InnerRotationRow2 = rowLife(state, state.RmcRow2, state.MeanRow2);
    state.L10OuterRotationRow1 = rowLife(state, state.MeanRow1, state.RmcRow1);
    if (secondRow) state.L10OuterRotationRow2 = rowLife(state, state.MeanRow2, state.RmcRow2);
}

/// Ball load at which the Hertz stress reaches the limit: 3 Q / (2 pi a b) with a = factor Q^(1/3) and b = a
/// / kappa, solved for Q.
double staticCapacity(const SolverState& state, double factor, double kappa) {
    return power(divide(((factor * factor) * TwoPiValue) * state.StressLimit, kappa * 3.0), 3.0);
}

void findMaxBall(SolverState& state) {
    double largest = 0.0;
    for (int row = 1; row <= state.RowCount; ++row) {
        for (int ball = 1; ball <= state.BallCount; ++ball) {
            if (state.BallLoad(row, ball) <= largest) continue;
            largest = state.BallLoad(row, ball);
            state.MaxBallRow = row;
            state.MaxBallNumber = ball;
        }
    }
    state.MaxBallLoad = largest;
}

void resultsOfMaxBall(SolverState& state) {
    const int row = state.MaxBallRow;
    const int ball = state.MaxBallNumber;
    state.MaxInnerStress = state.InnerStress(row, ball);
    state.MaxOuterStress = state.OuterStress(row, ball);
    state.MeanInnerStress = state.MaxInnerStress / 1.5;
    state.MeanOuterStress = state.MaxOuterStress / 1.5;
    state.MaxBallLoadNewtons = state.MaxBallLoad * kNewtonsPerPound;
    state.MaxInnerStressMpa = state.MaxInnerStress * kMpaPerPsi;
    state.MaxOuterStressMpa = state.MaxOuterStress * kMpaPerPsi;
    state.MeanInnerStressMpa = state.MaxInnerStressMpa / 1.5;
    state.MeanOuterStressMpa = state.MaxOuterStressMpa / 1.5;
    state.InnerMajorAxis = 2.0 * state.InnerSemiMajor(row, ball);
    state.OuterMajorAxis = 2.0 * state.OuterSemiMajor(row, ball);
    state.InnerMinorAxis = 2.0 * state.InnerSemiMinor(row, ball);
    state.OuterMinorAxis = 2.0 * state.OuterSemiMinor(row, ball);
    state.InnerMajorAxisMm = state.InnerMajorAxis * kMillimetresPerInch;
    state.OuterMajorAxisMm = state.OuterMajorAxis * kMillimetresPerInch;
    state.InnerMinorAxisMm = state.InnerMinorAxis * kMillimetresPerInch;
    state.OuterMinorAxisMm = state.OuterMinorAxis * kMillimetresPerInch;
}

}  // namespace

void LifeAndStress(SolverState& state) {
    state.InnerEllipseFactor =
        ellipseFactor(state.ElasticSum, state.InnerE, state.InnerKappaSq, state.InnerCurvatureSum);
    state.OuterEllipseFactor =
        ellipseFactor(state.ElasticSum, state.OuterE, state.OuterKappaSq, state.OuterCurvatureSum);
    const auto balls = static_cast<std::size_t>(state.BallCount);
    const RoundedPowers one(state.BallLoad.row(1), balls);
    const RoundedPowers two(state.BallLoad.row(2), balls);
    for (int row = 1; row <= state.RowCount; ++row) {
        for (int ball = 1; ball <= state.BallCount; ++ball)
            stressOfBall(state, row, ball, row == 1 ? one : two);
    }
    meanLoads(state, one, two);
    dynamicCapacities(state);
    lives(state);
    // 4200 MPa, the contact stress of the basic static load rating of radial ball bearings in ISO 76.
    state.StressLimit = 609000.0;
    state.InnerStaticCapacity = staticCapacity(state, state.InnerEllipseFactor, state.InnerKappa);
    state.OuterStaticCapacity = staticCapacity(state, state.OuterEllipseFactor, state.OuterKappa);
    state.InnerStaticCapacityNewtons = state.InnerStaticCapacity * kNewtonsPerPound;
    state.OuterStaticCapacityNewtons = state.OuterStaticCapacity * kNewtonsPerPound;
    findMaxBall(state);
    state.SafetyInner = divide(state.InnerStaticCapacity, state.MaxBallLoad);
    state.SafetyOuter = divide(state.OuterStaticCapacity, state.MaxBallLoad);
    resultsOfMaxBall(state);
}

}  // namespace norlaplan
