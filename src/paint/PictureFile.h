#pragma once

#include <filesystem>

#include "state/Drawing.h"

namespace norlaplan {

/// Draws into a picture file: .pdf, .png or .bmp by the extension of the path. Further pages of a .png or
/// .bmp stand below the first. The file is written whole or not at all. Errors: 5 for another extension, and
/// those of `writeWholeFile`. Needs a running Qt Gui application.
void savePicture(const std::filesystem::path& path, const Drawing& drawing);

/// Draws all pages into a bitmap file of whatever name. Errors as `savePicture`.
void saveBitmap(const std::filesystem::path& path, const Drawing& drawing);
/// Draws a part of a drawing of one page, as wide as the whole page would be.
void saveBitmap(const std::filesystem::path& path, const Drawing& drawing, const PageBox& area);

/// Whether the extension is one that `savePicture` writes.
bool isPictureFile(const std::filesystem::path& path);

}  // namespace norlaplan
