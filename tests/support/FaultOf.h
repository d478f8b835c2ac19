#pragma once

#include "numbers/RuntimeError.h"

namespace norlaplan::testing {

/// The number of the run-time error that the action ends with; 0 when it ends with none.
int faultOf(auto&& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

}  // namespace norlaplan::testing
