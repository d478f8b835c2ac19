#pragma once

#include <string>
#include <variant>

#include "state/GraphSettings.h"
#include "state/Ports.h"

namespace norlaplan {

/// The numbers of a graph's axes as texts, in its display units.
struct GraphFields {
    std::string xMax, xMajor, yMax, yMajor;
};

/// What the settings say, with 15 significant digits.
GraphFields graphFields(const GraphSettings& settings);

/// A message about what was entered, with the text that it is about.
struct GraphRefusal : Message {
    std::string GraphFields::*field = nullptr;
};

/// The user's own axes: `settings` with these numbers, adjusted. Refused are a text that is no number, a
/// number that isn't above 0, and a grid of more lines than a graph shows apart.
std::variant<GraphSettings, GraphRefusal> adjustedSettings(GraphSettings settings, const GraphFields& fields);

}  // namespace norlaplan
