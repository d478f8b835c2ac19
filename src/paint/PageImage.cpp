#include "paint/PageImage.h"

#include <QPainter>
#include <utility>

#include "paint/PainterCanvas.h"

namespace norlaplan {
namespace {

constexpr int kDotsPerInch = 150;

/// An image that grows by a page at a time.
class ImagePages {
  public:
    /// Pages of this size in inches.
    ImagePages(double width, double height)
        : pageWidth_(qRound(width * kDotsPerInch)), pageHeight_(qRound(height * kDotsPerInch)) {
        addPage();
    }

    void addPage() {
        if (painter.isActive()) painter.end();
        const QImage before = image;
        image = QImage(pageWidth_, before.height() + pageHeight_, QImage::Format_RGB32);
        image.fill(Qt::white);
        painter.begin(&image);
        if (!before.isNull()) painter.drawImage(0, 0, before);
        painter.translate(0, before.height());
    }

    QImage finished() {
        painter.end();
        const int dotsPerMetre = qRound(kDotsPerInch / 0.0254);
        image.setDotsPerMeterX(dotsPerMetre);
        image.setDotsPerMeterY(dotsPerMetre);
        return std::move(image);
    }

    QImage image;
    QPainter painter;  ///< goes before the image that it paints on

  private:
    int pageWidth_, pageHeight_;
};

}  // namespace

QImage pageImage(const Drawing& drawing) {
    ImagePages pages(drawing.paper.width, drawing.paper.height);
    PainterCanvas canvas(pages.painter, drawing.paper, kDotsPerInch, [&pages] { pages.addPage(); });
    drawing.draw(canvas);
    return pages.finished();
}

QImage pageImage(const Drawing& drawing, const PageBox& area) {
    const double across = area.right - area.left;
    ImagePages page(drawing.paper.width, drawing.paper.width * (area.top - area.bottom) / across);
    const double dotsPerInch = page.image.width() / across;
    page.painter.translate(-area.left * dotsPerInch, -(drawing.paper.height - area.top) * dotsPerInch);
    PainterCanvas canvas(page.painter, drawing.paper, dotsPerInch);
    drawing.draw(canvas);
    return page.finished();
}

}  // namespace norlaplan
