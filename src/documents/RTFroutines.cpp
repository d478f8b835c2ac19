#include "documents/RTFroutines.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <utility>

#include "documents/SheetNames.h"
#include "numbers/Arithmetic.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr double kTwipsPerInch = 1440.0;
/// LibreOffice pushes a shape that leaves the page back inside, so no right edge goes beyond it.
constexpr int kPageRight = static_cast<int>(kTwipsPerInch * papers::kLetter.width);
constexpr int kShapeIdBase = 1026;
constexpr int kHeightBase = 8192;
constexpr int kTextIdStep = 65536;

/// Damaged tables and overlays can ask for any place; beyond this none is on paper, and twips still fit.
double kept(double inches) {
    constexpr double kReach = 1000.0;
    return std::clamp(inches, -kReach, kReach);
}
PagePoint kept(PagePoint point) {
    return {kept(point.x), kept(point.y)};
}
PageBox kept(const PageBox& box) {
    return {kept(box.left), kept(box.top), kept(box.right), kept(box.bottom)};
}
SheetText kept(SheetText text) {
    text.box = kept(text.box);
    return text;
}

int twipsX(double x) {
    return static_cast<int>(Int(kTwipsPerInch * x));
}
int twipsY(double y) {
    return static_cast<int>(Int(kTwipsPerInch * (papers::kLetter.height - y)));
}

/// Writes control words at the end of a text, in place: a sheet has a thousand shapes of fifty words each.
class Words {
  public:
    explicit Words(std::string& rtf) : rtf_(rtf) {}

    Words& text(std::string_view plain) {
        rtf_ += plain;
        return *this;
    }
    Words& word(std::string_view name, long long value) {
        rtf_ += '\\';
        rtf_ += name;
        return number(value);
    }
    Words& property(std::string_view name, long long value) {
        rtf_ += "{\\sp{\\sn ";
        rtf_ += name;
        rtf_ += "}{\\sv ";
        number(value);
        rtf_ += "}}";
        return *this;
    }
    /// Three words: the stem with "r", "g" and "b" behind it.
    Words& channels(std::string_view stem, Colour colour) {
        unsigned shift = 0;
        for (const char suffix : {'r', 'g', 'b'}) {
            rtf_ += '\\';
            rtf_ += stem;
            rtf_ += suffix;
            number(colour >> shift & 0xFFU);
            shift += 8;
        }
        return *this;
    }
    Words& colour(const std::string& name) {
        const SheetColour* const known = sheetColour(name);
        return known == nullptr ? *this : word("cf", known->number);
    }
    /// Times is the document's own font.
    Words& font(const std::string& name) {
        const int number = sheetFont(name).number;
        return number == 0 ? *this : word("f", number);
    }
    /// The old-format place of a shape.
    Words& place(const PageBox& box) {
        const int left = twipsX(box.left);
        const int top = twipsY(box.top);
        word("dpx", left).word("dpy", top).text("\r\n");
        return word("dpxsize", twipsX(box.right) - left)
            .word("dpysize", twipsY(box.bottom) - top)
            .text("\r\n");
    }
    /// The head of the old-format fallback of shape n.
    Words& fallback(int n) {
        return text("{\\shprslt{\\*\\do\\dobxpage\\dobypage").word("dodhgt", n + kHeightBase).text("\r\n");
    }

  private:
    Words& number(long long value) {
        std::array<char, 24> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
        rtf_.append(digits.data(), end);
        return *this;
    }

    std::string& rtf_;
};

/// A text that is a hair wider than its box would break and vanish; the indent beyond the edge gives it room.
const char* paragraphWords(Alignment alignment) {
    switch (alignment) {
        case Alignment::Centre:
            return "\\qc\\ri-72\\li-72";
        case Alignment::Right:
            return "\\qr\\li-72";
        case Alignment::Left:
            break;
    }
    return "\\ri-72";
}

/// The text's run with its paragraph's end, without the closing of the groups around it.
std::string run(const SheetText& text, Alignment alignment) {
    const int halfPoints = static_cast<int>(std::lround(text.size * 2.0));
    std::string rtf;
    Words words(rtf);
    words.text("\\pard\\plain ").text(paragraphWords(alignment));
    const double indent = labelIndent(text);
    if (alignment == Alignment::Left && indent > 0.0) words.word("li", -std::lround(indent * kTwipsPerInch));
    words.text("\\widctlpar\\adjustright ").word("fs", halfPoints).text("\\cgrid {");
    if (text.bold) words.text("\\b");
    words.colour(text.colour);
    if (text.italic) words.text("\\i");
    words.word("fs", halfPoints).font(text.font).text(" ").text(rtfText(text.text)).text("\\par }");
    return rtf;
}

struct Character {
    unsigned code;
    std::size_t bytes;
};

