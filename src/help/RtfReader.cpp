#include "help/RtfReader.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "help/RtfBuilder.h"
#include "help/RtfPicture.h"
#include "help/RtfTokens.h"

namespace norlaplan {
namespace {

/// Deeper groups than any document has are read as if they were not nested.
constexpr std::size_t kDeepest = 200;
constexpr std::size_t kMostTabs = 50;
constexpr std::size_t kMostColours = 1024;
constexpr std::size_t kMostEdges = 64;
constexpr int kLongestIndent = 10000;

enum class Destination { Body, Fonts, Colours, Picture, Skipped };

/// What a group changes and its end brings back.
struct GroupState {
    CharacterLook look;
    ParagraphLook paragraph;
    Destination destination = Destination::Body;
    int fallbackLength = 1;  ///< characters that stand in for a Unicode one
    bool starred = false;
};

class Reader {
  public:
    explicit Reader(std::string_view bytes) : tokens_(bytes) {}

    RichDocument run() {
        for (RtfToken token = tokens_.next(); token.kind != RtfToken::Kind::End; token = tokens_.next()) {
            handle(token);
        }
        return builder_.take();
    }

  private:
    void handle(const RtfToken& token) {
        switch (token.kind) {
            case RtfToken::Kind::Open:
                open();
                break;
            case RtfToken::Kind::Close:
                close();
                break;
            case RtfToken::Kind::Word:
                word(token);
                break;
            case RtfToken::Kind::Symbol:
                symbol(token.text.front());
                break;
            case RtfToken::Kind::Text:
                text(token.text);
                break;
            case RtfToken::Kind::End:
                break;
        }
        state_.starred = state_.starred && token.kind == RtfToken::Kind::Symbol;
    }

    void open() {
        ++depth_;
        if (stack_.size() < kDeepest) stack_.push_back(state_);
    }

    void close() {
        if (state_.destination == Destination::Picture && enclosing() != Destination::Picture) {
            if (auto picture = picture_.take()) builder_.addPicture(std::move(*picture));
            picture_ = {};
        }
        if (depth_ > stack_.size()) {
            --depth_;
            return;
        }
        if (stack_.empty()) return;
        --depth_;
        state_ = stack_.back();
        stack_.pop_back();
        skip_ = 0;
        applyState();
    }

    Destination enclosing() const { return stack_.empty() ? Destination::Body : stack_.back().destination; }

    void applyState() {
        builder_.look = state_.look;
        builder_.paragraphLook = state_.paragraph;
    }

    void symbol(char c) {
        switch (c) {
            case '*':
                state_.starred = true;
                return;
            case '~':
                text("\xA0");
                return;
            case '_':
            case '-':
                return;
            case '\'':
                hexByte();
                return;
            case '\r':
            case '\n':
                endParagraph();
                return;
            default:
                text(std::string_view(&c, 1));
                return;
        }
    }

    void hexByte() {
        const std::string_view digits = tokens_.take(2);
        if (digits.size() < 2 || hexDigit(digits[0]) < 0 || hexDigit(digits[1]) < 0) return;
        const char byte =
            static_cast<char>(static_cast<unsigned char>(hexDigit(digits[0]) * 16 + hexDigit(digits[1])));
        text(std::string_view(&byte, 1));
    }

    void text(std::string_view bytes) {
        switch (state_.destination) {
            case Destination::Fonts:
                fontName(bytes);
                return;
            case Destination::Colours:
                endColours(bytes);
                return;
            case Destination::Picture:
                picture_.hex(bytes);
                return;
            case Destination::Skipped:
                return;
            case Destination::Body:
                break;
        }
        std::string utf8;
        for (const char c : bytes) {
            if (skip_ > 0) {
                --skip_;
            } else {
                utf8 += utf8OfWestern(static_cast<unsigned char>(c));
            }
        }
        builder_.addText(utf8);
    }

    void fontName(std::string_view bytes) {
        std::string& name = fonts_[font_];
        for (const char c : bytes) {
            if (c != ';' && name.size() < 100) name += c;
        }
    }

