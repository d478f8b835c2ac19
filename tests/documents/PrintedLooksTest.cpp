#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "documents/ApplicationReport.h"
#include "documents/LoadLifeReport.h"
#include "documents/PrintedPage.h"
#include "documents/ReportSamples.h"
#include "documents/SampleApplication.h"
#include "documents/SearchReport.h"
#include "support/RecordingPorts.h"

/// How printed reports look: what is a head and what is a body, what stands below and beside what.
namespace norlaplan {
namespace {

using testing::FixedClock;
using testing::RecordingCanvas;
using Text = RecordingCanvas::Text;

const Colour kGoodGreen = rgb(0, 128, 0);

const Text& textOf(const RecordingCanvas& canvas, const std::string& words) {
    static const Text kNone{};
    const auto at = std::find_if(canvas.texts.begin(), canvas.texts.end(),
                                 [&](const Text& text) { return text.text == words; });
    if (at == canvas.texts.end()) ADD_FAILURE() << words << " isn't on the page";
    return at == canvas.texts.end() ? kNone : *at;
}

/// Fails unless the texts of each row stand on one line, those of each column below one another, and all rows
/// are equally far apart.
void expectTable(const RecordingCanvas& canvas, const std::vector<std::vector<std::string>>& rows) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        for (std::size_t j = 0; j < rows[i].size(); ++j) {
            const PageBox& box = textOf(canvas, rows[i][j]).box;
            EXPECT_NEAR(box.top, textOf(canvas, rows[i][0]).box.top, 1e-9) << rows[i][j];
            EXPECT_NEAR(box.left, textOf(canvas, rows[0][j]).box.left, 1e-9) << rows[i][j];
            if (j > 0) {
                EXPECT_GT(box.left, textOf(canvas, rows[i][j - 1]).box.left + 0.5) << rows[i][j];
            }
        }
        if (i < 2) continue;
        const auto top = [&](std::size_t row) { return textOf(canvas, rows[row][0]).box.top; };
        EXPECT_NEAR(top(i - 1) - top(i), top(0) - top(1), 1e-9) << rows[i][0];
    }
}

/// Fails unless the texts stand directly one behind the other on a line.
void expectRun(const RecordingCanvas& canvas, const Text& first, const Text& second) {
    EXPECT_NEAR(second.box.top, first.box.top, 1e-9) << second.text;
    EXPECT_NEAR(second.box.left, first.box.left + RecordingCanvas(canvas).textWidth(first.text, first.look),
                1e-9)
        << second.text;
}

ProgramState loadLife() {
    ProgramState state = testing::sampleLife(400.0);
    state.user.userName = "";
    state.loads.axialLoadDisplay = 50.0;
    state.loads.momentLoadDisplay = 3456.0;
    return state;
}

RecordingCanvas printed(const ProgramState& state) {
    testing::TemporaryFolder place;
    place.write("overlays/F.ovl", "PU3302,6477;PD3810,7493;");
    place.write("overlays/RIBBONA.sep", "PU6858,4953;PD7366,4953;");
    const ProgramFolder folder(place.path());
    FixedClock clock;
    RecordingCanvas canvas;
    printLoadLife(state, folder, clock, canvas);
    return canvas;
}

TEST(LoadLifeLooks, UnderlineThePartNumberBehindTheTitle) {
    const RecordingCanvas canvas = printed(loadLife());
    const Text& title = textOf(canvas, "RESULTS OF LOAD-LIFE CALCULATION FOR : ");
    const Text& number = textOf(canvas, "K19013FR0A");
    expectRun(canvas, title, number);
    EXPECT_TRUE(title.look.bold && number.look.bold);
    EXPECT_FALSE(title.look.underline);
    EXPECT_TRUE(number.look.underline);
    EXPECT_EQ(number.look.points, title.look.points);
    EXPECT_NEAR(title.box.left, kPageLeft, 1e-9);
}

TEST(LoadLifeLooks, SetSizesAndLoadsInColumns) {
    const RecordingCanvas canvas = printed(loadLife());
    expectTable(canvas, {{"Bore =", "7.5000 inches", "Radial Load =", "1,200 pounds"},
                         {"Outer Dia. =", "8.5000 inches", "Axial Load =", "50 pounds"},
                         {"Height =", "1.0000 inches", "Moment Load =", "3,456 inch-lbs."}});
    const Text& speed = textOf(canvas, "Speed =");
    EXPECT_NEAR(speed.box.left, textOf(canvas, "Moment Load =").box.left, 1e-9);
    EXPECT_NEAR(textOf(canvas, "400 RPM").box.left, textOf(canvas, "3,456 inch-lbs.").box.left, 1e-9);
    EXPECT_NEAR(textOf(canvas, "400 RPM").box.top, speed.box.top, 1e-9);
    EXPECT_LT(speed.box.top, textOf(canvas, "Height =").box.top);
}

