#pragma once

#include <optional>

#include "capacity/SpeedLimits.h"
#include "state/BearingSpec.h"
#include "state/ProgramFolder.h"

namespace norlaplan {

/// The bearing's line of the speed table of its style, by its separator code; nothing when the table has
/// none. Errors as those of the tables.
std::optional<SpeedLine> findSpeedLine(const ProgramFolder& folder, const BearingSpec& bearing);

}  // namespace norlaplan
