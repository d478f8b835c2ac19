#include <gtest/gtest.h>

#include "paint/DrawnPage.h"

namespace norlaplan {
namespace {

using testing::drawn;
using testing::expectBox;
using testing::inkBox;
using testing::inkWeight;
using testing::isInk;
using testing::kBox;

QColor colourAt(const QImage& page, int x, int y) {
    return page.pixelColor(x, y);
}

TEST(DrawnLine, RunsBetweenItsPointsInPageInchesFromTheLowerLeft) {
    const QImage page = drawn([](Canvas& canvas) { canvas.line({1.0, 10.0}, {4.0, 8.0}, {}); });
    expectBox(inkBox(page), 100, 100, 400, 300);
    EXPECT_TRUE(isInk(page, 250, 200)) << "half of the way";
    EXPECT_TRUE(isInk(page, 130, 120)) << "a tenth of the way";
    EXPECT_FALSE(isInk(page, 370, 120)) << "it falls to the right";
}

TEST(DrawnLine, HasItsColourRedInTheLowByte) {
    for (const auto& [colour, seen] :
         {std::pair{colours::kRed, QColor(255, 0, 0)}, std::pair{colours::kGreen, QColor(0, 255, 0)},
          std::pair{rgb(10, 20, 200), QColor(10, 20, 200)}}) {
        const QImage page = drawn([c = colour](Canvas& canvas) {
            canvas.line({1.0, 10.0}, {4.0, 10.0}, {c, 127000.0, 0});
        });
        EXPECT_EQ(colourAt(page, 250, 100), seen);
    }
}

int thickness(double width, int pixelsPerInch = 100) {
    const QImage page = drawn(
        [&](Canvas& canvas) {
            canvas.line({1.0, 10.0}, {4.0, 10.0}, {0, width, 0});
        },
        pixelsPerInch);
    return inkBox(page, QRect(5 * pixelsPerInch / 2, 0, 1, page.height())).height();
}

TEST(DrawnLine, IsAsWideAsItsPenInEmu) {
    // 914400 EMU are an inch.
    EXPECT_NEAR(thickness(91440.0), 10, 1);
    EXPECT_NEAR(thickness(182880.0), 20, 1);
    EXPECT_NEAR(thickness(91440.0, 200), 20, 1);
}

TEST(DrawnLine, NeverFadesAwayHoweverThin) {
    for (const int pixelsPerInch : {20, 60, 100}) {
        EXPECT_GE(thickness(100.0, pixelsPerInch), 1) << pixelsPerInch;
        EXPECT_LE(thickness(100.0, pixelsPerInch), 2) << pixelsPerInch;
    }
}

TEST(DrawnLine, OfAHairIsAsDarkAsOneDot) {
    for (const int pixelsPerInch : {60, 100, 300}) {
        const QImage page = drawn(
            [](Canvas& canvas) {
                canvas.line({1.0, 10.0}, {4.0, 10.0}, {0, 100.0, 0});
            },
            pixelsPerInch);
        EXPECT_NEAR(inkWeight(page, QRect(5 * pixelsPerInch / 2, 0, 1, page.height())), 1.0, 0.06)
            << pixelsPerInch;
    }
}

TEST(DrawnLine, IsSmooth) {
    const QImage page = drawn([](Canvas& canvas) {
        canvas.line({1.0, 10.0}, {4.0, 9.7}, {colours::kBlack, 38000.0, 0});
        canvas.circle({6.0, 5.0}, 1.0, {colours::kBlack, 38000.0, 0});
    });
    for (const QRect& part : {QRect(100, 90, 300, 50), QRect(480, 480, 240, 240)}) {
        int half = 0;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                const int grey = qGray(page.pixel(x, y));
                half += grey > 60 && grey < 200 ? 1 : 0;
            }
        }
        EXPECT_GT(half, 100);
    }
}

TEST(DrawnLine, EndsRoundButAtItsPointsWhenItIsAsWideAsAPatchOrDashed) {
    const auto left = [](const PagePen& pen) {
        const QImage page = drawn([&](Canvas& canvas) { canvas.line({1.0, 10.0}, {4.0, 10.0}, pen); }, 400);
        return inkBox(page, QRect(0, 380, page.width(), 40)).left();
    };
    // 3 points wide, or 16.7 pixels: a round end is half of that longer.
    EXPECT_NEAR(left({0, 38099.0, 0}), 392, 1);
    EXPECT_NEAR(left({0, 38100.0, 0}), 400, 1);
    EXPECT_NEAR(left({0, 76200.0, 0}), 400, 1);
    EXPECT_NEAR(left({0, 38099.0, 6}), 400, 1);
    EXPECT_NEAR(left({0, 38099.0, 8}), 400, 1);
}

/// How many pieces of ink a line across the page has, and how much of its way is ink.
struct Dashes {
    int pieces = 0, longest = 0, ink = 0;
};
Dashes dashesOf(int code) {
    const QImage page = drawn([&](Canvas& canvas) {
        canvas.line({1.0, 10.0}, {8.0, 10.0}, {0, 38000.0, code});
    });
    Dashes found;
    int length = 0;
    for (int x = 0; x < page.width(); ++x) {
        if (isInk(page, x, 100)) {
            if (length++ == 0) ++found.pieces;
            ++found.ink;
            found.longest = std::max(found.longest, length);
        } else {
            length = 0;
        }
    }
    return found;
}

