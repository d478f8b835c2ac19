#pragma once

#include "documents/Document.h"
#include "state/BearingSpec.h"
#include "state/DeflectionResult.h"
#include "state/Ports.h"
#include "state/UnitMode.h"

namespace norlaplan {

/// The deflection constants of a bearing and the rows of its axial law on a printed page, in display units.
/// `result` is that of `bearing`. Error 6 as the texts raise it.
void printDeflectionConstants(const DeflectionResult& result, const BearingSpec& bearing,
                              const UnitMode& units, ClockPort& clock, Canvas& canvas);

/// The same as a document, which is printed only.
Document deflectionConstantsDocument(const DeflectionResult& result, const BearingSpec& bearing,
                                     const UnitMode& units, ClockPort& clock);

}  // namespace norlaplan
