#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace norlaplan {

/// The folder of the executable, under which all of the program's files lie. Names are given as the program
/// states them ("\Data Tables\13-X.csv", "SETTINGS.INI") and matched without regard to case.
class ProgramFolder {
  public:
    explicit ProgramFolder(std::filesystem::path root);

    const std::filesystem::path& root() const { return root_; }

    /// The path of a file or folder: the existing one that matches, else the place where it would stand.
    std::filesystem::path find(std::string_view name) const;

    /// The whole of a file. Error 53 when it or its folder is missing, 70 when it can't be read.
    std::string read(std::string_view name) const;

  private:
    std::filesystem::path root_;
};

}  // namespace norlaplan
