#pragma once

#include <optional>
#include <string>
#include <vector>

#include "state/Canvas.h"

namespace norlaplan {

class RtfDocument;

/// The colours of graphs on screen and paper.
namespace graphcolours {
constexpr Colour kDarkRed = rgb(128, 0, 0);
constexpr Colour kDarkGreen = rgb(0, 128, 0);
constexpr Colour kDarkBlue = rgb(0, 0, 128);
constexpr Colour kGrey = rgb(128, 128, 128);
constexpr Colour kGridGrey = rgb(192, 192, 192);
constexpr Colour kBandGrey = rgb(224, 224, 224);
}  // namespace graphcolours

/// A text of a graph in its box on the page; an empty one isn't written.
struct GraphText {
    PageBox box;
    std::string text;
    TextLook look;
    bool stacked = false;  ///< on a canvas its letters stand one under the other; in RTF it reads upward
};

/// One axis: its scale, its grid lines and what stands at them. Values are in the units of the curves.
struct GraphAxis {
    double end = 0.0;          ///< the value at the far edge of the plot, above 0
    double first = 0.0;        ///< of the grid lines, which are added up from here in steps ...
    double step = 0.0;         ///< ... above 0 ...
    double last = 0.0;         ///< ... until beyond this
    std::string picture;       ///< of the labels; empty: only zero has one
    double shownFactor = 1.0;  ///< a label shows its value times this
    int labelEvery = 1;        ///< every n-th grid line has a label, the first is one of them
    PageBox label;             ///< a label's box, as seen from where its grid line meets the axis
    PageBox zeroLabel;         ///< that of the plain "0"
    TextLook labelLook;
    double tick = 0.05;  ///< how far a grid line stands out of the plot, inches
};

/// Straight lines from point to point. A point beyond the end of the x axis is passed over.
struct GraphCurve {
    std::vector<PagePoint> points;
    PagePen pen;
};

/// A filled rectangle of the plot, beneath grid and curves.
struct GraphBand {
    PagePoint from, to;
    Colour fill = graphcolours::kBandGrey;
};

/// What the pointer can read off: the n-th point, counted from 1, where n is the pointer's x divided by
/// `unit`, times `perUnit`, rounded, plus 1.
struct GraphReadout {
    struct Point {
        PagePoint at;
        std::string text;
        bool labelLeft = false;  ///< the label stands left of the point, else right of it
        double labelAbove = 0.4;
    };
    std::vector<Point> points;
    double unit = 1.0;
    double perUnit = 10000.0;
};

/// A graph with everything that stands on it, places in page inches and values in the units of its curves.
/// Where the same graph looks different on screen and in a file (places, colours), these are two values of
/// this type; the writers below add nothing of their own.
struct Graph {
    PagePoint origin;  ///< lower left corner of the plot on the page
    double width = 7.25, height = 4.0;
    GraphText number, title, subtitle, xTitle, yTitle;
    std::vector<GraphText> notes;
    GraphAxis x, y;
    std::vector<GraphBand> bands;
    std::vector<GraphCurve> curves;
    // None: there is no grid, no frame.
    std::optional<PagePen> grid = PagePen{graphcolours::kGridGrey, 9525.0, 0};
    std::optional<PagePen> frame = PagePen{colours::kBlack, 19050.0, 0};
    GraphReadout readout;

    /// A value's place on the page. Error: 6 or 11 for a scale that ends at 0.
    PagePoint place(PagePoint value) const;
};

/// The plain graph of the screens' pictures, 8.5 inches wide and 5 high: plot, frame, grid and label places.
Graph pictureGraph();

/// A text that begins at a place, in Times.
GraphText graphText(PagePoint leftTop, std::string text, double points, Colour colour);
/// A text in the middle between a box's left and right, from its top down, in Times.
GraphText centredGraphText(const PageBox& box, std::string text, double points, Colour colour);
/// A column of letters that begins at a place: the title of a y axis.
GraphText stackedGraphText(PagePoint leftTop, std::string text, double points, Colour colour);

/// The same graph elsewhere on the page.
Graph moved(Graph graph, double right, double up);
/// The same graph `scale` times as large about the page's lower left corner, letters too, which then lies at
/// `corner`.
Graph placed(Graph graph, double scale, PagePoint corner);

/// The curves of a graph alone, filling a page of this size up to the last point of the last one.
Graph preview(const Graph& graph, double width, double height);

/// Draws the graph. Error: 5 for a grid whose step isn't above 0 or that has more lines than a page holds.
void drawGraph(const Graph& graph, Canvas& canvas);

/// The same as shapes of a document. Errors as those of `drawGraph`.
void writeGraph(const Graph& graph, RtfDocument& document);

/// The cross around a point and its label.
struct GraphMark {
    struct Arm {
        PagePoint from, to;
    };
    PagePoint at;
    std::vector<Arm> arms;
    GraphText label;
};

/// What stands under the pointer: the point of its x, when it lies nearer than half an inch.
std::optional<GraphMark> pointReadout(const Graph& graph, PagePoint pointer);

void drawMark(const GraphMark& mark, Canvas& canvas);

}  // namespace norlaplan
