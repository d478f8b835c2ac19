#pragma once

#include "deflection/DeflectionModel.h"
#include "state/DeflectionResult.h"
#include "state/Patience.h"

namespace norlaplan {

// Spring rates and relief loads of a preloaded bearing, each into `result`. The preload, in inches, is not
// zero. Errors: 5, 6, 11 as the formulas raise them, as for a preload that the bearing can't have;
// `NotConverging`.

/// Style "X": radial, axial and moment, for a diametral preload.
void solveFourPointRates(const DeflectionModel& model, DeflectionResult& result, const Patience& patience);

/// Style "C": radial, for a diametral preload.
void solveRadialContactRates(const DeflectionModel& model, DeflectionResult& result);

/// Styles "B" and "F": radial, axial and moment, for an axial preload of the set.
void solvePairRates(const DeflectionModel& model, DeflectionResult& result, const Patience& patience);

}  // namespace norlaplan
