#pragma once

#include "state/SolverState.h"
#include "support/PlainContact.h"

namespace norlaplan::testing {

/// What the contact constants are worked out from: steel rings and balls of this bearing, both grooves alike.
inline SolverState inputsOf(const plain::Bearing& bearing, double angle) {
    SolverState state;
    state.BallDiameter = static_cast<double>(bearing.ballDiameter);
    state.PitchDiameter = static_cast<double>(bearing.pitchDiameter);
    state.InnerConformityPct = 100.0 * static_cast<double>(bearing.grooveRadius) / state.BallDiameter;
    state.OuterConformityPct = state.InnerConformityPct;
    state.InnerModulusMpsi = 29.0;
    state.OuterModulusMpsi = 29.0;
    state.InnerPoisson = 0.25;
    state.OuterPoisson = 0.25;
    state.ContactAngle = angle;
    return state;
}

}  // namespace norlaplan::testing
