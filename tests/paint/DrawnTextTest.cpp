#include <set>
#include <string>

#include <gtest/gtest.h>

#include "paint/DrawnPage.h"

namespace norlaplan {
namespace {

using testing::drawn;
using testing::drawnText;
using testing::expectBox;
using testing::inkBox;
using testing::inkWeight;
using testing::kBox;

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

/// The top and the left edge of text in a box of these inches, its upper left corner at the pixel (200, 100).
QPoint cornerIn(double width, double height, TextLook look, const std::string& text) {
    return inkBox(drawnText({2.0, 10.0, 2.0 + width, 10.0 - height}, text, look)).topLeft();
}

TEST(DrawnText, StandsInTheMiddleOfItsBoxWithAllItsLinesWhereAsked) {
    TextLook look;
    look.points = 36.0;
    // A line of 36 points is 50 pixels and a little lead, 57 or 58 in all; the room that is left is halved.
    for (const auto& [text, block] :
         {std::pair{"H", 57.5}, std::pair{"H\nH", 115.0}, std::pair{"H\nH\nH", 172.5}}) {
        look.middle = false;
        const int top = cornerIn(3.0, 4.0, look, text).y();
        EXPECT_EQ(top, cornerIn(3.0, 2.0, look, text).y()) << "else a box's height moves nothing";
        look.middle = true;
        EXPECT_NEAR(cornerIn(3.0, 4.0, look, text).y() - top, (400.0 - block) / 2.0, 2.0) << text;
        EXPECT_NEAR(cornerIn(3.0, 2.0, look, text).y() - top, (200.0 - block) / 2.0, 2.0) << text;
    }
}

TEST(DrawnText, ThatIsVerticalStandsInTheMiddleBetweenTheSidesOfItsBox) {
    TextLook look;
    look.points = 36.0;
    look.vertical = true;
    const int left = cornerIn(3.0, 4.0, look, "H").x();
    look.middle = true;
    EXPECT_NEAR(cornerIn(3.0, 4.0, look, "H").x() - left, (300.0 - 57.5) / 2.0, 2.0);
    EXPECT_NEAR(cornerIn(2.0, 4.0, look, "H").x() - left, (200.0 - 57.5) / 2.0, 2.0);
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

TEST(TextWidth, OfNoPointsIsThatOfTheSmallestLetters) {
    TextLook look;
    look.points = 0.0;
    EXPECT_GT(widthOf("HHHH", look), 0.0);
    EXPECT_LT(widthOf("HHHH", look), 0.01) << "four letters of a 1440th of an inch";
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

}  // namespace
}  // namespace norlaplan
