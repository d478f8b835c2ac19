#include <algorithm>

#include "documents/ApplicationReport.h"
#include "documents/PrintedPage.h"
#include "documents/WrappedText.h"

namespace norlaplan {
namespace {

constexpr double kBody = 10.0;
constexpr double kHead = 12.0;
constexpr double kContent = kPageLeft + 1.5;  ///< where the cells begin
constexpr double kGap = 0.15;                 ///< between two cells
constexpr double kLineHeight = 0.19;
constexpr double kSectionGap = 0.08;
constexpr double kTop = 10.0, kBottom = 0.9;
constexpr double kTitleHeight = 0.75;

/// A text of the form, at x, on a line of its own or beside others.
struct PlacedText {
    double x;
    std::string text;
    bool head = false;
};
/// What stands at one height, and what is left free above it.
struct PrintedLine {
    std::vector<PlacedText> texts;
    double above = 0.0;
};

class FormLayout {
  public:
    explicit FormLayout(Canvas& canvas)
        : measure_([&canvas, look = timesLook(kBody)](std::string_view text) {
              return canvas.textWidth(text, look);
          }) {}

    void add(const ApplicationSection& section, double headWidth) {
        double above = kSectionGap;
        if (!section.head.empty()) {
            lines_.push_back({{{kPageLeft, section.head, true}}, above});
            // A head that reaches into the cells has a line of its own.
            headIsOpen_ = kPageLeft + headWidth + kGap <= kContent;
            above = 0.0;
        }
        for (const auto& cells : section.lines) {
            addCells(cells, section.columns);
            lines_.back().above = std::max(lines_.back().above, above);
            above = 0.0;
        }
    }

    const std::vector<PrintedLine>& lines() const { return lines_; }

  private:
    using Cells = std::vector<std::string>;

    /// The cells beside each other, or, when one is too wide for its column, below each other.
    void addCells(const Cells& cells, const std::vector<double>& columns) {
        std::vector<PlacedText> row;
        bool fits = true;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const double x = kContent + (i == 0 ? 0.0 : columns.at(i - 1));
            const double end = i + 1 < cells.size() ? kContent + columns.at(i) - kGap : kPageRight;
            fits = fits && cells[i].find('\n') == std::string::npos && measure_(cells[i]) <= end - x;
            row.push_back({x, cells[i]});
        }
        if (fits) {
            addLine(row);
            return;
        }
        for (const std::string& cell : cells) {
            for (const std::string& line : wrappedText(cell, kPageRight - kContent, measure_))
                addLine({{kContent, line}});
        }
    }

    void addLine(const std::vector<PlacedText>& texts) {
        if (!headIsOpen_) {
            lines_.push_back({texts});
            return;
        }
        lines_.back().texts.insert(lines_.back().texts.end(), texts.begin(), texts.end());
        headIsOpen_ = false;
    }

    TextMeasure measure_;
    std::vector<PrintedLine> lines_;
    bool headIsOpen_ = false;
};

using Page = std::vector<PrintedLine>;

std::vector<Page> paginated(const std::vector<PrintedLine>& lines) {
    std::vector<Page> pages(1);
    double y = kTop - kTitleHeight;
    for (const PrintedLine& line : lines) {
        if (y - line.above - kLineHeight < kBottom) {
            pages.emplace_back();
            y = kTop;
        }
        pages.back().push_back(line);
        y -= line.above + kLineHeight;
    }
    return pages;
}

TextLook headLook(double points, Colour colour) {
    return timesLook(points, true, colour);
}

void drawTitle(Canvas& canvas) {
    TextLook look = headLook(16.0, colours::kBlue);
    look.alignment = Alignment::Centre;
    const double left = kPageLeft, right = kPageRight;
    canvas.text({left, kTop, right, kTop - 0.3}, kApplicationTitle, look);
    look = headLook(12.0, colours::kRed);
    look.alignment = Alignment::Centre;
    canvas.text({left, kTop - 0.35, right, kTop - 0.55}, kApplicationAttention, look);
}

void drawLines(Canvas& canvas, const Page& lines, double top) {
    double y = top;
    for (const PrintedLine& line : lines) {
        y -= line.above;
        for (const PlacedText& placed : line.texts) {
            const TextLook look = placed.head ? headLook(kHead, colours::kBlue) : timesLook(kBody);
            // Head and cells stand on one line of writing.
            const double raise = placed.head ? 0.9 * (kHead - kBody) / 72.0 : 0.0;
            canvas.text({placed.x, y + raise, kPageRight, y - kLineHeight}, placed.text, look);
        }
        y -= kLineHeight;
    }
}

}  // namespace

void printApplication(const ProgramState& state, ClockPort& clock, Canvas& canvas) {
    FormLayout layout(canvas);
    for (const ApplicationSection& section : applicationSections(state, ApplicationWords::Print))
        layout.add(section, canvas.textWidth(section.head, headLook(kHead, colours::kBlue)));
    const std::vector<Page> pages = paginated(layout.lines());
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0) canvas.newPage();
        drawPageFrame(canvas);
        if (i == 0) drawTitle(canvas);
        drawLines(canvas, pages[i], i == 0 ? kTop - kTitleHeight : kTop);
        const std::string number = "Page " + std::to_string(i + 1) + " of " + std::to_string(pages.size());
        drawPageFooter(canvas, clock, pages.size() == 1 ? "" : number);
    }
}

}  // namespace norlaplan
