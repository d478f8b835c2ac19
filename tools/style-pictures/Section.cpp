#include "Section.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace {

// The section of the middle series in units of its side: ball, groove and ring heights.
constexpr double kBall = 0.25 * 25.4 / 13.0 / 2.0;
constexpr double kGroove = 0.1325 * 25.4 / 13.0;
constexpr double kRing = 0.1656 * 25.4 / 13.0;
constexpr double kHatchGap = 0.085;
constexpr double kContact = 0.46;
const QColor kSteel(226, 232, 242);
const QColor kHatch(90, 110, 160);
const QColor kContactLine(200, 30, 30);

double radians(double degrees) {
    return degrees * 3.14159265358979323846 / 180.0;
}

/// A ring's outline: a block less the groove around the ball.
QPainterPath ring(double x, double top, double side, double from, double to) {
    QPainterPath block;
    block.addRoundedRect(QRectF(x - side / 2.0, top + from * side, side, (to - from) * side), side * 0.03,
                         side * 0.03);
    QPainterPath groove;
    groove.addEllipse(QPointF(x, top + side / 2.0), kGroove * side, kGroove * side);
    return block.subtracted(groove);
}

void fillRing(QPainter& painter, const QPainterPath& path, double side, bool rising) {
    painter.fillPath(path, kSteel);
    painter.save();
    painter.setClipPath(path);
    painter.setPen(QPen(kHatch, side * 0.006));
    const QRectF area = path.boundingRect();
    const double reach = area.width() + area.height();
    for (double at = -reach; at < reach; at += kHatchGap * side) {
        const double slope = rising ? -1.0 : 1.0;
        painter.drawLine(
            QPointF(area.left() + at, rising ? area.bottom() : area.top()),
            QPointF(area.left() + at + reach, (rising ? area.bottom() : area.top()) + slope * reach));
    }
    painter.restore();
    painter.strokePath(path, QPen(Qt::black, side * 0.014));
}

void drawBall(QPainter& painter, QPointF centre, double radius) {
    QRadialGradient shine(centre - QPointF(radius, radius) * 0.35, radius * 1.5);
    shine.setColorAt(0.0, Qt::white);
    shine.setColorAt(1.0, QColor(150, 165, 190));
    painter.setBrush(shine);
    painter.setPen(QPen(Qt::black, radius * 0.06));
    painter.drawEllipse(centre, radius, radius);
    painter.setBrush(Qt::NoBrush);
}

void drawRow(QPainter& painter, const Row& row, double x, double top, double side, bool mirrored) {
    fillRing(painter, ring(x, top, side, 0.0, kRing), side, true);
    fillRing(painter, ring(x, top, side, 1.0 - kRing, 1.0), side, false);
    const QPointF centre(x, top + side / 2.0);
    drawBall(painter, centre, kBall * side);
    painter.setPen(QPen(kContactLine, side * 0.012, Qt::DashDotLine));
    for (const double angle : row.angles) {
        const double turned = radians(90.0 - angle) * (mirrored ? -1.0 : 1.0);
        const QPointF reach(kContact * side * std::cos(turned), -kContact * side * std::sin(turned));
        painter.drawLine(centre - reach, centre + reach);
    }
}

void drawSpacer(QPainter& painter, double left, double width, double top, double side) {
    for (const double from : {0.0, 1.0 - kRing}) {
        const QRectF block(left, top + from * side, width, kRing * side);
        painter.fillRect(block, QColor(245, 236, 214));
        painter.setPen(QPen(Qt::black, side * 0.014));
        painter.drawRect(block);
    }
}

}  // namespace

const std::vector<Style>& styles() {
    static const std::vector<Style> kStyles = {
        {"C", {{0.0, {0.0}}}, 0.0, true},
        {"X", {{0.0, {30.0, -30.0}}}},
        {"DB", {{-0.5, {30.0}}, {0.5, {-30.0}}}},
        {"DF", {{-0.5, {-30.0}}, {0.5, {30.0}}}},
        {"DBWS", {{-0.5, {30.0}}, {0.5, {-30.0}}}, 0.45},
        {"DFWS", {{-0.5, {-30.0}}, {0.5, {30.0}}}, 0.45},
    };
    return kStyles;
}

Placement drawSection(QPainter& painter, const Style& style, QPointF middle, double side, bool mirrored) {
    const double top = middle.y() - side / 2.0;
    const double spread = style.spacer / 2.0;
    for (const Row& row : style.rows) {
        const double shift = row.x < 0.0 ? -spread : row.x > 0.0 ? spread : 0.0;
        drawRow(painter, row, middle.x() + (row.x + shift) * side, top, side, mirrored);
    }
    if (style.spacer > 0.0) {
        drawSpacer(painter, middle.x() - spread * side, style.spacer * side, top, side);
    }
    const double half = (static_cast<double>(style.rows.size()) / 2.0 + spread) * side;
    return {middle.x() - half, middle.x() + half, top, side};
}
