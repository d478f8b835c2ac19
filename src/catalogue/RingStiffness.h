#pragma once

#include "numbers/Arithmetic.h"
#include "state/BearingSpec.h"

namespace norlaplan {

/// What the preload formulas take from a bearing, in inches.
struct RingGeometry {
    explicit RingGeometry(const BearingSpec& bearing)
        : Do(bearing.outsideDiameter - bearing.outerSection),
          Di(bearing.bore + bearing.innerSection),
          Z(bearing.ballCount),
          D(bearing.ballDiameter),
          K(bearing.ciPlusCo * Single(7.810637e-6)) {}

    double Do, Di;  ///< mean ring diameters
    double Z, D;
    double K;  ///< contact constant of both races
};

/// x^(2/3) with the root of the square, which a negative x has as well.
inline double cubeRootOfSquare(double x) {
    return power(x * x, kOneThird);
}

}  // namespace norlaplan
