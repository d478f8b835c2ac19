#pragma once

#include "state/DeflectionResult.h"

namespace norlaplan {

/// The curves of the style in `result`, from its rates, relief loads, constants and axial rows. Errors: 5, 6,
/// 11; 9 when the axial table has less than 51 rows, as for a negative maximum.
void computeCurves(DeflectionResult& result);

}  // namespace norlaplan
