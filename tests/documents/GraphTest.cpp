#include <algorithm>

#include <gtest/gtest.h>

#include "documents/Graph.h"
#include "documents/RTFroutines.h"
#include "documents/SampleGraphs.h"
#include "numbers/RuntimeError.h"
#include "support/OnPaper.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::deflectionGraph;
using testing::RecordingCanvas;
using testing::torqueGraph;

RecordingCanvas drawn(const Graph& graph) {
    RecordingCanvas canvas;
    drawGraph(graph, canvas);
    return canvas;
}

bool near(PagePoint a, PagePoint b) {
    return std::abs(a.x - b.x) < 1e-6 && std::abs(a.y - b.y) < 1e-6;
}

bool hasLine(const RecordingCanvas& canvas, PagePoint from, PagePoint to, Colour colour, double width) {
    return std::any_of(canvas.lines.begin(), canvas.lines.end(), [&](const auto& line) {
        return near(line.from, from) && near(line.to, to) && line.pen.colour == colour &&
               line.pen.width == width;
    });
}

const RecordingCanvas::Text* textOf(const RecordingCanvas& canvas, const std::string& words) {
    for (const auto& text : canvas.texts) {
        if (text.text == words) return &text;
    }
    return nullptr;
}

TEST(Graph, DrawsItsGridInsideTheFrameAndTicksOnIt) {
    const RecordingCanvas canvas = drawn(torqueGraph());
    constexpr Colour kGrey = rgb(128, 128, 128);
    // 0.001 is 1.45 inches right of the axis, 3 is 1.2 inches above it.
    EXPECT_TRUE(hasLine(canvas, {2.2, 0.45}, {2.2, 4.5}, kGrey, 9525.0));
    EXPECT_TRUE(hasLine(canvas, {0.7, 1.7}, {8.0, 1.7}, kGrey, 9525.0));
    EXPECT_TRUE(hasLine(canvas, {0.75, 0.45}, {0.75, 0.5}, kGrey, 9525.0));
    EXPECT_TRUE(hasLine(canvas, {8.0, 0.45}, {8.0, 0.5}, kGrey, 9525.0));
    EXPECT_TRUE(hasLine(canvas, {0.7, 4.5}, {0.75, 4.5}, kGrey, 9525.0));
    for (const auto& [from, to] : {std::pair<PagePoint, PagePoint>{{0.75, 0.5}, {8.0, 0.5}},
                                   {{8.0, 0.5}, {8.0, 4.5}},
                                   {{8.0, 4.5}, {0.75, 4.5}},
                                   {{0.75, 4.5}, {0.75, 0.5}}}) {
        EXPECT_TRUE(hasLine(canvas, from, to, colours::kBlack, 19050.0));
    }
    // 11 lines for x, 11 for y, 50 of the curve, 4 of the frame.
    EXPECT_EQ(canvas.lines.size(), 76U);
}

TEST(Graph, OfAPictureHasItsLabelsInBoxesBesideTheAxes) {
    const RecordingCanvas canvas = drawn(torqueGraph());
    EXPECT_EQ(testing::offPaper(canvas, papers::kGraphPicture), "");
    for (const auto& label : canvas.texts) {
        if (label.text != "0.0010" && label.text != "3.0" && label.text != "0") continue;
        EXPECT_EQ(label.look.points, 8.0);
        // A line of writing is 1.15 times as high as its type; the axes are at 0.75 and 0.5.
        EXPECT_GE(label.box.top - label.box.bottom, 1.15 * 8.0 / 72.0) << label.text;
        EXPECT_LT(label.box.top - label.box.bottom, 0.2) << label.text;
        EXPECT_GT(label.box.right - label.box.left, 0.1) << label.text;
        EXPECT_TRUE(label.box.top <= 0.4 + 1e-9 || label.box.right <= 0.7 + 1e-9) << label.text;
    }
}

