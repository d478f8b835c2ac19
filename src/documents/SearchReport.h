#pragma once

#include <functional>
#include <string>
#include <vector>

#include "documents/Document.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// Stands under the head of a list that was searched with no speed: its hours are those of no speed at all.
constexpr const char* kNoSpeedNote = "No speed was entered: the hours do not apply.";

/// What is to be known before the lives of a list are trusted: a line for each kind of it, with the bearings
/// that it is for as `name` writes them; usually no line.
std::vector<std::string> checkLines(const std::vector<SearchHit>& rows,
                                    const std::function<std::string(const SearchHit&)>& name);

/// The name of a row without the spacers that stand in it.
std::string nameWithoutSpacers(const SearchHit& hit);

/// The results list of the state as an RTF document, 29 rows a page, and the lines of `checkLines`.
std::string searchRtf(const ProgramState& state, ClockPort& clock);

/// The results list as printed pages: 26 rows on the first, 40 on each further one, the lines of
/// `checkLines` under the last.
void printSearch(const ProgramState& state, ClockPort& clock, Canvas& canvas);

/// Both as a document.
Document searchDocument(const ProgramState& state, ClockPort& clock);

/// How many pages the rows of the printed list take.
int searchPages(std::size_t rows);

}  // namespace norlaplan
