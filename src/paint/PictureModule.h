#pragma once

#include <cstddef>

#include "state/Drawing.h"

namespace norlaplan {

/// File name of the module, which lies beside the program, or in this folder seen from there when it is
/// installed; and the name of its one entry.
constexpr const char* kPictureModule = "norlaplan-paint.so";
constexpr const char* kInstalledModules = "../lib/norlaplan-mm/modules";
constexpr const char* kPictureEntry = "norlaplanSavePicture";

/// Draws on pages of this size by calling `draw(context, canvas)` and saves the picture as `savePicture`
/// does; where that gives false, the drawing is not whole and nothing is saved. Gives 0, or the number of the
/// run-time error with its text, cut to `size` bytes with its end, in `text`; -1 for a failure without a
/// number. No exception leaves it, and it needs no display.
using SavePictureEntry = int (*)(const char* path, const Paper& paper,
                                 bool (*draw)(void* context, Canvas& canvas), void* context, char* text,
                                 std::size_t size);

}  // namespace norlaplan
