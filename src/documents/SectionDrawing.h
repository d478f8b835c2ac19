#pragma once

#include <string>

#include "documents/RTFroutines.h"
#include "state/BearingSpec.h"
#include "state/ProgramFolder.h"

namespace norlaplan {

/// The plots of a bearing's data sheet, HP-GL.
struct Overlays {
    std::string section, separator;
};

/// The plots of the bearing's style and of its separator. Errors: 53 for one that is missing, 70 and 75 for
/// one that can't be read, 321 for one that is too large.
Overlays readOverlays(const BearingSpec& bearing, const ProgramFolder& folder);

/// Writes the drawing of the bearing's style and that of its separator as they stand on the data sheet, from
/// the program's overlays; a line in red tells of one that isn't whole. Errors as those of `readOverlays`.
void writeOverlays(RtfDocument& document, const BearingSpec& bearing, const ProgramFolder& folder);

/// Height of what `drawSection` draws, inches.
constexpr double kSectionHeight = 2.0;

/// Draws the data sheet's section through rings and balls, without its dimensions, around a place on the
/// page, and beside it the sheet's view of the separator. Error 53 for a missing overlay.
void drawSection(Canvas& canvas, const BearingSpec& bearing, const ProgramFolder& folder, PagePoint centre);

}  // namespace norlaplan
