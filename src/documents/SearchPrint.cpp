#include <algorithm>
#include <optional>

#include "documents/PrintedPage.h"
#include "documents/SearchReport.h"
#include "documents/WrappedText.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr std::size_t kRowsOfFirstPage = 26;
constexpr std::size_t kRowsOfFurtherPage = 40;
constexpr double kSize = 11.0;
constexpr double kCheckSize = 10.0;
/// The top of the last line that stands above the footer, inches.
constexpr double kLowestLine = 1.0;
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

/// Draws nothing and measures like another canvas: for the number of pages, which the first one tells.
class Ruler : public Canvas {
  public:
    explicit Ruler(Canvas& measured) : measured_(measured) {}

    void line(PagePoint, PagePoint, const PagePen&) override {}
    void rectangle(const PageBox&, std::optional<Colour>, const std::optional<PagePen>&) override {}
    void circle(PagePoint, double, const PagePen&) override {}
    void text(const PageBox&, std::string_view, const TextLook&) override {}
    double textWidth(std::string_view text, const TextLook& look) override {
        return measured_.textWidth(text, look);
    }
    void newPage() override {}

  private:
    Canvas& measured_;
};

/// The list from its first page to its last.
class ListPrinter {
  public:
    /// `pages` is the number that the footers tell.
    ListPrinter(Canvas& canvas, const ProgramState& state, ClockPort& clock, int pages)
        : canvas_(canvas), state_(state), clock_(clock), pages_(pages) {}

    /// Gives how many pages it took.
    int print() {
        const std::vector<SearchHit>& rows = state_.search.rows;
        std::size_t end = 0;
        do {
            const std::size_t next = end;
            startPage();
            if (number_ == 1) printHead(canvas_, *page_, state_);
            printColumnHeads(canvas_, *page_, state_);
            end = std::min(rows.size(), next + (number_ == 1 ? kRowsOfFirstPage : kRowsOfFurtherPage));
            for (std::size_t row = next; row < end; ++row)
                printRow(*page_, state_, rows[row]);
        } while (end < rows.size());
        printChecks();
        endPage();
        return number_;
    }

  private:
    void startPage() {
        if (number_ > 0) {
            endPage();
            canvas_.newPage();
        }
        ++number_;
        drawPageFrame(canvas_);
        page_.emplace(canvas_, 10.0);
    }

    void endPage() {
        drawPageFooter(canvas_, clock_, "Page " + std::to_string(number_) + " of " + std::to_string(pages_));
    }

    void printChecks() {
        const TextLook look = timesLook(kCheckSize);
        const auto width = [&](std::string_view text) { return canvas_.textWidth(text, look); };
        page_->skip(0.1);
        for (const std::string& check : checkLines(state_.search.rows, nameWithoutSpacers)) {
            for (const std::string& line : wrappedText(check, kPageRight - kPageLeft, width)) {
                if (page_->y() < kLowestLine) startPage();
                page_->line(line, look);
            }
        }
    }

    Canvas& canvas_;
    const ProgramState& state_;
    ClockPort& clock_;
    const int pages_;
    int number_ = 0;
    std::optional<PageWriter> page_;
};

}  // namespace

int searchPages(std::size_t rows) {
    if (rows <= kRowsOfFirstPage) return 1;
    return 1 + static_cast<int>((rows - kRowsOfFirstPage + kRowsOfFurtherPage - 1) / kRowsOfFurtherPage);
}

void printSearch(const ProgramState& state, ClockPort& clock, Canvas& canvas) {
    int pages = searchPages(state.search.rows.size());
    if (const auto notes = checkLines(state.search.rows, nameWithoutSpacers); !notes.empty()) {
        Ruler ruler(canvas);
        pages = ListPrinter(ruler, state, clock, pages).print();
    }
    ListPrinter(canvas, state, clock, pages).print();
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
