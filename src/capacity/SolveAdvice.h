#pragma once

#include <string>

#include "numbers/RuntimeError.h"

namespace norlaplan {

/// Runs a solve. A load of a sign that the style's formulas have no root for ends it with error 5, whose text
/// then also says what to enter instead. `radialContact` tells the two kinds of styles apart.
template <typename Solve>
auto solveWithAdvice(bool radialContact, Solve&& solve) {
    try {
        return solve();
    } catch (const RuntimeError& error) {
        if (error.number() != fault::kInvalidCall) throw;
        const char* const advice = radialContact ? "Enter the radial load as a positive number."
                                                 : "Enter the axial load as a positive number; the bearing "
                                                   "carries it alike in both directions.";
        throw RuntimeError(error.number(), std::string(error.what()) + "\n" + advice);
    }
}

}  // namespace norlaplan
