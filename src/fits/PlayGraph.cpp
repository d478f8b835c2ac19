#include "fits/PlayGraph.h"

#include <algorithm>

#include "fits/PictureTitles.h"
#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "state/DisplayUnits.h"

namespace norlaplan {
namespace {

constexpr std::size_t kNumberLength = 9;
constexpr double kClearanceSteps = 12.0;
/// The label of a read-out changes sides where it would leave the picture.
constexpr double kPictureTop = 5.0;

/// What the two graphs take from a row and how they show it.
struct Quantity {
    Single PlayPoint::*value;
    Single PlayCurve::*atLow;
    Single PlayCurve::*atHigh;
    const char* title;
    const char* axisPicture;
    const char* readoutPicture;
};

const Quantity kAxialPlay = {&PlayPoint::axialPlay,
                             &PlayCurve::playAtLow,
                             &PlayCurve::playAtHigh,
                             "AXIAL PLAY DUE TO DIAMETRAL CLEARANCE",
                             "0.000",
                             "0.0000"};
const Quantity kTilt = {&PlayPoint::tilt,
                        &PlayCurve::tiltAtLow,
                        &PlayCurve::tiltAtHigh,
                        "TILT OF AXIS DUE TO DIAMETRAL CLEARANCE",
                        "0.0000",
                        "0.00000"};

const Quantity& quantityOf(PlayGraph which) {
    return which == PlayGraph::Tilt ? kTilt : kAxialPlay;
}

std::string clearanceTitle(bool metric) {
    return metric ? "CLEARANCE IN mm" : "CLEARANCE IN INCHES";
}

std::string upTitle(PlayGraph which, bool metric, bool screen) {
    if (which == PlayGraph::Tilt) return "TILT IN RADIANS";
    if (!metric) return "AXIAL MOVEMENT IN INCHES";
    return screen ? "  AXIAL MOVEMENT IN MM" : "AXIAL MOVEMENT IN mm";
}

std::string captionOf(const BearingSpec& bearing) {
    const std::string& letter = bearing.fitLetter;
    if (letter == " " || letter >= "K") return "STANDARD CLEARANCE RANGE IN GREY";
    return "\"" + letter + "\" CLEARANCE RANGE IN GREY";
}

void setAxes(Graph& graph, const ProgramState& state, const Quantity& quantity) {
    const PlayCurve& play = state.play;
    const double lengthFactor = state.units.lengthFactor;
    graph.x.end = lengthFactor * play.curveClearanceMax;
    graph.x.step = lengthFactor * play.curveClearanceMax / kClearanceSteps;
    graph.x.last = play.last().clearance + lengthFactor * 0.0004;
    graph.x.picture = "0.###0";
    const double top = play.last().*quantity.value;
    graph.y.end = top;
    graph.y.step = power(10.0, Int(naturalLog(top) / naturalLog(10.0)));
    graph.y.last = top;
    graph.y.picture = quantity.axisPicture;
}

void setBands(Graph& graph, const ProgramState& state, const Quantity& quantity) {
    const PlayCurve& play = state.play;
    const double low = state.units.lengthFactor * play.clearanceLow;
    const double high = state.units.lengthFactor * play.clearanceHigh;
    const double top = play.*quantity.atHigh;
    graph.bands = {{{low, 0.0}, {high, top}}, {{0.0, play.*quantity.atLow}, {low, top}}};
    graph.notes = {rangeCaption(5.0, captionOf(state.bearing))};
}

std::vector<PagePoint> pointsOf(const PlayCurve& play, const Quantity& quantity) {
    std::vector<PagePoint> points;
    for (int i = 1; i <= play.rowCount; ++i)
        points.push_back({play.row(i).clearance, play.row(i).*quantity.value});
    return points;
}

void setReadout(Graph& graph, const ProgramState& state, const Quantity& quantity) {
    graph.readout.unit = state.units.lengthFactor;
    for (const PagePoint& at : graph.curves[0].points) {
        const bool left = graph.place(at).y + 1.0 >= kPictureTop;
        graph.readout.points.push_back(
            {at, FormatNumber(at.x, "0.0000") + " , " + FormatNumber(at.y, quantity.readoutPicture), left,
             labelRise(graph, at, left)});
    }
}

/// The clearances of a saved graph: its end and its step.
struct ClearanceScale {
    double most = 0.0, step = 0.0;
};

ClearanceScale savedScale(const ProgramState& state) {
    const bool longer = state.play.curveClearanceMax > Single(0.006);
    if (isMetric(state.units)) return longer ? ClearanceScale{0.3, 0.025} : ClearanceScale{0.15, 0.015};
    return {state.play.curveClearanceMax, longer ? 0.001 : 0.0005};
}

}  // namespace

Graph playGraph(const ProgramState& state, PlayGraph which, GraphTarget target) {
    const Quantity& quantity = quantityOf(which);
    const bool metric = isMetric(state.units);
    Graph graph = pictureGraph();
    setTitles(graph, {state.bearing.partNumber.substr(0, kNumberLength),
                      quantity.title,
                      clearanceTitle(metric),
                      upTitle(which, metric, target == GraphTarget::Screen),
                      {1.5, 4.75},
                      {2.75, 0.2},
                      {0.05, 4.625}});
    setAxes(graph, state, quantity);
    setBands(graph, state, quantity);
    graph.curves = {{pointsOf(state.play, quantity), kCurvePen}};
    // Rounded to 32 bits, the last clearance may lie a hair beyond the end; it belongs to the curve.
    PagePoint& last = graph.curves[0].points.back();
    last.x = std::min(last.x, graph.x.end);
    setReadout(graph, state, quantity);
    return target == GraphTarget::Screen ? graph : moved(graph, 0.0, kPrintedGraphRise);
}

RtfGraphPage playGraphPage(const ProgramState& state, PlayGraph which) {
    const Quantity& quantity = quantityOf(which);
    const bool metric = isMetric(state.units);
    const ClearanceScale clearance = savedScale(state);
    const TenSteps up = tenStepsFor(state.play.last().*quantity.value);
    RtfGraphPage page;
    page.partNumber = state.bearing.partNumber;
    page.title = quantity.title;
    page.xTitle = clearanceTitle(metric);
    page.yTitle = upTitle(which, metric, false);
    page.origin = {0.9, 4.5};
    page.width = 6.8;
    page.height = 4.0;
    page.xMost = clearance.most;
    page.xStep = clearance.step;
    page.yMost = up.most;
    page.yStep = up.step;
    page.points = pointsOf(state.play, quantity);
    page.metric = metric;
    return page;
}

}  // namespace norlaplan
