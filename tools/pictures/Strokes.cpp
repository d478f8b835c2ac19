#include "Strokes.h"

#include <cmath>

#include "Section.h"

namespace {

const QColor kSizeColour(40, 40, 40);
constexpr double kSizeHead = 12.0;

}  // namespace

void useFont(QPainter& painter, int pixels) {
    QFont font("Liberation Sans");
    font.setPixelSize(pixels);
    painter.setFont(font);
}

void writeName(QPainter& painter, QPointF centre, const QString& name) {
    useFont(painter);
    const QFontMetricsF metrics(painter.font());
    QRectF place(0.0, 0.0, metrics.horizontalAdvance(name) + 8.0, metrics.capHeight() + 8.0);
    place.moveCenter(centre);
    painter.fillRect(place, Qt::white);
    painter.drawText(QPointF(place.left() + 4.0, place.bottom() - 4.0), name);
}

void centreLine(QPainter& painter, QPointF from, QPointF to) {
    painter.setPen(QPen(lines::centreColour(), lines::kCentre, Qt::DashDotLine));
    painter.drawLine(from, to);
}

void arrowHead(QPainter& painter, QPointF tip, double degrees, double size) {
    const double angle = degrees * M_PI / 180.0;
    const auto corner = [&](double turn) {
        return tip - size * QPointF(std::cos(angle + turn), std::sin(angle + turn));
    };
    const QPointF points[] = {tip, corner(0.3), corner(-0.3)};
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(points, 3);
}

void dimension(QPainter& painter, QPointF from, QPointF to, QPointF place, const QString& name) {
    painter.setPen(QPen(kSizeColour, lines::kCentre));
    painter.drawLine(from, to);
    const double degrees = std::atan2(to.y() - from.y(), to.x() - from.x()) * 180.0 / M_PI;
    painter.setBrush(kSizeColour);
    arrowHead(painter, to, degrees, kSizeHead);
    arrowHead(painter, from, degrees + 180.0, kSizeHead);
    painter.setPen(kSizeColour);
    writeName(painter, place, name);
}

void extension(QPainter& painter, QPointF from, QPointF to) {
    painter.setPen(QPen(kSizeColour, lines::kThin));
    painter.drawLine(from, to);
}
