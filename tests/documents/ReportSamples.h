#pragma once

#include <string>

#include "state/ProgramState.h"

namespace norlaplan::testing {

/// A face-to-face pair with its loads and its life.
inline ProgramState sampleLife(double speed) {
    ProgramState state;
    state.user.userName = "Ann";
    state.bearing.partNumber = "K19013FR0A";
    state.bearing.styleLetter = "F";
    state.bearing.separatorOverlay = "RIBBON";
    state.bearing.bore = 7.5;
    state.bearing.outsideDiameter = 8.5;
    state.bearing.height = 1.0;
    state.loads.radialLoadDisplay = 1200.0;
    state.loads.speed = speed;
    state.life.l10Revolutions = 1162182300.0;
    state.life.l10Hours = 48424.25;
    state.life.staticSafetyFactor = 2.5;
    state.life.torqueLabel = "Estimated Starting Torque = ";
    state.life.torqueDisplay = 1.0;
    state.life.speedVerdict = "Verdict.";
    state.life.speedVerdictColor = 2;
    return state;
}

/// A search with its loads, before it has found anything.
inline ProgramState sampleSearch(const std::string& letter = "X",
                                 const std::string& caption = "4-POINT CONTACT") {
    ProgramState state;
    state.user.userName = "Ann";
    state.style = {caption, letter};
    state.criteria = {5.0, 9.0, 0.2, 1.2, 5.0, 9.0, 0.2, 1.2};
    state.loads.radialLoadDisplay = 1234.0;
    state.loads.axialLoadDisplay = 50.0;
    state.loads.momentLoadDisplay = 10.0;
    state.loads.speed = 100.0;
    return state;
}

}  // namespace norlaplan::testing
