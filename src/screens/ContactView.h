#pragma once

#include <optional>

#include "loaddist/ContactDrawing.h"
#include "screens/DrawingPane.h"

class QRubberBand;

namespace norlaplan {

/// The drawing of a ball's contact with the groove, looked at through a window that the user moves: the arrow
/// keys shift it, Page Up and Page Down and the wheel change its scale, a frame drawn with the left button
/// becomes the window, Home goes back to where it opened.
class ContactView : public DrawingPane {
  public:
    ContactView(const char* name, const QString& what);

    /// Shows the section, from its opening area on.
    void open(const ContactSection& section);
    /// Shows another section of the same bearing, through the window that is open.
    void change(const ContactSection& section);
    /// Draws again what is shown.
    void redraw();
    void press(ViewKey key);

    const DrawingArea& area() const { return area_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void showArea(const DrawingArea& area);

    ContactSection section_;
    DrawingArea area_;
    QRubberBand* frame_;
    std::optional<QPoint> dragStart_;
};

}  // namespace norlaplan
