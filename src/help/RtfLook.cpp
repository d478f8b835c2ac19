#include "help/RtfLook.h"

#include <algorithm>
#include <string_view>

namespace norlaplan {
namespace {

constexpr std::size_t kMostTabs = 50;
constexpr int kLongestIndent = 10000;
constexpr double kSingleLine = 240.0;

void setFont(int number, const RtfTables& tables, RtfLook& look) {
    look.character.font = tables.fontName(number);
    look.symbols = tables.isSymbolFont(number);
}

/// Words that are on alone or with a number other than 0 ("b", "b0").
bool applySwitch(std::string_view name, bool on, CharacterLook& look) {
    const auto script = [&](Script value) { look.script = on ? value : Script::Normal; };
    if (name == "b") return look.bold = on, true;
    if (name == "i") return look.italic = on, true;
    if (name == "ul" || name == "ulw" || name == "uldb" || name == "uld") return look.underline = on, true;
    if (name == "strike" || name == "striked") return look.strike = on, true;
    if (name == "v") return look.hidden = on, true;
    if (name == "sub") return script(Script::Sub), true;
    if (name == "super") return script(Script::Super), true;
    if (name == "ulnone") return look.underline = false, true;
    if (name == "nosupersub") return look.script = Script::Normal, true;
    return false;
}

bool applyAlignment(std::string_view name, ParagraphLook& look) {
    if (name == "ql") return look.alignment = TextAlignment::Left, true;
    if (name == "qc") return look.alignment = TextAlignment::Centre, true;
    if (name == "qr") return look.alignment = TextAlignment::Right, true;
    if (name == "qj") return look.alignment = TextAlignment::Justified, true;
    return false;
}

bool applyTab(std::string_view name, int number, RtfLook& look) {
    if (name == "tqc") return look.nextTab = TabAlignment::Centre, true;
    if (name == "tqr") return look.nextTab = TabAlignment::Right, true;
    if (name == "tqdec") return look.nextTab = TabAlignment::Decimal, true;
    if (name != "tx") return false;
    if (look.paragraph.tabs.size() < kMostTabs) look.paragraph.tabs.push_back({number, look.nextTab});
    look.nextTab = TabAlignment::Left;
    return true;
}

}  // namespace

void makePlain(const RtfTables& tables, RtfLook& look) {
    look.character = {};
    setFont(tables.defaultFont, tables, look);
}

bool applyCharacterWord(const RtfToken& token, const RtfTables& tables, RtfLook& look) {
    CharacterLook& character = look.character;
    const std::string_view name = token.text;
    if (applySwitch(name, !token.hasNumber || token.number != 0, character)) return true;
    if (name == "fs") return character.points = std::clamp(token.number, 2, 400) / 2.0, true;
    if (name == "plain") return makePlain(tables, look), true;
    if (name == "f") return setFont(token.number, tables, look), true;
    if (name == "cf") return character.colour = tables.colour(token.number), true;
    if (name == "highlight" || name == "cb" || name == "chcbpat")
        return character.highlight = tables.colour(token.number), true;
    return false;
}

bool applyParagraphWord(const RtfToken& token, const RtfTables& tables, RtfLook& look) {
    ParagraphLook& paragraph = look.paragraph;
    const int number = std::clamp(token.number, -kLongestIndent, kLongestIndent);
    const std::string_view name = token.text;
    if (name == "pard") return paragraph = {}, look.inTable = false, true;
    if (name == "intbl") return look.inTable = true, true;
    if (applyAlignment(name, paragraph) || applyTab(name, number, look)) return true;
    if (name == "li") return paragraph.leftIndent = number, true;
    if (name == "ri") return paragraph.rightIndent = number, true;
    if (name == "fi") return paragraph.firstIndent = number, true;
    if (name == "sb") return paragraph.spaceBefore = std::max(number, 0), true;
    if (name == "sa") return paragraph.spaceAfter = std::max(number, 0), true;
    if (name == "cbpat") return paragraph.fill = tables.colour(token.number), true;
    if (name == "pagebb") return paragraph.pageBreakBefore = true, true;
    if (name == "sl") {
        // A negative number is an exact height, 0 the single line.
        const double lines = number == 0 ? 1.0 : std::abs(number) / kSingleLine;
        return paragraph.lineSpacing = std::clamp(lines, 0.8, 4.0), true;
    }
    return false;
}

}  // namespace norlaplan
