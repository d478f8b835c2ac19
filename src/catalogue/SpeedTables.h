#pragma once

#include <optional>
#include <string>

#include "capacity/SpeedLimits.h"
#include "catalogue/CatalogueTable.h"
#include "state/BearingSpec.h"

namespace norlaplan {

/// The next line of the speed table of a style, and its key: for "X", whose lines have two, the second one.
/// The numbers of "X" are 64-bit, those of the other tables 32-bit.
std::string readSpeedLine(CatalogueTable& table, const std::string& styleLetter, SpeedLine& line);

/// The bearing's line of the speed table of its style, by its separator code; nothing when the table has
/// none. What is no number in that line is noted. Errors as those of the tables.
std::optional<SpeedLine> findSpeedLine(const CatalogueSource& source, const BearingSpec& bearing);

}  // namespace norlaplan
