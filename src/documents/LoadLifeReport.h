#pragma once

#include <string>

#include "documents/Document.h"
#include "state/ProgramFolder.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// The load-life result of the state as an RTF document.
std::string loadLifeRtf(const ProgramState& state, ClockPort& clock);

/// The same as a printed page, with the section of the bearing's data sheet. Error 53 for a missing overlay.
void printLoadLife(const ProgramState& state, const ProgramFolder& folder, ClockPort& clock, Canvas& canvas);

/// Both as a document of that bearing.
Document loadLifeDocument(const ProgramState& state, const ProgramFolder& folder, ClockPort& clock);

}  // namespace norlaplan
