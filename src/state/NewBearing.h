#pragma once

#include "state/ProgramState.h"

namespace norlaplan {

/// Forgets the bearing, the loads, the search's envelope and its results, with what stands in the entry
/// fields. Options, units and user information stay, and so does the style picked last.
void clearBearingAndLoads(ProgramState& state);

}  // namespace norlaplan
