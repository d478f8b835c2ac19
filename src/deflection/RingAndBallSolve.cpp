#include "deflection/RingAndBallSolve.h"

#include <cmath>

#include "numbers/Arithmetic.h"

namespace norlaplan {
namespace {

constexpr double kNewtonTolerance = 1e-07;

}  // namespace

double solveRingAndBall(double a, double b, double c, Patience patience) {
    patience.begin();
    double x = 1.0;
    for (;;) {
        const double f = x * a + b * power(x, kTwoThirds) - c;
        const double slope = a + (2.0 * b / 3.0) * power(x, -1.0 / 3.0);
        const double next = x - divide(f, slope);
        if (std::fabs(x - next) < kNewtonTolerance) return x;
        x = next;
        patience.pass({x});
    }
}

}  // namespace norlaplan
