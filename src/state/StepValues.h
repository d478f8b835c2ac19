#pragma once

#include <string>

#include "state/ProgramState.h"

namespace norlaplan {

// What was set at the steps of the two paths, in a few words and in display units, as the main menu shows it
// under them; empty as long as nothing was set.

/// "4-point contact".
std::string styleValue(const ProgramState& state);
/// Bore and outer diameter, then height: "5 to 9 in, 0.2 to 1.2 in high".
std::string sizesValue(const ProgramState& state);
/// The loads that are not 0, and the speed: "1,200 lb radial, 400 rpm".
std::string loadsValue(const ProgramState& state);
/// How many bearings the search found for these steps, and the chosen one: "12 bearings, K15008XP0 chosen".
std::string resultsValue(const ProgramState& state);
/// Style and sizes of the bearing in hand: "4-point contact, 190 x 216 x 13 mm"; empty unless it is decoded.
std::string bearingValue(const ProgramState& state);
/// "US units: in, lb, in-lb".
std::string unitsValue(const ProgramState& state);

}  // namespace norlaplan
