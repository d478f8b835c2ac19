#include <string>

#include <gtest/gtest.h>

#include "deflection/AxisRule.h"
#include "deflection/DeflectionReport.h"
#include "deflection/DeflectionTable.h"
#include "numbers/RuntimeError.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

struct AxisCase {
    double dataMax, power, steps, axisMax, major;
};

class AnAxis : public ::testing::TestWithParam<AxisCase> {};

TEST_P(AnAxis, EndsAtTheNextStepOfItsPowerOfTen) {
    const AxisCase& expected = GetParam();
    const AxisScale axis = axisRule(expected.dataMax);
    EXPECT_EQ(axis.power, expected.power);
    EXPECT_EQ(axis.steps, expected.steps);
    EXPECT_DOUBLE_EQ(axis.axisMax, expected.axisMax);
    EXPECT_DOUBLE_EQ(axis.major, expected.major);
}

// 1000 takes the power 2, since its logarithm as a quotient is below 3.
INSTANTIATE_TEST_SUITE_P(
    Maxima, AnAxis,
    ::testing::Values(AxisCase{1.0, 0.0, 2.0, 2.0, 0.5}, AxisCase{3500.0, 3.0, 4.0, 4000.0, 1000.0},
                      AxisCase{2500.0, 3.0, 3.0, 3000.0, 500.0}, AxisCase{1000.0, 2.0, 11.0, 1100.0, 100.0},
                      AxisCase{613.0, 2.0, 7.0, 700.0, 100.0}, AxisCase{0.00123, -3.0, 13.0, 0.0013, 0.0001},
                      AxisCase{0.5, 0.0, 6.0, 0.6, 0.1}));

TEST(AnAxisOfNothing, IsAnInvalidCall) {
    for (const double dataMax : {0.0, -1.0})
        EXPECT_THROW(axisRule(dataMax), RuntimeError);
}

TEST(GraphAxes, StayTheUsersOwnOnceAdjusted) {
    GraphSettings settings;
    settings.xMax = 123.0;
    settings.settingsAdjusted = "Y";
    applyAxisRule(settings, 3500.0, 0.00123);
    EXPECT_EQ(settings.xMax, 123.0);
    settings.settingsAdjusted = "N";
    applyAxisRule(settings, 3500.0, 0.00123);
    EXPECT_EQ(settings.xMax, 4000.0);
    EXPECT_EQ(settings.xMajor, 1000.0);
    EXPECT_DOUBLE_EQ(settings.yMax, 0.0013);
}

/// Five points a curve with the corner of the axial one at 100 pounds.
DeflectionResult sampleResult() {
    DeflectionResult result;
    result.partNumber = "K19013BP0T";
    result.styleLetter = "B";
    result.input.preload = 0.0005;
    result.radialReliefLoad = 150.25;
    result.axialReliefLoad = 100.75;
    result.momentReliefLoad = 1000.0;
    result.radialCurve = {{0.0, 0.0}, {100.0, 0.001}, {150.25, 0.0015}, {200.0, 0.0025}};
    result.axialCurve = {{0.0, 0.0}, {60.0, 0.0006}, {100.0, 0.001}, {120.0, 0.0015}, {180.0, 0.003}};
    result.momentCurve = {{0.0, 0.0}, {300.0, 0.0001}, {600.0, 0.0002}};
    return result;
}

UnitMode metricUnits() {
    UnitMode units = initialUnits();
    ApplyUnitSystem("METRIC", units);
    return units;
}

