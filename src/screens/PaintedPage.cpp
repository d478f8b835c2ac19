#include "screens/PaintedPage.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <exception>

#include "paint/PageImage.h"
#include "paint/PainterCanvas.h"

namespace norlaplan {

void paintPage(QPainter& painter, const Drawing& drawing, QPointF corner, double pixelsPerInch,
               const QRect& room) {
    const QSizeF size(drawing.paper.width * pixelsPerInch, drawing.paper.height * pixelsPerInch);
    painter.fillRect(QRectF(corner, size), Qt::white);
    if (!drawing.draw) return;
    painter.save();
    painter.translate(corner);
    try {
        PainterCanvas canvas(painter, drawing.paper, pixelsPerInch);
        drawing.draw(canvas);
        painter.restore();
    } catch (const std::exception& failure) {
        painter.restore();
        painter.setPen(Qt::black);
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, QString::fromUtf8(failure.what()));
    }
}

void copyPicture(const Drawing& drawing) {
    QGuiApplication::clipboard()->setImage(pageImage(drawing));
}

}  // namespace norlaplan
