#pragma once

#include <cmath>
#include <vector>

/// The contact constants typed once more, plainly: every formula as it is stated, nothing worked out ahead,
/// no guards. What the program makes fast must agree with it to the last bit.
namespace norlaplan::plain {

constexpr double kPi = 3.14159265359;
constexpr double kTwoPi = 6.28318530718;

struct Integrals {
    double K = 0.0, E = 0.0;
};

inline Integrals ellipticIntegrals(double m) {
    Integrals sum;
    double wPrev = 1.0;
    double vPrev = 1.0;
    for (float j = 1.0F; j <= 1000.0F; j += 1.0F) {
        const double phi = static_cast<double>(j) * kPi / 2000.0;
        const double sine = std::sin(phi);
        const double w = std::sqrt(1.0 - m * (sine * sine));
        const double v = 1.0 / w;
        sum.K = sum.K + (v + vPrev) * kPi / 4000.0;
        sum.E = sum.E + (w + wPrev) * kPi / 4000.0;
        vPrev = v;
        wPrev = w;
    }
    return sum;
}

struct Bearing {
    char style = 'X';
    float pitchDiameter = 0.0F, ballDiameter = 0.0F;
    int balls = 0;
    float grooveRadius = 0.0F, spacing = 0.0F, clearance = 0.0F, angleDegrees = 30.0F;
    float radialLoad = 0.0F, axialLoad = 0.0F, moment = 0.0F;
};

struct Race {
    float K = 0.0F, E = 0.0F, kappaSq = 0.0F, kappa = 0.0F, curvatureSum = 0.0F;
};

struct Result {
    float elasticSum = 0.0F, Kn = 0.0F;
    double CiCo = 0.0;
    Race inner, outer;
    double axial = 0.0, radial = 0.0, tilt = 0.0;
    int iterations = 0;
    bool unstable = false;  ///< a division by zero ended the solve; there is no life
    std::vector<double> load[3];
    std::vector<float> innerMajor[3], innerMinor[3], innerStress[3];
    std::vector<float> outerMajor[3], outerMinor[3], outerStress[3];
    float innerCapacity = 0.0F, outerCapacity = 0.0F;
    float cubeMean[3] = {}, tenthMean[3] = {};
    float innerRotation[3] = {}, outerRotation[3] = {};
    float innerStatic = 0.0F, outerStatic = 0.0F;
    int largestRow = 0, largestBall = 0;
    float life = 0.0F, safety = 0.0F;
};

inline Race matchRace(double p1, double p2, double p3, double p4) {
    const double ratio = ((p3 + p1) * 0.5) / ((p4 + p2) * 0.5);
    float lo = 0.0F;
    float hi = 1.0F;
    float flo = static_cast<float>(1.0 - ratio);
    float previous = 0.0F;
    Race race;
    race.curvatureSum = static_cast<float>(((p2 + p1) + p3) + p4);
    for (;;) {
        const auto m = static_cast<float>((static_cast<double>(lo) + static_cast<double>(hi)) / 2.0);
        const auto q = static_cast<float>(1.0 - static_cast<double>(m));
        const auto kappaSq = static_cast<float>(1.0 / static_cast<double>(q));
        const Integrals sum = ellipticIntegrals(static_cast<double>(m));
        const auto r = static_cast<float>((static_cast<double>(kappaSq) * sum.E - sum.K) / (sum.K - sum.E));
        const auto f = static_cast<float>(static_cast<double>(r) - ratio);
        const auto p = static_cast<float>(static_cast<double>(flo) * static_cast<double>(f));
        race.K = static_cast<float>(sum.K);
        race.E = static_cast<float>(sum.E);
        race.kappaSq = kappaSq;
        if (f == 0.0F || m == previous) break;
        if (p < 0.0F) hi = m;
        if (p > 0.0F) {
            lo = m;
            flo = f;
        }
        previous = m;
    }
    race.kappa = static_cast<float>(std::sqrt(static_cast<double>(race.kappaSq)));
    return race;
}

inline double raceConstant(const Race& race, double elasticSum) {
    const double T =
        ((2.0 * static_cast<double>(race.K)) / kPi) *
        std::pow(kPi / ((2.0 * static_cast<double>(race.kappaSq)) * static_cast<double>(race.E)), 1.0 / 3.0);
    return std::pow(2.0, 1.5) /
           (std::pow(T, 1.5) * ((elasticSum * 1.5) * std::sqrt(static_cast<double>(race.curvatureSum))));
}

inline double raceCompliance(const Race& race, double D) {
    return std::pow(D, 1.0 / 3.0) * std::pow(static_cast<double>(race.E), -1.0 / 3.0) *
           std::pow(static_cast<double>(race.curvatureSum), 1.0 / 3.0) *
           std::pow(1.0 / static_cast<double>(race.kappa), 2.0 / 3.0) * static_cast<double>(race.K);
}

inline void contactConstants(const Bearing& bearing, double angle, Result& result) {
    const double D = bearing.ballDiameter;
    const double dm = bearing.pitchDiameter;
    const double conformity = 100.0 * static_cast<double>(bearing.grooveRadius) / D;
    result.elasticSum = static_cast<float>((1.0 - 0.25 * 0.25) / (29.0 * 1000000.0) +
                                           (1.0 - 0.25 * 0.25) / (29.0 * 1000000.0));
    const double p4 = -1.0 / ((conformity * D) / 100.0);
    result.inner = matchRace(2.0 / D, 2.0 / D, 2.0 / (dm / std::cos(angle) - D), p4);
    result.outer = matchRace(2.0 / D, 2.0 / D, -2.0 / (dm / std::cos(angle) + D), p4);
    const double Ki = raceConstant(result.inner, static_cast<double>(result.elasticSum));
    const double Ko = raceConstant(result.outer, static_cast<double>(result.elasticSum));
    result.Kn = static_cast<float>(
        std::pow(1.0 / (std::pow(1.0 / Ki, 2.0 / 3.0) + std::pow(1.0 / Ko, 2.0 / 3.0)), 1.5));
    result.CiCo = raceCompliance(result.inner, D) + raceCompliance(result.outer, D);
}

}  // namespace norlaplan::plain
