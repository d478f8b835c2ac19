#include "loaddist/Arccos.h"

#include <cmath>

#include "numbers/Arithmetic.h"

namespace norlaplan {

double Arccos(double v) {
    if (v == 0.0) raise(fault::kDivisionByZero);
    return std::atan(squareRoot(power(v, -2.0) - 1.0));
}

}  // namespace norlaplan
