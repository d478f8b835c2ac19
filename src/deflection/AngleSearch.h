#pragma once

#include <vector>

#include "deflection/DeflectionModel.h"
#include "state/Patience.h"

namespace norlaplan {

/// Finds the contact angle at which a row of balls in elastic rings carries an axial load. The steps of the
/// search (0.017452 radian and tenths of it) and the path of its inner iteration are part of the result.
class AngleSearch {
  public:
    struct Found {
        double angle = 0.0;   ///< radians
        double thrust = 0.0;  ///< the load at that angle, pounds
    };

    /// `ringSum` is the expansion of both rings in inches per pound.
    AngleSearch(const DeflectionModel& model, double ringSum, const Patience& patience);

    /// The angle whose thrust is `axialLoad` within `window` pounds. Errors: 5, 6, 11 as the formulas raise
    /// them; `NotConverging`.
    Found find(double axialLoad, double window);

    /// A D (tan angle cos alpha - sin alpha) less what the rings give under `thrust`, inches.
    double deflection(double angle, double thrust) const;

  private:
    double firstThrust(std::size_t step, double angle);
    double thrustAt(double angle);

    const double ringSum_;
    const double alpha_, cosAlpha_, sinAlpha_;
    const double AD_;                   ///< distance of the groove centers
    const double twiceAD_;              ///< 2 A D, multiplied in this order
    const double ballFactor_;           ///< divisor of the balls' term
    std::vector<double> firstThrusts_;  ///< after each first step: every search begins with the same ones
    Patience angle_, inner_;
};

}  // namespace norlaplan
