#include "catalogue/PreloadedBearing.h"

#include <cmath>

#include "capacity/SpeedLimits.h"
#include "catalogue/DuplexPreload.h"
#include "catalogue/MountedFits.h"
#include "catalogue/RingStiffness.h"
#include "loaddist/Arccos.h"
#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"
#include "state/Patience.h"

namespace norlaplan {
namespace {

constexpr double kNewtonStep = 1e-7;
/// Twice pi times the rings' modulus of 2.9e7 psi, as it stands in the pair's ring formulas.
constexpr double kTwoPiModulus = 182212373.90822;

double ratedBallLoad(const BearingSpec& bearing) {
    const double Z = bearing.ballCount;
    if (bearing.styleLetter == "C") return divide(4.37 * bearing.dynamicRadial, Z);
    return divide(divide(bearing.dynamicThrust, Z), 0.5);
}

/// How far the mean diameters of the rings give for a pound of ball load.
struct RingGive {
    double inner = 0.0, outer = 0.0;
};

RingGive singleRowGive(const BearingSpec& bearing, const RingGeometry& g) {
    const Single E = 2.9e7;
    const double dm = bearing.pitchDiameter;
    const auto stiffness = [&](double twice, double section, double width) {
        return twice * section * width * E * dm * PiValue;
    };
    // The factor 2 of a radial contact's denominators is left out for a diagonal one.
    const bool radial = bearing.styleLetter == "C";
    const double twice = radial ? 2.0 : 1.0;
    const double cosine = radial ? 1.0 : std::cos(ThirtyDegrees);
    return {divide(cosine * g.Z * (g.Di * g.Di), stiffness(twice, bearing.innerSection, bearing.innerWidth)),
            divide(cosine * g.Z * (g.Do * g.Do), stiffness(twice, bearing.outerSection, bearing.outerWidth))};
}

/// The ball load of a single row: x (Ci + Co) + A x^(2/3) = p, by Newton's method. The stepped value is the
/// result.
double singleRowLoad(double rings, double A, double p, MessagePort& messages) {
    Patience patience(messages);
    patience.begin();
    double x = 1.0;
    for (;;) {
        const double f = x * rings + A * power(x, kTwoThirds) - p;
        const double slope = rings + (2.0 * A / 3.0) * power(x, -1.0 / 3.0);
        const double next = x - divide(f, slope);
        if (std::fabs(next - x) < kNewtonStep) return next;
        x = next;
        patience.pass({x});
    }
}

/// The pair's counterpart: x (Ci + Co) + 2A (x^2)^(1/3) = |T|. The value before the last step is the result.
double pairLoad(double rings, double A, double T, MessagePort& messages) {
    Patience patience(messages);
    patience.begin();
    double x = 1.0;
    for (;;) {
        const double f = x * rings + 2.0 * A * cubeRootOfSquare(x) - std::fabs(T);
        const double bend = (4.0 * A / 3.0) * power(std::fabs(x), -1.0 / 3.0);
        const double slope = x > 0.0 ? rings + bend : rings - bend;
        const double next = x - divide(f, slope);
        if (std::fabs(next - x) < kNewtonStep) return x;
        x = next;
        patience.pass({x});
    }
}

/// Gives the ball load.
double solveSingleRow(BearingSpec& bearing, MessagePort& messages) {
    const RingGeometry g(bearing);
    const double beta = bearing.styleLetter == "C" ? 0.0 : ThirtyDegrees;
    const RingGive give = singleRowGive(bearing, g);
    const double A = divide(2.0 * g.K, power(g.D, kOneThird) * std::cos(beta));
    const double x = singleRowLoad(give.inner + give.outer, A, bearing.fitHigh, messages);
    bearing.preloadBore = bearing.bore - x * give.inner;
    bearing.preloadOd = bearing.outsideDiameter + x * give.outer;
    bearing.meanClearance = -A * power(x, kTwoThirds);
    return x;
}

/// Clearance and contact angle of a pair under its ball load.
void setGeometryUnderLoad(BearingSpec& bearing, const RingGeometry& g, double beta1, double x) {
    const double r = bearing.raceRadius;
    const double d = divide(g.K * power(x, kTwoThirds), power(g.D, kOneThird));
    const double D2 = g.D - d;
    const double a = 4.0 * r * (1.0 - std::cos(beta1)) + 2.0 * D2 * (std::cos(beta1) - 1.0);
    const double b = a - 2.0 * d;
    const double beta2 = Arccos(1.0 + divide(b, 2.0 * g.D - 4.0 * r));
    bearing.meanClearance = 2.0 * ((2.0 * r - g.D) * std::sin(beta2) - (2.0 * r - D2) * std::sin(beta1));
    bearing.contactAngleDegrees = beta2 * 180.0 / PiValue;
}

/// Gives the ball load.
double solvePair(BearingSpec& bearing, MessagePort& messages) {
    const RingGeometry g(bearing);
    bearing.contactAngle = ThirtyDegrees;
    const double beta = searchDuplexAngle(bearing, messages);
    const double cosine = std::cos(beta);
    const double A = divide(g.K, power(g.D, kOneThird) * cosine);
    const double Ci = divide(cosine * g.Z * (g.Di * g.Di),
                             kTwoPiModulus * g.Di * bearing.innerSection * bearing.innerWidth);
    const double Co = divide(cosine * g.Z * (g.Do * g.Do),
                             kTwoPiModulus * g.Do * bearing.outerSection * bearing.outerWidth);
    const double T = bearing.fitHigh * std::tan(beta);
    const double x = pairLoad(Ci + Co, A, T, messages);
    bearing.preloadBore = bearing.bore - x * Ci;
    bearing.preloadOd = bearing.outsideDiameter + x * Co;
    setGeometryUnderLoad(bearing, g, beta, x);
    return x;
}

}  // namespace

void solvePreload(BearingSpec& bearing, MessagePort& messages) {
    const double rated = ratedBallLoad(bearing);
    if (bearing.styleLetter != "C") {
        bearing.thrustSpeedGrease = "0";
        bearing.thrustSpeedOil = "0";
        bearing.thrustSpeedMist = "0";
    }
    const bool pair = bearing.styleLetter == "F" || bearing.styleLetter == "B";
    const double x = pair ? solvePair(bearing, messages) : solveSingleRow(bearing, messages);
    setPreloadFits(bearing);
    bearing.loadPercent = divide(100.0 * x, rated);
    bearing.speedFactor = loadLevelFactor(bearing.loadPercent);
}

}  // namespace norlaplan
