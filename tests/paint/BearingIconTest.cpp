#include <QPainter>
#include <QXmlStreamReader>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>
#include <malloc.h>

#include "paint/BearingIcon.h"

namespace norlaplan {
namespace {

// Radii of the drawing in parts of the icon: rings of 0.94 by 0.79 and 0.65 by 0.50, balls of 0.145 on a
// circle of 0.72.
constexpr double kOutside = 0.47, kOuterRing = 0.395, kBore = 0.25;
constexpr double kPitchRadius = 0.36, kBallRadius = 0.0725;
const QColor kGap(232, 234, 242), kRing(42, 54, 104), kBall(190, 84, 0);

/// The colour at an angle from the top, clockwise, and a radius in parts of the icon.
QColor colourAt(const QImage& icon, double angle, double radius) {
    const double middle = icon.width() / 2.0;
    return icon.pixelColor(static_cast<int>(std::floor(middle + radius * icon.width() * std::sin(angle))),
                           static_cast<int>(std::floor(middle - radius * icon.width() * std::cos(angle))));
}

/// How many balls one meets on the pitch circle.
int ballsOf(const QImage& icon) {
    int balls = 0;
    bool before = false;
    // From between two balls, so that none is met twice.
    for (int i = 0; i < 3600; ++i) {
        const QColor seen = colourAt(icon, 2.0 * std::numbers::pi * (i + 0.5) / 3600.0, kPitchRadius);
        const bool ball = seen.red() - seen.blue() > 80;
        balls += ball && !before ? 1 : 0;
        before = ball;
    }
    const QColor start = colourAt(icon, 0.0, kPitchRadius);
    return start.red() - start.blue() > 80 && before ? balls - 1 : balls;
}

TEST(BearingIcon, IsABearingSeenFromTheFront) {
    constexpr int kPixels = 256;
    const QImage icon = bearingIconImage(kPixels);
    ASSERT_EQ(icon.size(), QSize(kPixels, kPixels));
    for (int i = 0; i < 14; ++i) {
        const double ball = 2.0 * std::numbers::pi * i / 14.0;
        const double between = ball + std::numbers::pi / 14.0;
        for (const double share : {-0.8, 0.0, 0.8})
            EXPECT_EQ(colourAt(icon, ball, kPitchRadius + share * kBallRadius), kBall) << i << ", " << share;
        EXPECT_EQ(colourAt(icon, between, 0.38), kGap) << i;
        for (const double angle : {ball, between}) {
            EXPECT_EQ(colourAt(icon, angle, (kPitchRadius + kBallRadius + kOutside) / 2.0), kRing) << i;
            EXPECT_EQ(colourAt(icon, angle, (kBore + kPitchRadius - kBallRadius) / 2.0), kRing) << i;
            EXPECT_EQ(colourAt(icon, angle, 0.95 * kBore).alpha(), 0) << i;
            EXPECT_EQ(colourAt(icon, angle, 0.49).alpha(), 0) << i;
        }
        EXPECT_EQ(colourAt(icon, between, 0.98 * kOuterRing), kGap) << i;
        EXPECT_EQ(colourAt(icon, between, 1.02 * kOuterRing), kRing) << i;
    }
    EXPECT_EQ(icon.pixelColor(kPixels / 2, kPixels / 2).alpha(), 0);
    EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0);
}

TEST(BearingIcon, HasNothingInItsCornersWhateverItsMemoryHeldBefore) {
    ::mallopt(M_PERTURB, 0x55);  // new memory is no longer zero
    const QImage icon = bearingIconImage(64);
    ::mallopt(M_PERTURB, 0);
    for (const QPoint corner : {QPoint(0, 0), QPoint(63, 0), QPoint(0, 63), QPoint(63, 63)})
        EXPECT_EQ(icon.pixelColor(corner).alpha(), 0);
}

TEST(BearingIcon, HasFewerBallsWhereFourteenWouldRunIntoOneAnother) {
    for (const int pixels : {16, 22, 24})
        EXPECT_EQ(ballsOf(bearingIconImage(pixels)), 8) << pixels;
    for (const int pixels : {64, 128, 256})
        EXPECT_EQ(ballsOf(bearingIconImage(pixels)), 14) << pixels;
}

TEST(BearingIcon, ComesInTheSizesThatDesktopsAskFor) {
    QList<QSize> sizes = bearingIcon().availableSizes();
    ASSERT_EQ(sizes.size(), 8);
    const std::array<int, 8> expected = {16, 22, 24, 32, 48, 64, 128, 256};
    for (qsizetype i = 0; i < sizes.size(); ++i) {
        const int pixels = expected.at(static_cast<std::size_t>(i));
        EXPECT_TRUE(sizes.contains(QSize(pixels, pixels))) << pixels;
    }
}

TEST(BearingIcon, ShowsInEverySizeTheDrawingOfThatSize) {
    const QIcon icon = bearingIcon();
    for (const int pixels : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QSize size(pixels, pixels);
        EXPECT_EQ(icon.actualSize(size), size);
        EXPECT_EQ(icon.pixmap(size).toImage(), bearingIconImage(pixels)) << pixels;
    }
    EXPECT_EQ(icon.actualSize(QSize(1000, 1000)), QSize(256, 256)) << "the largest there is";
    EXPECT_EQ(QIcon(icon).pixmap(QSize(32, 32)).toImage(), bearingIconImage(32));
}

TEST(BearingIcon, IsPaintedInTheMiddleOfItsPlace) {
    QImage page(100, 60, QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::transparent);
    {
        QPainter painter(&page);
        bearingIcon().paint(&painter, QRect(10, 5, 80, 48));
    }
    // The square of 48 stands in the middle of a place that is 80 wide.
    EXPECT_EQ(page.copy(10 + 16, 5, 48, 48), bearingIconImage(48));
    EXPECT_EQ(page.pixelColor(12, 29).alpha(), 0);
    EXPECT_EQ(page.pixelColor(87, 29).alpha(), 0);
}

/// The elements of the scalable icon, with what they say.
std::vector<QXmlStreamAttributes> elementsOf(const QByteArray& svg) {
    std::vector<QXmlStreamAttributes> elements;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) continue;
        EXPECT_EQ(reader.name().toString(), QString(elements.empty() ? "svg" : "circle"));
        EXPECT_EQ(reader.namespaceUri().toString(), QString("http://www.w3.org/2000/svg"));
        elements.push_back(reader.attributes());
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
    return elements;
}

