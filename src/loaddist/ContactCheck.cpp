#include "loaddist/ContactCheck.h"

#include "numbers/FormatNumber.h"
#include "numbers/PiValue.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

int heaviestBall(const SolverState& solver, int row) {
    int ball = 1;
    double most = 0.0;
    for (int i = 1; i <= solver.BallCount; ++i) {
        if (solver.BallLoad(row, i) <= most) continue;
        most = solver.BallLoad(row, i);
        ball = i;
    }
    return ball;
}

ContactRow rowOf(const ProgramState& state, int row) {
    const SolverState& solver = state.solver;
    ContactRow shown;
    shown.ball = heaviestBall(solver, row);
    shown.load = solver.BallLoad(row, shown.ball);
    shown.stress = solver.InnerStress(row, shown.ball);
    shown.major = solver.InnerSemiMajor(row, shown.ball);
    shown.minor = solver.InnerSemiMinor(row, shown.ball);
    shown.angle = state.bearing.styleLetter == "C" && row == 1
                      ? "0°"
                      : FormatNumber(leadingNumber(solver.BallAngleText(row, shown.ball)), "##.00") + "°";
    return shown;
}

}  // namespace

std::array<std::string, 5> ContactRow::lines() const {
    const auto axis = [](double half) { return FormatNumber(2.0 * half, "0.0000") + " in."; };
    return {"Max. Ball Load = " + FormatNumber(load, "#,###.0") + " lbs.",
            "Maximum Avg. Stress = " + FormatNumber(stress, "###,###") + " psi",
            "Ellipse Major Axis = " + axis(major), "Ellipse Minor Axis = " + axis(minor),
            "Contact Angle = " + angle};
}

std::string ContactCheck::groupCaption(int wanted) const {
    return "Contact Stress Row " + std::to_string(wanted) + (wanted == row ? " Displayed" : "");
}

ContactCheck checkContact(const ProgramState& state, int wantedRow) {
    const SolverState& solver = state.solver;
    if (solver.BallCount < 1) raise(fault::kSubscript);
    ContactCheck check;
    check.rows = {rowOf(state, 1), rowOf(state, 2)};
    check.row = wantedRow == 2 ? 2 : 1;
    const int other = 3 - check.row;
    if (!check.canChoose(check.row) && check.canChoose(other)) check.row = other;
    const ContactRow& chosen = check.chosen();
    check.EllipseMajor = chosen.major;
    check.EllipseMinor = chosen.minor;
    const bool radial = state.bearing.styleLetter == "C";
    check.EllipseAngle =
        radial ? 0.0 : leadingNumber(solver.BallAngleText(check.row, chosen.ball)) * PiValue / 180.0;
    return check;
}

}  // namespace norlaplan
