#pragma once

#include <string>
#include <vector>

#include "state/DeflectionResult.h"
#include "state/UnitMode.h"

namespace norlaplan {

/// The results as they are shown, in display units: rates per display length, and constants with which the
/// non-linear law holds for loads and deflections in display units. A value that there isn't is empty.
struct DeflectionTexts {
    std::string radialSpringRate, axialSpringRate, momentSpringRate;
    std::string radialReliefLoad, axialReliefLoad, momentReliefLoad;
    std::string radialConstant, momentConstant1, momentConstant2;
    std::string initialTilt, initialAngle;
    std::vector<std::string> axialPoints;  ///< load, contact angle in degrees and deflection
};

/// Errors: 6 and 11 as the conversions raise them.
DeflectionTexts deflectionTexts(const DeflectionResult& result, const UnitMode& units);

}  // namespace norlaplan
