#pragma once

#include "state/ProgramState.h"

namespace norlaplan {

/// What a search would be asked now.
inline SearchQuestion searchQuestion(const ProgramState& state) {
    return {state.style.searchStyleCaption, state.units.system, state.criteria, state.loads};
}

}  // namespace norlaplan
