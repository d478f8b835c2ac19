#pragma once

#include <cmath>

/// The capacity integration typed once more, plainly: every sine, root and panel where it is used. What the
/// program makes fast must agree with it to the last bit.
namespace norlaplan::plain {

struct Capacity {
    float radial = 0.0F, thrust = 0.0F, ciPlusCo = 0.0F;
};

struct Match {
    double b = 0.0, K = 0.0, E = 0.0;
};

inline Match matchCapacityEllipse(double targetRatio) {
    constexpr double pi = 3.14159265359;
    const double h = pi / 2000.0;
    Match match;
    match.b = 0.001;
    double s = pi / 2.0;
    for (;;) {
        match.K = 0.0;
        match.E = 0.0;
        const double b = match.b;
        const auto q = [b](double x) {
            return std::sqrt(1.0 - std::sin(b) * std::sin(b) * std::sin(x) * std::sin(x));
        };
        const double limit = pi / 2.0 - h;
        for (double x = 0.0; x <= limit; x = x + h) {
            match.K = match.K + h * (1.0 / q(x) + 1.0 / q(x + h)) / 2.0;
            match.E = match.E + h * (q(x) + q(x + h)) / 2.0;
        }
        const double cotangent = 1.0 / std::tan(b);
        const double ratio = 1.0 - 2.0 * (cotangent * cotangent) * (match.K - match.E) / match.E;
        if (ratio < targetRatio) {
            match.b = match.b + s;
        } else if (ratio - targetRatio > 1e-05) {
            match.b = match.b - s;
            s = s * 0.5;
            match.b = match.b + s;
        } else {
            return match;
        }
    }
}

/// Mode "A" of a bearing: inches, pounds, radians.
inline Capacity capacityOfModeA(float pitchDiameter, float ballDiameter, int balls, double alpha,
                                float raceRadius) {
    constexpr double pi = 3.14159265359;
    const double dm = pitchDiameter;
    const double D = ballDiameter;
    const double r = raceRadius;
    const double Z = balls;
    const double alpha32 = static_cast<double>(static_cast<float>(alpha));
    const double loadFactor = 5.2599 + 0.02674 * dm;
    const double cycles = (1.0 - D * std::cos(alpha) / dm) * Z / 2.0;
    double constants[2];
    Match match;
    double curvatureSum = 0.0;
    for (int race = 0; race < 2; ++race) {
        const double R2 =
            race == 0 ? (dm / std::cos(alpha32) - D) / 2.0 : -(dm / std::cos(alpha32) + D) / 2.0;
        const double signedRatio = race == 0 ? -D * std::cos(alpha32) / dm : D * std::cos(alpha32) / dm;
        curvatureSum = 1.0 / (D / 2.0) + 1.0 / (D / 2.0) + 1.0 / R2 + 1.0 / -r;
        const double difference = 1.0 / (D / 2.0) - 1.0 / (D / 2.0) + 1.0 / R2 - 1.0 / -r;
        match = matchCapacityEllipse(difference / curvatureSum);
        const double conformity = 4.0 - 1.0 / (r / D) - 2.0 * signedRatio / (1.0 + signedRatio);
        constants[race] = match.K * std::pow(std::cos(match.b), 2.0 / 3.0) / std::pow(match.E, 1.0 / 3.0) *
                          std::pow(conformity, 1.0 / 3.0);
    }
    const double shortAxis = std::pow(2.0 * match.E * std::cos(match.b) / pi, 1.0 / 3.0);
    const double longAxis = shortAxis / std::cos(match.b);
    const double theta = 4.0 * (1.0 - 0.25 * 0.25) / 29000000.0;
    const double ballLoad = std::pow(std::pow(3.0 * (theta + theta), 2.0 / 3.0) * longAxis * shortAxis * pi *
                                         262500.0 / std::pow(8.0 * curvatureSum, 2.0 / 3.0),
                                     3.0);
    const double cycleTerm = std::pow(cycles * 1000000.0 / std::pow(10.0, 8.0), 1.0 / 3.0);
    const double base = Z * ballLoad / loadFactor;
    return {static_cast<float>(cycleTerm * base * std::cos(alpha)),
            static_cast<float>(0.5 * 1.0 * (D * D) * 15325.0 * std::pow(Z, 2.0 / 3.0)),
            static_cast<float>(constants[0] + constants[1])};
}

}  // namespace norlaplan::plain
