#pragma once

#include <string>

#include "state/ProgramState.h"

namespace norlaplan {

/// Goes over to the other unit system ("US" or "METRIC"): the sizes and loads that stand in the entry fields
/// are converted, sizes in the picture "0.000" and loads in "0", and the rounded values go back into the
/// state, so that what a screen shows is what is calculated with. Empty fields stay empty. Nothing happens
/// when `system` is the current one.
void changeUnits(ProgramState& state, const std::string& system);

}  // namespace norlaplan
