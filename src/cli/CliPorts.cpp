#include "cli/CliPorts.h"

#include <array>
#include <clocale>
#include <ctime>

namespace norlaplan::cli {
namespace {

std::string now(const char* format) {
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&seconds, &local);
    std::array<char, 100> text{};
    // Dates print in the user's locale; numbers never follow it. Few calls print one.
    static const locale_t kUsers = ::newlocale(LC_TIME_MASK, "", nullptr);
    const std::size_t length = kUsers == nullptr
                                   ? std::strftime(text.data(), text.size(), format, &local)
                                   : ::strftime_l(text.data(), text.size(), format, &local, kUsers);
    return {text.data(), length};
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
