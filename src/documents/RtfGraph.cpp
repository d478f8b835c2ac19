#include "documents/RtfGraph.h"

#include <utility>

#include "documents/GraphShapes.h"
#include "documents/RTFroutines.h"
#include "documents/SheetNames.h"
#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr double kDouble = 19050.0;
/// How far the x scale may run past its end and still count as there.
constexpr double kSlack = 0.0001;

/// The picture of a y label: as many places as the power of ten `e` of the scale's end needs.
const char* yPicture(double e) {
    if (e >= 1.0) return "#";
    if (e == -2.0) return "0.000";
    if (e == -3.0) return "0.0000";
    return e == -4.0 ? "0.00000" : "0.0000";
}

void setTitles(Graph& graph, const RtfGraphPage& page) {
    const double x = page.origin.x;
    const double bottom = page.origin.y;
    const double top = bottom + page.height;
    graph.number =
        centredGraphText({x + 1.05, top + 1.25, x + 5.55, top + 0.5}, page.partNumber, 24.0, colours::kRed);
    graph.title =
        centredGraphText({x + 0.05, top + 0.85, x + 6.55, top + 0.5}, page.title, 14.0, colours::kBlue);
    graph.xTitle =
        centredGraphText({x + 0.05, bottom - 0.2, x + 6.55, bottom - 0.5}, page.xTitle, 12.0, colours::kBlue);
    graph.yTitle = centredGraphText({x - 0.8, top - 0.4, x - 0.4, bottom}, page.yTitle, 10.0, colours::kBlue);
    graph.yTitle.look.vertical = true;
}

void setAxes(Graph& graph, const RtfGraphPage& page) {
    TextLook look;
    look.points = 8.0;
    look.alignment = Alignment::Centre;
    graph.x.end = page.xMost;
    graph.x.step = page.xStep;
    graph.x.last = page.xMost + kSlack;
    graph.x.picture = page.metric ? "0.000" : "0.0000";
    graph.x.label = {-0.35, 0.0, -0.35 + 0.75, -0.3};
    graph.x.zeroLabel = {-0.16, 0.0, 0.14, -0.3};
    graph.x.labelLook = look;

    graph.y.end = page.yMost;
    graph.y.step = page.yStep;
    graph.y.last = page.yMost + 0.01 * page.yStep;
    graph.y.picture = yPicture(Int(naturalLog(page.yMost) / naturalLog(10.0)));
    const double room = graph.y.picture == "0.00000" ? 0.6 : 0.5;
    graph.y.label = graph.y.zeroLabel = {-room, 0.11, 0.05, -0.19};
    graph.y.labelLook = look;
}

class IntoDocument : public GraphShapes {
  public:
    explicit IntoDocument(RtfDocument& document) : document_(document) {}

    void fill(const PageBox& box, Colour colour) override { document_.RtfFill(box, colour); }
    void line(PagePoint from, PagePoint to, const PagePen& pen) override {
        if (pen.dash == 0)
            document_.RTFLINE(from, to, pen.colour, pen.width);
        else
            document_.RTFDATASHEETLINE(from, to, pen.colour, pen.width, pen.dash);
    }
    void text(const GraphText& text) override {
        const TextLook& look = text.look;
        document_.RtfPlainText(
            {text.box, look.points, sheetColourNear(look.colour).name, text.text, look.bold,
             sheetFont(look.typeface).name, look.vertical || text.stacked, look.italic},
            look.alignment);
    }

  private:
    RtfDocument& document_;
};

}  // namespace

TenSteps tenStepsFor(double top) {
    // The mantissa and the exponent are read off the number's text, which rounds it to two figures.
    const std::string text = FormatNumber(top / 5.0, "#.0E+00");
    const double mantissa = leadingNumber(text.substr(0, 3));
    const double exponent = leadingNumber(text.substr(text.size() - 3));
    const double most = 5.0 * Int(mantissa + 1.0) * power(10.0, exponent);
    return {most, most / 10.0};
}

Graph rtfGraph(const RtfGraphPage& page) {
    Graph graph;
    graph.origin = page.origin;
    graph.width = page.width;
    graph.height = page.height;
    setTitles(graph, page);
    setAxes(graph, page);
    graph.curves = {{{{0.0, 0.0}}, {colours::kRed, kDouble, 0}}};
    graph.curves[0].points.insert(graph.curves[0].points.end(), page.points.begin(), page.points.end());
    return graph;
}

void writeGraph(const Graph& graph, RtfDocument& document) {
    IntoDocument shapes(document);
    layOutGraph(graph, shapes);
}

void RtfDocument::RtfGraph(const RtfGraphPage& graph) {
    writeGraph(rtfGraph(graph), *this);
}

}  // namespace norlaplan
