#pragma once

#include "state/SolverState.h"

namespace norlaplan {

/// Hertz constants of a ball between both races (point contact of an ellipsoid with an ellipsoid, after
/// Hertz): the ellipse's ratio and integrals at each race, the curvature sums (1/in), the elastic sum
/// (in^2/lb), and `Kn` (lb/in^1.5) with which a ball carries Q = Kn * deflection^1.5. Reads the solver's
/// inputs; the contact angle counts as 0 while `ForceZeroAngle` is 1. Errors: 11
/// and 6 for a geometry that has no ellipse.
void ContactConstants(SolverState& state);

}  // namespace norlaplan
