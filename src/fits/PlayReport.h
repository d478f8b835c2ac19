#pragma once

#include <string>

#include "documents/Document.h"
#include "fits/PlayGraph.h"
#include "state/Ports.h"

namespace norlaplan {

/// Both graphs of `state.play` as an RTF document of two pages, the axial play with its notes first.
std::string playRtf(const ProgramState& state, ClockPort& clock);

/// One of the two as a printed page.
void printPlay(const ProgramState& state, PlayGraph which, ClockPort& clock, Canvas& canvas);

/// One of the two as a document: its RTF text holds both graphs, the page and the bitmap the one. It reads
/// the state when it is written.
Document playDocument(const ProgramState& state, PlayGraph which, ClockPort& clock);

}  // namespace norlaplan
