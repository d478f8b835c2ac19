#pragma once

#include <chrono>
#include <cstddef>

namespace norlaplan::cli {

/// A bar on standard error as long as it is a terminal; a file or a pipe gets nothing. It takes itself away.
class ProgressBar {
  public:
    ProgressBar();
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    /// `part` of the whole is done, 0 to 1, which are `cases`. It is drawn ten times a second at most.
    void show(double part, std::size_t cases);

  private:
    using Clock = std::chrono::steady_clock;

    const bool terminal_;
    bool drawn_ = false;
    Clock::time_point last_;
};

}  // namespace norlaplan::cli
