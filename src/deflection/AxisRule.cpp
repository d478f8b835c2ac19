#include "deflection/AxisRule.h"

#include "numbers/Arithmetic.h"

namespace norlaplan {
namespace {

constexpr double kFewSteps = 4.0;

double log10Of(double value) {
    return naturalLog(value) / naturalLog(10.0);
}

}  // namespace

AxisScale axisRule(double dataMax) {
    AxisScale axis;
    if (dataMax >= 1.0) {
        axis.power = Int(log10Of(dataMax));
        axis.steps = Int(dataMax * power(10.0, -axis.power) + 1.0);
        axis.axisMax = checked(axis.steps * power(10.0, axis.power));
    } else {
        axis.power = Int(log10Of(dataMax) + 0.5);
        const double step = power(10.0, axis.power - 1.0);
        axis.steps = Int(divide(dataMax, step)) + 1.0;
        axis.axisMax = axis.steps * step;
    }
    axis.major = divide(axis.axisMax, axis.steps >= kFewSteps ? axis.steps : 2.0 * axis.steps);
    return axis;
}

void applyAxisRule(GraphSettings& settings, double dataMaxX, double dataMaxY) {
    if (settings.settingsAdjusted != "N") return;
    const AxisScale x = axisRule(dataMaxX);
    const AxisScale y = axisRule(dataMaxY);
    settings.xMax = x.axisMax;
    settings.xMajor = x.major;
    settings.yMax = y.axisMax;
    settings.yMajor = y.major;
}

}  // namespace norlaplan
