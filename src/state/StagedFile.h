#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "state/Descriptor.h"

namespace norlaplan {

/// The new content of a file, written beside it and waiting. Errors of the constructor: 52 for a name that is
/// too long, 61 for a full disk or a limit on a file's size, 70 when writing isn't permitted into the folder
/// or onto the file that is there, 75 when the folder is missing or the path is one of a folder, 57 for
/// anything else; their texts name the file.
///
/// What stands at the path stands until `commit`; without it the new content is dropped. A symbolic link is
/// followed, also one whose target is still to be made. A pipe or a device is never replaced: what is written
/// goes through it, at `commit` or as it grows.
///
/// The waiting file has one name for one target, so that a program that was killed leaves one at most, and
/// the next save takes it.
class StagedFile {
  public:
    StagedFile(const std::filesystem::path& path, std::string_view content);
    /// One that is empty and grows, for results that are too many to be held.
    explicit StagedFile(const std::filesystem::path& path);
    ~StagedFile();
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;

    /// Writes behind what is there, before `commit`. Errors as above.
    void append(std::string_view content);
    /// Puts the new content in place in one step, which needs no more room. Errors as above.
    void commit();

    const std::filesystem::path& target() const { return target_; }
    /// The name of the waiting file, which no other program uses meanwhile; empty for a pipe or device.
    const std::string& waiting() const { return waiting_; }

  private:
    void openWaiting();
    void settle();
    void discard();

    std::filesystem::path target_;
    std::string waiting_;  ///< name of the waiting file; empty when there is none
    Descriptor file_;      ///< of the waiting file, locked, or of the pipe or device
    bool settled_ = true;  ///< all that was written has reached the disk
    std::string through_;  ///< what goes through a pipe or device at the commit
};

/// Puts two files in place, both or none: when the second can't be, the first goes back. Errors as `commit`.
void commitTogether(StagedFile& first, StagedFile& second);

}  // namespace norlaplan
