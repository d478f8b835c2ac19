#include "loaddist/AssembleRows.h"

#include <algorithm>
#include <cmath>

#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

/// The sums over all balls, ball after ball, each ball row 1 before row 2.
struct RowSums {
    double axial = 0.0, radial = 0.0, moment = 0.0;
    double k11 = 0.0, k12 = 0.0, k13 = 0.0, k22 = 0.0, k23 = 0.0, k31 = 0.0, k32 = 0.0, k33 = 0.0;

    void addForces(const ContactBlock& block, std::size_t i) {
        axial += block.axialForce[i];
        radial += block.radialForce[i];
        moment += block.moment[i];
    }

    /// A ball that touches in one row.
    void add(const ContactBlock& block, std::size_t i) {
        addForces(block, i);
        k11 += block.k11[i];
        k12 += block.k12[i];
        k13 += block.k13[i];
        k22 += block.k22[i];
        k23 += block.k23[i];
        k31 += block.k31[i];
        k32 += block.k32[i];
        k33 += block.k33[i];
    }

    /// A ball that touches in both: its two stiffnesses are added to each other first.
    void add(const ContactBlock& block, std::size_t i, std::size_t j) {
        addForces(block, i);
        addForces(block, j);
        k11 += block.k11[i] + block.k11[j];
        k12 += block.k12[i] + block.k12[j];
        k13 += block.k13[i] + block.k13[j];
        k22 += block.k22[i] + block.k22[j];
        k23 += block.k23[i] + block.k23[j];
        k31 += block.k31[i] + block.k31[j];
        k32 += block.k32[i] + block.k32[j];
        k33 += block.k33[i] + block.k33[j];
    }

    /// All contacts of the block, its two rows merged.
    void add(const ContactBlock& block) {
        std::size_t i = 0;
        std::size_t j = block.second();
        while (i < block.second() && j < block.end()) {
            if (block.ball(i) == block.ball(j)) {
                add(block, i++, j++);
            } else if (block.ball(i) < block.ball(j)) {
                add(block, i++);
            } else {
                add(block, j++);
            }
        }
        while (i < block.second())
            add(block, i++);
        while (j < block.end())
            add(block, j++);
    }

    Matrix3 matrix() const {
        Matrix3 J{};
        J[1] = {0.0, checked(k11), checked(k12), checked(k13)};
        J[2] = {0.0, checked(k12), checked(k22), checked(k23)};
        J[3] = {0.0, checked(k31), checked(k32), checked(k33)};
        return J;
    }
};

/// Lines, angles and deflections of all balls of a row. That no line is without length the assembly has seen.
/// A loop for a few columns each: the compiler takes numbers side by side only where it can tell columns
/// apart.
void writeLines(SolverState& state, int row, const RowLines& lines, const std::vector<double>& cosines) {
    double* const x = state.BallX.row(row);
    double* const y = state.BallY.row(row);
    double* const d = state.BallDist.row(row);
    for (std::size_t ball = 1; ball < cosines.size(); ++ball) {
        x[ball] = lines.x(cosines[ball]);
        y[ball] = lines.y(cosines[ball]);
    }
    for (std::size_t ball = 1; ball < cosines.size(); ++ball)
        d[ball] = std::sqrt(x[ball] * x[ball] + y[ball] * y[ball]);
    double* const sine = state.BallSinAngle.row(row);
    double* const cosine = state.BallCosAngle.row(row);
    for (std::size_t ball = 1; ball < cosines.size(); ++ball) {
        sine[ball] = y[ball] / d[ball];
        cosine[ball] = x[ball] / d[ball];
    }
    const double A0 = state.CentreDistance;
    double* const deflection = state.BallDeflection.row(row);
    for (std::size_t ball = 1; ball < cosines.size(); ++ball)
        deflection[ball] = d[ball] - A0 > 0.0 ? d[ball] - A0 : 0.0;
}

