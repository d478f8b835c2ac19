#include "loaddist/LubeFilm.h"

#include <cmath>

#include "loaddist/ContactAtInner.h"
#include "loaddist/LifeFactor.h"
#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/PiValue.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

// Roughness in microinches. The path's is 12, other than the 16 that is shown.
constexpr double kBallFinish = 2.0;
constexpr double kPathFinish = 12.0;
constexpr double kPoisson = 0.25;
constexpr double kOuterSpeed = 0.0;
constexpr double kWantedLambda = 3.0;

double compositeFinish() {
    const double ball = kBallFinish * 1.1;
    const double path = kPathFinish * 1.1;
    return squareRoot(ball * ball + path * path) * 0.000001;
}

double stokesOf(const Lubricant& lubricant) {
    const double v = lubricant.viscosity;
    switch (lubricant.unit) {
        case ViscosityUnit::Ssu:
            return v > 100.0 ? v * 0.0022 - divide(1.35, v) : v * 0.00226 - divide(1.95, v);
        case ViscosityUnit::Centistokes:
            return v / 100.0;
        case ViscosityUnit::None:
            break;
    }
    return 0.0;
}

/// What doesn't change with the viscosity.
struct Contact {
    double rho = 0.0;  ///< density, pounds per cubic inch
    double Eq = 0.0;   ///< modulus, psi
    double Rx = 0.0;   ///< radius in the rolling direction, inches
    double u = 0.0;    ///< entrainment speed, inches per second
    double W = 0.0, k = 0.0;
};

/// The entrainment speed at the inner race, whose speeds are in rpm.
double entrainmentSpeed(double D, double dm, double gamma, double Ni, double No) {
    const double Nc = 0.5 * (Ni * (1.0 - gamma) + No * (gamma + 1.0));
    const double w1 = ((std::fabs(Ni - Nc) * 2.0) * PiValue) / 60.0;
    const double w2 =
        (((0.5 * std::fabs(Ni - No)) * (1.0 - gamma * gamma)) * divide(dm, D)) * (TwoPiValue / 60.0);
    return (dm / 2.0) * ((1.0 - gamma) * w1 + gamma * w2);
}

/// The film for a viscosity of s stokes.
double filmAt(const Contact& contact, double s) {
    const double a = 0.000774 * power(s / power(10.0, 4.0), 0.163);
    const double G = a * contact.Eq;
    const double eta = ((s * (1.0 / (2.54 * 2.54))) * (1.0 / 386.0)) * contact.rho;
    const double U = divide(eta * contact.u, (2.0 * contact.Eq) * contact.Rx);
    return divide(((3.63 * power(U, 0.68)) * power(G, 0.49)) * (1.0 - power(2.7183, contact.k * -0.68)),
                  power(contact.W, 0.073));
}

/// Stokes from which the film is as thick as it should be. Adding 0.01 again and again never meets 20
/// exactly; a search without success ends with the first value beyond it.
double leastStokes(const Contact& contact, double sigma) {
    double x = 0.01;
    while (x <= 20.0 && filmAt(contact, x) < kWantedLambda * sigma)
        x += 0.01;
    return x;
}

}  // namespace

Lubricant lubricantOf(const std::string& specificGravity, const std::string& viscosity, ViscosityUnit unit) {
    return {leadingNumber(specificGravity), leadingNumber(viscosity), unit};
}

FilmResult computeLubeFilm(ProgramState& state, const Lubricant& lubricant, MessagePort& messages) {
    const double D = state.bearing.ballDiameter;
    const double dm = state.bearing.pitchDiameter;
    const double angle = state.bearing.contactAngle;
    const double sigma = compositeFinish();
    FilmResult result;
    result.maxBallLoad = state.solver.MaxBallLoad;
    result.innerSpeed = state.loads.speed;
    Contact contact;
    contact.rho = lubricant.specificGravity * 0.03612729;
    const double s = stokesOf(lubricant);
    contact.Eq = 29000000.0 / (1.0 - kPoisson * kPoisson);
    const double gamma = divide(D * std::cos(angle), dm);
    contact.Rx = (D / 2.0) * (1.0 - gamma);
    contact.u = entrainmentSpeed(D, dm, gamma, result.innerSpeed, kOuterSpeed);
    const InnerContact hertz = ContactAtInner(state.solver, dm, D, angle, result.maxBallLoad, messages);
    contact.k = hertz.ellipticity;
    contact.W = divide(result.maxBallLoad, contact.Eq * (contact.Rx * contact.Rx));

    result.film = filmAt(contact, s);
    result.lambda = divide(result.film, sigma);
    result.minimumViscosity = leastStokes(contact, sigma) * 100.0;
    result.lifeFactor = LifeFactor(result.lambda);
    result.comment = filmComment(result.lambda);
    result.stress = hertz.stress;
    result.ellipticity = hertz.ellipticity;
    return result;
}

const char* filmComment(double lambda) {
    if (lambda < 1.0) return "Surface smearing or deformation, accompanied by wear on the rolling surfaces";
    if (lambda < 1.5) return "Surface distress may be accompanied by superficial surface pitting";
    if (lambda < 3.0) return "Some surface glazing can occur with eventual classical fatique failure";
    return "Minimal wear can be expected, long life, with eventual classical fatigue failure";
}

std::vector<std::string> filmBearingLines(const ProgramState& state) {
    const UnitMode& units = state.units;
    const auto length = [&](double inches) {
        return FormatNumber(inches * units.lengthFactor, "#.000") + " " + units.lengthUnit;
    };
    const bool us = state.unitSystem == "US";
    return {"Ball Diameter = " + length(state.bearing.ballDiameter),
            "Pitch Diameter = " + length(state.bearing.pitchDiameter),
            "Contact Angle = " + FormatNumber(state.bearing.contactAngle * 180.0 / PiValue, "0") + " Degrees",
            "Conformity = 53 %",
            us ? "Ball Surface Finish = 2AA" : "Ball Surface Finish = 0.05 um",
            us ? "Path Surface Finish = 16AA" : "Path Surface Finish = 0.41 um"};
}

FilmTexts filmTexts(const FilmResult& result, const UnitMode& units) {
    FilmTexts texts;
    texts.maxBallLoad =
        "Maximum Ball Load = " + FormatNumber(divide(result.maxBallLoad, units.forceFactor), "0.000") + " " +
        units.loadUnit;
    texts.innerSpeed = "Inner Race Rotation Speed = " + plainText(result.innerSpeed) + " RPM";
    texts.outerSpeed = "Outer Race Rotation Speed = 0 RPM";
    texts.film = "Min. Iso Lube Film = " + FormatNumber(result.film * units.lengthFactor, "0.00E+00") + " " +
                 units.lengthUnit;
    texts.lambda = "Film/Finish Ratio 'Lambda' = " + FormatNumber(result.lambda, "0.000");
    texts.lifeFactor = "L10 life factor is = " + FormatNumber(result.lifeFactor, "0.00");
    texts.comment = result.comment;
    texts.minimumViscosity =
        "Minimum recommended viscosity is = " + FormatNumber(result.minimumViscosity, "0.00") +
        " centiStokes";
    return texts;
}

}  // namespace norlaplan
