#pragma once

#include <string>

#include "documents/Document.h"
#include "state/Canvas.h"
#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// The torque graph of `state.torque` with its notes as an RTF document.
std::string torqueRtf(const ProgramState& state, ClockPort& clock);

/// The same as a printed page.
void printTorque(const ProgramState& state, ClockPort& clock, Canvas& canvas);

/// Both as a document, which a bitmap shows as the screen's picture. It reads the state when it is written.
Document torqueDocument(const ProgramState& state, ClockPort& clock);

}  // namespace norlaplan
