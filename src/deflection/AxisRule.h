#pragma once

#include "state/GraphSettings.h"

namespace norlaplan {

/// An axis for values up to some maximum.
struct AxisScale {
    double power = 0.0;    ///< of ten, a whole number
    double steps = 0.0;    ///< whole steps of that power, from 1 up of the tenth of it, that the axis has
    double axisMax = 0.0;  ///< where the axis ends, beyond the maximum
    double major = 0.0;    ///< spacing of the grid
};

/// The axis of values up to `dataMax`. Logarithms to base 10 are quotients of natural ones, so that exactly
/// 1000 takes the power 2. Errors: 5 for 0 and below; 6.
AxisScale axisRule(double dataMax);

/// Axes by the rule for a curve that ends at these values, unless they are the user's own. Errors as those of
/// `axisRule`.
void applyAxisRule(GraphSettings& settings, double dataMaxX, double dataMaxY);

}  // namespace norlaplan
