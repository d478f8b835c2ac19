#pragma once

#include "catalogue/RingStiffness.h"
#include "numbers/Single.h"
#include "state/BearingSpec.h"
#include "state/Patience.h"

namespace norlaplan {

/// Starting torque of a single row under a diametral preload: radial contact (style "C") or four-point
/// contact (style "X"). Rings and balls together give way by the preload; Newton's method finds the ball
/// load.
class RowTorque {
  public:
    /// Errors: 11 for a bearing without widths, sections or balls.
    RowTorque(const BearingSpec& bearing, MessagePort& messages);

    /// Torque in inch-pounds at a preload in inches.
    Single torqueAt(double preload);

  private:
    /// Pounds on a ball: the value on which the last Newton step was taken.
    Single ballLoad(double preload);
    /// How far a ring gives for a pound of ball load, by its mean diameter and the area of its section.
    Single ringGive(double meanDiameter, double area) const;

    RingGeometry geometry_;
    double pitchDiameter_;
    bool radial_;         ///< contacts in the plane of the balls
    double cosine_;       ///< of the contact angle
    double contactGive_;  ///< H of f(Q) = (Ro + Ri) Q + 2 H Q^(2/3) - p
    Single outerGive_, innerGive_;
    Patience patience_;
};

}  // namespace norlaplan
