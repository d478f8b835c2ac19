#include "documents/WrappedText.h"

#include <algorithm>

namespace norlaplan {
namespace {

/// Fills lines word by word.
class Filler {
  public:
    Filler(double width, const TextMeasure& measure) : width_(width), measure_(measure) {}

    /// A word with the blanks before it; at the start of a line these fall away.
    void add(std::string_view blanks, std::string_view word) {
        const double wide = measure_(word);
        const double before = line_.empty() && !lines_.empty() ? 0.0 : measure_(blanks);
        if (used_ + before + wide <= width_) {
            if (before > 0.0) line_ += blanks;
            line_ += word;
            used_ += before + wide;
            return;
        }
        if (!line_.empty()) endLine();
        if (wide <= width_) {
            line_ = word;
            used_ = wide;
        } else {
            cut(word);
        }
    }

    void endLine() {
        lines_.push_back(std::move(line_));
        line_.clear();
        used_ = 0.0;
    }

    std::vector<std::string> take() { return std::move(lines_); }

  private:
    void cut(std::string_view word) {
        while (!word.empty()) {
            const std::string_view character = word.substr(0, characterLength(word));
            const double wide = measure_(character);
            if (!line_.empty() && used_ + wide > width_) endLine();
            line_ += character;
            used_ += wide;
            word.remove_prefix(character.size());
        }
    }

    double width_;
    const TextMeasure& measure_;
    std::vector<std::string> lines_;
    std::string line_;
    double used_ = 0.0;
};

}  // namespace

std::size_t characterLength(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t bytes = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
    return std::min(bytes, text.size());
}

std::vector<std::string> wrappedText(std::string_view text, double width, const TextMeasure& measure) {
    Filler filler(width, measure);
    while (true) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view paragraph = text.substr(0, end);
        while (!paragraph.empty()) {
            const std::size_t word = std::min(paragraph.find_first_not_of(' '), paragraph.size());
            const std::size_t behind = std::min(paragraph.find(' ', word), paragraph.size());
            filler.add(paragraph.substr(0, word), paragraph.substr(word, behind - word));
            paragraph.remove_prefix(behind);
        }
        filler.endLine();
        if (end == text.size()) return filler.take();
        text.remove_prefix(end + 1);
    }
}

}  // namespace norlaplan
