#pragma once

#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include "state/BearingSpec.h"

/// The deflection calculation written down once more, line by line in plain numbers: no guards, no helpers,
/// nothing kept from one step for the next. What the program finds must equal this to the last bit. It may
/// run without end where the calculation does.
namespace norlaplan::testing {

struct PlainPoint {
    double load = 0.0, deflection = 0.0;
};

struct PlainAxialRow {
    double load = 0.0, angle = 0.0, deflection = 0.0;
    bool relief = false;
};

struct PlainDeflection {
    double radialSpringRate = 0.0, axialSpringRate = 0.0, momentSpringRate = 0.0;
    float radialReliefLoad = 0.0F, axialReliefLoad = 0.0F, momentReliefLoad = 0.0F;
    double radialConstant = 0.0, momentConstant1 = 0.0, momentConstant2 = 0.0, initialTilt = 0.0;
    double angle1 = 0.0;  ///< of a pair: the angle at half the preload
    float curveOffset = 0.0F;
    std::vector<PlainAxialRow> rows;
    std::vector<PlainPoint> radialCurve, axialCurve, momentCurve;
};

class PlainDeflectionSolver {
  public:
    PlainDeflectionSolver(const BearingSpec& b, double preload)
        : style(b.styleLetter[0]),
          P(preload),
          pd(b.pitchDiameter),
          D(b.ballDiameter),
          Z(static_cast<double>(b.ballCount)),
          alpha(b.contactAngle),
          momentArm(b.momentArm),
          C(b.ciPlusCo),
          si(b.innerSection),
          so(b.outerSection),
          wi(b.innerWidth),
          wo(b.outerWidth),
          Di(b.bore + b.innerSection),
          Do(b.outsideDiameter - b.outerSection),
          Si(wi * si),
          So(wo * so),
          B(std::pow(D, 1.0 / 3.0) * std::pow(Z, 2.0 / 3.0)) {}

    PlainDeflection solve(double maxRadial, double maxAxial, double maxMoment) {
        if (P == 0.0) {
            r.curveOffset = 0.0F;
            r.radialReliefLoad = r.axialReliefLoad = r.momentReliefLoad = -1.0F;
        } else if (style == 'X') {
            fourPoint();
        } else if (style == 'C') {
            radialContact();
        } else {
            pair();
        }
        constants();
        if (style != 'C') axialPoints(maxAxial);
        curves(maxRadial, maxAxial, maxMoment);
        return r;
    }

    int angleSearches = 0, innerSolves = 0;

  private:
    void fourPoint() {
        const double radialHertz =
            std::pow(share, 2.0 / 3.0) * k * C / (std::pow(pd * std::sin(alpha), 2.0 / 3.0) * B);
        const double ringFactor = (share / 2.0) * std::cos(alpha) / ((pd * pd) * pi * E * std::tan(alpha));
        const double innerRing = ringFactor * (Di * Di) / Si;
        const double outerRing = ringFactor * (Do * Do) / So;
        float x = static_cast<float>(newton(innerRing + outerRing, radialHertz, P * std::cos(alpha)));
        r.momentReliefLoad = x;
        const double angle1 = std::pow(share, 2.0 / 3.0) * k2 * C * std::pow(double(x), 2.0 / 3.0) /
                              (std::pow(pd * std::sin(alpha), 5.0 / 3.0) * B);
        const double ringFactor2 =
            (share / 2.0) * x / (std::pow(pd, 3.0) * E * std::tan(alpha) * std::tan(alpha) * pi);
        const double tilt =
            angle1 + ringFactor2 * (Di * Di) / Si + ringFactor2 * (Do * Do) / So - P / (pd * std::tan(alpha));
        r.momentSpringRate = x / tilt;

        const double ballHertz = C * k2 / (std::pow(D, 1.0 / 3.0) * std::cos(alpha));
        const double ballRing = Z * std::cos(alpha) / (pd * E * pi);
        const double ballLoad = newton(ballRing * (Di * Di) / Si + ballRing * (Do * Do) / So, ballHertz, P);
        const double preloadRadial = 2.0 * Z * ballLoad * std::cos(alpha) / share;
        const double deflectionAtPreload = std::pow(share / 2.0, 2.0 / 3.0) * k * C *
                                           std::pow(preloadRadial, 2.0 / 3.0) /
                                           (std::pow(std::cos(alpha), 5.0 / 3.0) * B);
        const double reliefPoint =
            std::pow(std::pow(std::cos(alpha), 5.0 / 3.0) * std::pow(Z, 2.0 / 3.0) * std::pow(D, 1.0 / 3.0) *
                         P / (std::pow(share / 2.0, 2.0 / 3.0) * k * C),
                     1.5);
        r.radialReliefLoad = static_cast<float>(reliefPoint - preloadRadial);
        r.radialSpringRate = r.radialReliefLoad / (P - deflectionAtPreload);

        const double axialHertz = C * k / (std::pow(std::sin(alpha), 2.0 / 3.0) * B);
        const double ringAxial = std::cos(alpha) / (5.8e7 * pi * std::tan(alpha));
        x = static_cast<float>(
            newton(ringAxial * Di / Si + ringAxial * Do / So, axialHertz, P * std::cos(alpha)));
        r.axialReliefLoad = x;
        const double axialApproach = C * k / (std::pow(std::sin(alpha), 5.0 / 3.0) * B);
        const double axialRing = 1.0 / ((std::tan(alpha) * std::tan(alpha)) * 4.0 * E * pi);
        const double axialRingInner = axialRing * Di / Si;
        const double axialRingOuter = axialRing * Do / So;
        const double axialDeflection = axialApproach * std::pow(double(x), 2.0 / 3.0) +
                                       (axialRingInner + axialRingOuter) * x - P / (2.0 * std::tan(alpha));
        r.axialSpringRate = x / axialDeflection;
    }

