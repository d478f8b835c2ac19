#pragma once

#include <string>

#include "numbers/Int16.h"
#include "numbers/Single.h"
#include "state/BearingSpec.h"
#include "state/Patience.h"

namespace norlaplan {

/// Dynamic ratings of a ball bearing and the sum of its contact constants, from its geometry (inches, pounds,
/// pound-inches, radians). The ball load is rated where the contact stress reaches its limit on the outer
/// race, after Hertz; the integrals stop one panel short of a quarter turn, which every rating carries.
///
/// `mode` is "C", "U" or "A", "B" or "F", or "X"; another one leaves the three ratings as they were and sets
/// `ciPlusCo` alone. `momentArm` serves modes "B" and "F". Errors: the arithmetic's own; `NotConverging` for
/// a groove that the ball doesn't fit, which no ellipse matches.
void ComputeCapacity(const Single& pitchDiameter, const Single& momentArm, const Single& ballDiameter,
                     const Int16& ballCount, const double& contactAngle, const Single& raceRadius,
                     const std::string& mode, Single& dynamicRadial, Single& dynamicThrust,
                     Single& dynamicMoment, Single& ciPlusCo, Patience& patience);

/// All ratings of the bearing by its style letter: sets contact angle, arm (but for "B" and "F", whose arm is
/// given) and ratings. A pair keeps the thrust rating of one row; its moment ratings rest on the single row's
/// radial ones.
void completeRatings(BearingSpec& bearing, Patience& patience);

}  // namespace norlaplan