TEST(ADeflectionGraph, CarriesTheTitlesOfItsCurveAndUnits) {
    const DeflectionResult result = sampleResult();
    const DeflectionGraphData radial = deflectionGraphData(result, DeflectionLoad::Radial, initialUnits());
    EXPECT_EQ(radial.title, "RADIAL DEFLECTION AT 0.0005 INCHES PRELOAD");
    EXPECT_EQ(radial.subtitle, "FREE RACE ANALYSIS");
    EXPECT_EQ(radial.xTitle, "RADIAL LOAD IN POUNDS");
    EXPECT_EQ(radial.yTitle, "DEFLECTION IN INCHES");
    const DeflectionGraphData axial = deflectionGraphData(result, DeflectionLoad::Axial, metricUnits());
    EXPECT_EQ(axial.title, "AXIAL DEFLECTION AT 0.0127 MILLIMETERS PRELOAD");
    EXPECT_EQ(axial.xTitle, "AXIAL LOAD IN NEWTONS");
    EXPECT_EQ(axial.yTitle, "DEFLECTION IN MILLIMETERS");
    const DeflectionGraphData moment = deflectionGraphData(result, DeflectionLoad::Moment, metricUnits());
    EXPECT_EQ(moment.xTitle, "MOMENT LOAD IN NEWTON METERS");
    EXPECT_EQ(moment.yTitle, "TILT OF AXIS IN RADIANS");
    EXPECT_EQ(deflectionGraphName(radial), "K19013BP0T radial def");
    EXPECT_EQ(deflectionGraphName(axial), "K19013BP0T axial def");
    EXPECT_EQ(deflectionGraphName(moment), "K19013BP0T moment def");
}

TEST(ADeflectionGraph, StandsInDisplayUnitsAndATiltInRadians) {
    const DeflectionResult result = sampleResult();
    const DeflectionGraphData axial = deflectionGraphData(result, DeflectionLoad::Axial, metricUnits());
    EXPECT_NEAR(axial.dataMaxX, 180.0 / 0.2248089, 1e-4);
    EXPECT_NEAR(axial.dataMaxY, 0.003 * 25.4, 1e-7);
    const DeflectionGraphData moment = deflectionGraphData(result, DeflectionLoad::Moment, metricUnits());
    EXPECT_NEAR(moment.dataMaxX, 600.0 / 8.850744, 1e-5);
    EXPECT_EQ(moment.dataMaxY, 0.0002);
}

TEST(ADeflectionGraph, TurnsGreenAtTheCornerInBothUnitsAndStaysRedBelowRelief) {
    const DeflectionResult result = sampleResult();
    for (const UnitMode& units : {initialUnits(), metricUnits()}) {
        EXPECT_EQ(deflectionGraphData(result, DeflectionLoad::Radial, units).firstBeyond, 2U);
        EXPECT_EQ(deflectionGraphData(result, DeflectionLoad::Axial, units).firstBeyond, 2U);
        EXPECT_FALSE(deflectionGraphData(result, DeflectionLoad::Moment, units).firstBeyond);
    }
    DeflectionResult none = result;
    none.input.preload = 0.0;
    EXPECT_EQ(deflectionGraphData(none, DeflectionLoad::Moment, initialUnits()).firstBeyond, 0U);
}

TEST(ADeflectionGraph, IsInOnePieceBeforeTheCornerAndOneBeyond) {
    const DeflectionGraphData data =
        deflectionGraphData(sampleResult(), DeflectionLoad::Axial, initialUnits());
    GraphSettings settings;
    applyAxisRule(settings, data.dataMaxX, data.dataMaxY);
    const Graph screen = deflectionGraph(data, settings);
    ASSERT_EQ(screen.curves.size(), 2U);
    EXPECT_EQ(screen.curves[0].pen.colour, colours::kRed);
    EXPECT_EQ(screen.curves[0].points.size(), 3U);
    EXPECT_EQ(screen.curves[1].pen.colour, graphcolours::kDarkGreen);
    EXPECT_EQ(screen.curves[1].points.front().x, 100.0);
    EXPECT_EQ(screen.curves[1].points.back().x, 180.0);
    const Graph saved = savedDeflectionGraph(data, settings);
    EXPECT_EQ(saved.curves[0].pen.colour, colours::kRed);
    EXPECT_EQ(saved.curves[1].pen.colour, colours::kBlue);
    EXPECT_EQ(screen.number.text, "K19013BP0");
}

TEST(ADeflectionGraph, LeavesOutSegmentsThatPassTheUsersAxes) {
    const DeflectionGraphData data =
        deflectionGraphData(sampleResult(), DeflectionLoad::Axial, initialUnits());
    GraphSettings settings;
    applyAxisRule(settings, data.dataMaxX, data.dataMaxY);
    settings.yMax = 0.0012;
    const Graph graph = deflectionGraph(data, settings);
    ASSERT_EQ(graph.curves.size(), 1U);
    EXPECT_EQ(graph.curves[0].points.back().x, 100.0);
    settings.xMax = 50.0;
    EXPECT_TRUE(deflectionGraph(data, settings).curves.empty());
}

