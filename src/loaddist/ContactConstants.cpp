#include "loaddist/ContactConstants.h"

#include <cmath>

#include "loaddist/RaceEllipse.h"
#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

/// The part of the approach that the integrals make up.
double approachFactor(double K, double kappaSq, double E) {
    return divide(2.0 * K, PiValue) * power(divide(PiValue, (2.0 * kappaSq) * E), kOneThird);
}

/// Load-deflection constant of one race.
double raceConstant(double factor, double elasticSum, double curvatureSum) {
    return divide(power(2.0, 1.5), power(factor, 1.5) * ((elasticSum * 1.5) * squareRoot(curvatureSum)));
}

double raceCompliance(double D, double E, double curvatureSum, double kappa, double K) {
    return power(D, kOneThird) * power(E, -1.0 / 3.0) * power(curvatureSum, kOneThird) *
           power(divide(1.0, kappa), kTwoThirds) * K;
}

}  // namespace

void ContactConstants(SolverState& state) {
    const double D = state.BallDiameter;
    const double dm = state.PitchDiameter;
    const Single a = state.ForceZeroAngle == 1 ? Single(0.0) : state.ContactAngle;
    state.ElasticSum =
        divide(1.0 - state.OuterPoisson * state.OuterPoisson, state.OuterModulusMpsi * 1000000.0) +
        divide(1.0 - state.InnerPoisson * state.InnerPoisson, state.InnerModulusMpsi * 1000000.0);

    const double p1 = divide(2.0, D);
    const double p2 = divide(2.0, D);
    const double p3i = divide(2.0, divide(dm, std::cos(a)) - D);
    const double p4i = divide(-1.0, (state.InnerConformityPct * D) / 100.0);
    const double p3o = divide(-2.0, divide(dm, std::cos(a)) + D);
    const double p4o = divide(-1.0, (state.OuterConformityPct * D) / 100.0);
    state.InnerCurvatureSum = ((p2 + p1) + p3i) + p4i;
    state.OuterCurvatureSum = ((p2 + p1) + p3o) + p4o;

    const RaceEllipse inner = matchRaceEllipse(divide((p3i + p1) * 0.5, (p4i + p2) * 0.5));
    state.InnerK = inner.K;
    state.InnerE = inner.E;
    state.InnerKappaSq = inner.kappaSq;
    const RaceEllipse outer = matchRaceEllipse(divide((p3o + p1) * 0.5, (p4o + p2) * 0.5));
    state.OuterK = outer.K;
    state.OuterE = outer.E;
    state.OuterKappaSq = outer.kappaSq;
    state.InnerKappa = squareRoot(state.InnerKappaSq);
    state.OuterKappa = squareRoot(state.OuterKappaSq);

    const double Ti = approachFactor(state.InnerK, state.InnerKappaSq, state.InnerE);
    const double To = approachFactor(state.OuterK, state.OuterKappaSq, state.OuterE);
    const double Ki = raceConstant(Ti, state.ElasticSum, state.InnerCurvatureSum);
    const double Ko = raceConstant(To, state.ElasticSum, state.OuterCurvatureSum);
    state.Kn =
        power(divide(1.0, power(divide(1.0, Ki), kTwoThirds) + power(divide(1.0, Ko), kTwoThirds)), 1.5);
    state.CiCo = raceCompliance(D, state.InnerE, state.InnerCurvatureSum, state.InnerKappa, state.InnerK) +
                 raceCompliance(D, state.OuterE, state.OuterCurvatureSum, state.OuterKappa, state.OuterK);
}

}  // namespace norlaplan
