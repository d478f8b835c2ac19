#pragma once

#include "documents/Graph.h"
#include "documents/RtfGraph.h"
#include "fits/TorqueGraph.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// The two graphs of `state.play`: axial play in display length, and tilt in radians, both against diametral
/// clearance in display length.
enum class PlayGraph { AxialPlay, Tilt };

/// The graph with the bearing's clearance range in grey. Errors: 5 and 11 for a curve without play.
Graph playGraph(const ProgramState& state, PlayGraph which, GraphTarget target);

/// The same curve for a saved document on axes of its own: round clearances, ten steps upward.
RtfGraphPage playGraphPage(const ProgramState& state, PlayGraph which);

}  // namespace norlaplan
