#include <cmath>

#include "loaddist/ContactDrawing.h"

namespace norlaplan {
namespace {

constexpr double kOpeningExtent = 2.5;  // ball diameters

}  // namespace

DrawingArea openingArea(const ContactSection& section) {
    const double D = section.D;
    return {section.dm / 2.0 - 2.0 * D, 1.25 * D, kOpeningExtent * D, -kOpeningExtent * D};
}

DrawingArea wholeArea(const ContactSection& section) {
    const double D = section.D;
    const double left = section.shoulder - 2.45 * D;
    return {left, 1.6 * D, section.dm / 2.0 + 0.6 * D - left, -3.2 * D};
}

DrawingArea areaAfterKey(const DrawingArea& area, ViewKey key, const ContactSection& section) {
    constexpr double kZoom = 1.1;
    constexpr double kShare = 0.05;
    constexpr double kStep = 0.25;  // ball diameters
    const double scale = std::fabs(area.width) / (kOpeningExtent * section.D);
    DrawingArea next = area;
    switch (key) {
        case ViewKey::PageDown:
            if (scale >= 10.0) break;
            next.left = area.left - kShare * area.width;
            next.top = area.top - kShare * area.height;
            next.width = area.width * kZoom;
            next.height = area.height * kZoom;
            break;
        case ViewKey::PageUp:
            if (scale <= 0.1) break;
            next.width = area.width / kZoom;
            next.height = area.height / kZoom;
            next.left = area.left + kShare * next.width;
            next.top = area.top + kShare * next.height;
            break;
        case ViewKey::Up:
            next.top = area.top - kStep * section.D;
            break;
        case ViewKey::Down:
            next.top = area.top + kStep * section.D;
            break;
        case ViewKey::Left:
            next.left = area.left + kStep * section.D;
            break;
        case ViewKey::Right:
            next.left = area.left - kStep * section.D;
            break;
    }
    return next;
}

std::optional<DrawingArea> areaOfFrame(const WindowScale& window, PagePoint from, PagePoint to) {
    const PagePoint a = window.placeBack(from);
    const PagePoint b = window.placeBack(to);
    if (a.x == b.x || a.y == b.y) return std::nullopt;
    return DrawingArea{std::fmin(a.x, b.x), std::fmax(a.y, b.y), std::fabs(a.x - b.x), -std::fabs(a.y - b.y)};
}

}  // namespace norlaplan
