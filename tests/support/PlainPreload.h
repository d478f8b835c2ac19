#pragma once

#include <cmath>

#include "state/BearingSpec.h"

/// The preload calculations written down once more, line by line in plain numbers: no guards, no helpers.
/// What the program finds must equal this to the last bit.
namespace norlaplan::testing {

struct PlainPreload {
    double ballLoad = 0.0;
    double beta = 0.0;  ///< of a pair
    float preloadBore = 0, preloadOd = 0, meanClearance = 0, contactAngleDegrees = 0;
    float loadPercent = 0;
};

class PlainPreloadSolver {
  public:
    explicit PlainPreloadSolver(const BearingSpec& b)
        : bore(b.bore),
          od(b.outsideDiameter),
          si(b.innerSection),
          so(b.outerSection),
          wi(b.innerWidth),
          wo(b.outerWidth),
          dm(b.pitchDiameter),
          D(b.ballDiameter),
          r(b.raceRadius),
          p(b.fitHigh),
          radial(b.dynamicRadial),
          thrust(b.dynamicThrust),
          Z(static_cast<double>(b.ballCount)),
          K(b.ciPlusCo * static_cast<double>(7.810637e-6F)),
          Do(od - so),
          Di(bore + si) {}

    PlainPreload singleRow(bool radialContact) const {
        const double E = 29000000.0F;
        double Ci, Co, beta, rated;
        if (radialContact) {
            beta = 0.0;
            rated = 4.37 * radial / Z;
            Co = Z * (Do * Do) / (2.0 * so * wo * E * dm * pi);
            Ci = Z * (Di * Di) / (2.0 * si * wi * E * dm * pi);
        } else {
            beta = 94.2477796077 / 180.0;
            rated = (thrust / Z) / 0.5;
            Co = std::cos(beta) * Z * (Do * Do) / (so * wo * E * dm * pi);
            Ci = std::cos(beta) * Z * (Di * Di) / (si * wi * E * dm * pi);
        }
        const double A = 2.0 * K / (std::pow(D, 1.0 / 3.0) * std::cos(beta));
        double x = 1.0, next = 1.0, change = 1.0;
        while (!(change < 1e-7)) {
            x = next;
            const double f = x * (Ci + Co) + A * std::pow(x, 2.0 / 3.0) - p;
            const double slope = (Ci + Co) + (2.0 * A / 3.0) * std::pow(x, -1.0 / 3.0);
            next = x - f / slope;
            change = std::fabs(next - x);
        }
        x = next;
        PlainPreload result;
        result.ballLoad = x;
        result.preloadBore = static_cast<float>(bore - x * Ci);
        result.preloadOd = static_cast<float>(od + x * Co);
        result.meanClearance = static_cast<float>(-A * std::pow(x, 2.0 / 3.0));
        result.loadPercent = static_cast<float>(100.0 * x / rated);
        return result;
    }

    PlainPreload pair() const {
        PlainPreload result;
        const double beta = result.beta = pairAngle();
        const double A = K / (std::pow(D, 1.0 / 3.0) * std::cos(beta));
        const double Ci = std::cos(beta) * Z * (Di * Di) / (182212373.90822 * Di * si * wi);
        const double Co = std::cos(beta) * Z * (Do * Do) / (182212373.90822 * Do * so * wo);
        const double T = p * std::tan(beta);
        double x = 1.0;
        while (true) {
            const double f = x * (Ci + Co) + 2.0 * A * std::pow(x * x, 1.0 / 3.0) - std::fabs(T);
            double slope;
            if (x > 0.0)
                slope = (Ci + Co) + (4.0 * A / 3.0) * std::pow(x, -1.0 / 3.0);
            else
                slope = (Ci + Co) - (4.0 * A / 3.0) * std::pow(std::fabs(x), -1.0 / 3.0);
            const double next = x - f / slope;
            if (std::fabs(next - x) < 1e-7) break;
            x = next;
        }
        result.ballLoad = x;
        result.preloadBore = static_cast<float>(bore - x * Ci);
        result.preloadOd = static_cast<float>(od + x * Co);
        const double d = K * std::pow(x, 2.0 / 3.0) / std::pow(D, 1.0 / 3.0);
        const double D2 = D - d;
        const double a = 4.0 * r * (1.0 - std::cos(beta)) + 2.0 * D2 * (std::cos(beta) - 1.0);
        const double b = a - 2.0 * d;
        const double v = 1.0 + b / (2.0 * D - 4.0 * r);
        const double beta2 = std::atan(std::sqrt(std::pow(v, -2.0) - 1.0));
        result.meanClearance =
            static_cast<float>(2.0 * ((2.0 * r - D) * std::sin(beta2) - (2.0 * r - D2) * std::sin(beta)));
        result.contactAngleDegrees = static_cast<float>(beta2 * 180.0 / pi);
        result.loadPercent = static_cast<float>(100.0 * x / ((thrust / Z) / 0.5));
        return result;
    }

    /// The angle whose deflections add up to half the preload, by the four nested searches.
    double pairAngle() const {
        const double Ci = Di / (si * 5.8e7 * wi * pi);
        const double Co = Do / (so * 5.8e7 * wo * pi);
        const double B = 2.0 * r / D - 1.0;
        const double Kn = std::pow(B / K, 1.5);
        const double target = p / 2.0;
        const double alpha0 = 94.2477796077 / 180.0;
        double step = 10000.0, P = 0.0;
        while (true) {
            P = P + step;
            double beta = alpha0, dbeta = 0.017452, y = 0.0;
            bool accepted = false;
            while (!accepted) {
                do {
                    beta = beta + dbeta;
                    const double U = 2.0 * B * D * std::pow(std::sin(beta), 1.0 / 3.0) /
                                     (std::pow(Z * Kn * (D * D), 2.0 / 3.0) * (Ci + Co));
                    const double V =
                        2.0 * B * D * std::sin(beta) * (std::cos(alpha0) / std::cos(beta) - 1.0) / (Ci + Co);
                    y = innerLoad(U, V);
                } while (y < P);
                accepted = std::fabs(y - P) <= 1.0;
                if (!accepted) {
                    beta = beta - dbeta;
                    dbeta = dbeta / 2.0;
                }
            }
            const double got =
                B * D * (std::tan(beta) * std::cos(alpha0) - std::sin(alpha0)) - (Ci + Co) * y / 2.0;
            if (std::fabs(got - target) <= 1e-5) return beta;
            if (got > target) {
                P = P - step;
                step = step / 10.0;
            }
        }
    }

    /// y + U y^(2/3) = V: the value on which the last step was taken, as a 32-bit float.
    static float innerLoad(double U, double V) {
        double y = 1.0;
        while (true) {
            double f, slope;
            if (y >= 0.0) {
                f = y + U * std::pow(y, 2.0 / 3.0) - V;
                slope = 1.0 + (2.0 * U / 3.0) * std::pow(y, -1.0 / 3.0);
            } else {
                f = y + U * std::pow(y * y, 1.0 / 3.0) - V;
                slope = 1.0 - (2.0 * U / 3.0) * std::pow(std::fabs(y), -1.0 / 3.0);
            }
            const double next = y - f / slope;
            if (std::fabs(next - y) < 1e-8) return static_cast<float>(y);
            y = next;
        }
    }

  private:
    static constexpr double pi = 3.14159265359;
    double bore, od, si, so, wi, wo, dm, D, r, p, radial, thrust, Z, K, Do, Di;
};

}  // namespace norlaplan::testing
