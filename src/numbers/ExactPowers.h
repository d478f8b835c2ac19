#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

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

/// Whether the base is between 1e-20 and 1e20. Outside, the library's error grows, and in the end the parts
/// of a product over- or underflow. One comparison: two would be a branch.
inline bool inRange(double base) {
    return (base - 1e-20) * (1e20 - base) > 0.0;
}

/// A power worked out, and the same with its error moved outward: equal when the rounding is beyond doubt,
/// which is when the error is below 0.4808 of the last place.
struct Candidate {
    double result, moved;
};

inline Candidate rounded(const Sum& sum) {
    const double result = sum.high + sum.low;
    const double error = sum.low - (result - sum.high);
    return {result, result + error * 1.04};
}

/// With `root` the square root of the base.
inline Candidate threeHalves(double base, double root) {
    const Sum square = product(root, root);
    const Sum sum = product(base, root);
    // The root lacks rest / (2 root), and base / root is root again but for a rounding, so that no quotient
    // is needed for what the power lacks.
    const double rest = (base - square.high) - square.low;
    return rounded({sum.high, sum.low + (rest * root) / 2.0});
}

inline Candidate cube(double base) {
    const Sum square = product(base, base);
    const Sum sum = product(square.high, base);
    return rounded({sum.high, sum.low + square.low * base});
}

/// Power after power: first all of them side by side, then the library for those in doubt. `candidateOf(i)`
/// gives the candidate of bases[i]. It is inlined, so that it runs as its caller is compiled.
template <typename Power>
[[gnu::always_inline]] inline void fill(const double* bases, double* results, std::size_t count,
                                        double exponent, Power candidateOf) {
    constexpr std::size_t kBlock = 64;
    constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
    std::array<double, kBlock> moved;
    for (std::size_t first = 0; first < count; first += kBlock) {
        const std::size_t size = std::min(kBlock, count - first);
        for (std::size_t i = 0; i < size; ++i) {
            const Candidate candidate = candidateOf(first + i);
            results[first + i] = candidate.result;
            moved[i] = candidate.moved + (inRange(bases[first + i]) ? 0.0 : kNothing);
        }
        for (std::size_t i = 0; i < size; ++i) {
            if (!(results[first + i] == moved[i])) [[unlikely]]
                results[first + i] = power(bases[first + i], exponent);
        }
    }
}

}  // namespace exact

/// base^(3/2). Errors as those of `power`.
inline double powerThreeHalves(double base) {
    const exact::Candidate candidate = exact::threeHalves(base, std::sqrt(base));
    const bool certain = candidate.result == candidate.moved && exact::inRange(base);
    return certain ? candidate.result : power(base, 3.0 / 2.0);
}

/// bases[i]^(3/2) into results[i] for i below `count`, with the square roots of the bases in `roots`; the
/// arrays don't overlap. Errors as those of `power`.
[[gnu::always_inline]] inline void powersThreeHalves(const double* bases, const double* roots,
                                                     double* results, std::size_t count) {
    exact::fill(bases, results, count, 3.0 / 2.0,
                [=](std::size_t i) { return exact::threeHalves(bases[i], roots[i]); });
}

/// bases[i]^3 into results[i] for i below `count`; the arrays don't overlap. Errors as those of `power`.
[[gnu::always_inline]] inline void cubesOf(const double* bases, double* results, std::size_t count) {
    exact::fill(bases, results, count, 3.0, [=](std::size_t i) { return exact::cube(bases[i]); });
}

}  // namespace norlaplan
