#include "cli/CliPorts.h"

#include <array>
#include <ctime>

namespace norlaplan::cli {
namespace {

std::string now(const char* format) {
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&seconds, &local);
    std::array<char, 100> text{};
    return {text.data(), std::strftime(text.data(), text.size(), format, &local)};
}

}  // namespace

Message CollectedMessages::takeLast() {
    Message last = messages_.back();
    messages_.pop_back();
    return last;
}

std::string SystemClock::date() {
    return now("%x");
}
std::string SystemClock::time() {
    return now("%X");
}
std::string SystemClock::longDate() {
    return now("%A, %B %e, %Y");
}

}  // namespace norlaplan::cli
