#include "help/RtfReader.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "help/RtfBuilder.h"
#include "help/RtfLook.h"
#include "help/RtfPicture.h"
#include "help/RtfRow.h"
#include "help/RtfTables.h"
#include "help/RtfTokens.h"

namespace norlaplan {
namespace {

/// Deeper groups than any document has are read as if they were not nested.
constexpr std::size_t kDeepest = 200;

enum class Destination { Body, Fonts, Colours, Picture, Skipped };

/// What a group changes and its end brings back.
struct GroupState {
    RtfLook look;
    Destination destination = Destination::Body;
    int fallbackLength = 1;  ///< characters that stand in for a Unicode one
    bool starred = false;
};

/// What a word at a group's head makes of the group; nothing for a word that is none of a head.
const Destination* headOf(std::string_view name) {
    static const std::unordered_map<std::string_view, Destination> kHeads = [] {
        std::unordered_map<std::string_view, Destination> heads = {{"fonttbl", Destination::Fonts},
                                                                   {"colortbl", Destination::Colours},
                                                                   {"pict", Destination::Picture}};
        for (const char* const skipped : {"stylesheet",
                                          "info",
                                          "header",
                                          "headerf",
                                          "headerl",
                                          "headerr",
                                          "footer",
                                          "footerf",
                                          "footerl",
                                          "footerr",
                                          "footnote",
                                          "annotation",
                                          "fldinst",
                                          "nonshppict",
                                          "objclass",
                                          "objname",
                                          "objdata",
                                          "panose",
                                          "falt",
                                          "shprslt",
                                          "bkmkstart",
                                          "bkmkend",
                                          "listtable",
                                          "filetbl",
                                          "revtbl",
                                          "pntxta",
                                          "pntxtb",
                                          "xe",
                                          "tc",
                                          "nonesttables",
                                          "listoverridetable",
                                          "do",
                                          "themedata",
                                          "datastore"}) {
            heads.emplace(skipped, Destination::Skipped);
        }
        return heads;
    }();
    const auto found = kHeads.find(name);
    return found == kHeads.end() ? nullptr : &found->second;
}

const char* characterOf(std::string_view name) {
    static const std::unordered_map<std::string_view, const char*> kCharacters = {
        {"tab", "\t"},           {"line", "\n"},        {"bullet", "\u2022"}, {"emdash", "\u2014"},
        {"endash", "\u2013"},    {"lquote", "\u2018"},  {"rquote", "\u2019"}, {"ldblquote", "\u201C"},
        {"rdblquote", "\u201D"}, {"emspace", "\u2003"}, {"enspace", "\u2002"}};
    const auto found = kCharacters.find(name);
    return found == kCharacters.end() ? nullptr : found->second;
}

class Reader {
  public:
    explicit Reader(std::string_view bytes) : tokens_(bytes) {}

    RichDocument run() {
        for (RtfToken token = tokens_.next(); token.kind != RtfToken::Kind::End && !builder_.isFull();
             token = tokens_.next()) {
            handle(token);
        }
        return builder_.take(state_.look, row_);
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
        skip_ = 0;
        ++depth_;
        if (stack_.size() < kDeepest) stack_.push_back(state_);
    }

    void close() {
        skip_ = 0;
        if (depth_ > stack_.size()) {
            --depth_;
            return;
        }
        if (stack_.empty()) return;
        --depth_;
        const Destination ended = state_.destination;
        state_ = std::move(stack_.back());
        stack_.pop_back();
        if (ended == state_.destination) return;
        if (ended == Destination::Picture) endPicture();
        if (ended == Destination::Fonts) makePlain(tables_, state_.look);
    }

    void endPicture() {
        if (auto picture = picture_.take()) builder_.addPicture(std::move(*picture));
        picture_ = {};
    }

    void symbol(char c) {
        switch (c) {
            case '*':
                state_.starred = true;
                return;
            case '\'':
                hexByte();
                return;
            case '~':
                character("\u00A0");
                return;
            case '_':
                character("\u2011");
                return;
            case '\t':
                character("\t");
                return;
            case '\r':
            case '\n':
                if (state_.destination == Destination::Body) endParagraph();
                return;
            case '\\':
            case '{':
            case '}':
                text(std::string_view(&c, 1));
                return;
            default:
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
                tables_.fontText(bytes);
                return;
            case Destination::Colours:
                tables_.colourText(bytes);
                return;
            case Destination::Picture:
                picture_.hex(bytes);
                return;
            case Destination::Skipped:
                return;
            case Destination::Body:
                break;
        }
        const std::size_t passedOver = std::min(bytes.size(), static_cast<std::size_t>(skip_));
        skip_ -= static_cast<int>(passedOver);
        bytes.remove_prefix(passedOver);
        if (!bytes.empty()) firstHalf_ = 0;
        std::string utf8;
        for (const char c : bytes) {
            const auto byte = static_cast<unsigned char>(c);
            utf8 += state_.look.symbols ? utf8OfSign(byte) : utf8OfWestern(byte);
        }
        builder_.addText(utf8, state_.look.character);
    }

