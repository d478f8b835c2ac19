#include "loaddist/ContactAtInner.h"

#include <cmath>
#include <vector>

#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"
#include "state/Patience.h"

namespace norlaplan {
namespace {

constexpr double kConformityPct = 53.0;
constexpr double kPoisson = 0.25;
constexpr double kModulus = 29000000.0;  // psi
constexpr double kTolerance = 0.00001;
constexpr double kPanel = PiValue / 2000.0;

/// The squared sines at the panels' ends. The panels are walked by repeated addition, and the end of one is
/// the start of the next.
const std::vector<double>& squaredSines() {
    static const std::vector<double> kSquares = [] {
        std::vector<double> squares = {0.0};
        for (double phi = 0.0; phi <= PiValue / 2.0 - kPanel; phi += kPanel) {
            const double sine = std::sin(phi + kPanel);
            squares.push_back(sine * sine);
        }
        return squares;
    }();
    return kSquares;
}

/// Running sums of the elliptic integrals of the first and second kind.
struct RunningSums {
    double Ka = 0.0, Ea = 0.0;

    void addPanels(double t) {
        const double sine = std::sin(t);
        const double modulus = sine * sine;
        double before = 1.0;  // at phi = 0
        const std::vector<double>& squares = squaredSines();
        for (std::size_t j = 1; j < squares.size(); ++j) {
            const double f = std::sqrt(1.0 - modulus * squares[j]);
            Ka += ((1.0 / before + divide(1.0, f)) / 2.0) * kPanel;
            Ea += ((before + f) / 2.0) * kPanel;
            before = f;
        }
        checked(Ka);
        checked(Ea);
    }
};

struct ModularAngle {
    double t = 0.0;   ///< radians
    double Ea = 0.0;  ///< integral of the second kind there
};

/// Steps the modular angle until the integrals give the ratio of the curvatures. The integral of the first
/// kind isn't cleared between the passes: it grows from pass to pass, while that of the second starts again.
ModularAngle findModularAngle(double target, MessagePort& messages) {
    double t = 0.001;
    double step = PiValue / 2.0;
    RunningSums sums;
    Patience patience(messages);
    patience.begin();
    for (;;) {
        sums.addPanels(t);
        const double cotangent = divide(1.0, std::tan(t));
        const double d = (2.0 * (sums.Ka - sums.Ea)) * (cotangent * cotangent);
        const double ratio = 1.0 - divide(d, sums.Ea);
        if (ratio < target) {
            t = t + step;
        } else if (ratio - target > kTolerance) {
            t = t - step;
            step = step * 0.5;
            t = t + step;
        } else {
            return {t, sums.Ea};
        }
        sums.Ea = 0.0;
        patience.pass({t, step, sums.Ka});
    }
}

}  // namespace

InnerContact ContactAtInner(SolverState& solver, double pitchDiameter, double ballDiameter,
                            double contactAngle, double ballLoad, MessagePort& messages) {
    solver.OuterModulusMpsi = kModulus;
    const double r1 = ballDiameter / 2.0;
    const double r2 = ballDiameter / 2.0;
    const double r3 = (divide(pitchDiameter, std::cos(contactAngle)) - ballDiameter) / 2.0;
    const double r4 = (-0.01 * ballDiameter) * kConformityPct;
    const double Rsum = ((divide(1.0, r1) + divide(1.0, r2)) + divide(1.0, r3)) + divide(1.0, r4);
    const double target =
        divide(((divide(1.0, r1) - divide(1.0, r2)) + divide(1.0, r3)) - divide(1.0, r4), Rsum);
    const ModularAngle angle = findModularAngle(target, messages);

    const double n = power(((2.0 * angle.Ea) * std::cos(angle.t)) / PiValue, kOneThird);
    const double m = divide(n, std::cos(angle.t));
    const double e = (4.0 * (1.0 - kPoisson * kPoisson)) / kModulus;
    const double p = power(divide((3.0 * ballLoad) * (e + e), 8.0 * Rsum), kOneThird);
    const double a = m * p;
    const double b = n * p;
    return {divide(ballLoad, (PiValue * a) * b), divide(a, b)};
}

}  // namespace norlaplan
