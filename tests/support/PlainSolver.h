#pragma once

#include <cmath>
#include <vector>

#include "support/PlainContact.h"
#include "support/PlainLife.h"

/// The two solvers typed once more, plainly: nothing worked out ahead, no guards.
namespace norlaplan::plain {

/// One row, radial load alone.
inline Result solveRadialRow(const Bearing& bearing) {
    Result result;
    contactConstants(bearing, 0.0, result);
    const double c = bearing.clearance;
    const double F = bearing.radialLoad;
    const double Kn = result.Kn;
    const int Z = bearing.balls;
    const double w = kTwoPi / Z;
    result.load[1].assign(static_cast<std::size_t>(Z) + 1, 0.0);
    double lower = 0.0;
    double upper = 1.0;
    double u = std::pow((F * 5.0) / (Z * Kn), 2.0 / 3.0) / 2.0;
    if (c > 0.0) {
        u = std::pow((F * 5.0) / (Z * Kn), 2.0 / 3.0) + c / 2.0;
        lower = c / 2.0;
    }
    const double sign = -F;
    bool bisecting = false;
    float count = 0.0F;
    double previous = u + 0.00001;
    if (F == 0.0) u = 0.0;
    for (;;) {
        double sumF = 0.0;
        double sumDF = 0.0;
        for (float i = 1.0F; i <= static_cast<float>(Z); i += 1.0F) {
            const double psi = (static_cast<double>(i) - 1.0) * w;
            double delta = u * std::cos(psi) - c / 2.0;
            if (delta < 0.0) delta = 0.0;
            const double Q = std::pow(delta, 1.5) * Kn;
            result.load[1][static_cast<std::size_t>(i)] = Q;
            const double stiffness = (Kn * 1.5) * (std::cos(psi) * std::cos(psi)) * std::sqrt(delta);
            sumF = std::cos(psi) * Q + sumF;
            sumDF = sumDF + stiffness;
        }
        if (std::fabs(sumF - F) < 0.000001) break;
        if (bisecting) {
            if ((sumF - F) * sign > 0.0) {
                lower = u;
            } else {
                upper = u;
            }
            previous = u;
            u = (upper + lower) / 2.0;
            count += 1.0F;
        } else if (sumF < 0.0 || count > 25.0F) {
            bisecting = true;
            u = previous + 0.000001;
        } else {
            previous = u;
            u = u - (sumF - F) / sumDF;
            if (previous == u) break;
            count += 1.0F;
        }
    }
    result.radial = u;
    result.iterations = static_cast<int>(count);
    lifeAndSafety(bearing, 0.0, 1, 7080.0, result);
    return result;
}

/// The sums of one pass over both rows, for the displacements in hand.
struct Pass {
    double axial = 0.0, radial = 0.0, moment = 0.0, lastArm = 0.0;
    double J[4][4] = {};
};

struct Rows {
    double A0 = 0.0, R = 0.0, h = 0.0, m = 0.0, x1 = 0.0, y1 = 0.0, y2 = 0.0, w = 0.0;
};

inline Pass assemble(const Bearing& bearing, const Rows& rows, Result& result) {
    Pass pass;
    const double dm = bearing.pitchDiameter;
    const double Kn = result.Kn;
    for (float ball = 1.0F; ball <= static_cast<float>(bearing.balls); ball += 1.0F) {
        const auto i = static_cast<std::size_t>(ball);
        const double c = std::cos((static_cast<double>(ball) - 1.0) * rows.w);
        double F[3] = {};
        double G[3] = {};
        double M[3] = {};
        double k[3][4][4] = {};
        for (int row = 1; row <= 2; ++row) {
            const double x = row == 1 ? (rows.x1 + result.radial * c) - (rows.m * c) * result.tilt
                                      : (rows.x1 + result.radial * c) + (rows.m * c) * result.tilt;
            const double y = row == 1 ? (rows.y1 + result.axial) + (rows.R * c) * result.tilt
                                      : (rows.y2 - result.axial) - (rows.R * c) * result.tilt;
            const double d = std::sqrt(x * x + y * y);
            const double e = d - rows.A0;
            if (y == 0.0 || d == 0.0 || (e >= 0.0 && x == 0.0)) result.unstable = true;
            const double Q = std::pow(e > 0.0 ? e : 0.0, 3.0 / 2.0) * Kn;
            result.load[row][i] = Q;
            F[row] = Q * (y / d);
            G[row] = (c * Q) * (x / d);
            const double arm = (rows.h * x) / y + dm;
            if (row == 1) pass.lastArm = arm;
            M[row] = row == 1 ? (((y / d) * Q * c) * arm) / 2.0 : ((Q * (y / d) * c) * arm) / 2.0;
            if (e < 0.0) continue;
            const double S = std::sqrt(e) / std::pow(d, 3.0);
            const double T = rows.A0 + d / 2.0;
            const double R = rows.R;
            const double m = rows.m;
            auto& a = k[row];
            a[1][1] = S * (d * (1.5 * (y * y) + x * x) - rows.A0 * (x * x));
            a[1][2] = ((c * x) * y) * S * T;
            a[2][1] = ((c * x) * y) * S * T;
            a[2][2] = ((c * c) * S) * ((d * d) * e + (x * x) * T);
            if (row == 1) {
                a[1][3] = (S * c) * ((R * (d * d)) * e + (y * T) * (R * y - m * x));
                a[2][3] = ((c * c) * S) * ((x * T) * (R * y - m * x) - (m * (d * d)) * e);
            } else {
                a[1][3] = (S * c) * ((y * T) * (m * x - R * y) - (R * (d * d)) * e);
                a[2][3] = ((c * c) * S) * ((x * T) * (m * x - R * y) + (m * (d * d)) * e);
            }
            for (int j = 1; j <= 3; ++j)
                a[3][j] = c * a[1][j];
        }
        pass.axial = (pass.axial + F[1]) - F[2];
        pass.radial = (pass.radial + G[1]) + G[2];
        pass.moment = (pass.moment + M[1]) - M[2];
        constexpr int kSigns[4][4] = {{}, {0, 1, -1, -1}, {0, -1, 1, 1}, {0, 1, -1, -1}};
        for (int r = 1; r <= 3; ++r) {
            for (int j = 1; j <= 3; ++j)
                pass.J[r][j] += k[1][r][j] + kSigns[r][j] * k[2][r][j];
        }
    }
    return pass;
}

/// Solves J x = b by LU factors without pivoting, by way of the inverse.
inline void solve3(const double (&J)[4][4], const double (&b)[4], double (&x)[4]) {
    double U[4][4];
    double L[4][4] = {};
    double Y[4][4] = {};
    double X[4][4] = {};
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j)
            U[i][j] = J[i][j];
        L[i][i] = 1.0;
    }
    for (int k = 1; k <= 2; ++k) {
        for (int i = k + 1; i <= 3; ++i) {
            const double l = U[i][k] / U[k][k];
            L[i][k] = l;
            for (int j = k; j <= 3; ++j)
                U[i][j] = U[i][j] - l * U[k][j];
        }
    }
    for (int j = 1; j <= 3; ++j) {
        for (int i = 1; i <= 3; ++i) {
            double sum = 0.0;
            for (int k = 1; k <= 3; ++k)
                sum += Y[k][j] * L[i][k];
            Y[i][j] = ((i == j ? 1.0 : 0.0) - sum) / L[i][i];
        }
        for (int i = 3; i >= 1; --i) {
            double sum = 0.0;
            for (int k = 1; k <= 3; ++k)
                sum += U[i][k] * X[k][j];
            X[i][j] = (Y[i][j] - sum) / U[i][i];
        }
    }
    for (int i = 1; i <= 3; ++i) {
        x[i] = 0.0;
        for (int k = 1; k <= 3; ++k)
            x[i] = x[i] + X[i][k] * b[k];
    }
}

