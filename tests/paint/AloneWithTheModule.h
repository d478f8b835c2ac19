#pragma once

#include "paint/PictureModule.h"

namespace norlaplan::testing {

/// The module's entry, as the command line finds it; null when it can't be loaded.
SavePictureEntry moduleEntry();

/// The word with which the test program is a program that has no application object: it saves a page with a
/// line through the module, into the file that the next word names, and ends with what the module gives.
constexpr const char* kSaveAlone = "--save-alone";
int saveAlone(const char* file);

}  // namespace norlaplan::testing
