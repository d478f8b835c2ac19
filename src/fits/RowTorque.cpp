#include "fits/RowTorque.h"

#include <cmath>

#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

/// Young's modulus of the rings, psi.
constexpr double kModulus = 29000000.0;
constexpr double kNewtonStep = 1e-7;
constexpr double kRadialCoefficient = 0.002;
constexpr double kFourPointCoefficient = 0.006;

}  // namespace

RowTorque::RowTorque(const BearingSpec& bearing, MessagePort& messages)
    : geometry_(bearing),
      pitchDiameter_(bearing.pitchDiameter),
      radial_(bearing.styleLetter == "C"),
      cosine_(std::cos(radial_ ? 0.0 : ThirtyDegrees)),
      patience_(messages) {
    const Single contactConstant = 1.562127363285981e-05;
    contactGive_ = divide(bearing.ciPlusCo * contactConstant, 2.0 * power(geometry_.D, kOneThird) * cosine_);
    const double wo = bearing.outerWidth, to = bearing.outerSection;
    const double wi = bearing.innerWidth, ti = bearing.innerSection;
    // A radial contact's rings count with twice their section.
    outerGive_ = ringGive(geometry_.Do, radial_ ? 2.0 * to * wo : wo * to);
    innerGive_ = ringGive(geometry_.Di, radial_ ? 2.0 * ti * wi : wi * ti);
}

Single RowTorque::ringGive(double meanDiameter, double area) const {
    return divide(meanDiameter * meanDiameter * geometry_.Z * cosine_,
                  area * kModulus * pitchDiameter_ * PiValue);
}

Single RowTorque::ballLoad(double preload) {
    const double rings = outerGive_ + innerGive_;
    const double H = contactGive_;
    double Q = 1.0;
    patience_.begin();
    for (;;) {
        const double f = rings * Q + 2.0 * H * power(Q, kTwoThirds) - preload;
        const double slope = rings + (2.0 * 2.0 * H / 3.0) * power(Q, -1.0 / 3.0);
        const double next = Q - divide(f, slope);
        if (std::fabs(next - Q) < kNewtonStep) return Q;
        Q = next;
        patience_.pass({Q});
    }
}

Single RowTorque::torqueAt(double preload) {
    const double Q = ballLoad(preload);
    if (radial_) return Q * geometry_.Z * pitchDiameter_ * kRadialCoefficient / 2.0;
    return Q * geometry_.Z * pitchDiameter_ * kFourPointCoefficient;
}

}  // namespace norlaplan
