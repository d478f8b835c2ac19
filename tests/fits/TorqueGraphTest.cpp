#include <cmath>

#include <gtest/gtest.h>

#include "fits/SampleBearings.h"
#include "fits/TorqueAxes.h"
#include "fits/TorqueCurve.h"
#include "fits/TorqueGraph.h"
#include "numbers/FormatNumber.h"

namespace norlaplan {
namespace {

using testing::RecordingCanvas;
using testing::SampleBearings;

class TheTorqueGraph : public ::testing::TestWithParam<const char*> {
  protected:
    void take(const std::string& number) {
        ASSERT_TRUE(run.decoded(number)) << number;
        computeTorqueCurve(run.bearing(), state.torque, run.messages);
    }
    bool metric() const { return GetParam() == std::string("METRIC"); }

    SampleBearings run{GetParam()};
    ProgramState& state = run.state;
};

TEST_P(TheTorqueGraph, BeginsItsTitlesWhereTheyStandOnThePicture) {
    take("K19013XP0");
    const Graph graph = torqueGraph(state, GraphTarget::Screen);
    struct Row {
        const GraphText& text;
        const char* words;
        double x, y, points;
        Colour colour;
    };
    const Colour red = rgb(128, 0, 0), blue = rgb(0, 0, 128);
    const Row rows[] = {
        {graph.number, "K19013XP0", 3.43, 5.0, 16.0, red},
        {graph.title, "UNMOUNTED STARTING TORQUE DUE TO PRELOAD", 1.25, 4.75, 14.0, blue},
        {graph.xTitle, metric() ? "PRELOAD IN MILLIMETERS" : "PRELOAD IN INCHES", 3.0, 0.2, 10.0, blue},
        {graph.yTitle, metric() ? "   TORQUE IN NEWTON METERS" : "TORQUE IN INCH POUNDS", 0.05, 5.0, 10.0,
         blue}};
    for (const Row& row : rows) {
        EXPECT_EQ(row.text.text, row.words);
        EXPECT_EQ(row.text.box.left, row.x) << row.words;
        EXPECT_EQ(row.text.box.top, row.y) << row.words;
        EXPECT_EQ(row.text.look.points, row.points) << row.words;
        EXPECT_EQ(row.text.look.colour, row.colour) << row.words;
    }
    EXPECT_TRUE(graph.yTitle.stacked);
}

TEST_P(TheTorqueGraph, RunsFromTheCornerThroughEveryPointAtItsPlace) {
    take("K19013BP0E");
    const Graph graph = torqueGraph(state, GraphTarget::Screen);
    ASSERT_EQ(graph.curves.size(), 1U);
    const std::vector<PagePoint>& points = graph.curves[0].points;
    ASSERT_EQ(points.size(), 51U);
    const TorqueAxes axes = computeTorqueAxes(state.torque, state.units);
    for (int i = 0; i <= 50; ++i) {
        const PagePoint at = graph.place(points[static_cast<std::size_t>(i)]);
        EXPECT_NEAR(at.x, 0.75 + state.torque.row(i).preload * axes.sx, 1e-9);
        EXPECT_NEAR(at.y, 0.5 + state.torque.row(i).torque * axes.sy / state.units.momentFactor, 1e-9);
    }
    EXPECT_EQ(graph.curves[0].pen.colour, rgb(255, 0, 0));
}

TEST_P(TheTorqueGraph, LabelsItsGridInDisplayUnits) {
    take("K19013XP0");
    RecordingCanvas canvas;
    drawGraph(torqueGraph(state, GraphTarget::Screen), canvas);
    for (const auto& [inches, millimetres] : {std::pair{"0", "0"}, std::pair{"0.0005", "0.01"},
                                              std::pair{"0.0030", "0.06"}, std::pair{"0.0050", "0.13"}})
        EXPECT_TRUE(canvas.hasText(metric() ? millimetres : inches)) << inches;
    EXPECT_FALSE(canvas.hasText(metric() ? "0.14" : "0.0055"));
}

TEST_P(TheTorqueGraph, OnPaperStandsFourAndAHalfInchesHigherAndSetsOutOnTheBaseLine) {
    take("K19013XP0");
    const Graph graph = torqueGraph(state, GraphTarget::Printer);
    EXPECT_EQ(graph.origin.y, 5.0);
    EXPECT_EQ(graph.number.box.top, 9.5);
    const PagePoint start = graph.place(graph.curves[0].points.at(0));
    EXPECT_NEAR(start.x, 5.25, 1e-9);
    EXPECT_NEAR(start.y, 5.0, 1e-9);
    EXPECT_EQ(graph.curves[0].points.size(), 52U);
}

/// The read-out, written down once more: the label's text for a pointer, or none.
std::string plainReadout(const ProgramState& state, const TorqueAxes& axes, double x, double y) {
    const double n = std::floor((x - 0.75) / axes.sx * 10000.0 + 0.5) + 1.0;
    if (n <= 0.0 || n > 50.0) return "";
    const TorquePoint& row = state.torque.row(static_cast<int>(n));
    const double px = axes.sx * row.preload + 0.75;
    const double py = axes.sy * row.torque / state.units.momentFactor + 0.5;
    if (std::sqrt((x - px) * (x - px) + (y - py) * (y - py)) >= 0.5) return "";
    return FormatNumber(row.preload * state.units.lengthFactor, "0.0000") + " , " +
           FormatNumber(row.torque / state.units.momentFactor, "0.0");
}

TEST_P(TheTorqueGraph, ReadsThePointUnderThePointerAcrossTheWholePicture) {
    take("K19013BP0R");
    const Graph graph = torqueGraph(state, GraphTarget::Screen);
    const TorqueAxes axes = computeTorqueAxes(state.torque, state.units);
    int shown = 0, hidden = 0;
    for (double x = 0.003; x < 8.5; x += 0.0371) {
        for (double y = 0.007; y < 5.0; y += 0.113) {
            const auto mark = pointReadout(graph, {x, y});
            EXPECT_EQ(mark ? mark->label.text : "", plainReadout(state, axes, x, y)) << x << " " << y;
            ++(mark ? shown : hidden);
            if (!mark) continue;
            EXPECT_EQ(mark->arms.size(), 6U);
            EXPECT_LE(mark->label.box.top, 5.0);
            EXPECT_GE(mark->label.box.left, 0.0);
            EXPECT_LE(mark->label.box.right, 8.5);
        }
    }
    EXPECT_GT(shown, 200);
    EXPECT_GT(hidden, 200);
}

TEST_P(TheTorqueGraph, PutsTheLabelAtTheLeftFromThe43rdPointOn) {
    take("K19013BP0R");
    const Graph graph = torqueGraph(state, GraphTarget::Screen);
    for (std::size_t i = 1; i <= 50; ++i)
        EXPECT_EQ(graph.readout.points.at(i - 1).labelLeft, i >= 43) << i;
    EXPECT_EQ(graph.readout.points.at(0).labelAbove, 0.4);
}

TEST_P(TheTorqueGraph, OfASavedDocumentHasAxesOfItsOwn) {
    take("K19013XP0");
    const RtfGraphPage page = torqueGraphPage(state);
    EXPECT_EQ(page.title, "UNMOUNTED STARTING TORQUE DUE TO PRELOAD");
    EXPECT_EQ(page.yTitle, metric() ? "TORQUE  IN  NEWTON  METERS" : "TORQUE  IN  INCH  POUNDS");
    EXPECT_EQ(page.xMost, metric() ? 0.15 : static_cast<double>(0.005F));
    EXPECT_EQ(page.xStep, metric() ? 0.015 : 0.0005);
    const double top = state.torque.row(50).torque / state.units.momentFactor;
    EXPECT_GE(page.yMost, top);
    EXPECT_NEAR(page.yStep * 10.0, page.yMost, 1e-12);
    ASSERT_EQ(page.points.size(), 50U);
    EXPECT_NEAR(page.points[49].x, metric() ? 0.127 : 0.005, 1e-7);
    EXPECT_EQ(page.points[49].y, top);
}

INSTANTIATE_TEST_SUITE_P(Units, TheTorqueGraph, ::testing::Values("US", "METRIC"));

class ThePreloadRange : public ::testing::Test {
  protected:
    Graph graphOf(const std::string& number, GraphTarget target = GraphTarget::Screen) {
        EXPECT_TRUE(run.decoded(number)) << number;
        computeTorqueCurve(run.bearing(), run.state.torque, run.messages);
        return torqueGraph(run.state, target);
    }

