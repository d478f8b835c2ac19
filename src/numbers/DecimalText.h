#pragma once

#include <string>

#include "numbers/Single.h"

namespace norlaplan {

/// The value with at most 15 significant digits, as the program's state keeps a number as text. A calculation
/// that passes through such a text goes on with what reads back from it. An exponent begins with "E".
std::string fifteenDigits(double value);

/// The value as a numeric print writes it into a data file: a blank or a minus for the sign, up to seven
/// significant digits, no zero before the point: " .15625", " 2.9E+07", "-3", " 0".
std::string printedNumber(Single value);

}  // namespace norlaplan
