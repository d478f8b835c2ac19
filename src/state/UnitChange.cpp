#include "state/UnitChange.h"

#include <optional>

#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"
#include "state/LoadEntry.h"
#include "state/SizeEntry.h"

namespace norlaplan {
namespace {

using Conversion = double (*)(double value, double factor);

/// Shows the converted value in the picture and stores the number that is read back from it. A field that
/// shows no number stays as it is; what is stored behind it is converted all the same.
void convertField(std::string& text, Single& stored, Conversion convert, double factor, const char* picture) {
    const std::optional<double> shown = wholeNumberText(text);
    if (!shown) {
        stored = convert(stored, factor);
        return;
    }
    text = FormatNumber(convert(*shown, factor), picture);
    stored = leadingNumber(text);
}

void convertSizeFields(ProgramState& state, Conversion convert) {
    EntryTexts& texts = state.entries;
    SearchCriteria& sizes = state.criteria;
    const auto go = [&](std::string& text, Single& size) {
        convertField(text, size, convert, state.units.lengthFactor, "0.000");
    };
    go(texts.minBore, sizes.minBoreDisplay);
    go(texts.maxOd, sizes.maxOdDisplay);
    go(texts.minHeight, sizes.minHeightDisplay);
    go(texts.maxHeight, sizes.maxHeightDisplay);
}

void convertLoadFields(ProgramState& state, Conversion convert) {
    const UnitMode& units = state.units;
    EntryTexts& texts = state.entries;
    LoadCase& loads = state.loads;
    const auto go = [&](std::string& text, Single& load, double factor) {
        convertField(text, load, convert, factor, "0");
    };
    go(texts.radial, loads.radialLoadDisplay, units.forceFactor);
    go(texts.axial, loads.axialLoadDisplay, units.forceFactor);
    go(texts.moment, loads.momentLoadDisplay, units.momentFactor);
}

double times(double value, double factor) {
    return value * factor;
}

}  // namespace

void changeUnits(ProgramState& state, const std::string& system) {
    if (system == state.unitSystem) return;
    state.unitSystem = system;
    // The metric factors serve both ways: they still stand on the way to US units and already on the way
    // back.
    if (system == "METRIC") ApplyUnitSystem(system, state.units);
    const bool toMetric = system == "METRIC";
    convertSizeFields(state, toMetric ? times : divide);
    convertLoadFields(state, toMetric ? divide : times);
    ApplyUnitSystem(system, state.units);
    convertSizes(state);
    convertLoads(state);
}

}  // namespace norlaplan
