#include "cli/VisibleText.h"

#include "numbers/Encoding.h"

namespace norlaplan::cli {
namespace {

constexpr char kDelete = '\x7F';

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == kDelete;
}

/// Whether a text begins with one of the control characters from 0x80 to 0x9F.
bool beginsWithHighControl(std::string_view text) {
    return text.size() > 1 && text[0] == '\xC2' && static_cast<unsigned char>(text[1]) < 0xA0;
}

std::string codeOf(char byte) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(byte);
    return {'<', kDigits[code / 16], kDigits[code % 16], '>'};
}

}  // namespace

std::string visibleText(std::string_view bytes, LineEnds lineEnds) {
    const std::string whole = utf8Text(bytes);
    const std::string_view text = whole;
    std::string visible;
    visible.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (isControl(c) && !(c == '\n' && lineEnds == LineEnds::Kept)) {
            // The character that is typed with the control key: 64 further on.
            visible += {'^', static_cast<char>(c ^ 0x40)};
        } else if (beginsWithHighControl(text.substr(at))) {
            visible += codeOf(text[++at]);
        } else {
            visible += c;
        }
    }
    return visible;
}

}  // namespace norlaplan::cli
