#include <cmath>

#include "deflection/RingAndBallSolve.h"
#include "deflection/SpringRates.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

class FourPointRates {
  public:
    FourPointRates(const DeflectionModel& model, DeflectionResult& result, const Patience& patience)
        : m_(model),
          result_(result),
          patience_(patience),
          P_(result.input.preload),
          sine_(std::sin(model.alpha)),
          cosine_(std::cos(model.alpha)),
          tangent_(std::tan(model.alpha)) {}

    void moment() {
        const double radialHertz = divide(power(kLoadShareFactor, kTwoThirds) * kHertzConstant * m_.C,
                                          power(m_.pd * sine_, kTwoThirds) * m_.B);
        const double ringFactor =
            divide(kLoadShareFactor / 2.0 * cosine_, m_.pd * m_.pd * PiValue * kYoungModulus * tangent_);
        const double innerRing = divide(ringFactor * (m_.Di * m_.Di), m_.Si);
        const double outerRing = divide(ringFactor * (m_.Do * m_.Do), m_.So);
        const Single x = solveRingAndBall(innerRing + outerRing, radialHertz, P_ * cosine_, patience_);
        const double angle1 =
            divide(power(kLoadShareFactor, kTwoThirds) * kHertzConstantTwice * m_.C * power(x, kTwoThirds),
                   power(m_.pd * sine_, kFiveThirds) * m_.B);
        const double ringFactor2 = divide(kLoadShareFactor / 2.0 * x,
                                          power(m_.pd, 3.0) * kYoungModulus * tangent_ * tangent_ * PiValue);
        const double tilt = angle1 + divide(ringFactor2 * (m_.Di * m_.Di), m_.Si) +
                            divide(ringFactor2 * (m_.Do * m_.Do), m_.So) - divide(P_, m_.pd * tangent_);
        result_.momentReliefLoad = x;
        result_.momentSpringRate = divide(x, tilt);
    }

    void radial() {
        const double ballHertz = divide(m_.C * kHertzConstantTwice, power(m_.D, kOneThird) * cosine_);
        const double ballRing = divide(m_.Z * cosine_, m_.pd * kYoungModulus * PiValue);
        const double rings =
            divide(ballRing * (m_.Di * m_.Di), m_.Si) + divide(ballRing * (m_.Do * m_.Do), m_.So);
        const double ballLoad = solveRingAndBall(rings, ballHertz, P_, patience_);
        const double preloadRadial = 2.0 * m_.Z * ballLoad * cosine_ / kLoadShareFactor;
        const double hertz = power(kLoadShareFactor / 2.0, kTwoThirds) * kHertzConstant * m_.C;
        const double deflectionAtPreload =
            divide(hertz * power(preloadRadial, kTwoThirds), power(cosine_, kFiveThirds) * m_.B);
        const double reliefPoint =
            power(divide(power(cosine_, kFiveThirds) * power(m_.Z, kTwoThirds) * power(m_.D, kOneThird) * P_,
                         hertz),
                  1.5);
        const Single relief = reliefPoint - preloadRadial;
        result_.radialReliefLoad = relief;
        result_.radialSpringRate = divide(relief, P_ - deflectionAtPreload);
    }

    void axial() {
        const double axialHertz = divide(m_.C * kHertzConstant, power(sine_, kTwoThirds) * m_.B);
        const double ringAxial = divide(cosine_, kTwiceYoungModulus * PiValue * tangent_);
        const double rings = divide(ringAxial * m_.Di, m_.Si) + divide(ringAxial * m_.Do, m_.So);
        const Single x = solveRingAndBall(rings, axialHertz, P_ * cosine_, patience_);
        const double axialApproach = divide(m_.C * kHertzConstant, power(sine_, kFiveThirds) * m_.B);
        const double axialRing = divide(1.0, tangent_ * tangent_ * 4.0 * kYoungModulus * PiValue);
        const double axialRingInner = divide(axialRing * m_.Di, m_.Si);
        const double axialRingOuter = divide(axialRing * m_.Do, m_.So);
        const double axialDeflection = axialApproach * power(x, kTwoThirds) +
                                       (axialRingInner + axialRingOuter) * x - divide(P_, 2.0 * tangent_);
        result_.axialReliefLoad = x;
        result_.axialSpringRate = divide(x, axialDeflection);
    }

  private:
    const DeflectionModel& m_;
    DeflectionResult& result_;
    const Patience& patience_;
    const double P_, sine_, cosine_, tangent_;
};

}  // namespace

void solveFourPointRates(const DeflectionModel& model, DeflectionResult& result, const Patience& patience) {
    FourPointRates rates(model, result, patience);
    rates.moment();
    rates.radial();
    rates.axial();
}

}  // namespace norlaplan