TEST(DrawnLine, IsSolidDashedOrDashDotted) {
    // The pen is 4.16 pixels wide; a dash of 6 and a gap of 4 widths repeat every 41.6 pixels over 700.
    EXPECT_EQ(dashesOf(0).pieces, 1);
    const Dashes dashed = dashesOf(6);
    EXPECT_EQ(dashed.pieces, 17);
    EXPECT_NEAR(dashed.longest, 25, 2);
    EXPECT_NEAR(dashed.ink, 420, 20) << "six parts of ten";
    // 12, 4, 1, 4 widths: a long piece and a dot every 87 pixels.
    const Dashes dotted = dashesOf(8);
    EXPECT_NEAR(dotted.pieces, 17, 1);
    EXPECT_NEAR(dotted.longest, 50, 2);
    EXPECT_NEAR(dotted.ink, 700 * 13 / 21, 30);
}

TEST(DrawnRectangle, IsFilledAndFramedAsAsked) {
    const PageBox box{1.0, 10.0, 3.0, 9.0};
    const PagePen pen{colours::kBlue, 45720.0, 0};  // a twentieth of an inch
    const QImage filled = drawn([&](Canvas& c) { c.rectangle(box, rgb(200, 50, 100), std::nullopt); });
    expectBox(inkBox(filled), 100, 100, 299, 199);
    EXPECT_EQ(colourAt(filled, 200, 150), QColor(200, 50, 100));
    const QImage framed = drawn([&](Canvas& c) { c.rectangle(box, std::nullopt, pen); });
    expectBox(inkBox(framed), 98, 98, 302, 202);
    EXPECT_EQ(colourAt(framed, 100, 150), QColor(0, 0, 255));
    EXPECT_EQ(colourAt(framed, 200, 150), QColor(255, 255, 255));
    const QImage both = drawn([&](Canvas& c) { c.rectangle(box, colours::kRed, pen); });
    EXPECT_EQ(colourAt(both, 300, 150), QColor(0, 0, 255)) << "the frame lies over the fill";
    EXPECT_EQ(colourAt(both, 200, 150), QColor(255, 0, 0));
    const QImage neither = drawn([&](Canvas& c) { c.rectangle(box, std::nullopt, std::nullopt); });
    EXPECT_TRUE(inkBox(neither).isNull());
}

TEST(DrawnRectangle, IsHollowEvenAfterAFilledOne) {
    const QImage page = drawn([&](Canvas& c) {
        c.rectangle({1.0, 10.0, 3.0, 9.0}, colours::kRed, PagePen{});
        c.rectangle({4.0, 10.0, 6.0, 9.0}, std::nullopt, PagePen{});
        c.circle({5.0, 7.0}, 0.5, {});
    });
    EXPECT_FALSE(isInk(page, 500, 150));
    EXPECT_FALSE(isInk(page, 500, 400));
}

TEST(DrawnCircle, StandsAroundItsCentre) {
    const QImage page = drawn([](Canvas& canvas) {
        canvas.circle({3.0, 8.0}, 0.75, {colours::kRed, 27432.0, 0});
    });
    expectBox(inkBox(page), 224, 224, 376, 376);
    EXPECT_FALSE(isInk(page, 300, 300)) << "it is hollow";
    EXPECT_FALSE(isInk(page, 226, 226)) << "it is round";
    EXPECT_EQ(colourAt(page, 300, 225), QColor(255, 0, 0));
    EXPECT_EQ(colourAt(page, 225, 300), QColor(255, 0, 0));
}

TEST(Zoom, EnlargesEverythingAlike) {
    const auto draw = [](Canvas& canvas) {
        TextLook look;
        look.points = 36.0;
        canvas.text(kBox, "Ball", look);
    };
    const QRect once = inkBox(drawn(draw, 100));
    const QRect twice = inkBox(drawn(draw, 200));
    EXPECT_NEAR(twice.left(), 2 * once.left(), 3);
    EXPECT_NEAR(twice.right(), 2 * once.right(), 3);
    EXPECT_NEAR(twice.top(), 2 * once.top(), 3);
    EXPECT_NEAR(twice.bottom(), 2 * once.bottom(), 3);
}

TEST(Pages, BeginAtThePaintersOrigin) {
    QImage picture(1000, 1300, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.translate(50.0, 100.0);
    PainterCanvas canvas(painter, papers::kLetter, 100.0);
    canvas.line({1.0, 10.0}, {3.0, 10.0}, {});
    expectBox(inkBox(picture), 150, 200, 350, 200);
}

TEST(Pages, GoOnWhereTheNewPageLies) {
    QImage picture(850, 2200, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    int turned = 0;
    PainterCanvas canvas(painter, papers::kLetter, 100.0, [&] {
        ++turned;
        painter.translate(0.0, 1100.0);
    });
    canvas.newPage();
    canvas.line({1.0, 10.0}, {3.0, 10.0}, {});
    EXPECT_EQ(turned, 1);
    expectBox(inkBox(picture), 100, 1200, 300, 1200);
}

TEST(Pages, WithoutATurnerStayOne) {
    const QImage page = drawn([](Canvas& canvas) {
        canvas.newPage();
        canvas.line({1.0, 10.0}, {3.0, 10.0}, {});
    });
    expectBox(inkBox(page), 100, 100, 300, 100);
}

}  // namespace
}  // namespace norlaplan
