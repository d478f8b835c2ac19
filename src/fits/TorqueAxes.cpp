#include "fits/TorqueAxes.h"

#include "numbers/Arithmetic.h"
#include "state/DisplayUnits.h"

namespace norlaplan {
namespace {

constexpr double kPlotWidth = 7.25;
constexpr double kPlotHeight = 4.0;
constexpr double kMillimetresPerInch = 25.4;

}  // namespace

TorqueAxes computeTorqueAxes(const TorqueCurve& curve, const UnitMode& units) {
    TorqueAxes axes;
    double top = curve.row(TorqueCurve::kPoints).torque;
    if (isMetric(units)) {
        axes.xStep = 0.01 / kMillimetresPerInch;
        axes.xMax = 0.13 / kMillimetresPerInch;
        top = top / units.momentFactor;
    } else {
        axes.xStep = 0.0005;
        axes.xMax = Single(0.005);
    }
    const double exponent = Int(naturalLog(top) / naturalLog(10.0));
    const double mantissa =
        top < 1.0 ? Int(top * power(10.0, -exponent) + 1.0) : Int(divide(top, power(10.0, exponent))) + 1.0;
    axes.yExp = static_cast<int>(exponent);
    axes.yMant = static_cast<int>(mantissa);
    axes.yMax = mantissa * power(10.0, exponent);
    axes.yStep = axes.yMant >= 4 ? axes.yMax / mantissa : axes.yMax / (2.0 * mantissa);
    axes.sx = kPlotWidth / axes.xMax;
    axes.sy = divide(kPlotHeight, axes.yMax);
    return axes;
}

}  // namespace norlaplan
