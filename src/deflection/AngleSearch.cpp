#include "deflection/AngleSearch.h"

#include <cmath>

namespace norlaplan {
namespace {

constexpr double kAngleStep = 0.017452;
constexpr double kNewtonTolerance = 1e-07;

/// A step of Newton's method on x + a x^(2/3) = b. Below zero the slope has the exponent plus one third.
double newtonStep(double x, double a, double b) {
    if (x >= 0.0) {
        const double f = x + a * power(x, kTwoThirds) - b;
        return divide(f, 1.0 + (2.0 * a / 3.0) * power(x, -1.0 / 3.0));
    }
    const double f = x + a * power(x * x, kOneThird) - b;
    return divide(f, 1.0 - (2.0 * a / 3.0) * power(std::fabs(x), kOneThird));
}

}  // namespace

AngleSearch::AngleSearch(const DeflectionModel& model, double ringSum, const Patience& patience)
    : ringSum_(ringSum),
      alpha_(model.alpha),
      cosAlpha_(std::cos(model.alpha)),
      sinAlpha_(std::sin(model.alpha)),
      AD_(kCurvatureFactor * model.D),
      twiceAD_(2.0 * kCurvatureFactor * model.D),
      ballFactor_(ringSum * power(model.Z * model.loadMultiplier() * (model.D * model.D), kTwoThirds)),
      angle_(patience),
      inner_(patience) {}

AngleSearch::Found AngleSearch::find(double axialLoad, double window) {
    Found found{alpha_, 0.0};
    double step = kAngleStep;
    std::size_t steps = 0;
    angle_.begin();
    for (;;) {
        do {
            found.angle = found.angle + step;
            found.thrust = step == kAngleStep ? firstThrust(steps++, found.angle) : thrustAt(found.angle);
            angle_.pass({found.angle, step});
        } while (found.thrust < axialLoad);
        if (std::fabs(found.thrust - axialLoad) <= window) return found;
        found.angle = found.angle - step;
        step = step / 10.0;
    }
}

double AngleSearch::firstThrust(std::size_t step, double angle) {
    if (step == firstThrusts_.size()) firstThrusts_.push_back(thrustAt(angle));
    return firstThrusts_[step];
}

double AngleSearch::thrustAt(double angle) {
    const double sine = std::sin(angle);
    const double a = divide(twiceAD_ * power(sine, kOneThird), ballFactor_);
    const double b = divide(twiceAD_ * sine * (divide(cosAlpha_, std::cos(angle)) - 1.0), ringSum_);
    double x = 1.0;
    inner_.begin();
    for (;;) {
        const double next = x - newtonStep(x, a, b);
        if (std::fabs(x - next) < kNewtonTolerance) return x;
        x = next;
        inner_.pass({x});
    }
}

double AngleSearch::deflection(double angle, double thrust) const {
    return AD_ * (std::tan(angle) * cosAlpha_ - sinAlpha_) - ringSum_ * thrust / 2.0;
}

}  // namespace norlaplan
