#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "state/Canvas.h"
#include "state/Ports.h"
#include "support/RecordingPorts.h"

/// What fuzzers share.
namespace norlaplan::fuzz {

inline std::string textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the fuzzer with a finding when the claim doesn't hold.
inline void must(bool holds, const char* claim) {
    if (holds) return;
    std::fprintf(stderr, "BROKEN: %s\n", claim);
    std::abort();
}

/// Hears every message, answers No, and loses patience with a calculation after a few looks at the clock.
class Impatient : public MessagePort {
  public:
    void show(const Message&) override {}
    Answer ask(const Message&, Buttons) override { return Answer::No; }
    bool stillWanted() override { return ++looks_ < kMostLooks; }

  private:
    static constexpr int kMostLooks = 5;
    int looks_ = 0;
};

/// Paper on which nothing is seen.
class NoCanvas : public Canvas {
  public:
    void line(PagePoint, PagePoint, const PagePen&) override {}
    void rectangle(const PageBox&, std::optional<Colour>, const std::optional<PagePen>&) override {}
    void circle(PagePoint, double, const PagePen&) override {}
    void text(const PageBox&, std::string_view, const TextLook&) override {}
    double textWidth(std::string_view text, const TextLook& look) override {
        return static_cast<double>(text.size()) * look.points / 144.0;
    }
    void newPage() override {}
};

}  // namespace norlaplan::fuzz