TEST(Graph, LabelsZeroAsThePlainDigitAndTheRestByThePicture) {
    const RecordingCanvas canvas = drawn(torqueGraph());
    const auto* const label = textOf(canvas, "0.0010");
    ASSERT_NE(label, nullptr);
    EXPECT_NEAR(label->box.left, 2.0, 1e-9);
    EXPECT_NEAR(label->box.top, 0.4, 1e-9);
    const auto* const torque = textOf(canvas, "3.0");
    ASSERT_NE(torque, nullptr);
    EXPECT_NEAR(torque->box.left, 0.3, 1e-9);
    EXPECT_NEAR(torque->box.top, 1.76, 1e-9);
    EXPECT_EQ(std::count_if(canvas.texts.begin(), canvas.texts.end(),
                            [](const auto& text) { return text.text == "0"; }),
              2);
}

TEST(Graph, ShowsItsLabelsTimesAFactorAndNoneButZeroWithoutAPicture) {
    Graph graph = torqueGraph();
    graph.x.shownFactor = 25.4;
    graph.x.picture = "0.000";
    graph.y.picture.clear();
    const RecordingCanvas canvas = drawn(graph);
    EXPECT_TRUE(canvas.hasText("0.025"));
    EXPECT_FALSE(canvas.hasText("3.0"));
    EXPECT_FALSE(canvas.hasText("0.0010"));
}

TEST(Graph, StacksTheLettersOfItsYTitleAndKeepsLettersBeyondAsciiWhole) {
    Graph graph = torqueGraph();
    graph.yTitle.text = "M\xC3\xB8 N";
    const RecordingCanvas canvas = drawn(graph);
    const auto* const title = textOf(canvas, "M\n\xC3\xB8\n \nN");
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(title->look.colour, rgb(0, 0, 128));
    EXPECT_EQ(title->look.points, 10.0);
}

TEST(Graph, FillsItsBandsBeneathEverything) {
    const RecordingCanvas canvas = drawn(torqueGraph());
    ASSERT_EQ(canvas.rectangles.size(), 2U);
    const auto& band = canvas.rectangles[0];
    EXPECT_EQ(band.fill, rgb(224, 224, 224));
    EXPECT_FALSE(band.frame);
    EXPECT_NEAR(band.box.left, 2.2, 1e-9);
    EXPECT_NEAR(band.box.right, 3.65, 1e-9);
    EXPECT_NEAR(band.box.bottom, 0.5, 1e-9);
    EXPECT_NEAR(band.box.top, 2.1, 1e-9);
    EXPECT_NEAR(canvas.rectangles[1].box.left, 0.75, 1e-9);
    EXPECT_NEAR(canvas.rectangles[1].box.bottom, 1.3, 1e-9);
}

TEST(Graph, DrawsEachPieceOfItsCurveInItsColour) {
    const RecordingCanvas canvas = drawn(deflectionGraph(colours::kRed, graphcolours::kDarkGreen));
    // 100 is 1 inch, 0.001 is 1 inch.
    EXPECT_TRUE(hasLine(canvas, {4.0, 2.45}, {5.0, 2.85}, colours::kRed, 19050.0));
    EXPECT_TRUE(hasLine(canvas, {5.0, 2.85}, {6.0, 3.65}, graphcolours::kDarkGreen, 19050.0));
    EXPECT_EQ(std::count_if(canvas.lines.begin(), canvas.lines.end(),
                            [](const auto& line) { return line.pen.colour == colours::kRed; }),
              4);
}

TEST(Graph, PassesOverPointsBeyondTheScaleOfX) {
    Graph graph = deflectionGraph(colours::kRed, colours::kBlue);
    graph.x.end = 350.0;  // 0.02 inch a unit
    const RecordingCanvas canvas = drawn(graph);
    EXPECT_TRUE(hasLine(canvas, {5.0, 2.05}, {7.0, 2.45}, colours::kRed, 19050.0));
    EXPECT_FALSE(std::any_of(canvas.lines.begin(), canvas.lines.end(),
                             [](const auto& line) { return line.pen.colour == colours::kBlue; }));
}

