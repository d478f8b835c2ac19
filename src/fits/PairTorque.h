#pragma once

#include "catalogue/RingStiffness.h"
#include "numbers/Single.h"
#include "state/BearingSpec.h"
#include "state/Patience.h"

namespace norlaplan {

/// Starting torque of an angular contact pair (styles "F" and "B") under an axial preload: the loaded contact
/// angle by stepping, then the ball load at that angle by Newton's method.
class PairTorque {
  public:
    /// Errors: 11 for a bearing without sections or contact constant.
    PairTorque(const BearingSpec& bearing, MessagePort& messages);

    /// Torque in inch-pounds at a preload in inches. Errors: 5 when the angle runs past a half turn.
    Single torqueAt(double preload);

    /// The loaded contact angle in radians: the first, from 30 degrees on in tenths of a degree and ever
    /// finer steps, at which the ball load is met within a hundredth of a pound.
    double contactAngle(Single halfPreload);

  private:
    /// What is left of the balance at an angle, with the load x that the axial play takes up.
    struct Balance {
        double x = 0.0;
        double g = 0.0;
    };

    /// Section and width of a ring, inches.
    struct Ring {
        double section = 0.0, width = 0.0;
    };

    Balance balance(double angle, double halfPreload, double before) const;
    double ringGive(double meanDiameter, const Ring& ring, double cosine) const;
    /// Pounds on a ball: the value on which the last Newton step was taken.
    Single ballLoad(double angle, double thrust);

    RingGeometry geometry_;
    double pitchDiameter_;
    Ring inner_, outer_;
    double coefficient_;  ///< torque per load and pitch diameter
    double conformity_;   ///< B: how far the race radii exceed the balls', per ball diameter
    double rings_ = 0.0;  ///< how far both rings give
    Single Kn_;
    Patience angle_, load_;
};

}  // namespace norlaplan
