#pragma once

#include <initializer_list>
#include <string>

#include "state/ProgramState.h"

namespace norlaplan {

/// Texts that the RTF and the printed form of a report share: sizes and loads with their units, in display
/// units.
std::string shownLength(const ProgramState& state, double inches);
std::string shownLoad(const ProgramState& state, double displayLoad);
std::string shownMoment(const ProgramState& state, double displayMoment);

/// Tab stops in twips for the paragraph that stands before its `\\par`. The tabs of a row jump over stops
/// that lie close together, so that what follows lines up however many tabs there are; none: the usual stops.
std::string tabStops(std::initializer_list<int> twips);

/// The report's torque, which below 1 shows with two decimals for every style.
std::string reportTorque(const ProgramState& state);

}  // namespace norlaplan