/// Loads and forces of the block's contacts in a row; those of the other balls are zero.
void writeContacts(SolverState& state, int row, const ContactBlock& block) {
    const double sign = row == 1 ? 1.0 : -1.0;
    const std::size_t begin = row == 1 ? 0 : block.second();
    const std::size_t end = row == 1 ? block.second() : block.end();
    for (std::size_t contact = begin; contact < end; ++contact) {
        const std::size_t ball = block.ball(contact);
        state.BallLoad.row(row)[ball] = block.Q[contact];
        state.BallRadialForce.row(row)[ball] = block.radialForce[contact];
        state.BallAxialForce.row(row)[ball] = sign * block.axialForce[contact];
    }
}

}  // namespace

std::vector<double> ballCosines(int balls, double spacing) {
    std::vector<double> cosines(static_cast<std::size_t>(balls) + 1);
    for (std::size_t i = 1; i < cosines.size(); ++i) {
        cosines[i] = std::cos((static_cast<double>(i) - 1.0) * spacing);
    }
    return cosines;
}

CoupledRows::CoupledRows(SolverState& state) : cosines_(ballCosines(state.BallCount, state.BallSpacing)) {
    const double A0 = state.CentreDistance;
    const double R = state.CentreRadius;
    const double g = state.GapDistance;
    const double s = state.CenterlineSpacing;
    const double Pd = state.DiametralClearance;
    const bool pair = state.StyleIsB || state.StyleIsF;
    state.A0Cos = std::cos(state.ContactAngle) * A0;
    state.A0Sin = std::sin(state.ContactAngle) * A0;
    double h = 0.0;
    if (state.StyleIsB) h = g / 2.0 + s;
    if (state.StyleIsF) h = g / 2.0 - s;
    state.ArmOffset = h;
    const double m = state.A0Sin / 2.0 - h / 2.0;
    const double x = pair ? state.A0Cos : state.A0Cos - Pd / 2.0;
    if (pair) {
        y1_ = state.A0Sin - g / 2.0;
        y2_ = y1_;
    } else {
        y1_ = Pd > 0.0 ? squareRoot(A0 * A0 - x * x) : state.A0Sin;
        y2_ = (state.A0Sin + state.A0Sin) - y1_;
    }
    // The tilt moves the second row's centres the other way.
    rest_ = {
        {x, y1_, m, R, 0.0, 0.0}, {x, y2_, -m, -R, 0.0, 0.0}, A0, R, m, h, state.PitchDiameter, state.Kn};
    blocks_ = std::make_unique_for_overwrite<ContactBlock[]>(blockCount());
}

ContactRows CoupledRows::at(const SolverState& state) const {
    ContactRows rows = rest_;
    rows.one.y0 = y1_ + state.AxialDisp;
    rows.two.y0 = y2_ - state.AxialDisp;
    for (RowLines* const lines : {&rows.one, &rows.two}) {
        lines->dr = state.RadialDisp;
        lines->t = state.Tilt;
    }
    return rows;
}

Assembly AssembleRows(SolverState& state, CoupledRows& rows) {
    const ContactRows here = rows.at(state);
    const double* const cosines = rows.cosines().data();
    RowSums sums;
    for (std::size_t i = 0; i < rows.blockCount(); ++i) {
        const std::size_t first = i * ContactBlock::kBalls + 1;
        rows.block(i).take(here, cosines, first, std::min(rows.balls(), first + ContactBlock::kBalls - 1));
        sums.add(rows.block(i));
    }
    const double last = cosines[rows.balls()];
    Assembly assembly;
    assembly.lastArm1 = divide(here.h * here.one.x(last), here.one.y(last)) + here.dm;
    state.ForceAxialSum = checked(sums.axial);
    state.ForceRadialSum = checked(sums.radial);
    state.MomentSum = checked(sums.moment);
    assembly.stiffness = sums.matrix();
    return assembly;
}

void writeBallTables(SolverState& state, CoupledRows& rows) {
    const ContactRows here = rows.at(state);
    for (int row = 1; row <= 2; ++row) {
        writeLines(state, row, row == 1 ? here.one : here.two, rows.cosines());
        for (std::size_t i = 0; i < rows.blockCount(); ++i)
            writeContacts(state, row, rows.block(i));
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
