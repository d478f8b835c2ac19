#pragma once

#include <optional>
#include <string>

#include "state/Canvas.h"

namespace norlaplan {

/// The dialog that picks a colour, opened on the one that holds now. Nothing when the user cancels.
class ColourDialogPort {
  public:
    virtual ~ColourDialogPort() = default;
    virtual std::optional<Colour> askColour(const std::string& title, Colour now) = 0;
};

}  // namespace norlaplan
