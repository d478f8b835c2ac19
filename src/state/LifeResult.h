#pragma once

#include <string>
#include <vector>

#include "numbers/Int16.h"
#include "numbers/Single.h"
#include "state/LoadCase.h"

namespace norlaplan {

/// What one load case does to the current bearing, as the load-life screen shows, prints and saves it.
struct LifeResult {
    // What it was solved for; no number: there is no result.
    std::string partNumber, zSeparatorChoice, unitSystem;
    LoadCase loads;

    Single torqueCoefficient;   ///< 0.002, 0.004 or 0.006; the solver reads it
    Single startingTorque;      ///< pound-inches
    Single l10Revolutions;      ///< cut to a whole number once shown
    Single l10Hours;            ///< rounded to one decimal
    Single staticSafetyFactor;  ///< rounded to one decimal once shown
    Single torqueDisplay;       ///< starting torque in display units
    std::string torqueLabel;
    Single loadPercent;  ///< load as a percentage of the dynamic rating
    Single speedLimit;   ///< rpm, whole
    std::string speedVerdict;
    Int16 speedVerdictColor;  ///< 2 within the limit, 4 over it
    /// Why not to trust the result blindly, one sentence each; usually empty.
    std::vector<std::string> warnings;
};

}  // namespace norlaplan
