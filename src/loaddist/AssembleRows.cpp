#include "loaddist/AssembleRows.h"

#include <cmath>

#include "numbers/Arithmetic.h"
#include "numbers/ExactPowers.h"
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

/// The contact lines of one row: radial and axial part and length, from ball 0 on.
struct Lines {
    Lines(SolverState& state, int row)
        : x(state.BallX.row(row)), y(state.BallY.row(row)), length(state.BallDist.row(row)) {}

    double *x, *y, *length;
};

/// The lines of all balls. They have no order among themselves, so the compiler may take several at once.
void placeLines(const SolverState& state, const RowGeometry& rows, const std::vector<double>& cosines,
                const Lines& one, const Lines& two) {
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
    for (const Lines& lines : {one, two}) {
        for (std::size_t i = 1; i < balls; ++i)
            lines.length[i] = std::sqrt(lines.x[i] * lines.x[i] + lines.y[i] * lines.y[i]);
    }
}

/// One ball in one row. Out of touch it carries nothing, and nothing adds nothing to any sum.
struct Contact {
    Contact(const Lines& lines, int ball, double A0)
        : x(lines.x[ball]), y(lines.y[ball]), d(lines.length[ball]), e(d - A0), touches(!(e < 0.0)) {
        // The moment's arm divides by y, the angle's text by x.
        if (y == 0.0 || d == 0.0 || (touches && x == 0.0)) raise(fault::kDivisionByZero);
    }

    double x, y, d;
    double e;  ///< approach
    bool touches;
    double sine = 0.0, cosine = 0.0, Q = 0.0;
};

inline void load(Contact& contact, double Kn) {
    contact.sine = divide(contact.y, contact.d);
    contact.cosine = divide(contact.x, contact.d);
    if (contact.e > 0.0) contact.Q = powerThreeHalves(contact.e) * Kn;
}

inline double momentArm(const Contact& contact, double h, double dm) {
    return divide(h * contact.x, contact.y) + dm;
}

double momentOf(const Contact& contact, double c, double h, double dm) {
    return ((contact.sine * contact.Q * c) * momentArm(contact, h, dm)) / 2.0;
}

/// The terms of one ball's stiffness; the rows differ in the two that the tilt makes.
struct Stiffness {
    double k11 = 0.0, k12 = 0.0, k13 = 0.0, k21 = 0.0, k22 = 0.0, k23 = 0.0;
};

inline Stiffness ballStiffness(const Contact& contact, int row, double A0, double R, double m, double c) {
    Stiffness k;
    const double x = contact.x;
    const double y = contact.y;
    const double d = contact.d;
    const double e = contact.e;
    const double S = std::sqrt(e) / cube(d);
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
    const double Kn = state.Kn;
    const double h = rows.h;
    const double m = rows.m;
    const Lines first(state, 1);
    const Lines second(state, 2);
    placeLines(state, rows, cosines, first, second);
    Assembly assembly;
    double axial = 0.0;
    double radial = 0.0;
    double moment = 0.0;
    for (int i = 1; i <= state.BallCount; ++i) {
        Contact one(first, i, A0);
        Contact two(second, i, A0);
        if (i == state.BallCount) assembly.lastArm1 = momentArm(one, h, dm);
        if (!one.touches && !two.touches) continue;
        const double c = cosines[static_cast<std::size_t>(i)];
        Stiffness a;
        Stiffness b;
        if (one.touches) {
            load(one, Kn);
            a = ballStiffness(one, 1, A0, R, m, c);
            moment = moment + momentOf(one, c, h, dm);
        }
        if (two.touches) {
            load(two, Kn);
            b = ballStiffness(two, 2, A0, R, m, c);
            moment = moment - momentOf(two, c, h, dm);
        }
        axial = (axial + one.Q * one.sine) - two.Q * two.sine;
        radial = (radial + (c * one.Q) * one.cosine) + (c * two.Q) * two.cosine;
        addStiffness(assembly.stiffness, a, b, c);
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

void writeBallTables(SolverState& state, const std::vector<double>& cosines) {
    for (int row = 1; row <= 2; ++row) {
        const Lines lines(state, row);
        for (int i = 1; i <= state.BallCount; ++i) {
            Contact contact(lines, i, state.CentreDistance);
            load(contact, state.Kn);
            state.BallSinAngle(row, i) = contact.sine;
            state.BallCosAngle(row, i) = contact.cosine;
            state.BallDeflection(row, i) = contact.e > 0.0 ? contact.e : 0.0;
            state.BallLoad(row, i) = contact.Q;
            state.BallRadialForce(row, i) =
                (cosines[static_cast<std::size_t>(i)] * contact.Q) * contact.cosine;
            state.BallAxialForce(row, i) = contact.Q * contact.sine;
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
