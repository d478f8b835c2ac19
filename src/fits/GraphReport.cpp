#include "fits/GraphReport.h"

#include <string_view>
#include <utility>

#include "documents/DataSheet.h"
#include "documents/LogoMetafile.h"

namespace norlaplan {
namespace {

constexpr double kPrintedNotes = 11.0;
/// The printed page counts 11550 by 15000 twips, which is all that a printer reaches; drawn this much smaller
/// it stands in the page's frame with room around it.
constexpr double kPageScale = 0.95;
constexpr PagePoint kPageCorner{0.44, 0.5};
constexpr double kDeep = 0.35;
/// Upper right, clear of the graph's title.
constexpr PagePoint kLogoPlace{kPageCorner.x + kPageScale * 8400.0 / 1440.0, 10.45};
constexpr double kLogoWidth = kPageScale * 2863.0 / 1440.0;
/// From the head of a document's page to the notes beneath its graph, twips.
constexpr const char* kSpaceForGraph = "\\sb8450";

/// A text as RTF, its quotation marks as the words that every reader knows.
std::string quotedRtf(const std::string& utf8) {
    std::string text = rtfText(utf8);
    for (const auto& [code, word] :
         {std::pair{"\\u8220?", "\\ldblquote "}, std::pair{"\\u8221?", "\\rdblquote "}}) {
        const std::size_t at = text.find(code);
        if (at != std::string::npos) text.replace(at, std::string_view(code).size(), word);
    }
    return text;
}

void printLine(Canvas& canvas, PageWriter& page, const NoteLine& line) {
    double x = kPageLeft + (line.deep ? kDeep : 0.0);
    TextLook look = timesLook(kPrintedNotes);
    for (const NotePiece& piece : line.pieces) {
        look.underline = piece.underline;
        page.put(x, piece.text, look);
        x += canvas.textWidth(piece.text, look);
    }
    page.endLine(kPrintedNotes);
}

}  // namespace

void printGraphPage(const Graph& graph, const std::vector<NoteLine>& notes, ClockPort& clock,
                    Canvas& canvas) {
    drawPageBorder(canvas);
    drawLogo(canvas, kLogoPlace, kLogoWidth);
    drawGraph(placed(graph, kPageScale, kPageCorner), canvas);
    PageWriter page(canvas, 4.5);
    TextLook title = timesLook(14.0, true);
    title.underline = true;
    page.line("Notes:", title);
    page.skip(0.05);
    for (const NoteLine& line : notes)
        printLine(canvas, page, line);
    drawPageFooter(canvas, clock);
}

void writeNotesBelowGraph(RtfDocument& document, const std::vector<NoteLine>& notes) {
    for (const double y : {4.0, 3.95})
        document.RTFLINE({0.25, y}, {7.75, y}, colours::kBlack, 9525.0);
    document.append(std::string("\\pard") + kSpaceForGraph);
    document.append("{\\fs28\\cf1\\ul\\b Notes:}\\par");
    document.append("\\pard");
    for (const NoteLine& line : notes) {
        std::string text = line.deep ? "\\tab " : "";
        for (const NotePiece& piece : line.pieces) {
            const std::string words = quotedRtf(piece.text);
            text += piece.underline ? "{\\ul " + words + "}" : words;
        }
        document.append("{\\fs24\\cf1 " + text + "}\\par");
    }
}

std::string graphFooter(ClockPort& clock) {
    return documentFooter(kProgramVersion + std::string("        Printed  ") + clock.date() + " " +
                          clock.time());
}

}  // namespace norlaplan
