#include "state/LoadEntry.h"

#include <array>
#include <cmath>
#include <string>

#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr const char* kLoadTitle = "Please correct load";
constexpr const char* kRadialStyle = "RADIAL CONTACT";
constexpr const char* kSpeedTitle = "Please correct Speed";

/// A field of the load screen: its text, the load it stands for, and the message when it can't be read.
struct LoadField {
    std::string EntryTexts::*text;
    Single LoadCase::*load;
    const char* title;
    const char* prompt;
};

constexpr std::array<LoadField, 4> kFields = {{
    {&EntryTexts::radial, &LoadCase::radialLoadDisplay, kLoadTitle, "Radial Load input error"},
    {&EntryTexts::axial, &LoadCase::axialLoadDisplay, kLoadTitle, "Axial Load input error"},
    {&EntryTexts::moment, &LoadCase::momentLoadDisplay, kLoadTitle, "Moment Load input error"},
    {&EntryTexts::speed, &LoadCase::speed, kSpeedTitle, "Speed input error"},
}};

/// Each path leaves its style behind; the other one must not take it for its own.
bool isKnownPath(const ProgramState& state) {
    return state.knownBearingLoadInput ? !state.bearing.styleLetter.empty()
                                       : state.style.searchStyleCaption.empty();
}

bool fitsSingle(double value) {
    return std::isfinite(static_cast<float>(value));
}

}  // namespace

bool isRadialContact(const ProgramState& state) {
    return isKnownPath(state) ? state.bearing.styleLetter == "C"
                              : state.style.searchStyleCaption == kRadialStyle;
}

bool takesSpeed(const ProgramState& state) {
    const std::string& number = state.bearing.partNumber;
    return !isKnownPath(state) || number.size() < 8 || number[7] != 'F';
}

void prepareLoadEntry(ProgramState& state) {
    if (!takesSpeed(state)) {
        state.loads.speed = 0.0;
        state.entries.speed = "0";
    }
    if (isRadialContact(state)) {
        state.loads.axialLoadDisplay = 0.0;
        state.loads.momentLoadDisplay = 0.0;
        state.entries.axial.clear();
        state.entries.moment.clear();
        convertLoads(state);
        if (!hasLoad(state.loads)) state.loadsEntered = false;
    }
}

std::optional<FieldMessage> enterLoads(ProgramState& state) {
    std::optional<FieldMessage> wrong;
    LoadCase loads = state.loads;
    state.loadsEntered = false;
    for (const LoadField& field : kFields) {
        std::string& text = state.entries.*field.text;
        if (text.empty()) text = "0";
        const std::optional<double> value = wholeNumberText(text);
        if (value && fitsSingle(*value)) {
            loads.*field.load = *value;
        } else {
            // The later fields are told of first, so the last one met wins.
            wrong = FieldMessage{{field.title, field.prompt}, field.text};
        }
    }
    loads.speed = std::fabs(loads.speed);
    // What is shown and what is calculated with never differ, and a refused entry is none.
    convertLoads(loads, state.units);
    state.loads = loads;
    if (wrong) return wrong;
    const bool radialSearch = !state.knownBearingLoadInput && state.style.searchStyleCaption == kRadialStyle;
    if (radialSearch && loads.radialLoadDisplay == 0.0) {
        return FieldMessage{{"Missing Load", "You must enter a Radial Load"}, &EntryTexts::radial};
    }
    if (!hasLoad(loads)) {
        return FieldMessage{{"Missing Loads", "At least one load must be entered!"}, &EntryTexts::radial};
    }
    state.loadsEntered = true;
    return std::nullopt;
}

void convertLoads(LoadCase& loads, const UnitMode& units) {
    loads.radialLoad = units.forceFactor * loads.radialLoadDisplay;
    loads.axialLoad = units.forceFactor * loads.axialLoadDisplay;
    loads.momentLoad = units.momentFactor * loads.momentLoadDisplay;
}

void convertLoads(ProgramState& state) {
    convertLoads(state.loads, state.units);
}

bool hasLoad(const LoadCase& loads) {
    return loads.radialLoadDisplay != 0.0 || loads.axialLoadDisplay != 0.0 || loads.momentLoadDisplay != 0.0;
}

}  // namespace norlaplan
