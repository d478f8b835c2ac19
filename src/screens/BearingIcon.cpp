#include "screens/BearingIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <cmath>
#include <numbers>

namespace norlaplan {
namespace {

constexpr double kOuterDiameter = 0.94;  // in parts of the icon
constexpr double kBore = 0.50;
constexpr double kPitchDiameter = (kOuterDiameter + kBore) / 2.0;
constexpr double kRingThickness = 0.075;
constexpr int kSmallIcon = 24;

QRectF circle(double diameter) {
    return {-diameter / 2.0, -diameter / 2.0, diameter, diameter};
}

void drawRing(QPainter& painter, double outside, double inside) {
    QPainterPath ring;
    ring.addEllipse(circle(outside));
    ring.addEllipse(circle(inside));
    painter.drawPath(ring);
}

QPixmap drawn(int pixels) {
    QPixmap picture(pixels, pixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(pixels / 2.0, pixels / 2.0);
    painter.scale(pixels, pixels);

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(232, 234, 242));
    drawRing(painter, kOuterDiameter, kBore);
    painter.setBrush(QColor(42, 54, 104));
    drawRing(painter, kOuterDiameter, kOuterDiameter - 2.0 * kRingThickness);
    drawRing(painter, kBore + 2.0 * kRingThickness, kBore);
    // Few balls where more would run into one another.
    const int balls = pixels <= kSmallIcon ? 8 : 14;
    const double ballDiameter = (kOuterDiameter - kBore) / 2.0 - kRingThickness;
    painter.setBrush(QColor(190, 84, 0));
    for (int i = 0; i < balls; ++i) {
        const double angle = 2.0 * std::numbers::pi * i / balls;
        painter.drawEllipse(
            circle(ballDiameter)
                .translated(kPitchDiameter / 2.0 * std::sin(angle), -kPitchDiameter / 2.0 * std::cos(angle)));
    }
    return picture;
}

}  // namespace

QIcon bearingIcon() {
    QIcon icon;
    for (const int pixels : {16, 24, 32, 48, 64, 128})
        icon.addPixmap(drawn(pixels));
    return icon;
}

}  // namespace norlaplan
