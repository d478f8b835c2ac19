#include "loaddist/AssembleRows.h"

#include <cmath>

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

/// One ball in one row.
struct Contact {
    double x = 0.0, y = 0.0, d = 0.0, sine = 0.0, cosine = 0.0;
    double e = 0.0;  ///< approach; negative out of touch
    double Q = 0.0;
};

/// One row of the ball tables, for writing ball after ball.
struct BallRow {
    BallRow(SolverState& state, int row)
        : x(state.BallX.row(row)),
          y(state.BallY.row(row)),
          dist(state.BallDist.row(row)),
          sine(state.BallSinAngle.row(row)),
          cosine(state.BallCosAngle.row(row)),
          deflection(state.BallDeflection.row(row)),
          load(state.BallLoad.row(row)),
          radialForce(state.BallRadialForce.row(row)),
          axialForce(state.BallAxialForce.row(row)) {}

    double *x, *y, *dist, *sine, *cosine, *deflection, *load, *radialForce, *axialForce;
};

Contact placeBall(const BallRow& row, int ball, double x, double y, double c, double A0, double Kn) {
    Contact contact;
    contact.x = x;
    contact.y = y;
    contact.d = std::sqrt(x * x + y * y);
    contact.sine = divide(y, contact.d);
    contact.cosine = divide(x, contact.d);
    contact.e = contact.d - A0;
    // The angle's text divides by x, so a contact line along the axis is a fault here as well.
    if (contact.e >= 0.0 && x == 0.0) raise(fault::kDivisionByZero);
    const double deflection = contact.e > 0.0 ? contact.e : 0.0;
    contact.Q = deflection > 0.0 ? power(deflection, 3.0 / 2.0) * Kn : 0.0;
    row.x[ball] = x;
    row.y[ball] = y;
    row.dist[ball] = contact.d;
    row.sine[ball] = contact.sine;
    row.cosine[ball] = contact.cosine;
    row.deflection[ball] = deflection;
    row.load[ball] = contact.Q;
    row.radialForce[ball] = (c * contact.Q) * contact.cosine;
    row.axialForce[ball] = contact.Q * contact.sine;
    return contact;
}

/// The terms of one ball's stiffness; the rows differ in the two that the tilt makes.
struct Stiffness {
    double k11 = 0.0, k12 = 0.0, k13 = 0.0, k21 = 0.0, k22 = 0.0, k23 = 0.0;
};

Stiffness ballStiffness(const Contact& contact, int row, double A0, double R, double m, double c) {
    Stiffness k;
    if (contact.e < 0.0) return k;
    const double x = contact.x;
    const double y = contact.y;
    const double d = contact.d;
    const double e = contact.e;
    const double S = std::sqrt(e) / std::pow(d, 3.0);
    const double T = A0 + d / 2.0;
    k.k11 = S * (d * (1.5 * (y * y) + x * x) - A0 * (x * x));
    k.k12 = ((c * x) * y) * S * T;
    k.k21 = k.k12;
    k.k22 = ((c * c) * S) * ((d * d) * e + (x * x) * T);
    if (row == 1) {
        k.k13 = (S * c) * ((R * (d * d)) * e + (y * T) * (R * y - m * x));
        k.k23 = ((c * c) * S) * ((x * T) * (R * y - m * x) - (m * (d * d)) * e);
    } else {
        k.k13 = (S * c) * ((y * T) * (m * x - R * y) - (R * (d * d)) * e);
        k.k23 = ((c * c) * S) * ((x * T) * (m * x - R * y) + (m * (d * d)) * e);
    }
    return k;
}

/// Row 2 pulls against row 1 along the axis, so its axial terms over the radial displacement and the tilt
/// count negative: only so is the sum the derivative of the forces.
void addStiffness(Matrix3& J, const Stiffness& a, const Stiffness& b, double c) {
    J[1][1] += a.k11 + b.k11;
    J[1][2] += a.k12 - b.k12;
    J[1][3] += a.k13 - b.k13;
    J[2][1] += a.k21 - b.k21;
    J[2][2] += a.k22 + b.k22;
    J[2][3] += a.k23 + b.k23;
    J[3][1] += c * a.k11 + c * b.k11;
    J[3][2] += c * a.k12 - c * b.k12;
    J[3][3] += c * a.k13 - c * b.k13;
}

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
    const double A0 = state.CentreDistance;
    const double R = state.CentreRadius;
    const double dm = state.PitchDiameter;
    const double da = state.AxialDisp;
    const double dr = state.RadialDisp;
    const double t = state.Tilt;
    const double m = rows.m;
    const double Kn = state.Kn;
    const BallRow first(state, 1);
    const BallRow second(state, 2);
    Assembly assembly;
    double axial = 0.0;
    double radial = 0.0;
    double moment = 0.0;
    for (int i = 1; i <= state.BallCount; ++i) {
        const double c = cosines[static_cast<std::size_t>(i)];
        const Contact one =
            placeBall(first, i, (rows.x1 + dr * c) - (m * c) * t, (rows.y1 + da) + (R * c) * t, c, A0, Kn);
        const Contact two =
            placeBall(second, i, (rows.x2 + dr * c) + (m * c) * t, (rows.y2 - da) - (R * c) * t, c, A0, Kn);
        axial = (axial + first.axialForce[i]) - second.axialForce[i];
        radial = (radial + first.radialForce[i]) + second.radialForce[i];
        const double arm1 = divide(rows.h * one.x, one.y) + dm;
        const double arm2 = divide(rows.h * two.x, two.y) + dm;
        moment = (moment + ((one.sine * one.Q * c) * arm1) / 2.0) - ((two.Q * two.sine * c) * arm2) / 2.0;
        addStiffness(assembly.stiffness, ballStiffness(one, 1, A0, R, m, c),
                     ballStiffness(two, 2, A0, R, m, c), c);
        assembly.lastArm1 = arm1;
    }
    state.ForceAxialSum = checked(axial);
    state.ForceRadialSum = checked(radial);
    state.MomentSum = checked(moment);
    for (std::size_t i = 1; i <= 3; ++i) {
        for (std::size_t j = 1; j <= 3; ++j)
            checked(assembly.stiffness[i][j]);
    }
    return assembly;
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
