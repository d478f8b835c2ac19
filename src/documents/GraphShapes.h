#pragma once

#include "documents/Graph.h"

namespace norlaplan {

/// Takes the shapes of a graph.
class GraphShapes {
  public:
    virtual ~GraphShapes() = default;
    virtual void fill(const PageBox& box, Colour colour) = 0;
    virtual void line(PagePoint from, PagePoint to, const PagePen& pen) = 0;
    virtual void text(const GraphText& text) = 0;
};

/// Gives the shapes from the lowest to the highest: bands, texts, grid with its labels, curves, frame.
/// Errors as those of `drawGraph`.
void layOutGraph(const Graph& graph, GraphShapes& shapes);

}  // namespace norlaplan