    void radialContact() {
        const double e = (-P) / (A * D);
        const double halfRatio = e / (-2.0);
        const double loadMultiplier = std::pow(A / (C * k), 1.5);
        const double h = pi / 180.0;
        const auto g = [&](double t) {
            return std::pow(std::cos(t) - e / (2.0 * halfRatio), 1.5) * std::cos(t);
        };
        double sum = g(0.0), last = 0.0;
        for (double t = h; t <= pi; t = t + h) {
            last = g(t);
            sum = sum + 2.0 * last;
        }
        sum = sum + last;
        const double integral = h * sum / 2.0;
        r.radialReliefLoad =
            static_cast<float>(Z * integral * loadMultiplier * D * D * std::pow(halfRatio, 1.5) / pi);
        r.radialSpringRate = r.radialReliefLoad / (halfRatio * A * D);
    }

    void pair() {
        const double innerExpansion = (Di * Di) / (2.0 * pd * E * si * wi * pi);
        const double outerExpansion = (Do * Do) / (2.0 * pd * E * so * wo * pi);
        const double ringSum = innerExpansion + outerExpansion;
        const double loadMultiplier = std::pow(A / (C * k), 3.0 / 2.0);
        double reliefHalf = 0.0;
        double target = P / 2.0;
        for (int pass = 1; pass <= 2; ++pass) {
            double step = 949.0, axialLoad = 0.0, angle = 0.0;
            while (true) {
                axialLoad = axialLoad + step;
                double thrust = 0.0;
                angle = angleSearch(axialLoad, ringSum, loadMultiplier, 1.0, thrust);
                const double deflection =
                    A * D * (std::tan(angle) * std::cos(alpha) - std::sin(alpha)) - ringSum * thrust / 2.0;
                if (std::fabs(deflection - target) < 1e-05) break;
                if (deflection > target) {
                    axialLoad = axialLoad - step;
                    step = step / 10.0;
                }
            }
            if (pass == 1) {
                reliefHalf = axialLoad;
                target = P;
                r.angle1 = angle;
            } else {
                r.axialReliefLoad = static_cast<float>(axialLoad);
            }
        }
        const double a = r.angle1;
        const double arm = style == 'B' ? pd + wi / std::tan(a) : std::fabs(pd - wi / std::tan(a));
        r.axialSpringRate = 2.0 * r.axialReliefLoad / P;
        r.momentSpringRate = r.axialReliefLoad * arm * pd / (2.0 * P);
        r.momentReliefLoad = static_cast<float>(r.axialReliefLoad * arm / 2.0);

        const double rho =
            C * k * std::pow(reliefHalf, 2.0 / 3.0) / (std::pow(std::sin(a), 5.0 / 3.0) * B) / (A * D);
        const double axial = rho + std::sin(a);
        const double shift = -(std::sqrt(1.0 - axial * axial) - std::cos(a));
        const auto G = [&](double t) {
            const double across = std::cos(a) + shift * std::cos(t);
            double radius = std::sqrt(axial * axial + across * across);
            if (radius < 1.0) radius = 1.0;
            return std::pow(radius - 1.0, 3.0 / 2.0) * (std::cos(a) + shift * std::cos(t)) * std::cos(t) /
                   radius;
        };
        double sum = G(0.0) * 0.5, t = 0.0;
        for (int i = 0; i < 180; ++i) {
            t = t + pi / 180.0;
            sum = sum + G(t);
        }
        r.radialReliefLoad = static_cast<float>(2.0 * Z * loadMultiplier * (D * D) / pi * (pi / 180.0) * sum);
        r.radialSpringRate = r.radialReliefLoad / (shift * A * D);
    }

