#pragma once

#include <filesystem>
#include <functional>

#include "state/Canvas.h"

namespace norlaplan {

/// Draws a document into a picture file: .pdf, .png or .bmp by the extension of the path, letter pages,
/// portrait. Further pages of a .png or .bmp stand below the first. The file is written whole or not at all.
/// Errors: 5 for another extension, and those of `writeWholeFile`. Needs a running Qt Gui application.
void savePicture(const std::filesystem::path& path, const std::function<void(Canvas&)>& draw);

/// Draws a part of the page, in page inches, into a bitmap file of whatever name, as large as a whole page.
/// Errors as `savePicture`.
void saveBitmap(const std::filesystem::path& path, const PageBox& area,
                const std::function<void(Canvas&)>& draw);

/// Whether the extension is one that `savePicture` writes.
bool isPictureFile(const std::filesystem::path& path);

}  // namespace norlaplan
