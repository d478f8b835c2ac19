#include "loaddist/RoundedPowers.h"

#include <array>
#include <bit>
#include <cstdint>

#include "numbers/Arithmetic.h"

namespace norlaplan {
namespace {

constexpr double kTenThirds = 10.0 / 3.0;

/// The estimates err by 5e-15 at most: a root by 7e-16 of its last step's rounding, its powers by a few
/// roundings more, and all of them by what the 64-bit exponents lack of 1/3 and 10/3, 1.5e-16 times a
/// logarithm below 21.
constexpr double kMargin = 2e-14;

/// Halley's step triples the digits: an error of e becomes 2/3 e^3.
constexpr int kSteps = 3;

/// The loads of which the logarithm stays that small.
bool isEstimated(double load) {
    return load > 1e-6 && load < 1e9;
}

/// What `value` of the estimate, a little less and a little more, gives alike; else that of the exact power.
template <typename Value, typename Exact>
Single settled(double estimate, Value value, Exact exact) {
    const Single least = value(estimate * (1.0 - kMargin));
    const Single most = value(estimate * (1.0 + kMargin));
    return least == most ? least : Single(value(exact()));
}

/// A cube root to a twentieth: a third of the exponent (the constant is that of the C library of FreeBSD,
/// s_cbrt.c).
double roughRoot(double x) {
    constexpr std::uint64_t kThirdOfBias = 0x2A9F789300000000U;
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(x) / 3 + kThirdOfBias);
}

}  // namespace

RoundedPowers::RoundedPowers(const double* loads, std::size_t balls) : loads_(loads), roots_(balls + 1) {
    // Half of the balls and more carry nothing; the others are taken together, a block at a time.
    constexpr std::size_t kBlock = 64;
    std::array<double, kBlock> x;
    std::array<double, kBlock> y;
    std::array<std::size_t, kBlock> place;
    for (std::size_t next = 1; next <= balls;) {
        std::size_t count = 0;
        for (; next <= balls && count < kBlock; ++next) {
            if (!isEstimated(loads[next])) continue;
            x[count] = loads[next];
            y[count] = roughRoot(loads[next]);
            place[count++] = next;
        }
        for (int step = 0; step < kSteps; ++step) {
            for (std::size_t i = 0; i < count; ++i) {
                const double cube = y[i] * y[i] * y[i];
                y[i] = y[i] * ((cube + (x[i] + x[i])) / ((cube + cube) + x[i]));
            }
        }
        for (std::size_t i = 0; i < count; ++i)
            roots_[place[i]] = y[i];
    }
}

Single RoundedPowers::rootTimes(int ball, double factor) const {
    const double Q = loads_[ball];
    const auto exact = [Q] { return power(Q, kOneThird); };
    if (!isEstimated(Q)) return exact() * factor;
    return settled(
        roots_[static_cast<std::size_t>(ball)], [factor](double root) { return root * factor; }, exact);
}

Single RoundedPowers::cubeOnto(double sum, int ball) const {
    const double Q = loads_[ball];
    const auto exact = [Q] { return power(Q, 3.0); };
    if (!isEstimated(Q)) return sum + exact();
    return settled(
        Q * Q * Q, [sum](double cube) { return sum + cube; }, exact);
}

Single RoundedPowers::tenThirdsOnto(double sum, int ball) const {
    const double Q = loads_[ball];
    const auto exact = [Q] { return power(Q, kTenThirds); };
    if (!isEstimated(Q)) return sum + exact();
    return settled(
        Q * Q * Q * roots_[static_cast<std::size_t>(ball)], [sum](double term) { return sum + term; }, exact);
}

}  // namespace norlaplan
