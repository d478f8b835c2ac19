#pragma once

#include <vector>

#include "loaddist/Matrix3.h"
#include "state/SolverState.h"

namespace norlaplan {

/// What one assembly gives beyond the sums in the state.
struct Assembly {
    Matrix3 stiffness{};    ///< derivative of the three sums over (axial, radial, tilt), divided by Kn
    double lastArm1 = 0.0;  ///< moment arm of row 1 at the last ball, inches
};

/// cos((i - 1) * spacing) for the balls i = 1..balls; index 0 stays empty.
std::vector<double> ballCosines(int balls, double spacing);

/// For the present axial and radial displacement and tilt: the contact lines of every ball in two rows, the
/// three force sums and the stiffness. Errors: 11 for an unstable configuration (a contact line without
/// length or axial part), 5 and 6 as the powers raise them.
Assembly AssembleRows(SolverState& state, const std::vector<double>& cosines);

/// Angles, deflections, loads and forces of every ball on the contact lines of the last assembly. A pass
/// needs only the balls that touch, a result all of them. Errors as for the assembly.
void writeBallTables(SolverState& state, const std::vector<double>& cosines);

/// The contact angles of the last assembly as texts, "  N/A " for a ball that is out of touch. They are for
/// showing a result; a search that solves hundreds of rows goes without.
void writeBallAngles(SolverState& state);

}  // namespace norlaplan
