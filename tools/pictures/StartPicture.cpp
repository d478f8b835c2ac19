#include "RoundBearing.h"
#include "Sketches.h"

void drawStart(QPainter& painter) {
    // White, as the room around it: the picture has no edge wherever it stands.
    painter.fillRect(QRectF(QPointF(0.0, 0.0), kStartSize), Qt::white);
    RoundBearing bearing;
    bearing.outside = 205.0;
    bearing.section = 51.0;
    bearing.depth = 30.0;
    bearing.balls = 56;
    drawRoundBearing(painter, {240.0, 135.0}, bearing);
}
