#include "state/Patience.h"

namespace norlaplan {
namespace {

constexpr Patience::Seconds kTimeToAsk{10.0};

}  // namespace

NotConverging::NotConverging()
    : std::runtime_error("The calculation was ended because it comes to no result with these values.") {}

const char* NotConverging::title() {
    return "The calculation does not converge";
}

Patience::Patience(MessagePort& messages, Now now) : messages_(messages), now_(now), asked_(now()) {}

Patience::Seconds Patience::steadySeconds() {
    return std::chrono::duration_cast<Seconds>(std::chrono::steady_clock::now().time_since_epoch());
}

void Patience::begin() {
    passes_ = 0;
}

void Patience::endRepeating() {
    throw NotConverging();
}

void Patience::look() {
    if (!goesOn()) throw NotConverging();
}

bool Patience::goesOn() {
    if (!messages_.stillWanted()) return false;
    if (now_() - asked_ < kTimeToAsk) return true;
    const Message question{NotConverging::title(), "Do you want to keep trying?", Icon::Question};
    if (messages_.ask(question, Buttons::YesNo) != Answer::Yes) return false;
    asked_ = now_();
    return true;
}

}  // namespace norlaplan
