#include "deflection/DeflectionGraph.h"
#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "state/DisplayUnits.h"

namespace norlaplan {
namespace {

struct Curve {
    const std::vector<CurvePoint>& points;
    const std::optional<Single>& relief;
};

Curve curveOf(const DeflectionResult& result, DeflectionLoad load) {
    switch (load) {
        case DeflectionLoad::Axial:
            return {result.axialCurve, result.axialReliefLoad};
        case DeflectionLoad::Moment:
            return {result.momentCurve, result.momentReliefLoad};
        case DeflectionLoad::Radial:
            break;
    }
    return {result.radialCurve, result.radialReliefLoad};
}

void setTitles(DeflectionGraphData& data, const DeflectionResult& result, DeflectionLoad load,
               const UnitMode& units) {
    const bool metric = isMetric(units);
    const std::string preload = " DEFLECTION AT " +
                                FormatNumber(result.input.preload * units.lengthFactor, "0.0000####") +
                                (metric ? " MILLIMETERS PRELOAD" : " INCHES PRELOAD");
    data.subtitle = "FREE RACE ANALYSIS";
    data.yTitle = metric ? "DEFLECTION IN MILLIMETERS" : "DEFLECTION IN INCHES";
    switch (load) {
        case DeflectionLoad::Radial:
            data.title = "RADIAL" + preload;
            data.xTitle = metric ? "RADIAL LOAD IN NEWTONS" : "RADIAL LOAD IN POUNDS";
            break;
        case DeflectionLoad::Axial:
            data.title = "AXIAL" + preload;
            data.xTitle = metric ? "AXIAL LOAD IN NEWTONS" : "AXIAL LOAD IN POUNDS";
            break;
        case DeflectionLoad::Moment:
            data.title = "MOMENT" + preload;
            data.xTitle = metric ? "MOMENT LOAD IN NEWTON METERS" : "MOMENT LOAD IN INCH-POUNDS";
            data.yTitle = "TILT OF AXIS IN RADIANS";
            break;
    }
}

/// Whole parts are compared in pounds: converted ones would miss the axial corner, which stands at whole
/// pounds.
std::optional<std::size_t> firstSegmentBeyond(const DeflectionResult& result, const Curve& curve) {
    if (result.input.preload == 0.0) return 0;
    for (std::size_t i = 0; i + 1 < curve.points.size(); ++i) {
        if (Int(curve.points[i].load) == Int(curve.relief.value())) return i;
    }
    return std::nullopt;
}

}  // namespace

bool hasCurve(const DeflectionResult& result, DeflectionLoad load) {
    return !curveOf(result, load).points.empty();
}

DeflectionGraphData deflectionGraphData(const DeflectionResult& result, DeflectionLoad load,
                                        const UnitMode& units) {
    if (!hasCurve(result, load)) raise(fault::kSubscript);
    const bool moment = load == DeflectionLoad::Moment;
    const double loadFactor = moment ? units.momentFactor : units.forceFactor;
    const double deflectionFactor = moment ? 1.0 : static_cast<double>(units.lengthFactor);
    const Curve curve = curveOf(result, load);
    DeflectionGraphData data;
    data.partNumber = result.partNumber;
    setTitles(data, result, load, units);
    for (const CurvePoint& point : curve.points)
        data.points.push_back({point.load / loadFactor, point.deflection * deflectionFactor});
    data.dataMaxX = data.points.back().x;
    data.dataMaxY = data.points.back().y;
    data.firstBeyond = firstSegmentBeyond(result, curve);
    data.loadUnit = moment ? units.momentUnit : units.loadUnit;
    data.deflectionUnit = moment ? "radians" : units.lengthUnit;
    return data;
}

}  // namespace norlaplan
