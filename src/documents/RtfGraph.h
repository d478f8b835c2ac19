#pragma once

#include <string>
#include <vector>

#include "documents/Graph.h"

namespace norlaplan {

/// What a graph page of a saved document shows, in page inches and in the units of the curve.
struct RtfGraphPage {
    std::string partNumber, title, xTitle, yTitle;
    PagePoint origin;  ///< lower left corner of the plot
    double width = 0.0, height = 0.0;
    double xMost = 0.0, yMost = 0.0;  ///< ends of the scales
    double xStep = 0.0, yStep = 0.0;
    std::vector<PagePoint> points;
    bool metric = false;  ///< x labels with three places instead of four
};

/// A scale of ten steps for values up to `top`: it ends at five times a whole number of a power of ten.
struct TenSteps {
    double most = 0.0, step = 0.0;
};
/// Errors: those of `FormatNumber`.
TenSteps tenStepsFor(double top);

/// The page as a graph: curve from the corner of the plot, titles and the part number above. Errors: 5 or 11
/// for a y scale that ends at 0 or below.
Graph rtfGraph(const RtfGraphPage& page);

}  // namespace norlaplan
