#pragma once

#include "state/SolverState.h"

namespace norlaplan {

/// Turns the ball loads of a converged solve into the engineering results: ellipse and Hertz stress of every
/// ball at both races, the rows' mean loads, dynamic capacity and L10 of each row for either race turning
/// (Lundberg and Palmgren), static capacity and safety. Inches, pounds, psi, revolutions. Errors: 11 when no
/// ball carries a load, 5 and 6 as the powers raise them.
void LifeAndStress(SolverState& state);

}  // namespace norlaplan
