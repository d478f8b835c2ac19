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
    Panels w;
    Panels v;
    for (std::size_t j = 0; j < kPanels; ++j) {
        w[j] = std::sqrt(1.0 - m * squares[j]);
        v[j] = 1.0 / w[j];
    }
    EllipticResult sum;
    double wPrevious = 1.0;
    double vPrevious = 1.0;
    for (std::size_t j = 0; j < kPanels; ++j) {
        sum.K = sum.K + (v[j] + vPrevious) * PiValue / 4000.0;
        sum.E = sum.E + (w[j] + wPrevious) * PiValue / 4000.0;
        vPrevious = v[j];
        wPrevious = w[j];
    }
    if (std::isfinite(sum.K) && std::isfinite(sum.E)) return sum;
    for (const double square : squares)
        divide(1.0, squareRoot(1.0 - m * square));
    raise(fault::kOverflow);
}

}  // namespace norlaplan
