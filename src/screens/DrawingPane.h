#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>

#include "state/Drawing.h"

namespace norlaplan {

/// A picture that is drawn for the room it has: its page is as large as the widget, so that line weights and
/// type are the same whatever its size. Drawings that are looked at on a page of their own have
/// `DrawingView`.
class DrawingPane : public QWidget {
  public:
    /// Draws onto a page that this box covers.
    using Draw = std::function<void(Canvas&, const PageBox&)>;

    /// `name` is the object name, `what` tells a screen reader what it shows.
    DrawingPane(const char* name, const QString& tip, const QString& what);

    /// Shows a drawing from now on, at every size. Errors as those of the drawing, which isn't shown then.
    void showDrawing(Draw draw);

    PageBox box() const;
    /// The place on the page under a pixel of the picture, and back.
    PagePoint pageAt(QPointF pixel) const;
    QPointF pixelAt(PagePoint place) const;

    QSize sizeHint() const override { return {560, 560}; }
    QSize minimumSizeHint() const override { return {300, 300}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    Drawing drawingBy(const Draw& draw) const;
    QPixmap blank() const;
    /// Draws anew for another size; what is wrong then stands in the place of the drawing.
    void drawAgain();

    Draw draw_;
    QPixmap picture_;
};

}  // namespace norlaplan