    void endColours(std::string_view bytes) {
        for (const char c : bytes) {
            if (c != ';' || colours_.size() >= kMostColours) continue;
            colours_.push_back(colour_);
            colour_ = 0;
        }
    }

    void endParagraph() {
        if (state_.destination == Destination::Body) builder_.endParagraph();
    }

    void word(const RtfToken& token) {
        if (token.text == "bin") {
            const std::string_view bytes = tokens_.take(static_cast<std::size_t>(std::max(token.number, 0)));
            if (state_.destination == Destination::Picture) picture_.binary(bytes);
            return;
        }
        if (destinationWord(token.text)) return;
        switch (state_.destination) {
            case Destination::Fonts:
                if (token.text == "f") font_ = token.number;
                return;
            case Destination::Colours:
                colourWord(token);
                return;
            case Destination::Picture:
                picture_.word(token);
                return;
            case Destination::Skipped:
                return;
            case Destination::Body:
                break;
        }
        if (characterWord(token) || paragraphWord(token)) {
            applyState();
        } else {
            bodyWord(token);
        }
    }

    /// Words that say what their group is.
    bool destinationWord(std::string_view name) {
        if (state_.destination == Destination::Skipped) return true;
        static const std::map<std::string_view, Destination> kDestinations = {
            {"fonttbl", Destination::Fonts},      {"colortbl", Destination::Colours},
            {"pict", Destination::Picture},       {"stylesheet", Destination::Skipped},
            {"info", Destination::Skipped},       {"header", Destination::Skipped},
            {"footer", Destination::Skipped},     {"headerf", Destination::Skipped},
            {"footerf", Destination::Skipped},    {"headerl", Destination::Skipped},
            {"headerr", Destination::Skipped},    {"footerl", Destination::Skipped},
            {"footerr", Destination::Skipped},    {"footnote", Destination::Skipped},
            {"nonshppict", Destination::Skipped}, {"object", Destination::Skipped},
            {"fldinst", Destination::Skipped},    {"panose", Destination::Skipped},
            {"falt", Destination::Skipped},       {"shprslt", Destination::Skipped},
            {"bkmkstart", Destination::Skipped},  {"bkmkend", Destination::Skipped},
        };
        static const std::vector<std::string_view> kStarredBody = {"shppict", "pntext", "listtext"};
        const auto found = kDestinations.find(name);
        if (found != kDestinations.end()) {
            // Only the first of a group decides; a picture inside a picture's properties is none.
            if (state_.destination == Destination::Body || found->second == Destination::Skipped) {
                state_.destination = found->second;
            }
            return true;
        }
        if (!state_.starred) return false;
        const bool body = std::find(kStarredBody.begin(), kStarredBody.end(), name) != kStarredBody.end();
        if (!body) state_.destination = Destination::Skipped;
        return true;
    }

    void colourWord(const RtfToken& token) {
        const auto part = static_cast<std::uint32_t>(std::clamp(token.number, 0, 255));
        if (token.text == "red") colour_ = (colour_ & 0xFFFF00U) | part;
        if (token.text == "green") colour_ = (colour_ & 0xFF00FFU) | part << 8U;
        if (token.text == "blue") colour_ = (colour_ & 0x00FFFFU) | part << 16U;
    }

    bool characterWord(const RtfToken& token) {
        CharacterLook& look = state_.look;
        const bool on = !token.hasNumber || token.number != 0;
        const std::string_view name = token.text;
        if (name == "b") return look.bold = on, true;
        if (name == "i") return look.italic = on, true;
        if (name == "ul" || name == "ulw" || name == "uldb") return look.underline = on, true;
        if (name == "ulnone") return look.underline = false, true;
        if (name == "strike") return look.strike = on, true;
        if (name == "sub") return look.script = on ? Script::Sub : Script::Normal, true;
        if (name == "super") return look.script = on ? Script::Super : Script::Normal, true;
        if (name == "nosupersub") return look.script = Script::Normal, true;
        if (name == "fs") return look.points = std::clamp(token.number, 2, 400) / 2.0, true;
        if (name == "plain") return look = defaultLook(), true;
        if (name == "f") {
            const auto font = fonts_.find(token.number);
            look.font = font == fonts_.end() ? "" : font->second;
            return true;
        }
        if (name == "cf") {
            const bool known = token.number > 0 && static_cast<std::size_t>(token.number) < colours_.size();
            look.hasColour = known;
            look.colour = known ? colours_[static_cast<std::size_t>(token.number)] : 0;
            return true;
        }
        return false;
    }

