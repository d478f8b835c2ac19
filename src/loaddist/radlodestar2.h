#pragma once

#include <optional>
#include <string>

#include "numbers/Int16.h"
#include "numbers/Single.h"
#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// What a solve is about: inches, pounds, pound-inches and degrees.
struct SolveArguments {
    std::string partNumber;  ///< its seventh character is the style of a coupled solve
    Single pitchDiameter, ballDiameter;
    Int16 ballCount;  ///< of one row
    Single grooveRadius;
    Single spacing;    ///< of the row centre lines of a pair
    Single clearance;  ///< diametral clearance, negative for preload; for a pair its gap
    Single contactAngleDegrees;
    Single radialLoad, axialLoad, momentLoad;
};

/// What a solve gives: the smaller static safety, L10 of row 1 with the outer race turning, and the starting
/// torque in pound-inches.
struct SolveResult {
    Single safetyFactor, lifeRevolutions, torque;
};

/// Spreads a radial load over the balls of one row at contact angle 0, by Newton's method with a fall-back to
/// bisection. Spacing, axial load and moment of the arguments are not used. The torque takes the state's
/// torque coefficient and the bearing's pitch diameter. Errors: 5 for a negative radial load, 11 for no load
/// at all.
SolveResult SolveRadialRow(ProgramState& state, const SolveArguments& arguments, MessagePort& messages);

/// Spreads radial load, axial load and moment over two contact rows (styles "X", "B", "F"), by Newton-Raphson
/// over three displacements. The user is asked at every ten thousandth pass, and as `Patience` asks. Nothing
/// when the user gave up or the configuration is unstable: `SolveAborted` is then set, the user has been
/// told, and in the unstable case the entered loads that were 0 are 1. The texts of the contact angles are
/// left to `writeBallAngles`. Errors: 5 for a negative axial load.
std::optional<SolveResult> SolveCoupledRows(ProgramState& state, const SolveArguments& arguments,
                                            MessagePort& messages);

/// Makes room for the ball tables and clears them; the tables of the semi-axes keep what they hold. Error 9
/// for a negative number of balls.
void ResetAnalysis(SolverState& state);

}  // namespace norlaplan
