#pragma once

#include <string>

#include "state/ProgramState.h"

namespace norlaplan {

/// The current bearing as a project file of the sibling analysis program: lines that end in CR LF, 73 of them
/// in US units. In metric units it ends after line 65, and is no finished export: `exportEndsEarly`.
std::string qlxText(const ProgramState& state);

/// Whether the export stops before its end, as it does in metric units.
bool exportEndsEarly(const ProgramState& state);

/// What the user is told then.
constexpr const char* kExportEndsEarly =
    "In metric units the export stops after line 65: the file is not a finished export.";

}  // namespace norlaplan