TEST(LoadLifeLooks, SetTheResultsInBoldAndLargerThanTheSizesAndTheTitleLargest) {
    const RecordingCanvas canvas = printed(loadLife());
    const double title = textOf(canvas, "RESULTS OF LOAD-LIFE CALCULATION FOR : ").look.points;
    const double body = textOf(canvas, "Bore =").look.points;
    const double note = textOf(canvas, "is best found by testing.").look.points;
    EXPECT_FALSE(textOf(canvas, "Bore =").look.bold);
    EXPECT_FALSE(textOf(canvas, "is best found by testing.").look.bold);
    EXPECT_LT(note, body);
    for (const char* const words :
         {" Life in Revolutions =  1162182300", " Life in Hours =  48,424", "Static Safety Factor is =  2.5",
          "Estimated Starting Torque = 1.0 inch-lbs."}) {
        const Text& text = textOf(canvas, words);
        EXPECT_TRUE(text.look.bold) << words;
        EXPECT_GT(text.look.points, body) << words;
        EXPECT_LT(text.look.points, title) << words;
        EXPECT_EQ(text.look.colour, colours::kBlack) << words;
    }
}

TEST(LoadLifeLooks, SetTheTenOfTheLifeSmallAndLow) {
    const RecordingCanvas canvas = printed(loadLife());
    for (const auto& [letter, words] : {std::pair{"L", " Life in Revolutions =  1162182300"},
                                        std::pair{"         L", " Life in Hours =  48,424"}}) {
        const Text& before = textOf(canvas, letter);
        const Text& behind = textOf(canvas, words);
        const auto ten = std::find_if(
            canvas.texts.begin(), canvas.texts.end(), [&, top = before.box.top](const Text& text) {
                return text.text == "10" && text.box.top < top && text.box.top > top - 0.2;
            });
        ASSERT_NE(ten, canvas.texts.end()) << words;
        EXPECT_LT(ten->look.points, 0.8 * before.look.points);
        EXPECT_NEAR(ten->box.left, before.box.left + RecordingCanvas().textWidth(before.text, before.look),
                    1e-9);
        EXPECT_NEAR(behind.box.left, ten->box.left + RecordingCanvas().textWidth("10", ten->look), 1e-9);
        EXPECT_NEAR(behind.box.top, before.box.top, 1e-9);
        EXPECT_LT(ten->box.bottom, before.box.bottom) << "below the line of writing";
    }
}

TEST(LoadLifeLooks, ColourTheVerdictAndTheWarnings) {
    ProgramState state = loadLife();
    state.life.warnings = {"Warning."};
    const RecordingCanvas good = printed(state);
    EXPECT_EQ(textOf(good, "Verdict.").look.colour, kGoodGreen);
    EXPECT_TRUE(textOf(good, "Verdict.").look.bold);
    EXPECT_EQ(textOf(good, "Warning.").look.colour, colours::kRed);
    EXPECT_TRUE(textOf(good, "Warning.").look.bold);
    for (const int other : {1, 3, 4, 12}) {
        state.life.speedVerdictColor = other;
        EXPECT_EQ(textOf(printed(state), "Verdict.").look.colour, colours::kRed) << other;
    }
}

ProgramState searched() {
    ProgramState state = testing::sampleSearch();
    state.user.userName = "";
    state.search.rows = {{"K1", "100", "1234567", "2058", "5.0000", "6.0000", "0.5000", "YES "},
                         {"K2", "99", "2234567", "3058", "5.0000", "6.0000", "0.5000", "NO "},
                         {"K3", "900", "3234567", "4058", "5.0000", "6.0000", "0.5000", "CALL "}};
    return state;
}

RecordingCanvas listed(const ProgramState& state) {
    FixedClock clock;
    RecordingCanvas canvas;
    printSearch(state, clock, canvas);
    return canvas;
}