TEST(Graph, MovesAsAWhole) {
    const RecordingCanvas canvas = drawn(moved(torqueGraph(), 0.0, 4.5));
    EXPECT_TRUE(hasLine(canvas, {0.75, 5.0}, {8.0, 5.0}, colours::kBlack, 19050.0));
    EXPECT_NEAR(textOf(canvas, "K19013XP0K")->box.top, 9.5, 1e-9);
    EXPECT_NEAR(textOf(canvas, "PRELOAD IN INCHES")->box.top, 4.7, 1e-9);
    EXPECT_NEAR(textOf(canvas, "\"K\" PRELOAD RANGE IN GREY")->box.top, 4.7, 1e-9);
    EXPECT_NEAR(textOf(canvas, "0.0010")->box.top, 4.9, 1e-9);
}

TEST(Graph, ShrinksAsAWholeTowardsItsCorner) {
    const RecordingCanvas whole = drawn(torqueGraph());
    const RecordingCanvas canvas = drawn(placed(torqueGraph(), 0.5, {1.0, 2.0}));
    EXPECT_TRUE(hasLine(canvas, {1.375, 2.25}, {5.0, 2.25}, colours::kBlack, 19050.0));
    ASSERT_EQ(canvas.texts.size(), whole.texts.size());
    for (std::size_t i = 0; i < whole.texts.size(); ++i) {
        const auto& before = whole.texts[i];
        const auto& after = canvas.texts[i];
        EXPECT_EQ(after.text, before.text);
        EXPECT_NEAR(after.box.left, 1.0 + before.box.left / 2.0, 1e-9) << before.text;
        EXPECT_NEAR(after.box.top, 2.0 + before.box.top / 2.0, 1e-9) << before.text;
        EXPECT_NEAR(after.box.right, 1.0 + before.box.right / 2.0, 1e-9) << before.text;
        EXPECT_NEAR(after.box.bottom, 2.0 + before.box.bottom / 2.0, 1e-9) << before.text;
        EXPECT_DOUBLE_EQ(after.look.points, before.look.points / 2.0) << before.text;
    }
    const auto half = [](PagePoint point) { return PagePoint{1.0 + point.x / 2.0, 2.0 + point.y / 2.0}; };
    ASSERT_EQ(canvas.lines.size(), whole.lines.size());
    for (std::size_t i = 0; i < whole.lines.size(); ++i) {
        EXPECT_TRUE(near(canvas.lines[i].from, half(whole.lines[i].from))) << "line " << i;
        EXPECT_TRUE(near(canvas.lines[i].to, half(whole.lines[i].to))) << "line " << i;
        EXPECT_EQ(canvas.lines[i].pen.width, whole.lines[i].pen.width) << "a thin line stays as thin";
    }
    ASSERT_EQ(canvas.rectangles.size(), whole.rectangles.size());
    for (std::size_t i = 0; i < whole.rectangles.size(); ++i) {
        const PageBox &before = whole.rectangles[i].box, &after = canvas.rectangles[i].box;
        EXPECT_TRUE(near({after.left, after.top}, half({before.left, before.top}))) << "band " << i;
        EXPECT_TRUE(near({after.right, after.bottom}, half({before.right, before.bottom}))) << "band " << i;
    }
}

TEST(GraphText, BeginsAtItsPlaceStandsInItsMiddleOrRunsDown) {
    const auto expectBox = [](const GraphText& text, const PageBox& box) {
        EXPECT_TRUE(near({text.box.left, text.box.top}, {box.left, box.top})) << text.text;
        EXPECT_TRUE(near({text.box.right, text.box.bottom}, {box.right, box.bottom})) << text.text;
        EXPECT_EQ(text.look.colour, colours::kRed) << text.text;
        EXPECT_EQ(text.look.typeface, Typeface::Times) << text.text;
        EXPECT_FALSE(text.look.bold || text.look.vertical) << text.text;
    };
    // Six inches of room, and a fifth of the type for what hangs below.
    const GraphText plain = graphText({1.0, 2.0}, "plain", 36.0, colours::kRed);
    expectBox(plain, {1.0, 2.0, 7.0, 1.4});
    EXPECT_EQ(plain.look.alignment, Alignment::Left);
    EXPECT_EQ(plain.look.points, 36.0);
    EXPECT_FALSE(plain.stacked);
    const GraphText centred = centredGraphText({1.0, 4.0, 3.0, 2.0}, "centred", 12.0, colours::kRed);
    expectBox(centred, {1.0, 4.0, 3.0, 2.0});
    EXPECT_EQ(centred.look.alignment, Alignment::Centre);
    EXPECT_EQ(centred.look.points, 12.0);
    EXPECT_FALSE(centred.stacked);
    // Four lines of half an inch, each 1.15 times as high as its type; as wide as the type.
    const GraphText down = stackedGraphText({1.0, 4.0}, "down", 36.0, colours::kRed);
    expectBox(down, {1.0, 4.0, 1.5, 4.0 - 4.0 * 1.15 * 0.5});
    EXPECT_EQ(down.look.alignment, Alignment::Centre);
    EXPECT_TRUE(down.stacked);
}