/// The first character of a text. A byte that is no UTF-8 stands for itself, as in an old settings file.
Character firstCharacter(std::string_view text) {
    const auto byte = [&](std::size_t at) {
        return static_cast<unsigned>(static_cast<unsigned char>(text[at]));
    };
    const unsigned lead = byte(0);
    const std::size_t bytes = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < bytes) return {lead, 1};
    unsigned code = lead & (0xFFU >> (bytes + 1));
    for (std::size_t at = 1; at < bytes; ++at) {
        if ((byte(at) & 0xC0U) != 0x80) return {lead, 1};
        code = code << 6U | (byte(at) & 0x3FU);
    }
    return {code, bytes};
}

void appendUnicode(std::string& rtf, unsigned unit) {
    rtf += "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + "?";
}

void appendEscaped(std::string& rtf, unsigned code) {
    constexpr char kHex[] = "0123456789abcdef";
    if (code < 0x80) {
        if (code == '\\' || code == '{' || code == '}') rtf += '\\';
        rtf += code < 0x20 ? ' ' : static_cast<char>(code);
    } else if (code <= 0xFF) {
        rtf += std::string("\\'") + kHex[code >> 4U] + kHex[code & 15U];
    } else if (code <= 0xFFFF) {
        appendUnicode(rtf, code);
    } else {
        // Beyond 16 bits RTF takes a pair of surrogates.
        appendUnicode(rtf, 0xD800U + ((code - 0x10000U) >> 10U));
        appendUnicode(rtf, 0xDC00U + ((code - 0x10000U) & 0x3FFU));
    }
}

}  // namespace

std::string rtfText(std::string_view utf8) {
    std::string rtf;
    while (!utf8.empty()) {
        const Character character = firstCharacter(utf8);
        utf8.remove_prefix(character.bytes);
        appendEscaped(rtf, character.code);
    }
    return rtf;
}

void RtfDocument::append(std::string_view line) {
    rtf_ += line;
    rtf_ += "\r\n";
}

void RtfDocument::endRecords() {
    records_ += kRecordsEnd;
    records_ += "\r\n";
}

template <typename Record>
void RtfDocument::record(const Record& record) {
    appendRecord(records_, record);
    ++shapeCounter_;
}

void RtfDocument::beginShape(const PageBox& box, int type, bool flip) {
    const int n = shapeCounter_;
    Words(rtf_)
        .text("{\\shp{\\*\\shpinst")
        .word("shpleft", twipsX(box.left))
        .word("shptop", twipsY(box.top))
        .text("\r\n")
        .word("shpright", std::min(twipsX(box.right), kPageRight))
        .word("shpbottom", twipsY(box.bottom))
        .text("\r\n\\shpfhdr0\\shpbxpage\r\n\\shpbypage\r\n\\shpwr3\\shpwrk0\\shpfblwtxt0")
        .word("shpz", n)
        .text("\r\n")
        .word("shplid", n + kShapeIdBase)
        .text("\r\n")
        .property("shapeType", type)
        .property("fFlipH", 0)
        .property("fFlipV", flip ? 1 : 0);
}

void RtfDocument::writeText(const SheetText& text, const Colour* fill, Alignment alignment) {
    beginShape(text.box, 202, false);
    Words words(rtf_);
    words.property("lTxid", static_cast<long long>(shapeCounter_ + 1) * kTextIdStep);
    for (const char* const inset : {"dxTextLeft", "dyTextTop", "dxTextRight", "dyTextBottom"}) {
        words.property(inset, 0);
    }
    if (text.vertical) words.property("txflTextFlow", fill == nullptr ? 2 : 3);
    if (fill == nullptr) {
        words.property("fFilled", 0).property("fLine", 0);
    } else {
        constexpr int kMiddle = 1;
        words.property("anchorText", kMiddle).property("fillColor", *fill).property("fFilled", 1);
    }
    const std::string paragraph = run(text, alignment);
    words.text("\r\n{\\shptxt ").text(paragraph).text("}}\r\n").fallback(shapeCounter_);
    words.text("\\dptxbx{\\dptxbxtext").text(paragraph).text("}\r\n").place(text.box);
    words.channels("dpfillfgc", colours::kWhite)
        .channels("dpfillbgc", fill == nullptr ? colours::kWhite : *fill);
    words.text(fill == nullptr
                   ? "\\dpfillpat0\\dplinehollow}}}"
                   : "\\dpfillpat1\\dplinehollow\\dplinew15\\dplinecor0\\dplinecog0\\dplinecob0}}}");
    words.text("\r\n");
}

void RtfDocument::RTFDATASHEETTEXT(const SheetText& text) {
    const SheetText onPage = kept(text);
    record(onPage);
    writeText(onPage, nullptr);
}

