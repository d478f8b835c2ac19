#pragma once

#include <string>
#include <variant>
#include <vector>

#include "deflection/Deflection.h"
#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// Proposes what stands in the fields, unless they were filled for the bearing in hand in the units in force.
/// The result of other ones goes.
void prepareDeflectionFields(ProgramState& state);

/// A message about what was entered, with the text that it is about.
struct DeflectionRefusal : Message {
    std::string DeflectionFields::*field = nullptr;
};

/// What the fields say in display units, or why they can't be calculated with: a text that is no number, a
/// preload below 0, a maximum that isn't above 0. The maxima of loads that the style doesn't carry are 0.
std::variant<DeflectionEntry, DeflectionRefusal> enteredDeflection(const ProgramState& state);

/// Works out `state.deflection` for the bearing in hand; while that fails there is none. Errors as those of
/// `computeDeflection`, a run-time error with a sentence on what to enter instead.
void solveDeflection(ProgramState& state, const DeflectionEntry& entry, MessagePort& messages);

/// Whether `state.deflection` is that of the bearing in hand.
bool hasDeflection(const ProgramState& state);

/// The preloads that are offered: 0 to 0.0035 inch in steps of half a thousandth, in display units.
std::vector<std::string> offeredPreloads(const UnitMode& units);

/// Whether a preload is axial, as that of a pair, or diametral.
bool isPreloadAxial(const std::string& styleLetter);

/// Which preload is asked for.
std::string preloadTip(const std::string& styleLetter, const UnitMode& units);

}  // namespace norlaplan
