#include "loaddist/EllipticEstimate.h"

#include <cmath>

#include "numbers/PiValue.h"

namespace norlaplan {

EllipticResult estimateEllipticIntegrals(double m, double m1) {
    double a = 1.0;
    double b = std::sqrt(m1);
    double sum = m;  // of 2^n c_n^2
    double weight = 1.0;
    // Each round doubles the digits: six rounds are enough from any complement that is estimated.
    for (int round = 0; round < 6; ++round) {
        const double c = (a - b) / 2.0;
        const double mean = (a + b) / 2.0;
        b = std::sqrt(a * b);
        a = mean;
        weight *= 2.0;
        sum += weight * (c * c);
    }
    EllipticResult result;
    result.K = PiValue / (2.0 * a);
    result.E = result.K * (1.0 - sum / 2.0);
    return result;
}

}  // namespace norlaplan
