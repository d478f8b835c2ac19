#include "loaddist/AnalysisEntry.h"

#include <algorithm>
#include <cmath>

#include "loaddist/Arccos.h"
#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

void setClearanceOfAngle(SolverState& solver) {
    const double D = solver.BallDiameter;
    const double conformities = solver.OuterConformityPct + solver.InnerConformityPct;
    solver.DiametralClearance =
        (((conformities - 100.0) * (D + D)) * (1.0 - std::cos(solver.ContactAngle))) / 100.0;
}

/// Room for so many balls in every table; what the tables hold stays.
void makeRoom(SolverState& solver, int balls) {
    for (BallTable<double>* const table :
         {&solver.BallX, &solver.BallY, &solver.BallDist, &solver.BallSinAngle, &solver.BallCosAngle,
          &solver.BallDeflection, &solver.BallLoad, &solver.BallRadialForce, &solver.BallAxialForce})
        table->resizeKeeping(balls);
    for (BallTable<Single>* const table :
         {&solver.InnerSemiMajor, &solver.OuterSemiMajor, &solver.InnerSemiMinor, &solver.OuterSemiMinor,
          &solver.InnerStress, &solver.OuterStress})
        table->resizeKeeping(balls);
    solver.BallAngleText.resizeKeeping(balls);
}

}  // namespace

void editContactAngleDegrees(SolverState& solver, double degrees) {
    solver.ContactAngleDeg = degrees;
    solver.ContactAngle = solver.ContactAngleDeg * PiValue / 180.0;
    setClearanceOfAngle(solver);
}

void editContactAngleRadians(SolverState& solver, double radians) {
    solver.ContactAngle = radians;
    solver.ContactAngleDeg = solver.ContactAngle * 180.0 / PiValue;
    setClearanceOfAngle(solver);
}

void editDiametralClearance(SolverState& solver, double inches) {
    solver.DiametralClearance = inches;
    const double conformities = solver.OuterConformityPct + solver.InnerConformityPct;
    const double A = ((conformities - 100.0) * solver.BallDiameter) / 100.0;
    const double c = A - solver.DiametralClearance / 2.0;
    solver.ContactAngle = 0.0;
    solver.ContactAngleDeg = 0.0;
    solver.ContactAngle = Arccos(divide(c, A));
    solver.ContactAngleDeg = solver.ContactAngle * 180.0 / PiValue;
}

void editCenterlineSpacing(SolverState& solver, double inches, bool negative) {
    solver.CenterlineSpacing = negative ? std::fabs(inches) * -1.0 : std::fabs(inches);
}

void chooseStyle(SolverState& solver, char style) {
    solver.StyleIsC = false;
    solver.StyleIsX = style == 'X';
    solver.StyleIsB = style == 'B';
    solver.StyleIsF = style == 'F';
    if (style != 'X' && solver.ContactAngleDeg > 0.0) setClearanceOfAngle(solver);
}

void editBallCount(SolverState& solver, double balls) {
    const Int16 count(balls);
    if (count < 0) raise(fault::kSubscript);
    makeRoom(solver, std::max(int{count}, int{solver.solvedBalls}));
    solver.BallCount = count;
}

void chooseMaterial(ProgramState& state, AnalysisBody body, int index) {
    SolverState& solver = state.solver;
    const bool ball = body == AnalysisBody::Ball;
    std::string& name = ball ? state.analysis.ballMaterial : state.analysis.raceMaterial;
    name.clear();
    if (index < 0 || index >= static_cast<int>(kAnalysisMaterials.size())) return;
    const AnalysisMaterial& material = kAnalysisMaterials[static_cast<std::size_t>(index)];
    name = material.name;
    (ball ? solver.InnerModulusMpsi : solver.OuterModulusMpsi) = material.modulusMpsi;
    (ball ? solver.InnerPoisson : solver.OuterPoisson) = material.poisson;
}

int materialRow(const std::string& name) {
    const auto found = std::find_if(kAnalysisMaterials.begin(), kAnalysisMaterials.end(),
                                    [&](const AnalysisMaterial& material) { return name == material.name; });
    return static_cast<int>(found - kAnalysisMaterials.begin());
}

void noteSolve(ProgramState& state, const std::string& date) {
    AnalysisNotes& notes = state.analysis;
    notes.partNumber = state.bearing.partNumber;
    notes.date = date;
    notes.ballMaterial.clear();
    notes.raceMaterial.clear();
    notes.spacingNegative = false;
}

}  // namespace norlaplan
