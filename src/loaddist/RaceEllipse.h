#pragma once

#include <optional>

#include "numbers/Single.h"

namespace norlaplan {

/// The contact ellipse of one race, in the 32 bits that it is handed on in.
struct RaceEllipse {
    Single K, E;     ///< complete elliptic integrals of the first and second kind
    Single kappaSq;  ///< square of the ratio of the half axes
};

/// Finds the ellipse whose ratio of curvatures is `ratio`: the bisection on the square m of its eccentricity,
/// stored in 32 bits, that ends when the ratio is met or m stands still, on integrals summed panel by panel.
/// Every bit is that of the bisection that sums them in each pass. Errors: 11 and 6 for a ratio that no
/// ellipse has.
RaceEllipse matchRaceEllipse(double ratio);

// What the search goes by where it can; the tests look for the places where it can't.

/// The square of the eccentricity at which an ellipse has the ratio, to a relative 1e-7 of its complement;
/// nothing outside of the ratios for which that is known to be so.
std::optional<double> estimateEccentricity(double ratio);

/// The 32 bits of the curvature ratio at m, where the arithmetic-geometric mean settles them; nothing where
/// only the panels can tell.
std::optional<Single> settledCurvatureRatio(double m, double kappaSq);

/// The 32 bits of the integrals at m, likewise.
std::optional<RaceEllipse> settledEllipse(double m, double kappaSq);

}  // namespace norlaplan
