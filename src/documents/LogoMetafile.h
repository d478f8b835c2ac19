#pragma once

#include <string>
#include <vector>

#include "state/Canvas.h"

namespace norlaplan {

/// The maker's mark, a ring of balls and the name, in its own units from its upper left corner.
namespace mark {
constexpr int kWidth = 2880;
constexpr int kHeight = 941;
constexpr int kPen = 30;
constexpr const char* kName = "VARDEN";  ///< Arial, bold
constexpr int kNameLeft = 980;
constexpr int kNameTop = 210;
constexpr int kNameSize = 440;
}  // namespace mark

struct MarkCircle {
    int x = 0, y = 0, radius = 0;
};

/// The rings and the balls of the mark.
std::vector<MarkCircle> markCircles();

/// Draws the mark from its upper left corner, so wide in inches.
void drawLogo(Canvas& canvas, PagePoint leftTop, double width);

/// The mark as the hexadecimal bytes of a plain Windows metafile, in lines of 64 bytes.
std::string logoMetafileHex();

}  // namespace norlaplan
