#include "CustomPictures.h"

#include <QPainterPath>
#include <cmath>

#include "FrontView.h"
#include "RoundBearing.h"
#include "Section.h"
#include "Strokes.h"

namespace {

constexpr QSize kWide(600, 450);
constexpr QSize kTall(450, 600);
constexpr QSize kSmall(150, 100);

const QColor kLetters(40, 40, 40);
const QColor kWire(176, 184, 200);
const QColor kPolymer(247, 240, 220);
const QColor kBody(238, 238, 238);

void name(QPainter& painter, QPointF centre, const QString& text) {
    painter.setPen(kLetters);
    writeName(painter, centre, text);
}

QPainterPath block(const QRectF& area) {
    QPainterPath path;
    path.addRoundedRect(area, 4.0, 4.0);
    return path;
}

void drawTitle(QPainter& painter) {
    RoundBearing bearing;
    bearing.outside = 236.0;
    bearing.section = 60.0;
    bearing.depth = 36.0;
    bearing.balls = 56;
    drawRoundBearing(painter, {300.0, 280.0}, bearing);
    painter.setPen(kLetters);
    useFont(painter, 34);
    painter.drawText(QRectF(0.0, 36.0, 600.0, 50.0), Qt::AlignCenter, "Ned's pictures");
    useFont(painter, 22);
    painter.drawText(QRectF(0.0, 86.0, 600.0, 40.0), Qt::AlignCenter, "Choose a picture from the list");
}

/// An outer ring that is bolted to its housing.
void drawFlangedRing(QPainter& painter) {
    const QPointF ball(230.0, 210.0);
    constexpr double kRadius = 40.0;
    QPainterPath groove, flange = block({160.0, 128.0, 140.0, 60.0}), hole;
    groove.addEllipse(ball, kRadius, kRadius);
    flange = flange.united(block({160.0, 48.0, 58.0, 140.0}));
    hole.addRect(QRectF(140.0, 72.0, 100.0, 24.0));
    fillSection(painter, flange.subtracted(groove).subtracted(hole), tints::steel(), true);
    fillSection(painter, block({160.0, 232.0, 140.0, 60.0}).subtracted(groove), tints::steel(), false);
    drawBall(painter, ball, kRadius);
    centreLine(painter, {136.0, 84.0}, {250.0, 84.0});
    centreLine(painter, {80.0, 400.0}, {520.0, 400.0});
    extension(painter, {256.0, 84.0}, {376.0, 84.0});
    extension(painter, {222.0, 48.0}, {456.0, 48.0});
    extension(painter, {306.0, 292.0}, {456.0, 292.0});
    dimension(painter, {368.0, 84.0}, {368.0, 400.0}, {368.0, 250.0}, "BOLTS");
    dimension(painter, {448.0, 48.0}, {448.0, 292.0}, {448.0, 170.0}, "FLANGE");
    dimension(painter, {448.0, 292.0}, {448.0, 400.0}, {448.0, 346.0}, "BORE");
}

/// Two frames that turn in one another about level and upright axes, each on a pair of bearings.
void drawGimbalPair(QPainter& painter) {
    const QPointF centre(300.0, 225.0);
    drawBand(painter, {centre}, 196.0, 172.0, tints::steel());
    drawBand(painter, {centre}, 136.0, 114.0, tints::spacer());
    const auto hub = [&](double degrees, double radius) {
        painter.save();
        painter.translate(onCircle(centre, radius, degrees));
        painter.rotate(-degrees);
        fillSection(painter, block({-30.0, -7.0, 60.0, 14.0}), kBody, true);
        const Style& pair = styles()[2];
        drawSection(painter, pair, {0.0, -21.0}, 26.0);
        drawSection(painter, pair, {0.0, 21.0}, 26.0, true);
        painter.restore();
    };
    for (const double degrees : {0.0, 180.0})
        hub(degrees, 154.0);
    drawBand(painter, {centre}, 62.0, 44.0, kBody);
    for (const double degrees : {90.0, 270.0})
        hub(degrees, 88.0);
    centreLine(painter, {84.0, 225.0}, {516.0, 225.0});
    centreLine(painter, {300.0, 10.0}, {300.0, 440.0});
}

/// A dish on a turntable: one four-point bearing carries the weight and the wind's moment.
void drawRadarPedestal(QPainter& painter) {
    const double middle = 225.0;
    fillSection(painter, block({middle - 150.0, 540.0, 300.0, 26.0}), tints::steel(), true);
    for (const double hand : {-1.0, 1.0}) {
        const double left = hand < 0.0 ? middle - 118.0 : middle + 82.0;
        fillSection(painter, block({left, 372.0, 36.0, 168.0}), tints::steel(), hand < 0.0);
    }
    fillSection(painter, block({middle - 76.0, 326.0, 152.0, 34.0}), tints::spacer(), true);
    for (const double hand : {-1.0, 1.0}) {
        fillSection(painter, block({hand < 0.0 ? middle - 76.0 : middle + 56.0, 350.0, 20.0, 52.0}),
                    tints::spacer(), hand > 0.0);
        // The section lies on its side: this bearing's axis stands upright.
        painter.save();
        painter.translate(middle + hand * 79.0, 382.0);
        painter.rotate(hand * 90.0);
        drawSection(painter, styles()[1], {0.0, 0.0}, 42.0);
        painter.restore();
    }
    fillSection(painter, block({middle - 16.0, 236.0, 32.0, 90.0}), tints::spacer(), true);
    drawBand(painter, {{middle, -20.0}, 228.0, 312.0}, 264.0, 250.0, tints::steel());
    painter.setPen(QPen(Qt::black, lines::kOutline));
    painter.drawLine(QPointF(middle, 230.0), QPointF(middle, 92.0));
    drawBall(painter, {middle, 88.0}, 9.0);
    centreLine(painter, {middle, 20.0}, {middle, 590.0});
}

constexpr double kPitchRadius = 620.0;
const Arc kPiece{{300.0, 830.0}, 68.0, 112.0};

/// A piece of a bearing along its circle, with its balls; `between` draws what stands between two of them,
/// turned so that it runs level.
void drawPiece(QPainter& painter, const QString& title, void (*between)(QPainter&, double width)) {
    constexpr double kBallRadius = 37.0;
    constexpr double kPitch = 10.0;  // degrees
    drawBand(painter, kPiece, kPitchRadius + 88.0, kPitchRadius + 30.0, tints::steel());
    drawBand(painter, kPiece, kPitchRadius - 30.0, kPitchRadius - 88.0, tints::steel());
    for (double at = 75.0; at <= 106.0; at += kPitch) {
        drawBall(painter, onCircle(kPiece.centre, kPitchRadius, at), kBallRadius);
        if (at > 100.0) break;
        painter.save();
        painter.translate(onCircle(kPiece.centre, kPitchRadius, at + kPitch / 2.0));
        painter.rotate(90.0 - at - kPitch / 2.0);
        between(painter, 2.0 * kPitchRadius * std::sin(kPitch / 2.0 * M_PI / 180.0) - 2.0 * kBallRadius);
        painter.restore();
    }
    name(painter, {300.0, 410.0}, title);
}

void drawSpring(QPainter& painter, double width) {
    constexpr int kTurns = 5;
    constexpr double kRadius = 15.0;
    painter.setPen(QPen(QColor(60, 70, 100), 3.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath wire;
    for (int i = 0; i <= 2 * kTurns; ++i) {
        const QPointF point(-width / 2.0 + width * i / (2.0 * kTurns), i % 2 == 0 ? kRadius : -kRadius);
        if (i == 0)
            wire.moveTo(point);
        else
            wire.lineTo(point);
    }
    painter.drawPath(wire);
}

/// A ring of PTFE around the gap, cut: two round sides that the balls nestle into.
void drawToroid(QPainter& painter, double width) {
    for (const double y : {-1.0, 1.0}) {
        painter.setPen(QPen(Qt::black, lines::kOutline));
        painter.setBrush(kPolymer);
        painter.drawEllipse(QPointF(0.0, y * 19.0), width / 2.0 + 2.0, 11.0);
    }
    painter.setBrush(Qt::NoBrush);
}

/// Light rings in which the balls run on four wires.
void drawWireRace(QPainter& painter) {
    const QPointF ball(75.0, 50.0);
    constexpr double kRadius = 17.0;
    constexpr double kWireRadius = 5.0;
    QPainterPath room;
    room.addEllipse(ball, kRadius + 1.0, kRadius + 1.0);
    std::vector<QPointF> wires;
    for (const double degrees : {45.0, 135.0, 225.0, 315.0}) {
        wires.push_back(onCircle(ball, kRadius + kWireRadius, degrees));
        room.addEllipse(wires.back(), kWireRadius, kWireRadius);
    }
    room.setFillRule(Qt::WindingFill);
    const QPainterPath cut = room.simplified();
    fillSection(painter, block({37.0, 8.0, 76.0, 35.0}).subtracted(cut), kPolymer, true);
    fillSection(painter, block({37.0, 57.0, 76.0, 35.0}).subtracted(cut), kPolymer, false);
    painter.setPen(QPen(Qt::black, 1.0));
    painter.setBrush(kWire);
    for (const QPointF& wire : wires)
        painter.drawEllipse(wire, kWireRadius, kWireRadius);
    painter.setBrush(Qt::NoBrush);
    drawBall(painter, ball, kRadius);
}

}  // namespace

std::vector<PictureFile> customPictures() {
    return {{"START.JPG", kWide, drawTitle},
            {"Flanged ring.jpg", kWide, drawFlangedRing},
            {"Gimbal pair.jpg", kWide, drawGimbalPair},
            {"Radar pedestal.jpg", kTall, drawRadarPedestal},
            {"Spring separator.jpg", kWide,
             [](QPainter& painter) { drawPiece(painter, "SPRINGS BETWEEN THE BALLS", drawSpring); }},
            {"Toroid separator.jpg", kWide,
             [](QPainter& painter) { drawPiece(painter, "TOROIDS BETWEEN THE BALLS", drawToroid); }},
            {"Wire race.jpg", kSmall, drawWireRace}};
}
