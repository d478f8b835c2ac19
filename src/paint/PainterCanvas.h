#pragma once

#include <QColor>
#include <QFont>
#include <QPageLayout>
#include <QTransform>
#include <functional>

#include "state/Drawing.h"

class QPainter;

namespace norlaplan {

/// A colour of the drawings as the platform has it.
QColor colourOf(Colour colour);

/// The paper for printer and PDF, without margins.
QPageLayout pageLayoutOf(const Paper& paper);

/// A canvas on a painter. The page is laid out in twentieths of a point and scaled by the painter, so that
/// every zoom, printer and file breaks and aligns it the same way.
class PainterCanvas : public Canvas {
  public:
    /// The page's upper left corner lies at the painter's origin; `pixelsPerInch` is the zoom. `turnPage` is
    /// called for a new page.
    PainterCanvas(QPainter& painter, const Paper& paper, double pixelsPerInch,
                  std::function<void()> turnPage = {});

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
    QPointF place(PagePoint point) const;
    QRectF place(const PageBox& box) const;

    QPainter& painter_;
    double pageHeight_;
    double pixelsPerInch_;
    std::function<void()> turnPage_;
    QTransform device_;  ///< the painter's own transform, beneath the page's
};

}  // namespace norlaplan
