#include "documents/PrintedPage.h"

#include "documents/DataSheet.h"
#include "documents/LogoMetafile.h"

namespace norlaplan {
namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kLeading = 1.3;
constexpr double kMargin = 0.25;  // of the frame
constexpr double kInset = 0.15;   // of what stands along it

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

void drawPageBorder(Canvas& canvas, const Paper& paper) {
    canvas.rectangle({kMargin, paper.height - kMargin, paper.width - kMargin, kMargin}, std::nullopt,
                     PagePen{});
}

void drawPageFrame(Canvas& canvas, const Paper& paper) {
    drawPageBorder(canvas, paper);
    constexpr double kLogoWidth = 1.1;
    drawLogo(canvas, {paper.width - kMargin - kInset - kLogoWidth, paper.height - kMargin - 0.05},
             kLogoWidth);
}

void drawPageFooter(Canvas& canvas, ClockPort& clock, const std::string& more, const Paper& paper) {
    const double right = paper.width - kMargin;
    constexpr double kRule = kMargin + 0.28;
    const PageBox line{kMargin + kInset, kRule - 0.08, right - kInset, kRule - 0.18};
    canvas.line({kMargin, kRule}, {right, kRule}, PagePen{});
    TextLook look = timesLook(8.0);
    canvas.text(line, kProgramVersion, look);
    look.alignment = Alignment::Right;
    canvas.text(line, "Printed: " + clock.date() + " " + clock.time() + (more.empty() ? "" : "     " + more),
                look);
}

}  // namespace norlaplan