    CharacterLook defaultLook() const {
        CharacterLook look;
        if (const auto font = fonts_.find(defaultFont_); font != fonts_.end()) look.font = font->second;
        return look;
    }

    bool paragraphWord(const RtfToken& token) {
        ParagraphLook& look = state_.paragraph;
        const int number = std::clamp(token.number, -kLongestIndent, kLongestIndent);
        const std::string_view name = token.text;
        if (name == "pard") return look = {}, builder_.inTable = false, true;
        if (name == "ql") return look.alignment = TextAlignment::Left, true;
        if (name == "qc") return look.alignment = TextAlignment::Centre, true;
        if (name == "qr") return look.alignment = TextAlignment::Right, true;
        if (name == "qj") return look.alignment = TextAlignment::Justified, true;
        if (name == "li") return look.leftIndent = number, true;
        if (name == "ri") return look.rightIndent = number, true;
        if (name == "fi") return look.firstIndent = number, true;
        if (name == "sb") return look.spaceBefore = number, true;
        if (name == "sa") return look.spaceAfter = number, true;
        if (name == "tx") {
            if (look.tabs.size() < kMostTabs) look.tabs.push_back(number);
            return true;
        }
        return false;
    }

    void bodyWord(const RtfToken& token) {
        static const std::map<std::string_view, const char*> kCharacters = {
            {"tab", "\t"},           {"line", "\n"},        {"bullet", "\u2022"}, {"emdash", "\u2014"},
            {"endash", "\u2013"},    {"lquote", "\u2018"},  {"rquote", "\u2019"}, {"ldblquote", "\u201C"},
            {"rdblquote", "\u201D"}, {"emspace", "\u2003"}, {"enspace", "\u2002"}};
        const std::string_view name = token.text;
        if (const auto character = kCharacters.find(name); character != kCharacters.end()) {
            builder_.addText(character->second);
        } else if (name == "par" || name == "sect") {
            builder_.endParagraph();
        } else if (name == "page") {
            builder_.pageBreak();
        } else if (name == "u") {
            // Negative numbers stand for the upper half of the 16-bit range.
            builder_.addText(
                utf8Of(static_cast<unsigned>(token.number < 0 ? token.number + 65536 : token.number)));
            skip_ = state_.fallbackLength;
        } else if (name == "uc") {
            state_.fallbackLength = std::clamp(token.number, 0, 16);
        } else if (name == "deff") {
            defaultFont_ = token.number;
        } else {
            tableWord(token);
        }
    }

    void tableWord(const RtfToken& token) {
        const std::string_view name = token.text;
        if (name == "trowd") builder_.cellEdges.clear();
        if (name == "cellx" && builder_.cellEdges.size() < kMostEdges)
            builder_.cellEdges.push_back(token.number);
        if (name == "intbl") builder_.inTable = true;
        if (name == "cell") builder_.endCell();
        if (name == "row") builder_.endRow();
    }

    RtfTokens tokens_;
    RtfBuilder builder_;
    RtfPicture picture_;
    GroupState state_;
    std::vector<GroupState> stack_;
    std::size_t depth_ = 0;
    std::map<int, std::string> fonts_;
    std::vector<std::uint32_t> colours_;
    std::uint32_t colour_ = 0;
    int font_ = 0, defaultFont_ = 0, skip_ = 0;
};

}  // namespace

std::optional<RichDocument> readRtf(std::string_view bytes) {
    if (!bytes.starts_with("{\\rtf")) return std::nullopt;
    return Reader(bytes).run();
}

}  // namespace norlaplan
