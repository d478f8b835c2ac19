#include "documents/Graph.h"

#include <utility>

#include "documents/GraphShapes.h"
#include "numbers/Arithmetic.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr double kPointsPerInch = 72.0;

PageBox placed(const PageBox& box, double scale, PagePoint corner) {
    return {corner.x + scale * box.left, corner.y + scale * box.top, corner.x + scale * box.right,
            corner.y + scale * box.bottom};
}

void place(GraphText& text, double scale, PagePoint corner) {
    text.box = placed(text.box, scale, corner);
    text.look.points *= scale;
}

/// What stands along an axis is placed from where its grid line meets it.
void grow(GraphAxis& axis, double scale) {
    axis.label = placed(axis.label, scale, {});
    axis.zeroLabel = placed(axis.zeroLabel, scale, {});
    axis.labelLook.points *= scale;
    axis.tick *= scale;
}

/// Every letter on a line of its own.
std::string stackedText(const std::string& text) {
    std::string stack;
    for (const char letter : text) {
        // The later bytes of a letter beyond ASCII stay with its first.
        const bool goesOn = (static_cast<unsigned char>(letter) & 0xC0U) == 0x80U;
        if (!stack.empty() && !goesOn) stack += '\n';
        stack += letter;
    }
    return stack;
}

class OntoCanvas : public GraphShapes {
  public:
    explicit OntoCanvas(Canvas& canvas) : canvas_(canvas) {}

    void fill(const PageBox& box, Colour colour) override { canvas_.rectangle(box, colour, std::nullopt); }
    void line(PagePoint from, PagePoint to, const PagePen& pen) override { canvas_.line(from, to, pen); }
    void text(const GraphText& text) override {
        canvas_.text(text.box, text.stacked ? stackedText(text.text) : text.text, text.look);
    }

  private:
    Canvas& canvas_;
};

}  // namespace

PagePoint Graph::place(PagePoint value) const {
    return {origin.x + value.x * divide(width, x.end), origin.y + value.y * divide(height, y.end)};
}

Graph pictureGraph() {
    Graph graph;
    graph.origin = {0.75, 0.5};
    graph.grid->colour = graphcolours::kGrey;
    // Labels begin at their places: a row below the axis, a column left of it.
    graph.x.label = {-0.2, -0.1, 0.3, -0.25};
    graph.x.zeroLabel = {-0.05, -0.1, 0.1, -0.25};
    graph.y.label = graph.y.zeroLabel = {-0.45, 0.06, -0.05, -0.1};
    graph.x.labelLook.points = graph.y.labelLook.points = 8.0;
    return graph;
}

GraphText centredGraphText(const PageBox& box, std::string text, double points, Colour colour) {
    GraphText placed;
    placed.box = box;
    placed.text = std::move(text);
    placed.look.points = points;
    placed.look.colour = colour;
    placed.look.alignment = Alignment::Centre;
    return placed;
}

GraphText graphText(PagePoint leftTop, std::string text, double points, Colour colour) {
    GraphText placed;
    placed.box = {leftTop.x, leftTop.y, leftTop.x + 6.0, leftTop.y - 1.2 * points / kPointsPerInch};
    placed.text = std::move(text);
    placed.look.points = points;
    placed.look.colour = colour;
    return placed;
}

GraphText stackedGraphText(PagePoint leftTop, std::string text, double points, Colour colour) {
    GraphText placed = graphText(leftTop, std::move(text), points, colour);
    const double letter = points / kPointsPerInch;
    placed.box.right = leftTop.x + letter;
    placed.box.bottom = leftTop.y - 1.15 * letter * static_cast<double>(placed.text.size());
    placed.look.alignment = Alignment::Centre;
    placed.stacked = true;
    return placed;
}

Graph moved(Graph graph, double right, double up) {
    return placed(std::move(graph), 1.0, {right, up});
}

Graph placed(Graph graph, double scale, PagePoint corner) {
    graph.origin = {corner.x + scale * graph.origin.x, corner.y + scale * graph.origin.y};
    graph.width *= scale;
    graph.height *= scale;
    for (GraphText* const text : {&graph.number, &graph.title, &graph.subtitle, &graph.xTitle, &graph.yTitle})
        place(*text, scale, corner);
    for (GraphText& note : graph.notes)
        place(note, scale, corner);
    grow(graph.x, scale);
    grow(graph.y, scale);
    return graph;
}

Graph preview(const Graph& graph, double width, double height) {
    Graph small;
    small.width = width;
    small.height = height;
    small.grid.reset();
    small.frame.reset();
    small.curves = graph.curves;
    if (!small.curves.empty() && !small.curves.back().points.empty()) {
        const PagePoint last = small.curves.back().points.back();
        small.x.end = last.x;
        small.y.end = last.y;
    }
    return small;
}

void drawGraph(const Graph& graph, Canvas& canvas) {
    OntoCanvas shapes(canvas);
    layOutGraph(graph, shapes);
}

}  // namespace norlaplan
