#pragma once

#include <QPainter>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "paint/PainterCanvas.h"
#include "support/Ink.h"

namespace norlaplan::testing {

/// A letter page with what `draw` leaves on it. At 100 pixels to the inch the page's point (x, y) is the
/// pixel (100 x, 1100 - 100 y).
inline QImage drawn(const std::function<void(Canvas&)>& draw, int pixelsPerInch = 100) {
    QImage page(pixelsPerInch * 17 / 2, pixelsPerInch * 11, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    PainterCanvas canvas(painter, papers::kLetter, pixelsPerInch);
    draw(canvas);
    return page;
}

inline QImage drawnText(const PageBox& box, const std::string& text, const TextLook& look) {
    return drawn([&](Canvas& canvas) { canvas.text(box, text, look); });
}

/// Boxes agree to a pixel on each side.
inline void expectBox(const QRect& box, int left, int top, int right, int bottom) {
    EXPECT_NEAR(box.left(), left, 1);
    EXPECT_NEAR(box.top(), top, 1);
    EXPECT_NEAR(box.right(), right, 1);
    EXPECT_NEAR(box.bottom(), bottom, 1);
}

/// A box whose upper left corner is the pixel (200, 100).
constexpr PageBox kBox{2.0, 10.0, 6.0, 9.0};

}  // namespace norlaplan::testing
