#pragma once

#include <QColor>
#include <QPainter>
#include <QPointF>

// Parts of a bearing seen along its axis. Lengths in picture units, angles in degrees from the right turning
// up.

struct Arc {
    QPointF centre;
    double from = 0.0, to = 360.0;
};

/// A ring, or the part of it over an arc, tinted and outlined.
void drawBand(QPainter& painter, const Arc& arc, double outer, double inner, const QColor& tint);

/// A ring whose outside is a row of gear teeth.
void drawGear(QPainter& painter, QPointF centre, double tips, double roots, double inner, int teeth);

/// Balls, or holes, evenly around a circle.
void drawAround(QPainter& painter, QPointF centre, double radius, double size, int count, const QColor& fill);

/// The point of a circle at an angle.
QPointF onCircle(QPointF centre, double radius, double degrees);
