#pragma once

#include <QImage>

#include "state/Drawing.h"

namespace norlaplan {

/// All pages of a drawing as one image, 150 dots an inch on white, further pages below the first.
QImage pageImage(const Drawing& drawing);

/// A part of a drawing of one page, in as many dots as the whole page is wide.
QImage pageImage(const Drawing& drawing, const PageBox& area);

}  // namespace norlaplan
