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

/// While it lives the administrator, who may write anywhere, reaches files as nobody does.
class AsNobody {
  public:
    AsNobody() {
        if (::geteuid() == 0) ::setfsuid(65534);
    }
    ~AsNobody() { ::setfsuid(::geteuid()); }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;
};

/// While it lives a file or folder has these rights; its owner's are given back.
class WithRights {
  public:
    WithRights(const std::filesystem::path& path, std::filesystem::perms rights) : path_(path) {
        std::filesystem::permissions(path_, rights);
    }
    ~WithRights() { std::filesystem::permissions(path_, std::filesystem::perms::owner_all); }
    WithRights(const WithRights&) = delete;
    WithRights& operator=(const WithRights&) = delete;

  private:
    std::filesystem::path path_;
};

/// While it lives the folder can be read only, by the administrator as well.
class ReadOnlyFolder {
  public:
    explicit ReadOnlyFolder(const std::filesystem::path& folder)
        : rights_(folder, static_cast<std::filesystem::perms>(0555)) {}

  private:
    WithRights rights_;  // before who has them: they are given back by the owner
    AsNobody nobody_;
};

/// While it lives the file can be read only, by the administrator as well; its folder takes new files.
class ReadOnlyFile {
  public:
    explicit ReadOnlyFile(const std::filesystem::path& file)
        : folder_(file.parent_path(), std::filesystem::perms::all),
          rights_(file, static_cast<std::filesystem::perms>(0444)) {}

  private:
    WithRights folder_, rights_;  // before who has them: they are given back by the owner
    AsNobody nobody_;
};

}  // namespace norlaplan::testing
