#include "screens/SheetView.h"

#include <QFrame>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "documents/SheetRecords.h"
#include "paint/PainterCanvas.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr PageBox kWholePage{0.0, kPageHeightInches, kPageWidthInches, 0.0};
constexpr double kShape = kPageHeightInches / kPageWidthInches;
constexpr double kSmallestFrame = 10.0;       // pixels: anything smaller is a click
constexpr double kSmallestAreaInches = 0.25;  // of the page's width

}  // namespace

SheetView::SheetView(const char* name) : area_(kWholePage) {
    setObjectName(QString::fromUtf8(name));
    setAccessibleName(QStringLiteral("Data sheet"));
    setToolTip(QStringLiteral("Draw a frame with the mouse to look closer"));
    setPalette(theme::paper());
    setAutoFillBackground(true);
    setCursor(Qt::CrossCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        auto* const line = new QFrame(this);
        line->setObjectName(QStringLiteral("Line%1").arg(i + 1));
        line->setAutoFillBackground(true);
        line->setPalette(QPalette(theme::frameColour()));
        line->setAttribute(Qt::WA_TransparentForMouseEvents);
        line->hide();
        lines_[i] = line;
    }
}

void SheetView::showRecords(std::string records) {
    records_ = std::move(records);
    area_ = kWholePage;
    update();
    if (changed) changed();
}

int SheetView::pageHeight() const {
    return qRound(width() * kShape);
}

void SheetView::scrollTo(int pixels) {
    offset_ = pixels;
    update();
}

void SheetView::paintEvent(QPaintEvent*) {
    if (records_.empty()) return;
    const double pixelsPerInch = width() / (area_.right - area_.left);
    QPainter painter(this);
    painter.translate(-area_.left * pixelsPerInch,
                      -(kPageHeightInches - area_.top) * pixelsPerInch - offset_);
    PainterCanvas canvas(painter, pixelsPerInch);
    paintSheet(records_, canvas);
}

void SheetView::resizeEvent(QResizeEvent*) {
    if (changed) changed();
}

void SheetView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    dragging_ = true;
    dragStart_ = event->position() + QPointF(0.0, offset_);
}

void SheetView::mouseMoveEvent(QMouseEvent* event) {
    if (dragging_) showFrame(frameTo(event->position() + QPointF(0.0, offset_)));
}

void SheetView::mouseReleaseEvent(QMouseEvent* event) {
    if (!dragging_ || event->button() != Qt::LeftButton) return;
    dragging_ = false;
    hideFrame();
    const QRectF frame = frameTo(event->position() + QPointF(0.0, offset_));
    if (frame.width() >= kSmallestFrame) zoomTo(frame);
}

QRectF SheetView::frameTo(QPointF corner) const {
    const QPointF drag = corner - dragStart_;
    const bool right = drag.x() >= 0.0;
    const bool down = drag.y() >= 0.0;
    const double wanted = std::max(std::abs(drag.x()), std::abs(drag.y()) / kShape);
    const double roomAcross = right ? width() - dragStart_.x() : dragStart_.x();
    const double roomDown = down ? pageHeight() - dragStart_.y() : dragStart_.y();
    const double across = std::max(0.0, std::min({wanted, roomAcross, roomDown / kShape}));
    return QRectF(right ? dragStart_.x() : dragStart_.x() - across,
                  down ? dragStart_.y() : dragStart_.y() - across * kShape, across, across * kShape);
}

void SheetView::showFrame(const QRectF& frame) {
    const QRect box = frame.translated(0.0, -offset_).toRect();
    const QRect places[] = {{box.left(), box.top(), box.width(), 2},
                            {box.left(), box.bottom(), box.width(), 2},
                            {box.left(), box.top(), 2, box.height()},
                            {box.right(), box.top(), 2, box.height() + 1}};
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        lines_[i]->setGeometry(places[i]);
        lines_[i]->show();
    }
}

void SheetView::hideFrame() {
    for (QFrame* const line : lines_)
        line->hide();
}

void SheetView::zoomTo(const QRectF& frame) {
    const double inchesPerPixel = (area_.right - area_.left) / width();
    const double across = frame.width() * inchesPerPixel;
    if (across < kSmallestAreaInches) return;
    const double left = area_.left + frame.left() * inchesPerPixel;
    const double top = area_.top - frame.top() * inchesPerPixel;
    area_ = {left, top, left + across, top - across * kShape};
    offset_ = 0;
    update();
    if (changed) changed();
}

}  // namespace norlaplan
