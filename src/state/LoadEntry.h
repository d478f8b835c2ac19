#pragma once

#include <optional>

#include "state/FieldMessage.h"

namespace norlaplan {

/// Whether the path in hand is about a radial contact bearing, which carries neither axial load nor moment:
/// the bearing's style on the known path, the chosen style in a search.
bool isRadialContact(const ProgramState& state);

/// Prepares the load screen's values for the bearing or style in hand: no speed for a bearing without
/// separator (eighth character "F"), no axial load and no moment for a radial contact bearing. Loads of which
/// nothing is left then don't count as entered.
void prepareLoadEntry(ProgramState& state);

/// Whether the path in hand takes a speed: a search does, a known bearing unless it has no separator.
bool takesSpeed(const ProgramState& state);

/// Reads the load texts into the load case: empty ones become "0", the speed is taken as its absolute value,
/// and a text that is no number leaves its load as it was. The loads then stand in pounds and pound-inches as
/// well. Gives the message for the user, or nothing when the loads are complete: only then they count as
/// entered.
std::optional<FieldMessage> enterLoads(ProgramState& state);

/// Pounds and pound-inches of the loads as displayed in these units.
void convertLoads(LoadCase& loads, const UnitMode& units);
void convertLoads(ProgramState& state);

/// Whether any of the three loads is not 0.
bool hasLoad(const LoadCase& loads);

}  // namespace norlaplan
