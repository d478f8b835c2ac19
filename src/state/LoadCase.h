#pragma once

#include "numbers/Single.h"

namespace norlaplan {

/// One load case: as entered, in display units, and in pounds and pound-inches for the calculations.
/// A speed of 0 means that none was entered.
struct LoadCase {
    Single radialLoadDisplay, axialLoadDisplay, momentLoadDisplay;
    Single speed;  ///< rpm
    Single radialLoad, axialLoad, momentLoad;

    bool operator==(const LoadCase&) const = default;
};

}  // namespace norlaplan
