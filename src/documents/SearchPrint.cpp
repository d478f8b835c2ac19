#include <algorithm>

#include "documents/PrintedPage.h"
#include "documents/SearchReport.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr std::size_t kRowsOfFirstPage = 26;
constexpr std::size_t kRowsOfFurtherPage = 40;
constexpr double kSize = 11.0;
// Right ends of the figure columns and left ends of the text columns, inches.
constexpr double kLifeEnd = 4.7;
constexpr double kHoursEnd = 5.9;
constexpr double kStockLeft = 6.2;
constexpr double kMarkLeft = 6.8;

std::string sortedBy(const SearchResults& results) {
    const auto column = [&]() -> const char* {
        switch (static_cast<int>(results.sortColumn)) {
            case kSortByName:
                return "BEARING NUMBER";
            case kSortByLimitSpeed:
                return "LIMIT SPEED";
            case kSortByLife:
                return "L10 LIFE";
            case kSortByHours:
                return "L10 LIFE IN HOURS";
            case kSortByBore:
                return "BORE SIZE";
            case kSortByOd:
                return "O.D. SIZE";
            case kSortByHeight:
                return "HEIGHT";
            default:
                return "AVAILABILITY";
        }
    };
    return std::string("BEARINGS SORTED IN ") +
           (results.sortDirection == "UP" ? "ASCENDING " : "DESCENDING ") + "ORDER BY " + column();
}

void printHead(Canvas& canvas, PageWriter& page, const ProgramState& state) {
    TextLook title = timesLook(14.0, true);
    constexpr const char* kTitle = "RESULTS OF BEARING SEARCH FOR : ";
    const std::string& caption = state.style.searchStyleCaption;
    // The longest caption takes a smaller type to stay on the page.
    while (canvas.textWidth(kTitle + caption, title) > kPageRight - kPageLeft && title.points > 8.0)
        title.points -= 0.5;
    page.put(kPageLeft, kTitle, title);
    const double titleEnd = kPageLeft + canvas.textWidth(kTitle, title);
    title.underline = true;
    page.put(titleEnd, caption, title);
    page.endLine(title.points);
    page.skip(0.15);
    const TextLook look = timesLook(kSize);
    const SearchCriteria& sizes = state.criteria;
    const LoadCase& loads = state.loads;
    const auto row = [&](const char* name, double size, const char* loadName, double load,
                         const std::string& unitWithBlank) {
        page.put(kPageLeft, name, look);
        page.putRight(3.1, FormatNumber(size, "###0.0000"), look);
        page.put(3.17, state.units.lengthUnit, look);
        page.put(4.4, loadName, look);
        page.putRight(6.6, FormatNumber(load, "#,##0"), look);
        page.put(6.63, unitWithBlank, look);
        page.endLine(kSize);
    };
    row("Minimum Bore =  ", sizes.minBoreDisplay, "Radial Load = ", loads.radialLoadDisplay,
        " " + state.units.loadUnit);
    row("Maximum O.D. =  ", sizes.maxOdDisplay, "Axial Load =  ", loads.axialLoadDisplay,
        " " + state.units.loadUnit);
    row("Minimum Height =", sizes.minHeightDisplay, "Moment Load = ", loads.momentLoadDisplay,
        " " + state.units.momentUnit);
    row("Maximum Height =", sizes.maxHeightDisplay, "Speed =       ", loads.speed, " rpm");
    page.skip(0.1);
    if (state.search.sorted) page.line(sortedBy(state.search), timesLook(10.0, true));
    page.skip(0.1);
}

void printColumnHeads(Canvas& canvas, PageWriter& page, const ProgramState& state) {
    const TextLook look = timesLook(kSize, true);
    page.put(kPageLeft, "BEARING", look);
    page.lifeText(kLifeEnd - 0.75, "L", " LIFE ", look);
    page.lifeText(kHoursEnd - 0.55, "L", " LIFE ", look);
    page.endLine(kSize);
    page.put(kPageLeft, "NUMBER", look);
    page.putRight(kLifeEnd, " (revolutions) ", look);
    page.putRight(kHoursEnd, " (hours)", look);
    page.put(kStockLeft, "Stock Availability", look);
    page.endLine(kSize);
    page.put(kPageLeft, "Basic Bearing", timesLook(9.0));
    page.endLine(9.0);
    canvas.line({kPageLeft, page.y()}, {kPageRight, page.y()}, PagePen{});
    page.skip(0.05);
    if (state.loads.speed == 0.0) page.line(kNoSpeedNote, timesLook(9.0));
}

void printRow(PageWriter& page, const ProgramState& state, const SearchHit& hit) {
    const TextLook look = timesLook(kSize);
    const auto life = [](const std::string& text) {
        return FormatNumber(Single(leadingNumber(text)), "0.000E+00");
    };
    page.put(kPageLeft, hit.name, look);
    page.putRight(kLifeEnd, life(hit.l10Revolutions), look);
    page.putRight(kHoursEnd, life(hit.l10Hours), look);
    page.put(kStockLeft, hit.stock, look);
    if (state.loads.speed > leadingNumber(hit.speedLimit)) {
        page.put(kMarkLeft, "Over Speed!", timesLook(kSize, false, colours::kRed));
    }
    page.endLine(kSize);
}

}  // namespace

int searchPages(std::size_t rows) {
    if (rows <= kRowsOfFirstPage) return 1;
    return 1 + static_cast<int>((rows - kRowsOfFirstPage + kRowsOfFurtherPage - 1) / kRowsOfFurtherPage);
}

void printSearch(const ProgramState& state, ClockPort& clock, Canvas& canvas) {
    const std::vector<SearchHit>& rows = state.search.rows;
    const int pages = searchPages(rows.size());
    std::size_t next = 0;
    for (int number = 1; number <= pages; ++number) {
        if (number > 1) canvas.newPage();
        drawPageFrame(canvas);
        PageWriter page(canvas, 10.0);
        if (number == 1) printHead(canvas, page, state);
        printColumnHeads(canvas, page, state);
        const std::size_t end =
            std::min(rows.size(), next + (number == 1 ? kRowsOfFirstPage : kRowsOfFurtherPage));
        for (; next < end; ++next)
            printRow(page, state, rows[next]);
        drawPageFooter(canvas, clock, "Page " + std::to_string(number) + " of " + std::to_string(pages));
    }
}

Document searchDocument(const ProgramState& state, ClockPort& clock) {
    Document document;
    document.title = "Results of bearing search";
    document.fileName = "Search Results.rtf";
    document.rtf = [&] { return searchRtf(state, clock); };
    document.pages.draw = [&](Canvas& canvas) { printSearch(state, clock, canvas); };
    return document;
}

}  // namespace norlaplan
