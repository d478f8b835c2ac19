#include <cstdlib>

#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "numbers/RuntimeError.h"
#include "state/InstalledFolder.h"
#include "state/Settings.h"
#include "support/DiskTroubles.h"
#include "support/FaultOf.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

namespace fs = std::filesystem;
using testing::faultOf;
using testing::ReadOnlyFolder;
using testing::TemporaryFolder;

/// A program that is installed under "usr", and the home of a user who hasn't run it yet.
struct Installation {
    Installation() {
        place.write("usr/bin/norlaplan", "program");
        place.write("usr/share/norlaplan-mm/Data Tables/13-X.csv", "installed 13");
        place.write("usr/share/norlaplan-mm/Data Tables/20-X.csv", "installed 20");
        fs::create_directories(home);
    }

    ProgramFolder folder() const {
        return programFolderOf(place.path() / "usr/bin", {"", home.string(), ""});
    }

    TemporaryFolder place;
    fs::path home = place.path() / "home";
    fs::path own = home / ".local/share/norlaplan-mm";
    fs::path shared = place.path() / "usr/share/norlaplan-mm";
};

TEST(InstalledProgram, ReadsTheInstalledFilesAndMakesNothing) {
    const Installation installed;
    const ProgramFolder folder = installed.folder();
    EXPECT_EQ(folder.root(), installed.own);
    EXPECT_EQ(folder.read("\\DATA TABLES\\13-x.csv"), "installed 13");
    EXPECT_EQ(folder.find("\\Data Tables\\13-X.csv"), installed.shared / "Data Tables/13-X.csv");
    EXPECT_TRUE(fs::is_empty(installed.home));
}

TEST(InstalledProgram, ATableOfTheUserStandsInPlaceOfTheInstalledOneAndOfNoOther) {
    const Installation installed;
    // The user's spelling of the folder differs from the installed one.
    installed.place.write("home/.local/share/norlaplan-mm/data tables/13-x.CSV", "own 13");
    const ProgramFolder folder = installed.folder();
    EXPECT_EQ(folder.read("\\Data Tables\\13-X.csv"), "own 13");
    EXPECT_EQ(folder.read("\\Data Tables\\20-X.csv"), "installed 20");
}

TEST(InstalledProgram, AFileThatIsInNeitherFolderIsMissingFromTheUsersOwn) {
    const Installation installed;
    const ProgramFolder folder = installed.folder();
    EXPECT_EQ(faultOf([&] { folder.read("\\Data Tables\\8-X.csv"); }), fault::kFileNotFound);
    EXPECT_EQ(folder.find("\\Data Tables\\8-X.csv"), installed.own / "Data Tables/8-X.csv");
}

TEST(InstalledProgram, WritesOnlyIntoTheUsersOwnFolderWhichItMakesForThatUserAlone) {
    const Installation installed;
    installed.place.write("usr/share/norlaplan-mm/SETTINGS.INI", "");
    ProgramState state;
    state.user.userName = "Ann";
    SaveSettings(state, installed.folder());
    EXPECT_EQ(installed.place.read("usr/share/norlaplan-mm/SETTINGS.INI"), "");
    EXPECT_EQ(installed.place.read("home/.local/share/norlaplan-mm/SETTINGS.INI").substr(0, 5), "Ann\r\n");
    struct stat status {};
    ASSERT_EQ(::stat(installed.own.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
    ProgramState again;
    startUp(again, installed.folder());
    EXPECT_EQ(again.user.userName, "Ann");
}

TEST(InstalledProgram, TheDataSheetOfAnotherUserIsNeverTheOneThatIsDeleted) {
    const Installation installed;
    installed.place.write("usr/share/norlaplan-mm/DATA.RTF", "shared");
    EXPECT_EQ(installed.folder().own("\\data.rtf"), installed.own / "data.rtf");
}

TEST(InstalledProgram, ASaveDialogOpensOnAFolderThatIsMadeForIt) {
    const Installation installed;
    EXPECT_EQ(installed.folder().toSaveIn("\\save"), installed.own / "save");
    EXPECT_TRUE(fs::is_directory(installed.own / "save"));
}

TEST(InstalledProgram, AHomeThatCanOnlyBeReadIsNamedByTheFault) {
    const Installation installed;
    fs::permissions(installed.place.path(), fs::perms::all);
    const ProgramFolder folder = installed.folder();
    const ReadOnlyFolder trouble(installed.home);
    EXPECT_EQ(folder.read("\\Data Tables\\13-X.csv"), "installed 13");
    EXPECT_EQ(folder.toSaveIn("\\save"), installed.own / "save") << "the dialog opens all the same";
    try {
        folder.toWrite("SETTINGS.INI");
        FAIL() << "the folder was made";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), fault::kPermissionDenied);
        EXPECT_EQ(std::string(error.what()),
                  "Permission denied: the folder " + (installed.home / ".local").string() + " can't be made");
    }
}

