#include "catalogue/DuplexPreload.h"

#include <cmath>

#include "catalogue/RingStiffness.h"
#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"
#include "state/Patience.h"

namespace norlaplan {
namespace {

constexpr double kFirstLoadStep = 10000.0;
constexpr double kFirstAngleStep = 0.017452;
constexpr double kLoadWindow = 1.0;
constexpr double kPreloadWindow = 1e-5;
constexpr double kInnerStep = 1e-8;
/// Twice Young's modulus of the rings, psi.
constexpr double kTwiceModulus = 5.8e7;

class DuplexSearch {
  public:
    DuplexSearch(const BearingSpec& bearing, MessagePort& messages)
        : geometry_(bearing), load_(messages), angle_(messages), inner_(messages) {
        const double Ci =
            divide(geometry_.Di, bearing.innerSection * kTwiceModulus * bearing.innerWidth * PiValue);
        const double Co =
            divide(geometry_.Do, bearing.outerSection * kTwiceModulus * bearing.outerWidth * PiValue);
        rings_ = Ci + Co;
        B_ = divide(2.0 * bearing.raceRadius, geometry_.D) - 1.0;
        Kn_ = power(divide(B_, geometry_.K), 1.5);
        target_ = bearing.fitHigh / 2.0;
    }

    double run() {
        double step = kFirstLoadStep;
        double P = 0.0;
        load_.begin();
        for (;;) {
            P = P + step;
            const AngleAndLoad found = findAngle(P);
            const double got =
                B_ * geometry_.D * (std::tan(found.beta) * std::cos(alpha0_) - std::sin(alpha0_)) -
                rings_ * found.y / 2.0;
            if (std::fabs(got - target_) <= kPreloadWindow) return found.beta;
            if (got > target_) {
                P = P - step;
                step = step / 10.0;
            }
            load_.pass({P, step});
        }
    }

  private:
    struct AngleAndLoad {
        double beta = 0.0;
        Single y;
    };

    /// The angle whose load is the trial load, within the window.
    AngleAndLoad findAngle(double P) {
        AngleAndLoad found{alpha0_, 0.0};
        double step = kFirstAngleStep;
        angle_.begin();
        for (;;) {
            do {
                found.beta = found.beta + step;
                found.y = loadAt(found.beta);
                angle_.pass({found.beta, step});
            } while (found.y < P);
            if (std::fabs(found.y - P) <= kLoadWindow) return found;
            found.beta = found.beta - step;
            step = step / 2.0;
        }
    }

    /// The load at an angle: the root of y + U y^(2/3) = V. It is the value on which the last Newton step was
    /// taken.
    Single loadAt(double beta) {
        const double D = geometry_.D;
        const double sine = std::sin(beta);
        const double U = divide(2.0 * B_ * D * power(sine, kOneThird),
                                power(geometry_.Z * Kn_ * (D * D), kTwoThirds) * rings_);
        const double V =
            divide(2.0 * B_ * D * sine * (divide(std::cos(alpha0_), std::cos(beta)) - 1.0), rings_);
        double y = 1.0;
        inner_.begin();
        for (;;) {
            const double next = y - newtonStep(y, U, V);
            if (std::fabs(next - y) < kInnerStep) return y;
            y = next;
            inner_.pass({y});
        }
    }

    static double newtonStep(double y, double U, double V) {
        if (y >= 0.0) {
            const double f = y + U * power(y, kTwoThirds) - V;
            return divide(f, 1.0 + (2.0 * U / 3.0) * power(y, -1.0 / 3.0));
        }
        const double f = y + U * cubeRootOfSquare(y) - V;
        return divide(f, 1.0 - (2.0 * U / 3.0) * power(std::fabs(y), -1.0 / 3.0));
    }

    RingGeometry geometry_;
    double alpha0_ = ThirtyDegrees;
    double rings_ = 0.0, B_ = 0.0, Kn_ = 0.0, target_ = 0.0;
    Patience load_, angle_, inner_;
};

}  // namespace

double searchDuplexAngle(const BearingSpec& bearing, MessagePort& messages) {
    return DuplexSearch(bearing, messages).run();
}

}  // namespace norlaplan
