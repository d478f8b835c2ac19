#include "state/UnitChange.h"

#include <optional>

#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"
#include "state/LoadEntry.h"

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

/// What a change of units touches. It is worked out aside and taken whole.
struct Converted {
    UnitMode units;
    EntryTexts texts;
    SearchCriteria sizes;
    LoadCase loads;
};

void convertSizeFields(Converted& now, Conversion convert) {
    const auto go = [&](std::string& text, Single& size) {
        convertField(text, size, convert, now.units.lengthFactor, "0.000");
    };
    go(now.texts.minBore, now.sizes.minBoreDisplay);
    go(now.texts.maxOd, now.sizes.maxOdDisplay);
    go(now.texts.minHeight, now.sizes.minHeightDisplay);
    go(now.texts.maxHeight, now.sizes.maxHeightDisplay);
}

void convertLoadFields(Converted& now, Conversion convert) {
    const auto go = [&](std::string& text, Single& load, double factor) {
        convertField(text, load, convert, factor, "0");
    };
    go(now.texts.radial, now.loads.radialLoadDisplay, now.units.forceFactor);
    go(now.texts.axial, now.loads.axialLoadDisplay, now.units.forceFactor);
    go(now.texts.moment, now.loads.momentLoadDisplay, now.units.momentFactor);
}

double times(double value, double factor) {
    return value * factor;
}

/// Whether a size that was typed but never taken now stands as the entered one.
bool sizesTyped(const EntryTexts& texts, const SearchCriteria& sizes) {
    const auto other = [](const std::string& text, Single size) {
        const std::optional<double> typed = wholeNumberText(text);
        return typed && Single(*typed) != size;
    };
    return other(texts.minBore, sizes.minBoreDisplay) || other(texts.maxOd, sizes.maxOdDisplay) ||
           other(texts.minHeight, sizes.minHeightDisplay) || other(texts.maxHeight, sizes.maxHeightDisplay);
}

}  // namespace

void changeUnits(ProgramState& state, const std::string& system) {
    if (system == state.units.system) {
        // Whatever the settings file held, these are the units from now on.
        state.unitSystem = system;
        return;
    }
    Converted now{state.units, state.entries, state.criteria, state.loads};
    // The metric factors serve both ways: they still stand on the way to US units and already on the way
    // back.
    const bool toMetric = system == "METRIC";
    if (toMetric) ApplyUnitSystem(system, now.units);
    convertSizeFields(now, toMetric ? times : divide);
    convertLoadFields(now, toMetric ? divide : times);
    ApplyUnitSystem(system, now.units);
    convertLoads(now.loads, now.units);

    if (sizesTyped(state.entries, state.criteria)) state.sizesChosen = false;
    state.unitSystem = system;
    state.units = now.units;
    state.entries = now.texts;
    state.criteria = now.sizes;
    state.loads = now.loads;
    if (!hasLoad(state.loads)) state.loadsEntered = false;
}

}  // namespace norlaplan
