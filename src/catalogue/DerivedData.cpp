#include "catalogue/DerivedData.h"

#include <cmath>
#include <optional>
#include <string_view>

#include "capacity/SpeedLimits.h"
#include "capacity/capacitymodule.h"
#include "catalogue/BallCount.h"
#include "catalogue/CatalogueLookup.h"
#include "catalogue/MountedFits.h"
#include "catalogue/PreloadedBearing.h"
#include "catalogue/SpeedTables.h"
#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"
#include "state/Patience.h"

namespace norlaplan {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kPoundsPerKilogram = 2.204622;
/// Where the second half of a speed block starts, for the finer precisions.
constexpr double kFineSpeedColumns = 12.0;

bool isSet(const BearingSpec& bearing) {
    return std::string_view("FBT").find(bearing.styleLetter) != std::string_view::npos;
}

/// The pair's arm is worked out in millimetres, like the sizes it rests on, and becomes inches with them.
void setArmOfPair(BearingSpec& bearing) {
    const double offset = divide(bearing.height, std::tan(PiValue / 6.0));
    if (bearing.styleLetter == "B") bearing.momentArm = bearing.pitchDiameter + offset;
    if (bearing.styleLetter == "F") bearing.momentArm = bearing.pitchDiameter - offset;
}

/// Bore and outside diameter to inches; a coated bearing takes its additions and tolerances from the coating
/// table. A bore that the table doesn't hold leaves both in millimetres, so the table must hold every bore of
/// the catalogue.
void convertDiameters(BearingSpec& bearing, const CatalogueSource& source) {
    if (bearing.materialCode != "N") {
        bearing.bore = bearing.bore / kMillimetresPerInch;
        bearing.outsideDiameter = bearing.outsideDiameter / kMillimetresPerInch;
        return;
    }
    const std::optional<Coating> coating = lookUpCoating(source, bearing);
    if (!coating) return;
    bearing.bore = bearing.bore / kMillimetresPerInch + coating->boreAddition;
    bearing.boreTolerance = coating->boreToleranceBase + coating->boreAddition;
    bearing.outsideDiameter = bearing.outsideDiameter / kMillimetresPerInch + coating->odAddition;
    bearing.odTolerance = coating->odToleranceBase - coating->odAddition;
}

void convertRest(BearingSpec& bearing) {
    for (Single BearingSpec::*const length :
         {&BearingSpec::filletRadius, &BearingSpec::height, &BearingSpec::pitchDiameter,
          &BearingSpec::momentArm, &BearingSpec::referenceDiameter1, &BearingSpec::referenceDiameter2,
          &BearingSpec::referenceDiameter3}) {
        bearing.*length = bearing.*length / kMillimetresPerInch;
    }
    bearing.mass = bearing.mass * kPoundsPerKilogram;
}

void doubleSetValues(BearingSpec& bearing) {
    bearing.widthTolerance = 2.0 * bearing.widthTolerance;
    bearing.height = 2.0 * bearing.height;
    bearing.mass = 2.0 * bearing.mass;
}

void setSpeeds(BearingSpec& bearing, const CatalogueSource& source) {
    const bool fine = bearing.precisionCode == "6" || bearing.precisionCode == "2";
    bearing.speedColumnBase = fine ? kFineSpeedColumns : 0.0;
    bearing.speedFactor = 1.0;
    std::optional<SpeedLine> line;
    if (takesSpeedsFromTable(bearing)) line = findSpeedLine(source, bearing);
    setBaseSpeeds(bearing, line);
}

void applyFitLetter(BearingSpec& bearing, MessagePort& messages) {
    const char letter = bearing.fitLetter[0];
    if ((letter >= 'A' && letter <= 'J') || letter == 'Z') setClearanceFits(bearing);
    if (letter >= 'K' && letter <= 'Y') solvePreload(bearing, messages);
}

}  // namespace

void deriveBearingData(ProgramState& state, const CatalogueSource& source, MessagePort& messages) {
    BearingSpec& bearing = state.bearing;
    bearing.pitchDiameter = (bearing.bore + bearing.outsideDiameter) / 2.0;
    setArmOfPair(bearing);
    convertDiameters(bearing, source);
    convertRest(bearing);
    setStandardFits(bearing);
    if (isSet(bearing)) bearing.drawingScale = Int(bearing.drawingScale * 100.0 / 2.0 + 0.5) / 100.0;
    setBallCount(bearing);
    setBallsText(bearing, state.units, false);
    Patience patience(messages);
    completeRatings(bearing, patience);
    if (isSet(bearing)) {
        doubleSetValues(bearing);
        setBallsText(bearing, state.units, true);
    }
    setSpeeds(bearing, source);
    applyFitLetter(bearing, messages);
    setWorkingLimits(bearing);
}

}  // namespace norlaplan
