#pragma once

#include "documents/Graph.h"
#include "documents/RtfGraph.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// What a graph is drawn on. A few texts and places differ between the two.
enum class GraphTarget { Screen, Printer };

/// How far up the page the printer's graph stands from where the screen's picture has it, inches.
constexpr double kPrintedGraphRise = 4.5;

/// The torque curve of `state.torque` with the range of the bearing's fit in grey: preloads in inches,
/// torques in the display's unit; labels and read-out in display units. The screen marks a range by the fit
/// letter, the printer by the number's last character. Errors: 5 for a curve without torque.
Graph torqueGraph(const ProgramState& state, GraphTarget target);

/// The same curve for a saved document, in display units and on axes of its own: in metric ones to 0.15 mm,
/// the torque in ten steps.
RtfGraphPage torqueGraphPage(const ProgramState& state);

}  // namespace norlaplan
