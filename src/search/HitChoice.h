#pragma once

#include <optional>
#include <string>

#include "state/ProgramState.h"

namespace norlaplan {

/// What the screen shows of a chosen row.
struct ChosenBearing {
    std::string caption, boreLine, odLine, heightLine;
    std::string spacerHint;  ///< empty for a style without spacers
};

/// Whether the caption is one of the two styles with spacers.
bool hasSpacers(const std::string& searchStyleCaption);

/// Makes row `entry` (counted from 1) the part number in hand: its name, or for a set with spacers, which has
/// no number of its own, that of the set without them. Nothing happens for entry 0 or one beyond the list.
std::optional<ChosenBearing> chooseHit(ProgramState& state, int entry);

}  // namespace norlaplan
