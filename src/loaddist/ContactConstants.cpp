#include "loaddist/ContactConstants.h"

#include <cmath>
#include <optional>

#include "loaddist/EllipticEstimate.h"
#include "loaddist/EllipticIntegrals.h"
#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"
#include "state/Patience.h"

namespace norlaplan {
namespace {

/// The contact ellipse of one race.
struct Ellipse {
    Single K, E, kappaSq;
};

/// The curvature ratio that belongs to an ellipse.
double curvatureRatio(double kappaSq, const EllipticResult& integrals) {
    return divide(kappaSq * integrals.E - integrals.K, integrals.K - integrals.E);
}

/// The 32 bits of the curvature ratio, where the estimate of the integrals settles them; nothing where only
/// the panels can tell.
std::optional<Single> settledRatio(double m, double kappaSq) {
    constexpr double kLeastSquare = 0.25;  // below it K - E loses too many digits
    constexpr double kMargin = 1e-9;       // a hundred times what panels and estimate differ by
    const double q = 1.0 - m;
    if (m < kLeastSquare || q < kLeastEstimatedComplement) return std::nullopt;
    const double ratio = curvatureRatio(kappaSq, estimateEllipticIntegrals(m, q));
    const Single least = ratio * (1.0 - kMargin);
    const Single most = ratio * (1.0 + kMargin);
    if (least != most) return std::nullopt;
    return least;
}

/// Bisects the square m of the eccentricity until the ratio of the curvatures is met or the 32-bit m stands
/// still.
Ellipse matchEllipse(double ratio, MessagePort& messages) {
    Single lo = 0.0;
    Single hi = 1.0;
    Single flo = 1.0 - ratio;
    Single previous = 0.0;
    Patience patience(messages);
    patience.begin();
    for (;;) {
        const Single m = (lo + hi) / 2.0;
        const Single q = 1.0 - m;
        const Single kappaSq = divide(1.0, q);
        const auto settled = settledRatio(m, kappaSq);
        Single f = settled ? *settled - ratio : 0.0;
        // The pass that ends the search hands out its integrals, so it sums them.
        if (!settled || f == 0.0 || m == previous) {
            const EllipticResult integrals = EllipticIntegrals(m);
            f = Single(curvatureRatio(kappaSq, integrals)) - ratio;
            if (f == 0.0 || m == previous) return {integrals.K, integrals.E, kappaSq};
        }
        const Single p = flo * f;
        if (p < 0.0) hi = m;
        if (p > 0.0) {
            lo = m;
            flo = f;
        }
        previous = m;
        patience.pass({lo, hi, flo, previous});
    }
}

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

void ContactConstants(SolverState& state, MessagePort& messages) {
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

    const Ellipse inner = matchEllipse(divide((p3i + p1) * 0.5, (p4i + p2) * 0.5), messages);
    state.InnerK = inner.K;
    state.InnerE = inner.E;
    state.InnerKappaSq = inner.kappaSq;
    const Ellipse outer = matchEllipse(divide((p3o + p1) * 0.5, (p4o + p2) * 0.5), messages);
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
