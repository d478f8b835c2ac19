#pragma once

#include <string>

#include "state/BearingSpec.h"

namespace norlaplan {

/// The last character of the part number, which is the fit letter of a number of ten: printed pages go by it.
inline std::string lastCharacter(const BearingSpec& bearing) {
    const std::string& number = bearing.partNumber;
    return number.empty() ? "" : number.substr(number.size() - 1);
}

}  // namespace norlaplan
