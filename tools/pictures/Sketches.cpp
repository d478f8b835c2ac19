#include "Sketches.h"

#include <algorithm>
#include <cmath>

#include "Strokes.h"

namespace {

const QColor kLoadColour(0, 90, 180);

constexpr double kLoadLine = 4.0;
constexpr double kLoadHead = 18.0;

// The whole bearing on a sketch: its axis, and from there to its outer surface.
constexpr double kAxis = 184.0;
constexpr double kOuter = 122.0;
constexpr double kSide = 62.0;
constexpr double kBeyond = 22.0;  // how far the axis is drawn beyond the bearing

void loadArrow(QPainter& painter, QPointF tail, QPointF tip) {
    painter.setPen(QPen(kLoadColour, kLoadLine, Qt::SolidLine, Qt::FlatCap));
    const double angle = std::atan2(tip.y() - tail.y(), tip.x() - tail.x());
    painter.drawLine(tail, tip - kLoadHead / 2.0 * QPointF(std::cos(angle), std::sin(angle)));
    painter.setBrush(kLoadColour);
    arrowHead(painter, tip, angle * 180.0 / M_PI, kLoadHead);
}

/// An arrow that turns about `centre`, which is marked: the moment tilts the bearing about its middle.
void momentArc(QPainter& painter, QPointF centre, double radius) {
    constexpr double kReach = 38.0;  // degrees to both sides of the axis
    const double head = kLoadHead / radius * 180.0 / M_PI;
    painter.setPen(QPen(kLoadColour, kLoadLine, Qt::SolidLine, Qt::FlatCap));
    const QRectF circle(centre - QPointF(radius, radius), QSizeF(2.0 * radius, 2.0 * radius));
    painter.drawArc(circle, qRound(-kReach * 16.0), qRound((2.0 * kReach - head / 2.0) * 16.0));
    const double end = kReach * M_PI / 180.0;
    painter.setBrush(kLoadColour);
    // The head lies along the chord from where it begins, so that it follows the arc.
    arrowHead(painter, centre + radius * QPointF(std::cos(end), -std::sin(end)), -90.0 - kReach + head / 2.0,
              kLoadHead);
    painter.drawEllipse(centre, 5.0, 5.0);
}

/// The bearing cut through its axis. Gives where its upper section lies.
Placement drawBearing(QPainter& painter, const Style& style, double middle) {
    const double offset = kOuter - kSide / 2.0;
    const Placement upper = drawSection(painter, style, {middle, kAxis - offset}, kSide);
    const Placement lower = drawSection(painter, style, {middle, kAxis + offset}, kSide, true);
    painter.setPen(QPen(Qt::black, lines::kOutline));
    for (const double x : {upper.left, upper.right})
        painter.drawLine(QPointF(x, upper.bottom()), QPointF(x, lower.top));
    centreLine(painter, {upper.left - kBeyond, kAxis}, {upper.right + kBeyond, kAxis});
    return upper;
}

}  // namespace

void drawType(QPainter& painter, const Style& style) {
    drawSection(painter, style, {120.0, 70.0}, 92.0);
    centreLine(painter, {12.0, 141.0}, {228.0, 141.0});
}

void drawLoads(QPainter& painter, const Style& style) {
    const double middle = style.radialOnly ? 240.0 : 208.0;
    const Placement section = drawBearing(painter, style, middle);
    loadArrow(painter, {middle, 6.0}, {middle, section.top - 3.0});
    painter.setPen(kLoadColour);
    writeName(painter, {middle + 60.0, 26.0}, "RADIAL");
    if (style.radialOnly) return;
    loadArrow(painter, {section.left - 98.0, kAxis}, {section.left - 3.0, kAxis});
    painter.setPen(kLoadColour);
    writeName(painter, {section.left - 64.0, kAxis - 24.0}, "AXIAL");
    const double radius = std::max(96.0, section.right - middle + 44.0);
    momentArc(painter, {middle, kAxis}, radius);
    painter.setPen(kLoadColour);
    writeName(painter, {middle + radius + 68.0, kAxis}, "MOMENT");
}

void drawSizes(QPainter& painter, const Style& style) {
    const Placement upper = drawBearing(painter, style, 240.0);
    const double bore = kOuter - kSide;
    const double boreX = upper.right + 68.0;
    const double odX = upper.left - 58.0;
    const double heightY = upper.top - 20.0;
    for (const double y : {kAxis - bore, kAxis + bore})
        extension(painter, {upper.right + 4.0, y}, {boreX + 8.0, y});
    for (const double y : {kAxis - kOuter, kAxis + kOuter})
        extension(painter, {upper.left - 4.0, y}, {odX - 8.0, y});
    for (const double x : {upper.left, upper.right})
        extension(painter, {x, upper.top - 4.0}, {x, heightY - 8.0});
    dimension(painter, {boreX, kAxis - bore}, {boreX, kAxis + bore}, {boreX, kAxis}, "BORE");
    dimension(painter, {odX, kAxis - kOuter}, {odX, kAxis + kOuter}, {odX, kAxis}, "O.D.");
    dimension(painter, {upper.left, heightY}, {upper.right, heightY}, {240.0, heightY - 19.0}, "HEIGHT");
}
