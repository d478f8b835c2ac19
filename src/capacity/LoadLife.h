#pragma once

#include <string>

#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// What the entered loads do to the current bearing: picks the clearance, runs the solver of the style and
/// fills `state.life` with life, safety, torque and, with a speed, the verdict on it. False when there is no
/// result: a style other than "C", "X", "B" and "F", or a solve that was given up or unstable, of which the
/// user has been told.
///
/// Errors: 5 for loads of a sign that the style doesn't take, with a sentence on what to enter instead; 11
/// for a life of 0 with a speed.
/// The texts of the balls' contact angles take a third of the time; who shows no ball does without.
enum class BallAngles { Written, LeftOut };
bool computeLoadLife(ProgramState& state, MessagePort& messages, BallAngles angles = BallAngles::Written);

/// Whether `state.life` is the result of the bearing and the loads in hand, in the units in force.
bool hasLife(const ProgramState& state);

/// The lines of results as the screen shows them.
std::string lifeLine(const ProgramState& state);
/// Empty with no speed.
std::string hoursLine(const ProgramState& state);
std::string safetyLine(const ProgramState& state);
std::string torqueLine(const ProgramState& state);

}  // namespace norlaplan
