#pragma once

#include <string>

#include "state/Ports.h"

namespace norlaplan {

/// The plain sentence for a screen or action that this version of the program doesn't have, by its name
/// ("Form24", "Training").
Message notInThisVersion(const std::string& name);

}  // namespace norlaplan
