#pragma once

#include "catalogue/TableFaults.h"
#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// Works out everything that the program knows about a bearing beyond its catalogue rows, in the order in
/// which the values rest on each other: pitch diameter, arm, inches, fits, ball count, ratings, set values,
/// speeds, preload. Sizes come in as millimetres and leave as inches. Errors: those of tables and arithmetic.
void deriveBearingData(ProgramState& state, const CatalogueSource& source, MessagePort& messages);

}  // namespace norlaplan
