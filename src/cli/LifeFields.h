#pragma once

#include <string>

#include "capacity/LoadLife.h"
#include "state/ProgramState.h"

namespace norlaplan::cli {

/// Calls `visit(name, value)` for the numbers and texts of a load-life result, in the order of the result;
/// `value` points to it, or nowhere for what is told only with a speed.
template <typename Visit>
void visitLife(const ProgramState& state, Visit visit) {
    const LifeResult& life = state.life;
    const bool speed = state.loads.speed != 0.0;
    const auto withSpeed = [&](const char* name, const auto& value) {
        visit(name, speed ? &value : nullptr);
    };
    const std::string torque = torqueLine(state);
    visit("partNumber", &state.bearing.partNumber);
    visit("meanClearance", &state.bearing.meanClearance);
    visit("contactAngleDegrees", &state.bearing.contactAngleDegrees);
    visit("torqueCoefficient", &life.torqueCoefficient);
    visit("startingTorque", &life.startingTorque);
    visit("l10Revolutions", &life.l10Revolutions);
    withSpeed("l10Hours", life.l10Hours);
    visit("staticSafetyFactor", &life.staticSafetyFactor);
    visit("torqueDisplay", &life.torqueDisplay);
    visit("torqueText", &torque);
    withSpeed("loadPercent", life.loadPercent);
    withSpeed("speedFactor", state.bearing.speedFactor);
    withSpeed("speedLimit", life.speedLimit);
    withSpeed("speedVerdict", life.speedVerdict);
    withSpeed("speedVerdictColor", life.speedVerdictColor);
}

}  // namespace norlaplan::cli
