#include "Section.h"

#include <QPainterPath>
#include <QTransform>
#include <cmath>

namespace {

// The section of the middle series in units of its side: ball, the height of the rings, and how far the land
// of an angular contact's outer ring is cut back on the side that carries nothing.
constexpr double kBall = 0.25 * 25.4 / 13.0 / 2.0;
constexpr double kRing = 0.1656 * 25.4 / 13.0;
constexpr double kRelief = 0.055;
constexpr double kRound = 0.05;
constexpr double kContact = 0.46;

constexpr double kHatchGap = 6.0;  // pixels, the same in every picture
const QColor kHatch(116, 134, 176);

double radians(double degrees) {
    return degrees * 3.14159265358979323846 / 180.0;
}

QPainterPath roundedBlock(double left, double top, double width, double height, double round) {
    QPainterPath block;
    block.addRoundedRect(QRectF(left, top, width, height), round, round);
    return block;
}

/// The rings of a row whose middle is the origin, outer ring above. `relieved` is the side, left (-1) or
/// right (1), where the outer ring's land is cut back; 0 for neither.
void drawRings(QPainter& painter, double side, int relieved) {
    QPainterPath groove;
    groove.addEllipse(QPointF(0.0, 0.0), kBall * side, kBall * side);
    const double half = side / 2.0;
    const double height = kRing * side;
    QPainterPath outer = roundedBlock(-half, -half, side, height, kRound * side).subtracted(groove);
    if (relieved != 0) {
        QPainterPath cut;
        cut.addRect(QRectF(relieved < 0 ? -side : 0.0, -half + height - kRelief * side, side, side));
        outer = outer.subtracted(cut);
    }
    fillSection(painter, outer, tints::steel(), true);
    fillSection(painter, roundedBlock(-half, half - height, side, height, kRound * side).subtracted(groove),
                tints::steel(), false);
}

void drawRow(QPainter& painter, const Row& row, double side) {
    const bool angular = row.angles.size() == 1 && row.angles.front() != 0.0;
    drawRings(painter, side, !angular ? 0 : row.angles.front() > 0.0 ? -1 : 1);
    drawBall(painter, {0.0, 0.0}, kBall * side);
    painter.setPen(QPen(lines::centreColour(), lines::kCentre, Qt::DashDotLine));
    for (const double angle : row.angles) {
        const double turned = radians(90.0 - angle);
        const QPointF reach(kContact * side * std::cos(turned), -kContact * side * std::sin(turned));
        painter.drawLine(-reach, reach);
    }
}

void drawSpacers(QPainter& painter, double width, double side) {
    const double height = kRing * side;
    for (const double top : {-side / 2.0, side / 2.0 - height})
        fillSection(painter, roundedBlock(-width / 2.0, top, width, height, 0.0), tints::spacer(), top > 0.0);
}

}  // namespace

void fillSection(QPainter& painter, const QPainterPath& path, const QColor& tint, bool rising) {
    painter.fillPath(path, tint);
    painter.save();
    painter.setClipPath(path);
    painter.setPen(QPen(kHatch, lines::kThin));
    const QRectF area = path.boundingRect();
    const double start = rising ? area.bottom() : area.top();
    const double reach = rising ? -area.height() : area.height();
    for (double at = area.left() - area.height(); at < area.right(); at += kHatchGap * std::sqrt(2.0))
        painter.drawLine(QPointF(at, start), QPointF(at + area.height(), start + reach));
    painter.restore();
    painter.strokePath(path, QPen(Qt::black, lines::kOutline));
}

QColor lines::centreColour() {
    return {200, 30, 30};
}

QColor tints::steel() {
    return {232, 237, 246};
}

QColor tints::spacer() {
    return {247, 240, 220};
}

void drawBall(QPainter& painter, QPointF middle, double radius) {
    painter.setPen(QPen(Qt::black, lines::kOutline));
    painter.setBrush(Qt::white);
    painter.drawEllipse(middle, radius, radius);
    painter.setBrush(Qt::NoBrush);
}

const std::vector<Style>& styles() {
    static const std::vector<Style> kStyles = {
        {"C", {{0.0, {0.0}}}, 0.0, true},
        {"X", {{0.0, {30.0, -30.0}}}},
        {"DB", {{-0.5, {30.0}}, {0.5, {-30.0}}}},
        {"DF", {{-0.5, {-30.0}}, {0.5, {30.0}}}},
        {"DBWS", {{-0.5, {30.0}}, {0.5, {-30.0}}}, 0.35},
        {"DFWS", {{-0.5, {-30.0}}, {0.5, {30.0}}}, 0.35},
    };
    return kStyles;
}

Placement drawSection(QPainter& painter, const Style& style, QPointF middle, double side, bool mirrored) {
    painter.save();
    painter.translate(middle);
    if (mirrored) painter.scale(1.0, -1.0);
    const double spread = style.spacer / 2.0;
    for (const Row& row : style.rows) {
        const double shift = row.x < 0.0 ? -spread : row.x > 0.0 ? spread : 0.0;
        painter.save();
        painter.translate((row.x + shift) * side, 0.0);
        drawRow(painter, row, side);
        painter.restore();
    }
    if (style.spacer > 0.0) drawSpacers(painter, style.spacer * side, side);
    painter.restore();
    const double half = (static_cast<double>(style.rows.size()) / 2.0 + spread) * side;
    return {middle.x() - half, middle.x() + half, middle.y() - side / 2.0, side};
}
