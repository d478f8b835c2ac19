#pragma once

#include <cmath>

#include "numbers/RuntimeError.h"

namespace norlaplan {

/// Exponents are 64-bit quotients, computed once and used everywhere.
constexpr double kOneThird = 1.0 / 3.0;
constexpr double kTwoThirds = 2.0 / 3.0;

/// Gives `value` back when it is a number; otherwise raises overflow (6).
inline double checked(double value) {
    if (!std::isfinite(value)) [[unlikely]]
        raise(fault::kOverflow);
    return value;
}

/// numerator / denominator. Errors: 11 for a zero divisor, also 0/0; 6 when the quotient is not finite.
inline double divide(double numerator, double denominator) {
    if (denominator == 0.0) [[unlikely]]
        raise(fault::kDivisionByZero);
    return checked(numerator / denominator);
}

/// The square root. Error 5 for a negative number.
inline double squareRoot(double value) {
    if (value < 0.0) [[unlikely]]
        raise(fault::kInvalidCall);
    return checked(std::sqrt(value));
}

/// base raised to exponent. Errors: 5 for a negative base that has no real power; 6 when not finite.
inline double power(double base, double exponent) {
    const double result = std::pow(base, exponent);
    if (!std::isfinite(result)) [[unlikely]]
        raise(std::isnan(result) ? fault::kInvalidCall : fault::kOverflow);
    return result;
}

/// The natural logarithm. Error 5 for zero and below.
inline double naturalLog(double value) {
    if (value <= 0.0) [[unlikely]]
        raise(fault::kInvalidCall);
    return checked(std::log(value));
}

/// The greatest whole number that is not above `value`: Int(-1.5) is -2.
inline double Int(double value) {
    return std::floor(checked(value));
}

}  // namespace norlaplan
