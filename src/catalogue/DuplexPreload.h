#pragma once

#include "state/BearingSpec.h"
#include "state/Ports.h"

namespace norlaplan {

/// The preload search of a pair: the contact angle in radians at which ring and ball deflections add up to
/// half the wanted preload, within 1e-5 inch. For light fits the result rests on the path of the search,
/// which is why its steps (10000 pounds and tenths, 0.017452 radian and halves, the window of 1 pound) are
/// part of it. `ciPlusCo`, sections and sizes of the bearing are read; error 6 and 5 as the powers raise
/// them.
double searchDuplexAngle(const BearingSpec& bearing, MessagePort& messages);

}  // namespace norlaplan
