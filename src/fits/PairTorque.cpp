#include "fits/PairTorque.h"

#include <cmath>

#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

/// Twice Young's modulus of the rings, psi.
constexpr double kTwiceModulus = 58000000.0;
/// Pi times the modulus of 2.9e7 psi, as it stands in the pair's ring formula.
constexpr double kPiModulus = 91106186.95411;
/// Conformity of races and balls, per cent.
constexpr double kConformity = 53.0;
constexpr double kFirstAngleStep = 0.314159265359 / 180.0;
constexpr double kWindow = 0.01;
constexpr double kNewtonStep = 1e-7;
constexpr double kCoefficient = 0.002;
/// Of separators that drag on the balls, and of balls that drag on each other.
constexpr double kDraggingCoefficient = 0.004;

bool drags(const std::string& separator) {
    return separator == "M" || separator == "F" || separator == "W";
}

}  // namespace

PairTorque::PairTorque(const BearingSpec& bearing, MessagePort& messages)
    : geometry_(bearing),
      pitchDiameter_(bearing.pitchDiameter),
      inner_{bearing.innerSection, bearing.innerWidth},
      outer_{bearing.outerSection, bearing.outerWidth},
      coefficient_(drags(bearing.separatorCode) ? kDraggingCoefficient : kCoefficient),
      conformity_(kConformity * 0.02 - 1.0),
      Kn_(power(divide(conformity_, geometry_.K), 3.0 / 2.0)),
      angle_(messages),
      load_(messages) {
    const auto give = [](double meanDiameter, const Ring& ring) {
        return Single(divide(meanDiameter, ring.section * kTwiceModulus * ring.width * PiValue));
    };
    rings_ = give(geometry_.Di, inner_) + give(geometry_.Do, outer_);
}

PairTorque::Balance PairTorque::balance(double angle, double halfPreload, double before) const {
    const double B = conformity_;
    const double d = geometry_.D;
    const double sine = std::sin(angle);
    const double free = std::cos(ThirtyDegrees);
    const double A1 =
        divide(2.0 * B * d * power(sine, kOneThird), power(geometry_.Z * Kn_ * d * d, kTwoThirds) * rings_);
    const double A2 = divide(2.0 * B * d * sine * (divide(free, std::cos(angle)) - 1.0), rings_);
    Balance at;
    at.x = divide(2.0 * (B * d * (std::tan(angle) * free - std::sin(ThirtyDegrees)) - halfPreload), rings_);
    at.g = before;
    if (at.x > 0.0) at.g = at.x + A1 * power(at.x, kTwoThirds) - A2;
    if (at.x < 0.0) at.g = at.x + A1 * cubeRootOfSquare(at.x) - A2;
    return at;
}

double PairTorque::contactAngle(Single halfPreload) {
    double step = kFirstAngleStep;
    double angle = ThirtyDegrees;
    double g = 0.0;
    angle_.begin();
    for (;;) {
        angle = angle + step;
        const Balance at = balance(angle, halfPreload, g);
        g = at.g;
        if (!(at.x < 0.0) && !(g < 0.0)) {
            if (!(std::fabs(g) > kWindow)) return angle;
            angle = angle - step;
            step = step / 10.0;
        }
        angle_.pass({angle, step, g});
    }
}

double PairTorque::ringGive(double meanDiameter, const Ring& ring, double cosine) const {
    const double across = meanDiameter * meanDiameter * geometry_.Z * cosine;
    return divide(across, pitchDiameter_ * kPiModulus * ring.section * ring.width) / 2.0;
}

Single PairTorque::ballLoad(double angle, double thrust) {
    const double cosine = std::cos(angle);
    const double rings = ringGive(geometry_.Di, inner_, cosine) + ringGive(geometry_.Do, outer_, cosine);
    const double G = divide(geometry_.K, power(geometry_.D, kOneThird) * cosine);
    double Q = 1.0;
    load_.begin();
    for (;;) {
        const double f = Q * rings + 2.0 * G * cubeRootOfSquare(Q) - std::fabs(thrust);
        const double sign = Q > 0.0 ? 1.0 : -1.0;
        const double slope = rings + (4.0 * G / 3.0) * sign * power(std::fabs(Q), -1.0 / 3.0);
        const double next = Q - divide(f, slope);
        if (std::fabs(next - Q) < kNewtonStep) return Q;
        Q = next;
        load_.pass({Q});
    }
}

Single PairTorque::torqueAt(double preload) {
    const Single halfPreload = preload / 2.0;
    const double angle = contactAngle(halfPreload);
    const double thrust = -2.0 * halfPreload * std::tan(angle);
    const double Q = ballLoad(angle, thrust);
    return std::fabs(Q) * pitchDiameter_ * coefficient_ * geometry_.Z;
}

}  // namespace norlaplan
