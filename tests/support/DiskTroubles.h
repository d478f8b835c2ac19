#pragma once

#include <csignal>
#include <filesystem>

#include <sys/fsuid.h>
#include <sys/resource.h>
#include <unistd.h>

/// What keeps a program from writing its files.
namespace norlaplan::testing {

/// While it lives no file grows beyond some hundred bytes, as on a full disk.
class FullDisk {
  public:
    explicit FullDisk(const std::filesystem::path&) {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit few{500, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &few);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &before_); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
};

/// While it lives the folder can be read only, by the administrator as well.
class ReadOnlyFolder {
  public:
    explicit ReadOnlyFolder(const std::filesystem::path& folder) : folder_(folder) {
        namespace fs = std::filesystem;
        fs::permissions(folder_, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::group_read |
                                     fs::perms::group_exec | fs::perms::others_read | fs::perms::others_exec);
        // The administrator may write anywhere; file access is tried as nobody for the time being.
        if (::geteuid() == 0) ::setfsuid(65534);
    }
    ~ReadOnlyFolder() {
        ::setfsuid(::geteuid());
        std::filesystem::permissions(folder_, std::filesystem::perms::owner_all);
    }
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

  private:
    std::filesystem::path folder_;
};

/// While it lives the file can be read only, by the administrator as well; its folder takes new files.
class ReadOnlyFile {
  public:
    explicit ReadOnlyFile(const std::filesystem::path& file) : file_(file) {
        namespace fs = std::filesystem;
        fs::permissions(file_, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
        if (::geteuid() != 0) return;
        fs::permissions(file_.parent_path(), fs::perms::all);
        ::setfsuid(65534);
    }
    ~ReadOnlyFile() {
        ::setfsuid(::geteuid());
        std::filesystem::permissions(file_, std::filesystem::perms::owner_all);
    }
    ReadOnlyFile(const ReadOnlyFile&) = delete;
    ReadOnlyFile& operator=(const ReadOnlyFile&) = delete;

  private:
    std::filesystem::path file_;
};

}  // namespace norlaplan::testing
