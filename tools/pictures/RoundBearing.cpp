#include "RoundBearing.h"

#include <cmath>
#include <utility>

#include "Section.h"

namespace {

constexpr double kRingPart = 0.335;  // of the section

struct Ring {
    double outer, inner;
};

/// The upper face of a ring.
void drawFace(QPainter& painter, QPointF centre, const Ring& ring, const RoundBearing& look) {
    painter.setPen(QPen(look.edge, lines::kThin));
    painter.setBrush(look.light);
    painter.drawPath(seenCircle(centre, ring.outer).subtracted(seenCircle(centre, ring.inner)));
}

/// What is seen of a ring's walls, outside in front and inside at the back.
void drawWalls(QPainter& painter, QPointF centre, const Ring& ring, const RoundBearing& look) {
    QLinearGradient metal(centre - QPointF(ring.outer, 0.0), centre + QPointF(ring.outer, 0.0));
    for (const auto& [at, colour] : {std::pair{0.0, look.dark},
                                     {0.3, look.light},
                                     {0.55, look.dark},
                                     {0.8, look.light},
                                     {1.0, look.dark}})
        metal.setColorAt(at, colour);
    QPainterPath side;
    side.addRect(QRectF(centre.x() - ring.outer, centre.y(), 2.0 * ring.outer, look.depth));
    const QPainterPath hole =
        seenCircle(centre, ring.inner).intersected(seenCircle(centre, ring.inner, look.depth));
    painter.setPen(QPen(look.edge, lines::kThin));
    painter.setBrush(metal);
    painter.drawPath(seenCircle(centre, ring.outer, look.depth)
                         .united(seenCircle(centre, ring.outer))
                         .united(side)
                         .subtracted(hole));
}

void drawBalls(QPainter& painter, QPointF centre, double radius, double ball, const RoundBearing& look) {
    painter.setPen(QPen(look.edge, lines::kThin * 0.75));
    for (int i = 0; i < look.balls; ++i) {
        const double angle = i * 2.0 * M_PI / look.balls;
        const QPointF at =
            centre + QPointF(radius * std::cos(angle), radius * kForeshortening * std::sin(angle));
        QRadialGradient shine(at - QPointF(ball, ball) * 0.4, ball * 1.7);
        shine.setColorAt(0.0, Qt::white);
        shine.setColorAt(1.0, look.ball);
        painter.setBrush(shine);
        painter.drawEllipse(at, ball, ball * 0.8);
    }
    painter.setBrush(Qt::NoBrush);
}

}  // namespace

QPainterPath seenCircle(QPointF centre, double radius, double down) {
    QPainterPath path;
    path.addEllipse(centre + QPointF(0.0, down), radius, radius * kForeshortening);
    return path;
}

void drawRoundBearing(QPainter& painter, QPointF centre, const RoundBearing& bearing) {
    const double ring = bearing.section * kRingPart;
    const Ring outer{bearing.outside, bearing.outside - ring};
    const Ring inner{bearing.outside - bearing.section + ring, bearing.outside - bearing.section};
    const double gap = outer.inner - inner.outer;

    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 20, 60, 24));
    painter.drawPath(seenCircle(centre, bearing.outside * 1.024, bearing.depth * 1.3));
    drawWalls(painter, centre, outer, bearing);
    drawFace(painter, centre, outer, bearing);
    // The inner ring stands in the outer one: no more of it is seen than through the outer ring's opening.
    painter.setClipPath(seenCircle(centre, outer.inner), Qt::IntersectClip);
    drawWalls(painter, centre, inner, bearing);
    drawBalls(painter, centre + QPointF(0.0, bearing.depth * 0.23), (outer.inner + inner.outer) / 2.0,
              gap * 0.47, bearing);
    drawFace(painter, centre, inner, bearing);
    painter.restore();
}
