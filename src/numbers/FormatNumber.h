#pragma once

#include <string>
#include <string_view>

namespace norlaplan {

/// A number as text by a picture: `0` a digit always shown, `#` a digit shown when significant, `.` the point
/// (always printed), `,` between digit places groups thousands, and an exponent such as "E+00", whose sign
/// "+" is always and "-" only shown for a negative one.
///
/// The value's 15 significant digits are rounded half away from zero to the places behind the point. A whole
/// part longer than its places is shown in full; a negative value keeps its minus even where it rounds to
/// zero. With an exponent, the mantissa fills the places before the point and is renormalised after the
/// rounding. Error 6 for a value that is not finite.
std::string FormatNumber(double value, std::string_view picture);

}  // namespace norlaplan
