#include <algorithm>
#include <cmath>

#include "documents/RTFroutines.h"
#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"

namespace norlaplan {
namespace {

constexpr double kThin = 9525.0;
constexpr double kDouble = 19050.0;
constexpr Colour kGridGrey = rgb(192, 192, 192);
/// How far the x scale may run past its end and still count as there.
constexpr double kSlack = 0.0001;

/// The picture of a y label: as many places as the power of ten `e` of the scale's end needs.
const char* yPicture(double e) {
    if (e >= 1.0) return "#";
    if (e == -2.0) return "0.000";
    if (e == -3.0) return "0.0000";
    return e == -4.0 ? "0.00000" : "0.0000";
}

/// Whether a scale can be divided so, in lines that a page can hold.
bool isStepOf(double step, double most) {
    constexpr double kMostLines = 1000.0;
    return step > 0.0 && most < step * kMostLines;
}

/// The plot on the page.
struct Plot {
    explicit Plot(const RtfGraphPage& graph)
        : left(graph.origin.x),
          bottom(graph.origin.y),
          right(left + graph.width),
          top(bottom + graph.height),
          sx(divide(graph.width, graph.xMost)),
          sy(divide(graph.height, graph.yMost)) {}

    double left, bottom, right, top;
    double sx, sy;  ///< inches per unit
};

void writeTitles(RtfDocument& document, const RtfGraphPage& graph, const Plot& plot) {
    const double x = plot.left;
    document.RtfPlainText(
        {{x + 1.05, plot.top + 1.25, x + 5.55, plot.top + 0.5}, 24.0, "red", graph.partNumber, false, "TNR"});
    document.RtfPlainText(
        {{x + 0.05, plot.top + 0.85, x + 6.55, plot.top + 0.5}, 14.0, "blue", graph.title, false, "TNR"});
    document.RtfPlainText({{x + 0.05, plot.bottom - 0.2, x + 6.55, plot.bottom - 0.5},
                           12.0,
                           "blue",
                           graph.xTitle,
                           false,
                           "TNR"});
    document.RtfPlainText(
        {{x - 0.8, plot.top - 0.4, x - 0.4, plot.bottom}, 10.0, "blue", graph.yTitle, false, "TNR", true});
}

void writeXGrid(RtfDocument& document, const RtfGraphPage& graph, const Plot& plot) {
    const double slack = std::min(kSlack, 0.01 * graph.xStep);
    for (double v = 0.0; v <= graph.xMost + kSlack; v += graph.xStep) {
        const bool end = v == 0.0 || std::fabs(v - graph.xMost) <= slack;
        const double x = plot.left + v * plot.sx;
        // At the ends the frame stands, so the line is a tick.
        document.RTFLINE({x, plot.bottom - 0.05}, {x, end ? plot.bottom : plot.top}, kGridGrey, kThin);
        const PageBox box = v == 0.0
                                ? PageBox{plot.left - 0.16, plot.bottom, plot.left + 0.14, plot.bottom - 0.3}
                                : PageBox{x - 0.35, plot.bottom, x - 0.35 + 0.75, plot.bottom - 0.3};
        const std::string label = v == 0.0 ? "0" : FormatNumber(v, graph.metric ? "0.000" : "0.0000");
        document.RtfPlainText({box, 8.0, "black", label, false, "TNR"});
    }
}

void writeYGrid(RtfDocument& document, const RtfGraphPage& graph, const Plot& plot) {
    const double slack = 0.01 * graph.yStep;
    const std::string picture = yPicture(Int(naturalLog(graph.yMost) / naturalLog(10.0)));
    const double room = picture == "0.00000" ? 0.6 : 0.5;
    for (double v = 0.0; v <= graph.yMost + slack; v += graph.yStep) {
        const bool end = v == 0.0 || std::fabs(v - graph.yMost) <= slack;
        const double y = plot.bottom + v * plot.sy;
        document.RTFLINE({plot.left - 0.05, y}, {end ? plot.left : plot.right, y}, kGridGrey, kThin);
        document.RtfPlainText({{plot.left - room, y + 0.11, plot.left + 0.05, y - 0.19},
                               8.0,
                               "black",
                               v == 0.0 ? "0" : FormatNumber(v, picture),
                               false,
                               "TNR"});
    }
}

void writeCurve(RtfDocument& document, const RtfGraphPage& graph, const Plot& plot) {
    PagePoint pen{plot.left, plot.bottom};
    for (const PagePoint& point : graph.points) {
        if (point.x > graph.xMost) continue;
        const PagePoint next{plot.left + point.x * plot.sx, plot.bottom + point.y * plot.sy};
        document.RTFLINE(pen, next, colours::kRed, kDouble);
        pen = next;
    }
}

void writeFrame(RtfDocument& document, const Plot& plot) {
    const PagePoint corners[] = {{plot.left, plot.bottom},
                                 {plot.right, plot.bottom},
                                 {plot.right, plot.top},
                                 {plot.left, plot.top},
                                 {plot.left, plot.bottom}};
    for (std::size_t i = 0; i < 4; ++i)
        document.RTFLINE(corners[i], corners[i + 1], colours::kBlack, kDouble);
}

}  // namespace

void RtfDocument::RtfGraph(const RtfGraphPage& graph) {
    if (!isStepOf(graph.xStep, graph.xMost) || !isStepOf(graph.yStep, graph.yMost))
        raise(fault::kInvalidCall);
    const Plot plot(graph);
    writeTitles(*this, graph, plot);
    writeXGrid(*this, graph, plot);
    writeYGrid(*this, graph, plot);
    writeCurve(*this, graph, plot);
    writeFrame(*this, plot);
}

}  // namespace norlaplan
