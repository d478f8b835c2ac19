#pragma once

#include "state/BearingSpec.h"
#include "state/DeflectionResult.h"
#include "state/Patience.h"
#include "state/UnitMode.h"

namespace norlaplan {

/// Spring rates, relief loads, non-linear constants and curves of a decoded bearing of style "X", "C", "B" or
/// "F". Errors: the run-time errors of the formulas (5, 6, 11; 9 for an axial maximum that gives no 51 rows),
/// for instance for a preload that no such bearing can have; `NotConverging`.
DeflectionResult computeDeflection(const BearingSpec& bearing, const DeflectionInput& input,
                                   const Patience& patience);

/// What the input screen holds, in display units.
struct DeflectionEntry {
    double preload = 0.0;
    double maxRadialLoad = 0.0, maxAxialLoad = 0.0, maxMomentLoad = 0.0;
};

/// A fifth of the dynamic ratings as whole display units, with no preload.
DeflectionEntry proposedDeflectionEntry(const BearingSpec& bearing, const UnitMode& units);

/// The entry in inches, pounds and pound-inches.
DeflectionInput deflectionInput(const DeflectionEntry& entry, const UnitMode& units);

}  // namespace norlaplan
