#pragma once

#include "catalogue/Subroutines.h"
#include "screens/Screens.h"

namespace norlaplan {

/// Decodes the current part number and goes where its outcome leads: on a refusal to the part number screen,
/// emptied. The messages have been shown.
DecodeEnd decodeCurrentBearing(Screens& screens);

}  // namespace norlaplan
