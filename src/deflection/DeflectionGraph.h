#pragma once

#include <optional>
#include <string>
#include <vector>

#include "documents/Graph.h"
#include "state/DeflectionResult.h"
#include "state/GraphSettings.h"
#include "state/UnitMode.h"

namespace norlaplan {

/// One of the three curves with what stands on its graph, in display units.
struct DeflectionGraphData {
    std::string partNumber, title, subtitle, xTitle, yTitle;
    std::vector<PagePoint> points;           ///< 51: load and deflection or tilt
    double dataMaxX = 0.0, dataMaxY = 0.0;   ///< the last point
    std::optional<std::size_t> firstBeyond;  ///< the first segment beyond relief; none: relief isn't reached
    std::string loadUnit, deflectionUnit;    ///< of the read-out
};

/// Whether the style has the curve.
bool hasCurve(const DeflectionResult& result, DeflectionLoad load);

/// Takes the curve over into display units. The segment that begins in the whole pounds of the relief load is
/// the first beyond it; with no preload all are. Error 9 when the style hasn't the curve.
DeflectionGraphData deflectionGraphData(const DeflectionResult& result, DeflectionLoad load,
                                        const UnitMode& units);

/// The graph in full size, on the screen and in a bitmap: red up to relief, green beyond; segments that pass
/// the axes' ends are left out. It stands on a page 8.5 inches wide and `kDeflectionPicture` high.
Graph deflectionGraph(const DeflectionGraphData& data, const GraphSettings& settings);
constexpr double kDeflectionPicture = 8.5;

/// The same graph on landscape letter paper, without its notes.
Graph printedDeflectionGraph(const DeflectionGraphData& data, const GraphSettings& settings);

/// The same graph in the places of a saved document: red up to relief, blue beyond.
Graph savedDeflectionGraph(const DeflectionGraphData& data, const GraphSettings& settings);

}  // namespace norlaplan
