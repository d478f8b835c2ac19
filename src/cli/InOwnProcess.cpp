#include "cli/InOwnProcess.h"

#include <cerrno>
#include <csignal>
#include <exception>
#include <optional>
#include <string>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "cli/CommandError.h"
#include "numbers/RuntimeError.h"
#include "state/Descriptor.h"
#include "state/FileFault.h"

namespace norlaplan::cli {
namespace {

constexpr int kTold = 1, kGone = 2;
constexpr char kEnd = '\0';

[[noreturn]] void raiseGone() {
    throw RuntimeError(fault::kOutOfMemory,
                       runtimeErrorText(fault::kOutOfMemory) +
                           ": a picture takes more memory, open files or stack than this program may use");
}

void send(int pipe, const std::string& text) {
    std::size_t sent = 0;
    while (sent < text.size()) {
        const ssize_t count = ::write(pipe, text.data() + sent, text.size() - sent);
        if (count < 0 && errno != EINTR) return;
        if (count > 0) sent += static_cast<std::size_t>(count);
    }
}

std::string received(int pipe) {
    std::string text;
    char block[4096];
    for (;;) {
        const ssize_t count = ::read(pipe, block, sizeof block);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return text;
        text.append(block, static_cast<std::size_t>(count));
    }
}

// An error goes through the pipe as its kind, its number ("" for none), its title and its prompt.

std::string packed(const CommandError& error) {
    const std::optional<int> number = error.number();
    std::string text(1, static_cast<char>('0' + static_cast<int>(error.kind())));
    for (const std::string& part :
         {number ? std::to_string(*number) : std::string(), error.title(), error.prompt()})
        text += part + kEnd;
    return text;
}

CommandError unpacked(const std::string& text) {
    const std::size_t number = text.find(kEnd);
    const std::size_t title = text.find(kEnd, number + 1);
    const std::string digits = text.substr(1, number - 1);
    return {static_cast<ErrorKind>(text[0] - '0'), text.substr(number + 1, title - number - 1),
            text.substr(title + 1, text.size() - title - 2),
            digits.empty() ? std::nullopt : std::optional<int>(std::stoi(digits))};
}

[[noreturn]] void runAndEnd(const std::function<void()>& work, int pipe) {
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    // The one who waits tells what has happened, and nobody looks at the memory of it.
    const rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
    std::set_terminate([] { ::_exit(kGone); });
    try {
        work();
        ::_exit(0);
    } catch (...) {
        send(pipe, packed(currentError()));
        ::_exit(kTold);
    }
}

int endOf(pid_t process) {
    int status = 0;
    while (::waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : kGone;
}

}  // namespace

void inOwnProcess(const std::function<void()>& work) {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) raiseFile(fault::kTooManyFiles, "the pipe to a process that draws");
    const Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);
    const pid_t process = ::fork();
    if (process < 0) raiseGone();
    if (process == 0) runAndEnd(work, writing.number());
    writing.close();
    const std::string told = received(reading.number());
    const int end = endOf(process);
    if (end == 0) return;
    if (end == kTold && !told.empty()) throw unpacked(told);
    raiseGone();
}

}  // namespace norlaplan::cli
