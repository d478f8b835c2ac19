#include "documents/LogoMetafile.h"

namespace norlaplan {

void drawLogo(Canvas& canvas, PagePoint leftTop, double width) {
    constexpr Colour kNavy = rgb(0, 40, 110);
    constexpr double kEmuPerInch = 914400.0;
    constexpr double kPointsPerInch = 72.0;
    const double inch = width / mark::kWidth;
    const PagePen pen{kNavy, mark::kPen * inch * kEmuPerInch, 0};
    for (const MarkCircle& circle : markCircles())
        canvas.circle({leftTop.x + circle.x * inch, leftTop.y - circle.y * inch}, circle.radius * inch, pen);
    TextLook look;
    look.typeface = Typeface::Arial;
    look.points = mark::kNameSize * inch * kPointsPerInch;
    look.bold = true;
    look.colour = kNavy;
    canvas.text({leftTop.x + mark::kNameLeft * inch, leftTop.y - mark::kNameTop * inch, leftTop.x + width,
                 leftTop.y - mark::kHeight * inch},
                mark::kName, look);
}

}  // namespace norlaplan
