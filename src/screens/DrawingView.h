#pragma once

#include <QAbstractScrollArea>
#include <array>

#include "state/Drawing.h"

class QFrame;

namespace norlaplan {

/// A view of any drawing on its page: a data sheet, a graph, a page to print. Scroll bars and the middle
/// button (or the left one with Space) move it; the wheel, + and - zoom at the pointer, 0 shows the whole
/// page, Ctrl+C copies it. A frame drawn with the left button becomes what the view's width shows.
class DrawingView : public QAbstractScrollArea {
  public:
    /// `name` is the object name of the picture itself, `what` tells what it shows.
    DrawingView(const char* name, const char* what);

    /// Shows a drawing of one page from its top, as wide as the view.
    void showDrawing(Drawing drawing);

    void showPageWidth();
    void showWholePage();
    void zoomIn();
    void zoomOut();

    /// What the view shows as a part of the page in the page's own shape: as wide as what is seen, from the
    /// upper left corner of what is seen, all of it on the page.
    PageBox area() const;
    double pixelsPerInch() const { return zoom_; }
    /// The place on the page under a pixel of the picture.
    PagePoint pageAt(QPointF pixel) const;

    QSize sizeHint() const override { return {760, 700}; }
    QSize minimumSizeHint() const override { return {340, 240}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    enum class Fit { Width, Page, None };
    enum class Drag { None, Frame, Move };

    void makeFrameLines();
    void setFit(Fit fit);
    double fittingZoom(Fit fit) const;
    /// Zooms so that the place under the pixel stays under it.
    void zoomAt(QPointF pixel, double zoom);
    void zoomTo(const QRectF& frame);
    void setScrollRanges();
    QSizeF pageSize() const;     ///< in pixels
    QPointF pageCorner() const;  ///< the page's upper left corner in the picture

    /// The frame from where the drag began to `corner`, on the page in pixels, in the page's shape.
    QRectF frameTo(QPointF corner) const;
    void showFrame(const QRectF& frame);
    void hideFrame();
    void setHand(bool hand);

    Drawing drawing_;
    Fit fit_ = Fit::Width;
    double zoom_ = 72.0;  ///< pixels an inch
    Drag drag_ = Drag::None;
    QPointF dragStart_;
    bool hand_ = false;  ///< Space is held: the left button moves
    std::array<QFrame*, 4> lines_{};
};

}  // namespace norlaplan