/// Two rows, three loads; styles X, B and F at a contact angle above 0. It stops after `mostSteps` at the
/// latest.
inline Result solveCoupledRows(const Bearing& bearing, int mostSteps = 9000) {
    Result result;
    const double alpha =
        static_cast<double>(static_cast<float>(static_cast<double>(bearing.angleDegrees) * kPi / 180.0));
    contactConstants(bearing, alpha, result);
    const double D = bearing.ballDiameter;
    const double f = 100.0 * static_cast<double>(bearing.grooveRadius) / D;
    const int Z = bearing.balls;
    const double Kn = result.Kn;
    const double Fa = bearing.axialLoad;
    const double Fr = bearing.radialLoad;
    const bool pair = bearing.style != 'X';
    const double g = pair ? static_cast<double>(bearing.clearance) : 0.0;
    const double Pd = pair ? static_cast<double>(static_cast<float>(
                                 ((1.0 - std::cos(alpha)) * ((D + D) * ((f + f) - 100.0))) / 100.0))
                           : static_cast<double>(bearing.clearance);
    Rows rows;
    rows.w = kTwoPi / Z;
    rows.A0 = (((f + f) - 100.0) * D) / 100.0;
    rows.R = static_cast<double>(static_cast<float>((((f - 50.0) / 100.0) * D) * std::cos(alpha) +
                                                    static_cast<double>(bearing.pitchDiameter) / 2.0));
    const double P = ((rows.A0 + rows.A0) - Pd) / (rows.A0 + rows.A0);
    const double A0Cos = std::cos(alpha) * rows.A0;
    const double A0Sin = std::sin(alpha) * rows.A0;
    const double length = std::pow(Fa / ((Z * Kn) * std::sin(alpha)), 2.0 / 3.0) + rows.A0;
    result.axial = std::sqrt(length * length - A0Cos * A0Cos) - A0Sin;
    if (g > 0.0) result.axial = g + result.axial;
    result.radial = std::pow((std::fabs(Fr) * 5.0) / ((P * P) * (Z * Kn)), 2.0 / 3.0) * (1.0 / 2.0);
    if (Fr < 0.0) result.radial = -result.radial;
    if (Pd > 0.0) result.radial = Pd / 2.0 + result.radial;
    if (result.radial == 0.0) result.radial = 0.0001;
    const double s = bearing.spacing;
    rows.h = bearing.style == 'B' ? g / 2.0 + s : bearing.style == 'F' ? g / 2.0 - s : 0.0;
    rows.m = A0Sin / 2.0 - rows.h / 2.0;
    rows.x1 = pair ? A0Cos : A0Cos - Pd / 2.0;
    rows.y1 = pair ? A0Sin - g / 2.0 : Pd > 0.0 ? std::sqrt(rows.A0 * rows.A0 - rows.x1 * rows.x1) : A0Sin;
    rows.y2 = pair ? rows.y1 : (A0Sin + A0Sin) - rows.y1;
    for (auto& load : result.load)
        load.assign(static_cast<std::size_t>(Z) + 1, 0.0);
    result.iterations = 1;
    for (;;) {
        const Pass pass = assemble(bearing, rows, result);
        if (result.unstable) return result;
        const double M = bearing.moment;
        const double b[4] = {0.0, (pass.axial - Fa) / Kn, (pass.radial - Fr) / Kn,
                             (pass.moment - M) / ((Kn * pass.lastArm) / 2.0)};
        double x[4] = {};
        solve3(pass.J, b, x);
        const double da = result.axial - x[1];
        const double dr = result.radial - x[2];
        const double t = result.tilt - x[3];
        int converged = 0;
        if (std::fabs(pass.axial - Fa) < 0.00000001 || da == result.axial) ++converged;
        if (std::fabs(pass.radial - Fr) < 0.00000001 || dr == result.radial) ++converged;
        if (std::fabs(pass.moment - M) < 0.00000001 || t == result.tilt) ++converged;
        if (converged >= 3 || result.iterations > mostSteps) break;
        result.axial = da;
        result.radial = dr;
        result.tilt = t;
        ++result.iterations;
    }
    lifeAndSafety(bearing, alpha, 2, pair ? 6700.0 : 7080.0, result);
    return result;
}

}  // namespace norlaplan::plain
