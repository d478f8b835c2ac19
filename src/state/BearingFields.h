#pragma once

#include "state/BearingSpec.h"

namespace norlaplan {

/// Calls `visit(name, value)` for every field of the bearing, in the order of the record.
template <typename Visit>
void visitBearing(const BearingSpec& bearing, Visit visit) {
#define NORLAPLAN_FIELD(name) visit(#name, bearing.name)
    NORLAPLAN_FIELD(partNumber);
    NORLAPLAN_FIELD(materialCode);
    NORLAPLAN_FIELD(materialText);
    NORLAPLAN_FIELD(familyCode);
    NORLAPLAN_FIELD(styleLetter);
    NORLAPLAN_FIELD(styleText);
    NORLAPLAN_FIELD(crossSectionCode);
    NORLAPLAN_FIELD(crossSectionText);
    NORLAPLAN_FIELD(fitLetter);
    NORLAPLAN_FIELD(fitLow);
    NORLAPLAN_FIELD(fitHigh);
    NORLAPLAN_FIELD(clearanceKind);
    NORLAPLAN_FIELD(fitRangeText);
    NORLAPLAN_FIELD(precisionCode);
    NORLAPLAN_FIELD(precisionText);
    NORLAPLAN_FIELD(separatorCode);
    NORLAPLAN_FIELD(separatorText);
    NORLAPLAN_FIELD(separatorOverlay);
    NORLAPLAN_FIELD(zSeparatorChoice);
    NORLAPLAN_FIELD(limitedFlag);
    NORLAPLAN_FIELD(availabilityText);
    NORLAPLAN_FIELD(stockCode);
    NORLAPLAN_FIELD(bore);
    NORLAPLAN_FIELD(outsideDiameter);
    NORLAPLAN_FIELD(height);
    NORLAPLAN_FIELD(filletRadius);
    NORLAPLAN_FIELD(referenceDiameter1);
    NORLAPLAN_FIELD(referenceDiameter2);
    NORLAPLAN_FIELD(referenceDiameter3);
    NORLAPLAN_FIELD(mass);
    NORLAPLAN_FIELD(boreTolerance);
    NORLAPLAN_FIELD(odTolerance);
    NORLAPLAN_FIELD(widthTolerance);
    NORLAPLAN_FIELD(innerRadialRunout);
    NORLAPLAN_FIELD(innerAxialRunout);
    NORLAPLAN_FIELD(outerRadialRunout);
    NORLAPLAN_FIELD(outerAxialRunout);
    NORLAPLAN_FIELD(stdClearanceLow);
    NORLAPLAN_FIELD(stdClearanceHigh);
    NORLAPLAN_FIELD(bearingExpansion);
    NORLAPLAN_FIELD(ballDiameter);
    NORLAPLAN_FIELD(raceRadius);
    NORLAPLAN_FIELD(ballCount);
    NORLAPLAN_FIELD(ballsText);
    NORLAPLAN_FIELD(drawingScale);
    NORLAPLAN_FIELD(staticFactor);
    NORLAPLAN_FIELD(innerWidth);
    NORLAPLAN_FIELD(outerWidth);
    NORLAPLAN_FIELD(innerSection);
    NORLAPLAN_FIELD(outerSection);
    NORLAPLAN_FIELD(pitchDiameter);
    NORLAPLAN_FIELD(momentArm);
    NORLAPLAN_FIELD(contactAngle);
    NORLAPLAN_FIELD(ciPlusCo);
    NORLAPLAN_FIELD(dynamicRadial);
    NORLAPLAN_FIELD(dynamicThrust);
    NORLAPLAN_FIELD(dynamicMoment);
    NORLAPLAN_FIELD(staticRadial);
    NORLAPLAN_FIELD(staticThrust);
    NORLAPLAN_FIELD(staticMoment);
    NORLAPLAN_FIELD(fitShaft1);
    NORLAPLAN_FIELD(fitShaft2);
    NORLAPLAN_FIELD(fitShaft3);
    NORLAPLAN_FIELD(fitShaft4);
    NORLAPLAN_FIELD(fitHousing1);
    NORLAPLAN_FIELD(fitHousing2);
    NORLAPLAN_FIELD(fitHousing3);
    NORLAPLAN_FIELD(fitHousing4);
    NORLAPLAN_FIELD(preloadBore);
    NORLAPLAN_FIELD(preloadOd);
    NORLAPLAN_FIELD(meanClearance);
    NORLAPLAN_FIELD(contactAngleDegrees);
    NORLAPLAN_FIELD(speedIndex);
    NORLAPLAN_FIELD(speedColumnBase);
    NORLAPLAN_FIELD(loadPercent);
    NORLAPLAN_FIELD(speedFactor);
    NORLAPLAN_FIELD(thrustSpeedGrease);
    NORLAPLAN_FIELD(thrustSpeedOil);
    NORLAPLAN_FIELD(thrustSpeedMist);
    NORLAPLAN_FIELD(otherSpeedGrease);
    NORLAPLAN_FIELD(otherSpeedOil);
    NORLAPLAN_FIELD(otherSpeedMist);
    NORLAPLAN_FIELD(tableSpeedGrease);
    NORLAPLAN_FIELD(tableSpeedOil);
    NORLAPLAN_FIELD(tableSpeedMist);
    NORLAPLAN_FIELD(limitSpeedGrease);
    NORLAPLAN_FIELD(limitSpeedOil);
    NORLAPLAN_FIELD(limitSpeedMist);
#undef NORLAPLAN_FIELD
}

}  // namespace norlaplan
