#pragma once

#include <string>

#include "numbers/Single.h"

namespace norlaplan {

/// What the analysis form keeps beside the solver's own state. No calculation reads it.
struct AnalysisNotes {
    std::string partNumber, date;              ///< of the last solve
    std::string ballMaterial, raceMaterial;    ///< names; empty where only the numbers are known
    Single startingFriction, runningFriction;  ///< coefficients
    bool spacingNegative = false;              ///< the sign that an entered centerline spacing takes
};

}  // namespace norlaplan
