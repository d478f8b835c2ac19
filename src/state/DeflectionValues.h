#pragma once

#include "state/DeflectionResult.h"

namespace norlaplan {

/// Calls `visit(name, value)` for the values that a style may lack, in the order of the result; `value` is an
/// optional.
template <typename Visit>
void visitDeflection(const DeflectionResult& result, Visit visit) {
#define NORLAPLAN_FIELD(name) visit(#name, result.name)
    NORLAPLAN_FIELD(radialSpringRate);
    NORLAPLAN_FIELD(radialReliefLoad);
    NORLAPLAN_FIELD(axialSpringRate);
    NORLAPLAN_FIELD(axialReliefLoad);
    NORLAPLAN_FIELD(momentSpringRate);
    NORLAPLAN_FIELD(momentReliefLoad);
    NORLAPLAN_FIELD(radialConstant);
    NORLAPLAN_FIELD(momentConstant1);
    NORLAPLAN_FIELD(momentConstant2);
    NORLAPLAN_FIELD(initialTilt);
#undef NORLAPLAN_FIELD
}

}  // namespace norlaplan
