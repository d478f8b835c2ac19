#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "fits/PlayCurve.h"
#include "fits/PlayGraph.h"
#include "fits/SampleBearings.h"
#include "numbers/FormatNumber.h"

namespace norlaplan {
namespace {

using testing::RecordingCanvas;
using testing::SampleBearings;

struct Case {
    PlayGraph which;
    const char* units;
};

class ThePlayGraph : public ::testing::TestWithParam<Case> {
  protected:
    Graph graphOf(const std::string& number, GraphTarget target = GraphTarget::Screen) {
        EXPECT_TRUE(run.decoded(number)) << number;
        computePlayCurve(run.bearing(), state.units, state.play);
        return playGraph(state, which, target);
    }
    bool metric() const { return GetParam().units == std::string("METRIC"); }
    double value(int row) const { return tilt ? state.play.row(row).tilt : state.play.row(row).axialPlay; }

    SampleBearings run{GetParam().units};
    ProgramState& state = run.state;
    PlayGraph which = GetParam().which;
    bool tilt = GetParam().which == PlayGraph::Tilt;
};

TEST_P(ThePlayGraph, BeginsItsTitlesWhereTheyStandOnThePicture) {
    const Graph graph = graphOf("K19013XP0E");
    EXPECT_EQ(graph.number.text, "K19013XP0");
    EXPECT_EQ(graph.number.box.left, 3.43);
    EXPECT_EQ(graph.title.text,
              tilt ? "TILT OF AXIS DUE TO DIAMETRAL CLEARANCE" : "AXIAL PLAY DUE TO DIAMETRAL CLEARANCE");
    EXPECT_EQ(graph.title.box.left, 1.5);
    EXPECT_EQ(graph.xTitle.text, metric() ? "CLEARANCE IN mm" : "CLEARANCE IN INCHES");
    EXPECT_EQ(graph.xTitle.box.left, 2.75);
    EXPECT_EQ(graph.yTitle.box.top, 4.625);
    const char* const axial = metric() ? "  AXIAL MOVEMENT IN MM" : "AXIAL MOVEMENT IN INCHES";
    EXPECT_EQ(graph.yTitle.text, tilt ? "TILT IN RADIANS" : axial);
    const char* const printed = metric() ? "AXIAL MOVEMENT IN mm" : "AXIAL MOVEMENT IN INCHES";
    EXPECT_EQ(playGraph(state, which, GraphTarget::Printer).yTitle.text, tilt ? "TILT IN RADIANS" : printed);
}

TEST_P(ThePlayGraph, RunsThroughEveryPointAndFillsThePlot) {
    const Graph graph = graphOf("K19013CP0");
    const std::vector<PagePoint>& points = graph.curves.at(0).points;
    ASSERT_EQ(points.size(), static_cast<std::size_t>(state.play.rowCount));
    for (int i = 1; i <= state.play.rowCount; ++i) {
        const PagePoint at = graph.place(points[static_cast<std::size_t>(i - 1)]);
        const double scale = tilt ? state.play.sTilt : state.play.sy;
        EXPECT_NEAR(at.x, 0.75 + state.play.row(i).clearance * state.play.sx, 1e-6);
        EXPECT_NEAR(at.y, 0.5 + value(i) * scale, 1e-9);
    }
    EXPECT_NEAR(graph.place(points.back()).y, 4.5, 1e-9);
    RecordingCanvas canvas;
    drawGraph(graph, canvas);
    const auto pieces = std::count_if(canvas.lines.begin(), canvas.lines.end(),
                                      [](const auto& line) { return line.pen.colour == rgb(255, 0, 0); });
    EXPECT_EQ(pieces, state.play.rowCount - 1);
}

TEST_P(ThePlayGraph, MarksItsRangeUpToTheCurve) {
    const Graph graph = graphOf("K19013XP0E");
    const double L = state.units.lengthFactor;
    const double low = tilt ? state.play.tiltAtLow : state.play.playAtLow;
    const double high = tilt ? state.play.tiltAtHigh : state.play.playAtHigh;
    ASSERT_EQ(graph.bands.size(), 2U);
    EXPECT_EQ(graph.bands[0].from.x, L * state.play.clearanceLow);
    EXPECT_EQ(graph.bands[0].from.y, 0.0);
    EXPECT_EQ(graph.bands[0].to.x, L * state.play.clearanceHigh);
    EXPECT_EQ(graph.bands[0].to.y, high);
    EXPECT_EQ(graph.bands[1].from.x, 0.0);
    EXPECT_EQ(graph.bands[1].from.y, low);
    EXPECT_EQ(graph.bands[1].to.x, L * state.play.clearanceLow);
    EXPECT_EQ(graph.bands[1].to.y, high);
}

TEST_P(ThePlayGraph, NamesTheRangeThatItMarks) {
    for (const auto& [letter, words] :
         {std::pair{"", "STANDARD CLEARANCE RANGE IN GREY"},
          std::pair{"K", "STANDARD CLEARANCE RANGE IN GREY"},
          std::pair{"Z", "STANDARD CLEARANCE RANGE IN GREY"}, std::pair{"A", "\"A\" CLEARANCE RANGE IN GREY"},
          std::pair{"J", "\"J\" CLEARANCE RANGE IN GREY"}}) {
        for (const GraphTarget target : {GraphTarget::Screen, GraphTarget::Printer}) {
            const Graph graph = graphOf(std::string("K19013XP0") + letter, target);
            ASSERT_EQ(graph.notes.size(), 1U);
            EXPECT_EQ(graph.notes[0].text, words);
            EXPECT_EQ(graph.notes[0].box.left, 5.0);
        }
    }
}

TEST_P(ThePlayGraph, DividesTheClearancesInTwelve) {
    RecordingCanvas canvas;
    drawGraph(graphOf("K19013XP0"), canvas);
    for (const auto& [inches, millimetres] :
         {std::pair{"0", "0"}, std::pair{"0.0005", "0.0127"}, std::pair{"0.0060", "0.1524"}})
        EXPECT_TRUE(canvas.hasText(metric() ? millimetres : inches)) << inches;
    EXPECT_FALSE(canvas.hasText(metric() ? "0.1651" : "0.0065"));
}

TEST_P(ThePlayGraph, ReadsThePointUnderThePointerAcrossTheWholePicture) {
    const Graph graph = graphOf("K19013XP0");
    const PlayCurve& play = state.play;
    const double scale = tilt ? play.sTilt : play.sy;
    int shown = 0;
    for (double x = 0.003; x < 8.5; x += 0.0371) {
        for (double y = 0.007; y < 5.0; y += 0.113) {
            std::string expected;
            const double n =
                std::floor((x - 0.75) / (play.sx * state.units.lengthFactor) * 10000.0 + 0.5) + 1.0;
            if (n > 0.0 && n <= play.rowCount) {
                const int row = static_cast<int>(n);
                const double px = play.row(row).clearance * play.sx + 0.75;
                const double py = value(row) * scale + 0.5;
                if (std::sqrt((x - px) * (x - px) + (y - py) * (y - py)) < 0.5) {
                    expected = FormatNumber(play.row(row).clearance, "0.0000") + " , " +
                               FormatNumber(value(row), tilt ? "0.00000" : "0.0000");
                }
            }
            const auto mark = pointReadout(graph, {x, y});
            EXPECT_EQ(mark ? mark->label.text : "", expected) << x << " " << y;
            if (!mark) continue;
            ++shown;
            EXPECT_LE(mark->label.box.top, 5.0);
            EXPECT_EQ(mark->label.look.alignment == Alignment::Right, mark->at.y + 1.0 >= 5.0);
        }
    }
    EXPECT_GT(shown, 200);
}

TEST_P(ThePlayGraph, OfASavedDocumentHasRoundAxes) {
    graphOf("K19013XP0");
    RtfGraphPage page = playGraphPage(state, which);
    EXPECT_EQ(page.origin.x, 0.9);
    EXPECT_EQ(page.origin.y, 4.5);
    EXPECT_EQ(page.width, 6.8);
    EXPECT_EQ(page.height, 4.0);
    EXPECT_EQ(page.xMost, metric() ? 0.15 : static_cast<double>(0.006F));
    EXPECT_EQ(page.xStep, metric() ? 0.015 : 0.0005);
    EXPECT_EQ(page.points.size(), static_cast<std::size_t>(state.play.rowCount));
    EXPECT_GE(page.yMost, value(state.play.rowCount));
    EXPECT_NEAR(page.yStep * 10.0, page.yMost, 1e-12);
    run.state.bearing.stdClearanceHigh = 0.006;
    computePlayCurve(run.bearing(), state.units, state.play);
    page = playGraphPage(state, which);
    EXPECT_EQ(page.xMost, metric() ? 0.3 : static_cast<double>(0.012F));
    EXPECT_EQ(page.xStep, metric() ? 0.025 : 0.001);
}

INSTANTIATE_TEST_SUITE_P(GraphsAndUnits, ThePlayGraph,
                         ::testing::Values(Case{PlayGraph::AxialPlay, "US"},
                                           Case{PlayGraph::AxialPlay, "METRIC"}, Case{PlayGraph::Tilt, "US"},
                                           Case{PlayGraph::Tilt, "METRIC"}));

}  // namespace
}  // namespace norlaplan
