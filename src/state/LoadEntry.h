#pragma once

#include <optional>

#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// Whether the path in hand is about a radial contact bearing, which carries neither axial load nor moment:
/// the bearing's style on the known path, the chosen style in a search.
bool isRadialContact(const ProgramState& state);

/// Prepares the load screen's values for the bearing or style in hand: no speed for a bearing without
/// separator (eighth character "F"), no axial load and no moment for a radial contact bearing.
void prepareLoadEntry(ProgramState& state);

/// Whether the bearing in hand takes a speed.
bool takesSpeed(const ProgramState& state);

/// Reads the load texts into the load case: empty ones become "0", the speed is taken as its absolute value,
/// and a text that is no number leaves its load as it was. The loads then stand in pounds and pound-inches as
/// well. Gives the message for the user, or nothing when the loads are complete: only then they count as
/// entered.
std::optional<Message> enterLoads(ProgramState& state);

/// Pounds and pound-inches of the loads as displayed.
void convertLoads(ProgramState& state);

}  // namespace norlaplan
