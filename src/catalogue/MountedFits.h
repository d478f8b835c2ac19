#pragma once

#include "state/BearingSpec.h"

namespace norlaplan {

/// Shaft and housing limits of a bearing without a fit letter: two columns, for the two ways of mounting.
void setStandardFits(BearingSpec& bearing);
/// Those of a clearance or special fit: one column, both seats loose.
void setClearanceFits(BearingSpec& bearing);
/// Those of a preloaded bearing, around its mounted bore and outside diameter: one column.
void setPreloadFits(BearingSpec& bearing);

}  // namespace norlaplan
