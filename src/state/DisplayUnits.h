#pragma once

#include "state/UnitMode.h"

namespace norlaplan {

/// Whether lengths show in millimetres.
inline bool isMetric(const UnitMode& units) {
    return units.lengthUnit == "mm";
}

}  // namespace norlaplan
