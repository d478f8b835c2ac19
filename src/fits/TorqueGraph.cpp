#include "fits/TorqueGraph.h"

#include "fits/LastCharacter.h"
#include "fits/PictureTitles.h"
#include "fits/TorqueAxes.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"
#include "state/DisplayUnits.h"

namespace norlaplan {
namespace {

constexpr const char* kTitle = "UNMOUNTED STARTING TORQUE DUE TO PRELOAD";
/// From this point on the label of the read-out stands left of it.
constexpr int kFirstLabelledLeft = 43;
/// Where the printer's pen sets out, on the base line.
constexpr double kPrintedPenStart = 5.25;

std::string preloadTitle(bool metric) {
    return metric ? "PRELOAD IN MILLIMETERS" : "PRELOAD IN INCHES";
}

double shownTorque(const ProgramState& state, int row) {
    return state.torque.row(row).torque / state.units.momentFactor;
}

PagePoint pointOf(const ProgramState& state, int row) {
    return {state.torque.row(row).preload, shownTorque(state, row)};
}

bool marksRange(const BearingSpec& bearing, GraphTarget target) {
    const std::string mark = target == GraphTarget::Screen ? bearing.fitLetter : lastCharacter(bearing);
    return mark > "J" && mark < "Z";
}

/// The fit's limits as its text shows them, five characters each, and what the curve has at a row of exactly
/// that preload: nothing between two rows.
struct FitRange {
    explicit FitRange(const ProgramState& state)
        : lo(limitAt(state, 3)),
          hi(limitAt(state, 9)),
          torqueAtLo(torqueAt(state, lo)),
          torqueAtHi(torqueAt(state, hi)) {}

    Single lo, hi;
    double torqueAtLo, torqueAtHi;

  private:
    static Single limitAt(const ProgramState& state, std::size_t at) {
        const std::string& text = state.bearing.fitRangeText;
        return at < text.size() ? leadingNumber(text.substr(at, 5)) : 0.0;
    }
    static double torqueAt(const ProgramState& state, Single limit) {
        for (int i = 1; i <= TorqueCurve::kPoints; ++i) {
            if (state.torque.row(i).preload == limit) return shownTorque(state, i);
        }
        return 0.0;
    }
};

void setBands(Graph& graph, const ProgramState& state, GraphTarget target) {
    if (!marksRange(state.bearing, target)) return;
    const FitRange range(state);
    graph.bands = {{{range.lo, 0.0}, {range.hi, range.torqueAtHi}},
                   {{0.0, range.torqueAtLo}, {range.lo, range.torqueAtHi}}};
    const std::string letter = state.bearing.fitLetter.substr(0, 1);
    graph.notes = {rangeCaption(5.4, "\"" + letter + "\" PRELOAD RANGE IN GREY")};
}

/// The picture of the torque's labels; small torques have none.
const char* torquePicture(int exponent, GraphTarget target) {
    if (exponent >= 1) return target == GraphTarget::Screen ? "#,###" : "#,###.0";
    if (exponent == 0) return "##.0";
    return exponent == -1 ? "0.00" : "";
}

void setAxes(Graph& graph, const ProgramState& state, GraphTarget target) {
    const TorqueAxes axes = computeTorqueAxes(state.torque, state.units);
    graph.x.end = axes.xMax;
    graph.x.step = axes.xStep;
    graph.x.last = axes.xMax + 0.0001;
    graph.x.picture = isMetric(state.units) ? "0.00" : "0.0000";
    graph.x.shownFactor = state.units.lengthFactor;
    graph.y.end = axes.yMax;
    graph.y.step = axes.yStep;
    graph.y.last = axes.yMax + axes.yStep * 0.1;
    graph.y.picture = torquePicture(axes.yExp, target);
}

void setCurve(Graph& graph, const ProgramState& state, GraphTarget target) {
    GraphCurve curve{{}, kCurvePen};
    if (target == GraphTarget::Printer) {
        const double along = (kPrintedPenStart - graph.origin.x) * graph.x.end / graph.width;
        curve.points.push_back({along, 0.0});
    }
    // Row 0 is the corner of the plot.
    for (int i = 0; i <= TorqueCurve::kPoints; ++i)
        curve.points.push_back(pointOf(state, i));
    graph.curves = {curve};
}

void setReadout(Graph& graph, const ProgramState& state) {
    for (int i = 1; i <= TorqueCurve::kPoints; ++i) {
        const PagePoint at = pointOf(state, i);
        const bool left = i >= kFirstLabelledLeft;
        graph.readout.points.push_back(
            {at, FormatNumber(at.x * state.units.lengthFactor, "0.0000") + " , " + FormatNumber(at.y, "0.0"),
             left, labelRise(graph, at, left)});
    }
}

}  // namespace

Graph torqueGraph(const ProgramState& state, GraphTarget target) {
    const bool metric = isMetric(state.units);
    Graph graph = pictureGraph();
    setTitles(graph, {state.bearing.partNumber,
                      kTitle,
                      preloadTitle(metric),
                      metric ? "   TORQUE IN NEWTON METERS" : "TORQUE IN INCH POUNDS",
                      {1.25, 4.75},
                      {3.0, 0.2},
                      {0.05, 5.0}});
    setAxes(graph, state, target);
    setBands(graph, state, target);
    setCurve(graph, state, target);
    setReadout(graph, state);
    return target == GraphTarget::Screen ? graph : moved(graph, 0.0, kPrintedGraphRise);
}

RtfGraphPage torqueGraphPage(const ProgramState& state) {
    const bool metric = isMetric(state.units);
    RtfGraphPage page;
    page.partNumber = state.bearing.partNumber;
    page.title = kTitle;
    page.xTitle = preloadTitle(metric);
    page.yTitle = metric ? "TORQUE  IN  NEWTON  METERS" : "TORQUE  IN  INCH  POUNDS";
    page.origin = {0.9, 4.5};
    page.width = 6.8;
    page.height = 4.0;
    page.metric = metric;
    page.xMost = metric ? 0.15 : computeTorqueAxes(state.torque, state.units).xMax;
    page.xStep = metric ? 0.015 : 0.0005;
    const TenSteps torque = tenStepsFor(shownTorque(state, TorqueCurve::kPoints));
    page.yMost = torque.most;
    page.yStep = torque.step;
    for (int i = 1; i <= TorqueCurve::kPoints; ++i) {
        const PagePoint at = pointOf(state, i);
        page.points.push_back({at.x * state.units.lengthFactor, at.y});
    }
    return page;
}

}  // namespace norlaplan
