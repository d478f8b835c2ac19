#include "FrontView.h"

#include <QPainterPath>
#include <cmath>

#include "Section.h"

namespace {

void fillAndOutline(QPainter& painter, const QPainterPath& path, const QColor& tint) {
    painter.setPen(QPen(Qt::black, lines::kOutline));
    painter.setBrush(tint);
    painter.drawPath(path);
    painter.setBrush(Qt::NoBrush);
}

QRectF around(QPointF centre, double radius) {
    return {centre.x() - radius, centre.y() - radius, 2.0 * radius, 2.0 * radius};
}

}  // namespace

QPointF onCircle(QPointF centre, double radius, double degrees) {
    const double angle = degrees * M_PI / 180.0;
    return centre + radius * QPointF(std::cos(angle), -std::sin(angle));
}

void drawBand(QPainter& painter, const Arc& arc, double outer, double inner, const QColor& tint) {
    QPainterPath path;
    if (arc.to - arc.from >= 360.0) {
        path.addEllipse(around(arc.centre, outer));
        path.addEllipse(around(arc.centre, inner));
    } else {
        path.arcMoveTo(around(arc.centre, outer), arc.from);
        path.arcTo(around(arc.centre, outer), arc.from, arc.to - arc.from);
        path.arcTo(around(arc.centre, inner), arc.to, arc.from - arc.to);
        path.closeSubpath();
    }
    fillAndOutline(painter, path, tint);
}

void drawGear(QPainter& painter, QPointF centre, double tips, double roots, double inner, int teeth) {
    QPainterPath path;
    const double pitch = 360.0 / teeth;
    for (int i = 0; i < teeth; ++i) {
        const double at = i * pitch;
        const auto corner = [&](double radius, double part) {
            const QPointF point = onCircle(centre, radius, at + part * pitch);
            if (path.elementCount() == 0)
                path.moveTo(point);
            else
                path.lineTo(point);
        };
        corner(roots, 0.0);
        corner(roots, 0.3);
        corner(tips, 0.45);
        corner(tips, 0.75);
        corner(roots, 0.9);
    }
    path.closeSubpath();
    path.addEllipse(around(centre, inner));
    fillAndOutline(painter, path, tints::steel());
}

void drawAround(QPainter& painter, QPointF centre, double radius, double size, int count,
                const QColor& fill) {
    painter.setPen(QPen(Qt::black, lines::kOutline));
    painter.setBrush(fill);
    for (int i = 0; i < count; ++i)
        painter.drawEllipse(onCircle(centre, radius, i * 360.0 / count), size, size);
    painter.setBrush(Qt::NoBrush);
}
