#pragma once

#include <string>
#include <vector>

#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

enum class ViscosityUnit { None, Ssu, Centistokes };

/// A lubricant as it is entered. `None` stands for no unit chosen: the viscosity then counts as 0.
struct Lubricant {
    double specificGravity = 0.0;  ///< grams per cubic centimetre
    double viscosity = 0.0;
    ViscosityUnit unit = ViscosityUnit::None;
};

/// A density that the user can pick instead of typing it.
struct LubricantDensity {
    const char* caption;
    double specificGravity;
};
constexpr LubricantDensity kLubricantDensities[] = {{"Mineral Oil", 0.9},
                                                    {"Synthetic Hydrocarbon", 0.92},
                                                    {"Perfluoro-polyether oil", 1.85},
                                                    {"multipleaclylanated cylcopenzane oil", 0.85}};
constexpr double kUsualSpecificGravity = 0.8608;

/// The film under the heaviest loaded ball.
struct FilmResult {
    Single maxBallLoad;             ///< pounds
    Single innerSpeed;              ///< rpm; the outer race stands still
    double film = 0.0;              ///< least film, as it is compared with the finish
    double lambda = 0.0;            ///< film / finish
    double lifeFactor = 0.0;        ///< on the L10 life
    double minimumViscosity = 0.0;  ///< centistokes, for a lambda of 3
    double stress = 0.0;            ///< mean Hertz stress at the inner race, psi
    double ellipticity = 0.0;
    std::string comment;
};

/// The lubricant of the entry fields; a text that is no number counts as 0.
Lubricant lubricantOf(const std::string& specificGravity, const std::string& viscosity, ViscosityUnit unit);

/// The isothermal film of the last solve's heaviest loaded ball at the speed of the load case (film equation
/// of Hamrock and Dowson), and the least viscosity for a lambda of 3: when none up to 2000 centistokes does,
/// the value at which the search stopped. Errors: 11 for a viscosity of 0 SSU and before any solve; 5 for an
/// SSU so low that it has no kinematic viscosity, or a negative density or viscosity. `messages` is asked
/// when the contact's search doesn't end.
FilmResult computeLubeFilm(ProgramState& state, const Lubricant& lubricant, MessagePort& messages);

/// What a film ratio means for the running surfaces.
const char* filmComment(double lambda);

/// The bearing as the film check names it: diameters, contact angle, conformity, finishes. The path finish
/// is the one that is printed; the calculation takes 12, not 16.
std::vector<std::string> filmBearingLines(const ProgramState& state);

/// The result in display units: ball load, speeds, film, lambda, life factor, comment, least viscosity.
struct FilmTexts {
    std::string maxBallLoad, innerSpeed, outerSpeed, film, lambda, lifeFactor, comment, minimumViscosity;
};
FilmTexts filmTexts(const FilmResult& result, const UnitMode& units);

}  // namespace norlaplan
