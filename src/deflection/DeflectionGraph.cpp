#include "deflection/DeflectionGraph.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "documents/Maker.h"
#include "numbers/FormatNumber.h"

namespace norlaplan {
namespace {

constexpr std::size_t kNumberShown = 9;
constexpr double kCurveWidth = 19050.0;
// Of the labels at the axes, inches.
constexpr double kLabelDigit = 0.056;
constexpr double kBetweenLabels = 0.06;
constexpr double kLabelLine = 0.14;

/// The y title letter under letter, in the middle of the plot's height.
GraphText stackedBeside(double left, double middle, const std::string& text, double points) {
    GraphText placed = stackedGraphText({left, 0.0}, text, points, graphcolours::kDarkBlue);
    const double height = placed.box.top - placed.box.bottom;
    placed.box.top = middle + height / 2.0;
    placed.box.bottom = middle - height / 2.0;
    placed.look.typeface = Typeface::Courier;
    return placed;
}

/// The curve in the pens before and beyond relief, without the segments that pass the ends of the axes.
std::vector<GraphCurve> piecesOf(const DeflectionGraphData& data, const GraphSettings& settings,
                                 Colour before, Colour beyond) {
    const auto inside = [&](const PagePoint& point) {
        return point.x <= settings.xMax && point.y <= settings.yMax;
    };
    std::vector<GraphCurve> pieces;
    bool goesOn = false;
    for (std::size_t i = 0; i + 1 < data.points.size(); ++i) {
        const bool drawn = inside(data.points[i]) && inside(data.points[i + 1]);
        if (drawn && (!goesOn || i == data.firstBeyond)) {
            const Colour colour = data.firstBeyond && i >= *data.firstBeyond ? beyond : before;
            pieces.push_back({{data.points[i]}, {colour, kCurveWidth, 0}});
        }
        if (drawn) pieces.back().points.push_back(data.points[i + 1]);
        goesOn = drawn;
    }
    return pieces;
}

/// How many grid lines apart the labels stand so that each has its room, in inches; `size` is the axis's.
int linesPerLabel(const GraphAxis& axis, double size, double room) {
    constexpr double kMost = 1000.0;
    const double lines = axis.step > 0.0 && axis.end > 0.0 ? room * axis.end / (axis.step * size) : 1.0;
    return static_cast<int>(std::clamp(std::ceil(lines), 1.0, kMost));
}

/// Scales, grid and labels' pictures.
Graph axesOf(const GraphSettings& settings, PagePoint origin, double width, double height) {
    Graph graph;
    graph.origin = origin;
    graph.width = width;
    graph.height = height;
    const auto set = [](GraphAxis& axis, double end, double step, const std::string& picture) {
        axis.end = end;
        axis.step = step;
        // The steps add up to the end within their rounding.
        axis.last = end + 0.01 * step;
        axis.picture = picture;
        axis.labelLook.points = 8.0;
    };
    set(graph.x, settings.xMax, settings.xMajor, settings.xFormat);
    set(graph.y, settings.yMax, settings.yMajor, settings.yFormat);
    const auto longest = static_cast<double>(FormatNumber(graph.x.end, graph.x.picture).size());
    graph.x.labelEvery = linesPerLabel(graph.x, width, kLabelDigit * longest + kBetweenLabels);
    graph.y.labelEvery = linesPerLabel(graph.y, height, kLabelLine);
    return graph;
}

std::vector<std::string> screenNotes() {
    return {"1.)  The curve shown is based on nominal bearing tolerances.     ",
            "2.)  The \"Free Race\" title implies that the races are not radially",
            "      restrained by the shaft or housing.                         ",
            "3.)  Under load, these will stretch and therefore are a component",
            "      of this deflection shown.                                   ",
            "4.)  If actual deflection values are required, please contact    ",
            std::string("      Varden Engineering Department, ") + maker::kCity + ", " + maker::kPhone};
}

void addScreenNotes(Graph& graph) {
    constexpr double kLine = 0.165;
    double top = 8.3;
    GraphText head = graphText({graph.origin.x, top}, "Notes:", 10.0, colours::kBlack);
    head.look.bold = true;
    graph.notes.push_back(head);
    for (const std::string& line : screenNotes()) {
        top -= kLine;
        graph.notes.push_back(graphText({graph.origin.x, top}, line, 10.0, colours::kBlack));
    }
}

/// What the pointer reads off: load and deflection of the nearest of the curve's points.
void addReadout(Graph& graph, const DeflectionGraphData& data) {
    graph.readout.unit = data.dataMaxX;
    graph.readout.perUnit = static_cast<double>(data.points.size() - 1);
    for (const PagePoint& point : data.points) {
        const bool right = point.x > 0.7 * data.dataMaxX;
        graph.readout.points.push_back({point,
                                        FormatNumber(point.x, "#,##0.0") + " " + data.loadUnit + ", " +
                                            FormatNumber(point.y, "0.000000") + " " + data.deflectionUnit,
                                        right, right ? 0.4 : -0.2});
    }
}

/// The graph at its place on the page of the screen, without notes.
Graph fullSize(const DeflectionGraphData& data, const GraphSettings& settings, Typeface labels) {
    Graph graph = axesOf(settings, {1.0, 1.25}, 7.0, 4.0);
    const double left = graph.origin.x;
    const double right = left + graph.width;
    const double top = graph.origin.y + graph.height;
    graph.number = centredGraphText({left, top + 1.45, right, top + 1.15},
                                    data.partNumber.substr(0, kNumberShown), 18.0, graphcolours::kDarkRed);
    graph.title =
        centredGraphText({left, top + 0.95, right, top + 0.75}, data.title, 13.0, graphcolours::kDarkBlue);
    graph.subtitle =
        centredGraphText({left, top + 0.65, right, top + 0.45}, data.subtitle, 12.0, graphcolours::kDarkBlue);
    graph.xTitle = centredGraphText({left, 0.8, right, 0.6}, data.xTitle, 11.0, graphcolours::kDarkBlue);
    graph.yTitle = stackedBeside(0.1, graph.origin.y + graph.height / 2.0, data.yTitle, 10.0);
    graph.x.label = graph.x.zeroLabel = {-0.4, -0.07, 0.4, -0.2};
    graph.x.labelLook.alignment = Alignment::Centre;
    graph.y.label = graph.y.zeroLabel = {-0.8, 0.07, -0.09, -0.07};
    graph.y.labelLook.alignment = Alignment::Right;
    graph.x.labelLook.typeface = graph.y.labelLook.typeface = labels;
    graph.curves = piecesOf(data, settings, colours::kRed, graphcolours::kDarkGreen);
    return graph;
}

}  // namespace

Graph deflectionGraph(const DeflectionGraphData& data, const GraphSettings& settings) {
    Graph graph = fullSize(data, settings, Typeface::Times);
    addScreenNotes(graph);
    addReadout(graph, data);
    return graph;
}

Graph printedDeflectionGraph(const DeflectionGraphData& data, const GraphSettings& settings) {
    constexpr double kWider = 11.0 - 8.5;
    Graph graph = moved(fullSize(data, settings, Typeface::Arial), kWider / 2.0, 0.0);
    graph.xTitle.look.typeface = graph.yTitle.look.typeface = Typeface::Arial;
    return graph;
}

Graph savedDeflectionGraph(const DeflectionGraphData& data, const GraphSettings& settings) {
    Graph graph = axesOf(settings, {0.9, 4.625}, 6.8, 4.0);
    graph.number =
        centredGraphText({2.0, 9.75, 6.5, 9.0}, data.partNumber.substr(0, kNumberShown), 24.0, colours::kRed);
    graph.title = centredGraphText({1.0, 9.35, 7.5, 9.0}, data.title, 14.0, colours::kBlue);
    graph.subtitle = centredGraphText({1.312, 9.0, 7.312, 8.65}, data.subtitle, 14.0, colours::kBlue);
    graph.xTitle = centredGraphText({1.0, 4.425, 7.5, 4.125}, data.xTitle, 12.0, colours::kBlue);
    graph.yTitle = centredGraphText({0.1, 8.6, 0.5, 5.0}, data.yTitle, 10.0, colours::kBlue);
    graph.yTitle.look.vertical = true;
    graph.x.label = {-0.35, 0.0, 0.4, -0.3};
    graph.x.zeroLabel = {-0.16, 0.0, 0.14, -0.3};
    graph.y.label = graph.y.zeroLabel = {-0.6, 0.11, 0.05, -0.19};
    graph.x.labelLook.alignment = graph.y.labelLook.alignment = Alignment::Centre;
    graph.curves = piecesOf(data, settings, colours::kRed, colours::kBlue);
    return graph;
}

}  // namespace norlaplan
