#include "deflection/DeflectionModel.h"

namespace norlaplan {

DeflectionModel::DeflectionModel(const BearingSpec& bearing)
    : pd(bearing.pitchDiameter),
      D(bearing.ballDiameter),
      Z(bearing.ballCount),
      alpha(bearing.contactAngle),
      C(bearing.ciPlusCo),
      innerSection(bearing.innerSection),
      outerSection(bearing.outerSection),
      innerWidth(bearing.innerWidth),
      outerWidth(bearing.outerWidth),
      momentArm(bearing.momentArm),
      Di(bearing.bore + bearing.innerSection),
      Do(bearing.outsideDiameter - bearing.outerSection),
      Si(innerWidth * innerSection),
      So(outerWidth * outerSection),
      B(power(D, kOneThird) * power(Z, kTwoThirds)) {}

}  // namespace norlaplan
