#pragma once

#include <string>
#include <string_view>

#include "numbers/Single.h"

namespace norlaplan {

/// Labels, number pictures and factors of the display units. Shown length = inches x `lengthFactor`; shown
/// load = pounds / `forceFactor`; shown moment = pound-inches / `momentFactor`; shown mass = pounds x
/// `massFactor`.
struct UnitMode {
    std::string system;  ///< "US" or "METRIC": the units in force
    std::string lengthUnit, loadUnitWord, loadUnit, momentUnitWord, momentUnit, tempUnit;
    std::string lengthPicture, loadPicture, runoutPicture, tolerancePicture, filletPicture, clearancePicture,
        crossSectionPicture;
    Single forceFactor, lengthFactor, momentFactor, massFactor;
};

/// Fills `units` for "US" or "METRIC"; any other text leaves every field as it was.
void ApplyUnitSystem(std::string_view system, UnitMode& units);

/// The units of a new state: US ones, so that a settings file that can't be read never leaves the program
/// with factors of zero.
UnitMode initialUnits();

}  // namespace norlaplan
