#pragma once

#include <string>

#include "state/Canvas.h"
#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// The results of the last thermal fit calculation as an RTF document.
std::string thermalFitsRtf(const ProgramState& state, ClockPort& clock);

/// The same as a printed page.
void printThermalFits(const ProgramState& state, ClockPort& clock, Canvas& canvas);

}  // namespace norlaplan
