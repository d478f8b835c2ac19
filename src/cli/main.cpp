#include <algorithm>
#include <cerrno>
#include <iostream>
#include <string_view>
#include <utility>

#include <sys/resource.h>

#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/Interrupts.h"
#include "cli/VisibleText.h"
#include "numbers/RuntimeError.h"
#include "state/FileFault.h"
#include "state/StandardFiles.h"

namespace norlaplan::cli {
namespace {

Json warningsJson(const Session& session) {
    Json warnings = Json::array();
    for (const Message& message : session.warnings()) {
        warnings.push_back({{"title", message.title}, {"prompt", message.prompt}});
    }
    return warnings;
}

void warn(const Session& session) {
    for (const Message& message : session.warnings()) {
        std::cerr << visibleText(message.title + ": " + message.prompt) << '\n';
    }
}

/// What is printed has arrived, or it is an error: a full disk, or a standard output that is closed.
void finishOutput() {
    std::cout.flush();
    if (!std::cout) raiseSystem(errno, "standard output", fault::kDeviceIo);
}

void print(const Invocation& invocation, Session& session, CommandResult result) {
    if (invocation.options.json) {
        result.json["warnings"] = warningsJson(session);
        std::cout << writeJson(result.json);
    } else {
        std::cout << visibleText(result.text);
    }
    finishOutput();
}

void run(const Invocation& invocation) {
    Session session(invocation.options);
    CommandResult result;
    try {
        result = invocation.command(session);
    } catch (...) {
        warn(session);
        throw;
    }
    warn(session);
    print(invocation, session, std::move(result));
}

/// Refuses a stack on which even the command line's parser doesn't fit: an overflow can't be told afterwards.
void requireStack() {
    constexpr rlim_t kLeast = 256U << 10U;
    rlimit stack{};
    if (::getrlimit(RLIMIT_STACK, &stack) != 0 || stack.rlim_cur >= kLeast) return;
    throw RuntimeError(fault::kOutOfStack,
                       runtimeErrorText(fault::kOutOfStack) + ": the limit on the stack is below 256 KB");
}

int report(const CommandError& error, bool json) {
    std::cerr << visibleText(error.text()) << '\n';
    if (json) std::cout << writeJson(error.json());
    return error.exitStatus();
}

}  // namespace
}  // namespace norlaplan::cli

int main(int argc, char** argv) {
    using namespace norlaplan::cli;
    const bool json = std::any_of(argv + 1, argv + argc,
                                  [](const char* word) { return std::string_view(word) == "--json"; });
    norlaplan::holdClosedStandardFiles();
    try {
        requireStack();
        if (const auto invocation = parseCommandLine(argc, argv))
            run(*invocation);
        else
            finishOutput();
        return 0;
    } catch (const Interrupted& interrupted) {
        interrupted.endProgram();
    } catch (...) {
        return report(currentError(), json);
    }
}
