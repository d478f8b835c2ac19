#pragma once

#include <QPainter>
#include <QPointF>

/// The section of a four-point contact bearing with its side `side` around `middle`: each race is a gothic
/// arch of two arcs, drawn far more pointed than a real one, and the ball touches all four.
void drawGothicArch(QPainter& painter, QPointF middle, double side);
