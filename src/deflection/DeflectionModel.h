#pragma once

#include "numbers/Arithmetic.h"
#include "state/BearingSpec.h"

namespace norlaplan {

constexpr double kFiveThirds = 5.0 / 3.0;

/// Race conformity of the deflection model in percent, whatever the grooves of the bearing are.
constexpr int kConformityPercent = 53;
/// Distance of the groove centers of both races over the ball diameter.
constexpr double kCurvatureFactor = 2 * kConformityPercent / 100.0 - 1.0;
/// With `ciPlusCo` the Hertz approach of one ball. These four are 32-bit numbers.
constexpr double kHertzConstant = 7.810637e-06F;
/// A literal of its own, which isn't the double of the other.
constexpr double kHertzConstantTwice = 1.5621274e-05F;
/// Young's modulus of the rings, psi.
constexpr double kYoungModulus = 2.9e7F;
constexpr double kTwiceYoungModulus = 5.8e7F;
/// The share of the most loaded ball (R. Stribeck, Ball bearings for various loads, 1907).
constexpr double kLoadShareFactor = 4.37F;

/// What the deflection formulas take from a bearing, under the formulas' letters; inches, pounds, radians.
struct DeflectionModel {
    explicit DeflectionModel(const BearingSpec& bearing);

    double pd, D, Z, alpha, C;
    double innerSection, outerSection, innerWidth, outerWidth;
    double momentArm;
    double Di, Do;  ///< mean diameters of the rings
    double Si, So;  ///< areas of the rings' sections
    double B;       ///< D^(1/3) Z^(2/3)

    /// m in: ball load = m D^2 (approach / (A D))^(3/2), pounds per square inch. Errors as those of `power`.
    double loadMultiplier() const { return power(divide(kCurvatureFactor, C * kHertzConstant), 1.5); }
};

}  // namespace norlaplan
