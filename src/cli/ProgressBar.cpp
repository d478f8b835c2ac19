#include "cli/ProgressBar.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include <unistd.h>

#include "numbers/FormatNumber.h"

namespace norlaplan::cli {

ProgressBar::ProgressBar() : terminal_(::isatty(STDERR_FILENO) == 1) {}

ProgressBar::~ProgressBar() {
    if (drawn_) std::fputs("\r\033[K", stderr);
}

void ProgressBar::show(double part, std::size_t cases) {
    constexpr std::size_t kWidth = 30;
    constexpr std::chrono::milliseconds kPause{100};
    const Clock::time_point now = Clock::now();
    if (!terminal_ || (drawn_ && now - last_ < kPause)) return;
    drawn_ = true;
    last_ = now;
    const double shown = std::clamp(part, 0.0, 1.0);
    const auto full = static_cast<std::size_t>(shown * kWidth);
    const std::string bar = "[" + std::string(full, '#') + std::string(kWidth - full, '.') + "] ";
    std::fprintf(stderr, "\r%s%3d %%  %s cases", bar.c_str(), static_cast<int>(shown * 100.0),
                 FormatNumber(static_cast<double>(cases), "#,##0").c_str());
    std::fflush(stderr);
}

}  // namespace norlaplan::cli
