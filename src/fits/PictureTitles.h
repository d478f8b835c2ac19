#pragma once

#include <string>

#include "documents/Graph.h"

namespace norlaplan {

/// The pen of the curves.
constexpr PagePen kCurvePen{colours::kRed, 19050.0, 0};

/// The titles of a graph with the places at which they begin.
struct PictureTitles {
    std::string number, title, xTitle, yTitle;
    PagePoint titlePlace, xPlace, yPlace;
};

/// Puts the titles on a graph of the screens' pictures.
void setTitles(Graph& graph, const PictureTitles& titles);

/// The caption of a range in grey, which begins at this x below the plot.
GraphText rangeCaption(double x, const std::string& text);

/// How far above its point the label of a read-out stands: higher when it stands at the left, and never above
/// the picture.
double labelRise(const Graph& graph, PagePoint value, bool left);

}  // namespace norlaplan
