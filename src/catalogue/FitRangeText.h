#pragma once

#include <string>

#include "state/BearingSpec.h"
#include "state/UnitMode.h"

namespace norlaplan {

/// The clearance or preload of a bearing in display units: "K= .0002-.0006 Preload" for a fit letter, from
/// `fitLow`, `fitHigh` and `clearanceKind`; "Standard .0008-.0019 Clearance" without one, from the standard
/// clearances. Error 11 for a length factor of 0.
std::string fitRangeTextOf(const BearingSpec& bearing, const UnitMode& units);

}  // namespace norlaplan
