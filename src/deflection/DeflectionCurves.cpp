#include "deflection/DeflectionCurves.h"

#include "numbers/Arithmetic.h"

namespace norlaplan {
namespace {

constexpr int kLastPoint = 50;

/// The deflection at a load up to relief. Error 11 for a rate that there isn't, as for a negative load with
/// no preload.
double linearPart(double load, const std::optional<double>& springRate) {
    return divide(load, springRate.value_or(0.0));
}

/// A load's law: linear up to relief, beyond it load^(2/3) x constant + load x linear - offset.
struct Law {
    std::optional<double> springRate;
    double relief;
    double constant, linear;

    double nonLinear(double load) const { return power(load, kTwoThirds) * constant + linear * load; }
    double upToRelief(double load) const { return linearPart(load, springRate); }
};

std::vector<CurvePoint> curveOf(const Law& law, double maximum, DeflectionResult& result) {
    const bool preloaded = result.input.preload != 0.0;
    std::vector<CurvePoint> curve;
    for (int i = 0; i <= kLastPoint; ++i) {
        double load = i * maximum / 50.0;
        if (preloaded && load > law.relief && load - law.relief < maximum / 50.0) {
            load = law.relief;
            result.curveOffset = law.nonLinear(load) - law.upToRelief(load);
        }
        curve.push_back({load, load <= law.relief ? law.upToRelief(load)
                                                  : checked(law.nonLinear(load) - result.curveOffset)});
    }
    return curve;
}

std::vector<CurvePoint> axialCurve(DeflectionResult& result) {
    if (result.axialPoints.size() <= kLastPoint) raise(fault::kSubscript);
    const double relief = result.axialReliefLoad.value();
    const auto upToRelief = [&](double load) { return linearPart(load, result.axialSpringRate); };
    std::vector<CurvePoint> curve;
    for (int i = 0; i <= kLastPoint; ++i) {
        const AxialPoint& row = result.axialPoints[static_cast<std::size_t>(i)];
        if (row.relief) result.curveOffset = row.deflection - upToRelief(relief);
        curve.push_back(
            {row.load, row.load <= relief ? upToRelief(row.load) : row.deflection - result.curveOffset});
    }
    return curve;
}

}  // namespace

void computeCurves(DeflectionResult& result) {
    const DeflectionInput& input = result.input;
    const Law radial{result.radialSpringRate, result.radialReliefLoad.value(), result.radialConstant.value(),
                     0.0};
    result.radialCurve = curveOf(radial, input.maxRadialLoad, result);
    if (result.styleLetter == "C") return;
    const Law moment{result.momentSpringRate, result.momentReliefLoad.value(), result.momentConstant1.value(),
                     result.momentConstant2.value()};
    result.momentCurve = curveOf(moment, input.maxMomentLoad, result);
    result.axialCurve = axialCurve(result);
}

}  // namespace norlaplan
