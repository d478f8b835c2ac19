#pragma once

#include <QFont>
#include <QTransform>
#include <functional>

#include "state/Canvas.h"

class QPainter;

namespace norlaplan {

constexpr double kPageWidthInches = 8.5;
constexpr double kPageHeightInches = 11.0;

/// A canvas on a painter. The page is laid out in twentieths of a point and scaled by the painter, so that
/// every zoom, printer and file breaks and aligns it the same way.
class PainterCanvas : public Canvas {
  public:
    /// The page's upper left corner lies at the painter's origin; `pixelsPerInch` is the zoom. `turnPage` is
    /// called for a new page.
    PainterCanvas(QPainter& painter, double pixelsPerInch, std::function<void()> turnPage = {});

    void line(PagePoint from, PagePoint to, const PagePen& pen) override;
    void rectangle(const PageBox& box, std::optional<Colour> fill,
                   const std::optional<PagePen>& frame) override;
    void circle(PagePoint centre, double radius, const PagePen& pen) override;
    void text(const PageBox& box, std::string_view text, const TextLook& look) override;
    double textWidth(std::string_view text, const TextLook& look) override;
    void newPage() override;

  private:
    void usePageScale();
    void usePen(const PagePen& pen);

    QPainter& painter_;
    double pixelsPerInch_;
    std::function<void()> turnPage_;
    QTransform device_;  ///< the painter's own transform, beneath the page's
};

}  // namespace norlaplan
