#include "loaddist/EllipticIntegrals.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

constexpr std::size_t kPanels = 1000;
using Panels = std::array<double, kPanels>;

/// The squared sines at the panels' ends: the grid never changes, so they are worked out once.
const Panels& squaredSines() {
    static const Panels kSquares = [] {
        Panels squares{};
        for (std::size_t j = 1; j <= kPanels; ++j) {
            const double sine = std::sin(static_cast<double>(j) * PiValue / 2000.0);
            squares[j - 1] = sine * sine;
        }
        return squares;
    }();
    return kSquares;
}

}  // namespace

EllipticResult EllipticIntegrals(double m) {
    const Panels& squares = squaredSines();
    // Roots and quotients have no order among themselves; only the two sums do.
    std::array<double, kPanels + 1> w;
    std::array<double, kPanels + 1> v;
    w[0] = 1.0;
    v[0] = 1.0;
    for (std::size_t j = 0; j < kPanels; ++j)
        w[j + 1] = std::sqrt(1.0 - m * squares[j]);
    for (std::size_t j = 0; j < kPanels; ++j)
        v[j + 1] = 1.0 / w[j + 1];
    Panels panelK;
    Panels panelE;
    for (std::size_t j = 0; j < kPanels; ++j)
        panelK[j] = (v[j + 1] + v[j]) * PiValue / 4000.0;
    for (std::size_t j = 0; j < kPanels; ++j)
        panelE[j] = (w[j + 1] + w[j]) * PiValue / 4000.0;
    EllipticResult sum;
    for (std::size_t j = 0; j < kPanels; ++j) {
        sum.K = sum.K + panelK[j];
        sum.E = sum.E + panelE[j];
    }
    if (std::isfinite(sum.K) && std::isfinite(sum.E)) return sum;
    for (const double square : squares)
        divide(1.0, squareRoot(1.0 - m * square));
    raise(fault::kOverflow);
}

}  // namespace norlaplan
