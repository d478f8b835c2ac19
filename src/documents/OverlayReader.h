#pragma once

#include <cstddef>
#include <string_view>

#include "documents/RTFroutines.h"

namespace norlaplan {

/// No plot is longer than this; what goes beyond is a file that is none.
constexpr std::size_t kMostPlotBytes = 4U << 20U;

/// Draws an HP-GL plot into the document: pen moves, lines, arcs, pen widths and colours, line types. Labels
/// are dropped, unknown mnemonics passed over, and parameters that are no numbers count as 0, so that any
/// file survives. 1016 plotter units make an inch. False when a part is left out: what comes after more lines
/// than a drawing has, and circles far wider than the page.
bool OverlayToRtf(RtfDocument& document, std::string_view hpgl);

}  // namespace norlaplan
