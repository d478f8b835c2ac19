#pragma once

#include "catalogue/Subroutines.h"
#include "screens/Screens.h"

namespace norlaplan {

/// Decodes a part number into the bearing in hand and goes where its outcome leads: on a refusal to the part
/// number screen, emptied, over the main menu. The messages have been shown.
DecodeEnd decodeBearing(Screens& screens, std::string number);

/// For every action on the bearing in hand: makes sure that the record holds the decoded bearing of the part
/// number, by decoding it again where it doesn't. False when that is refused or fails: the user then is on
/// the part number screen or the main menu, and the action ends.
bool bearingInHand(Screens& screens);

}  // namespace norlaplan
