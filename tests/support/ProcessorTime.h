#pragma once

#include <ctime>

namespace norlaplan::testing {

/// Seconds that this process has computed since it began. Unlike those of a clock on the wall they don't grow
/// while other programs have the machine.
inline double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

}  // namespace norlaplan::testing
