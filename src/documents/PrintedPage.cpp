#include "documents/PrintedPage.h"

#include "documents/DataSheet.h"

namespace norlaplan {
namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kLeading = 1.3;

}  // namespace

TextLook timesLook(double points, bool bold, Colour colour) {
    TextLook look;
    look.points = points;
    look.bold = bold;
    look.colour = colour;
    return look;
}

void PageWriter::put(double x, const std::string& text, const TextLook& look) {
    canvas_.text({x, y_, kPageRight, y_ - look.points / kPointsPerInch}, text, look);
}

void PageWriter::putRight(double x, const std::string& text, const TextLook& look) {
    put(x - canvas_.textWidth(text, look), text, look);
}

void PageWriter::endLine(double points) {
    y_ -= kLeading * points / kPointsPerInch;
}

void PageWriter::line(const std::string& text, const TextLook& look) {
    put(kPageLeft, text, look);
    endLine(look.points);
}

void PageWriter::lifeText(double x, const std::string& before, const std::string& behind,
                          const TextLook& look) {
    put(x, before, look);
    x += canvas_.textWidth(before, look);
    TextLook small = look;
    small.points = look.points * 0.65;
    const double drop = 0.5 * look.points / kPointsPerInch;
    canvas_.text({x, y_ - drop, kPageRight, y_ - drop - small.points / kPointsPerInch}, "10", small);
    put(x + canvas_.textWidth("10", small), behind, look);
}

void drawPageFrame(Canvas& canvas) {
    canvas.rectangle({kFrameLeft, kFrameTop, kFrameRight, kFrameBottom}, std::nullopt, PagePen{});
    TextLook maker = timesLook(9.0, true, rgb(0, 40, 110));
    maker.typeface = Typeface::Arial;
    maker.alignment = Alignment::Right;
    canvas.text({kFrameLeft, 10.38, kFrameRight - 0.15, 10.2}, "VARDEN", maker);
}

void drawPageFooter(Canvas& canvas, ClockPort& clock, const std::string& more) {
    const TextLook look = timesLook(8.0);
    const std::string printed = "Printed: " + clock.date() + " " + clock.time();
    canvas.line({kFrameLeft, 0.78}, {kFrameRight, 0.78}, PagePen{});
    canvas.text({kFrameLeft + 0.15, 0.7, kFrameRight, 0.6}, kProgramVersion, look);
    TextLook right = look;
    right.alignment = Alignment::Right;
    canvas.text({kFrameLeft, 0.7, kFrameRight - 0.15, 0.6}, printed + (more.empty() ? "" : "     " + more),
                right);
}

}  // namespace norlaplan
