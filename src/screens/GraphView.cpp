#include "screens/GraphView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <exception>
#include <utility>

#include "screens/PaintedPage.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr double kUsualPixelsPerInch = 84.0;

bool sameMark(const std::optional<GraphMark>& a, const std::optional<GraphMark>& b) {
    if (!a || !b) return !a && !b;
    return a->at.x == b->at.x && a->at.y == b->at.y && a->label.text == b->label.text;
}

}  // namespace

GraphView::GraphView(const char* name, const QString& what) {
    setObjectName(QString::fromUtf8(name));
    setAccessibleName(what);
    setToolTip(what);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
    setPalette(theme::paper());
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void GraphView::showGraph(Graph graph, Paper paper) {
    graph_ = std::move(graph);
    paper_ = paper;
    setMark(std::nullopt);
    updateGeometry();
    update();
}

void GraphView::clear() {
    graph_.reset();
    setMark(std::nullopt);
    update();
}

QSize GraphView::sizeHint() const {
    return QSizeF(paper_.width * kUsualPixelsPerInch, paper_.height * kUsualPixelsPerInch).toSize();
}

int GraphView::heightForWidth(int width) const {
    return qRound(width * paper_.height / paper_.width);
}

double GraphView::pixelsPerInch() const {
    return std::min(width() / paper_.width, height() / paper_.height);
}

QPointF GraphView::corner() const {
    return {(width() - paper_.width * pixelsPerInch()) / 2.0,
            (height() - paper_.height * pixelsPerInch()) / 2.0};
}

PagePoint GraphView::pageAt(QPointF pixel) const {
    const QPointF onPage = (pixel - corner()) / pixelsPerInch();
    return {onPage.x(), paper_.height - onPage.y()};
}

QPointF GraphView::pixelAt(PagePoint place) const {
    return corner() + QPointF(place.x, paper_.height - place.y) * pixelsPerInch();
}

Drawing GraphView::drawing() const {
    if (!graph_) return {paper_, nullptr};
    return {paper_, [this](Canvas& canvas) { drawGraph(*graph_, canvas); }};
}

void GraphView::setMark(std::optional<GraphMark> mark) {
    if (sameMark(mark, mark_)) return;
    mark_ = std::move(mark);
    update();
    if (readout_) readout_(mark_);
}

void GraphView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Drawing shown = drawing();
    if (mark_) {
        shown.draw = [this](Canvas& canvas) {
            drawGraph(*graph_, canvas);
            drawMark(*mark_, canvas);
        };
    }
    paintPage(painter, shown, corner(), pixelsPerInch(), rect());
    if (hasFocus()) {
        painter.setPen(QPen(theme::accent(), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void GraphView::mouseMoveEvent(QMouseEvent* event) {
    if (!graph_) return;
    try {
        setMark(pointReadout(*graph_, pageAt(event->position())));
    } catch (const std::exception&) {
        // A graph without a scale has no points; its picture says what is wrong.
        setMark(std::nullopt);
    }
}

void GraphView::leaveEvent(QEvent*) {
    setMark(std::nullopt);
}

void GraphView::keyPressEvent(QKeyEvent* event) {
    if (graph_ && event->matches(QKeySequence::Copy))
        copyPicture(drawing());
    else
        QWidget::keyPressEvent(event);
}

}  // namespace norlaplan
