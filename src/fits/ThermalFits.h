#pragma once

#include <optional>

#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// Room temperature, degrees Fahrenheit.
constexpr double kRoomTemperature = 68.0;

/// What the fits are made to hold at both ends of the temperatures, in inches.
struct FitGoal {
    double od = 0.0;         ///< A: outside diameter that the housing takes
    double bore = 0.0;       ///< B: largest bore that the shaft fills
    double clearance = 0.0;  ///< C: least diametral clearance that may be used up
};

/// The goal of the bearing: its sizes with the least clearance for no fit letter and for clearance letters,
/// the mounted sizes with no clearance for preload letters. Nothing for "Z".
std::optional<FitGoal> fitGoal(const BearingSpec& bearing);

/// Puts the fields of the screen and their units to where they begin: room temperature, and the first
/// material for shaft and housing.
void prepareThermalFits(ProgramState& state);

/// Gets the record ready for its screen: the fields begin anew where they aren't in the units of now, and
/// results in other units or of another bearing go. Gives whether the fields have begun anew.
bool refreshThermalFits(ProgramState& state);

/// The shaft and housing sizes at room temperature for the current bearing and the fields of
/// `state.thermalFits`, with the lines that show them. Where the low temperature is above the high one, their
/// fields change places. A field is read as the number at its start. Gives what the user is told where there
/// is no result: an unspecified internal fit.
///
/// Errors: 11 for an expansion that shrinks a size to nothing, 6 for numbers that no field holds; the results
/// then stay those of before.
std::optional<Message> computeThermalFits(ProgramState& state);

}  // namespace norlaplan
