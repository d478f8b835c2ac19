#pragma once

#include <string>

#include "numbers/RuntimeError.h"
#include "state/LoadCase.h"

namespace norlaplan {

/// Runs a solve of these loads. The formulas have no root for a negative radial load on a radial bearing, or
/// a negative axial one on any other: the error 5 in which that ends then also says what to enter instead.
template <typename Solve>
auto solveWithAdvice(bool radialContact, const LoadCase& loads, Solve&& solve) {
    const bool wrongSign = radialContact ? loads.radialLoad < 0.0 : loads.axialLoad < 0.0;
    try {
        return solve();
    } catch (const RuntimeError& error) {
        if (error.number() != fault::kInvalidCall || !wrongSign) throw;
        const char* const advice = radialContact ? "Enter the radial load as a positive number."
                                                 : "Enter the axial load as a positive number; the bearing "
                                                   "carries it alike in both directions.";
        throw RuntimeError(error.number(), std::string(error.what()) + "\n" + advice);
    }
}

}  // namespace norlaplan
