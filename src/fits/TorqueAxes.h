#pragma once

#include "state/FitsRecords.h"
#include "state/UnitMode.h"

namespace norlaplan {

/// The scales of the torque graph. x is a preload in inches, y a torque in the display's unit.
struct TorqueAxes {
    double xMax = 0.0, xStep = 0.0;
    double yMax = 0.0, yStep = 0.0;  ///< end of the scale and distance of its grid lines
    int yExp = 0, yMant = 0;         ///< yMax = yMant x 10^yExp
    double sx = 0.0, sy = 0.0;       ///< drawing inches per unit
};

/// The scales that the screen and the printer draw with. The torque's scale ends at the next whole multiple
/// of a power of ten above the last point. Errors: 5 for a curve without torque.
TorqueAxes computeTorqueAxes(const TorqueCurve& curve, const UnitMode& units);

}  // namespace norlaplan
