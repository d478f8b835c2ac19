#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>

/// A bearing seen from above at an angle: its circles are ellipses of this ratio.
constexpr double kForeshortening = 0.42;

/// What a bearing that is seen at that angle is made of. Lengths in picture units.
struct RoundBearing {
    double outside = 0.0;  ///< radius
    double section = 0.0;  ///< from the outside to the bore
    double depth = 0.0;    ///< how high its rings are
    int balls = 0;
    QColor light{236, 240, 248}, dark{150, 164, 192}, edge{30, 40, 70};
    QColor ball{110, 130, 165};  ///< the balls' shaded side
};

/// Draws the bearing with the middle of its upper face at `centre`, and its shadow on the table.
void drawRoundBearing(QPainter& painter, QPointF centre, const RoundBearing& bearing);

/// A circle around `centre` seen at that angle, `down` below it.
QPainterPath seenCircle(QPointF centre, double radius, double down = 0.0);
