#include "screens/ContactView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QRubberBand>
#include <QWheelEvent>
#include <algorithm>

#include "screens/Theme.h"

namespace norlaplan {
namespace {

std::optional<ViewKey> viewKeyOf(int key) {
    switch (key) {
        case Qt::Key_PageUp:
            return ViewKey::PageUp;
        case Qt::Key_PageDown:
            return ViewKey::PageDown;
        case Qt::Key_Left:
            return ViewKey::Left;
        case Qt::Key_Right:
            return ViewKey::Right;
        case Qt::Key_Up:
            return ViewKey::Up;
        case Qt::Key_Down:
            return ViewKey::Down;
        default:
            return std::nullopt;
    }
}

}  // namespace

ContactView::ContactView(const char* name, const QString& what)
    : DrawingPane(name,
                  QStringLiteral("Draw a frame with the mouse to look closer; "
                                 "Home shows the drawing as it opened"),
                  what),
      frame_(new QRubberBand(QRubberBand::Rectangle, this)) {
    frame_->setObjectName(QStringLiteral("Shape1"));
    QPalette colours;
    colours.setColor(QPalette::Highlight, theme::frameColour());
    frame_->setPalette(colours);
    setCursor(Qt::CrossCursor);
}

void ContactView::open(const ContactSection& section) {
    section_ = section;
    showArea(openingArea(section));
}

void ContactView::change(const ContactSection& section) {
    section_ = section;
    redraw();
}

void ContactView::redraw() {
    showDrawing([section = section_, area = area_](Canvas& canvas, const PageBox& box) {
        DrawingWindow window(canvas, box, area);
        drawContact(section, window);
    });
}

void ContactView::showArea(const DrawingArea& area) {
    area_ = area;
    redraw();
}

void ContactView::press(ViewKey key) {
    showArea(areaAfterKey(area_, key, section_));
}

void ContactView::keyPressEvent(QKeyEvent* event) {
    if (const auto key = viewKeyOf(event->key()))
        press(*key);
    else if (event->key() == Qt::Key_Home)
        showArea(openingArea(section_));
    else
        DrawingPane::keyPressEvent(event);
}

void ContactView::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    if (turned != 0) press(turned > 0 ? ViewKey::PageUp : ViewKey::PageDown);
    event->accept();
}

void ContactView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) dragStart_ = event->pos();
}

void ContactView::mouseMoveEvent(QMouseEvent* event) {
    if (!dragStart_) return;
    const QPoint a = *dragStart_;
    const QPoint b = event->pos();
    frame_->setGeometry(QRect(QPoint(std::min(a.x(), b.x()), std::min(a.y(), b.y())),
                              QPoint(std::max(a.x(), b.x()), std::max(a.y(), b.y()))));
    frame_->show();
}

void ContactView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !dragStart_) return;
    frame_->hide();
    const QPoint start = *dragStart_;
    dragStart_.reset();
    const WindowScale window(box(), area_);
    if (const auto framed = areaOfFrame(window, pageAt(start), pageAt(event->pos()))) showArea(*framed);
}

}  // namespace norlaplan
