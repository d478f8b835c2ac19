#include "loaddist/DrawingWindow.h"

#include <algorithm>
#include <cmath>

#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kEmuPerInch = 914400.0;
constexpr double kLineHeight = 1.15;  // of the type size
constexpr double kClear = 0.03;       // inches between a text and the next line

/// What a box leaves of a line (after Liang and Barsky).
std::optional<std::pair<PagePoint, PagePoint>> clipped(PagePoint from, PagePoint to, const PageBox& box) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    double enter = 0.0;
    double leave = 1.0;
    const double edges[4][2] = {{-dx, from.x - box.left},
                                {dx, box.right - from.x},
                                {-dy, from.y - box.bottom},
                                {dy, box.top - from.y}};
    for (const auto& [towards, room] : edges) {
        if (towards == 0.0 && room < 0.0) return std::nullopt;
        if (towards < 0.0) enter = std::max(enter, room / towards);
        if (towards > 0.0) leave = std::min(leave, room / towards);
    }
    if (enter > leave) return std::nullopt;
    return std::pair{PagePoint{from.x + enter * dx, from.y + enter * dy},
                     PagePoint{from.x + leave * dx, from.y + leave * dy}};
}

bool overlap(const PageBox& a, const PageBox& b) {
    return a.left < b.right && b.left < a.right && a.bottom < b.top && b.bottom < a.top;
}

/// How many lines stand for a curve or an area: as many as wanted, from 2 to `most`.
int countOf(double wanted, int most) {
    return wanted > 2.0 ? static_cast<int>(std::min(std::ceil(wanted), static_cast<double>(most))) : 2;
}

double heightOf(const TextLook& look) {
    return kLineHeight * look.points / kPointsPerInch;
}

}  // namespace

WindowScale::WindowScale(const PageBox& box, const DrawingArea& area)
    : box_(box),
      scale_(std::min(divide(box.right - box.left, std::fabs(area.width)),
                      divide(box.top - box.bottom, std::fabs(area.height)))),
      middleX_(area.left + area.width / 2.0),
      middleY_(area.top + area.height / 2.0),
      upward_(area.height < 0.0 ? 1.0 : -1.0) {}

PagePoint WindowScale::place(PagePoint point) const {
    return {(box_.left + box_.right) / 2.0 + (point.x - middleX_) * scale_,
            (box_.top + box_.bottom) / 2.0 + upward_ * (point.y - middleY_) * scale_};
}

PagePoint WindowScale::placeBack(PagePoint point) const {
    return {middleX_ + (point.x - (box_.left + box_.right) / 2.0) / scale_,
            middleY_ + upward_ * (point.y - (box_.top + box_.bottom) / 2.0) / scale_};
}

bool WindowScale::shows(PagePoint pagePoint) const {
    return pagePoint.x >= box_.left && pagePoint.x <= box_.right && pagePoint.y >= box_.bottom &&
           pagePoint.y <= box_.top;
}

void DrawingWindow::line(PagePoint from, PagePoint to, const PagePen& pen) {
    const auto shown = clipped(place(from), place(to), box());
    if (!shown) return;
    canvas_.line(shown->first, shown->second, pen);
    lines_.push_back(*shown);
}

void DrawingWindow::arc(PagePoint centre, double radius, double from, double to, const PagePen& pen) {
    // Chords that leave the arc by less than a printer's dot, at every scale.
    constexpr double kSagitta = 0.0005;
    constexpr int kMostChords = 20000;
    const double onPage = std::max(radius * inchesPerUnit(), 2.0 * kSagitta);
    const double chord = 2.0 * std::acos(1.0 - kSagitta / onPage);
    const int chords = countOf(std::fabs(to - from) / chord, kMostChords);
    const auto at = [&](int i) {
        const double angle = from + (to - from) * i / chords;
        return PagePoint{centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
    };
    for (int i = 0; i < chords; ++i)
        line(at(i), at(i + 1), pen);
}

void DrawingWindow::arrow(PagePoint tip, PagePoint direction, double length, double halfWidth,
                          const PagePen& pen) {
    // Filled by lines from the tip to its base, side by side.
    constexpr int kMostLines = 400;
    const int lines =
        countOf(2.0 * halfWidth * inchesPerUnit() / (0.7 * pen.width / kEmuPerInch), kMostLines);
    for (int i = 0; i <= lines; ++i) {
        const double aside = halfWidth * (2.0 * i / lines - 1.0);
        line(tip,
             {tip.x - length * direction.x - aside * direction.y,
              tip.y - length * direction.y + aside * direction.x},
             pen);
    }
}

void DrawingWindow::text(PagePoint at, const std::string& text, const TextLook& look) {
    const double width = canvas_.textWidth(text, look);
    const double height = heightOf(look);
    const PagePoint wish = place(at);
    const double left =
        std::clamp(wish.x, box().left + kClear, std::max(box().left + kClear, box().right - kClear - width));
    const double top = std::clamp(wish.y, std::min(box().top, box().bottom + height), box().top);
    const PageBox room{left, top, left + width, top - height};
    canvas_.text(room, text, look);
    texts_.push_back(room);
}

bool DrawingWindow::isFree(const PageBox& room) const {
    const PageBox wide{room.left - kClear, room.top + kClear, room.right + kClear, room.bottom - kClear};
    if (wide.left < box().left || wide.right > box().right || wide.bottom < box().bottom ||
        wide.top > box().top)
        return false;
    return std::none_of(texts_.begin(), texts_.end(),
                        [&](const PageBox& other) { return overlap(wide, other); }) &&
           std::none_of(lines_.begin(), lines_.end(),
                        [&](const Segment& drawn) { return clipped(drawn.first, drawn.second, wide); });
}

std::optional<PageBox> DrawingWindow::freePlace(PagePoint wish, double width, double height) const {
    constexpr double kStep = 0.04;
    constexpr int kDirections = 24;
    const double farthest = box().right - box().left + box().top - box().bottom;
    for (int ring = 0; ring * kStep < farthest; ++ring) {
        const double away = ring * kStep;
        for (int i = 0; i < (ring == 0 ? 1 : kDirections); ++i) {
            const double angle = TwoPiValue * i / kDirections;
            const double x = wish.x + away * std::cos(angle);
            const double y = wish.y + away * std::sin(angle);
            const PageBox room{x - width / 2.0, y + height / 2.0, x + width / 2.0, y - height / 2.0};
            if (isFree(room)) return room;
        }
    }
    return std::nullopt;
}

void DrawingWindow::freeText(PagePoint at, const std::string& text, const TextLook& look) {
    const PagePoint wish = place(at);
    if (!shows(wish)) return;
    const auto room = freePlace(wish, canvas_.textWidth(text, look), heightOf(look));
    if (!room) return;
    canvas_.text(*room, text, look);
    texts_.push_back(*room);
}

}  // namespace norlaplan
