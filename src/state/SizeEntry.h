#pragma once

#include <optional>

#include "state/FieldMessage.h"

namespace norlaplan {

/// Puts the envelope that was entered before into the texts of the size screen: those values that are not 0.
void showSizesAgain(ProgramState& state);

/// Reads the size texts into the search criteria. Sizes in the wrong order are swapped without a word, in the
/// texts too. Gives the message for the first size that is missing or no number (then it quotes the text), or
/// nothing when all four stand, in inches as well, and count as chosen.
std::optional<FieldMessage> enterSizes(ProgramState& state);

/// Inches of the sizes as displayed.
void convertSizes(ProgramState& state);

}  // namespace norlaplan
