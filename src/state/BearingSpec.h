#pragma once

#include <string>

#include "numbers/Int16.h"
#include "numbers/Single.h"

namespace norlaplan {

/// The current bearing. `DecodePartNumber` fills it; lengths are inches, loads pounds, moments pound-inches,
/// masses pounds, speeds rpm once a decode has ended. `ProgramState::decoded` tells whether it holds the
/// bearing of its `partNumber`; an empty one means that no bearing is selected.
struct BearingSpec {
    // The number and its codes, each with its text.
    std::string partNumber;
    std::string materialCode, materialText;
    std::string familyCode;  ///< "A", "C" or "X": which tables serve the style
    std::string styleLetter, styleText;
    Single crossSectionCode;  ///< 8, 13 or 20 mm
    std::string crossSectionText;
    std::string fitLetter;  ///< one blank when the number has none
    Single fitLow, fitHigh;
    std::string clearanceKind;  ///< "Clearance" or "Preload"
    std::string fitRangeText;
    std::string precisionCode, precisionText;
    std::string separatorCode, separatorText, separatorOverlay;
    std::string zSeparatorChoice;  ///< second letter of a "Z" separator, as it was decoded with
    std::string limitedFlag;
    std::string availabilityText;
    Int16 stockCode;  ///< 1 stock, 2 limited, 0 ask the maker

    // Sizes and tolerances.
    Single bore, outsideDiameter, height, filletRadius;
    Single referenceDiameter1, referenceDiameter2, referenceDiameter3;
    Single mass;
    Single boreTolerance, odTolerance, widthTolerance;  ///< negative: the plus side is zero
    Single innerRadialRunout, innerAxialRunout, outerRadialRunout, outerAxialRunout;
    Single stdClearanceLow, stdClearanceHigh;
    Single bearingExpansion;  ///< per degree Fahrenheit

    // Section and balls.
    Single ballDiameter, raceRadius;
    Int16 ballCount;  ///< balls of one row
    std::string ballsText;
    Single drawingScale;
    Single staticFactor;
    Single innerWidth, outerWidth, innerSection, outerSection;
    Single pitchDiameter;
    Single momentArm;
    double contactAngle = 0.0;  ///< radians

    // Ratings.
    Single ciPlusCo;
    Single dynamicRadial, dynamicThrust, dynamicMoment;
    Single staticRadial, staticThrust, staticMoment;

    // Mounted fits: limits of shaft and housing, two columns.
    Single fitShaft1, fitShaft2, fitShaft3, fitShaft4;
    Single fitHousing1, fitHousing2, fitHousing3, fitHousing4;
    Single preloadBore, preloadOd;
    Single meanClearance;        ///< clearance handed to the solver, negative under preload
    Single contactAngleDegrees;  ///< mounted contact angle

    // Speeds.
    Int16 speedIndex;  ///< 1 to 4, the column of the speed tables
    Single speedColumnBase;
    Single loadPercent, speedFactor;
    std::string thrustSpeedGrease, thrustSpeedOil, thrustSpeedMist;
    std::string otherSpeedGrease, otherSpeedOil, otherSpeedMist;
    std::string tableSpeedGrease, tableSpeedOil, tableSpeedMist;
    Single limitSpeedGrease, limitSpeedOil, limitSpeedMist;
};

}  // namespace norlaplan
