#pragma once

#include <cmath>

#include "numbers/Arithmetic.h"

namespace norlaplan {

/// Two powers that the solver takes for every ball of every pass, several times as fast as the library's and
/// equal to it in every bit. The power is worked out to twice the digits (T. J. Dekker, A floating-point
/// technique for extending the available precision, 1971); where its rounding is beyond doubt (A. Ziv, Fast
/// evaluation of elementary mathematical functions with correctly rounded last bit, 1991), the library, which
/// errs by at most 0.519 of the last place here, rounds the same way. Where it isn't, the library decides.
namespace exact {

/// A number as a sum of two.
struct Sum {
    double high, low;
};

inline Sum split(double a) {
    constexpr double kHalves = 134217729.0;  // 2^27 + 1
    const double t = kHalves * a;
    const double high = t - (t - a);
    return {high, a - high};
}

/// a * b without an error.
inline Sum product(double a, double b) {
    const double p = a * b;
    const Sum x = split(a);
    const Sum y = split(b);
    return {p, ((x.high * y.high - p) + x.high * y.low + x.low * y.high) + x.low * y.low};
}

/// Outside of this the library's error grows, and in the end the parts of a product over- or underflow.
inline bool inRange(double base) {
    return base > 1e-30 && base < 1e30;
}

/// The sum rounded, when its error is below 0.4808 of the last place; otherwise the library's power.
inline double rounded(const Sum& sum, double base, double exponent) {
    const double result = sum.high + sum.low;
    const double error = sum.low - (result - sum.high);
    if (result + error * 1.04 != result) [[unlikely]]
        return power(base, exponent);
    return result;
}

}  // namespace exact

/// base^(3/2). Errors as those of `power`.
inline double powerThreeHalves(double base) {
    constexpr double kExponent = 3.0 / 2.0;
    if (!exact::inRange(base)) return power(base, kExponent);
    const double root = std::sqrt(base);
    const exact::Sum square = exact::product(root, root);
    const double rootError = ((base - square.high) - square.low) / (root + root);
    const exact::Sum sum = exact::product(base, root);
    return exact::rounded({sum.high, sum.low + base * rootError}, base, kExponent);
}

/// base^3. Errors as those of `power`.
inline double cube(double base) {
    if (!exact::inRange(base)) return power(base, 3.0);
    const exact::Sum square = exact::product(base, base);
    const exact::Sum sum = exact::product(square.high, base);
    return exact::rounded({sum.high, sum.low + square.low * base}, base, 3.0);
}

}  // namespace norlaplan
