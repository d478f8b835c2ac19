#pragma once

#include <cmath>

#include "documents/Graph.h"
#include "documents/RtfGraph.h"

/// Graphs of the kinds that the program draws, with curves that a reader works out in the head.
namespace norlaplan::testing {

/// A torque that grows by 2 for each thousandth of an inch, on the screen's picture: 1450 inches a unit along
/// x, 0.4 inch a unit along y. A fit from 0.001 to 0.002 is marked.
inline Graph torqueGraph() {
    Graph graph = pictureGraph();
    graph.number = graphText({3.43, 5.0}, "K19013XP0K", 16.0, graphcolours::kDarkRed);
    graph.title =
        graphText({1.25, 4.75}, "UNMOUNTED STARTING TORQUE DUE TO PRELOAD", 14.0, graphcolours::kDarkBlue);
    graph.xTitle = graphText({3.0, 0.2}, "PRELOAD IN INCHES", 10.0, graphcolours::kDarkBlue);
    graph.yTitle = stackedGraphText({0.05, 5.0}, "TORQUE IN INCH POUNDS", 10.0, graphcolours::kDarkBlue);
    graph.notes = {graphText({5.4, 0.2}, "\"K\" PRELOAD RANGE IN GREY", 10.0, graphcolours::kGrey)};
    graph.x.end = 0.005;
    graph.x.step = 0.0005;
    graph.x.last = 0.0051;
    graph.x.picture = "0.0000";
    graph.y.end = 10.0;
    graph.y.step = 1.0;
    graph.y.last = 10.1;
    graph.y.picture = "##.0";
    graph.bands = {{{0.001, 0.0}, {0.002, 4.0}}, {{0.0, 2.0}, {0.001, 4.0}}};
    GraphCurve curve{{{0.0, 0.0}}, {colours::kRed, 19050.0, 0}};
    for (int i = 1; i <= 50; ++i) {
        const PagePoint point{i / 10000.0, i / 5.0};
        curve.points.push_back(point);
        graph.readout.points.push_back({point, "point " + std::to_string(i), i >= 43, i < 43 ? 0.4 : 0.6});
    }
    graph.curves = {curve};
    return graph;
}

/// A deflection with its corner at a load of 400, red before it and green behind, on a page of its own.
inline Graph deflectionGraph(Colour before, Colour behind) {
    Graph graph;
    graph.origin = {1.0, 1.25};
    graph.width = 7.0;
    graph.x.end = 700.0;
    graph.x.step = 100.0;
    graph.x.last = 700.0;
    graph.x.picture = "#,###";
    graph.y.end = 0.004;
    graph.y.step = 0.001;
    graph.y.last = 0.004;
    graph.y.picture = "0.00E-00";
    graph.x.label = graph.x.zeroLabel = {-0.4, -0.06, 0.4, -0.2};
    graph.x.labelLook.points = 8.0;
    graph.x.labelLook.alignment = Alignment::Centre;
    graph.y.label = graph.y.zeroLabel = {-0.8, 0.07, -0.08, -0.07};
    graph.y.labelLook = graph.x.labelLook;
    graph.y.labelLook.alignment = Alignment::Right;
    graph.number = graphText({3.9, 6.1}, "K19013XP0", 16.0, graphcolours::kDarkRed);
    graph.yTitle = stackedGraphText({0.1, 5.0}, "TILT", 10.0, graphcolours::kDarkBlue);
    GraphCurve stiff{{}, {before, 19050.0, 0}};
    for (int i = 0; i <= 4; ++i)
        stiff.points.push_back({i * 100.0, i * 0.0004});
    GraphCurve soft{{stiff.points.back()}, {behind, 19050.0, 0}};
    for (int i = 5; i <= 7; ++i)
        soft.points.push_back({i * 100.0, 0.0016 + (i - 4) * 0.0008});
    graph.curves = {stiff, soft};
    return graph;
}

/// An axial play that goes with the root of the clearance, as a page of a saved document.
inline RtfGraphPage playPage() {
    RtfGraphPage page;
    page.partNumber = "K19013XP0";
    page.title = "AXIAL PLAY DUE TO DIAMETRAL CLEARANCE";
    page.xTitle = "CLEARANCE IN INCHES";
    page.yTitle = "AXIAL MOVEMENT IN INCHES";
    page.origin = {0.9, 4.5};
    page.width = 6.8;
    page.height = 4.0;
    page.xMost = 0.006;
    page.xStep = 0.0005;
    page.yMost = 0.02;
    page.yStep = 0.002;
    for (int i = 1; i <= 60; ++i)
        page.points.push_back({i / 10000.0, 0.019 * std::sqrt(i / 60.0)});
    return page;
}

}  // namespace norlaplan::testing
