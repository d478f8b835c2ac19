#pragma once

#include <string>

#include "state/Canvas.h"
#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// The load-life result of the state as an RTF document.
std::string loadLifeRtf(const ProgramState& state, ClockPort& clock);

/// The same as a printed page.
void printLoadLife(const ProgramState& state, ClockPort& clock, Canvas& canvas);

}  // namespace norlaplan
