#pragma once

#include "loaddist/EllipticIntegrals.h"

namespace norlaplan {

/// The complete elliptic integrals to 1e-13, by the arithmetic-geometric mean (Abramowitz and Stegun, 17.6),
/// for the square `m` of the modulus and its complement `m1` = 1 - m > 0. It serves the passes of a
/// search that keep 32 bits of what they find; what a search ends with is summed panel by panel.
EllipticResult estimateEllipticIntegrals(double m, double m1);

/// Below this complement the panels no longer resolve the integrand, and the estimate says nothing about
/// their sum.
constexpr double kLeastEstimatedComplement = 4e-4;

}  // namespace norlaplan
