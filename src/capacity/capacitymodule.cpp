#include "capacity/capacitymodule.h"

#include <cmath>

#include "capacity/EllipseMatch.h"
#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

constexpr double kContactStressLimit = 262500.0;
constexpr double kLifeRevolutions = 1000000.0;
constexpr double kYoungFirst = 29000000.0;
constexpr double kPoissonRatio = 0.25;
constexpr double kThrustConstant = 15325.0;
constexpr double kThrustFactor = 1.0;
constexpr double kStaticRadialConstant = 2280.0;
constexpr double kStaticThrustConstant = 11400.0;
/// What a second row adds to a dynamic rating.
double twoRows() {
    return power(2.0, 0.7);
}

/// One race's contact: its match, its share of ciPlusCo, and its curvature sum (1/in).
struct RaceContact {
    EllipseMatch match;
    double constant = 0.0, curvatureSum = 0.0;
};

/// The contact of a ball with a race whose second radius is `R2`; `signedRatio` is negative for the inner
/// race.
RaceContact contactOf(double D, double raceRadius, double R2, double signedRatio, Patience& patience) {
    const double r1 = D / 2.0;
    const double r2 = D / 2.0;
    const double G = -raceRadius;
    RaceContact contact;
    contact.curvatureSum = divide(1.0, r1) + divide(1.0, r2) + divide(1.0, R2) + divide(1.0, G);
    const double difference = divide(1.0, r1) - divide(1.0, r2) + divide(1.0, R2) - divide(1.0, G);
    contact.match = matchEllipseTo(divide(difference, contact.curvatureSum), patience);
    const double f = divide(raceRadius, D);
    const double conformitySum = 4.0 - divide(1.0, f) - divide(2.0 * signedRatio, 1.0 + signedRatio);
    const EllipseMatch& match = contact.match;
    const double deflectionTerm =
        divide(match.K * power(std::cos(match.b), kTwoThirds), power(match.E, kOneThird));
    contact.constant = deflectionTerm * power(conformitySum, kOneThird);
    return contact;
}

/// The ball load in pounds at which the outer contact reaches the stress limit.
double ballLoadAtLimit(const RaceContact& outer) {
    const double cosine = std::cos(outer.match.b);
    const double shortHalfAxis = power(divide(2.0 * outer.match.E * cosine, PiValue), kOneThird);
    const double longHalfAxis = divide(shortHalfAxis, cosine);
    const double theta1 = 4.0 * (1.0 - kPoissonRatio * kPoissonRatio) / kYoungFirst;
    const Single youngSecond = 2.9e7;
    const double theta2 = 4.0 * (1.0 - kPoissonRatio * kPoissonRatio) / youngSecond;
    const double root = divide(power(3.0 * (theta1 + theta2), kTwoThirds) * longHalfAxis * shortHalfAxis *
                                   PiValue * kContactStressLimit,
                               power(8.0 * outer.curvatureSum, kTwoThirds));
    return power(root, 3.0);
}

/// S of the static ratings: constant x Z x D^2 with the bearing's static factor.
double staticTerm(const BearingSpec& bearing, double constant) {
    return bearing.staticFactor * constant * bearing.ballCount *
           (bearing.ballDiameter * bearing.ballDiameter);
}

void computeDynamic(BearingSpec& bearing, const std::string& mode, Patience& patience) {
    ComputeCapacity(bearing.pitchDiameter, bearing.momentArm, bearing.ballDiameter, bearing.ballCount,
                    bearing.contactAngle, bearing.raceRadius, mode, bearing.dynamicRadial,
                    bearing.dynamicThrust, bearing.dynamicMoment, bearing.ciPlusCo, patience);
}

void rateRadialContact(BearingSpec& bearing, Patience& patience) {
    bearing.contactAngle = 0.0;
    bearing.momentArm = 0.0;
    computeDynamic(bearing, "C", patience);
    bearing.staticRadial = staticTerm(bearing, kStaticRadialConstant);
    bearing.staticThrust = 0.0;
    bearing.staticMoment = 0.0;
}

void rateFourPoint(BearingSpec& bearing, Patience& patience) {
    bearing.momentArm = bearing.pitchDiameter;
    computeDynamic(bearing, "X", patience);
    const double sine = std::sin(bearing.contactAngle);
    const double radial = staticTerm(bearing, kStaticRadialConstant);
    bearing.staticRadial = radial;
    bearing.staticThrust = staticTerm(bearing, kStaticThrustConstant) * sine;
    bearing.staticMoment = radial * bearing.pitchDiameter * sine;
}

