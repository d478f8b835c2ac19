#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "state/Canvas.h"
#include "state/Ports.h"

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

/// A folder for the files that a fuzzer reads, gone when it ends.
class ScratchFolder {
  public:
    ScratchFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "fuzz-XXXXXX").string();
        must(::mkdtemp(name.data()) != nullptr, "there is a temporary folder");
        path_ = name;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

    std::filesystem::path write(const std::filesystem::path& name, std::string_view content) const {
        const std::filesystem::path file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary | std::ios::trunc)
            .write(content.data(), static_cast<std::streamsize>(content.size()));
        return file;
    }

  private:
    std::filesystem::path path_;
};

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

class FixedClock : public ClockPort {
  public:
    std::string date() override { return "3/14/26"; }
    std::string time() override { return "9:26 AM"; }
    std::string longDate() override { return "Saturday, March 14, 2026"; }
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
