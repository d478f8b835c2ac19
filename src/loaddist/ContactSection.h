#pragma once

#include "loaddist/ContactCheck.h"
#include "state/BearingSpec.h"
#include "state/Canvas.h"

namespace norlaplan {

/// The section of the inner ring at the heaviest loaded ball: inches, x radial, y along the axis from the
/// middle plane of the ball; angles in radians, counter-clockwise.
struct ContactSection {
    double D = 0.0, dm = 0.0, r = 0.0;    ///< ball and pitch diameter, groove radius
    double shoulder = 0.0;                ///< radius of the ring's shoulder
    double k = 0.0;                       ///< corner radius
    double e = 0.0;                       ///< contact angle of the ball
    PagePoint upperGroove, lowerGroove;   ///< centres
    PagePoint upperCorner, lowerCorner;   ///< centres
    double t1 = 0.0, t2 = 0.0, t4 = 0.0;  ///< where grooves and corners meet, where the upper groove ends
    PagePoint edge;                       ///< of the upper groove
    PagePoint p1, p2;                     ///< ends of the contact ellipse on the groove
    double B = 0.0;                       ///< semi-minor axis

    /// The distance from the ellipse's end to the groove's edge.
    double land() const;
    /// Whether the ellipse runs over that edge: the land is the length that overhangs then.
    bool overruns() const;
};

/// The section for the chosen row of the check. Errors: 5 and 11 for a shoulder that the groove's corner
/// can't reach.
ContactSection contactSection(const BearingSpec& bearing, const ContactCheck& check);

}  // namespace norlaplan
