#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "deflection/AxisRule.h"
#include "deflection/DeflectionReport.h"
#include "deflection/DeflectionTable.h"
#include "numbers/RuntimeError.h"
#include "support/ExpectGraphText.h"
#include "support/OnPaper.h"
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
    const std::size_t head = rtf.find("Notes:}"), first = rtf.find("1.) The curve shown");
    EXPECT_NE(rtf.substr(head, first - head).find("\\plain\r\n\\par\\pard\\par\r\n"), std::string::npos);
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

/// The graph of the sample's axial curve.
struct AxialGraph {
    DeflectionGraphData data = deflectionGraphData(sampleResult(), DeflectionLoad::Axial, initialUnits());
    GraphSettings settings;
    AxialGraph() { applyAxisRule(settings, data.dataMaxX, data.dataMaxY); }
};

void expectBox(const PageBox& box, const PageBox& expected) {
    EXPECT_NEAR(box.left, expected.left, 1e-9);
    EXPECT_NEAR(box.top, expected.top, 1e-9);
    EXPECT_NEAR(box.right, expected.right, 1e-9);
    EXPECT_NEAR(box.bottom, expected.bottom, 1e-9);
}

TEST(ASavedDeflectionGraph, HasItsTextsInTheStatedBoxes) {
    const AxialGraph axial;
    const Graph graph = savedDeflectionGraph(axial.data, axial.settings);
    const Colour red = rgb(255, 0, 0), blue = rgb(0, 0, 255);
    testing::expectGraphText(graph.number, "K19013BP0", {2.0, 9.75, 6.5, 9.0}, 24.0, red);
    testing::expectGraphText(graph.title, axial.data.title, {1.0, 9.35, 7.5, 9.0}, 14.0, blue);
    testing::expectGraphText(graph.subtitle, "FREE RACE ANALYSIS", {1.312, 9.0, 7.312, 8.65}, 14.0, blue);
    testing::expectGraphText(graph.xTitle, "AXIAL LOAD IN POUNDS", {1.0, 4.425, 7.5, 4.125}, 12.0, blue);
    testing::expectGraphText(graph.yTitle, "DEFLECTION IN INCHES", {0.1, 8.6, 0.5, 5.0}, 10.0, blue);
    EXPECT_TRUE(graph.yTitle.look.vertical);
    EXPECT_FALSE(graph.xTitle.look.vertical);
    EXPECT_EQ(graph.origin.x, 0.9);
    EXPECT_EQ(graph.origin.y, 4.625);
    EXPECT_EQ(graph.width, 6.8);
    EXPECT_EQ(graph.height, 4.0);
    // 0.55 to 1.3 across for a line at 0.9, and 0.74 to 1.04 for that of zero.
    expectBox(graph.x.label, {-0.35, 0.0, 0.4, -0.3});
    expectBox(graph.x.zeroLabel, {-0.16, 0.0, 0.14, -0.3});
    EXPECT_EQ(graph.x.labelLook.alignment, Alignment::Centre);
    EXPECT_EQ(graph.y.labelLook.alignment, Alignment::Centre);
    EXPECT_LE(graph.y.label.right, 0.05) << "left of its axis";
    EXPECT_GT(graph.y.label.top, 0.0) << "its line passes through it";
    EXPECT_LT(graph.y.label.bottom, 0.0);
    EXPECT_EQ(graph.x.labelLook.points, 8.0);
}

