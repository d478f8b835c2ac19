#pragma once

#include <optional>
#include <string>

#include "state/ProgramState.h"

namespace norlaplan {

/// A chosen row: its part number, and what the screen shows of it. It isn't the bearing in hand before it is
/// decoded.
struct ChosenBearing {
    std::string partNumber;
    std::string caption, boreLine, odLine, heightLine;
    std::string spacerHint;  ///< empty for a style without spacers
};

/// Whether the caption is one of the two styles with spacers.
bool hasSpacers(const std::string& searchStyleCaption);

/// Row `entry` (counted from 1). Its part number is its name, or for a set with spacers, which has no number
/// of its own, that of the set without them. Nothing for entry 0 or one beyond the list.
std::optional<ChosenBearing> chosenHit(const ProgramState& state, int entry);

/// The row (counted from 1) with this name; where there is none, the first with the same bearing in front of
/// it, since a spacer's width in the name follows the sizes and units. 0 when there is neither.
int entryOf(const SearchResults& results, const std::string& name);

}  // namespace norlaplan
