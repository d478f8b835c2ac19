#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "fits/SampleBearings.h"
#include "fits/ThermalFits.h"
#include "fits/ThermalFitsGraph.h"
#include "fits/ThermalFitsReport.h"
#include "support/FaultOf.h"
#include "support/OnPaper.h"

namespace norlaplan {
namespace {

using testing::faultOf;
using testing::RecordingCanvas;
using testing::SampleBearings;

class TheFitDrawing : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(run.decoded("K19013XP0E"));
        prepareThermalFits(state);
    }
    void calculate(const std::string& high, const std::string& low) {
        state.thermalFits.highTempText = high;
        state.thermalFits.lowTempText = low;
        state.thermalFits.housingExpansionText = "1.3e-5";
        ASSERT_FALSE(computeThermalFits(state));
    }
    /// The line of a colour; null when it lies outside.
    static const GraphCurve* lineOf(const Graph& graph, const FitLine& line) {
        for (const GraphCurve& curve : graph.curves) {
            if (curve.pen.colour == line.colour) return &curve;
        }
        return nullptr;
    }

    SampleBearings run;
    ProgramState& state = run.state;
};

TEST_F(TheFitDrawing, HasEveryLineOfItsLegendInItsPlace) {
    calculate("268", "-32");
    const Graph graph = thermalFitsGraph(state);
    ASSERT_EQ(graph.curves.size(), kFitLegend.size());
    // From -32 - 75 = -107 to (236) / 4 + 268 = 327: 434 degrees.
    const double Y = 1.3e-05 * 434.0 * state.bearing.outsideDiameter * 2.25;
    for (const auto& [line, degrees] :
         {std::pair{kLowLine, -32.0}, std::pair{kHighLine, 268.0}, std::pair{kRoomLine, 68.0}}) {
        const GraphCurve* const curve = lineOf(graph, line);
        ASSERT_NE(curve, nullptr) << line.name;
        for (const PagePoint& point : curve->points)
            EXPECT_NEAR(point.x, (degrees + 107.0) / 434.0, 1e-9) << line.name;
        EXPECT_EQ(curve->points[0].y, 0.0);
        EXPECT_EQ(curve->points[1].y, 1.0);
    }
    const ThermalFits& fits = state.thermalFits;
    const FitGoal goal = *fitGoal(state.bearing);
    struct Row {
        FitLine line;
        double from, to, growth, offset;
    };
    const Row rows[] = {
        {kBoreLine, -107.0, 327.0, goal.bore * 7e-6, 0.4 * Y},
        {kOdLine, -107.0, 327.0, goal.od * 7e-6, 0.6 * Y},
        {kShaftLine, -32.0, 268.0, fits.shaftSize * 7e-6, 0.4 * Y - (goal.bore - fits.shaftSize)},
        {kHousingLine, -32.0, 268.0, fits.housingSize * 1.3e-5, 0.6 * Y + (fits.housingSize - goal.od)}};
    for (const Row& row : rows) {
        const GraphCurve* const curve = lineOf(graph, row.line);
        ASSERT_NE(curve, nullptr) << row.line.name;
        const double ends[] = {row.from, row.to};
        for (std::size_t i = 0; i < 2; ++i) {
            EXPECT_NEAR(curve->points[i].x, (ends[i] + 107.0) / 434.0, 1e-9) << row.line.name;
            EXPECT_NEAR(curve->points[i].y, (row.offset + row.growth * (ends[i] - 68.0)) / Y, 1e-5)
                << row.line.name;
        }
    }
}

TEST_F(TheFitDrawing, IsEmptyBeforeACalculation) {
    EXPECT_TRUE(thermalFitsGraph(state).curves.empty());
}

TEST_F(TheFitDrawing, IsCutOffAtItsEdges) {
    for (const auto& [high, low] :
         {std::pair{"-40", "-40"}, std::pair{"400", "350"}, std::pair{"-100", "-300"},
          std::pair{"5000", "-400"}, std::pair{"1", "0"}}) {
        calculate(high, low);
        for (const GraphCurve& curve : thermalFitsGraph(state).curves) {
            for (const PagePoint& point : curve.points) {
                EXPECT_GE(point.x, 0.0);
                EXPECT_LE(point.x, 1.0);
                EXPECT_GE(point.y, 0.0);
                EXPECT_LE(point.y, 1.0);
            }
        }
    }
    // Room temperature lies left of 350 - 12.5, the left edge.
    calculate("400", "350");
    EXPECT_EQ(lineOf(thermalFitsGraph(state), kRoomLine), nullptr);
}