TEST(Graph, LabelsEveryFewLinesFromTheFirst) {
    Graph graph = torqueGraph();
    graph.x.labelEvery = 2;
    graph.y.labelEvery = 5;
    const RecordingCanvas canvas = drawn(graph);
    for (const char* const there : {"0.0010", "0.0020", "0.0050", "5.0", "10.0"})
        EXPECT_TRUE(canvas.hasText(there)) << there;
    for (const char* const none : {"0.0005", "0.0015", "0.0045", "1.0", "4.0", "9.0"})
        EXPECT_FALSE(canvas.hasText(none)) << none;
}

TEST(Graph, HasLinesAcrossItsEndsWithoutAFrame) {
    Graph graph = torqueGraph();
    graph.frame.reset();
    const RecordingCanvas canvas = drawn(graph);
    constexpr Colour kGrey = rgb(128, 128, 128);
    EXPECT_TRUE(hasLine(canvas, {0.75, 0.45}, {0.75, 4.5}, kGrey, 9525.0));
    EXPECT_TRUE(hasLine(canvas, {8.0, 0.45}, {8.0, 4.5}, kGrey, 9525.0));
    EXPECT_TRUE(hasLine(canvas, {0.7, 0.5}, {8.0, 0.5}, kGrey, 9525.0));
    EXPECT_TRUE(hasLine(canvas, {0.7, 4.5}, {8.0, 4.5}, kGrey, 9525.0));
    EXPECT_EQ(canvas.lines.size(), 72U) << "no frame";
}

TEST(Graph, PreviewIsItsCurvesAloneOverTheWholePage) {
    const RecordingCanvas canvas = drawn(preview(deflectionGraph(colours::kRed, colours::kBlue), 3.5, 2.0));
    EXPECT_TRUE(canvas.texts.empty());
    EXPECT_EQ(canvas.lines.size(), 7U);
    // The last point, (700, 0.004), is the upper right corner.
    EXPECT_TRUE(hasLine(canvas, {2.0, 0.8}, {2.5, 1.2}, colours::kBlue, 19050.0));
    EXPECT_TRUE(near(canvas.lines.back().to, {3.5, 2.0}));
}

TEST(Graph, NeedsStepsThatAPageCanHold) {
    for (const double step : {0.0, -1.0, 1e-300}) {
        Graph graph = torqueGraph();
        graph.y.step = step;
        EXPECT_THROW(drawn(graph), RuntimeError);
    }
    Graph endless = torqueGraph();
    endless.x.end = 0.0;
    EXPECT_THROW(drawn(endless), RuntimeError);
}

TEST(GraphReadout, TakesThePointOfThePointersColumnWhenItIsNear) {
    const Graph graph = torqueGraph();
    // The pointer stands on the value of point 19; as its column counts from zero, point 20 is read.
    const PagePoint on20{0.75 + 0.0020 * 1450.0, 0.5 + 4.0 * 0.4};
    const auto mark = pointReadout(graph, {0.75 + 0.0019 * 1450.0, on20.y});
    ASSERT_TRUE(mark);
    EXPECT_TRUE(near(mark->at, on20));
    EXPECT_EQ(mark->label.text, "point 20");
    EXPECT_EQ(mark->label.look.alignment, Alignment::Left);
    EXPECT_GT(mark->label.box.left, on20.x);
    EXPECT_NEAR(mark->label.box.top, on20.y + 0.4, 1e-9);
}

