#include "loaddist/RaceEllipse.h"

#include <cmath>

#include "loaddist/EllipticEstimate.h"
#include "loaddist/EllipticIntegrals.h"
#include "numbers/Arithmetic.h"

// A thousand panels a pass are what this search costs, and next to nothing of them leaves it: of each pass
// the sign of f = r - ratio (or that it is zero), at the end the 32 bits of K and E. So the panels are summed
// only where these bits hang on them.
//
// 1. What panels and mean differ by. The integrands are smooth and periodic over half a turn, so the
// trapezoid
//    rule with n = 2000 panels there errs by the integrand's Fourier coefficient n, below 4 K exp(-2 n a)
//    with cosh(a) = 1 / sqrt(m): for a complement q = 1 - m of 4e-4, a = 0.02 and that is nothing. There
//    remain the rounding of a sum of 1000 terms, at most 1000 * 2^-53 = 1.1e-13 of it, and the stored pi,
//    which moves each place by 7e-14 of itself: with a slope of the integrand that adds up to 1 / sqrt(q),
//    5e-12 at the worst. The mean itself errs by a few 1e-16. K - E and kappa^2 E - K lose a digit of that at
//    m = 0.25, where they are an eighth of their terms. So K and E agree to 6e-12 and r to 1e-11; kMargin is
//    ten times that. What rounds alike at both ends of the margin is the panels' value; what doesn't is left
//    to the panels.
//
// 2. Away from the root no sum is needed. Over t = -ln q the logarithm of the ratio R(m) rises by at least
//    0.75 per unit for 0.25 <= m < 1. A computed r differs from R by at most 1e-6 of it: the 32-bit q and
//    kappa^2 err by 2^-24 each, of which r gets 7.3 times as much at m = 0.25 and less from there on, and r
//    is rounded by 2^-24 itself. An m that is further from the root than kWindow of the root's complement is
//    at least 3.9e-6 in t away, which R answers with 2.9e-6. So f has the sign of m minus the root.
//
// 3. Only signs count. A bisection that knows that f isn't zero goes on by the sign of flo * f. With a ratio
// of
//    1 or more, f is the difference of two 64-bit numbers of which the larger is at least 1: it is 2^-54 or
//    more, and the 32-bit product of two such never becomes zero.
//
// 4. It ends by itself: every pass halves the bracket until the 32-bit m stands still, after 175 passes at
// most.

namespace norlaplan {
namespace {

constexpr double kMargin = 1e-10;
constexpr double kWindow = 4e-6;
/// Below this m the differences of the integrals lose too many digits.
constexpr double kLeastSquare = 0.25;
/// The ratios at m = 0.257 and q = 0.001: a bisection for a ratio in between meets no m below kLeastSquare,
/// and none with a complement below half of that q, which the panels still resolve.
constexpr double kLeastRatio = 1.25;
constexpr double kMostRatio = 250.0;

/// The curvature ratio that belongs to an ellipse.
double curvatureRatio(double kappaSq, const EllipticResult& integrals) {
    return divide(kappaSq * integrals.E - integrals.K, integrals.K - integrals.E);
}

/// The 32 bits of a value that is known up to the margin.
std::optional<Single> settled(double value) {
    const Single least = value * (1.0 - kMargin);
    const Single most = value * (1.0 + kMargin);
    if (least != most) return std::nullopt;
    return least;
}

bool isEstimated(double m) {
    return m >= kLeastSquare && 1.0 - m >= kLeastEstimatedComplement;
}

class Bisection {
  public:
    explicit Bisection(double ratio) : ratio_(ratio), root_(estimateEccentricity(ratio)) {}

    RaceEllipse run() const {
        Single lo = 0.0;
        Single hi = 1.0;
        Single flo = 1.0 - ratio_;
        Single previous = 0.0;
        for (;;) {
            const Single m = (lo + hi) / 2.0;
            const Single q = 1.0 - m;
            const Single kappaSq = divide(1.0, q);
            const Single f = residual(m, kappaSq);
            if (f == 0.0 || m == previous) return ellipse(m, kappaSq);
            const Single p = flo * f;
            if (p < 0.0) hi = m;
            if (p > 0.0) {
                lo = m;
                flo = f;
            }
            previous = m;
        }
    }

  private:
    /// What is left of the ratio at m, or 1 with its sign where that is all that is known.
    Single residual(double m, double kappaSq) const {
        if (root_ && std::fabs(m - *root_) > kWindow * (1.0 - *root_)) return m < *root_ ? -1.0 : 1.0;
        if (const auto r = settledCurvatureRatio(m, kappaSq)) return *r - ratio_;
        return Single(curvatureRatio(kappaSq, EllipticIntegrals(m))) - ratio_;
    }

    static RaceEllipse ellipse(double m, double kappaSq) {
        if (const auto settledOne = settledEllipse(m, kappaSq)) return *settledOne;
        const EllipticResult integrals = EllipticIntegrals(m);
        return {integrals.K, integrals.E, kappaSq};
    }

    double ratio_;
    std::optional<double> root_;
};

}  // namespace

RaceEllipse matchRaceEllipse(double ratio) {
    return Bisection(ratio).run();
}

std::optional<double> estimateEccentricity(double ratio) {
    if (!(ratio >= kLeastRatio && ratio <= kMostRatio)) return std::nullopt;
    // The half axes go with the power 2 / pi of the curvatures' ratio (B. J. Hamrock and D. Brewe, Simplified
    // solution for stresses and deformations, 1983), which is the start of Newton's method on ln R over ln q.
    constexpr double kFourOverPi = 1.2732395447351628;
    double q = std::pow(ratio, -kFourOverPi);
    for (int step = 0; step < 8; ++step) {
        const double m = 1.0 - q;
        const auto [K, E] = estimateEllipticIntegrals(m, q);
        const double slopeK = (E - q * K) / (2.0 * m * q);
        const double slopeE = (E - K) / (2.0 * m);
        const double above = E / q - K;
        const double below = K - E;
        const double slope = q * ((slopeE / q + E / (q * q) - slopeK) / above - (slopeK - slopeE) / below);
        const double change = std::log(above / below / ratio) / slope;
        q *= std::exp(change);
        // The logarithms are nearly straight: a step leaves less than a tenth of its square.
        if (std::fabs(change) < 1e-3) return 1.0 - q;
    }
    return std::nullopt;
}

std::optional<Single> settledCurvatureRatio(double m, double kappaSq) {
    if (!isEstimated(m)) return std::nullopt;
    return settled(curvatureRatio(kappaSq, estimateEllipticIntegrals(m, 1.0 - m)));
}

std::optional<RaceEllipse> settledEllipse(double m, double kappaSq) {
    if (!isEstimated(m)) return std::nullopt;
    const EllipticResult mean = estimateEllipticIntegrals(m, 1.0 - m);
    const auto K = settled(mean.K);
    const auto E = settled(mean.E);
    if (!K || !E) return std::nullopt;
    return RaceEllipse{*K, *E, kappaSq};
}

}  // namespace norlaplan
