#pragma once

#include <functional>
#include <optional>

#include "cli/Session.h"

namespace norlaplan::cli {

/// What a command line asks for.
struct Invocation {
    GlobalOptions options;
    std::function<CommandResult(Session&)> command;
};

/// Reads the command line. Help and version are printed here: nothing is then left to do. Errors:
/// `CommandError` (usage).
std::optional<Invocation> parseCommandLine(int argc, char** argv);

}  // namespace norlaplan::cli
