#include "Demonstration.h"

#include <QPainterPath>
#include <cmath>

#include "Section.h"
#include "Strokes.h"

namespace {

// The bearing as it is drawn, in pixels. Its races are far wider than real ones, so that the play is seen.
constexpr double kAxisY = 158.0;
constexpr double kPitchRadius = 94.0;
constexpr double kBall = 62.0;                  // diameter
constexpr double kA = 0.32 * kBall;             // how far the groove centres stand apart: 2 r - d
constexpr double kGroove = (kBall + kA) / 2.0;  // radius
constexpr double kFullClearance = 20.0;         // diametral
constexpr double kHalfWidth = 56.0;
constexpr double kSection = 104.0;  // from the outer surface to the bore
constexpr double kRing = 33.0;
constexpr double kRound = 5.0;

// The bearing whose numbers are written: quarter inch balls, races of 53 per cent, 4 inches of pitch
// diameter.
constexpr double kStatedA = 0.06 * 0.25;
constexpr double kStatedPitch = 4.0;
constexpr double kStatedClearance = 0.004;
constexpr double kMillimetres = 25.4;

const QColor kInnerTint(252, 232, 200);
const QColor kMoves(0, 90, 180);
const QColor kQuiet(40, 40, 40);

/// What a picture shows: the opened part of the clearance, and which parts of its play the inner ring has
/// taken up.
struct Pose {
    double clearance = 1.0, offset = 0.0, tilt = 0.0;
};

Pose poseOf(int number) {
    if (number <= 5) return {(number - 1) / 4.0};
    if (number <= 9) return {1.0, (number - 5) / 4.0};
    constexpr double kTilts[] = {-1.0, -0.5, 0.5, 1.0};
    return {1.0, 0.0, kTilts[number - 10]};
}

/// How far the groove centres shift along the axis until the balls touch: A sin b with cos b = 1 - P / 2A.
double offsetAt(double clearance, double A) {
    const double cosine = 1.0 - clearance / (2.0 * A);
    return A * std::sqrt(1.0 - cosine * cosine);
}

/// The angle at which a ring that turns about the middle of the bearing touches on both sides.
double tiltAt(double clearance) {
    const double outer = kPitchRadius - kA / 2.0;
    const double inner = kPitchRadius + kA / 2.0 - clearance / 2.0;
    return std::acos((inner * inner + outer * outer - kA * kA) / (2.0 * inner * outer));
}

/// The two cuts of a ring: `grooveAt` is the distance of its groove centres from the axis.
void drawRing(QPainter& painter, double from, double to, double grooveAt, const QColor& tint) {
    for (const double side : {-1.0, 1.0}) {
        QPainterPath block, groove;
        const double top = std::min(side * from, side * to);
        block.addRoundedRect(QRectF(-kHalfWidth, top, 2.0 * kHalfWidth, std::abs(to - from)), kRound, kRound);
        groove.addEllipse(QPointF(0.0, side * grooveAt), kGroove, kGroove);
        fillSection(painter, block.subtracted(groove), tint, from > to);
    }
}

/// A ball between two groove centres, with its line of contact when it touches both rings.
void drawBallBetween(QPainter& painter, QPointF outer, QPointF inner) {
    const QPointF middle = (outer + inner) / 2.0;
    drawBall(painter, middle, kBall / 2.0);
    const QPointF apart = inner - outer;
    const double distance = std::hypot(apart.x(), apart.y());
    if (distance < kA - 0.01) return;
    const QPointF reach = apart / distance * (kBall / 2.0 + 14.0);
    painter.setPen(QPen(lines::centreColour(), 2.0, Qt::DashDotLine));
    painter.drawLine(middle - reach, middle + reach);
}

void drawMidplane(QPainter& painter, const QColor& colour) {
    painter.setPen(QPen(colour, lines::kCentre, Qt::DashLine));
    painter.drawLine(QPointF(0.0, -kPitchRadius + kBall / 2.0 + 40.0),
                     QPointF(0.0, kPitchRadius - kBall / 2.0 - 40.0));
}

/// Two arrows that point at the distance between the rings' midplanes.
void drawOffset(QPainter& painter, double offset) {
    constexpr double kTail = 30.0;
    constexpr double kHead = 11.0;
    painter.setPen(QPen(kMoves, 2.0));
    painter.drawLine(QPointF(-kTail, 0.0), QPointF(-kHead / 2.0, 0.0));
    painter.drawLine(QPointF(offset + kHead / 2.0, 0.0), QPointF(offset + kTail, 0.0));
    painter.setBrush(kMoves);
    arrowHead(painter, {0.0, 0.0}, 0.0, kHead);
    arrowHead(painter, {offset, 0.0}, 180.0, kHead);
    painter.setPen(kMoves);
    writeName(painter, {offset + kTail + 52.0, 0.0}, "OFFSET");
}

void drawBearing(QPainter& painter, const Pose& pose) {
    const double clearance = pose.clearance * kFullClearance;
    const double offset = pose.offset * offsetAt(clearance, kA);
    const double tilt = pose.tilt * tiltAt(clearance);
    const double outerAt = kPitchRadius - kA / 2.0;
    const double innerAt = kPitchRadius + kA / 2.0 - clearance / 2.0;
    const double outside = kPitchRadius + kSection / 2.0;
    const double bore = kPitchRadius - kSection / 2.0 - clearance / 2.0;

    centreLine(painter, {-kHalfWidth - 50.0, 0.0}, {kHalfWidth + 50.0, 0.0});
    QTransform moved;
    moved.translate(offset, 0.0).rotateRadians(tilt);
    painter.save();
    painter.setTransform(moved, true);
    painter.setPen(QPen(Qt::black, lines::kOutline));
    for (const double x : {-kHalfWidth, kHalfWidth})
        painter.drawLine(QPointF(x, -bore), QPointF(x, bore));
    drawRing(painter, bore, bore + kRing, innerAt, kInnerTint);
    drawMidplane(painter, kMoves);
    painter.restore();
    drawRing(painter, outside, outside - kRing, outerAt, tints::steel());
    if (pose.offset != 0.0) {
        drawMidplane(painter, kQuiet);
        drawOffset(painter, offset);
    }
    for (const double side : {-1.0, 1.0})
        drawBallBetween(painter, {0.0, side * outerAt}, moved.map(QPointF(0.0, side * innerAt)));
}

/// A row below the bearing: what is measured, in both units.
void writeRow(QPainter& painter, int row, const QString& name, const QString& inches, const QString& metric,
              bool changes) {
    constexpr double kTop = 336.0;
    constexpr double kLine = 27.0;
    useFont(painter);
    painter.setPen(changes ? kMoves : kQuiet);
    const double base = kTop + row * kLine;
    painter.drawText(QPointF(36.0, base), name);
    painter.drawText(QPointF(200.0, base), inches);
    painter.drawText(QPointF(338.0, base), metric);
}

void writeLength(QPainter& painter, int row, const QString& name, double inches, bool changes) {
    writeRow(painter, row, name, QString::number(inches, 'f', 4) + " in",
             QString::number(inches * kMillimetres, 'f', 3) + " mm", changes);
}

void writeNumbers(QPainter& painter, const Pose& pose, int number) {
    const double clearance = pose.clearance * kStatedClearance;
    const double most = offsetAt(clearance, kStatedA);
    writeLength(painter, 0, "CLEARANCE", clearance, number <= 5);
    if (pose.tilt == 0.0)
        writeLength(painter, 1, "OFFSET", pose.offset * most, number > 5);
    else
        writeRow(painter, 1, "TILT",
                 QString::number(std::abs(pose.tilt) * 2.0 * most / kStatedPitch, 'f', 4) + " radians", "",
                 true);
    useFont(painter, 16);
    painter.setPen(QColor(110, 110, 110));
    painter.drawText(QPointF(36.0, 388.0), "1/4 in balls, 4 in pitch circle, 53 % races (drawn wider)");
}

}  // namespace

void drawDemonstration(QPainter& painter, int number) {
    const Pose pose = poseOf(number);
    painter.save();
    painter.translate(kDemonstrationSize.width() / 2.0, kAxisY);
    drawBearing(painter, pose);
    painter.restore();
    writeNumbers(painter, pose, number);
}