TEST(SearchLooks, SetTheRowsUnderTheirHeads) {
    const RecordingCanvas canvas = listed(searched());
    expectTable(canvas, {{"K1", "1.235E+06", "2.058E+03", "YES "},
                         {"K2", "2.235E+06", "3.058E+03", "NO "},
                         {"K3", "3.235E+06", "4.058E+03", "CALL "}});
    const auto right = [&](const char* words) {
        const Text& text = textOf(canvas, words);
        return text.box.left + RecordingCanvas().textWidth(words, text.look);
    };
    EXPECT_NEAR(right("1.235E+06"), right(" (revolutions) "), 1e-9);
    EXPECT_NEAR(right("2.058E+03"), right(" (hours)"), 1e-9);
    EXPECT_NEAR(textOf(canvas, "YES ").box.left, textOf(canvas, "Stock Availability").box.left, 1e-9);
    for (const char* const head : {"BEARING", "NUMBER", "Basic Bearing"})
        EXPECT_NEAR(textOf(canvas, head).box.left, textOf(canvas, "K1").box.left, 1e-9) << head;
    for (const char* const head :
         {"BEARING", "NUMBER", " (revolutions) ", " (hours)", "Stock Availability", " LIFE "})
        EXPECT_TRUE(textOf(canvas, head).look.bold) << head;
    EXPECT_FALSE(textOf(canvas, "K1").look.bold);
    EXPECT_EQ(textOf(canvas, "K1").look.points, textOf(canvas, "BEARING").look.points);
    const Text& over = textOf(canvas, "Over Speed!");
    EXPECT_EQ(over.look.colour, colours::kRed);
    EXPECT_NEAR(over.box.top, textOf(canvas, "K2").box.top, 1e-9);
    EXPECT_GT(over.box.left, textOf(canvas, "NO ").box.left);
}

TEST(SearchLooks, SetTheSizesAndLoadsInColumnsWithTheirUnits) {
    const RecordingCanvas canvas = listed(searched());
    const std::vector<std::vector<std::string>> rows = {{"Minimum Bore =  ", "Radial Load = "},
                                                        {"Maximum O.D. =  ", "Axial Load =  "},
                                                        {"Minimum Height =", "Moment Load = "},
                                                        {"Maximum Height =", "Speed =       "}};
    expectTable(canvas, rows);
    const std::vector<std::vector<std::string>> cells = {{"5.0000", "inches", "1,234", " lbs"},
                                                         {"9.0000", "inches", "50", " lbs"},
                                                         {"0.2000", "inches", "10", " in-lbs"},
                                                         {"1.2000", "inches", "100", " rpm"}};
    // Each row has its own figures, which end below one another with the unit close behind.
    double sizeEnd = 0.0, loadEnd = 0.0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const double top = textOf(canvas, rows[i][0]).box.top;
        double end = 0.0;
        for (const std::string& cell : cells[i]) {
            const auto at = std::find_if(canvas.texts.begin(), canvas.texts.end(), [&](const Text& text) {
                return text.text == cell && std::abs(text.box.top - top) < 1e-9;
            });
            ASSERT_NE(at, canvas.texts.end()) << cell << " beside " << rows[i][0];
            const double right = at->box.left + RecordingCanvas().textWidth(cell, at->look);
            const bool unit = &cell == &cells[i][1] || &cell == &cells[i][3];
            if (unit) {
                EXPECT_GE(at->box.left, end) << cell;
                EXPECT_LT(at->box.left, end + 0.1) << cell;
            } else {
                double& column = &cell == &cells[i][0] ? sizeEnd : loadEnd;
                if (i == 0) column = right;
                EXPECT_NEAR(right, column, 1e-9) << cell;
            }
            end = right;
        }
    }
    expectRun(canvas, textOf(canvas, "RESULTS OF BEARING SEARCH FOR : "), textOf(canvas, "4-POINT CONTACT"));
    EXPECT_TRUE(textOf(canvas, "4-POINT CONTACT").look.underline);
    EXPECT_FALSE(textOf(canvas, "RESULTS OF BEARING SEARCH FOR : ").look.underline);
}

TEST(ReportLooks, BeginAtTheSameHeightOnEveryPage) {
    const double title = textOf(printed(loadLife()), "RESULTS OF LOAD-LIFE CALCULATION FOR : ").box.top;
    EXPECT_NEAR(title, 10.0, 1e-9) << "an inch below the edge";
    ProgramState state = searched();
    while (state.search.rows.size() < 70)
        state.search.rows.push_back(state.search.rows[0]);
    const RecordingCanvas list = listed(state);
    EXPECT_NEAR(textOf(list, "RESULTS OF BEARING SEARCH FOR : ").box.top, title, 1e-9);
    int heads = 0;
    for (const Text& text : list.texts)
        heads += text.text == "BEARING" && std::abs(text.box.top - title) < 1e-9 ? 1 : 0;
    EXPECT_EQ(heads, 2) << "the second and the third page begin with the head of the list";
}

