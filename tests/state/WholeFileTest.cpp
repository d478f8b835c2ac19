#include <iterator>
#include <set>
#include <string>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "numbers/RuntimeError.h"
#include "state/WholeFile.h"
#include "support/FaultOf.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::faultOf;
using testing::TemporaryFolder;

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

TEST(WriteWholeFile, LimitOnFileSizesIsSixtyOneAsAFullDiskAndWhatStoodThereStillStands) {
    TemporaryFolder place;
    place.write("report.rtf", "old");
    // A process of its own keeps the limit from the other tests.
    const pid_t child = ::fork();
    if (child == 0) {
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

TEST(ReadWholeFile, RefusesAFileThatIsLargerThanItsKindAndTellsTheLimit) {
    TemporaryFolder place;
    const std::filesystem::path file = place.path() / "large";
    place.write("large", std::string(3U << 20U, 'x'));
    EXPECT_EQ(readWholeFile(file, 3U << 20U).size(), 3U << 20U);
    try {
        readWholeFile(file, (3U << 20U) - 1);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), fault::kInvalidFormat);
        EXPECT_EQ(error.what(), "Invalid file format: it is larger than 2 MB: " + file.string());
    }
}

TEST(ReadWholeFile, NeverReadsAGigabyte) {
#ifdef NORLAPLAN_SANITIZE
    GTEST_SKIP() << "the address sanitizer needs more memory than this leaves";
#endif
    TemporaryFolder place;
    place.write("huge", "");
    std::filesystem::resize_file(place.path() / "huge", 1U << 30U);
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit memory{256U << 20U, 256U << 20U};
        ::setrlimit(RLIMIT_DATA, &memory);
        ::_exit(faultOf([&] { readWholeFile(place.path() / "huge"); }) == fault::kInvalidFormat ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

TEST(ReadWholeFile, CountsWhatHasNoSizeBeforehand) {
    // The system makes its text up as it is read.
    EXPECT_EQ(faultOf([] { readWholeFile("/proc/self/maps", 10); }), fault::kInvalidFormat);
    EXPECT_FALSE(readWholeFile("/proc/self/maps").empty());
}

TEST(ReadWholeFile, DoesNotWaitForAPipeInTheFilesPlace) {
    TemporaryFolder place;
    ASSERT_EQ(::mkfifo((place.path() / "SETTINGS.INI").c_str(), 0600), 0);
    EXPECT_EQ(faultOf([&] { readWholeFile(place.path() / "SETTINGS.INI"); }), fault::kPathAccess);
}

TEST(WriteWholeFile, MissingFolderOrAFolderOfThatNameIsSeventyFive) {
    TemporaryFolder place;
    place.write("folder/report.rtf", "old");
    EXPECT_EQ(faultOf([&] { writeWholeFile(place.path() / "missing" / "report.rtf", "new"); }),
              fault::kPathAccess);
    EXPECT_EQ(faultOf([&] { writeWholeFile(place.path() / "folder", "new"); }), fault::kPathAccess);
    EXPECT_EQ(place.read("folder/report.rtf"), "old");
}

TEST(ReadWholeFile, ReadsFilesOfAnyLengthAndWithAnyBytes) {
    TemporaryFolder place;
    std::string content;
    for (int i = 0; i < 200000; ++i)
        content += static_cast<char>(i % 256);
    for (const std::size_t length : {0U, 1U, 65535U, 65536U, 65537U, 200000U}) {
        place.write("file", content.substr(0, length));
        EXPECT_EQ(readWholeFile(place.path() / "file"), content.substr(0, length)) << length;
    }
}

TEST(ReadWholeFile, MissingIsFiftyThreeAndAFolderSeventyFive) {
    TemporaryFolder place;
    place.write("file", "content");
    EXPECT_EQ(faultOf([&] { readWholeFile(place.path() / "none"); }), fault::kFileNotFound);
    EXPECT_EQ(faultOf([&] { readWholeFile(place.path() / "file" / "none"); }), fault::kFileNotFound);
    EXPECT_EQ(faultOf([&] { readWholeFile(place.path()); }), fault::kPathAccess);
}

TEST(WriteWholeFile, WritesContentOfAnyLength) {
    TemporaryFolder place;
    const std::string content(3000000, 'x');
    writeWholeFile(place.path() / "long", content);
    EXPECT_EQ(place.read("long"), content);
    writeWholeFile(place.path() / "empty", "");
    EXPECT_TRUE(std::filesystem::exists(place.path() / "empty"));
    EXPECT_EQ(place.read("empty"), "");
}

TEST(WriteWholeFile, GivesANewFileTheRightsThatTheUserGivesNewFiles) {
    TemporaryFolder place;
    for (const mode_t mask : {0022U, 0077U}) {
        const mode_t before = ::umask(mask);
        writeWholeFile(place.path() / std::to_string(mask), "new");
        EXPECT_EQ(::umask(before), mask) << "and leaves those of later files alone";
        struct stat status {};
        ASSERT_EQ(::stat((place.path() / std::to_string(mask)).c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777U, 0666U & ~mask);
    }
}

TEST(WriteWholeFile, AFolderThatTakesNoFilesIsSeventy) {
    // Nobody, not even the administrator, makes files there.
    const std::filesystem::path closed = "/sys/kernel";
    if (!std::filesystem::is_directory(closed)) GTEST_SKIP() << "no such folder on this system";
    EXPECT_EQ(faultOf([&] { writeWholeFile(closed / "report.rtf", "new"); }), fault::kPermissionDenied);
}

TEST(WriteWholeFile, AFileInTheFoldersPlaceIsSeventyFive) {
    TemporaryFolder place;
    place.write("file", "content");
    EXPECT_EQ(faultOf([&] { writeWholeFile(place.path() / "file" / "report.rtf", "new"); }),
              fault::kPathAccess);
}

std::set<std::string> openFiles() {
    std::set<std::string> numbers;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
        numbers.insert(entry.path().filename().string());
    return numbers;
}

TEST(Files, LeaveNothingOpenAndCloseNothingElse) {
    if (!std::filesystem::exists("/proc/self/fd")) GTEST_SKIP() << "this system doesn't tell";
    TemporaryFolder place;
    const std::set<std::string> before = openFiles();
    writeWholeFile(place.path() / "report.rtf", "new");
    readWholeFile(place.path() / "report.rtf");
    faultOf([&] { readWholeFile(place.path() / "none"); });
    faultOf([&] { readWholeFile(place.path()); });
    faultOf([&] { writeWholeFile(place.path() / "missing" / "report.rtf", "new"); });
    EXPECT_EQ(openFiles(), before);
}

TEST(Files, AreReadAndWrittenByAProgramThatWasStartedWithNothingOpen) {
    TemporaryFolder place;
    place.write("old", "content");
    // A process of its own, whose first file gets the number 0.
    const pid_t child = ::fork();
    if (child == 0) {
        for (const int number : {0, 1, 2})
            ::close(number);
        std::string read;
        const int fault = faultOf([&] {
            read = readWholeFile(place.path() / "old");
            writeWholeFile(place.path() / "new", read);
        });
        ::_exit(fault != 0 ? fault : read == "content" ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(place.read("new"), "content");
}

}  // namespace
}  // namespace norlaplan
