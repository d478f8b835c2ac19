#include "catalogue/FitRangeText.h"

#include "catalogue/PartNumberRules.h"
#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"

namespace norlaplan {

std::string fitRangeTextOf(const BearingSpec& bearing, const UnitMode& units) {
    const auto shown = [&](double length) { return FormatNumber(length, units.clearancePicture); };
    if (bearing.fitLetter == kNoFit) {
        return "Standard " + shown(units.lengthFactor * bearing.stdClearanceLow) + "-" +
               shown(units.lengthFactor * bearing.stdClearanceHigh) + " Clearance";
    }
    // These limits are divided by the length factor where every other length is multiplied by it.
    const std::string range = bearing.fitLetter + "= " + shown(divide(bearing.fitLow, units.lengthFactor)) +
                              "-" + shown(divide(bearing.fitHigh, units.lengthFactor)) + " " +
                              bearing.clearanceKind;
    return needsFit(bearing.styleLetter) ? range + " (AXIAL)" : range;
}

}  // namespace norlaplan