TEST(SearchLooks, TakeASmallerTypeForATitleThatWouldRunOffThePage) {
    ProgramState state = searched();
    const double usual = textOf(listed(state), "4-POINT CONTACT").look.points;
    state.style.searchStyleCaption = std::string(60, 'B');
    const RecordingCanvas canvas = listed(state);
    const Text& caption = textOf(canvas, state.style.searchStyleCaption);
    EXPECT_LT(caption.look.points, usual);
    EXPECT_LE(caption.box.left + RecordingCanvas().textWidth(caption.text, caption.look), kPageRight + 1e-9);
    EXPECT_EQ(textOf(canvas, "RESULTS OF BEARING SEARCH FOR : ").look.points, caption.look.points);
    // Not smaller than it must be: half a point more would be too wide.
    TextLook larger = caption.look;
    larger.points += 0.5;
    EXPECT_GT(RecordingCanvas().textWidth("RESULTS OF BEARING SEARCH FOR : " + caption.text, larger),
              kPageRight - kPageLeft);
    state.style.searchStyleCaption = std::string(500, 'B');
    EXPECT_EQ(textOf(listed(state), state.style.searchStyleCaption).look.points, 8.0) << "still to be read";
}

TEST(ApplicationLooks, SetHeadsLargerAndInColour) {
    FixedClock clock;
    RecordingCanvas canvas;
    printApplication(testing::filledApplication(), clock, canvas);
    const Text& title = textOf(canvas, "REQUEST FOR BEARING PROPOSAL DATA FORM");
    const Text& attention = textOf(canvas, "Attention: Varden Sales");
    EXPECT_EQ(title.look.points, 16.0) << "32 half points, as in the document";
    EXPECT_EQ(attention.look.points, 12.0);
    EXPECT_EQ(title.look.colour, colours::kBlue);
    EXPECT_EQ(attention.look.colour, colours::kRed);
    for (const Text* const text : {&title, &attention}) {
        EXPECT_TRUE(text->look.bold) << text->text;
        EXPECT_EQ(text->look.alignment, Alignment::Centre) << text->text;
        EXPECT_NEAR((text->box.left + text->box.right) / 2.0, papers::kLetter.width / 2.0, 0.3) << text->text;
    }
    EXPECT_LT(attention.box.top, title.box.bottom);
    for (const char* const head : {"TO:", "FROM:", "LOADS:", "SPEED:", "LIFE:", "REMARKS:"}) {
        const Text& text = textOf(canvas, head);
        EXPECT_EQ(text.look.points, 12.0) << head;
        EXPECT_EQ(text.look.colour, colours::kBlue) << head;
        EXPECT_TRUE(text.look.bold) << head;
        EXPECT_NEAR(text.box.left, kPageLeft, 1e-9) << head;
        EXPECT_LT(text.box.top, attention.box.bottom) << head;
    }
    const Text& body = textOf(canvas, "Comments: Text31");
    EXPECT_EQ(body.look.points, 10.0);
    EXPECT_EQ(body.look.colour, colours::kBlack);
    EXPECT_FALSE(body.look.bold);
}

TEST(PageLooks, FrameThePageWithTheMarkInItsCornerAndTheFootBelowARule) {
    FixedClock clock;
    RecordingCanvas canvas;
    drawPageFrame(canvas);
    drawPageFooter(canvas, clock, "Page 1 of 2");
    ASSERT_FALSE(canvas.rectangles.empty());
    // A quarter of an inch from every edge.
    const PageBox& frame = canvas.rectangles.front().box;
    EXPECT_NEAR(frame.left, 0.25, 1e-9);
    EXPECT_NEAR(frame.top, 10.75, 1e-9);
    EXPECT_NEAR(frame.right, 8.25, 1e-9);
    EXPECT_NEAR(frame.bottom, 0.25, 1e-9);
    EXPECT_FALSE(canvas.rectangles.front().fill);
    const auto& rule = canvas.lines.back();
    EXPECT_NEAR(rule.from.x, 0.25, 1e-9);
    EXPECT_NEAR(rule.to.x, 8.25, 1e-9);
    EXPECT_NEAR(rule.from.y, rule.to.y, 1e-9);
    const Text& version = textOf(canvas, "NORLAPLAN-MM version 1.00");
    const Text& date = textOf(canvas, "Printed: 3/14/26 9:26 AM     Page 1 of 2");
    EXPECT_EQ(version.look.alignment, Alignment::Left);
    EXPECT_EQ(date.look.alignment, Alignment::Right);
    for (const Text* const text : {&version, &date}) {
        EXPECT_EQ(text->look.points, 8.0) << "small";
        EXPECT_LT(text->box.top, rule.from.y);
        EXPECT_GT(text->box.bottom, 0.25);
        EXPECT_GT(text->box.left, 0.25);
        EXPECT_LT(text->box.right, 8.25);
    }
    for (const auto& circle : canvas.circles) {
        EXPECT_GT(circle.centre.x, 6.5) << "the mark is on the right";
        EXPECT_LT(circle.centre.x + circle.radius, 8.25);
        EXPECT_LT(circle.centre.y + circle.radius, 10.75);
        EXPECT_GT(circle.centre.y - circle.radius, 10.0);
    }
}

}  // namespace
}  // namespace norlaplan
