#include <QPainterPath>
#include <cmath>

#include "Sketches.h"

namespace {

constexpr int kBalls = 56;
/// The bearing is seen at an angle: its circles become ellipses of this ratio.
constexpr double kForeshortening = 0.42;

struct Ring {
    double outer, inner;
    QColor light, dark;
};

void drawRing(QPainter& painter, QPointF centre, const Ring& ring, double depth) {
    const auto ellipse = [&](double radius, double shift) {
        QPainterPath path;
        path.addEllipse(centre + QPointF(0.0, shift), radius, radius * kForeshortening);
        return path;
    };
    QLinearGradient metal(centre - QPointF(ring.outer, 0.0), centre + QPointF(ring.outer, 0.0));
    metal.setColorAt(0.0, ring.dark);
    metal.setColorAt(0.3, ring.light);
    metal.setColorAt(0.55, ring.dark);
    metal.setColorAt(0.8, ring.light);
    metal.setColorAt(1.0, ring.dark);
    QPainterPath wall = ellipse(ring.outer, depth).united(ellipse(ring.outer, 0.0));
    QPainterPath side;
    side.addRect(QRectF(centre.x() - ring.outer, centre.y(), 2.0 * ring.outer, depth));
    wall = wall.united(side).subtracted(ellipse(ring.inner, 0.0).intersected(ellipse(ring.inner, depth)));
    painter.setPen(QPen(QColor(30, 40, 70), 1.5));
    painter.setBrush(metal);
    painter.drawPath(wall);
    painter.setBrush(ring.light);
    painter.drawPath(ellipse(ring.outer, 0.0).subtracted(ellipse(ring.inner, 0.0)));
    painter.setBrush(Qt::NoBrush);
}

void drawBalls(QPainter& painter, QPointF centre, double radius, double ball) {
    painter.setPen(QPen(QColor(30, 40, 70), 1.0));
    for (int i = 0; i < kBalls; ++i) {
        const double angle = i * 2.0 * M_PI / kBalls;
        const QPointF at =
            centre + QPointF(radius * std::cos(angle), radius * kForeshortening * std::sin(angle));
        QRadialGradient shine(at - QPointF(ball, ball) * 0.4, ball * 1.7);
        shine.setColorAt(0.0, Qt::white);
        shine.setColorAt(1.0, QColor(110, 130, 165));
        painter.setBrush(shine);
        painter.drawEllipse(at, ball, ball * 0.8);
    }
    painter.setBrush(Qt::NoBrush);
}

}  // namespace

void drawStart(QPainter& painter) {
    QLinearGradient sky(0.0, 0.0, 0.0, kStartSize.height());
    sky.setColorAt(0.0, QColor(250, 252, 255));
    sky.setColorAt(1.0, QColor(205, 216, 238));
    painter.fillRect(QRectF(QPointF(0.0, 0.0), kStartSize), sky);
    const QPointF centre(480.0, 270.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 20, 60, 40));
    painter.drawEllipse(centre + QPointF(0.0, 78.0), 420.0, 178.0);
    painter.setBrush(Qt::NoBrush);
    drawRing(painter, centre, {410.0, 376.0, QColor(236, 240, 248), QColor(150, 164, 192)}, 60.0);
    drawBalls(painter, centre + QPointF(0.0, 6.0), 358.0, 17.0);
    drawRing(painter, centre, {340.0, 308.0, QColor(236, 240, 248), QColor(150, 164, 192)}, 60.0);
}
