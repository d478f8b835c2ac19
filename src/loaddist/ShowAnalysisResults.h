#pragma once

#include <array>
#include <string>
#include <vector>

#include "state/SolverState.h"

namespace norlaplan {

/// A field of the analysis form with what it shows.
struct AnalysisField {
    const char* control;
    std::string text;
};

/// One row of balls as the analysis grid shows it: two header lines, then one line a ball.
using AnalysisGrid = std::vector<std::array<std::string, 10>>;

/// The captions that change with the form's units.
struct AnalysisCaptions {
    const char *maxBallLoad, *stress, *ellipse, *radial, *axial, *tilt, *meanLoads;
};

/// The results of a solve as the analysis form shows them.
struct AnalysisResults {
    std::vector<AnalysisField> fields;
    std::vector<AnalysisField> checks;  ///< force sums, constants and number of passes
    AnalysisGrid firstRow, secondRow;
};

/// The form's own choice of units, whatever the program's.
enum class AnalysisUnits { English, Metric };

AnalysisCaptions analysisCaptions(AnalysisUnits units);

/// Puts the results of the last solve into texts. English: pounds, psi, inches, the tilt in degrees. Metric:
/// newtons, MPa, millimetres, radians. Lives are revolutions; the grids stay English.
AnalysisResults ShowAnalysisResults(const SolverState& solver, AnalysisUnits units = AnalysisUnits::English);

/// The picture of a life in revolutions. Each band's lower end is tested on `lower` and its upper end on
/// `upper`: for row 1 both are its life, for row 2 the upper one is the life of row 1.
const char* lifePicture(double lower, double upper);

}  // namespace norlaplan
