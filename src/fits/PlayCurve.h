#pragma once

#include "state/BearingSpec.h"
#include "state/FitsRecords.h"
#include "state/UnitMode.h"

namespace norlaplan {

/// Fills `curve`: how far the rings move along the axis and tilt against each other, for diametral clearances
/// in steps of 0.0001 inch to 0.006, or to 0.012 when the bearing's own range reaches 0.006. With A = 2 r - d
/// and the free angle a0, a clearance P opens the contact to b = arccos(cos a0 - P / 2A); the play is
/// 2 A (sin b - sin a0). An error leaves the curve as it was.
///
/// Errors: 11 where the cosine is exactly 1 or -1 or the races are no wider than the balls, 5 where the
/// cosine lies beyond.
void computePlayCurve(const BearingSpec& bearing, const UnitMode& units, PlayCurve& curve);

}  // namespace norlaplan
