#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "state/Canvas.h"

namespace norlaplan {

/// The part of a drawing that a window shows, in the drawing's own units: `top` is the y of its upper edge,
/// and a negative height means that y grows upward.
struct DrawingArea {
    double left = 0.0, top = 0.0, width = 0.0, height = 0.0;
};

/// How an area of a drawing lies in a box of the page: in the middle, with its own proportions.
class WindowScale {
  public:
    /// Error 11 for an area without extent.
    WindowScale(const PageBox& box, const DrawingArea& area);

    double inchesPerUnit() const { return scale_; }
    PagePoint place(PagePoint point) const;      ///< drawing to page
    PagePoint placeBack(PagePoint point) const;  ///< page to drawing
    bool shows(PagePoint pagePoint) const;
    const PageBox& box() const { return box_; }

  private:
    PageBox box_;
    double scale_, middleX_, middleY_, upward_;
};

/// A window of a page onto a drawing. Lines end at its edge, and their weight is the page's, whatever the
/// scale.
class DrawingWindow : public WindowScale {
  public:
    DrawingWindow(Canvas& canvas, const PageBox& box, const DrawingArea& area)
        : WindowScale(box, area), canvas_(canvas) {}

    // In units of the drawing; angles in radians, counter-clockwise from the x axis.
    void line(PagePoint from, PagePoint to, const PagePen& pen);
    void arc(PagePoint centre, double radius, double from, double to, const PagePen& pen);
    /// A filled arrow head from its tip back along `direction`, a unit vector that points to the tip.
    void arrow(PagePoint tip, PagePoint direction, double length, double halfWidth, const PagePen& pen);

    /// A text whose upper left corner lies at a place of the drawing, or as near to it as the window's edge
    /// allows.
    void text(PagePoint at, const std::string& text, const TextLook& look);
    /// A text centred at a place of the drawing, or at the nearest one where it lies on no line and no text
    /// drawn so far. It is left out when the window doesn't show the place, or holds no free one.
    void freeText(PagePoint at, const std::string& text, const TextLook& look);

  private:
    using Segment = std::pair<PagePoint, PagePoint>;

    bool isFree(const PageBox& room) const;
    std::optional<PageBox> freePlace(PagePoint wish, double width, double height) const;

    Canvas& canvas_;
    std::vector<Segment> lines_;  ///< what was drawn, in page inches
    std::vector<PageBox> texts_;
};

}  // namespace norlaplan
