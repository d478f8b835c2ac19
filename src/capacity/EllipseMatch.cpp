#include "capacity/EllipseMatch.h"

#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

#include "loaddist/EllipticEstimate.h"
#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

constexpr double kMatchTolerance = 1e-05;
constexpr double kStartAngle = 0.001;
constexpr double kIntegrationStep = PiValue / 2000.0;

/// Sines at the ends of the panels. The counter is a repeated addition whose rounding leaves the last panel
/// before a quarter turn out; the end of a panel is the start of the next one to the bit, so each is needed
/// once.
const std::vector<double>& panelSines() {
    static const std::vector<double> kSines = [] {
        std::vector<double> sines;
        const double h = kIntegrationStep;
        const double limit = PiValue / 2.0 - h;
        double x = 0.0;
        sines.push_back(std::sin(x));
        while (x <= limit) {
            x = x + h;
            sines.push_back(std::sin(x));
        }
        return sines;
    }();
    return kSines;
}

/// The two integrals at the auxiliary angle, panel by panel.
void integrate(EllipseMatch& match, std::vector<double>& q, std::vector<double>& inverse) {
    const std::vector<double>& sines = panelSines();
    const double h = kIntegrationStep;
    const double sineB = std::sin(match.b);
    const double modulus = sineB * sineB;
    const std::size_t points = sines.size();
    for (std::size_t i = 0; i < points; ++i) {
        q[i] = std::sqrt(1.0 - modulus * sines[i] * sines[i]);
        inverse[i] = 1.0 / q[i];
    }
    std::vector<double> panelK(points - 1);
    std::vector<double> panelE(points - 1);
    for (std::size_t i = 0; i + 1 < points; ++i)
        panelK[i] = h * (inverse[i] + inverse[i + 1]) / 2.0;
    for (std::size_t i = 0; i + 1 < points; ++i)
        panelE[i] = h * (q[i] + q[i + 1]) / 2.0;
    double K = 0.0;
    double E = 0.0;
    for (std::size_t i = 0; i + 1 < points; ++i) {
        K = K + panelK[i];
        E = E + panelE[i];
    }
    match.K = checked(K);
    match.E = checked(E);
}

double ratioOf(const EllipseMatch& match) {
    const double cotangent = divide(1.0, std::tan(match.b));
    return 1.0 - divide(2.0 * (cotangent * cotangent) * (match.K - match.E), match.E);
}

/// Below this square of the modulus the difference of the integrals has too few digits left.
constexpr double kLeastEstimatedSquare = 1e-7;

/// The ratio to 1e-8, without the panels: the whole integrals less the panel before a quarter turn that the
/// sums leave out. Nothing where the panels don't resolve the integrand.
std::optional<double> estimatedRatio(double b) {
    const double cosine = std::cos(b);
    const double m1 = cosine * cosine;
    const double sine = std::sin(b);
    if (m1 < kLeastEstimatedComplement || sine * sine < kLeastEstimatedSquare) return std::nullopt;
    const EllipticResult whole = estimateEllipticIntegrals(sine * sine, m1);
    const double edge =
        std::sqrt(1.0 - sine * sine * (std::cos(kIntegrationStep) * std::cos(kIntegrationStep)));
    const double end = std::fabs(cosine);
    EllipseMatch match;
    match.b = b;
    match.K = whole.K - kIntegrationStep * (1.0 / edge + 1.0 / end) / 2.0;
    match.E = whole.E - kIntegrationStep * (edge + end) / 2.0;
    return ratioOf(match);
}

/// What the ratio is at least, near a quarter turn: no integrand is above 1 / |cos b|, and the sum for E is
/// above 0.99.
double leastRatio(double b) {
    const double cosine = std::fabs(std::cos(b));
    const double sine = std::sin(b);
    return 1.0 - 2.0 * cosine * (PiValue / 2.0) / 0.99 / (sine * sine);
}

/// Where a step of the search leads.
enum class Side { Low, High, Met };

Side sideOf(double ratio, double targetRatio) {
    if (ratio < targetRatio) return Side::Low;
    return ratio - targetRatio > kMatchTolerance ? Side::High : Side::Met;
}

/// The side by the estimate where it is certain.
std::optional<Side> settledSide(double b, double targetRatio) {
    constexpr double kMargin = 1e-7;
    const std::optional<double> ratio = estimatedRatio(b);
    if (!ratio)
        return leastRatio(b) - targetRatio > 2.0 * kMatchTolerance ? std::optional(Side::High) : std::nullopt;
    const Side side = sideOf(*ratio, targetRatio);
    const bool certain = side != Side::Met && sideOf(*ratio - kMargin, targetRatio) == side &&
                         sideOf(*ratio + kMargin, targetRatio) == side;
    return certain ? std::optional(side) : std::nullopt;
}

}  // namespace

EllipseMatch matchEllipseTo(double targetRatio, Patience& patience) {
    std::vector<double> q(panelSines().size());
    std::vector<double> inverse(panelSines().size());
    EllipseMatch match;
    match.b = kStartAngle;
    double step = PiValue / 2.0;
    patience.begin();
    for (;;) {
        std::optional<Side> side = settledSide(match.b, targetRatio);
        if (!side) {
            integrate(match, q, inverse);
            side = sideOf(ratioOf(match), targetRatio);
        }
        if (side == Side::Met) return match;
        if (side == Side::Low) {
            match.b = match.b + step;
        } else {
            match.b = match.b - step;
            step = step * 0.5;
            match.b = match.b + step;
        }
        patience.pass({match.b, step});
    }
}

}  // namespace norlaplan
