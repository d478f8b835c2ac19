#include <csignal>
#include <iterator>
#include <string>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "numbers/RuntimeError.h"
#include "state/ProgramFolder.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::TemporaryFolder;

int faultOf(auto&& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(ProgramFolder, MatchesNamesWithoutRegardToCase) {
    TemporaryFolder place;
    place.write("Data Tables/13-X.csv", "table");
    const ProgramFolder folder(place.path());
    EXPECT_EQ(folder.read("\\DATA TABLES\\13-x.CSV"), "table");
    EXPECT_EQ(folder.read("data tables/13-X.csv"), "table");
}

TEST(ProgramFolder, PrefersTheExactNameOverOneThatDiffersInCase) {
    TemporaryFolder place;
    place.write("A.csv", "upper");
    place.write("a.csv", "lower");
    EXPECT_EQ(ProgramFolder(place.path()).read("a.csv"), "lower");
    EXPECT_EQ(ProgramFolder(place.path()).read("A.csv"), "upper");
}

TEST(ProgramFolder, MissingFileOrFolderIsFileNotFound) {
    TemporaryFolder place;
    const ProgramFolder folder(place.path());
    EXPECT_EQ(faultOf([&] { folder.read("none.csv"); }), fault::kFileNotFound);
    EXPECT_EQ(faultOf([&] { folder.read("\\Data Tables\\none.csv"); }), fault::kFileNotFound);
}

TEST(WriteWholeFile, ReplacesTheFileAndLeavesNothingElseBehind) {
    TemporaryFolder place;
    place.write("report.rtf", "old");
    writeWholeFile(place.path() / "report.rtf", "new");
    EXPECT_EQ(place.read("report.rtf"), "new");
    const std::filesystem::directory_iterator first(place.path());
    EXPECT_EQ(std::distance(first, std::filesystem::directory_iterator{}), 1);
}

TEST(WriteWholeFile, KeepsTheRightsOfTheFileThatItReplaces) {
    TemporaryFolder place;
    place.write("report.rtf", "old");
    ::chmod((place.path() / "report.rtf").c_str(), 0640);
    writeWholeFile(place.path() / "report.rtf", "new");
    struct stat status {};
    ::stat((place.path() / "report.rtf").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST(WriteWholeFile, FullDiskIsSixtyOneAndWhatStoodThereStillStands) {
    TemporaryFolder place;
    place.write("report.rtf", "old");
    // A limit on the size of files stands for the full disk; a process of its own keeps it from the other
    // tests.
    const pid_t child = ::fork();
    if (child == 0) {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit few{1000, 1000};
        ::setrlimit(RLIMIT_FSIZE, &few);
        ::_exit(faultOf([&] { writeWholeFile(place.path() / "report.rtf", std::string(5000, 'x')); }));
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), fault::kDiskFull);
    EXPECT_EQ(place.read("report.rtf"), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(place.path()), {}), 1)
        << "no temporary file stays";
}

TEST(WriteWholeFile, MissingFolderOrAFolderOfThatNameIsSeventyFive) {
    TemporaryFolder place;
    place.write("folder/report.rtf", "old");
    EXPECT_EQ(faultOf([&] { writeWholeFile(place.path() / "missing" / "report.rtf", "new"); }),
              fault::kPathAccess);
    EXPECT_EQ(faultOf([&] { writeWholeFile(place.path() / "folder", "new"); }), fault::kPathAccess);
    EXPECT_EQ(place.read("folder/report.rtf"), "old");
}

}  // namespace
}  // namespace norlaplan
