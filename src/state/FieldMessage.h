#pragma once

#include <string>

#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// A message about what was entered, with the text that it is about.
struct FieldMessage : Message {
    std::string EntryTexts::*field = nullptr;
};

}  // namespace norlaplan
