#include "documents/StyleDrawing.h"

#include <algorithm>
#include <cmath>

#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

// The section in units of its side: ball and the lands of the rings.
constexpr double kBallRadius = 0.244;
constexpr double kLand = 0.3225;
constexpr double kContactLength = 0.40;

const PagePen kOutline{colours::kBlack, 15875.0, 0};
const PagePen kContact{colours::kRed, 6350.0, 6};

/// One row: a square section with its ball; contact lines rise to the right for +1, fall for -1.
void drawRow(Canvas& canvas, double left, double top, double side, bool rises, bool falls, bool level) {
    const auto ring = [&](double from, double to) {
        canvas.rectangle({left + from * side, top, left + to * side, top - side}, std::nullopt, kOutline);
    };
    ring(0.0, kLand);
    ring(1.0 - kLand, 1.0);
    const PagePoint centre{left + side / 2.0, top - side / 2.0};
    canvas.circle(centre, kBallRadius * side, kOutline);
    const auto contact = [&](double degrees) {
        const double angle = degrees * PiValue / 180.0;
        const double dx = kContactLength * side * std::cos(angle);
        const double dy = kContactLength * side * std::sin(angle);
        canvas.line({centre.x - dx, centre.y - dy}, {centre.x + dx, centre.y + dy}, kContact);
    };
    if (rises) contact(30.0);
    if (falls) contact(-30.0);
    if (level) contact(0.0);
}

}  // namespace

void drawStyle(Canvas& canvas, const std::string& styleLetter, const PageBox& box) {
    const bool pair = styleLetter == "B" || styleLetter == "F";
    const double height = box.top - box.bottom;
    const double side = std::min(box.right - box.left, pair ? height / 2.0 : height);
    const double left = (box.left + box.right - side) / 2.0;
    if (!pair) {
        const bool fourPoint = styleLetter == "X";
        drawRow(canvas, left, box.top, side, fourPoint, fourPoint, !fourPoint);
        return;
    }
    const bool back = styleLetter == "B";
    drawRow(canvas, left, box.top, side, back, !back, false);
    drawRow(canvas, left, box.top - side, side, !back, back, false);
}

}  // namespace norlaplan
