#pragma once

#include <QPointF>
#include <QRect>

#include "state/Drawing.h"

class QPainter;

namespace norlaplan {

/// Paints a page of a drawing on white with its upper left corner at `corner`. A drawing that fails says why
/// in the middle of `room`: nothing may leave a paint event.
void paintPage(QPainter& painter, const Drawing& drawing, QPointF corner, double pixelsPerInch,
               const QRect& room);

/// Puts all pages of a drawing onto the clipboard as one picture.
void copyPicture(const Drawing& drawing);

}  // namespace norlaplan
