#pragma once

#include <string_view>

#include "documents/RTFroutines.h"

namespace norlaplan {

/// Draws an HP-GL plot into the document: pen moves, lines, arcs, pen widths and colours, line types. Labels
/// are dropped, unknown mnemonics passed over, and parameters that are no numbers count as 0, so that any
/// file survives. 1016 plotter units make an inch.
void OverlayToRtf(RtfDocument& document, std::string_view hpgl);

}  // namespace norlaplan
