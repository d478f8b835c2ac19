#include "loaddist/AnalysisEntry.h"

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
    solver.StyleIsX = style == 'X';
    solver.StyleIsB = style == 'B';
    solver.StyleIsF = style == 'F';
    if (style != 'X' && solver.ContactAngleDeg > 0.0) setClearanceOfAngle(solver);
}

}  // namespace norlaplan
