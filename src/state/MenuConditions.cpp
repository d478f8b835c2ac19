#include "state/MenuConditions.h"

#include <string_view>

namespace norlaplan {
namespace {

bool styleIsOneOf(const ProgramState& state, std::string_view letters) {
    const std::string& style = state.bearing.styleLetter;
    return style.size() == 1 && letters.find(style[0]) != std::string_view::npos;
}

}  // namespace

std::optional<Message> bearingRefusal(const ProgramState& state) {
    if (!state.bearing.partNumber.empty()) return std::nullopt;
    return Message{"Missing Part Number", "Please enter part number first", Icon::Information};
}

std::optional<Message> loadableBearingRefusal(const ProgramState& state) {
    if (auto refusal = bearingRefusal(state)) return refusal;
    if (!styleIsOneOf(state, "UAT")) return std::nullopt;
    return Message{"Try another Bearing type", "Bearing type " + state.bearing.styleLetter + " Not allowed"};
}

std::optional<Message> lifeRefusal(ProgramState& state) {
    if (auto refusal = loadableBearingRefusal(state)) return refusal;
    if (!state.loadsEntered) return Message{"Missing Load Data", "Please enter loads first"};
    if (state.bearing.styleLetter == "C" && state.loads.radialLoad == 0.0) {
        state.loadsEntered = false;
        return Message{"Missing Load Data", "Please enter Radial load first"};
    }
    return std::nullopt;
}

std::optional<Message> preloadTorqueRefusal(const ProgramState& state) {
    if (auto refusal = bearingRefusal(state)) return refusal;
    if (styleIsOneOf(state, "XCFB")) return std::nullopt;
    return Message{"Wrong Bearing style", "Only Duplexes , 'C' or 'X' styles allowed", Icon::Critical};
}

std::optional<Message> axialPlayRefusal(const ProgramState& state) {
    if (auto refusal = bearingRefusal(state)) return refusal;
    if (styleIsOneOf(state, "CX")) return std::nullopt;
    return Message{"Wrong Bearing style", "Only radial and 4-point contact bearings allowed", Icon::Critical};
}

std::optional<Message> thermalFitsRefusal(const ProgramState& state) {
    if (!state.bearing.partNumber.empty()) return std::nullopt;
    return Message{"Missing bearing data", "Please select a bearing first"};
}

std::optional<StepRefusal> sizesRefusal(const ProgramState& state) {
    if (state.styleChosen) return std::nullopt;
    return StepRefusal{{"STYLE OF BEARING UNKNOWN", "BEARING STYLE MUST BE CHOSEN BEFORE SIZES"},
                       SearchStep::Style};
}

std::optional<StepRefusal> searchLoadsRefusal(const ProgramState& state) {
    if (auto refusal = sizesRefusal(state)) return refusal;
    if (state.sizesChosen) return std::nullopt;
    return StepRefusal{{"Missing Bearing Size", "Size of bearing must be known"}, SearchStep::Sizes};
}

std::optional<StepRefusal> resultsRefusal(const ProgramState& state) {
    if (auto refusal = searchLoadsRefusal(state)) return refusal;
    if (state.loadsEntered) return std::nullopt;
    return StepRefusal{{"Missing Load Data", "Bearing Loads Must be known"}, SearchStep::Loads};
}

}  // namespace norlaplan
