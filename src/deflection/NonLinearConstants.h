#pragma once

#include "deflection/DeflectionModel.h"
#include "state/DeflectionResult.h"
#include "state/Patience.h"

namespace norlaplan {

/// Constants of the non-linear law of the style in `result`: radial, and moment, initial tilt and angle where
/// the style has them. Errors: 5, 6, 11 as the formulas raise them.
void solveNonLinearConstants(const DeflectionModel& model, DeflectionResult& result);

/// What both rings give under an axial load in the rows of the axial law, inches per pound. Error 11.
double axialRingSum(const DeflectionModel& model);

/// The rows of the non-linear axial law up to the maximum load of `result`, 55 at most; with a preload one of
/// them is at the whole pounds of the relief load. Errors as those of `AngleSearch`; `NotConverging` for a
/// maximum of zero, whose rows don't come to an end.
void solveAxialPoints(const DeflectionModel& model, DeflectionResult& result, Patience patience);

}  // namespace norlaplan