    /// A character that has a word or symbol of its own. It may stand in for a Unicode one like any other.
    void character(const char* utf8) {
        if (state_.destination != Destination::Body) return;
        if (skip_ > 0) {
            --skip_;
        } else {
            builder_.addText(utf8, state_.look.character);
        }
    }

    void endParagraph() { builder_.endParagraph(state_.look); }

    void word(const RtfToken& token) {
        if (token.text == "bin") {
            const std::string_view bytes = tokens_.take(static_cast<std::size_t>(std::max(token.number, 0)));
            if (state_.destination == Destination::Picture) picture_.binary(bytes);
            return;
        }
        if (state_.destination == Destination::Skipped || isHead(token.text)) return;
        switch (state_.destination) {
            case Destination::Fonts:
                tables_.fontWord(token);
                return;
            case Destination::Colours:
                tables_.colourWord(token);
                return;
            case Destination::Picture:
                picture_.word(token);
                return;
            case Destination::Skipped:
                return;
            case Destination::Body:
                bodyWord(token);
        }
    }

    /// Takes a word that says what its group is.
    bool isHead(std::string_view name) {
        if (const Destination* const head = headOf(name)) {
            // A table or picture inside another one is none, and its group is read for nothing.
            const bool within = state_.destination != Destination::Body;
            state_.destination = within ? Destination::Skipped : *head;
            if (state_.destination == Destination::Picture) picture_ = {};
            return true;
        }
        // A starred group may be skipped by who doesn't know it; this one holds the better copy of a picture.
        if (!state_.starred) return false;
        if (name != "shppict") state_.destination = Destination::Skipped;
        return true;
    }

    void bodyWord(const RtfToken& token) {
        const std::string_view name = token.text;
        if (const char* const utf8 = characterOf(name)) return character(utf8);
        if (name == "u") return unicode(token.number);
        if (applyCharacterWord(token, tables_, state_.look)) return;
        if (applyParagraphWord(token, tables_, state_.look)) return;
        if (name == "par" || name == "sect") return endParagraph();
        if (name == "page") return builder_.pageBreak();
        if (name == "uc") state_.fallbackLength = std::clamp(token.number, 0, 16);
        if (name == "deff") tables_.defaultFont = token.number;
        // The cells of a table in a table are shown as paragraphs of the outer one's cell.
        if (name == "nestcell") return endParagraph();
        if (name == "cell") return builder_.endCell(state_.look);
        if (name == "row") return builder_.endRow(row_);
        row_.word(token, tables_);
    }

    void unicode(int number) {
        // Negative numbers stand for the upper half of the 16-bit range.
        const unsigned code = static_cast<unsigned>(number < 0 ? number + 65536 : number);
        skip_ = state_.fallbackLength;
        const bool completes = code >= 0xDC00 && code <= 0xDFFF && firstHalf_ != 0;
        const unsigned first = std::exchange(firstHalf_, code >= 0xD800 && code <= 0xDBFF ? code : 0U);
        if (firstHalf_ != 0) return;
        const unsigned whole = completes ? 0x10000U + ((first - 0xD800U) << 10U) + (code - 0xDC00U) : code;
        builder_.addText(utf8Of(whole), state_.look.character);
    }

    RtfTokens tokens_;
    RtfBuilder builder_;
    RtfTables tables_;
    RtfPicture picture_;
    RtfRow row_;
    GroupState state_;
    std::vector<GroupState> stack_;
    std::size_t depth_ = 0;
    int skip_ = 0;            ///< bytes that a Unicode character stands for
    unsigned firstHalf_ = 0;  ///< of a character that is written as two
};

}  // namespace

std::optional<RichDocument> readRtf(std::string_view bytes) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(kMark)) bytes.remove_prefix(kMark.size());
    bytes.remove_prefix(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
    if (!bytes.starts_with("{\\rtf")) return std::nullopt;
    return Reader(bytes).run();
}

}  // namespace norlaplan
