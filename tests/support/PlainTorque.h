#pragma once

#include <array>
#include <cmath>

#include "state/BearingSpec.h"

/// The torque curve written down once more, line by line in plain numbers: no guards, no helpers. What the
/// program finds must equal this to the last bit.
namespace norlaplan::testing {

struct PlainTorque {
    std::array<float, 52> preload{}, torque{};
};

class PlainTorqueCurve {
  public:
    explicit PlainTorqueCurve(const BearingSpec& b)
        : style(b.styleLetter),
          separator(b.separatorCode),
          Z(static_cast<double>(b.ballCount)),
          d(b.ballDiameter),
          dm(b.pitchDiameter),
          ti(b.innerSection),
          to(b.outerSection),
          Wi(b.innerWidth),
          Wo(b.outerWidth),
          Kd(b.ciPlusCo),
          Di(b.innerSection + b.bore),
          Do(b.outsideDiameter - b.outerSection) {}

    PlainTorque curve() const {
        PlainTorque table;
        for (int i = 1; i <= 50; ++i) {
            const double p = i / 10000.0;
            table.preload[static_cast<std::size_t>(i)] = static_cast<float>(p);
            table.torque[static_cast<std::size_t>(i)] = style == "X" ? x(p) : style == "C" ? c(p) : pair(p);
        }
        return table;
    }

    /// The loaded contact angle of a pair at preload p.
    double pairAngle(double p) const {
        const float h = static_cast<float>(p / 2.0);
        const double B = 53.0 * 0.02 - 1.0;
        const double S = static_cast<double>(ringInner()) + static_cast<double>(ringOuter());
        const double Kn = static_cast<float>(std::pow(B / (Kd * 7.810636816429906e-06F), 3.0 / 2.0));
        double step = 0.314159265359 / 180.0;
        double b = a0;
        double g = 0.0;
        while (true) {
            b = b + step;
            const double A1 =
                (2.0 * B * d * std::pow(std::sin(b), 1.0 / 3.0)) / (std::pow(Z * Kn * d * d, 2.0 / 3.0) * S);
            const double A2 = (2.0 * B * d * std::sin(b) * (std::cos(a0) / std::cos(b) - 1.0)) / S;
            const double x = 2.0 * (B * d * (std::tan(b) * std::cos(a0) - std::sin(a0)) - h) / S;
            if (x > 0.0) g = x + A1 * std::pow(x, 2.0 / 3.0) - A2;
            if (x < 0.0) g = x + A1 * std::pow(x * x, 1.0 / 3.0) - A2;
            if (x < 0.0 || g < 0.0) continue;
            if (std::fabs(g) > 0.01) {
                b = b - step;
                step = step / 10.0;
                continue;
            }
            return b;
        }
    }

  private:
    static constexpr double pi = 3.14159265359;
    static constexpr double a0 = 94.2477796077 / 180.0;

    static float newton(double R, double H, double p) {
        double Q = 1.0;
        while (true) {
            const double f = R * Q + 2.0 * H * std::pow(Q, 2.0 / 3.0) - p;
            const double slope = R + (2.0 * 2.0 * H / 3.0) * std::pow(Q, -1.0 / 3.0);
            const double next = Q - f / slope;
            if (std::fabs(next - Q) < 1e-7) return static_cast<float>(Q);
            Q = next;
        }
    }

    float x(double p) const {
        const double a = 94.2477796077 / 180.0;
        const double H = Kd * 1.562127363285981e-05F / (2.0 * std::pow(d, 1.0 / 3.0) * std::cos(a));
        const float Ro =
            static_cast<float>((Do * Do * Z * std::cos(a)) / (Wo * to * 29000000.0 * dm * 3.14159265359));
        const float Ri =
            static_cast<float>((Di * Di * Z * std::cos(a)) / (Wi * ti * 29000000.0 * dm * 3.14159265359));
        const double Q = newton(static_cast<double>(Ro) + static_cast<double>(Ri), H, p);
        return static_cast<float>(Q * Z * dm * 0.006);
    }

    float c(double p) const {
        const double a = 0.0;
        const double H = Kd * 1.562127363285981e-05F / (2.0 * std::pow(d, 1.0 / 3.0) * std::cos(a));
        const float Ro = static_cast<float>((Do * Do * Z * std::cos(a)) /
                                            (2.0 * to * Wo * 29000000.0 * dm * 3.14159265359));
        const float Ri = static_cast<float>((Di * Di * Z * std::cos(a)) /
                                            (2.0 * ti * Wi * 29000000.0 * dm * 3.14159265359));
        const double Q = newton(static_cast<double>(Ro) + static_cast<double>(Ri), H, p);
        return static_cast<float>(Q * Z * dm * 0.002 / 2.0);
    }

    float ringInner() const { return static_cast<float>(Di / (ti * 58000000.0 * Wi * pi)); }
    float ringOuter() const { return static_cast<float>(Do / (to * 58000000.0 * Wo * pi)); }

    float pair(double p) const {
        const double coefficient = separator == "M" || separator == "F" || separator == "W" ? 0.004 : 0.002;
        const double b = pairAngle(p);
        const double h = static_cast<float>(p / 2.0);
        const double w = -2.0 * h * std::tan(b);
        const double Ei = (Di * Di * Z * std::cos(b)) / (dm * 91106186.95411 * ti * Wi) / 2.0;
        const double Eo = (Do * Do * Z * std::cos(b)) / (dm * 91106186.95411 * to * Wo) / 2.0;
        const double G = Kd * 7.810636816429906e-06F / (std::pow(d, 1.0 / 3.0) * std::cos(b));
        double Q = 1.0;
        while (true) {
            const double f = Q * (Ei + Eo) + 2.0 * G * std::pow(Q * Q, 1.0 / 3.0) - std::fabs(w);
            const double s = Q > 0.0 ? 1.0 : -1.0;
            const double slope = (Ei + Eo) + (4.0 * G / 3.0) * s * std::pow(std::fabs(Q), -1.0 / 3.0);
            const double next = Q - f / slope;
            if (std::fabs(next - Q) < 1e-7) break;
            Q = next;
        }
        return static_cast<float>(std::fabs(static_cast<float>(Q)) * dm * coefficient * Z);
    }

    std::string style, separator;
    double Z, d, dm, ti, to, Wi, Wo, Kd, Di, Do;
};

}  // namespace norlaplan::testing
