#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace norlaplan {

/// The whole of a file by its path. Error 53 when it or its folder is missing, 70 when it can't be read, 75
/// when it is a folder or a device.
std::string readWholeFile(const std::filesystem::path& path);

/// The new content of a file, written beside it and waiting. Errors of the constructor: 61 for a full disk,
/// 70 when writing isn't permitted, 75 when the folder is missing or the path is one of a folder, 57 for
/// anything else. What stands at the path stands until `commit`; without it the new content is dropped.
class StagedFile {
  public:
    StagedFile(const std::filesystem::path& path, std::string_view content);
    ~StagedFile();
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;

    /// Puts the new content in place in one step, which needs no more room. Errors as above.
    void commit();

  private:
    void discard();

    std::filesystem::path target_;
    std::string temporary_;
};

/// Writes a file whole or not at all; what stood there before still stands after a failure. Errors as
/// `StagedFile`.
void writeWholeFile(const std::filesystem::path& path, std::string_view content);

}  // namespace norlaplan
