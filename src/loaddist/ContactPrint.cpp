#include "documents/PrintedPage.h"
#include "loaddist/ContactDrawing.h"

namespace norlaplan {

void printContactCheck(const ProgramState& state, ClockPort& clock, const ContactCheck& check,
                       Canvas& canvas) {
    const ContactSection section = contactSection(state.bearing, check);
    drawPageFrame(canvas);
    PageWriter page(canvas, 10.0);
    page.line("Compressive Stress for " + state.bearing.partNumber, timesLook(15.0, true));
    page.skip(0.15);
    const auto put = [&](int row, double left, const std::string& text, bool bold) {
        const bool shown = row == check.row;
        page.put(left, text, timesLook(12.0, bold, shown ? rgb(0, 0, 128) : colours::kBlack));
    };
    const auto twice = [&](const std::string& first, const std::string& second, bool bold) {
        constexpr double kSecondColumn = 4.4;
        put(1, kPageLeft, first, bold);
        put(2, kSecondColumn, second, bold);
        page.endLine(12.0);
    };
    twice(check.groupCaption(1), check.groupCaption(2), true);
    const auto first = check.rows[0].lines();
    const auto second = check.rows[1].lines();
    for (std::size_t i = 0; i < first.size(); ++i)
        twice(first[i], second[i], false);
    page.skip(0.25);
    page.line("Simulated Display of heaviest loaded ball for chosen row", timesLook(12.0));
    page.skip(0.05);
    const PageBox box{kPageLeft, page.y(), kPageRight, page.y() - 6.4};
    canvas.rectangle(box, std::nullopt, PagePen{});
    DrawingWindow window(canvas, box, wholeArea(section));
    drawContact(section, window);
    drawPageFooter(canvas, clock);
}

Document contactDocument(const ProgramState& state, const ContactCheck& check, ClockPort& clock) {
    Document document;
    document.title = "Compressive Stress for " + state.bearing.partNumber;
    document.filters.clear();
    document.pages.draw = [&, check](Canvas& canvas) { printContactCheck(state, clock, check, canvas); };
    return document;
}

}  // namespace norlaplan
