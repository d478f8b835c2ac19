#include "screens/DrawingView.h"

#include <QFrame>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "screens/PaintedPage.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr double kSmallestAreaInches = 0.25;  // of the page's width
constexpr double kZoomStep = 1.25;

}  // namespace

DrawingView::DrawingView(const char* name, const char* what) {
    const QString words = QString::fromUtf8(what);
    setAccessibleName(words);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    for (QScrollBar* const bar : {verticalScrollBar(), horizontalScrollBar()}) {
        bar->setAccessibleName(QStringLiteral("Scroll the ") + words.toLower());
        bar->setFocusPolicy(Qt::StrongFocus);
    }
    verticalScrollBar()->setObjectName(QStringLiteral("VScroll1"));
    horizontalScrollBar()->setObjectName(QStringLiteral("HScroll1"));
    viewport()->setObjectName(QString::fromUtf8(name));
    viewport()->setAccessibleName(words);
    viewport()->setToolTip(
        QStringLiteral("Draw a frame with the mouse to look closer; the wheel, + and - zoom, "
                       "0 shows the whole page, the middle button moves it"));
    viewport()->setPalette(theme::paper());
    viewport()->setCursor(Qt::CrossCursor);
    makeFrameLines();
}

void DrawingView::makeFrameLines() {
    QPalette colours;
    colours.setColor(QPalette::Window, theme::frameColour());
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        auto* const line = new QFrame(viewport());
        line->setObjectName(QStringLiteral("Line%1").arg(i + 1));
        line->setAutoFillBackground(true);
        // Not that of the paper, which it would take over.
        line->setBackgroundRole(QPalette::Window);
        line->setPalette(colours);
        line->setAttribute(Qt::WA_TransparentForMouseEvents);
        line->hide();
        lines_[i] = line;
    }
}

void DrawingView::showDrawing(Drawing drawing) {
    drawing_ = std::move(drawing);
    showPageWidth();
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
}

void DrawingView::showPageWidth() {
    setFit(Fit::Width);
}

void DrawingView::showWholePage() {
    setFit(Fit::Page);
}

void DrawingView::zoomIn() {
    zoomAt(viewport()->rect().center(), zoom_ * kZoomStep);
}

void DrawingView::zoomOut() {
    zoomAt(viewport()->rect().center(), zoom_ / kZoomStep);
}

double DrawingView::fittingZoom(Fit fit) const {
    const double across = viewport()->width() / drawing_.paper.width;
    return fit == Fit::Width ? across : std::min(across, viewport()->height() / drawing_.paper.height);
}

void DrawingView::setFit(Fit fit) {
    fit_ = fit;
    if (fit != Fit::None) zoom_ = fittingZoom(fit);
    setScrollRanges();
    viewport()->update();
}

QSizeF DrawingView::pageSize() const {
    return {drawing_.paper.width * zoom_, drawing_.paper.height * zoom_};
}

QPointF DrawingView::pageCorner() const {
    // A page that is smaller than the view stands in its middle.
    const QSizeF room = QSizeF(viewport()->size()) - pageSize();
    return {room.width() > 0.0 ? room.width() / 2.0 : -horizontalScrollBar()->value(),
            room.height() > 0.0 ? room.height() / 2.0 : -verticalScrollBar()->value()};
}

void DrawingView::setScrollRanges() {
    const auto set = [](QScrollBar* bar, double page, int view) {
        bar->setPageStep(view);
        bar->setSingleStep(std::max(1, view / 12));
        bar->setRange(0, std::max(0, qRound(page) - view));
    };
    set(horizontalScrollBar(), pageSize().width(), viewport()->width());
    set(verticalScrollBar(), pageSize().height(), viewport()->height());
}

PagePoint DrawingView::pageAt(QPointF pixel) const {
    const QPointF onPage = (pixel - pageCorner()) / zoom_;
    return {onPage.x(), drawing_.paper.height - onPage.y()};
}

PageBox DrawingView::area() const {
    const Paper& paper = drawing_.paper;
    const double across = std::min(paper.width, viewport()->width() / zoom_);
    const double down = across * paper.height / paper.width;
    const PagePoint corner = pageAt({0.0, 0.0});
    const double left = std::clamp(corner.x, 0.0, paper.width - across);
    const double top = std::clamp(corner.y, down, paper.height);
    return {left, top, left + across, top - down};
}

void DrawingView::zoomAt(QPointF pixel, double zoom) {
    const PagePoint place = pageAt(pixel);
    fit_ = Fit::None;
    zoom_ = std::clamp(zoom, fittingZoom(Fit::Page), viewport()->width() / kSmallestAreaInches);
    setScrollRanges();
    horizontalScrollBar()->setValue(qRound(place.x * zoom_ - pixel.x()));
    verticalScrollBar()->setValue(qRound((drawing_.paper.height - place.y) * zoom_ - pixel.y()));
    viewport()->update();
}

void DrawingView::zoomTo(const QRectF& frame) {
    const double inches = frame.width() / zoom_;
    if (inches < kSmallestAreaInches) return;
    const QPointF corner = frame.topLeft() / zoom_;
    fit_ = Fit::None;
    zoom_ = viewport()->width() / inches;
    setScrollRanges();
    horizontalScrollBar()->setValue(qRound(corner.x() * zoom_));
    verticalScrollBar()->setValue(qRound(corner.y() * zoom_));
    viewport()->update();
}

void DrawingView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), theme::deskColour());
    paintPage(painter, drawing_, pageCorner(), zoom_, viewport()->rect());
}

void DrawingView::resizeEvent(QResizeEvent*) {
    setFit(fit_);
}

void DrawingView::scrollContentsBy(int, int) {
    viewport()->update();
}

}  // namespace norlaplan
