#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "state/WholeFile.h"

namespace norlaplan {

/// The folder under which all of the program's files lie. Names are given as the program states them
/// ("\Data Tables\13-X.csv", "SETTINGS.INI") and matched without regard to case.
///
/// An installed program has two: its user's own folder, where everything is written, and the shared one,
/// which gives what the own one lacks, file by file. So a table that is put into the own folder stands in
/// place of the installed one.
class ProgramFolder {
  public:
    /// One folder, read and written.
    explicit ProgramFolder(std::filesystem::path root);
    /// A user's own folder, made when something is first written, over a shared one that is only read.
    ProgramFolder(std::filesystem::path root, std::filesystem::path shared);

    /// Where everything is written.
    const std::filesystem::path& root() const { return root_; }

    /// The path of a file or folder that is read: the one under `root`, else the shared one, else the place
    /// under `root` where it would stand.
    std::filesystem::path find(std::string_view name) const;

    /// The whole of a file of `most` bytes at most. Errors as `readWholeFile`.
    std::string read(std::string_view name, std::size_t most = kMostBytes) const;

    /// The names of the files in a folder, in their order: under `root` and shared ones, each once whatever
    /// its case. None when there is no such folder.
    std::vector<std::string> files(std::string_view folder) const;

    /// The path of a file under `root`, whether it is there or not; never a shared one.
    std::filesystem::path own(std::string_view name) const;

    /// `own`, with the user's own folder made for it. Errors 61, 70, 75 and 57 as `makeFolder`.
    std::filesystem::path toWrite(std::string_view name) const;

    /// The folder that a save dialog opens on: `own`, which is made where it can be.
    std::filesystem::path toSaveIn(std::string_view folder) const;

  private:
    bool installed() const { return !shared_.empty(); }

    std::filesystem::path root_, shared_;
};

}  // namespace norlaplan
