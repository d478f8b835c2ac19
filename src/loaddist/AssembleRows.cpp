#include "loaddist/AssembleRows.h"

#include <algorithm>
#include <cmath>

#include "loaddist/ContactBlock.h"
#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

/// What is the same for all balls of one assembly.
struct RowGeometry {
    double h = 0.0, m = 0.0;
    double x1 = 0.0, x2 = 0.0, y1 = 0.0, y2 = 0.0;
};

RowGeometry rowGeometry(SolverState& state) {
    const double A0 = state.CentreDistance;
    const double g = state.GapDistance;
    const double s = state.CenterlineSpacing;
    const double Pd = state.DiametralClearance;
    const bool pair = state.StyleIsB || state.StyleIsF;
    state.A0Cos = std::cos(state.ContactAngle) * A0;
    state.A0Sin = std::sin(state.ContactAngle) * A0;

    RowGeometry rows;
    if (state.StyleIsB) rows.h = g / 2.0 + s;
    if (state.StyleIsF) rows.h = g / 2.0 - s;
    state.ArmOffset = rows.h;
    rows.m = state.A0Sin / 2.0 - rows.h / 2.0;
    rows.x1 = pair ? state.A0Cos : state.A0Cos - Pd / 2.0;
    rows.x2 = rows.x1;
    if (pair) {
        rows.y1 = state.A0Sin - g / 2.0;
        rows.y2 = rows.y1;
    } else {
        rows.y1 = Pd > 0.0 ? squareRoot(A0 * A0 - rows.x1 * rows.x1) : state.A0Sin;
        rows.y2 = (state.A0Sin + state.A0Sin) - rows.y1;
    }
    return rows;
}

ContactLines linesOf(SolverState& state, int row) {
    return {state.BallX.row(row), state.BallY.row(row), state.BallDist.row(row)};
}

RowConstants rowConstants(const SolverState& state, const RowGeometry& rows, int row) {
    return {state.CentreDistance, state.CentreRadius, rows.m,  rows.h,
            state.PitchDiameter,  state.Kn,           row == 2};
}

/// The lines of all balls. They have no order among themselves, so the compiler may take several at once.
void placeLines(const SolverState& state, const RowGeometry& rows, const std::vector<double>& cosines,
                const ContactLines& one, const ContactLines& two) {
    const double R = state.CentreRadius;
    const double da = state.AxialDisp;
    const double dr = state.RadialDisp;
    const double t = state.Tilt;
    const double m = rows.m;
    const auto balls = static_cast<std::size_t>(state.BallCount) + 1;
    for (std::size_t i = 1; i < balls; ++i) {
        const double c = cosines[i];
        one.x[i] = (rows.x1 + dr * c) - (m * c) * t;
        one.y[i] = (rows.y1 + da) + (R * c) * t;
        two.x[i] = (rows.x2 + dr * c) + (m * c) * t;
        two.y[i] = (rows.y2 - da) - (R * c) * t;
    }
    for (const ContactLines& lines : {one, two}) {
        for (std::size_t i = 1; i < balls; ++i)
            lines.length[i] = std::sqrt(lines.x[i] * lines.x[i] + lines.y[i] * lines.y[i]);
    }
}

/// The sums of the stiffness, ball after ball. Row 2 pulls against row 1 along the axis, so its axial terms
/// over the radial displacement and the tilt count negative: only so is the sum the derivative of the forces.
struct StiffnessSums {
    double k11 = 0.0, k12 = 0.0, k13 = 0.0, k22 = 0.0, k23 = 0.0, k31 = 0.0, k32 = 0.0, k33 = 0.0;

    void add(const ContactBlock& one, std::size_t i, const ContactBlock& two, std::size_t j, double c) {
        k11 += one.k11[i] + two.k11[j];
        k12 += one.k12[i] - two.k12[j];
        k13 += one.k13[i] - two.k13[j];
        k22 += one.k22[i] + two.k22[j];
        k23 += one.k23[i] + two.k23[j];
        k31 += c * one.k11[i] + c * two.k11[j];
        k32 += c * one.k12[i] - c * two.k12[j];
        k33 += c * one.k13[i] - c * two.k13[j];
    }

    Matrix3 matrix() const {
        Matrix3 J{};
        J[1] = {0.0, checked(k11), checked(k12), checked(k13)};
        J[2] = {0.0, checked(k12), checked(k22), checked(k23)};
        J[3] = {0.0, checked(k31), checked(k32), checked(k33)};
        return J;
    }
};