    SampleBearings run;
};

TEST_F(ThePreloadRange, IsMarkedForThePreloadLettersAlone) {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        for (const GraphTarget target : {GraphTarget::Screen, GraphTarget::Printer}) {
            const Graph graph = graphOf(std::string("K19013XP0") + letter, target);
            const bool preload = letter >= 'K' && letter <= 'Y';
            EXPECT_EQ(graph.bands.size(), preload ? 2U : 0U) << letter;
            ASSERT_EQ(graph.notes.size(), preload ? 1U : 0U) << letter;
            if (!preload) continue;
            EXPECT_EQ(graph.notes[0].text, std::string("\"") + letter + "\" PRELOAD RANGE IN GREY");
        }
    }
    EXPECT_TRUE(graphOf("K19013XP0").bands.empty());
}

TEST_F(ThePreloadRange, ReachesFromItsLowLimitToItsHighOneUpToTheCurve) {
    // R is 0.0004 to 0.0008 inch: rows 4 and 8.
    for (const std::string number : {"K19013XP0R", "K19013BP0R"}) {
        const Graph graph = graphOf(number);
        ASSERT_EQ(graph.bands.size(), 2U);
        const TorqueCurve& curve = run.state.torque;
        EXPECT_EQ(graph.bands[0].from.x, curve.row(4).preload);
        EXPECT_EQ(graph.bands[0].from.y, 0.0);
        EXPECT_EQ(graph.bands[0].to.x, curve.row(8).preload);
        EXPECT_EQ(graph.bands[0].to.y, curve.row(8).torque);
        EXPECT_EQ(graph.bands[1].from.x, 0.0);
        EXPECT_EQ(graph.bands[1].from.y, curve.row(4).torque);
        EXPECT_EQ(graph.bands[1].to.x, curve.row(4).preload);
        EXPECT_EQ(graph.bands[1].to.y, curve.row(8).torque);
        EXPECT_EQ(graph.bands[0].fill, rgb(224, 224, 224));
    }
}

TEST_F(ThePreloadRange, OfLimitsBetweenTwoRowsRunsToTheBaseLine) {
    graphOf("K19013XP0R");
    run.state.bearing.fitRangeText = "R= .0405-.0708 Preload";
    const Graph graph = torqueGraph(run.state, GraphTarget::Screen);
    EXPECT_EQ(graph.bands[0].to.y, 0.0);
    EXPECT_EQ(graph.bands[1].from.y, 0.0);
}

TEST_F(ThePreloadRange, CollapsesInMillimetresWhoseTextsReadZero) {
    SampleBearings metric("METRIC");
    ASSERT_TRUE(metric.decoded("K19013XP0R"));
    computeTorqueCurve(metric.bearing(), metric.state.torque, metric.messages);
    const Graph graph = torqueGraph(metric.state, GraphTarget::Screen);
    ASSERT_EQ(graph.bands.size(), 2U);
    EXPECT_EQ(graph.bands[0].to.x, 0.0);
    EXPECT_EQ(graph.notes.at(0).text, "\"R\" PRELOAD RANGE IN GREY");
}

TEST_F(ThePreloadRange, GoesByTheFitLetterOnScreenAndByTheLastCharacterOnPaper) {
    graphOf("K19013XP0R");
    run.state.bearing.partNumber = "K19013XP0";
    EXPECT_EQ(torqueGraph(run.state, GraphTarget::Screen).bands.size(), 2U);
    EXPECT_TRUE(torqueGraph(run.state, GraphTarget::Printer).bands.empty());
}

TEST(TorqueLabels, HaveAsManyPlacesAsTheirPowerOfTenAndNoneWhenSmall) {
    struct Row {
        double top;
        const char *screen, *printer;
    };
    const Row rows[] = {
        {37.0, "#,###", "#,###.0"}, {7.0, "##.0", "##.0"}, {0.5, "0.00", "0.00"}, {0.05, "", ""}};
    ProgramState state;
    ApplyUnitSystem("US", state.units);
    for (const Row& row : rows) {
        for (int i = 1; i <= 50; ++i)
            state.torque.row(i) = {i / 10000.0, row.top * i / 50.0};
        EXPECT_EQ(torqueGraph(state, GraphTarget::Screen).y.picture, row.screen) << row.top;
        EXPECT_EQ(torqueGraph(state, GraphTarget::Printer).y.picture, row.printer) << row.top;
    }
}

}  // namespace
}  // namespace norlaplan
