#pragma once

#include <string>

#include "state/ApplicationFields.h"

namespace norlaplan::testing {

/// A form in which every text field holds the name of its control and of each group the last option is
/// chosen, with a bearing, loads and a style beside it.
inline ProgramState filledApplication() {
    ProgramState state;
    state.unitSystem = "US";
    state.bearing.partNumber = "K19013XP0";
    state.loads.radialLoad = 1200.0;
    state.loads.axialLoad = -0.5;
    state.loads.momentLoad = 0.0;
    state.style.searchStyleCaption = "4-POINT CONTACT";
    for (const ApplicationField& field : applicationFields()) {
        if (field.isText()) valueOf(field, state.application.data, state.user) = field.control;
    }
    for (const ApplicationGroup& group : applicationGroups())
        state.application.data.*group.value = group.options.back().value;
    state.application.data.shock = kYes;
    return state;
}

}  // namespace norlaplan::testing
