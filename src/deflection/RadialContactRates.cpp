#include <cmath>

#include "deflection/SpringRates.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

constexpr double kStep = PiValue / 180.0;

/// The trapezoid rule from 0 to pi in steps of a degree. The last inner point enters at its own weight and
/// once more at that of an end.
template <typename Function>
double integrate(Function g) {
    double sum = g(0.0);
    double last = 0.0;
    // The angle adds up step by step: its last bits are those of the result.
    // NOLINTNEXTLINE(clang-analyzer-security.FloatLoopCounter)
    for (double t = kStep; t <= PiValue; t = t + kStep) {
        last = g(t);
        sum = sum + 2.0 * last;
    }
    return kStep * (sum + last) / 2.0;
}

}  // namespace

void solveRadialContactRates(const DeflectionModel& model, DeflectionResult& result) {
    const double A = kCurvatureFactor;
    const double D = model.D;
    const double clearanceRatio = divide(-result.input.preload, A * D);
    const double halfRatio = clearanceRatio / -2.0;
    const double edge = divide(clearanceRatio, 2.0 * halfRatio);
    const double integral = integrate([&](double t) { return power(std::cos(t) - edge, 1.5) * std::cos(t); });
    const Single relief =
        model.Z * integral * model.loadMultiplier() * D * D * power(halfRatio, 1.5) / PiValue;
    result.radialReliefLoad = relief;
    result.radialSpringRate = divide(relief, halfRatio * A * D);
}

}  // namespace norlaplan
