#include "fits/ThermalFits.h"

#include <utility>

#include "fits/FitMaterials.h"
#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"
#include "state/DisplayUnits.h"

namespace norlaplan {
namespace {

constexpr double kFahrenheitPerCelsius = 1.8;
constexpr double kFreezingPoint = 32.0;

constexpr const char* kClearanceComment =
    "Shaft and Housing sizes set so that at temperature limits, maximum interference will equal the minimum "
    "clearance in the bearing(s)";
constexpr const char* kNoInterferenceComment =
    "Shaft and Housing sizes set so that at temperature limits, there will be no interfernece with the "
    "bearing bore or outer diameter";

/// The warmer temperature goes into the upper field.
void orderTemperatures(ThermalFits& fits) {
    if (leadingNumber(fits.highTempText) < leadingNumber(fits.lowTempText))
        std::swap(fits.highTempText, fits.lowTempText);
}

/// The fields as numbers, in degrees Fahrenheit.
void readFields(const UnitMode& units, ThermalFits& fits) {
    const bool metric = isMetric(units);
    const auto temperature = [&](const std::string& text) {
        const double entered = leadingNumber(text);
        return metric ? entered * kFahrenheitPerCelsius + kFreezingPoint : entered;
    };
    const auto expansion = [&](const std::string& text) {
        const double entered = leadingNumber(text);
        return metric ? entered / kFahrenheitPerCelsius : entered;
    };
    fits.highTemp = temperature(fits.highTempText);
    fits.lowTemp = temperature(fits.lowTempText);
    fits.shaftExpansion = expansion(fits.shaftExpansionText);
    fits.housingExpansion = expansion(fits.housingExpansionText);
}

/// How a length changes over the two ends of the temperatures.
struct Growth {
    Growth(const ThermalFits& fits, double expansion)
        : low(1.0 + (fits.lowTemp - kRoomTemperature) * expansion),
          high(1.0 + (fits.highTemp - kRoomTemperature) * expansion) {}

    double low, high;
};

/// Sizes the shaft for the end at which it comes closest to the bore, then the housing for the end at which
/// it comes closest to the ring, less what the shaft has used up of the clearance there.
void size(const FitGoal& goal, double ringExpansion, ThermalFits& fits) {
    const Growth ring(fits, ringExpansion);
    const Growth shaft(fits, fits.shaftExpansion);
    const Growth housing(fits, fits.housingExpansion);
    const auto left = [&](double rest) { return rest < 0.0 ? goal.clearance + rest : goal.clearance; };
    double atHigh = 0.0;
    double atLow = 0.0;
    if (fits.shaftExpansion <= ringExpansion) {
        fits.shaftSize = divide(goal.bore * ring.low + goal.clearance, shaft.low);
        atHigh = left(goal.bore * ring.high - fits.shaftSize * shaft.high);
    } else {
        fits.shaftSize = divide(goal.bore * ring.high + goal.clearance, shaft.high);
        atLow = left(goal.bore * ring.low - fits.shaftSize * shaft.low);
    }
    fits.housingSize = fits.housingExpansion <= ringExpansion
                           ? divide(goal.od * ring.high - atHigh, housing.high)
                           : divide(goal.od * ring.low - atLow, housing.low);
}

void writeLines(const ProgramState& state, const FitGoal& goal, ThermalFits& fits) {
    const double lengthFactor = state.units.lengthFactor;
    const auto length = [&](double inches) { return FormatNumber(inches * lengthFactor, "0.0000000"); };
    // The shaft has no tolerance of its own: the second number is always zero.
    fits.shaftLine = "Shaft size " + length(fits.shaftSize) + " + 0.0000, " + FormatNumber(0.0, "0.0000");
    fits.housingLine = "Housing size " + length(fits.housingSize) + " +" +
                       FormatNumber(-state.bearing.odTolerance * lengthFactor, "0.0000") + " -0.0000";
    fits.comment = goal.clearance > 0.0 ? kClearanceComment : kNoInterferenceComment;
}

const char* temperatureUnit(const UnitMode& units) {
    return isMetric(units) ? "°C." : "°F.";
}

/// What was entered, without what came of it.
ThermalFits entriesOf(const ThermalFits& fits) {
    ThermalFits entries;
    for (std::string ThermalFits::*const text :
         {&ThermalFits::highTempText, &ThermalFits::lowTempText, &ThermalFits::shaftExpansionText,
          &ThermalFits::housingExpansionText, &ThermalFits::fitTempUnit, &ThermalFits::expansionUnit})
        entries.*text = fits.*text;
    return entries;
}

}  // namespace

std::optional<FitGoal> fitGoal(const BearingSpec& bearing) {
    const std::string& letter = bearing.fitLetter;
    if (letter == "Z") return std::nullopt;
    if (letter >= "K") {
        return FitGoal{bearing.preloadOd, bearing.preloadBore + bearing.boreTolerance, 0.0};
    }
    return FitGoal{bearing.outsideDiameter, bearing.boreTolerance + bearing.bore,
                   letter == " " ? bearing.stdClearanceLow : bearing.fitLow};
}

void prepareThermalFits(ProgramState& state) {
    ThermalFits& fits = state.thermalFits;
    const bool metric = isMetric(state.units);
    fits.expansionUnit = metric ? "m/m/°C." : "in/in/°F.";
    fits.fitTempUnit = temperatureUnit(state.units);
    fits.highTempText = metric ? "20" : "68";
    fits.lowTempText = fits.highTempText;
    fits.shaftExpansionText = expansionText(kFitMaterials.front(), state.units);
    fits.housingExpansionText = fits.shaftExpansionText;
}

bool refreshThermalFits(ProgramState& state) {
    ThermalFits& fits = state.thermalFits;
    const bool anew = fits.fitTempUnit != temperatureUnit(state.units);
    if (anew || fits.partNumber != state.bearing.partNumber) fits = entriesOf(fits);
    if (anew) prepareThermalFits(state);
    return anew;
}

std::optional<Message> computeThermalFits(ProgramState& state) {
    orderTemperatures(state.thermalFits);
    const std::optional<FitGoal> goal = fitGoal(state.bearing);
    if (!goal) {
        return Message{"Fitup information is required for this option", "Cannot Calculate with 'Z' Fitup",
                       Icon::Critical};
    }
    ThermalFits fits = state.thermalFits;
    readFields(state.units, fits);
    size(*goal, state.bearing.bearingExpansion, fits);
    fits.partNumber = state.bearing.partNumber;
    writeLines(state, *goal, fits);
    state.thermalFits = fits;
    return std::nullopt;
}

}  // namespace norlaplan