TEST(GraphReadout, PutsTheLabelOnTheSideThatThePointAsksFor) {
    const Graph graph = torqueGraph();
    const PagePoint on45{0.75 + 0.0045 * 1450.0, 0.5 + 9.0 * 0.4};
    const auto mark = pointReadout(graph, {on45.x - 0.1, on45.y});
    ASSERT_TRUE(mark);
    EXPECT_EQ(mark->label.look.alignment, Alignment::Right);
    EXPECT_LT(mark->label.box.right, on45.x);
    EXPECT_NEAR(mark->label.box.top, on45.y + 0.6, 1e-9);
}

TEST(GraphReadout, HasNothingFarFromTheCurveNorBesideIt) {
    const Graph graph = torqueGraph();
    EXPECT_FALSE(pointReadout(graph, {4.0, 4.4}));
    EXPECT_FALSE(pointReadout(graph, {0.6, 0.5}));
    EXPECT_FALSE(pointReadout(graph, {8.1, 4.5}));
    EXPECT_FALSE(pointReadout(pictureGraph(), {4.0, 2.0}));
}

TEST(GraphReadout, ReachesHalfAnInchAndNoFurther) {
    const Graph graph = torqueGraph();
    // Point 20, above which the pointer stands.
    const PagePoint on20{0.75 + 0.0020 * 1450.0, 0.5 + 4.0 * 0.4};
    const double column = on20.x - 0.0001 * 1450.0;
    const double aside = on20.x - column;
    EXPECT_TRUE(pointReadout(graph, {column, on20.y + std::sqrt(0.499 * 0.499 - aside * aside)}));
    EXPECT_FALSE(pointReadout(graph, {column, on20.y + std::sqrt(0.501 * 0.501 - aside * aside)}));
    EXPECT_TRUE(pointReadout(graph, {column, on20.y - std::sqrt(0.499 * 0.499 - aside * aside)}));
    EXPECT_FALSE(pointReadout(graph, {column, on20.y - std::sqrt(0.501 * 0.501 - aside * aside)}));
}

TEST(GraphReadout, CrossIsThinAndBlackWithArmsSixtyDegreesApart) {
    const auto mark = pointReadout(torqueGraph(), {2.2, 1.3});
    ASSERT_TRUE(mark);
    RecordingCanvas canvas;
    drawMark(*mark, canvas);
    for (std::size_t i = 0; i < canvas.lines.size(); ++i) {
        const auto& arm = canvas.lines[i];
        const double angle = static_cast<double>(i) * M_PI / 3.0;
        EXPECT_TRUE(near(arm.from, {mark->at.x + 0.1 * std::cos(angle), mark->at.y + 0.1 * std::sin(angle)}))
            << i;
        const double outer = std::hypot(arm.to.x - mark->at.x, arm.to.y - mark->at.y);
        EXPECT_TRUE(
            near(arm.to, {mark->at.x + outer * std::cos(angle), mark->at.y + outer * std::sin(angle)}))
            << i;
        EXPECT_LT(outer, 0.5) << "within the reach of the pointer";
        EXPECT_EQ(arm.pen.colour, colours::kBlack);
        EXPECT_EQ(arm.pen.width, 9525.0);
        EXPECT_EQ(arm.pen.dash, 0);
    }
}

TEST(GraphReadout, LabelIsInItsBoxClearOfThePoint) {
    const Graph graph = torqueGraph();
    for (const double x : {2.2, 7.2}) {
        const auto mark = pointReadout(graph, {x, 0.5 + (x - 0.75) / 1450.0 * 2000.0 * 0.4});
        ASSERT_TRUE(mark) << x;
        const PageBox& box = mark->label.box;
        EXPECT_GT(box.right - box.left, 1.0) << "room for the widest label";
        // A line of text is 1.15 times as high as its type.
        EXPECT_GT(box.top - box.bottom, 1.15 * mark->label.look.points / 72.0);
        EXPECT_LT(box.top - box.bottom, 2.0 * mark->label.look.points / 72.0);
        const double aside = box.left > mark->at.x ? box.left - mark->at.x : mark->at.x - box.right;
        EXPECT_NEAR(aside, 0.2, 1e-9) << x;
        EXPECT_EQ(mark->label.look.colour, colours::kBlack);
    }
}

