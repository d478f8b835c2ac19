#include "deflection/NonLinearConstants.h"

#include <cmath>

#include "deflection/AngleSearch.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

constexpr double kHalfShare = kLoadShareFactor / 2.0;
constexpr std::size_t kMostRows = 55;
constexpr double kThrustWindow = 0.1;

/// What a ring's section adds to the tilt of a four-point bearing; `diameter` is the ring's mean diameter.
double fourPointRingTilt(const DeflectionModel& m, double diameter, double section, double width) {
    const double tangent = std::tan(m.alpha);
    return divide(kHalfShare * (diameter * diameter),
                  tangent * tangent * power(m.pd, 3.0) * PiValue * section * width * kYoungModulus);
}

/// The same of a pair; `race` is the diameter of the contacts.
double pairRingTilt(const DeflectionModel& m, double diameter, double race, double section, double width) {
    const double tangent = std::tan(m.alpha);
    return divide(kHalfShare * (diameter * diameter), race * (tangent * tangent) * m.momentArm * section *
                                                          PiValue * width * kYoungModulus * m.pd);
}

void setFourPointConstants(const DeflectionModel& m, DeflectionResult& result) {
    const double sine = std::sin(m.alpha);
    result.momentConstant1 = divide(power(kLoadShareFactor, kTwoThirds) * kHertzConstantTwice * m.C,
                                    power(m.pd * sine, kFiveThirds) * m.B);
    result.momentConstant2 = fourPointRingTilt(m, m.Di, m.innerSection, m.innerWidth) +
                             fourPointRingTilt(m, m.Do, m.outerSection, m.outerWidth);
    result.initialTilt = divide(m.D * kCurvatureFactor * (sine - std::sin(30.0 * PiValue / 180.0)), m.pd);
    result.initialAngle = m.alpha * 180.0 / PiValue;
}

void setPairConstants(const DeflectionModel& m, DeflectionResult& result) {
    const double reach = m.D * std::cos(m.alpha);
    result.momentConstant1 =
        divide(power(kLoadShareFactor, kTwoThirds) * kHertzConstantTwice * m.C,
               power(m.Z, kTwoThirds) * power(m.D, kOneThird) * m.pd * power(m.momentArm, kTwoThirds) *
                   power(std::sin(m.alpha), kFiveThirds));
    result.momentConstant2 = pairRingTilt(m, m.Di, m.pd - reach, m.innerSection, m.innerWidth) +
                             pairRingTilt(m, m.Do, m.pd + reach, m.outerSection, m.outerWidth);
}

}  // namespace

void solveNonLinearConstants(const DeflectionModel& model, DeflectionResult& result) {
    const double hertz = power(5.0, kTwoThirds) * model.C * kHertzConstant;
    if (result.styleLetter == "C") {
        result.radialConstant = divide(hertz, model.B);
        return;
    }
    result.radialConstant =
        divide(hertz, power(2.0, kTwoThirds) * power(std::cos(model.alpha), kFiveThirds) * model.B);
    if (result.styleLetter == "X") {
        setFourPointConstants(model, result);
    } else {
        setPairConstants(model, result);
    }
}

double axialRingSum(const DeflectionModel& model) {
    return divide(model.Di, model.innerSection * kTwiceYoungModulus * model.innerWidth * PiValue) +
           divide(model.Do, model.outerSection * kTwiceYoungModulus * model.outerWidth * PiValue);
}

void solveAxialPoints(const DeflectionModel& model, DeflectionResult& result, Patience patience) {
    AngleSearch search(model, axialRingSum(model), patience);
    const double maximum = result.input.maxAxialLoad;
    const double step = maximum / 50.0;
    bool reliefToCome = result.input.preload != 0.0;
    std::vector<AxialPoint>& rows = result.axialPoints;
    rows.push_back({0.0, 30.0 * PiValue / 180.0, 0.0, false});
    patience.begin();
    for (double counter = step; counter <= maximum + 0.1 && rows.size() < kMostRows;
         counter = counter + step) {
        patience.pass({counter, reliefToCome ? 1.0 : 0.0});
        AxialPoint row{counter, 0.0, 0.0, false};
        if (reliefToCome && counter > result.axialReliefLoad.value()) {
            row.load = Int(result.axialReliefLoad.value());
            row.relief = true;
            reliefToCome = false;
            counter = counter - Int(step);
        }
        row.contactAngle = search.find(row.load, kThrustWindow).angle;
        row.deflection = search.deflection(row.contactAngle, row.load);
        rows.push_back(row);
    }
}

}  // namespace norlaplan