void expectLaidOut(const Graph& graph) {
    const double plotTop = graph.origin.y + graph.height;
    const double middle = graph.origin.x + graph.width / 2.0;
    double above = plotTop;
    for (const GraphText* const text : {&graph.subtitle, &graph.title, &graph.number}) {
        EXPECT_GT(text->box.bottom, above) << text->text;
        EXPECT_GT(text->box.top, text->box.bottom) << text->text;
        EXPECT_LT(text->box.top, text->box.bottom + 0.4) << text->text;
        EXPECT_NEAR((text->box.left + text->box.right) / 2.0, middle, 1e-9) << text->text;
        EXPECT_EQ(text->look.alignment, Alignment::Centre) << text->text;
        above = text->box.top;
    }
    EXPECT_LT(above, plotTop + 1.5);
    EXPECT_GT(graph.number.look.points, graph.title.look.points);
    EXPECT_GT(graph.title.look.points, graph.subtitle.look.points);
    EXPECT_GT(graph.subtitle.look.points, graph.xTitle.look.points);
    EXPECT_EQ(graph.number.look.colour, graphcolours::kDarkRed);
    for (const GraphText* const text : {&graph.title, &graph.subtitle, &graph.xTitle})
        EXPECT_EQ(text->look.colour, graphcolours::kDarkBlue) << text->text;
    // Below the labels of its axis, in the middle.
    EXPECT_LT(graph.xTitle.box.top, graph.origin.y + graph.x.label.bottom);
    EXPECT_GT(graph.xTitle.box.top, graph.xTitle.box.bottom);
    EXPECT_NEAR((graph.xTitle.box.left + graph.xTitle.box.right) / 2.0, middle, 1e-9);
    EXPECT_TRUE(graph.yTitle.stacked);
    for (const PageBox& label : {graph.x.label, graph.x.zeroLabel}) {
        EXPECT_NEAR(label.left, -label.right, 1e-9) << "centred on its line";
        EXPECT_LT(label.top, 0.0);
        EXPECT_LT(label.bottom, label.top);
    }
    for (const PageBox& label : {graph.y.label, graph.y.zeroLabel}) {
        EXPECT_LT(label.right, 0.0);
        EXPECT_LT(label.left, label.right - 0.5);
        EXPECT_NEAR(label.top, -label.bottom, 1e-9) << "beside its line";
    }
    EXPECT_EQ(graph.x.labelLook.alignment, Alignment::Centre);
    EXPECT_EQ(graph.y.labelLook.alignment, Alignment::Right);
}

TEST(ADeflectionGraph, HasItsTextsAroundThePlotAndNotesAboveThem) {
    const AxialGraph axial;
    const Graph graph = deflectionGraph(axial.data, axial.settings);
    EXPECT_EQ(graph.origin.x, 1.0);
    EXPECT_EQ(graph.origin.y, 1.25);
    EXPECT_EQ(graph.width, 7.0);
    EXPECT_EQ(graph.height, 4.0);
    expectLaidOut(graph);
    ASSERT_EQ(graph.notes.size(), 8U);
    const char* const starts[] = {"Notes:",
                                  "1.)  The curve shown",
                                  "2.)  The \"Free Race\" title",
                                  "      restrained by the shaft or housing.",
                                  "3.)  Under load, these",
                                  "      of this deflection shown.",
                                  "4.)  If actual deflection",
                                  "      Varden Engineering Department, "};
    for (std::size_t i = 0; i < graph.notes.size(); ++i)
        EXPECT_TRUE(graph.notes[i].text.starts_with(starts[i])) << graph.notes[i].text;
    for (std::size_t i = 0; i < graph.notes.size(); ++i) {
        const GraphText& note = graph.notes[i];
        EXPECT_EQ(note.look.bold, i == 0) << note.text;
        EXPECT_EQ(note.look.points, 10.0) << note.text;
        EXPECT_EQ(note.look.colour, 0U) << note.text;
        EXPECT_EQ(note.box.left, graph.origin.x) << note.text;
        EXPECT_GT(note.box.top, graph.number.box.top) << note.text;
        // A line of ten points is 0.16 inch high.
        const double step = i > 0 ? graph.notes[i - 1].box.top - note.box.top : 0.165;
        EXPECT_NEAR(step, 0.165, 0.006) << note.text;
    }
}

TEST(APrintedDeflectionGraph, StandsOnALandscapePageBelowItsNotes) {
    const AxialGraph axial;
    expectLaidOut(printedDeflectionGraph(axial.data, axial.settings));
    testing::RecordingCanvas canvas;
    testing::FixedClock clock;
    printDeflectionGraph(axial.data, axial.settings, clock, canvas);
    EXPECT_EQ(testing::offPaper(canvas, papers::kLetterLandscape), "");
    double before = 8.5 - 0.25;
    bool isHead = true;
    const double numberTop = printedDeflectionGraph(axial.data, axial.settings).number.box.top;
    for (const char* const start : {"Notes:", "1.) The curve", "2.) The", "3.) "}) {
        const auto at = std::find_if(canvas.texts.begin(), canvas.texts.end(),
                                     [&](const auto& text) { return text.text.starts_with(start); });
        ASSERT_NE(at, canvas.texts.end()) << start;
        EXPECT_LT(at->box.top, before) << start;
        EXPECT_GT(at->box.top, numberTop) << start;
        EXPECT_EQ(at->look.bold, isHead) << start;
        EXPECT_EQ(at->look.points, 11.0) << start;
        before = at->box.bottom + 1e-6;
        isHead = false;
    }
}

}  // namespace
}  // namespace norlaplan
