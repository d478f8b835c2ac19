#pragma once

#include <string>

#include "deflection/DeflectionGraph.h"

namespace norlaplan {

/// The points of a curve for a spreadsheet: the axes' titles, then a line for each point, load and deflection
/// apart by a tab.
std::string deflectionTable(const DeflectionGraphData& data);

}  // namespace norlaplan
