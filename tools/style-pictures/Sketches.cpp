#include "Sketches.h"

#include <cmath>

namespace {

const QColor kLoadColour(0, 90, 180);
const QColor kSizeColour(40, 40, 40);

void useFont(QPainter& painter, double pixels) {
    QFont font("Liberation Sans");
    font.setPixelSize(static_cast<int>(pixels));
    painter.setFont(font);
}

void centreLine(QPainter& painter, QPointF from, QPointF to) {
    painter.setPen(QPen(QColor(200, 30, 30), 1.2, Qt::DashDotLine));
    painter.drawLine(from, to);
}

void arrowHead(QPainter& painter, QPointF tip, double degrees, double size) {
    const double angle = degrees * M_PI / 180.0;
    const auto corner = [&](double turn) {
        return tip - size * QPointF(std::cos(angle + turn), std::sin(angle + turn));
    };
    const QPointF points[] = {tip, corner(0.3), corner(-0.3)};
    painter.setBrush(painter.pen().color());
    painter.drawPolygon(points, 3);
    painter.setBrush(Qt::NoBrush);
}

/// A thick arrow from tail to tip with its name at the tail.
void loadArrow(QPainter& painter, QPointF tail, QPointF tip, const QString& name, QPointF label) {
    painter.setPen(QPen(kLoadColour, 3.0, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    const double angle = std::atan2(tip.y() - tail.y(), tip.x() - tail.x());
    painter.drawLine(tail, tip - 8.0 * QPointF(std::cos(angle), std::sin(angle)));
    painter.setPen(QPen(kLoadColour, 1.0));
    arrowHead(painter, tip, angle * 180.0 / M_PI, 15.0);
    useFont(painter, 15.0);
    painter.drawText(label, name);
}

/// An arrow that turns about `centre`, which is marked: the moment tilts the bearing about its middle.
void momentArc(QPainter& painter, QPointF centre, double radius) {
    constexpr double kFrom = -20.0;
    constexpr double kTo = 46.0;
    constexpr double kHead = 7.0;  // degrees that the arrow head covers
    painter.setPen(QPen(kLoadColour, 3.0, Qt::SolidLine, Qt::FlatCap));
    const QRectF circle(centre - QPointF(radius, radius), QSizeF(2.0 * radius, 2.0 * radius));
    painter.drawArc(circle, static_cast<int>(kFrom * 16), static_cast<int>((kTo - kFrom - kHead / 2.0) * 16));
    painter.setPen(QPen(kLoadColour, 1.0));
    const double end = kTo * M_PI / 180.0;
    // The head lies along the chord from where it begins, so that it follows the arc.
    arrowHead(painter, centre + radius * QPointF(std::cos(end), -std::sin(end)), -90.0 - kTo + kHead / 2.0,
              15.0);
    painter.setBrush(kLoadColour);
    painter.drawEllipse(centre, 4.0, 4.0);
    painter.setBrush(Qt::NoBrush);
    useFont(painter, 15.0);
    painter.drawText(centre + QPointF(radius + 6.0, -34.0), "MOMENT");
}

/// A dimension line between two points with arrows at its ends and a name in its middle, or beside it.
void dimension(QPainter& painter, QPointF from, QPointF to, const QString& name, QPointF beside = {}) {
    painter.setPen(QPen(kSizeColour, 1.2));
    painter.drawLine(from, to);
    const double degrees = std::atan2(to.y() - from.y(), to.x() - from.x()) * 180.0 / M_PI;
    arrowHead(painter, to, degrees, 10.0);
    arrowHead(painter, from, degrees + 180.0, 10.0);
    useFont(painter, 14.0);
    const QRectF box = QRectF(painter.fontMetrics().boundingRect(name)).adjusted(-4.0, -2.0, 4.0, 2.0);
    QRectF place(QPointF(0.0, 0.0), box.size());
    place.moveCenter((from + to) / 2.0 + beside);
    painter.fillRect(place, Qt::white);
    painter.drawText(place, Qt::AlignCenter, name);
}

void extension(QPainter& painter, QPointF from, QPointF to) {
    painter.setPen(QPen(kSizeColour, 0.8));
    painter.drawLine(from, to);
}

}  // namespace

void drawType(QPainter& painter, const Style& style) {
    const double across = static_cast<double>(style.rows.size()) + style.spacer;
    const double side = std::min(108.0, 200.0 / across);
    drawSection(painter, style, {120.0, 76.0}, side);
    centreLine(painter, {20.0, 148.0}, {220.0, 148.0});
}

void drawLoads(QPainter& painter, const Style& style) {
    const double side = style.rows.size() > 1 ? 86.0 : 104.0;
    const QPointF upper(200.0, 92.0);
    const Placement section = drawSection(painter, style, upper, side);
    constexpr double kAxis = 268.0;
    centreLine(painter, {30.0, kAxis}, {450.0, kAxis});
    useFont(painter, 12.0);
    painter.setPen(QColor(120, 120, 120));
    painter.drawText(QPointF(34.0, kAxis - 6.0), "axis");
    loadArrow(painter, {upper.x(), section.top - 34.0 + 0.0}, {upper.x(), section.top - 2.0}, "RADIAL",
              {upper.x() + 12.0, section.top - 16.0});
    if (style.radialOnly) return;
    loadArrow(painter, {section.left - 66.0, upper.y()}, {section.left - 4.0, upper.y()}, "AXIAL",
              {section.left - 70.0, upper.y() - 12.0});
    momentArc(painter, {upper.x(), kAxis}, 124.0);
}

void drawSizes(QPainter& painter, const Style& style) {
    const double side = style.rows.size() > 1 ? 58.0 : 66.0;
    constexpr double kAxis = 172.0;
    const double offset = 96.0;
    const QPointF middle(250.0, kAxis);
    const Placement upper = drawSection(painter, style, middle - QPointF(0.0, offset), side);
    const Placement lower = drawSection(painter, style, middle + QPointF(0.0, offset), side, true);
    painter.setPen(QPen(Qt::black, 1.0));
    for (const double x : {upper.left, upper.right}) {
        painter.drawLine(QPointF(x, upper.bottom()), QPointF(x, lower.top));
    }
    centreLine(painter, {upper.left - 40.0, kAxis}, {upper.right + 40.0, kAxis});
    const double boreX = upper.right + 62.0;
    const double odX = upper.left - 62.0;
    for (const double y : {upper.bottom(), lower.top})
        extension(painter, {upper.right + 4.0, y}, {boreX + 8.0, y});
    for (const double y : {upper.top, lower.bottom()})
        extension(painter, {upper.left - 4.0, y}, {odX - 8.0, y});
    dimension(painter, {boreX, upper.bottom()}, {boreX, lower.top}, "BORE");
    dimension(painter, {odX, upper.top}, {odX, lower.bottom()}, "O.D.");
    const double heightY = upper.top - 22.0;
    for (const double x : {upper.left, upper.right})
        extension(painter, {x, upper.top - 4.0}, {x, heightY - 6.0});
    dimension(painter, {upper.left, heightY}, {upper.right, heightY}, "HEIGHT", {0.0, -14.0});
}

void drawIcon(QPainter& painter) {
    const QPointF centre(128.0, 128.0);
    painter.setPen(QPen(QColor(0, 40, 110), 12.0));
    painter.setBrush(QColor(238, 242, 252));
    painter.drawEllipse(centre, 116.0, 116.0);
    painter.setBrush(Qt::white);
    painter.drawEllipse(centre, 62.0, 62.0);
    painter.setPen(QPen(QColor(0, 40, 110), 3.0));
    painter.setBrush(QColor(150, 170, 215));
    for (int ball = 0; ball < 12; ++ball) {
        const double angle = ball * M_PI / 6.0;
        painter.drawEllipse(centre + 89.0 * QPointF(std::cos(angle), std::sin(angle)), 19.0, 19.0);
    }
}
