#pragma once

#include <string>

#include "support/RecordingPorts.h"

namespace norlaplan::testing {

/// What of a drawing is upside down or off its paper; empty when nothing is. A text may be wider than its
/// box, which only tells where it begins.
inline std::string offPaper(const RecordingCanvas& canvas, const Paper& paper) {
    constexpr double kSlack = 1e-6;
    const auto holds = [&](double x, double y) {
        return x >= -kSlack && x <= paper.width + kSlack && y >= -kSlack && y <= paper.height + kSlack;
    };
    const auto upright = [](const PageBox& box) { return box.left <= box.right && box.bottom <= box.top; };
    for (const RecordingCanvas::Text& text : canvas.texts) {
        if (!upright(text.box) || !holds(text.box.left, text.box.top)) return "text " + text.text;
        if (text.look.alignment != Alignment::Left && !holds(text.box.right, text.box.bottom))
            return "text " + text.text;
    }
    for (const RecordingCanvas::Rectangle& one : canvas.rectangles) {
        if (!upright(one.box) || !holds(one.box.left, one.box.top) || !holds(one.box.right, one.box.bottom))
            return "rectangle at " + std::to_string(one.box.left) + ", " + std::to_string(one.box.top);
    }
    for (const RecordingCanvas::Line& one : canvas.lines) {
        if (!holds(one.from.x, one.from.y) || !holds(one.to.x, one.to.y))
            return "line from " + std::to_string(one.from.x) + ", " + std::to_string(one.from.y);
    }
    for (const RecordingCanvas::Circle& one : canvas.circles) {
        if (!holds(one.centre.x - one.radius, one.centre.y - one.radius) ||
            !holds(one.centre.x + one.radius, one.centre.y + one.radius))
            return "circle at " + std::to_string(one.centre.x) + ", " + std::to_string(one.centre.y);
    }
    return "";
}

}  // namespace norlaplan::testing
