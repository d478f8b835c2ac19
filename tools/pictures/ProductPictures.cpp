#include "ProductPictures.h"

#include <QPainterPath>
#include <cmath>

#include "FrontView.h"
#include "GothicArch.h"
#include "RoundBearing.h"
#include "Section.h"
#include "Strokes.h"

namespace {

constexpr QSize kProductSize(480, 360);
const QColor kLetters(40, 40, 40);
const QColor kQuiet(110, 110, 110);

const Style& styleCalled(const char* stem) {
    for (const Style& style : styles()) {
        if (qstrcmp(style.stem, stem) == 0) return style;
    }
    return styles().front();
}

void name(QPainter& painter, QPointF centre, const QString& text) {
    painter.setPen(kLetters);
    writeName(painter, centre, text);
}

RoundBearing roundBearing(double outside, double section, double depth, int balls) {
    RoundBearing bearing;
    bearing.outside = outside;
    bearing.section = section;
    bearing.depth = depth;
    bearing.balls = balls;
    return bearing;
}

/// One bearing, and the three sections of the series in their true proportion.
void drawMetricSeries(QPainter& painter) {
    drawRoundBearing(painter, {240.0, 84.0}, roundBearing(168.0, 40.0, 24.0, 56));
    constexpr double kPerMillimeter = 4.9;
    constexpr double kFoot = 306.0;
    double left = 96.0;
    for (const int millimeters : {8, 13, 20}) {
        const double side = millimeters * kPerMillimeter;
        const double middle = left + side / 2.0;
        drawSection(painter, styleCalled("X"), {middle, kFoot - side / 2.0}, side);
        name(painter, {middle, kFoot + 24.0}, QString("%1 mm").arg(millimeters));
        left += side + 52.0;
    }
}

/// One section over growing bores.
void drawInchSeries(QPainter& painter) {
    constexpr double kSection = 26.0;
    constexpr double kDepth = 26.0;
    double top = 258.0;
    for (const double outside : {212.0, 172.0, 134.0, 98.0}) {
        const int balls = qRound(2.0 * M_PI * (outside - kSection / 2.0) / 11.0);
        drawRoundBearing(painter, {240.0, top - outside * 0.12},
                         roundBearing(outside, kSection, kDepth, balls));
        top -= 66.0;
    }
}

void drawFourPoint(QPainter& painter) {
    drawGothicArch(painter, {240.0, 158.0}, 250.0);
    centreLine(painter, {60.0, 330.0}, {420.0, 330.0});
}

/// A pair whose lines of contact run to the axis, and how far apart they meet it.
void drawPair(QPainter& painter, const char* stem, double middle, const QString& title) {
    constexpr double kSide = 74.0;
    constexpr double kRows = 112.0;
    constexpr double kAxisY = 240.0;
    const Style& style = styleCalled(stem);
    drawSection(painter, style, {middle, kRows}, kSide);
    centreLine(painter, {middle - 112.0, kAxisY}, {middle + 112.0, kAxisY});
    double ends[2] = {};
    for (int i = 0; i < 2; ++i) {
        const Row& row = style.rows[static_cast<std::size_t>(i)];
        const double slope = std::tan(row.angles.front() * M_PI / 180.0);
        const double x = middle + row.x * kSide;
        ends[i] = x - slope * (kAxisY - kRows);
        painter.setPen(QPen(lines::centreColour(), lines::kCentre, Qt::DashDotLine));
        painter.drawLine(QPointF(x, kRows), QPointF(ends[i], kAxisY));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 90, 180));
        painter.drawEllipse(QPointF(ends[i], kAxisY), 5.0, 5.0);
        painter.setBrush(Qt::NoBrush);
    }
    painter.setPen(QPen(QColor(0, 90, 180), 3.0));
    painter.drawLine(QPointF(ends[0], kAxisY), QPointF(ends[1], kAxisY));
    name(painter, {middle, 42.0}, title);
}

void drawDuplex(QPainter& painter) {
    drawPair(painter, "DB", 124.0, "BACK-TO-BACK");
    drawPair(painter, "DF", 356.0, "FACE-TO-FACE");
    painter.setPen(kQuiet);
    useFont(painter, 19);
    painter.drawText(QRectF(0.0, 276.0, 240.0, 48.0), Qt::AlignHCenter | Qt::TextWordWrap,
                     "wide base: stiff against moments");
    painter.drawText(QRectF(240.0, 276.0, 240.0, 48.0), Qt::AlignHCenter | Qt::TextWordWrap,
                     "narrow base: forgives misalignment");
}

/// A drop of water on a face.
void drawDrop(QPainter& painter, QPointF at, double radius) {
    QRadialGradient water(at - QPointF(radius, radius) * 0.3, radius * 1.5);
    water.setColorAt(0.0, QColor(255, 255, 255, 230));
    water.setColorAt(0.6, QColor(140, 200, 245, 200));
    water.setColorAt(1.0, QColor(40, 120, 190, 220));
    painter.setPen(QPen(QColor(40, 110, 170), lines::kThin));
    painter.setBrush(water);
    painter.drawEllipse(at, radius, radius * 0.72);
    painter.setBrush(Qt::NoBrush);
}

