#pragma once

#include <cstddef>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>

namespace norlaplan {

/// No file that the program reads whole comes near this size; what does is something else, and isn't worth
/// the memory.
constexpr std::size_t kMostBytes = 64U << 20U;
constexpr std::size_t kAnySize = std::numeric_limits<std::size_t>::max();

/// The whole of a file by its path. Error 53 when it or its folder is missing, 70 when it can't be read, 75
/// when it is a folder, a pipe or a device, 321 when it is larger than `most` bytes, of which no more is read
/// than that; the text names the file.
std::string readWholeFile(const std::filesystem::path& path, std::size_t most = kMostBytes);

/// Writes a file whole or not at all; what stood there before still stands after a failure. Errors, links and
/// devices as `StagedFile`.
void writeWholeFile(const std::filesystem::path& path, std::string_view content);

/// Makes a folder and those above it, for its user alone, where they are missing. Errors 61, 70, 75 and 57 as
/// `StagedFile`; their text names the folder.
void makeFolder(const std::filesystem::path& folder);

}  // namespace norlaplan