void RtfDocument::RtfPlainText(const SheetText& text, Alignment alignment) {
    ++shapeCounter_;
    writeText(kept(text), nullptr, alignment);
}

void RtfDocument::RtfLogoPicture() {
    ++shapeCounter_;
    writePicture(shapeCounter_ + kShapeIdBase);
}

void RtfDocument::RTFTEXTWBOX(const SheetTextBox& box) {
    const SheetTextBox onPage{kept(box.text), box.fill};
    record(onPage);
    writeText(onPage.text, &onPage.fill, Alignment::Centre);
}

void RtfDocument::RtfFill(const PageBox& place, Colour fill) {
    ++shapeCounter_;
    const PageBox box = kept(place);
    beginShape(box, 1, false);
    Words(rtf_)
        .property("fillColor", fill)
        .property("fFilled", 1)
        .property("fLine", 0)
        .text("}\r\n")
        .fallback(shapeCounter_)
        .text("\\dprect\r\n")
        .place(box)
        .channels("dpfillfgc", colours::kWhite)
        .channels("dpfillbgc", fill)
        .text("\\dpfillpat1\\dplinehollow}}}\r\n");
}

void RtfDocument::TINTEDTTEXTBOX(const PageBox& place, Colour fore, Colour back) {
    const PageBox box = kept(place);
    record(SheetTint{box, fore});
    beginShape(box, 202, false);
    const std::string paragraph = run(SheetText{}, Alignment::Centre);
    Words(rtf_)
        .property("lTxid", static_cast<long long>(shapeCounter_ + 1) * kTextIdStep)
        .property("fillColor", fore)
        .property("fillBackColor", back)
        .property("fFilled", 1)
        .text("\r\n{\\shptxt ")
        .text(paragraph)
        .text("}}\r\n")
        .fallback(shapeCounter_)
        .text("\\dptxbx{\\dptxbxtext")
        .text(paragraph)
        .text("}\r\n")
        .place(box)
        .channels("dpfillfgc", back)
        .channels("dpfillbgc", fore)
        .text("\\dpfillpat1\\dplinew15\\dplinecor0\\dplinecog0\\dplinecob0}}}\r\n");
}

void RtfDocument::writeLine(const SheetLine& line) {
    PagePoint from = line.from;
    PagePoint to = line.to;
    if (to.x < from.x) std::swap(from, to);
    // On paper y grows upward: a line that rises to the right runs from the lower left to the upper right.
    const bool rises = to.y > from.y;
    const PageBox box{from.x, std::max(from.y, to.y), to.x, std::min(from.y, to.y)};
    beginShape(box, 20, rises);
    Words words(rtf_);
    words.property("shapePath", 4)
        .property("fFillOK", 0)
        .property("fFilled", 0)
        .property("fArrowheadsOK", 1)
        .property("lineColor", line.colour)
        .property("lineWidth", std::lround(line.width))
        .property("fLine", 1)
        .property("fLayoutInCell", 1);
    if (line.dataSheet) words.property("lineDashing", line.dash);
    const int dx = twipsX(box.right) - twipsX(box.left);
    const int dy = twipsY(box.bottom) - twipsY(box.top);
    words.text("}\r\n").fallback(shapeCounter_).text("\\dpline");
    words.word("dpptx", 0).word("dppty", rises ? dy : 0).word("dpptx", dx).word("dppty", rises ? 0 : dy);
    words.text("\r\n").place(box).word("dplinew", std::lround(line.width / 635.0));
    words.channels("dplineco", line.colour).text("}}}\r\n");
}

void RtfDocument::RTFLINE(PagePoint from, PagePoint to, Colour colour, double width) {
    const SheetLine line{kept(from), kept(to), colour, width, 0, false};
    record(line);
    writeLine(line);
}

void RtfDocument::RTFDATASHEETLINE(PagePoint from, PagePoint to, Colour colour, double width, int dash) {
    const SheetLine line{kept(from), kept(to), colour, width, dash, true};
    record(line);
    writeLine(line);
}

void RtfDocument::RTFCIRCLE(PagePoint place, double size, Colour colour, double width) {
    const PagePoint centre = kept(place);
    const double radius = kept(size);
    record(SheetCircle{centre, radius, colour, width});
    const PageBox box{centre.x - radius, centre.y + radius, centre.x + radius, centre.y - radius};
    beginShape(box, 3, false);
    Words(rtf_)
        .property("fFilled", 0)
        .property("lineColor", colour)
        .property("lineWidth", std::lround(width))
        .property("fline", 1)
        .text("}\r\n")
        .fallback(shapeCounter_)
        .text("\\dpellipse\r\n")
        .place(box)
        .text("\\dpfillpat0")
        .word("dplinew", std::lround(width / 635.0))
        .channels("dplineco", colour)
        .text("}}}\r\n");
}

}  // namespace norlaplan
