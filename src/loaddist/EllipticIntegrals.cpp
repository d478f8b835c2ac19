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
    // Roots and quotients have no order among themselves; only the two sums do. A block is short enough that
    // the processor works on the next one while the sums of this one run.
    constexpr std::size_t kBlock = 50;
    static_assert(kPanels % kBlock == 0);
    std::array<double, kBlock + 1> w;
    std::array<double, kBlock + 1> v;
    std::array<double, kBlock> panelK;
    std::array<double, kBlock> panelE;
    w[0] = 1.0;
    v[0] = 1.0;
    EllipticResult sum;
    for (std::size_t first = 0; first < kPanels; first += kBlock) {
        for (std::size_t j = 0; j < kBlock; ++j)
            w[j + 1] = std::sqrt(1.0 - m * squares[first + j]);
        for (std::size_t j = 0; j < kBlock; ++j)
            v[j + 1] = 1.0 / w[j + 1];
        for (std::size_t j = 0; j < kBlock; ++j)
            panelK[j] = (v[j + 1] + v[j]) * PiValue / 4000.0;
        for (std::size_t j = 0; j < kBlock; ++j)
            panelE[j] = (w[j + 1] + w[j]) * PiValue / 4000.0;
        for (std::size_t j = 0; j < kBlock; ++j) {
            sum.K = sum.K + panelK[j];
            sum.E = sum.E + panelE[j];
        }
        w[0] = w[kBlock];
        v[0] = v[kBlock];
    }
    if (std::isfinite(sum.K) && std::isfinite(sum.E)) return sum;
    for (const double square : squares)
        divide(1.0, squareRoot(1.0 - m * square));
    raise(fault::kOverflow);
}

}  // namespace norlaplan
