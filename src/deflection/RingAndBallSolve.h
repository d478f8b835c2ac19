#pragma once

#include "state/Patience.h"

namespace norlaplan {

/// The load x at which rings and balls together give c: x a + b x^(2/3) = c, by Newton's method from x = 1
/// until a step is below 1e-7. The result is the value on which the last step was taken. Errors: 5 where the
/// iteration leaves the positive numbers, 6, 11; `NotConverging`.
double solveRingAndBall(double a, double b, double c, Patience patience);

}  // namespace norlaplan
