#include <cmath>

#include <gtest/gtest.h>

#include "fits/SampleBearings.h"
#include "fits/ThermalFits.h"
#include "fits/ThermalFitsGraph.h"
#include "support/FaultOf.h"

namespace norlaplan {
namespace {

using testing::faultOf;
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

}  // namespace
}  // namespace norlaplan
