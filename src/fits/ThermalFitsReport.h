#pragma once

#include <string>

#include "documents/Document.h"
#include "state/Canvas.h"
#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// The results of the last thermal fit calculation as an RTF document.
std::string thermalFitsRtf(const ProgramState& state, ClockPort& clock);

/// The same as a printed page.
void printThermalFits(const ProgramState& state, ClockPort& clock, Canvas& canvas);

/// The result lines, the drawing of the sizes and its legend, as the screen shows them.
constexpr Paper kThermalFitsPicture{8.5, 7.0};
void drawThermalFits(const ProgramState& state, Canvas& canvas);

/// All as a document. It reads the state when it is written.
Document thermalFitsDocument(const ProgramState& state, ClockPort& clock);

}  // namespace norlaplan