    void constants() {
        const double sine = std::sin(alpha), cosine = std::cos(alpha), tangent = std::tan(alpha);
        if (style == 'C') {
            r.radialConstant = std::pow(5.0, 2.0 / 3.0) * C * k / B;
            return;
        }
        r.radialConstant =
            std::pow(5.0, 2.0 / 3.0) * C * k / (std::pow(2.0, 2.0 / 3.0) * std::pow(cosine, 5.0 / 3.0) * B);
        if (style == 'X') {
            r.momentConstant1 = std::pow(share, 2.0 / 3.0) * k2 * C / (std::pow(pd * sine, 5.0 / 3.0) * B);
            r.momentConstant2 =
                (share / 2.0) * (Di * Di) / ((tangent * tangent) * std::pow(pd, 3.0) * pi * si * wi * E) +
                (share / 2.0) * (Do * Do) / ((tangent * tangent) * std::pow(pd, 3.0) * pi * so * wo * E);
            r.initialTilt = D * A * (sine - std::sin(30.0 * pi / 180.0)) / pd;
            return;
        }
        r.momentConstant1 = std::pow(share, 2.0 / 3.0) * k2 * C /
                            (std::pow(Z, 2.0 / 3.0) * std::pow(D, 1.0 / 3.0) * pd *
                             std::pow(momentArm, 2.0 / 3.0) * std::pow(sine, 5.0 / 3.0));
        r.momentConstant2 =
            (share / 2.0) * (Di * Di) /
                ((pd - D * cosine) * (tangent * tangent) * momentArm * si * pi * wi * E * pd) +
            (share / 2.0) * (Do * Do) /
                ((pd + D * cosine) * (tangent * tangent) * momentArm * so * pi * wo * E * pd);
    }

    void axialPoints(double load) {
        const double innerExpansion = Di / (si * 5.8e7 * wi * pi);
        const double outerExpansion = Do / (so * 5.8e7 * wo * pi);
        const double ringSum = innerExpansion + outerExpansion;
        const double loadMultiplier = std::pow(A / (C * k), 1.5);
        r.rows.push_back({0.0, 30.0 * pi / 180.0, 0.0, false});
        bool past = false;
        for (double counter = load / 50.0; counter <= load + 0.1; counter = counter + load / 50.0) {
            double L = counter;
            bool relief = false;
            if (P != 0.0 && !past && counter > r.axialReliefLoad) {
                past = relief = true;
                L = std::floor(r.axialReliefLoad);
                counter = counter - std::floor(load / 50.0);
            }
            double thrust = 0.0;
            const double angle = angleSearch(L, ringSum, loadMultiplier, 0.1, thrust);
            const double deflection =
                A * D * (std::tan(angle) * std::cos(alpha) - std::sin(alpha)) - ringSum * L / 2.0;
            if (r.rows.size() < 55) r.rows.push_back({L, angle, deflection, relief});
        }
    }

