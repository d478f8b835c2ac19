#include "paint/BearingIcon.h"

#include <QColor>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <cmath>
#include <numbers>
#include <vector>

namespace norlaplan {
namespace {

constexpr double kOuterDiameter = 0.94;  // in parts of the icon
constexpr double kBore = 0.50;
constexpr double kPitchDiameter = (kOuterDiameter + kBore) / 2.0;
constexpr double kRingThickness = 0.075;
constexpr int kSmallIcon = 24;
constexpr int kScalable = 256;

const QColor kGap(232, 234, 242);
const QColor kRing(42, 54, 104);
const QColor kBall(190, 84, 0);

/// A disc, or a ring when it has a width, around the icon's middle in parts of the icon.
struct Circle {
    double x, y, diameter, width;
    QColor colour;
};

Circle ring(double outside, double inside, const QColor& colour) {
    return {0.0, 0.0, (outside + inside) / 2.0, (outside - inside) / 2.0, colour};
}

std::vector<Circle> circlesOf(int pixels) {
    std::vector<Circle> circles = {ring(kOuterDiameter, kBore, kGap),
                                   ring(kOuterDiameter, kOuterDiameter - 2.0 * kRingThickness, kRing),
                                   ring(kBore + 2.0 * kRingThickness, kBore, kRing)};
    // Few balls where more would run into one another.
    const int balls = pixels <= kSmallIcon ? 8 : 14;
    const double ballDiameter = (kOuterDiameter - kBore) / 2.0 - kRingThickness;
    for (int i = 0; i < balls; ++i) {
        const double angle = 2.0 * std::numbers::pi * i / balls;
        circles.push_back({kPitchDiameter / 2.0 * std::sin(angle), -kPitchDiameter / 2.0 * std::cos(angle),
                           ballDiameter, 0.0, kBall});
    }
    return circles;
}

/// The icon, drawn when somebody first looks at it: eight sizes of it take as long as a window does to
/// appear.
class LaterIcon : public QIconEngine {
  public:
    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
        drawn().paint(painter, place, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return drawn().pixmap(size, 1.0, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return drawn().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (const int pixels : kIconSizes)
            sizes.append(QSize(pixels, pixels));
        return sizes;
    }
    QIconEngine* clone() const override { return new LaterIcon(*this); }

  private:
    const QIcon& drawn() {
        if (drawn_.isNull()) {
            for (const int pixels : kIconSizes)
                drawn_.addPixmap(QPixmap::fromImage(bearingIconImage(pixels)));
        }
        return drawn_;
    }

    QIcon drawn_;
};

QByteArray number(double parts) {
    return QByteArray::number(parts * kScalable, 'f', 2);
}

}  // namespace

QImage bearingIconImage(int pixels) {
    QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(pixels / 2.0, pixels / 2.0);
    painter.scale(pixels, pixels);
    for (const Circle& circle : circlesOf(pixels)) {
        painter.setPen(circle.width > 0.0 ? QPen(circle.colour, circle.width) : QPen(Qt::NoPen));
        painter.setBrush(circle.width > 0.0 ? QBrush(Qt::NoBrush) : QBrush(circle.colour));
        painter.drawEllipse(QPointF(circle.x, circle.y), circle.diameter / 2.0, circle.diameter / 2.0);
    }
    return picture;
}

QIcon bearingIcon() {
    return QIcon(new LaterIcon);
}

QByteArray bearingIconSvg() {
    const QByteArray size = QByteArray::number(kScalable);
    QByteArray svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + size + "\" height=\"" + size +
                     "\" viewBox=\"0 0 " + size + " " + size + "\">\n";
    for (const Circle& circle : circlesOf(kScalable)) {
        const QByteArray colour = circle.colour.name().toLatin1();
        svg += "<circle cx=\"" + number(0.5 + circle.x) + "\" cy=\"" + number(0.5 + circle.y) + "\" r=\"" +
               number(circle.diameter / 2.0) + "\" ";
        svg += circle.width > 0.0
                   ? "fill=\"none\" stroke=\"" + colour + "\" stroke-width=\"" + number(circle.width) + "\""
                   : "fill=\"" + colour + "\"";
        svg += "/>\n";
    }
    return svg + "</svg>\n";
}

}  // namespace norlaplan
