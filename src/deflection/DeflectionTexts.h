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

/// A row of the axial law, column by column.
struct AxialPointTexts {
    std::string load, contactAngle, deflection;
};

/// The rows of the result, of which the first is the unloaded bearing.
std::vector<AxialPointTexts> axialPointTexts(const DeflectionResult& result, const UnitMode& units);

/// The units of those values, as they stand beside them.
struct DeflectionUnits {
    std::string springRate, momentSpringRate;
    std::string radialConstant, momentConstant1, momentConstant2;
};

DeflectionUnits deflectionUnits(const UnitMode& units);

/// Errors: 6 and 11 as the conversions raise them.
DeflectionTexts deflectionTexts(const DeflectionResult& result, const UnitMode& units);

}  // namespace norlaplan
