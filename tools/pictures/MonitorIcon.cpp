#include "MonitorIcon.h"

#include <QLinearGradient>
#include <QPainter>

namespace {

// The monitor in parts of the icon.
const QRectF kCase(0.04, 0.08, 0.92, 0.66);
constexpr double kFrame = 0.08;
constexpr double kRound = 0.06;
const QRectF kNeck(0.40, 0.74, 0.20, 0.10);
const QRectF kFoot(0.24, 0.84, 0.52, 0.09);

const QColor kCaseColour(52, 60, 78);
const QColor kDark(112, 121, 140);
const QColor kDarker(84, 92, 110);
const QColor kBright(226, 242, 255);
const QColor kBrighter(150, 205, 255);
const QColor kRing(42, 54, 104);
const QColor kAccent(190, 84, 0);

constexpr int kSmall = 24;

/// A thin-section bearing in the middle of the bright screen: rings alone where balls would run together.
void drawBearing(QPainter& painter, const QRectF& screen, int pixels) {
    const QPointF middle = screen.center();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kRing, 0.045));
    painter.drawEllipse(middle, 0.205, 0.205);
    painter.drawEllipse(middle, 0.095, 0.095);
    if (pixels <= kSmall) return;
    painter.setPen(QPen(kAccent, 0.055, Qt::CustomDashLine, Qt::RoundCap));
    QPen balls = painter.pen();
    // Dots along the pitch circle: a dash of no length with round ends, ten to the turn.
    balls.setDashPattern({0.001, 2.0 * M_PI * 0.15 / 10.0 / 0.055 - 0.001});
    painter.setPen(balls);
    painter.drawEllipse(middle, 0.15, 0.15);
}

}  // namespace

QImage monitorIcon(int pixels, bool lit) {
    QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels, pixels);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kCaseColour);
    painter.drawRect(kNeck);
    painter.drawRoundedRect(kFoot, 0.03, 0.03);
    painter.drawRoundedRect(kCase, kRound, kRound);

    const QRectF screen = kCase.adjusted(kFrame, kFrame, -kFrame, -kFrame);
    QLinearGradient glass(screen.topLeft(), screen.bottomRight());
    glass.setColorAt(0.0, lit ? kBright : kDark);
    glass.setColorAt(1.0, lit ? kBrighter : kDarker);
    painter.setBrush(glass);
    painter.drawRect(screen);
    if (lit) drawBearing(painter, screen, pixels);
    return picture;
}
