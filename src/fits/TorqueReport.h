#pragma once

#include <string>

#include "state/Canvas.h"
#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// The torque graph of `state.torque` with its notes as an RTF document.
std::string torqueRtf(const ProgramState& state, ClockPort& clock);

/// The same as a printed page.
void printTorque(const ProgramState& state, ClockPort& clock, Canvas& canvas);

}  // namespace norlaplan
