#include "screens/GraphPicture.h"

#include <QPainter>
#include <utility>

#include "screens/PaintedPage.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr double kPixelsPerInch = 96.0;
constexpr int kBesideCurve = 8;

}  // namespace

GraphPicture::GraphPicture(const char* name, const QString& spoken, const QString& tip) {
    setObjectName(QString::fromUtf8(name));
    setAccessibleName(spoken);
    setAccessibleDescription(tip);
    setToolTip(tip);
    setPalette(theme::paper());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    showWords({});
}

void GraphPicture::showGraph(Graph graph) {
    graph_ = std::move(graph);
    words_.clear();
    setEnabled(true);
    setCursor(Qt::PointingHandCursor);
    update();
}

void GraphPicture::showWords(const QString& words) {
    graph_.reset();
    words_ = words;
    setEnabled(false);
    unsetCursor();
    update();
}

void GraphPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (graph_) {
        paintCurves(painter);
    } else {
        painter.setPen(palette().color(QPalette::Active, QPalette::WindowText));
        painter.drawText(rect(), Qt::AlignCenter, words_);
    }
    const bool marked = isEnabled() && (hasFocus() || underMouse());
    const int width = marked ? 2 : 1;
    painter.setPen(QPen(marked ? theme::accent() : palette().color(QPalette::Active, QPalette::Mid), width,
                        Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(rect()).adjusted(width / 2.0, width / 2.0, -width / 2.0, -width / 2.0));
}

void GraphPicture::paintCurves(QPainter& painter) const {
    const QRect room = rect().adjusted(kBesideCurve, kBesideCurve, -kBesideCurve, -kBesideCurve);
    if (room.isEmpty()) return;
    const Paper paper{room.width() / kPixelsPerInch, room.height() / kPixelsPerInch};
    const Graph small = preview(*graph_, paper.width, paper.height);
    paintPage(painter, {paper, [&small](Canvas& canvas) { drawGraph(small, canvas); }}, room.topLeft(),
              kPixelsPerInch, room);
}

}  // namespace norlaplan
