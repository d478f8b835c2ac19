#pragma once

#include <string>

#include "state/Canvas.h"

namespace norlaplan {

/// Draws the section of a style ("C", "X", "B", "F") with its contact lines into the box: rings, balls, and
/// for a pair both rows one above the other.
void drawStyle(Canvas& canvas, const std::string& styleLetter, const PageBox& box);

}  // namespace norlaplan
