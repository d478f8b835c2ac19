#pragma once

#include "state/BearingSpec.h"
#include "state/UnitMode.h"

namespace norlaplan {

/// The balls of one row that the separator leaves room for; the table's count stands for a separator without
/// a rule.
void setBallCount(BearingSpec& bearing);

/// The sheet's ball line for one row, or for a set of two.
void setBallsText(BearingSpec& bearing, const UnitMode& units, bool set);

}  // namespace norlaplan
