#include "documents/GraphShapes.h"

#include <cmath>
#include <vector>

#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"

namespace norlaplan {
namespace {

/// Whether a grid can be drawn, in lines that a page can hold.
bool isGrid(const GraphAxis& axis) {
    constexpr double kMostLines = 1000.0;
    return axis.step > 0.0 && axis.last - axis.first < axis.step * kMostLines;
}

/// Where the frame stands a grid line is a tick alone.
bool isOnFrame(const GraphAxis& axis, double value) {
    constexpr double kPartOfStep = 0.01;
    return value == 0.0 || std::fabs(value - axis.end) <= kPartOfStep * axis.step;
}

PageBox shifted(const PageBox& box, double right, double up) {
    return {box.left + right, box.top + up, box.right + right, box.bottom + up};
}

void layOutText(const GraphText& text, GraphShapes& shapes) {
    if (!text.text.empty()) shapes.text(text);
}

void layOutLabel(const GraphAxis& axis, double value, PagePoint foot, GraphShapes& shapes) {
    const bool zero = value == 0.0;
    if (!zero && axis.picture.empty()) return;
    shapes.text({shifted(zero ? axis.zeroLabel : axis.label, foot.x, foot.y),
                 zero ? "0" : FormatNumber(value * axis.shownFactor, axis.picture), axis.labelLook});
}

/// The values that have a line of the grid. They add up step by step: that decides whether the last one has
/// one.
std::vector<double> gridValues(const GraphAxis& axis) {
    std::vector<double> values;
    // NOLINTNEXTLINE(clang-analyzer-security.FloatLoopCounter)
    for (double value = axis.first; value <= axis.last; value += axis.step)
        values.push_back(value);
    return values;
}

void layOutXGrid(const Graph& graph, GraphShapes& shapes) {
    const double top = graph.origin.y + graph.height;
    int line = 0;
    for (const double v : gridValues(graph.x)) {
        const PagePoint foot = graph.place({v, 0.0});
        const bool tick = graph.frame && isOnFrame(graph.x, v);
        shapes.line({foot.x, foot.y - graph.x.tick}, {foot.x, tick ? foot.y : top}, *graph.grid);
        if (line++ % graph.x.labelEvery == 0) layOutLabel(graph.x, v, foot, shapes);
    }
}

void layOutYGrid(const Graph& graph, GraphShapes& shapes) {
    const double right = graph.origin.x + graph.width;
    int line = 0;
    for (const double v : gridValues(graph.y)) {
        const PagePoint foot = graph.place({0.0, v});
        const bool tick = graph.frame && isOnFrame(graph.y, v);
        shapes.line({foot.x - graph.y.tick, foot.y}, {tick ? foot.x : right, foot.y}, *graph.grid);
        if (line++ % graph.y.labelEvery == 0) layOutLabel(graph.y, v, foot, shapes);
    }
}

void layOutCurve(const Graph& graph, const GraphCurve& curve, GraphShapes& shapes) {
    std::optional<PagePoint> pen;
    for (const PagePoint& point : curve.points) {
        if (point.x > graph.x.end) continue;
        const PagePoint next = graph.place(point);
        if (pen) shapes.line(*pen, next, curve.pen);
        pen = next;
    }
}

void layOutFrame(const Graph& graph, GraphShapes& shapes) {
    const PagePoint low = graph.origin;
    const PagePoint high{low.x + graph.width, low.y + graph.height};
    const PagePoint corners[] = {low, {high.x, low.y}, high, {low.x, high.y}, low};
    for (std::size_t i = 0; i < 4; ++i)
        shapes.line(corners[i], corners[i + 1], *graph.frame);
}

}  // namespace

void layOutGraph(const Graph& graph, GraphShapes& shapes) {
    if (graph.grid && (!isGrid(graph.x) || !isGrid(graph.y))) raise(fault::kInvalidCall);
    for (const GraphBand& band : graph.bands) {
        const PagePoint low = graph.place(band.from);
        const PagePoint high = graph.place(band.to);
        shapes.fill({low.x, high.y, high.x, low.y}, band.fill);
    }
    for (const GraphText* const text :
         {&graph.number, &graph.title, &graph.subtitle, &graph.xTitle, &graph.yTitle})
        layOutText(*text, shapes);
    for (const GraphText& note : graph.notes)
        layOutText(note, shapes);
    if (graph.grid) {
        layOutXGrid(graph, shapes);
        layOutYGrid(graph, shapes);
    }
    for (const GraphCurve& curve : graph.curves)
        layOutCurve(graph, curve, shapes);
    if (graph.frame) layOutFrame(graph, shapes);
}

}  // namespace norlaplan