TEST_F(TheFitDrawing, OfNoWidthIsADivisionByZero) {
    calculate("0", "0");
    EXPECT_EQ(faultOf([&] { thermalFitsGraph(state); }), fault::kDivisionByZero);
}

TEST_F(TheFitDrawing, TellsEveryLineByAColourOfItsOwn) {
    for (const FitLine& a : kFitLegend) {
        for (const FitLine& b : kFitLegend)
            EXPECT_TRUE(a.colour != b.colour || std::string(a.name) == b.name) << a.name << b.name;
    }
}

/// A text of the drawing; a failure when there is none.
const RecordingCanvas::Text& textOf(const RecordingCanvas& canvas, const std::string& words) {
    for (const auto& text : canvas.texts) {
        if (text.text == words) return text;
    }
    ADD_FAILURE() << words;
    static const RecordingCanvas::Text kNone{};
    return kNone;
}

TEST_F(TheFitDrawing, HasItsHeadAboveItAndTheDirectionOfTheTemperatureBelow) {
    calculate("268", "-32");
    RecordingCanvas canvas;
    drawThermalFits(state, canvas);
    EXPECT_EQ(testing::offPaper(canvas, papers::kLetter), "");
    const ThermalFits& fits = state.thermalFits;
    const struct {
        std::string words;
        double points;
        bool bold;
        Colour colour;
    } heads[] = {{"K19013XP0E", 16.0, true, graphcolours::kDarkRed},
                 {"Size of parts vs. Temperature", 14.0, false, graphcolours::kDarkBlue},
                 {fits.shaftLine, 11.0, true, colours::kBlack},
                 {fits.housingLine, 11.0, true, colours::kBlack},
                 {fits.comment, 9.0, false, colours::kBlack}};
    double above = 11.0;
    for (const auto& head : heads) {
        const auto& text = textOf(canvas, head.words);
        EXPECT_EQ(text.look.points, head.points) << head.words;
        EXPECT_EQ(text.look.bold, head.bold) << head.words;
        EXPECT_EQ(text.look.colour, head.colour) << head.words;
        EXPECT_EQ(text.look.alignment, Alignment::Centre) << head.words;
        EXPECT_LE(text.box.top, above) << head.words;
        EXPECT_GE(text.box.top - text.box.bottom, head.points / 72.0) << head.words;
        above = text.box.bottom;
    }
    const auto& direction = textOf(canvas, "Temperature increasing to the right");
    EXPECT_LT(direction.box.top, 1.2);
    EXPECT_EQ(direction.look.alignment, Alignment::Centre);
}

TEST_F(TheFitDrawing, HasASampleBesideEachNameOfItsLegend) {
    calculate("268", "-32");
    RecordingCanvas canvas;
    drawThermalFits(state, canvas);
    ASSERT_FALSE(canvas.rectangles.empty());
    const PageBox box = canvas.rectangles.back().box;
    std::vector<PagePoint> places;
    for (const FitLine& line : kFitLegend) {
        const auto& name = textOf(canvas, line.name);
        const auto sample = std::find_if(canvas.lines.begin(), canvas.lines.end(), [&](const auto& drawn) {
            return drawn.pen.colour == line.colour && drawn.from.y == drawn.to.y && drawn.from.y < box.top &&
                   drawn.from.y > box.bottom;
        });
        ASSERT_NE(sample, canvas.lines.end()) << line.name;
        EXPECT_GT(sample->from.x, box.left) << line.name;
        EXPECT_GT(sample->to.x, sample->from.x + 0.3) << line.name;
        EXPECT_GT(name.box.left, sample->to.x) << line.name;
        EXPECT_LT(name.box.left, sample->to.x + 0.2) << line.name;
        EXPECT_LE(name.box.right, box.right + 0.2) << line.name;
        EXPECT_NEAR((name.box.top + name.box.bottom) / 2.0, sample->from.y, 1e-9) << line.name;
        places.push_back(sample->from);
    }
    // Four in a row, evenly; the second row below the first.
    for (std::size_t i = 4; i < places.size(); ++i) {
        EXPECT_NEAR(places[i].x, places[i - 4].x, 1e-9);
        EXPECT_LT(places[i].y, places[i - 4].y);
    }
    for (std::size_t i = 1; i < 4; ++i) {
        EXPECT_NEAR(places[i].x - places[i - 1].x, (box.right - box.left) / 4.0, 1e-9);
        EXPECT_EQ(places[i].y, places[0].y);
    }
}

}  // namespace
}  // namespace norlaplan
