#include "deflection/DeflectionFieldEntry.h"

#include <optional>

#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "state/DisplayUnits.h"

namespace norlaplan {
namespace {

constexpr int kOfferedPreloads = 8;
constexpr const char* kPreloadPicture = "0.0000";
constexpr const char* kAdvice =
    "This bearing can't have this preload, or a maximum load is too small or too large for its curve. Try a "
    "preload of the list with the proposed maximum loads.";

struct Field {
    std::string DeflectionFields::*text;
    double DeflectionEntry::*value;
    const char* name;
};

constexpr Field kPreload = {&DeflectionFields::preload, &DeflectionEntry::preload, "Preload"};
constexpr Field kMaxRadial = {&DeflectionFields::maxRadialLoad, &DeflectionEntry::maxRadialLoad,
                              "Max Radial Load"};
constexpr Field kMaxAxial = {&DeflectionFields::maxAxialLoad, &DeflectionEntry::maxAxialLoad,
                             "Max Axial Load"};
constexpr Field kMaxMoment = {&DeflectionFields::maxMomentLoad, &DeflectionEntry::maxMomentLoad,
                              "Max Moment Load"};

std::vector<Field> fieldsOf(const std::string& styleLetter) {
    if (styleLetter == "C") return {kPreload, kMaxRadial};
    return {kPreload, kMaxRadial, kMaxAxial, kMaxMoment};
}

/// What is wrong with a field's text, in a sentence; nothing when it can be calculated with.
std::optional<std::string> wrongWith(const Field& field, const std::string& text) {
    const std::optional<double> value = wholeNumberText(text);
    const bool preload = field.value == kPreload.value;
    if (!value && trimmed(text).empty()) return "Please enter a number.";
    if (!value) return "\"" + text + "\" is not a number.";
    if (preload && *value < 0.0) return "A preload can't be below 0.";
    if (!preload && *value <= 0.0) return "The end of a curve must be above 0.";
    return std::nullopt;
}

}  // namespace

void prepareDeflectionFields(ProgramState& state) {
    DeflectionFields& fields = state.deflectionFields;
    const BearingSpec& bearing = state.bearing;
    if (fields.partNumber == bearing.partNumber && fields.zSeparatorChoice == bearing.zSeparatorChoice &&
        fields.unitSystem == state.units.system)
        return;
    const DeflectionEntry proposed = proposedDeflectionEntry(bearing, state.units);
    const auto whole = [](double value) { return FormatNumber(value, "0"); };
    fields = {FormatNumber(proposed.preload, kPreloadPicture),
              whole(proposed.maxRadialLoad),
              whole(proposed.maxAxialLoad),
              whole(proposed.maxMomentLoad),
              bearing.partNumber,
              state.units.system,
              bearing.zSeparatorChoice};
    state.deflection = {};
}

std::variant<DeflectionEntry, DeflectionRefusal> enteredDeflection(const ProgramState& state) {
    DeflectionEntry entry;
    for (const Field& field : fieldsOf(state.bearing.styleLetter)) {
        const std::string& text = state.deflectionFields.*field.text;
        if (const auto wrong = wrongWith(field, text)) {
            const std::string prompt = std::string(field.name) + " input error\n\n" + *wrong;
            return DeflectionRefusal{{"Please correct entry", prompt, Icon::Critical}, field.text};
        }
        entry.*field.value = *wholeNumberText(text);
    }
    return entry;
}

void solveDeflection(ProgramState& state, const DeflectionEntry& entry, MessagePort& messages) {
    state.deflection = {};
    try {
        state.deflection =
            computeDeflection(state.bearing, deflectionInput(entry, state.units), Patience(messages));
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.number(), std::string(error.what()) + "\n\n" + kAdvice);
    }
}

bool hasDeflection(const ProgramState& state) {
    const DeflectionResult& result = state.deflection;
    return !result.partNumber.empty() && result.partNumber == state.bearing.partNumber &&
           result.zSeparatorChoice == state.bearing.zSeparatorChoice;
}

std::vector<std::string> offeredPreloads(const UnitMode& units) {
    std::vector<std::string> preloads;
    preloads.reserve(kOfferedPreloads);
    for (int i = 0; i < kOfferedPreloads; ++i)
        preloads.push_back(FormatNumber(isMetric(units) ? i * 25.4 / 2000.0 : i / 2000.0, kPreloadPicture));
    return preloads;
}

bool isPreloadAxial(const std::string& styleLetter) {
    return styleLetter == "B" || styleLetter == "F";
}

std::string preloadTip(const std::string& styleLetter, const UnitMode& units) {
    return std::string(isPreloadAxial(styleLetter) ? "Axial preload of bearing set in "
                                                   : "Diametral preload in ") +
           (isMetric(units) ? "millimeters" : "inches");
}

}  // namespace norlaplan
