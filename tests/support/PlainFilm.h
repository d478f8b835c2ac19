#pragma once

#include <cmath>

#include "support/PlainContact.h"

/// The film check typed once more, plainly: every pass walks its panels anew, every power is worked out where
/// it stands.
namespace norlaplan::plain {

struct FilmInput {
    double ballDiameter = 0.0, pitchDiameter = 0.0, angle = 0.0, load = 0.0, speed = 0.0;
    double gravity = 0.0, viscosity = 0.0;
    bool ssu = true;
};

struct Film {
    double stress = 0.0, ellipticity = 0.0, film = 0.0, lambda = 0.0, factor = 0.0, viscosity = 0.0;
    int passes = 0;
};

inline double panelRoot(double t, double phi) {
    return std::sqrt(1.0 - (std::sin(t) * std::sin(t)) * (std::sin(phi) * std::sin(phi)));
}

inline void contactAtInner(const FilmInput& in, Film& out) {
    const double r1 = in.ballDiameter / 2.0;
    const double r3 = ((in.pitchDiameter / std::cos(in.angle)) - in.ballDiameter) / 2.0;
    const double r4 = (-0.01 * in.ballDiameter) * 53.0;
    const double sum = ((1.0 / r1 + 1.0 / r1) + 1.0 / r3) + 1.0 / r4;
    const double target = (((1.0 / r1 - 1.0 / r1) + 1.0 / r3) - 1.0 / r4) / sum;
    const double h = kPi / 2000.0;
    double t = 0.001;
    double step = kPi / 2.0;
    double Ka = 0.0;  // grows over all passes
    double Ea = 0.0;
    for (;;) {
        ++out.passes;
        Ea = 0.0;
        for (double phi = 0.0; phi <= kPi / 2.0 - h; phi += h) {
            Ka += ((1.0 / panelRoot(t, phi) + 1.0 / panelRoot(t, phi + h)) / 2.0) * h;
            Ea += ((panelRoot(t, phi) + panelRoot(t, phi + h)) / 2.0) * h;
        }
        const double d = (2.0 * (Ka - Ea)) * ((1.0 / std::tan(t)) * (1.0 / std::tan(t)));
        const double c1 = 1.0 - d / Ea;
        if (c1 < target) {
            t = t + step;
        } else if (c1 - target > 0.00001) {
            t = t - step;
            step = step * 0.5;
            t = t + step;
        } else {
            break;
        }
    }
    const double n = std::pow(((2.0 * Ea) * std::cos(t)) / kPi, 1.0 / 3.0);
    const double m = n / std::cos(t);
    const double e = (4.0 * (1.0 - 0.25 * 0.25)) / 29000000.0;
    const double p = std::pow((3.0 * in.load * (e + e)) / (8.0 * sum), 1.0 / 3.0);
    out.ellipticity = (m * p) / (n * p);
    out.stress = in.load / ((kPi * (m * p)) * (n * p));
}

inline double filmFor(const FilmInput& in, double k, double s) {
    const double a = 0.000774 * std::pow(s / std::pow(10.0, 4.0), 0.163);
    const double Eq = 29000000.0 / (1.0 - 0.25 * 0.25);
    const double G = a * Eq;
    const double eta = ((s * (1.0 / (2.54 * 2.54))) * (1.0 / 386.0)) * (in.gravity * 0.03612729);
    const double gamma = (in.ballDiameter * std::cos(in.angle)) / in.pitchDiameter;
    const double Rx = (in.ballDiameter / 2.0) * (1.0 - gamma);
    const double Nc = 0.5 * (in.speed * (1.0 - gamma) + 0.0 * (gamma + 1.0));
    const double w1 = ((std::fabs(in.speed - Nc) * 2.0) * kPi) / 60.0;
    const double w2 =
        (((0.5 * std::fabs(in.speed - 0.0)) * (1.0 - gamma * gamma)) * (in.pitchDiameter / in.ballDiameter)) *
        (kTwoPi / 60.0);
    const double u = (in.pitchDiameter / 2.0) * ((1.0 - gamma) * w1 + gamma * w2);
    const double U = (eta * u) / ((2.0 * Eq) * Rx);
    const double W = in.load / (Eq * (Rx * Rx));
    return (((3.63 * std::pow(U, 0.68)) * std::pow(G, 0.49)) * (1.0 - std::pow(2.7183, k * -0.68))) /
           std::pow(W, 0.073);
}

inline double lifeFactor(double lambda) {
    const float points[22][2] = {
        {0.5879F, 0.164F},  {0.6874F, 0.2439F}, {0.7861F, 0.3238F}, {0.8927F, 0.4016F}, {1.0F, 0.5194F},
        {1.0528F, 0.6203F}, {1.1818F, 0.9946F}, {1.2766F, 1.2343F}, {1.3938F, 1.4992F}, {1.5748F, 1.7663F},
        {1.81F, 2.0039F},   {1.9847F, 2.1279F}, {2.1996F, 2.248F},  {2.3879F, 2.3298F}, {3.0855F, 2.518F},
        {3.9642F, 2.6515F}, {5.0068F, 2.7503F}, {5.9938F, 2.8134F}, {6.9933F, 2.8702F}, {8.0208F, 2.9206F},
        {9.0818F, 2.9627F}, {10.0F, 3.0F}};
    if (lambda < static_cast<double>(points[0][0])) return 0.16;
    if (lambda >= 10.0) return 3.0;
    for (int n = 1; n < 22; ++n) {
        const double x0 = points[n - 1][0];
        const double x1 = points[n][0];
        if (lambda > x1) continue;
        const double y0 = points[n - 1][1];
        const double y1 = points[n][1];
        return y0 + (lambda - x0) / (x1 - x0) * (y1 - y0);
    }
    return 3.0;
}

inline Film film(const FilmInput& in) {
    Film out;
    const double v = in.viscosity;
    double s = v / 100.0;
    if (in.ssu) s = v > 100.0 ? v * 0.0022 - 1.35 / v : v * 0.00226 - 1.95 / v;
    contactAtInner(in, out);
    const double sigma = std::sqrt((2.0 * 1.1) * (2.0 * 1.1) + (12.0 * 1.1) * (12.0 * 1.1)) * 0.000001;
    out.film = filmFor(in, out.ellipticity, s);
    out.lambda = out.film / sigma;
    out.factor = lifeFactor(out.lambda);
    double x = 0.01;
    for (; x <= 20.0; x += 0.01) {
        if (filmFor(in, out.ellipticity, x) >= 3.0 * sigma) break;
    }
    out.viscosity = x * 100.0;
    return out;
}

}  // namespace norlaplan::plain
