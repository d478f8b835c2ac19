#include "documents/FaxCover.h"
#include "documents/FaxPage.h"
#include "documents/WrappedText.h"

namespace norlaplan {
namespace {

constexpr double kBreakFrom = 10000.0;

/// Types the message as a printer does: character by character, with the place where the next one goes. A
/// line begins at tab 11 or at the edge, which is left of every text, and so its first character goes on to
/// tab 12.
class Typist {
  public:
    explicit Typist(const CharacterWidth& width) : width_(width) {}

    bool isFarRight() const { return x_ >= kBreakFrom; }

    /// A character; line feeds begin a line and carriage returns are passed over.
    void type(std::string_view character) {
        if (character == "\n") {
            newLine();
        } else if (character != "\r") {
            lines_.back() += character;
            x_ += width_(character);
        }
    }
    void newLine() {
        lines_.emplace_back();
        x_ = faxpage::tab(12);
    }

    std::vector<std::string> take() { return std::move(lines_); }

  private:
    const CharacterWidth& width_;
    std::vector<std::string> lines_ = {""};
    double x_ = faxpage::tab(12);
};

}  // namespace

std::vector<std::string> coverMessageLines(std::string_view message, const CharacterWidth& width) {
    Typist typist(width);
    const auto next = [&message] {
        const std::string_view character = message.substr(0, characterLength(message));
        message.remove_prefix(character.size());
        return character;
    };
    while (!message.empty()) {
        if (!typist.isFarRight()) {
            typist.type(next());
            continue;
        }
        bool broken = false;
        while (!message.empty() && !broken) {
            const std::string_view character = next();
            broken = character == " ";
            if (broken)
                typist.newLine();
            else
                typist.type(character);
        }
    }
    return typist.take();
}

}  // namespace norlaplan
