#pragma once

#include <string>

#include "deflection/DeflectionGraph.h"
#include "documents/Document.h"
#include "state/Canvas.h"
#include "state/Ports.h"

namespace norlaplan {

/// The graph with its notes as an RTF document; `userName` stands in its footer. Errors as those of
/// `writeGraph`.
std::string deflectionRtf(const DeflectionGraphData& data, const GraphSettings& settings,
                          const std::string& userName, ClockPort& clock);

/// The graph with its notes as a printed page, landscape letter. Errors as those of `drawGraph`.
void printDeflectionGraph(const DeflectionGraphData& data, const GraphSettings& settings, ClockPort& clock,
                          Canvas& canvas);

/// The name under which the graph is proposed to be saved.
std::string deflectionGraphName(const DeflectionGraphData& data);

/// All as a document of its own, which a bitmap shows as the screen's picture.
Document deflectionDocument(const DeflectionGraphData& data, const GraphSettings& settings,
                            const std::string& userName, ClockPort& clock);

}  // namespace norlaplan