TEST(InstalledProgram, AFileInThePlaceOfTheUsersFolderIsAFault) {
    const Installation installed;
    installed.place.write("home/.local/share/norlaplan-mm", "a file");
    EXPECT_EQ(faultOf([&] { installed.folder().toWrite("SETTINGS.INI"); }), fault::kPathAccess);
    EXPECT_EQ(installed.folder().read("\\Data Tables\\13-X.csv"), "installed 13");
}

TEST(InstalledProgram, ListsTheFilesOfBothFoldersEachOnce) {
    const Installation installed;
    installed.place.write("home/.local/share/norlaplan-mm/Data Tables/13-x.CSV", "own 13");
    installed.place.write("home/.local/share/norlaplan-mm/Data Tables/A.csv", "own");
    fs::create_directories(installed.own / "Data Tables/a folder");
    const std::vector<std::string> expected = {"13-x.CSV", "20-X.csv", "A.csv"};
    EXPECT_EQ(installed.folder().files("\\data tables"), expected);
    EXPECT_TRUE(installed.folder().files("\\neds Pictures").empty());
}

TEST(UsualProgramFolder, FollowsTheDataHomeOnlyWhenItIsAbsolute) {
    const Installation installed;
    const fs::path bin = installed.place.path() / "usr/bin";
    const std::string home = installed.home.string();
    EXPECT_EQ(programFolderOf(bin, {"/data", home, ""}).root(), "/data/norlaplan-mm");
    EXPECT_EQ(programFolderOf(bin, {"data", home, ""}).root(), installed.own);
    EXPECT_EQ(programFolderOf(bin, {"", "here", home}).root(), installed.own);
    EXPECT_EQ(programFolderOf(bin, {"", "", home}).root(), installed.own);
}

TEST(UsualProgramFolder, OfAUserWithoutAHomeIsTheInstalledOne) {
    const Installation installed;
    const ProgramFolder folder = programFolderOf(installed.place.path() / "usr/bin", {});
    EXPECT_EQ(folder.root(), installed.shared);
    EXPECT_EQ(folder.read("\\Data Tables\\13-X.csv"), "installed 13");
}

TEST(UsualProgramFolder, OfAProgramBesideItsDataIsThatFolderAlone) {
    const Installation installed;
    installed.place.write("usr/bin/Data Tables/13-X.csv", "beside");
    const ProgramFolder folder = installed.folder();
    EXPECT_EQ(folder.root(), installed.place.path() / "usr/bin");
    EXPECT_EQ(faultOf([&] { folder.read("\\Data Tables\\20-X.csv"); }), fault::kFileNotFound);
}

TEST(UsualProgramFolder, OfAProgramWithoutInstalledDataIsItsOwnAndIsNotMade) {
    const TemporaryFolder place;
    const fs::path bin = place.path() / "bin";
    const ProgramFolder folder = programFolderOf(bin, {"", place.path().string(), ""});
    EXPECT_EQ(folder.root(), bin);
    EXPECT_EQ(folder.toWrite("SETTINGS.INI"), bin / "SETTINGS.INI");
    EXPECT_EQ(folder.toSaveIn("\\save"), bin / "save");
    EXPECT_TRUE(fs::is_empty(place.path()));
}

TEST(UserHome, KnowsTheVariablesOfTheLogin) {
    ::setenv("XDG_DATA_HOME", "/somewhere", 1);
    EXPECT_EQ(userHome().dataHome, "/somewhere");
    ::unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(userHome().dataHome, "");
}

TEST(UserHome, AsksTheAccountWhereTheLoginNamesNoFolder) {
    const char* const set = std::getenv("HOME");
    const std::string before = set == nullptr ? "" : set;
    const std::string account = ::getpwuid(::geteuid())->pw_dir;
    for (const char* const home : {"", "not/a/whole/path"}) {
        ::setenv("HOME", home, 1);
        EXPECT_EQ(userHome().account, account) << home;
    }
    ::setenv("HOME", "/somewhere", 1);
    EXPECT_EQ(userHome().home, "/somewhere");
    ::setenv("HOME", before.c_str(), 1);
}

}  // namespace
}  // namespace norlaplan
