#include <QPainterPath>
#include <cmath>
#include <utility>

#include "Sketches.h"

namespace {

constexpr int kBalls = 56;
/// The bearing is seen at an angle: its circles become ellipses of this ratio.
constexpr double kForeshortening = 0.42;

/// How high the rings are, and how far the balls' middle lies under their upper face, seen at that angle.
constexpr double kDepth = 60.0;
constexpr double kBallDepth = 14.0;

const QColor kLight(236, 240, 248);
const QColor kDark(150, 164, 192);
const QColor kEdge(30, 40, 70);

struct Ring {
    double outer, inner;
};
constexpr Ring kOuterRing{410.0, 376.0};
constexpr Ring kInnerRing{340.0, 308.0};

QPainterPath ellipse(QPointF centre, double radius, double down = 0.0) {
    QPainterPath path;
    path.addEllipse(centre + QPointF(0.0, down), radius, radius * kForeshortening);
    return path;
}

/// The upper face of a ring.
void drawFace(QPainter& painter, QPointF centre, const Ring& ring) {
    painter.setPen(QPen(kEdge, 1.5));
    painter.setBrush(kLight);
    painter.drawPath(ellipse(centre, ring.outer).subtracted(ellipse(centre, ring.inner)));
}

/// What is seen of a ring's walls, outside in front and inside at the back.
void drawWalls(QPainter& painter, QPointF centre, const Ring& ring) {
    QLinearGradient metal(centre - QPointF(ring.outer, 0.0), centre + QPointF(ring.outer, 0.0));
    for (const auto& [at, colour] :
         {std::pair{0.0, kDark}, {0.3, kLight}, {0.55, kDark}, {0.8, kLight}, {1.0, kDark}})
        metal.setColorAt(at, colour);
    QPainterPath side;
    side.addRect(QRectF(centre.x() - ring.outer, centre.y(), 2.0 * ring.outer, kDepth));
    const QPainterPath hole = ellipse(centre, ring.inner).intersected(ellipse(centre, ring.inner, kDepth));
    painter.setPen(QPen(kEdge, 1.5));
    painter.setBrush(metal);
    painter.drawPath(ellipse(centre, ring.outer, kDepth)
                         .united(ellipse(centre, ring.outer))
                         .united(side)
                         .subtracted(hole));
}

void drawBalls(QPainter& painter, QPointF centre, double radius, double ball) {
    painter.setPen(QPen(kEdge, 1.0));
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
    // White, as the room around it: the picture has no edge wherever it stands.
    painter.fillRect(QRectF(QPointF(0.0, 0.0), kStartSize), Qt::white);
    const QPointF centre(480.0, 270.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 20, 60, 24));
    painter.drawEllipse(centre + QPointF(0.0, 78.0), 420.0, 178.0);
    painter.setBrush(Qt::NoBrush);
    drawWalls(painter, centre, kOuterRing);
    drawFace(painter, centre, kOuterRing);
    // The inner ring stands in the outer one: no more of it is seen than through the outer ring's opening.
    painter.setClipPath(ellipse(centre, kOuterRing.inner));
    drawWalls(painter, centre, kInnerRing);
    drawBalls(painter, centre + QPointF(0.0, kBallDepth), (kOuterRing.inner + kInnerRing.outer) / 2.0, 17.0);
    drawFace(painter, centre, kInnerRing);
}
