#pragma once

#include <filesystem>

namespace norlaplan {

/// Moves a file to another name, over a file that stands there; to another file system as well. Errors: 53
/// when there is nothing to move, otherwise as `writeWholeFile`; both files then stand as before.
void moveFile(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace norlaplan
