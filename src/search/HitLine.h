#pragma once

#include <string>

#include "state/ProgramState.h"

namespace norlaplan {

/// One line of the results list: name, life, hours with a speed, and stock. A freshly computed line with a
/// speed also carries `mark`; a rebuilt one is called without.
std::string FormatHitLine(const ProgramState& state, const SearchHit& hit, const std::string& mark = "");

/// The over-speed mark of a row: its limit, as its text reads, below the entered speed.
std::string overSpeedMark(const ProgramState& state, const SearchHit& hit);

}  // namespace norlaplan
