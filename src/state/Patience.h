#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <initializer_list>
#include <stdexcept>

#include "state/Ports.h"

namespace norlaplan {

/// A calculation that a guard has ended: it can't come to a result.
class NotConverging : public std::runtime_error {
  public:
    NotConverging();
    /// The title under which it is shown.
    static const char* title();
};

/// Guards an iteration that has no limit of its own. It ends the calculation at once (`NotConverging`) when
/// the iteration's state repeats, since it then can't end by itself, and asks "Do you want to keep trying?"
/// after ten seconds and every ten seconds from there. A converging run is never cut unasked, but when nobody
/// wants its result any more.
class Patience {
  public:
    using Seconds = std::chrono::duration<double>;
    using Now = Seconds (*)();

    /// `messages` gets the question; `now` is a steady clock.
    explicit Patience(MessagePort& messages, Now now = &steadySeconds);

    /// A new iteration begins: forget the states of the last one.
    void begin();

    /// One pass of the iteration, which is in `state`: every value that the next pass depends on, eight at
    /// most.
    void pass(std::initializer_list<double> state) {
        std::array<double, kStates> current{};
        std::size_t at = 0;
        for (const double value : state)
            current[at++] = value;
        if (passes_ != 0 && current == mark_) endRepeating();
        // The mark moves at powers of two (Brent's way), so a cycle of any length is met.
        if ((passes_ & (passes_ - 1)) == 0) mark_ = current;
        if (++passes_ % kPassesBetweenLooks == 0) look();
    }

    /// Work on so many balls is done, in an iteration whose end another rule decides. False when the user
    /// doesn't want to go on. The clock costs as much as a ball: it is looked at every few thousand balls,
    /// whatever a pass has.
    bool worked(int balls) {
        balls_ += static_cast<std::uint64_t>(balls);
        if (balls_ < kBallsBetweenLooks) return true;
        balls_ = 0;
        return goesOn();
    }

    static Seconds steadySeconds();

  private:
    static constexpr std::size_t kStates = 8;
    static constexpr std::uint64_t kPassesBetweenLooks = 64;
    static constexpr std::uint64_t kBallsBetweenLooks = 8192;

    [[noreturn]] static void endRepeating();
    void look();
    bool goesOn();

    MessagePort& messages_;
    Now now_;
    Seconds asked_;
    std::uint64_t passes_ = 0, balls_ = 0;
    std::array<double, kStates> mark_{};
};

}  // namespace norlaplan