TEST(GraphReadout, CrossHasSixArmsThatLeaveTheirMiddleFree) {
    const auto mark = pointReadout(torqueGraph(), {2.2, 1.3});
    ASSERT_TRUE(mark);
    RecordingCanvas canvas;
    drawMark(*mark, canvas);
    ASSERT_EQ(canvas.lines.size(), 6U);
    for (const auto& arm : canvas.lines) {
        const double inner = std::hypot(arm.from.x - mark->at.x, arm.from.y - mark->at.y);
        const double outer = std::hypot(arm.to.x - mark->at.x, arm.to.y - mark->at.y);
        EXPECT_NEAR(inner, 0.1, 1e-9);
        EXPECT_GT(outer, inner);
    }
    EXPECT_TRUE(canvas.hasText(mark->label.text));
}

TEST(GraphInRtf, WritesBandsTextsAndPiecesAsShapes) {
    RtfDocument document;
    Graph graph = deflectionGraph(colours::kRed, colours::kBlue);
    graph.bands = {{{100.0, 0.0}, {200.0, 0.001}}};
    writeGraph(graph, document);
    const std::string& rtf = document.rtf();
    // The band from (2, 1.25) to (3, 2.25): 1440 twips an inch, from the top of an 11 inch page.
    EXPECT_NE(rtf.find("\\shpleft2880\\shptop12600"), std::string::npos);
    EXPECT_NE(rtf.find("\\shpright4320\\shpbottom14040"), std::string::npos);
    EXPECT_NE(rtf.find("{\\sn fillColor}{\\sv 14737632}"), std::string::npos);
    EXPECT_NE(rtf.find("\\cf6\\fs32 K19013XP0\\par"), std::string::npos);
    EXPECT_NE(rtf.find("{\\sn txflTextFlow}{\\sv 2}"), std::string::npos);
    EXPECT_NE(rtf.find("\\qr\\li-72"), std::string::npos);
    int red = 0;
    int blue = 0;
    for (const SheetRecord& record : readSheetRecords(document.records())) {
        const auto& line = std::get<SheetLine>(record);
        red += line.colour == colours::kRed ? 1 : 0;
        blue += line.colour == colours::kBlue ? 1 : 0;
    }
    EXPECT_EQ(red, 4);
    EXPECT_EQ(blue, 3);
}

TEST(GraphInRtf, DrawsADashedCurveDashedAndOthersSolid) {
    Graph graph = deflectionGraph(colours::kRed, colours::kBlue);
    graph.curves[0].pen.dash = 6;
    RtfDocument document;
    writeGraph(graph, document);
    for (const SheetRecord& record : readSheetRecords(document.records())) {
        const auto& line = std::get<SheetLine>(record);
        EXPECT_EQ(line.dash, line.colour == colours::kRed ? 6 : 0);
        EXPECT_EQ(line.dataSheet, line.colour == colours::kRed) << "only these tell a dash";
    }
}

TEST(TenSteps, EndAtFiveTimesAWholeNumberOfAPowerOfTen) {
    const struct {
        double top, most;
    } rows[] = {{1.85, 2.0}, {9.7, 10.0}, {10.0, 15.0}, {0.0123, 0.015}, {432.0, 450.0}, {4.99, 10.0}};
    for (const auto& row : rows) {
        EXPECT_NEAR(tenStepsFor(row.top).most, row.most, 1e-12 * row.most) << row.top;
        EXPECT_NEAR(tenStepsFor(row.top).step, row.most / 10.0, 1e-12 * row.most) << row.top;
    }
}

}  // namespace
}  // namespace norlaplan
