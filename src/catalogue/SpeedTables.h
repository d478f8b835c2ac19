#pragma once

#include <optional>
#include <string>

#include "capacity/SpeedLimits.h"
#include "catalogue/CatalogueTable.h"
#include "state/BearingSpec.h"
#include "state/ProgramFolder.h"

namespace norlaplan {

/// The next line of the speed table of a style, and its key: for "X", whose lines have two, the second one.
/// The numbers of "X" are 64-bit, those of the other tables 32-bit.
std::string readSpeedLine(CatalogueTable& table, const std::string& styleLetter, SpeedLine& line);

/// The bearing's line of the speed table of its style, by its separator code; nothing when the table has
/// none. Errors as those of the tables.
std::optional<SpeedLine> findSpeedLine(const ProgramFolder& folder, const BearingSpec& bearing);

}  // namespace norlaplan
