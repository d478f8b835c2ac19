#include "capacity/EllipseMatch.h"

#include <cmath>
#include <cstddef>
#include <vector>

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

/// The two integrals at the auxiliary angle.
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
    double K = 0.0;
    double E = 0.0;
    for (std::size_t i = 0; i + 1 < points; ++i) {
        K = K + h * (inverse[i] + inverse[i + 1]) / 2.0;
        E = E + h * (q[i] + q[i + 1]) / 2.0;
    }
    match.K = checked(K);
    match.E = checked(E);
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
        integrate(match, q, inverse);
        const double cotangent = divide(1.0, std::tan(match.b));
        const double ratio = 1.0 - divide(2.0 * (cotangent * cotangent) * (match.K - match.E), match.E);
        if (ratio < targetRatio) {
            match.b = match.b + step;
        } else if (ratio - targetRatio > kMatchTolerance) {
            match.b = match.b - step;
            step = step * 0.5;
            match.b = match.b + step;
        } else {
            return match;
        }
        patience.pass({match.b, step});
    }
}

}  // namespace norlaplan