TEST(ADeflectionGraph, OfAStyleThatHasNoSuchCurveIsAFault) {
    DeflectionResult result = sampleResult();
    result.axialCurve.clear();
    EXPECT_FALSE(hasCurve(result, DeflectionLoad::Axial));
    EXPECT_THROW(deflectionGraphData(result, DeflectionLoad::Axial, initialUnits()), RuntimeError);
}

TEST(ASavedDeflectionGraph, HasItsNotesAndAFooterThatSaysPrinted) {
    const DeflectionGraphData data =
        deflectionGraphData(sampleResult(), DeflectionLoad::Radial, initialUnits());
    GraphSettings settings;
    applyAxisRule(settings, data.dataMaxX, data.dataMaxY);
    testing::FixedClock clock;
    const std::string rtf = deflectionRtf(data, settings, "Ada", clock);
    for (const char* const text :
         {"{\\fs28\\cf1\\ul\\b Notes:}", "1.) The curve shown is based on nominal bearing tolerances.}",
          "{\\fs24\\ 2.) The \\ldblquote Free Race\\rdblquote  title implies ",
          "that the races are unrestrained by the shaft or housing.}", "FREE RACE ANALYSIS",
          "NORLAPLAN-MM version 1.00  Ada        Printed  3/14/26 9:26 AM"})
        EXPECT_NE(rtf.find(text), std::string::npos) << text;
    EXPECT_TRUE(rtf.ends_with("}{\\par }}\r\n"));
}

TEST(ADeflectionTable, HasTheAxesTitlesAndALineForEachPoint) {
    const DeflectionGraphData data =
        deflectionGraphData(sampleResult(), DeflectionLoad::Radial, initialUnits());
    EXPECT_EQ(deflectionTable(data),
              "RADIAL LOAD IN POUNDS\tDEFLECTION IN INCHES\n"
              "0.0000\t0.00000000\n100.0000\t0.00100000\n150.2500\t0.00150000\n200.0000\t0.00250000\n");
}

/// The labels of the x axis (in one row) or of the y axis (in one column), by their box's left or top.
std::vector<double> labelPlaces(const Graph& graph, bool ofX) {
    testing::RecordingCanvas canvas;
    drawGraph(graph, canvas);
    std::vector<double> places;
    for (const auto& text : canvas.texts) {
        if (text.look.points != 8.0) continue;
        const bool beneath = text.look.alignment == Alignment::Centre;
        if (beneath == ofX) places.push_back(ofX ? text.box.left : text.box.top);
    }
    return places;
}

TEST(TheLabelsOfAGraph, StandApartHoweverFineTheUsersGridIs) {
    const DeflectionGraphData data =
        deflectionGraphData(sampleResult(), DeflectionLoad::Radial, initialUnits());
    GraphSettings settings;
    settings.xFormat = "#,###.0";
    for (const double steps : {1.0, 4.0, 11.0, 13.0, 32.0, 100.0}) {
        settings.xMax = 25000.0;
        settings.yMax = 0.003;
        settings.xMajor = settings.xMax / steps;
        settings.yMajor = settings.yMax / steps;
        const Graph graph = deflectionGraph(data, settings);
        // "25,000.0" in eight points is 0.39 inch wide and a line of it 0.13 high.
        const std::vector<double> across = labelPlaces(graph, true), up = labelPlaces(graph, false);
        ASSERT_GE(across.size(), 2U);
        ASSERT_GE(up.size(), 2U);
        for (std::size_t i = 1; i < across.size(); ++i)
            EXPECT_GE(across[i] - across[i - 1], 0.42) << steps;
        for (std::size_t i = 1; i < up.size(); ++i)
            EXPECT_GE(up[i] - up[i - 1], 0.13) << steps;
        if (steps <= 13.0) {
            EXPECT_EQ(static_cast<double>(across.size()), steps + 1.0);
            EXPECT_EQ(static_cast<double>(up.size()), steps + 1.0);
        }
    }
}

}  // namespace
}  // namespace norlaplan
