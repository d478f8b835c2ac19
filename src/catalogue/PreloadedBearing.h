#pragma once

#include "state/BearingSpec.h"
#include "state/Ports.h"

namespace norlaplan {

/// The mounted state of a bearing with a preload letter ("K" to "Y"), for its wanted diametral preload
/// `fitHigh`: mounted bore and outside diameter, mean clearance (negative), load level and its speed factor,
/// fits, and for a pair the mounted contact angle. The iterations have no limit of their own and are guarded
/// through `messages`.
void solvePreload(BearingSpec& bearing, MessagePort& messages);

}  // namespace norlaplan
