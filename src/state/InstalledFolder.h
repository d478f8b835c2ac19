#pragma once

#include <filesystem>
#include <string>

#include "state/ProgramFolder.h"

namespace norlaplan {

/// What a login knows of where its user's files are; empty texts where it knows nothing.
struct UserHome {
    std::string dataHome;  ///< XDG_DATA_HOME
    std::string home;      ///< HOME
    std::string account;   ///< the home folder of the user's account, asked where HOME gives no path
};

/// The home of the running program's user.
UserHome userHome();

/// The program folder of a program in the folder `executables`. One that lies beside its data uses that
/// folder alone. An installed one has its data in the share folder beside its own, and a folder of its user's
/// over it: `norlaplan-mm` in XDG_DATA_HOME, by default in ~/.local/share. Paths that are not absolute don't
/// count. A user without a home only reads.
ProgramFolder programFolderOf(const std::filesystem::path& executables, const UserHome& user);

/// The program folder of the running program.
ProgramFolder usualProgramFolder();

}  // namespace norlaplan
