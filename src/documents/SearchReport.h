#pragma once

#include <string>

#include "documents/Document.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// Stands under the head of a list that was searched with no speed: its hours are those of no speed at all.
constexpr const char* kNoSpeedNote = "No speed was entered: the hours do not apply.";

/// The results list of the state as an RTF document, 29 rows a page.
std::string searchRtf(const ProgramState& state, ClockPort& clock);

/// The results list as printed pages: 26 rows on the first, 40 on each further one.
void printSearch(const ProgramState& state, ClockPort& clock, Canvas& canvas);

/// Both as a document.
Document searchDocument(const ProgramState& state, ClockPort& clock);

/// How many pages the printed list has.
int searchPages(std::size_t rows);

}  // namespace norlaplan
