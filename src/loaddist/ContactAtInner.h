#pragma once

#include "state/Ports.h"
#include "state/SolverState.h"

namespace norlaplan {

/// The Hertz contact of a ball at the inner race.
struct InnerContact {
    double stress = 0.0;       ///< mean, psi
    double ellipticity = 0.0;  ///< major axis / minor axis
};

/// The contact at the inner race of a groove of 53 % conformity, steel on steel (after Hertz): diameters in
/// inches, contact angle in radians, load in pounds. Leaves `OuterModulusMpsi` of the solver at 29000000
/// until the next solve. Errors: 11 and 5 as the formulas raise them. The search for the modular angle is
/// guarded; it asks through `messages`.
InnerContact ContactAtInner(SolverState& solver, double pitchDiameter, double ballDiameter,
                            double contactAngle, double ballLoad, MessagePort& messages);

}  // namespace norlaplan
