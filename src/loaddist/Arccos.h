#pragma once

namespace norlaplan {

/// The angle in radians whose cosine is v, as atan(sqrt(v^-2 - 1)): right for 0 < v <= 1, and the angle of
/// |v| for a negative v. Errors: 11 for v = 0, 5 beyond 1.
double Arccos(double v);

}  // namespace norlaplan
