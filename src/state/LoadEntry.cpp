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

bool fitsSingle(double value) {
    return std::isfinite(static_cast<float>(value));
}

}  // namespace

bool isRadialContact(const ProgramState& state) {
    const std::string& letter = state.bearing.styleLetter;
    const std::string& caption = state.style.searchStyleCaption;
    // Each path leaves its style behind; the other one must not take it for its own.
    const bool known = state.knownBearingLoadInput ? !letter.empty() : caption.empty();
    return known ? letter == "C" : caption == kRadialStyle;
}

bool takesSpeed(const ProgramState& state) {
    const std::string& number = state.bearing.partNumber;
    return number.size() < 8 || number[7] != 'F';
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
    }
}

std::optional<Message> enterLoads(ProgramState& state) {
    std::optional<Message> wrong;
    for (const LoadField& field : kFields) {
        std::string& text = state.entries.*field.text;
        if (text.empty()) text = "0";
        const std::optional<double> value = wholeNumberText(text);
        if (value && fitsSingle(*value)) {
            state.loads.*field.load = *value;
        } else {
            // The later fields are told of first, so the last one met wins.
            wrong = Message{field.title, field.prompt};
        }
    }
    state.loads.speed = std::fabs(state.loads.speed);
    // What is shown and what is calculated with never differ, and a refused entry is none.
    convertLoads(state);
    state.loadsEntered = false;
    if (wrong) return wrong;
    const LoadCase& loads = state.loads;
    const bool radialSearch = !state.knownBearingLoadInput && state.style.searchStyleCaption == kRadialStyle;
    if (radialSearch && loads.radialLoadDisplay == 0.0) {
        return Message{"Missing Load", "You must enter a Radial Load"};
    }
    if (loads.radialLoadDisplay == 0.0 && loads.axialLoadDisplay == 0.0 && loads.momentLoadDisplay == 0.0) {
        return Message{"Missing Loads", "At least one load must be entered!"};
    }
    state.loadsEntered = true;
    return std::nullopt;
}

void convertLoads(ProgramState& state) {
    LoadCase& loads = state.loads;
    loads.radialLoad = state.units.forceFactor * loads.radialLoadDisplay;
    loads.axialLoad = state.units.forceFactor * loads.axialLoadDisplay;
    loads.momentLoad = state.units.momentFactor * loads.momentLoadDisplay;
}

}  // namespace norlaplan
