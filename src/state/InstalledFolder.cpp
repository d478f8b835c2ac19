#include "state/InstalledFolder.h"

#include <cstdlib>
#include <system_error>

#include <pwd.h>
#include <unistd.h>

namespace norlaplan {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "norlaplan-mm";

std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::string accountHome() {
    const passwd* const account = ::getpwuid(::geteuid());
    return account == nullptr || account->pw_dir == nullptr ? "" : account->pw_dir;
}

bool isFolder(const fs::path& path) {
    std::error_code failure;
    return fs::is_directory(path, failure);
}

/// The user's own program folder, empty when there is no home for it.
fs::path ownFolder(const UserHome& user) {
    const fs::path dataHome = user.dataHome;
    if (dataHome.is_absolute()) return dataHome / kName;
    for (const fs::path home : {user.home, user.account}) {
        if (home.is_absolute()) return home / ".local" / "share" / kName;
    }
    return {};
}

}  // namespace

UserHome userHome() {
    UserHome user{variable("XDG_DATA_HOME"), variable("HOME"), ""};
    // The account is asked last: that takes a good part of a short call.
    if (!fs::path(user.home).is_absolute()) user.account = accountHome();
    return user;
}

ProgramFolder programFolderOf(const fs::path& executables, const UserHome& user) {
    const fs::path shared = executables.parent_path() / "share" / kName;
    if (isFolder(executables / "Data Tables") || !isFolder(shared)) return ProgramFolder(executables);
    const fs::path own = ownFolder(user);
    return own.empty() ? ProgramFolder(shared) : ProgramFolder(own, shared);
}

ProgramFolder usualProgramFolder() {
    return programFolderOf(fs::read_symlink("/proc/self/exe").parent_path(), userHome());
}

}  // namespace norlaplan
