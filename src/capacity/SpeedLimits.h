#pragma once

#include <array>
#include <optional>

#include "numbers/Single.h"
#include "state/BearingSpec.h"

namespace norlaplan {

/// The 24 numbers of a speed table's block: limits of speed times bore, in thousands of inch-rpm.
using SpeedBlock = std::array<double, 24>;

/// A bearing's line of its speed table. The thrust block is there for four-point bearings alone.
struct SpeedLine {
    SpeedBlock thrust, other;
};

/// The load-level factor for a load in percent of the rating: 1 up to 20, a line that starts at 0.98 from
/// there to 150, and 0.2 above.
Single loadLevelFactor(double loadPercent);

/// Load in percent of the dynamic rating for a life in revolutions (exponent 3). Error 11 for a life of 0.
double loadPercentOfLife(double l10Revolutions);

/// Whether the bearing's base speeds come from a speed table, so that the caller must look its line up.
bool takesSpeedsFromTable(const BearingSpec& bearing);

/// Base speeds of a decoded bearing into its speed texts. Without a line, where one is needed, they stay as
/// they were. Error 9 for a speed index that addresses beyond the block.
void setBaseSpeeds(BearingSpec& bearing, const std::optional<SpeedLine>& line);

/// The working limits, in whole rpm, from the base speeds and the bearing's load-level factor.
void setWorkingLimits(BearingSpec& bearing);

}  // namespace norlaplan
