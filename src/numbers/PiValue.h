#pragma once

namespace norlaplan {

/// The pi of every calculation. Results are reproduced with this literal, so a more exact one is wrong here.
constexpr double PiValue = 3.14159265359;
/// Two pi, a literal of its own.
constexpr double TwoPiValue = 6.28318530718;
/// The contact angle of every angular contact and four-point bearing: 30 degrees, in radians.
constexpr double ThirtyDegrees = 94.2477796077 / 180.0;

}  // namespace norlaplan
