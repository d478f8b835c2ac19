#pragma once

#include "state/BearingSpec.h"
#include "state/FitsRecords.h"
#include "state/Ports.h"

namespace norlaplan {

/// Fills `curve`: the unmounted starting torque of the bearing at 50 preloads, 0.0001 to 0.005 inch. Styles
/// "X" and "C" are one row whose rings and balls take up the preload; "F" and "B" are pairs, whose contact
/// angle rises with it. Another style leaves the curve as it was, and so does an error.
///
/// Errors: 11, 5 and 6 for a bearing without sections or sizes; `NotConverging` for one that no ball load or
/// angle fits. `messages` gets the question whether to go on with a very long search.
void computeTorqueCurve(const BearingSpec& bearing, TorqueCurve& curve, MessagePort& messages);

}  // namespace norlaplan
