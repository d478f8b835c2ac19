#pragma once

#include "screens/Screens.h"

namespace norlaplan {

/// Decodes the current part number and goes where its outcome leads: on a refusal to the part number screen,
/// emptied, with its messages shown. True when the bearing is decoded, with its data sheet stored.
bool decodeCurrentBearing(Screens& screens);

}  // namespace norlaplan
