#pragma once

#include <optional>

#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// What the main menu says instead of opening a screen; nothing when the screen may open. Each condition
/// stands here once for the menu and the command line.

/// For every action on the current bearing.
std::optional<Message> bearingRefusal(const ProgramState& state);
/// For deflection, loads and life: not for single angular contact bearings and tandem sets.
std::optional<Message> loadableBearingRefusal(const ProgramState& state);
/// For the load-life calculation. A radial contact bearing with no radial load also loses its entered loads.
std::optional<Message> lifeRefusal(ProgramState& state);
std::optional<Message> preloadTorqueRefusal(const ProgramState& state);
std::optional<Message> axialPlayRefusal(const ProgramState& state);
std::optional<Message> thermalFitsRefusal(const ProgramState& state);

/// A step of the search path.
enum class SearchStep { Style, Sizes, Loads };

/// What the menu says when a step of the search path is asked for before its turn, and the step that comes
/// first.
struct StepRefusal {
    Message message;
    SearchStep missing;
};

/// For the size screen: the style must be chosen.
std::optional<StepRefusal> sizesRefusal(const ProgramState& state);
/// For the load screen of a search: the style and the sizes.
std::optional<StepRefusal> searchLoadsRefusal(const ProgramState& state);
/// For the results of a search: the style, the sizes and the loads.
std::optional<StepRefusal> resultsRefusal(const ProgramState& state);

}  // namespace norlaplan