    void curves(double maxRadial, double maxAxial, double maxMoment) {
        (void)maxAxial;
        for (int i = 0; i <= 50; ++i) {
            double load = i * maxRadial / 50.0;
            const double relief = r.radialReliefLoad;
            if (P != 0.0 && load > relief && load - relief < maxRadial / 50.0) {
                load = relief;
                r.curveOffset = static_cast<float>(std::pow(relief, 2.0 / 3.0) * r.radialConstant -
                                                   relief / r.radialSpringRate);
            }
            const double deflection = load <= relief
                                          ? load / r.radialSpringRate
                                          : std::pow(load, 2.0 / 3.0) * r.radialConstant - r.curveOffset;
            r.radialCurve.push_back({load, deflection});
        }
        if (style == 'C') return;
        for (int i = 0; i <= 50; ++i) {
            double load = i * maxMoment / 50.0;
            const double relief = r.momentReliefLoad;
            if (P != 0.0 && load > relief && load - relief < maxMoment / 50.0) {
                load = relief;
                r.curveOffset = static_cast<float>(std::pow(relief, 2.0 / 3.0) * r.momentConstant1 +
                                                   r.momentConstant2 * relief - relief / r.momentSpringRate);
            }
            const double deflection = load <= relief ? load / r.momentSpringRate
                                                     : std::pow(load, 2.0 / 3.0) * r.momentConstant1 +
                                                           r.momentConstant2 * load - r.curveOffset;
            r.momentCurve.push_back({load, deflection});
        }
        for (std::size_t i = 0; i <= 50; ++i) {
            const PlainAxialRow& row = r.rows.at(i);
            const double relief = r.axialReliefLoad;
            if (row.relief) r.curveOffset = static_cast<float>(row.deflection - relief / r.axialSpringRate);
            const double deflection =
                row.load <= relief ? row.load / r.axialSpringRate : row.deflection - r.curveOffset;
            r.axialCurve.push_back({row.load, deflection});
        }
    }

    double angleSearch(double axialLoad, double ringSum, double loadMultiplier, double window,
                       double& thrust) {
        ++angleSearches;
        double angle = alpha, da = 0.017452;
        while (true) {
            angle = angle + da;
            const double a1 = 2.0 * A * D * std::pow(std::sin(angle), 1.0 / 3.0) /
                              (ringSum * std::pow(Z * loadMultiplier * (D * D), 2.0 / 3.0));
            const double b1 =
                2.0 * A * D * std::sin(angle) * (std::cos(alpha) / std::cos(angle) - 1.0) / ringSum;
            thrust = pairNewton(a1, b1);
            if (thrust < axialLoad) continue;
            if (std::fabs(thrust - axialLoad) > window) {
                angle = angle - da;
                da = da / 10.0;
                continue;
            }
            return angle;
        }
    }

    double pairNewton(double a1, double b1) {
        ++innerSolves;
        double x = 1.0;
        while (true) {
            double f, slope;
            if (x >= 0.0) {
                f = x + a1 * std::pow(x, 2.0 / 3.0) - b1;
                slope = 1.0 + (2.0 * a1 / 3.0) * std::pow(x, -1.0 / 3.0);
            } else {
                f = x + a1 * std::pow(x * x, 1.0 / 3.0) - b1;
                slope = 1.0 - (2.0 * a1 / 3.0) * std::pow(std::fabs(x), 1.0 / 3.0);
            }
            const double next = x - f / slope;
            if (std::fabs(x - next) < 1e-07) return x;
            x = next;
        }
    }

    static double newton(double a, double b, double c) {
        double x = 1.0;
        while (true) {
            const double f = x * a + b * std::pow(x, 2.0 / 3.0) - c;
            const double slope = a + (2.0 * b / 3.0) * std::pow(x, -1.0 / 3.0);
            const double next = x - f / slope;
            if (std::fabs(x - next) < 1e-07) return x;
            x = next;
        }
    }

    static constexpr double pi = 3.14159265359;
    static constexpr double A = 2.0 * 53.0 / 100.0 - 1.0;
    static constexpr double k = 7.810637e-06F;
    static constexpr double k2 = 1.5621274e-05F;
    static constexpr double E = 2.9e7F;
    static constexpr double share = 4.37F;

    char style;
    double P, pd, D, Z, alpha, momentArm, C, si, so, wi, wo, Di, Do, Si, So, B;
    PlainDeflection r;
};

}  // namespace norlaplan::testing
