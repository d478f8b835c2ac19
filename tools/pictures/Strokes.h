#pragma once

#include <QPainter>
#include <QPointF>
#include <QString>

// What all pictures are drawn with.

/// Pictures are also shown at half their size: what is written on them is still read there.
constexpr int kTextPixels = 22;

void useFont(QPainter& painter, int pixels = kTextPixels);
/// Writes a name so that the middle of its capitals is at `centre`, clear of what lies under it.
void writeName(QPainter& painter, QPointF centre, const QString& name);
void centreLine(QPainter& painter, QPointF from, QPointF to);
/// A filled head that points in a direction, degrees from the right turning down.
void arrowHead(QPainter& painter, QPointF tip, double degrees, double size);
/// A dimension line between two points with arrows at its ends and its name at `place`.
void dimension(QPainter& painter, QPointF from, QPointF to, QPointF place, const QString& name);
/// A line from a part to the end of its dimension line.
void extension(QPainter& painter, QPointF from, QPointF to);