/// The three force sums, ball after ball.
struct ForceSums {
    double axial = 0.0, radial = 0.0, moment = 0.0;

    void add(const ContactBlock& one, std::size_t i, const ContactBlock& two, std::size_t j) {
        axial = (axial + one.axialForce[i]) - two.axialForce[j];
        radial = (radial + one.radialForce[i]) + two.radialForce[j];
        moment = (moment + one.moment[i]) - two.moment[j];
    }
};

}  // namespace

std::vector<double> ballCosines(int balls, double spacing) {
    std::vector<double> cosines(static_cast<std::size_t>(balls) + 1);
    for (std::size_t i = 1; i < cosines.size(); ++i) {
        cosines[i] = std::cos((static_cast<double>(i) - 1.0) * spacing);
    }
    return cosines;
}

Assembly AssembleRows(SolverState& state, const std::vector<double>& cosines) {
    const RowGeometry rows = rowGeometry(state);
    const ContactLines first = linesOf(state, 1);
    const ContactLines second = linesOf(state, 2);
    placeLines(state, rows, cosines, first, second);
    const RowConstants rowOne = rowConstants(state, rows, 1);
    const RowConstants rowTwo = rowConstants(state, rows, 2);
    const auto balls = static_cast<std::size_t>(state.BallCount);
    ForceSums sums;
    StiffnessSums stiffness;
    for (std::size_t begin = 1; begin <= balls; begin += ContactBlock::kBalls) {
        const std::size_t end = std::min(balls, begin + ContactBlock::kBalls - 1);
        ContactBlock one(first, cosines.data(), begin, end, rowOne);
        one.stiffen();
        ContactBlock two(second, cosines.data(), begin, end, rowTwo);
        two.stiffen();
        for (std::size_t ball = begin; ball <= end; ++ball) {
            const std::size_t i = one.slot(ball - begin);
            const std::size_t j = two.slot(ball - begin);
            if (i == 0 && j == 0) continue;  // nothing adds nothing to any sum
            sums.add(one, i, two, j);
            stiffness.add(one, i, two, j, cosines[ball]);
        }
    }
    Assembly assembly;
    assembly.lastArm1 = divide(rows.h * first.x[balls], first.y[balls]) + state.PitchDiameter;
    state.ForceAxialSum = checked(sums.axial);
    state.ForceRadialSum = checked(sums.radial);
    state.MomentSum = checked(sums.moment);
    assembly.stiffness = stiffness.matrix();
    return assembly;
}

void writeBallTables(SolverState& state, const std::vector<double>& cosines) {
    const RowGeometry rows = rowGeometry(state);
    const auto balls = static_cast<std::size_t>(state.BallCount);
    for (int row = 1; row <= 2; ++row) {
        const ContactLines lines = linesOf(state, row);
        const RowConstants constants = rowConstants(state, rows, row);
        for (std::size_t begin = 1; begin <= balls; begin += ContactBlock::kBalls) {
            const std::size_t end = std::min(balls, begin + ContactBlock::kBalls - 1);
            const ContactBlock block(lines, cosines.data(), begin, end, constants);
            for (std::size_t ball = begin; ball <= end; ++ball) {
                const std::size_t slot = block.slot(ball - begin);
                state.BallSinAngle.row(row)[ball] = divide(lines.y[ball], lines.length[ball]);
                state.BallCosAngle.row(row)[ball] = divide(lines.x[ball], lines.length[ball]);
                state.BallDeflection.row(row)[ball] =
                    std::max(lines.length[ball] - state.CentreDistance, 0.0);
                state.BallLoad.row(row)[ball] = block.Q[slot];
                state.BallRadialForce.row(row)[ball] = block.radialForce[slot];
                state.BallAxialForce.row(row)[ball] = block.axialForce[slot];
            }
        }
    }
}

void writeBallAngles(SolverState& state) {
    for (int row = 1; row <= 2; ++row) {
        for (int i = 1; i <= state.BallCount; ++i) {
            if (state.BallDist(row, i) - state.CentreDistance < 0.0) {
                state.BallAngleText(row, i) = "  N/A ";
                continue;
            }
            const double angle =
                std::atan(divide(state.BallY(row, i), state.BallX(row, i))) * 180.0 / PiValue;
            state.BallAngleText(row, i) = FormatNumber(angle, "##0.0000").substr(0, 6);
        }
    }
}

}  // namespace norlaplan
