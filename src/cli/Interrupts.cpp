#include "cli/Interrupts.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>

namespace norlaplan::cli {
namespace {

constexpr std::array<int, 3> kSignals = {SIGINT, SIGTERM, SIGHUP};

std::atomic<int> met = 0;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler may touch nothing else");

void meet(int signal) {
    met = signal;
}

}  // namespace

void Interrupted::endProgram() const {
    std::signal(signal_, SIG_DFL);
    std::raise(signal_);
    std::_Exit(128 + signal_);
}

Interrupts::Interrupts() {
    for (const int signal : kSignals) {
        // What the shell has switched off, as for a program in the background, stays so.
        if (std::signal(signal, &meet) == SIG_IGN) std::signal(signal, SIG_IGN);
    }
}

Interrupts::~Interrupts() {
    for (const int signal : kSignals) {
        if (std::signal(signal, SIG_DFL) == SIG_IGN) std::signal(signal, SIG_IGN);
    }
}

bool Interrupts::requested() {
    return met != 0;
}

void Interrupts::check() {
    if (requested()) throw Interrupted(met);
}

}  // namespace norlaplan::cli
