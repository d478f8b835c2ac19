#include "state/UnitMode.h"

namespace norlaplan {
namespace {

UnitMode usUnits() {
    UnitMode units;
    units.system = "US";
    units.lengthUnit = "inches";
    units.loadUnitWord = "pounds";
    units.loadUnit = "lbs";
    units.momentUnitWord = "inch-lbs.";
    units.momentUnit = "in-lbs";
    units.tempUnit = "deg. F";
    units.lengthPicture = "###0.0000";
    units.loadPicture = "#,##0";
    units.runoutPicture = "#.00000";
    units.tolerancePicture = ".00000";
    units.filletPicture = ".000";
    units.clearancePicture = ".0000";
    units.crossSectionPicture = "#.000";
    units.forceFactor = 1.0;
    units.lengthFactor = 1.0;
    units.momentFactor = 1.0;
    units.massFactor = 1.0;
    return units;
}

UnitMode metricUnits() {
    UnitMode units;
    units.system = "METRIC";
    units.lengthUnit = "mm";
    units.loadUnitWord = "N";
    units.loadUnit = "N";
    units.momentUnitWord = "N-m";
    units.momentUnit = "N-m";
    units.tempUnit = "deg. C";
    units.lengthPicture = "###0.000";
    units.loadPicture = "#,##0";
    units.runoutPicture = "0.0000";
    units.tolerancePicture = "0.0000";
    units.filletPicture = "0.00";
    units.clearancePicture = "0.000";
    units.crossSectionPicture = "#";
    units.forceFactor = 0.2248089;
    units.lengthFactor = 25.4;
    units.momentFactor = 8.850744;
    units.massFactor = 1.0 / 2.204622;
    return units;
}

}  // namespace

void ApplyUnitSystem(std::string_view system, UnitMode& units) {
    if (system == "US") units = usUnits();
    if (system == "METRIC") units = metricUnits();
}

UnitMode initialUnits() {
    return usUnits();
}

}  // namespace norlaplan