void rateSingleAngular(BearingSpec& bearing, Patience& patience) {
    bearing.momentArm = 0.0;
    // The calculation leaves it as it was, which would be the moment of the bearing before.
    bearing.dynamicMoment = 0.0;
    computeDynamic(bearing, "A", patience);
    bearing.staticRadial = staticTerm(bearing, kStaticRadialConstant) * std::cos(bearing.contactAngle);
    bearing.staticThrust = staticTerm(bearing, kStaticThrustConstant) * std::sin(bearing.contactAngle);
    bearing.staticMoment = 0.0;
}

/// The moment ratings come first: they rest on the radial ratings of one row.
void ratePair(BearingSpec& bearing, Patience& patience) {
    computeDynamic(bearing, "A", patience);
    const double tangent = std::tan(bearing.contactAngle);
    bearing.dynamicMoment = bearing.dynamicRadial * bearing.momentArm * tangent;
    bearing.staticRadial = staticTerm(bearing, kStaticRadialConstant) * std::cos(bearing.contactAngle);
    bearing.staticThrust = staticTerm(bearing, kStaticThrustConstant) * std::sin(bearing.contactAngle);
    bearing.staticMoment = bearing.staticRadial * bearing.momentArm * tangent;
    bearing.dynamicRadial = bearing.dynamicRadial * twoRows();
    bearing.staticRadial = 2.0 * bearing.staticRadial;
}

void rateTandem(BearingSpec& bearing, Patience& patience) {
    bearing.momentArm = 0.0;
    computeDynamic(bearing, "A", patience);
    bearing.dynamicRadial = bearing.dynamicRadial * twoRows();
    bearing.staticRadial =
        2.0 * (staticTerm(bearing, kStaticRadialConstant) * std::cos(bearing.contactAngle));
    bearing.dynamicThrust = bearing.dynamicThrust * twoRows();
    bearing.staticThrust =
        2.0 * (staticTerm(bearing, kStaticThrustConstant) * std::sin(bearing.contactAngle));
    bearing.dynamicMoment = 0.0;
    bearing.staticMoment = 0.0;
}

}  // namespace

void ComputeCapacity(const Single& pitchDiameter, const Single& momentArm, const Single& ballDiameter,
                     const Int16& ballCount, const double& contactAngle, const Single& raceRadius,
                     const std::string& mode, Single& dynamicRadial, Single& dynamicThrust,
                     Single& dynamicMoment, Single& ciPlusCo, Patience& patience) {
    const double D = ballDiameter;
    const double Z = ballCount;
    const double dm = pitchDiameter;
    const double alpha = contactAngle;
    const double cosine = std::cos(alpha);
    // The races' curvatures take the angle in 32 bits, everything else in 64.
    const Single alpha32 = alpha;
    const double cosine32 = std::cos(alpha32);

    const double loadFactor = 5.2599 + 0.02674 * dm;
    const double cyclesPerRevolution = (1.0 - divide(D * cosine, dm)) * Z / 2.0;
    const double ratio = divide(D * cosine32, dm);
    const RaceContact inner =
        contactOf(D, raceRadius, (divide(dm, cosine32) - D) / 2.0, divide(-D * cosine32, dm), patience);
    const RaceContact outer = contactOf(D, raceRadius, -(divide(dm, cosine32) + D) / 2.0, ratio, patience);
    ciPlusCo = inner.constant + outer.constant;

    const double cycleTerm =
        power(divide(cyclesPerRevolution * kLifeRevolutions, power(10.0, 8.0)), kOneThird);
    const double base = divide(Z * ballLoadAtLimit(outer), loadFactor);
    const double thrustRating = 0.5 * kThrustFactor * (D * D) * kThrustConstant * power(Z, kTwoThirds);
    const double sine = std::sin(alpha);
    if (mode == "C") {
        dynamicRadial = cycleTerm * base;
        dynamicThrust = 0.0;
        dynamicMoment = 0.0;
    } else if (mode == "U" || mode == "A") {
        dynamicRadial = cycleTerm * base * cosine;
        dynamicThrust = thrustRating;
    } else if (mode == "B" || mode == "F") {
        dynamicRadial = cycleTerm * base * cosine * twoRows();
        dynamicThrust = thrustRating;
        dynamicMoment = momentArm * sine * cycleTerm * base;
    } else if (mode == "X") {
        dynamicRadial = cycleTerm * base * cosine * twoRows() * (0.9 / 0.95);
        dynamicThrust = thrustRating;
        dynamicMoment = dm * sine * cycleTerm * base;
    }
}

void completeRatings(BearingSpec& bearing, Patience& patience) {
    bearing.contactAngle = ThirtyDegrees;
    const std::string& style = bearing.styleLetter;
    if (style == "C") rateRadialContact(bearing, patience);
    if (style == "X") rateFourPoint(bearing, patience);
    if (style == "U" || style == "A") rateSingleAngular(bearing, patience);
    if (style == "B" || style == "F") ratePair(bearing, patience);
    if (style == "T") rateTandem(bearing, patience);
}

}  // namespace norlaplan
