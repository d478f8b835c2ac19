#pragma once

#include <cstddef>
#include <filesystem>

#include "numbers/RuntimeError.h"

namespace norlaplan {

/// A fault of a file or folder: its text is the classic one, a colon and the path.
RuntimeError fileFault(int number, const std::filesystem::path& path);
[[noreturn]] void raiseFile(int fault, const std::filesystem::path& file);

/// Raises 321 for a file of more than `most` bytes; the text tells the limit.
[[noreturn]] void raiseTooLarge(const std::filesystem::path& file, std::size_t most);

/// The fault that stands for what the system says of a file (`errno`): 52 for a name that is too long,
/// `missing` (53 or 75) for one that isn't there, 61 for a full disk or a limit on its size, 70 for rights,
/// 75 for a path that leads nowhere, 67 and 7 where files or memory run out, 57 for anything else.
int faultOfSystem(int code, int missing);

/// Raises that fault, with the file's name in its text.
[[noreturn]] void raiseSystem(int code, const std::filesystem::path& file, int missing);

}  // namespace norlaplan
