#pragma once

#include <filesystem>
#include <string>

#include "state/Drawing.h"

namespace norlaplan {

/// Draws into a picture file: .pdf, .png or .bmp by the extension of the path. Further pages of a .png or
/// .bmp stand below the first. The file is written whole or not at all. Errors: 5 for another extension, and
/// those of `writeWholeFile`. Needs a running Qt Gui application.
void savePicture(const std::filesystem::path& path, const Drawing& drawing);

/// The same in the format of this extension (".bmp"), whatever the path's own.
void savePictureAs(const std::filesystem::path& path, const Drawing& drawing, const std::string& extension);
/// A part of a drawing of one page as .png or .bmp, in as many dots as the whole page is wide.
void savePictureAs(const std::filesystem::path& path, const Drawing& drawing, const std::string& extension,
                   const PageBox& area);

/// Whether the extension is one that `savePicture` writes.
bool isPictureFile(const std::filesystem::path& path);

}  // namespace norlaplan
