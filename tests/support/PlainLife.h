#pragma once

#include <cmath>
#include <vector>

#include "support/PlainContact.h"

/// Life and stress typed once more, plainly.
namespace norlaplan::plain {

inline double ellipseFactor(const Race& race, double elasticSum) {
    return static_cast<double>(static_cast<float>(
        std::pow(((elasticSum * 3.0) * static_cast<double>(race.E)) * static_cast<double>(race.kappaSq) /
                     (static_cast<double>(race.curvatureSum) * kPi),
                 1.0 / 3.0)));
}

inline float staticCapacity(double factor, double kappa) {
    return static_cast<float>(std::pow(((factor * factor) * kTwoPi) * 609000.0 / (kappa * 3.0), 3.0));
}

inline float mean(const std::vector<double>& loads, int balls, double exponent, double root) {
    float sum = 0.0F;
    for (int i = 1; i <= balls; ++i) {
        sum = static_cast<float>(static_cast<double>(sum) +
                                 std::pow(loads[static_cast<std::size_t>(i)], exponent));
    }
    return static_cast<float>(std::pow(static_cast<double>(sum) / balls, root));
}

/// The ellipses and stresses of all balls at one race.
inline void stresses(const std::vector<double>& loads, double factor, double kappa, std::vector<float>& major,
                     std::vector<float>& minor, std::vector<float>& stress) {
    major.assign(loads.size(), 0.0F);
    minor.assign(loads.size(), 0.0F);
    stress.assign(loads.size(), 0.0F);
    for (std::size_t i = 1; i < loads.size(); ++i) {
        const double Q = loads[i];
        if (Q == 0.0) continue;
        major[i] = static_cast<float>(std::pow(Q, 1.0 / 3.0) * factor);
        minor[i] = static_cast<float>(static_cast<double>(major[i]) / kappa);
        stress[i] = static_cast<float>(
            (Q * 1.5) / ((static_cast<double>(major[i]) * kPi) * static_cast<double>(minor[i])));
    }
}

inline float lifeOf(float innerCapacity, float innerMean, float outerCapacity, float outerMean) {
    const double Li = std::pow(static_cast<double>(innerCapacity) / static_cast<double>(innerMean), 3.0);
    const double Lo = std::pow(static_cast<double>(outerCapacity) / static_cast<double>(outerMean), 3.0);
    return static_cast<float>(std::pow(10.0, 6.0) *
                              std::pow(std::pow(Li, -10.0 / 9.0) + std::pow(Lo, -10.0 / 9.0), -0.9));
}

inline void dynamicCapacities(const Bearing& bearing, double angle, double ratingFactor, Result& result) {
    const double D = bearing.ballDiameter;
    const double conformity = 100.0 * static_cast<double>(bearing.grooveRadius) / D;
    const double ratio = D / static_cast<double>(bearing.pitchDiameter);
    const double g = static_cast<double>(static_cast<float>(ratio * std::cos(angle)));
    const double c = std::pow((conformity + conformity) / ((conformity + conformity) - 100.0), 0.41);
    const double gi = std::pow(1.0 - g, 1.39) / std::pow(g + 1.0, 1.0 / 3.0);
    const double go = std::pow(g + 1.0, 1.39) / std::pow(1.0 - g, 1.0 / 3.0);
    const double exponent = static_cast<double>(static_cast<float>(D > 1.0 ? 1.4 : 1.8));
    const double set = (((ratingFactor * c) * std::pow(ratio, 0.3)) * std::pow(D, exponent)) *
                       std::pow(static_cast<double>(bearing.balls), -1.0 / 3.0);
    result.innerCapacity = static_cast<float>(set * gi);
    result.outerCapacity = static_cast<float>(set * go);
}

inline void staticSafety(double innerFactor, double outerFactor, int rows, Result& result) {
    result.innerStatic = staticCapacity(innerFactor, static_cast<double>(result.inner.kappa));
    result.outerStatic = staticCapacity(outerFactor, static_cast<double>(result.outer.kappa));
    double largest = 0.0;
    for (int row = 1; row <= rows; ++row) {
        for (std::size_t i = 1; i < result.load[row].size(); ++i) {
            if (result.load[row][i] > largest) {
                largest = result.load[row][i];
                result.largestRow = row;
                result.largestBall = static_cast<int>(i);
            }
        }
    }
    const auto most = static_cast<double>(static_cast<float>(largest));
    const auto inner = static_cast<float>(static_cast<double>(result.innerStatic) / most);
    const auto outer = static_cast<float>(static_cast<double>(result.outerStatic) / most);
    result.safety = outer < inner ? outer : inner;
}

inline void lifeAndSafety(const Bearing& bearing, double angle, int rows, double ratingFactor,
                          Result& result) {
    const double innerFactor = ellipseFactor(result.inner, static_cast<double>(result.elasticSum));
    const double outerFactor = ellipseFactor(result.outer, static_cast<double>(result.elasticSum));
    dynamicCapacities(bearing, angle, ratingFactor, result);
    for (int row = 1; row <= rows; ++row) {
        stresses(result.load[row], innerFactor, static_cast<double>(result.inner.kappa),
                 result.innerMajor[row], result.innerMinor[row], result.innerStress[row]);
        stresses(result.load[row], outerFactor, static_cast<double>(result.outer.kappa),
                 result.outerMajor[row], result.outerMinor[row], result.outerStress[row]);
        result.cubeMean[row] = mean(result.load[row], bearing.balls, 3.0, 1.0 / 3.0);
        result.tenthMean[row] = mean(result.load[row], bearing.balls, 10.0 / 3.0, 0.3);
        if (row == 2 && result.cubeMean[row] == 0.0F) continue;
        result.innerRotation[row] =
            lifeOf(result.innerCapacity, result.cubeMean[row], result.outerCapacity, result.tenthMean[row]);
        result.outerRotation[row] =
            lifeOf(result.innerCapacity, result.tenthMean[row], result.outerCapacity, result.cubeMean[row]);
    }
    result.life = result.outerRotation[1];
    staticSafety(innerFactor, outerFactor, rows, result);
}

}  // namespace norlaplan::plain
