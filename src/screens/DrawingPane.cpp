#include "screens/DrawingPane.h"

#include <QKeyEvent>
#include <QPainter>
#include <utility>

#include "paint/PainterCanvas.h"
#include "screens/PaintedPage.h"
#include "screens/Theme.h"

namespace norlaplan {

DrawingPane::DrawingPane(const char* name, const QString& tip, const QString& what) {
    setObjectName(QString::fromUtf8(name));
    setToolTip(tip);
    setAccessibleName(what);
    setFocusPolicy(Qt::StrongFocus);
    setPalette(theme::paper());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void DrawingPane::showDrawing(Draw draw) {
    QPixmap picture = blank();
    if (!picture.isNull()) {
        const Drawing drawing = drawingBy(draw);
        QPainter painter(&picture);
        PainterCanvas canvas(painter, drawing.paper, logicalDpiX());
        drawing.draw(canvas);
    }
    picture_ = std::move(picture);
    draw_ = std::move(draw);
    update();
}

PageBox DrawingPane::box() const {
    const double dotsPerInch = logicalDpiX();
    return {0.0, height() / dotsPerInch, width() / dotsPerInch, 0.0};
}

PagePoint DrawingPane::pageAt(QPointF pixel) const {
    const double dotsPerInch = logicalDpiX();
    return {pixel.x() / dotsPerInch, (height() - pixel.y()) / dotsPerInch};
}

QPointF DrawingPane::pixelAt(PagePoint place) const {
    const double dotsPerInch = logicalDpiX();
    return {place.x * dotsPerInch, height() - place.y * dotsPerInch};
}

Drawing DrawingPane::drawingBy(const Draw& draw) const {
    const PageBox whole = box();
    return {{whole.right, whole.top}, [draw, whole](Canvas& canvas) { draw(canvas, whole); }};
}

QPixmap DrawingPane::blank() const {
    QPixmap picture(size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::white);
    return picture;
}

void DrawingPane::drawAgain() {
    picture_ = blank();
    if (picture_.isNull() || !draw_) return;
    QPainter painter(&picture_);
    paintPage(painter, drawingBy(draw_), {}, logicalDpiX(), rect());
}

void DrawingPane::resizeEvent(QResizeEvent*) {
    drawAgain();
}

void DrawingPane::paintEvent(QPaintEvent*) {
    if (picture_.devicePixelRatio() != devicePixelRatioF()) drawAgain();
    QPainter painter(this);
    painter.drawPixmap(0, 0, picture_);
    painter.setPen(hasFocus() ? theme::accent() : palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void DrawingPane::keyPressEvent(QKeyEvent* event) {
    if (draw_ && event->matches(QKeySequence::Copy))
        copyPicture(drawingBy(draw_));
    else
        QWidget::keyPressEvent(event);
}

}  // namespace norlaplan
