#pragma once

#include <string>

namespace norlaplan {

/// The value with at most 15 significant digits, as the program's state keeps a number as text. A calculation
/// that passes through such a text goes on with what reads back from it. An exponent begins with "E".
std::string fifteenDigits(double value);

}  // namespace norlaplan
