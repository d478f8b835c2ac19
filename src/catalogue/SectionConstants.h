#pragma once

#include "state/BearingSpec.h"
#include "state/UnitMode.h"

namespace norlaplan {

/// What the cross-section alone decides: ball and groove, ring widths and sections (inches), drawing scale
/// and the section's text in display units.
void setSectionConstants(BearingSpec& bearing, const UnitMode& units);

}  // namespace norlaplan
