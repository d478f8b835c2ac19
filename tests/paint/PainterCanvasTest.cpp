#include <QPainter>
#include <functional>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "paint/PainterCanvas.h"
#include "support/Ink.h"

namespace norlaplan {
namespace {

using testing::inkBox;
using testing::inkWeight;
using testing::isInk;

/// A letter page with what `draw` leaves on it. At 100 pixels to the inch the page's point (x, y) is the
/// pixel (100 x, 1100 - 100 y).
QImage drawn(const std::function<void(Canvas&)>& draw, int pixelsPerInch = 100) {
    QImage page(pixelsPerInch * 17 / 2, pixelsPerInch * 11, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    PainterCanvas canvas(painter, papers::kLetter, pixelsPerInch);
    draw(canvas);
    return page;
}

QImage drawnText(const PageBox& box, const std::string& text, const TextLook& look) {
    return drawn([&](Canvas& canvas) { canvas.text(box, text, look); });
}

/// Boxes agree to a pixel on each side.
void expectBox(const QRect& box, int left, int top, int right, int bottom) {
    EXPECT_NEAR(box.left(), left, 1);
    EXPECT_NEAR(box.top(), top, 1);
    EXPECT_NEAR(box.right(), right, 1);
    EXPECT_NEAR(box.bottom(), bottom, 1);
}

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
        return inkBox(page).left();
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

constexpr PageBox kBox{2.0, 10.0, 6.0, 9.0};

TEST(DrawnText, StandsInItsBoxFromTheUpperLeft) {
    TextLook look;
    look.points = 36.0;
    const QRect ink = inkBox(drawnText(kBox, "Ball", look));
    EXPECT_NEAR(ink.left(), 200, 6) << "200 pixels from the left, not from the top";
    EXPECT_GE(ink.top(), 100);
    EXPECT_LE(ink.bottom(), 150) << "36 points are 50 pixels";
    EXPECT_NEAR(ink.height(), 34, 6) << "a capital of 36 points is two thirds of them high";
}

TEST(DrawnText, IsAlignedBetweenTheSidesOfItsBox) {
    TextLook look;
    look.points = 24.0;
    look.alignment = Alignment::Right;
    EXPECT_NEAR(inkBox(drawnText(kBox, "HHH", look)).right(), 599, 2);
    look.alignment = Alignment::Centre;
    EXPECT_NEAR(inkBox(drawnText(kBox, "HHH", look)).center().x(), 400, 1);
    look.alignment = Alignment::Left;
    EXPECT_NEAR(inkBox(drawnText(kBox, "HHH", look)).left(), 200, 2);
}

TEST(DrawnText, AlignsEveryLineAndSetsThemOneBelowTheOther) {
    TextLook look;
    look.points = 24.0;
    look.alignment = Alignment::Right;
    const QImage page = drawnText(kBox, "HHHHHH\nHH", look);
    // A line of 24 points is 33 pixels and a little lead.
    const QRect first = inkBox(page, QRect(0, 100, 850, 36));
    const QRect second = inkBox(page, QRect(0, 136, 850, 60));
    EXPECT_NEAR(first.right(), 599, 2);
    EXPECT_NEAR(second.right(), 599, 2);
    EXPECT_NEAR(second.width(), first.width() / 3.0, 4.0);
    EXPECT_NEAR(second.top() - first.top(), 38, 3) << "1.15 times the size, the face's own line";
}

TEST(DrawnText, BoldIsHeavierThanPlain) {
    TextLook look;
    look.points = 24.0;
    const QImage plain = drawnText(kBox, "Rating 1234", look);
    look.bold = true;
    const QImage bold = drawnText(kBox, "Rating 1234", look);
    EXPECT_GT(inkWeight(bold), 1.2 * inkWeight(plain));
    EXPECT_NEAR(inkBox(bold).height(), inkBox(plain).height(), 3);
}

TEST(DrawnText, ItalicLeansToTheRight) {
    const auto lean = [](bool italic) {
        TextLook look;
        look.points = 48.0;
        look.italic = italic;
        look.typeface = Typeface::Arial;
        const QImage page = drawnText(kBox, "l", look);
        const QRect ink = inkBox(page);
        const QRect top = inkBox(page, QRect(0, ink.top(), 850, 3));
        const QRect bottom = inkBox(page, QRect(0, ink.bottom() - 2, 850, 3));
        return top.center().x() - bottom.center().x();
    };
    EXPECT_EQ(lean(false), 0);
    EXPECT_GT(lean(true), 4);
}

TEST(DrawnText, UnderlinedHasALineBelowAllOfIt) {
    const auto lineBelow = [](bool underline) {
        TextLook look;
        look.points = 24.0;
        look.underline = underline;
        const QImage page = drawnText(kBox, "H   H", look);
        const QRect ink = inkBox(page);
        return inkBox(page, QRect(ink.left() + ink.width() / 2 - 5, 100, 10, 60)).width();
    };
    EXPECT_EQ(lineBelow(false), 0);
    EXPECT_EQ(lineBelow(true), 10);
}

TEST(DrawnText, HasItsColourAndLeavesThePensOfLinesAlone) {
    TextLook look;
    look.points = 48.0;
    look.bold = true;
    look.colour = rgb(0, 0, 255);
    const QImage page = drawnText(kBox, "HH", look);
    std::set<QRgb> seen;
    for (int x = 200; x < 300; ++x)
        seen.insert(page.pixel(x, 140));
    EXPECT_TRUE(seen.contains(qRgb(0, 0, 255)));
    EXPECT_FALSE(seen.contains(qRgb(255, 0, 0)));
    EXPECT_FALSE(seen.contains(qRgb(0, 0, 0)));
}

TEST(DrawnText, VerticalReadsUpwardFromTheBottomOfItsBox) {
    TextLook look;
    look.points = 24.0;
    look.vertical = true;
    const PageBox tall{2.0, 10.0, 3.0, 6.0};
    const QImage page = drawnText(tall, "H___", look);
    const QRect ink = inkBox(page);
    EXPECT_GT(ink.height(), 2 * ink.width());
    EXPECT_NEAR(ink.bottom(), 499, 3) << "it begins at the bottom";
    EXPECT_GE(ink.left(), 200);
    // The H fills the height of a letter; above it only the underscores, which lie at the letters' feet.
    const QRect letter = inkBox(page, QRect(0, 480, 850, 20));
    const QRect feet = inkBox(page, QRect(0, ink.top(), 850, 20));
    EXPECT_GT(letter.width(), 12);
    EXPECT_LT(feet.width(), 6);
    EXPECT_GE(feet.left(), letter.right()) << "its feet stand to the right";
}

TEST(DrawnText, VerticalIsAlignedAlongItsBox) {
    TextLook look;
    look.points = 24.0;
    look.vertical = true;
    const PageBox tall{2.0, 10.0, 3.0, 6.0};
    look.alignment = Alignment::Right;
    EXPECT_NEAR(inkBox(drawnText(tall, "HHH", look)).top(), 100, 3);
    look.alignment = Alignment::Centre;
    EXPECT_NEAR(inkBox(drawnText(tall, "HHH", look)).center().y(), 300, 2);
}

TEST(DrawnText, LeavesThePageAsItWasForWhatComesNext) {
    TextLook look;
    look.vertical = true;
    const QImage page = drawn([&](Canvas& canvas) {
        canvas.text({7.0, 3.0, 8.0, 1.0}, "upward", look);
        canvas.line({1.0, 10.0}, {3.0, 10.0}, {});
    });
    expectBox(inkBox(page, QRect(0, 0, 850, 500)), 100, 100, 300, 100);
}

double widthOf(const std::string& text, const TextLook& look) {
    double width = 0.0;
    drawn([&](Canvas& canvas) { width = canvas.textWidth(text, look); });
    return width;
}

TEST(TextWidth, IsThatOfTheInkInInchesAtEveryZoom) {
    TextLook look;
    look.points = 24.0;
    EXPECT_NEAR(widthOf("HHHHHHHH", look), inkBox(drawnText(kBox, "HHHHHHHH", look)).width() / 100.0, 0.03);
    look.points = 48.0;
    const double twice = widthOf("Bore", look);
    look.points = 24.0;
    EXPECT_NEAR(twice, 2.0 * widthOf("Bore", look), 1e-3);
    EXPECT_EQ(widthOf("", look), 0.0);
}

TEST(Typefaces, AreTheNamedOnes) {
    TextLook look;
    look.points = 24.0;
    look.typeface = Typeface::Courier;
    // Every letter of a typewriter is six tenths of the size wide.
    EXPECT_NEAR(widthOf("iiiiiiiiii", look), 10.0 * 0.6 * 24.0 / 72.0, 0.01);
    EXPECT_NEAR(widthOf("MMMMMMMMMM", look), 10.0 * 0.6 * 24.0 / 72.0, 0.01);
    // M: 0.889 of the size in Times, 0.833 in Arial (the widths of their standard twins).
    look.typeface = Typeface::Times;
    EXPECT_NEAR(widthOf("MMMMMMMMMM", look), 10.0 * 0.889 * 24.0 / 72.0, 0.01);
    look.typeface = Typeface::Antiqua;
    EXPECT_NEAR(widthOf("MMMMMMMMMM", look), 10.0 * 0.889 * 24.0 / 72.0, 0.01) << "a stand-in with serifs";
    look.typeface = Typeface::Arial;
    EXPECT_NEAR(widthOf("MMMMMMMMMM", look), 10.0 * 0.833 * 24.0 / 72.0, 0.01);
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
