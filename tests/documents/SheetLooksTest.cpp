#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "documents/LogoMetafile.h"
#include "documents/SampleSheet.h"
#include "documents/SheetNames.h"

/// How records become drawings, and the looks of the sheet's notes and headings.
namespace norlaplan {
namespace {

using testing::RecordingCanvas;
using testing::Sheet;

RecordingCanvas painted(const SheetRecord& record) {
    RecordingCanvas canvas;
    paintRecords({record}, canvas);
    return canvas;
}

SheetText sample() {
    return {{1.0, 10.0, 9.0, 9.0}, 14.0, "RED", "words", false, "ARIEL", false, false};
}

TEST(SheetPainter, GivesATextTheLooksOfItsRecord) {
    SheetText plain = sample();
    const auto look = [](const SheetText& text) { return painted(text).texts.at(0).look; };
    EXPECT_EQ(look(plain).points, 14.0);
    EXPECT_EQ(look(plain).colour, colours::kRed);
    EXPECT_EQ(look(plain).typeface, Typeface::Arial);
    EXPECT_EQ(look(plain).alignment, Alignment::Left);
    EXPECT_FALSE(look(plain).bold || look(plain).italic || look(plain).vertical || look(plain).middle);
    EXPECT_EQ(painted(plain).texts[0].box.right, 9.0) << "a plain text isn't cut at the margin";
    SheetText one = plain;
    one.bold = true;
    EXPECT_TRUE(look(one).bold && !look(one).italic && !look(one).vertical);
    one = plain;
    one.italic = true;
    EXPECT_TRUE(!look(one).bold && look(one).italic && !look(one).vertical);
    one = plain;
    one.vertical = true;
    EXPECT_TRUE(!look(one).bold && !look(one).italic && look(one).vertical);
    one.colour = "PINK";
    one.font = "Comic";
    EXPECT_EQ(look(one).colour, colours::kBlack) << "names that nobody knows";
    EXPECT_EQ(look(one).typeface, Typeface::Times);
}

TEST(SheetPainter, FramesBoxesAndTintsWithAThinLine) {
    const RecordingCanvas box = painted(SheetTextBox{sample(), 123});
    ASSERT_EQ(box.rectangles.size(), 1U);
    EXPECT_EQ(box.rectangles[0].fill, 123U);
    ASSERT_TRUE(box.rectangles[0].frame);
    EXPECT_EQ(box.rectangles[0].frame->width, 9525.0);
    EXPECT_EQ(box.rectangles[0].frame->colour, colours::kBlack);
    EXPECT_EQ(box.rectangles[0].box.right, 8.0) << "the margin";
    EXPECT_EQ(box.texts.at(0).box.right, 8.0);
    EXPECT_EQ(box.texts[0].look.alignment, Alignment::Centre);
    EXPECT_TRUE(box.texts[0].look.middle);
    SheetText empty = sample();
    empty.text.clear();
    EXPECT_TRUE(painted(SheetTextBox{empty, 123}).texts.empty());
    const RecordingCanvas tint = painted(SheetTint{{1, 4, 3, 2}, 456});
    EXPECT_EQ(tint.rectangles.at(0).fill, 456U);
    EXPECT_TRUE(tint.rectangles[0].frame);
}

TEST(SheetPainter, DrawsLinesAndCirclesInTheirPens) {
    const RecordingCanvas line = painted(SheetLine{{1, 2}, {3, 4}, 255, 19050.0, 8, true});
    EXPECT_EQ(line.lines.at(0).from.x, 1.0);
    EXPECT_EQ(line.lines[0].to.y, 4.0);
    EXPECT_EQ(line.lines[0].pen.colour, 255U);
    EXPECT_EQ(line.lines[0].pen.width, 19050.0);
    EXPECT_EQ(line.lines[0].pen.dash, 8);
    const RecordingCanvas circle = painted(SheetCircle{{1, 2}, 0.5, 16711680, 19050.0});
    EXPECT_EQ(circle.circles.at(0).centre.x, 1.0);
    EXPECT_EQ(circle.circles[0].centre.y, 2.0);
    EXPECT_EQ(circle.circles[0].radius, 0.5);
    EXPECT_EQ(circle.circles[0].pen.colour, 16711680U);
    EXPECT_EQ(circle.circles[0].pen.width, 19050.0);
    EXPECT_EQ(circle.circles[0].pen.dash, 0);
}

TEST(SheetNames, AreThoseOfTheDocumentsTables) {
    const struct {
        const char* name;
        Colour colour;
        int number;
    } colours[] = {{"BLACK", 0, 1},
                   {"BLUE", 0xFF0000, 2},
                   {"GREEN", 0xFF00, 4},
                   {"PURPLE", 0xFF00FF, 5},
                   {"RED", 0xFF, 6}};
    for (const auto& row : colours) {
        const SheetColour* const found = sheetColour(row.name);
        ASSERT_NE(found, nullptr) << row.name;
        EXPECT_EQ(found->colour, row.colour) << row.name;
        EXPECT_EQ(found->number, row.number) << row.name;
        EXPECT_EQ(sheetColourNear(row.colour).number, row.number) << row.name;
    }
    EXPECT_EQ(sheetColour("CYAN"), nullptr);
    // A document's texts have no dark colours: their brighter forms stand for them, black for any other.
    EXPECT_EQ(sheetColourNear(rgb(0, 0, 128)).number, 2);
    EXPECT_EQ(sheetColourNear(rgb(0, 128, 0)).number, 4);
    EXPECT_EQ(sheetColourNear(rgb(128, 0, 0)).number, 6);
    EXPECT_EQ(sheetColourNear(rgb(1, 2, 3)).number, 1);
    const std::pair<const char*, Typeface> fonts[] = {{"TNR", Typeface::Times},
                                                      {"ARIEL", Typeface::Arial},
                                                      {"Courier New", Typeface::Courier},
                                                      {"Book Antiqua", Typeface::Antiqua}};
    int number = 0;
    for (const auto& [name, typeface] : fonts) {
        EXPECT_EQ(sheetFont(name).typeface, typeface) << name;
        EXPECT_EQ(sheetFont(name).number, number) << name;
        EXPECT_EQ(sheetFont(typeface).number, number++) << name;
    }
    EXPECT_EQ(sheetFont("Comic").number, 0);
}

TEST(SheetLogo, IsTheMetafilesMarkInNavy) {
    RecordingCanvas canvas;
    drawLogo(canvas, {2.0, 10.0}, 2.88);
    // The mark is 2880 wide: a thousand of its units are an inch.
    const std::vector<MarkCircle> circles = markCircles();
    ASSERT_EQ(canvas.circles.size(), circles.size());
    for (std::size_t i = 0; i < circles.size(); ++i) {
        EXPECT_NEAR(canvas.circles[i].centre.x, 2.0 + circles[i].x / 1000.0, 1e-9);
        EXPECT_NEAR(canvas.circles[i].centre.y, 10.0 - circles[i].y / 1000.0, 1e-9);
        EXPECT_NEAR(canvas.circles[i].radius, circles[i].radius / 1000.0, 1e-9);
        EXPECT_EQ(canvas.circles[i].pen.colour, rgb(0, 40, 110));
        EXPECT_NEAR(canvas.circles[i].pen.width, 914400.0 * mark::kPen / 1000.0, 1e-6)
            << "914400 EMU an inch";
    }
    const auto& name = canvas.texts.at(0);
    EXPECT_EQ(name.text, "VARDEN");
    EXPECT_NEAR(name.look.points, 72.0 * mark::kNameSize / 1000.0, 1e-9);
    EXPECT_TRUE(name.look.bold);
    EXPECT_EQ(name.look.typeface, Typeface::Arial);
    EXPECT_EQ(name.look.colour, rgb(0, 40, 110));
    EXPECT_NEAR(name.box.left, 2.0 + mark::kNameLeft / 1000.0, 1e-9);
    EXPECT_NEAR(name.box.top, 10.0 - mark::kNameTop / 1000.0, 1e-9);
    EXPECT_NEAR(name.box.right, 4.88, 1e-9);
    EXPECT_NEAR(name.box.bottom, 10.0 - mark::kHeight / 1000.0, 1e-9);
}

/// The texts below one another, each in its place, size and colour, inside the box; fails otherwise.
void expectNote(const RecordingCanvas& canvas, const std::vector<std::string>& lines, const PageBox& box,
                double points) {
    double before = box.top;
    for (const std::string& words : lines) {
        const auto found = std::find_if(canvas.texts.begin(), canvas.texts.end(),
                                        [&](const auto& text) { return text.text == words; });
        ASSERT_NE(found, canvas.texts.end()) << words;
        EXPECT_EQ(found->look.points, points) << words;
        EXPECT_EQ(found->look.colour, colours::kBlack) << words;
        EXPECT_FALSE(found->look.bold) << words;
        EXPECT_NEAR(found->box.left, box.left, 0.05) << words;
        EXPECT_LE(found->box.top, before + 1e-9) << words << " is below the line before it";
        EXPECT_GT(found->box.top - 0.891 * points / 72.0, box.bottom) << words << " stands in the box";
        before = found->box.top - 0.9 * points / 72.0;
    }
}

bool hasBox(const RecordingCanvas& canvas, const PageBox& box, Colour fill) {
    const auto near = [](double one, double other) { return std::fabs(one - other) < 1e-9; };
    return std::any_of(canvas.rectangles.begin(), canvas.rectangles.end(), [&](const auto& one) {
        return near(one.box.left, box.left) && near(one.box.top, box.top) && near(one.box.right, box.right) &&
               near(one.box.bottom, box.bottom) && one.fill == fill;
    });
}

TEST(SheetNotes, OfTheRatingsStandInTheirTintedBox) {
    Sheet sheet;
    const RecordingCanvas canvas = sheet.draw();
    EXPECT_TRUE(hasBox(canvas, {0.4, 1.7, 3.4, 1.08}, rgb(255, 255, 153)));
    expectNote(canvas,
               {" Capacities do not apply simultaneously, and are based on",
                "   the 'P' separator.  The Static ratings are based on the",
                "   onset of permanent non-detrimental deformation.  The ",
                " Dynamic rating is based on 1,000,000 revolutions L10 life."},
               {0.4, 1.7, 3.4, 1.08}, 9.0);
    const std::string second = std::to_string(rgb(255, 204, 153));
    EXPECT_NE(sheet.files.rtf.find("{\\sn fillBackColor}{\\sv " + second + "}"), std::string::npos);
}

TEST(SheetNotes, OfTheFitsStandBesideTheirOnePair) {
    for (const char* const letter : {"Z", " "}) {
        Sheet sheet;
        sheet.state.bearing.fitLetter = letter;
        sheet.state.bearing.fitShaft3 = 0.0;
        const RecordingCanvas canvas = sheet.draw();
        // Three rows of 0.175 below 4.1.
        EXPECT_TRUE(hasBox(canvas, {5.875, 4.1, 7.9, 3.575}, rgb(221, 221, 221))) << letter;
        if (*letter == 'Z') {
            expectNote(
                canvas,
                {"  Note: Precise fits cannot be determined", "  with an unspecified 'Z' internal fit up.",
                 "  These suggested sizes are based on ", "  clearance being present in the bearing."},
                {5.875, 4.1, 7.9, 3.575}, 8.0);
        } else {
            expectNote(
                canvas,
                {"  Note: Both the shaft and housing fits are",
                 "  loose.  This is done to prevent any change",
                 "  in the factory-set internal fitup.  This will", "  also permit easier installation."},
                {5.875, 4.1, 7.9, 3.575}, 8.0);
        }
    }
}

TEST(SheetHeadings, OfTheFitsNameTheLetter) {
    const std::pair<std::string, std::string> rows[] = {
        {" ", "Standard Recommended Fits"},        {"A", "'A - Clearance' Recommended Fits"},
        {"J", "'J - Clearance' Recommended Fits"}, {"K", "'K - Preload' Recommended Fits"},
        {"Y", "'Y - Preload' Recommended Fits"},   {"Z", "'Z - Special Fitup' - Recommended Fits"}};
    for (const auto& [letter, heading] : rows) {
        Sheet sheet;
        sheet.state.bearing.fitLetter = letter;
        EXPECT_TRUE(sheet.draw().hasText(heading)) << letter;
    }
}

TEST(SheetRatings, AreInNewtonsInMetricUnits) {
    Sheet sheet;
    sheet.state.unitSystem = "METRIC";
    ApplyUnitSystem("METRIC", sheet.state.units);
    BearingSpec& bearing = sheet.state.bearing;
    bearing.staticRadial = 1000.0;
    bearing.dynamicMoment = 1000.0;
    const RecordingCanvas canvas = sheet.draw();
    EXPECT_TRUE(canvas.hasText(" 4,448 N.")) << "1000 / 0.2248089 = 4448.2";
    EXPECT_TRUE(canvas.hasText(" 113 N-m.")) << "1000 / 8.850744 = 112.98";
}

}  // namespace
}  // namespace norlaplan
