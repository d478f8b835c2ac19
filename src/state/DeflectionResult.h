#pragma once

#include <optional>
#include <string>
#include <vector>

#include "numbers/Single.h"

namespace norlaplan {

enum class DeflectionLoad { Radial, Axial, Moment };

/// What stands in the fields of the deflection screen, in display units. It was proposed for this bearing in
/// these units.
struct DeflectionFields {
    std::string preload, maxRadialLoad, maxAxialLoad, maxMomentLoad;
    std::string partNumber, unitSystem, zSeparatorChoice;
};

/// What the deflection calculation is asked for.
struct DeflectionInput {
    double preload = 0.0;                            ///< inches: axial for a pair, diametral otherwise
    double maxRadialLoad = 0.0, maxAxialLoad = 0.0;  ///< pounds; ends of the curves
    double maxMomentLoad = 0.0;                      ///< pound-inches; end of the curve
};

/// A row of the non-linear axial law.
struct AxialPoint {
    double load = 0.0;          ///< pounds
    double contactAngle = 0.0;  ///< radians
    double deflection = 0.0;    ///< inches
    bool relief = false;        ///< the row at the whole pounds of the relief load
};

/// A point of a deflection curve: pounds and inches, of the moment curve pound-inches and radians.
struct CurvePoint {
    double load = 0.0, deflection = 0.0;
};

/// Stiffness of a bearing under preload, and its deflection curves. A value that the style doesn't have is
/// empty; so are the spring rates with no preload, where the relief loads are -1.
struct DeflectionResult {
    std::string partNumber, zSeparatorChoice, styleLetter;  ///< of the bearing that it was worked out for
    DeflectionInput input;

    // The linear region, up to the relief load at which the preload is gone.
    std::optional<double> radialSpringRate, axialSpringRate;  ///< pounds per inch
    std::optional<double> momentSpringRate;                   ///< pound-inches per radian
    std::optional<Single> radialReliefLoad, axialReliefLoad;  ///< pounds
    std::optional<Single> momentReliefLoad;                   ///< pound-inches

    // The non-linear law beyond it.
    std::optional<double> radialConstant;   ///< inches per pound^(2/3)
    std::optional<double> momentConstant1;  ///< radians per (pound-inch)^(2/3)
    std::optional<double> momentConstant2;  ///< radians per pound-inch
    std::optional<double> initialTilt;      ///< radians
    std::optional<double> initialAngle;     ///< degrees
    std::vector<AxialPoint> axialPoints;
    Single curveOffset;  ///< of the curve that was last set off, in the order radial, moment, axial

    std::vector<CurvePoint> radialCurve, axialCurve, momentCurve;  ///< 51 points each, or none
};

}  // namespace norlaplan