void drawStainless(QPainter& painter) {
    RoundBearing bearing = roundBearing(208.0, 58.0, 40.0, 46);
    bearing.light = QColor(246, 251, 253);
    bearing.dark = QColor(138, 166, 176);
    bearing.edge = QColor(28, 58, 70);
    bearing.ball = QColor(110, 145, 158);
    const QPointF centre(240.0, 160.0);
    drawRoundBearing(painter, centre, bearing);
    // On the outer ring's face and running down its side.
    constexpr double kFaceRadius = 198.0;
    for (const double degrees : {248.0, 264.0, 289.0, 318.0, 205.0}) {
        const QPointF flat = onCircle({0.0, 0.0}, kFaceRadius, degrees);
        drawDrop(painter, centre + QPointF(flat.x(), flat.y() * kForeshortening), 8.0);
    }
    for (const QPointF& at : {QPointF(168.0, 262.0), QPointF(222.0, 268.0), QPointF(316.0, 256.0)})
        drawDrop(painter, at, 6.5);
    for (const QPointF& at : {QPointF(196.0, 300.0), QPointF(262.0, 312.0), QPointF(330.0, 304.0)})
        drawDrop(painter, at, 11.0);
}

void drawHybrid(QPainter& painter) {
    RoundBearing bearing = roundBearing(208.0, 74.0, 46.0, 30);
    bearing.light = QColor(96, 102, 116);
    bearing.dark = QColor(44, 48, 58);
    bearing.edge = QColor(16, 18, 26);
    bearing.ball = QColor(214, 216, 220);
    drawRoundBearing(painter, {240.0, 162.0}, bearing);
}

void drawSlewing(QPainter& painter) {
    const QPointF centre(240.0, 180.0);
    drawGear(painter, centre, 170.0, 156.0, 116.0, 60);
    drawAround(painter, centre, 138.0, 6.5, 16, Qt::white);
    drawBand(painter, {centre}, 116.0, 104.0, Qt::white);
    drawAround(painter, centre, 110.0, 5.0, 54, Qt::white);
    drawBand(painter, {centre}, 104.0, 68.0, tints::steel());
    drawAround(painter, centre, 85.0, 6.5, 12, Qt::white);
    centreLine(painter, {240.0, 2.0}, {240.0, 358.0});
    centreLine(painter, {62.0, 180.0}, {418.0, 180.0});
}

/// A section whose outer ring carries a flange with a hole; what the customer names is lettered.
void drawCustom(QPainter& painter) {
    constexpr double kBallRadius = 34.0;
    const QPointF ball(200.0, 170.0);
    QPainterPath groove, outer, inner, hole;
    groove.addEllipse(ball, kBallRadius, kBallRadius);
    outer.addRoundedRect(QRectF(140.0, 96.0, 120.0, 54.0), 5.0, 5.0);
    outer.addRoundedRect(QRectF(204.0, 38.0, 56.0, 112.0), 5.0, 5.0);
    outer.setFillRule(Qt::WindingFill);
    hole.addRect(QRectF(190.0, 56.0, 90.0, 22.0));
    inner.addRoundedRect(QRectF(140.0, 190.0, 120.0, 54.0), 5.0, 5.0);
    fillSection(painter, outer.simplified().subtracted(groove).subtracted(hole), tints::steel(), true);
    fillSection(painter, inner.subtracted(groove), tints::steel(), false);
    drawBall(painter, ball, kBallRadius);
    centreLine(painter, {180.0, 67.0}, {284.0, 67.0});
    centreLine(painter, {60.0, 322.0}, {420.0, 322.0});
    extension(painter, {264.0, 38.0}, {408.0, 38.0});
    extension(painter, {264.0, 244.0}, {356.0, 244.0});
    dimension(painter, {400.0, 38.0}, {400.0, 322.0}, {400.0, 180.0}, "A");
    dimension(painter, {348.0, 244.0}, {348.0, 322.0}, {348.0, 283.0}, "B");
    dimension(painter, {308.0, 67.0}, {308.0, 322.0}, {308.0, 195.0}, "C");
    extension(painter, {284.0, 67.0}, {316.0, 67.0});
    extension(painter, {140.0, 248.0}, {140.0, 296.0});
    extension(painter, {260.0, 248.0}, {260.0, 296.0});
    dimension(painter, {140.0, 288.0}, {260.0, 288.0}, {200.0, 288.0}, "D");
}

}  // namespace

std::vector<PictureFile> productPictures() {
    return {
        {"metrics.jpg", kProductSize, drawMetricSeries}, {"inch series.jpg", kProductSize, drawInchSeries},
        {"four-point.jpg", kProductSize, drawFourPoint}, {"duplex.jpg", kProductSize, drawDuplex},
        {"stainless.jpg", kProductSize, drawStainless},  {"hybrid.jpg", kProductSize, drawHybrid},
        {"slewing.jpg", kProductSize, drawSlewing},      {"custom.jpg", kProductSize, drawCustom}};
}
