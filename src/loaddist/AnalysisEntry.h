#pragma once

#include <array>
#include <string>

#include "state/ProgramState.h"

namespace norlaplan {

/// A row of the analysis form's lists of ball and race materials.
struct AnalysisMaterial {
    const char* name;
    double modulusMpsi, poisson;
};
/// Below these stands an empty row, which blanks the name and keeps the numbers.
constexpr std::array<AnalysisMaterial, 9> kAnalysisMaterials = {{{"52100", 29.0, 0.25},
                                                                 {"440C", 29.0, 0.25},
                                                                 {"17-4PH", 28.5, 0.272},
                                                                 {"8620", 29.7, 0.281},
                                                                 {"4150", 29.7, 0.281},
                                                                 {"Si3N4", 46.0, 0.26},
                                                                 {"S-Monel", 24.0, 0.25},
                                                                 {"316 SS", 28.0, 0.25},
                                                                 {"6061-T6", 10.0, 0.316}}};

/// Factors from the form's fields to their companions in the other unit.
namespace companion {
constexpr double kMillimetres = 25.4;      ///< of inches
constexpr double kNewtons = 4.448;         ///< of pounds
constexpr double kNewtonMetres = 0.11298;  ///< of pound-inches
constexpr double kGigapascals = 6.895;     ///< of millions of psi
}  // namespace companion

// Pictures of what an edit works out.
constexpr const char* kClearancePicture = "0.#####";
constexpr const char* kAnglePicture = "0.####";

// What editing a field of the form stores besides the field itself. None of it starts a solve; the next one
// overwrites it.

/// The contact angle in degrees sets the angle in radians and the diametral clearance.
void editContactAngleDegrees(SolverState& solver, double degrees);
/// The reverse: the angle in radians sets that in degrees, and the clearance.
void editContactAngleRadians(SolverState& solver, double radians);
/// The diametral clearance in inches, negative for preload, sets both angles. Errors: 5 for a preload, which
/// has no angle, 11 for a clearance that leaves the grooves no distance; both angles are then 0.
void editDiametralClearance(SolverState& solver, double inches);
/// The spacing of a pair's row centre lines, inches, by the choice of its sign.
void editCenterlineSpacing(SolverState& solver, double inches, bool negative);
/// One of the styles "X", "B" and "F"; a pair with a contact angle gets the clearance of that angle.
void chooseStyle(SolverState& solver, char style);
/// The balls of one row. The tables of the last solve get room for them, so that whoever reads as far finds
/// balls without load there. Error 6 beyond 16 bits, 9 for fewer than none.
void editBallCount(SolverState& solver, double balls);

/// The two bodies of a contact: the solver's inner material is that of the balls, its outer that of the
/// races.
enum class AnalysisBody { Ball, Race };
/// Row `index` of the material list: its name, modulus and Poisson's ratio. Any row behind the nine blanks
/// the name.
void chooseMaterial(ProgramState& state, AnalysisBody body, int index);
/// The row of the list that has this name; the empty one where none has.
int materialRow(const std::string& name);

/// A solve of the bearing in hand has ended: its number and date go to the notes, and the names of materials
/// that the solver has overwritten are blanked.
void noteSolve(ProgramState& state, const std::string& date);

}  // namespace norlaplan
