#include "GothicArch.h"

#include <QPainterPath>
#include <cmath>

#include "Section.h"

namespace {

constexpr double kAngle = 35.0 * M_PI / 180.0;  // of the contact lines, from the plane of the balls
constexpr double kBall = 0.245;                 // radius in parts of the side
constexpr double kShift = 0.085;                // of an arc's centre from the ball's
constexpr double kRing = 0.335;

/// What the arch cuts from the ring above (-1) or below (1) the ball.
QPainterPath arch(double side, double toRing) {
    const double radius = (kBall + kShift) * side;
    QPainterPath cut;
    for (const double hand : {-1.0, 1.0}) {
        QPainterPath disc;
        const QPointF centre(-hand * kShift * side * std::sin(kAngle),
                             -toRing * kShift * side * std::cos(kAngle));
        disc.addEllipse(centre, radius, radius);
        cut = cut.isEmpty() ? disc : cut.intersected(disc);
    }
    return cut;
}

}  // namespace

void drawGothicArch(QPainter& painter, QPointF middle, double side) {
    painter.save();
    painter.translate(middle);
    const double half = side / 2.0;
    const double height = kRing * side;
    for (const double toRing : {-1.0, 1.0}) {
        QPainterPath block;
        block.addRoundedRect(QRectF(-half, toRing < 0.0 ? -half : half - height, side, height), 0.04 * side,
                             0.04 * side);
        fillSection(painter, block.subtracted(arch(side, toRing)), tints::steel(), toRing < 0.0);
    }
    drawBall(painter, {0.0, 0.0}, kBall * side);
    painter.setPen(QPen(lines::centreColour(), lines::kOutline, Qt::DashDotLine));
    const double reach = 0.49 * side;
    for (const double hand : {-1.0, 1.0}) {
        const QPointF end(hand * reach * std::sin(kAngle), -reach * std::cos(kAngle));
        painter.drawLine(-end, end);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 90, 180));
    for (const double x : {-1.0, 1.0}) {
        for (const double y : {-1.0, 1.0}) {
            const QPointF touch(x * kBall * side * std::sin(kAngle), y * kBall * side * std::cos(kAngle));
            painter.drawEllipse(touch, 5.0, 5.0);
        }
    }
    painter.setBrush(Qt::NoBrush);
    painter.restore();
}
