#pragma once

#include "state/Patience.h"

namespace norlaplan {

/// The ellipse of a contact: auxiliary angle b in radians (1 / cos b is the ratio of its half-axes) with the
/// complete elliptic integrals at sin b, summed over 999 panels of a thousand.
struct EllipseMatch {
    double b = 0.0, K = 0.0, E = 0.0;
};

/// Finds the ellipse whose curvature ratio is `targetRatio` (below 1) or up to 1e-5 above it, by a stepped
/// search. `NotConverging` where there is none.
EllipseMatch matchEllipseTo(double targetRatio, Patience& patience);

}  // namespace norlaplan
