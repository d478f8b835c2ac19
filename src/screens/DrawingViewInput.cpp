#include <QFrame>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "screens/DrawingView.h"
#include "screens/PaintedPage.h"

namespace norlaplan {
namespace {

constexpr double kSmallestFrame = 10.0;  // pixels: anything smaller is a click
constexpr double kWheelStep = 1.25;
constexpr double kWheelNotch = 120.0;

}  // namespace

void DrawingView::mousePressEvent(QMouseEvent* event) {
    const bool left = event->button() == Qt::LeftButton;
    if (drag_ != Drag::None || (!left && event->button() != Qt::MiddleButton)) return;
    drag_ = left && !hand_ ? Drag::Frame : Drag::Move;
    dragStart_ = drag_ == Drag::Frame ? event->position() - pageCorner() : event->position();
    if (drag_ == Drag::Move) viewport()->setCursor(Qt::ClosedHandCursor);
}

void DrawingView::mouseMoveEvent(QMouseEvent* event) {
    if (drag_ == Drag::Frame) showFrame(frameTo(event->position() - pageCorner()));
    if (drag_ != Drag::Move) return;
    const QPoint by = (event->position() - dragStart_).toPoint();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - by.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - by.y());
    dragStart_ += by;
}

void DrawingView::mouseReleaseEvent(QMouseEvent* event) {
    const bool left = event->button() == Qt::LeftButton;
    if (drag_ == Drag::None || (!left && event->button() != Qt::MiddleButton)) return;
    const bool framed = drag_ == Drag::Frame;
    drag_ = Drag::None;
    hideFrame();
    setHand(hand_);
    if (!framed) return;
    const QRectF frame = frameTo(event->position() - pageCorner());
    if (frame.width() >= kSmallestFrame) zoomTo(frame);
}

void DrawingView::wheelEvent(QWheelEvent* event) {
    const double notches = event->angleDelta().y() / kWheelNotch;
    if (notches != 0.0) zoomAt(event->position(), zoom_ * std::pow(kWheelStep, notches));
    event->accept();
}

void DrawingView::keyPressEvent(QKeyEvent* event) {
    if (drawing_.draw && event->matches(QKeySequence::Copy)) return copyPicture(drawing_);
    switch (event->key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:  // the same key without Shift
            return zoomIn();
        case Qt::Key_Minus:
            return zoomOut();
        case Qt::Key_0:
            return showWholePage();
        case Qt::Key_Home:
            return verticalScrollBar()->setValue(0);
        case Qt::Key_End:
            return verticalScrollBar()->setValue(verticalScrollBar()->maximum());
        case Qt::Key_Space:
            return setHand(true);
        default:
            return QAbstractScrollArea::keyPressEvent(event);
    }
}

void DrawingView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        setHand(false);
    else
        QAbstractScrollArea::keyReleaseEvent(event);
}

void DrawingView::focusOutEvent(QFocusEvent* event) {
    setHand(false);
    QAbstractScrollArea::focusOutEvent(event);
}

void DrawingView::setHand(bool hand) {
    hand_ = hand;
    if (drag_ == Drag::None) viewport()->setCursor(hand ? Qt::OpenHandCursor : Qt::CrossCursor);
}

QRectF DrawingView::frameTo(QPointF corner) const {
    const QSizeF page = pageSize();
    const double shape = page.height() / page.width();
    const QPointF start(std::clamp(dragStart_.x(), 0.0, page.width()),
                        std::clamp(dragStart_.y(), 0.0, page.height()));
    const QPointF drag = corner - start;
    const bool right = drag.x() >= 0.0;
    const bool down = drag.y() >= 0.0;
    const double wanted = std::max(std::abs(drag.x()), std::abs(drag.y()) / shape);
    const double roomAcross = right ? page.width() - start.x() : start.x();
    const double roomDown = down ? page.height() - start.y() : start.y();
    const double across = std::max(0.0, std::min({wanted, roomAcross, roomDown / shape}));
    return QRectF(right ? start.x() : start.x() - across, down ? start.y() : start.y() - across * shape,
                  across, across * shape);
}

void DrawingView::showFrame(const QRectF& frame) {
    const QRect box = frame.translated(pageCorner()).toRect();
    const QRect places[] = {{box.left(), box.top(), box.width(), 2},
                            {box.left(), box.bottom(), box.width(), 2},
                            {box.left(), box.top(), 2, box.height()},
                            {box.right(), box.top(), 2, box.height() + 1}};
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        lines_[i]->setGeometry(places[i]);
        lines_[i]->show();
    }
}

void DrawingView::hideFrame() {
    for (QFrame* const line : lines_)
        line->hide();
}

}  // namespace norlaplan
