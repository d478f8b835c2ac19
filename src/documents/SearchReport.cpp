#include "documents/SearchReport.h"

#include "documents/DataSheet.h"
#include "documents/RTFroutines.h"
#include "documents/ReportTexts.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr std::size_t kRowsOfAPage = 29;
constexpr const char* kLifePicture = "0.000E+00";

std::string shownSize(double size) {
    return FormatNumber(size, "###0.0000");
}
std::string shownLoad(double load) {
    return FormatNumber(load, "#,##0");
}
std::string shownLife(const std::string& text) {
    return FormatNumber(Single(leadingNumber(text)), kLifePicture);
}

/// The name as the list's column takes it: a set's name ends before its suffix.
std::string columnName(const ProgramState& state, const std::string& name) {
    const std::string& caption = state.style.searchStyleCaption;
    if (state.style.searchStyleLetter != "A") return name;
    const std::size_t suffix = name.find(caption.starts_with("BACK") ? "BR0" : "FR0");
    return name.substr(0, suffix) + " ";
}

/// Name, life, hours and mark.
std::string listStops() {
    return tabStops({2300, 2400, 4600, 4700, 4800, 7300, 7400, 7500});
}

void writeHead(RtfDocument& document, const ProgramState& state) {
    const SearchCriteria& sizes = state.criteria;
    const LoadCase& loads = state.loads;
    document.append("{\\f1\\par\\par}");
    document.append("\\pard");
    document.append("\\par\\par\\par");
    document.append("{\\fs28\\cf1\\b RESULTS OF BEARING SEARCH FOR : ");
    document.append("\\ul " + rtfText(state.style.searchStyleCaption));
    document.append("\\plain");
    document.append("\\par\\par");
    document.append("{\\fs24\\cf1 Minimum Bore = \\tab " + shownSize(sizes.minBoreDisplay) + " " +
                    state.units.lengthUnit);
    document.append("\\tab\\tab Radial Load =");
    document.append("\\tab\\tab " + shownLoad(loads.radialLoadDisplay) + " " + state.units.loadUnit + "}");
    document.append(tabStops({2150, 3900, 4000, 5700, 5800}));
    document.append("{\\par\\fs24\\cf1 Maximum O.D. =\\tab " + shownSize(sizes.maxOdDisplay) + " " +
                    state.units.lengthUnit);
    document.append("\\tab\\tab Axial Load =");
    document.append("\\tab\\tab " + shownLoad(loads.axialLoadDisplay) + " " + state.units.loadUnit + "}");
    document.append(tabStops({2150, 3900, 4000, 5700, 5800}));
    document.append("{\\par\\fs24\\cf1 Minimum Height =\\tab " + shownSize(sizes.minHeightDisplay) + " " +
                    state.units.lengthUnit);
    document.append("\\tab\\tab\\tab Moment Load =");
    document.append("\\tab " + shownLoad(loads.momentLoadDisplay) + " " + state.units.momentUnit + "}");
    document.append(tabStops({2150, 3800, 3900, 4000, 5800}));
    document.append("{\\par\\fs24\\cf1 Maximum Height =\\tab " + shownSize(sizes.maxHeightDisplay) + " " +
                    state.units.lengthUnit);
    document.append("\\tab\\tab\\tab\\fs24\\ Speed = \\tab\\tab " + plainText(loads.speed) + " rpm}");
    document.append(tabStops({2150, 3800, 3900, 4000, 5700, 5800}));
    document.append("\\par\\par");
    document.append(listStops());
    document.append(
        "{\\fs24\\b\\cf2 BEARING\\tab\\tab\\ L\\sub 10 \\nosupersub  LIFE\\tab\\tab\\tab\\ L\\sub 10 "
        "\\nosupersub  LIFE (hours)}");
    document.append("\\par");
    if (loads.speed == 0.0) document.append("{\\fs18\\cf1 " + std::string(kNoSpeedNote) + "}\\par");
}

void writeRow(RtfDocument& document, const ProgramState& state, const SearchHit& hit) {
    const bool over = state.loads.speed > 0.0 && leadingNumber(hit.speedLimit) < state.loads.speed;
    document.append("{\\cf1 " + rtfText(columnName(state, hit.name)));
    document.append("\\tab\\tab\\ " + shownLife(hit.l10Revolutions));
    document.append("\\tab\\tab\\tab\\ " + shownLife(hit.l10Hours));
    document.append(over ? "\\tab\\tab\\tab\\cf6 Over Speed!}" : "}");
    document.append("\\par");
}

void writeChecks(RtfDocument& document, const ProgramState& state) {
    const auto name = [&](const SearchHit& hit) { return trimmed(columnName(state, hit.name)); };
    for (const std::string& line : checkLines(state.search.rows, name))
        document.append("{\\par\\fs20\\cf1 " + rtfText(line) + "}\\par");
}

}  // namespace

std::vector<std::string> checkLines(const std::vector<SearchHit>& rows,
                                    const std::function<std::string(const SearchHit&)>& name) {
    std::string unbalanced, shorter;
    for (const SearchHit& hit : rows) {
        const auto addTo = [&](std::string& names) { names += (names.empty() ? "" : ", ") + name(hit); };
        if (hit.checks.unbalanced) addTo(unbalanced);
        if (hit.checks.shorterRowLife) addTo(shorter);
    }
    std::vector<std::string> lines;
    if (!unbalanced.empty()) lines.push_back(std::string(kUnbalancedSentence) + " Bearings: " + unbalanced);
    if (!shorter.empty()) lines.push_back(std::string(kShorterRowSentence) + ". Bearings: " + shorter);
    return lines;
}

std::string nameWithoutSpacers(const SearchHit& hit) {
    return hit.name.substr(0, hit.name.find(' '));
}

std::string searchRtf(const ProgramState& state, ClockPort& clock) {
    RtfDocument document;
    document.RtfHeader();
    writeHead(document, state);
    // The rows of a page stand in a group of their own, which the page's end closes.
    document.append("{");
    std::size_t row = 0;
    for (const SearchHit& hit : state.search.rows) {
        if (row > 0 && row % kRowsOfAPage == 0) {
            document.append("\\par }\\pard \\qr\\widctlpar\\adjustright {\\cgrid0  \\page }");
            document.append(listStops() + "\\widctlpar\\adjustright {");
        }
        writeRow(document, state, hit);
        ++row;
    }
    writeChecks(document, state);
    document.append(savedFooter(state.user.userName, clock));
    document.append("}{\\par }}}}");
    return document.rtf();
}

}  // namespace norlaplan