TEST(ScalableIcon, IsTheSameDrawingOnASquareOf256) {
    const std::vector<QXmlStreamAttributes> elements = elementsOf(bearingIconSvg());
    ASSERT_EQ(elements.size(), 1U + 3U + 14U);
    const auto value = [&](std::size_t element, const char* name) {
        return elements[element].value(QString(name)).toString();
    };
    EXPECT_EQ(value(0, "width"), "256");
    EXPECT_EQ(value(0, "height"), "256");
    EXPECT_EQ(value(0, "viewBox"), "0 0 256 256");
    // Rings: the middle of their width times 256, and their width.
    const char* const rings[3][3] = {
        {"92.16", "56.32", "#e8eaf2"}, {"110.72", "19.20", "#2a3668"}, {"73.60", "19.20", "#2a3668"}};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(value(1 + i, "cx"), "128.00");
        EXPECT_EQ(value(1 + i, "cy"), "128.00");
        EXPECT_EQ(value(1 + i, "r"), rings[i][0]);
        EXPECT_EQ(value(1 + i, "fill"), "none");
        EXPECT_EQ(value(1 + i, "stroke"), rings[i][2]);
        EXPECT_EQ(value(1 + i, "stroke-width"), rings[i][1]);
    }
    for (int i = 0; i < 14; ++i) {
        const std::size_t ball = 4U + static_cast<std::size_t>(i);
        const double angle = 2.0 * std::numbers::pi * i / 14.0;
        EXPECT_NEAR(value(ball, "cx").toDouble(), 128.0 + 92.16 * std::sin(angle), 0.006);
        EXPECT_NEAR(value(ball, "cy").toDouble(), 128.0 - 92.16 * std::cos(angle), 0.006);
        EXPECT_EQ(value(ball, "r"), "18.56");
        EXPECT_EQ(value(ball, "fill"), "#be5400");
        EXPECT_FALSE(elements[ball].hasAttribute("stroke"));
    }
}

}  // namespace
}  // namespace norlaplan
