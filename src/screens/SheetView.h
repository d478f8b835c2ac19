#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <string>

#include "state/Canvas.h"

class QFrame;

namespace norlaplan {

/// The page of a data sheet, white, as wide as the widget and so mostly higher than it: the part that shows
/// moves with `scrollTo`. A frame drawn with the left button becomes the part of the page that is shown.
class SheetView : public QWidget {
  public:
    explicit SheetView(const char* name);

    /// The drawing; it must be sound (`readSheetRecords`). Shows the whole page.
    void showRecords(std::string records);
    /// The part of the page that fills the view, in page inches; always in the shape of the page.
    const PageBox& area() const { return area_; }

    int pageHeight() const;  ///< of the page at this width
    void scrollTo(int pixels);

    /// Called when the height of the page or of the view has changed, or another part is shown.
    std::function<void()> changed;

    QSize sizeHint() const override { return {760, 700}; }
    QSize minimumSizeHint() const override { return {340, 240}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    /// The frame from where the drag began to `corner`, in the shape of the page and within it.
    QRectF frameTo(QPointF corner) const;
    void showFrame(const QRectF& frame);
    void hideFrame();
    void zoomTo(const QRectF& frame);

    std::string records_;
    PageBox area_;
    int offset_ = 0;
    bool dragging_ = false;
    QPointF dragStart_;
    std::array<QFrame*, 4> lines_{};
};

}  // namespace norlaplan
