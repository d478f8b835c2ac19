#pragma once

#include <optional>
#include <string>

#include "state/BearingSpec.h"
#include "state/Ports.h"

namespace norlaplan {

/// A part number that is refused: the message to show before the entry screen comes back.
struct Refusal {
    Message message;
};

/// Throws `Refusal` when there is a fault.
void refuseFor(const std::optional<Message>& fault);

/// Upper-cases and repairs the number (letter O for the digit 0 in positions 2 to 6 and 9) and takes its
/// codes into the bearing, position by position; the first that isn't valid throws `Refusal`. A fit letter on
/// a single bearing or a tandem set is only warned of, through `messages`, and dropped.
void checkPartNumber(std::string& number, BearingSpec& bearing, MessagePort& messages);

}  // namespace norlaplan
