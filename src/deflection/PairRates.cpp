#include <cmath>

#include "deflection/AngleSearch.h"
#include "deflection/SpringRates.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

constexpr double kFirstLoadStep = 949.0;
constexpr double kThrustWindow = 1.0;
constexpr double kDeflectionWindow = 1e-05;

class PairRates {
  public:
    PairRates(const DeflectionModel& model, DeflectionResult& result, const Patience& patience)
        : m_(model), result_(result), search_(model, ringSum(model), patience), patience_(patience) {}

    void solve() {
        const double P = result_.input.preload;
        half_ = loadAt(P / 2.0);
        const Single axialRelief = loadAt(P).load;
        const double moments = arm();
        result_.axialReliefLoad = axialRelief;
        result_.axialSpringRate = divide(2.0 * axialRelief, P);
        result_.momentSpringRate = divide(axialRelief * moments * m_.pd, 2.0 * P);
        result_.momentReliefLoad = axialRelief * moments / 2.0;
        solveRadial();
    }

  private:
    struct LoadAndAngle {
        double load = 0.0, angle = 0.0;
    };

    static double ringSum(const DeflectionModel& m) {
        return divide(m.Di * m.Di, 2.0 * m.pd * kYoungModulus * m.innerSection * m.innerWidth * PiValue) +
               divide(m.Do * m.Do, 2.0 * m.pd * kYoungModulus * m.outerSection * m.outerWidth * PiValue);
    }

    /// The axial load of one row that gives the deflection, and its contact angle.
    LoadAndAngle loadAt(double target) {
        double step = kFirstLoadStep;
        double axialLoad = 0.0;
        patience_.begin();
        for (;;) {
            axialLoad = axialLoad + step;
            const AngleSearch::Found found = search_.find(axialLoad, kThrustWindow);
            const double deflection = search_.deflection(found.angle, found.thrust);
            if (std::fabs(deflection - target) < kDeflectionWindow) return {axialLoad, found.angle};
            if (deflection > target) {
                axialLoad = axialLoad - step;
                step = step / 10.0;
            }
            patience_.pass({axialLoad, step});
        }
    }

    /// Distance of the pressure centers of both rows, measured across the bearing.
    double arm() const {
        const double reach = divide(m_.innerWidth, std::tan(half_.angle));
        return result_.styleLetter == "B" ? m_.pd + reach : std::fabs(m_.pd - reach);
    }

    void solveRadial() {
        const double A = kCurvatureFactor;
        const double sine = std::sin(half_.angle);
        const double cosine = std::cos(half_.angle);
        const double rho = divide(
            divide(m_.C * kHertzConstant * power(half_.load, kTwoThirds), power(sine, kFiveThirds) * m_.B),
            A * m_.D);
        const double axial = rho + sine;
        const double shift = -(squareRoot(1.0 - axial * axial) - cosine);
        const auto G = [&](double t) {
            const double across = cosine + shift * std::cos(t);
            const double distance = squareRoot(axial * axial + across * across);
            const double radius = distance < 1.0 ? 1.0 : distance;
            return power(radius - 1.0, 1.5) * across * std::cos(t) / radius;
        };
        double sum = G(0.0) * 0.5;
        double t = 0.0;
        for (int degree = 0; degree < 180; ++degree) {
            t = t + PiValue / 180.0;
            sum = sum + G(t);
        }
        const Single relief =
            2.0 * m_.Z * m_.loadMultiplier() * (m_.D * m_.D) / PiValue * (PiValue / 180.0) * sum;
        result_.radialReliefLoad = relief;
        result_.radialSpringRate = divide(relief, shift * A * m_.D);
    }

    const DeflectionModel& m_;
    DeflectionResult& result_;
    AngleSearch search_;
    Patience patience_;
    LoadAndAngle half_;  ///< at half the preload
};

}  // namespace

void solvePairRates(const DeflectionModel& model, DeflectionResult& result, const Patience& patience) {
    PairRates(model, result, patience).solve();
}

}  // namespace norlaplan
