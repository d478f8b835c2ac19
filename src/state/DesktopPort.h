#pragma once

#include <filesystem>

namespace norlaplan {

/// The desktop's own programs.
class DesktopPort {
  public:
    virtual ~DesktopPort() = default;
    /// Opens a file, or a folder, with the program that the desktop has for it. False when there is none.
    virtual bool open(const std::filesystem::path& path) = 0;
};

}  // namespace norlaplan
