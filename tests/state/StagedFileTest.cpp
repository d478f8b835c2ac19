#include <cerrno>
#include <iterator>
#include <string>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "numbers/RuntimeError.h"
#include "state/StagedFile.h"
#include "state/WholeFile.h"
#include "support/DiskTroubles.h"
#include "support/FaultOf.h"
#include "support/RecordingPorts.h"

/// What `fsync` fails with, as on a file system that can't do it; 0: it does its work.
static int syncFailure = 0;

/// In place of the system's.
extern "C" int fsync(int descriptor) {
    if (syncFailure == 0) return static_cast<int>(::syscall(SYS_fsync, descriptor));
    errno = syncFailure;
    return -1;
}

/// What `link` fails with, as on a disk that knows no second name of a file; 0: it does its work.
static int linkFailure = 0;

/// In place of the system's.
extern "C" int link(const char* from, const char* to) noexcept {
    if (linkFailure == 0) return ::linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
    errno = linkFailure;
    return -1;
}

namespace norlaplan {
namespace {

namespace fs = std::filesystem;
using testing::faultOf;
using testing::TemporaryFolder;

std::ptrdiff_t filesIn(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), {});
}

/// What the error says that the write of this path ends in.
std::string complaint(const fs::path& path) {
    try {
        writeWholeFile(path, "new");
    } catch (const RuntimeError& error) {
        return error.what();
    }
    return "";
}

TEST(StagedFile, StandsBesideTheTargetUntilItIsCommitted) {
    TemporaryFolder place;
    place.write("DATA.RTF", "old");
    {
        StagedFile staged(place.path() / "DATA.RTF", "new");
        EXPECT_EQ(place.read("DATA.RTF"), "old");
        staged.commit();
        EXPECT_EQ(place.read("DATA.RTF"), "new");
    }
    { const StagedFile dropped(place.path() / "DATA.RTF", "newer"); }
    EXPECT_EQ(place.read("DATA.RTF"), "new");
    EXPECT_EQ(filesIn(place.path()), 1);
}

TEST(StagedFile, WhoseFolderHasGoneIsSeventyFiveAtTheCommit) {
    TemporaryFolder place;
    place.write("folder/old", "");
    StagedFile staged(place.path() / "folder" / "report.rtf", "new");
    fs::remove_all(place.path() / "folder");
    EXPECT_EQ(faultOf([&] { staged.commit(); }), fault::kPathAccess);
}

TEST(StagedFile, GoesIntoPlaceOnAFileSystemThatHasNoCallForTheDisk) {
    TemporaryFolder place;
    for (const int failure : {EINVAL, ENOTSUP, ENOSYS}) {
        syncFailure = failure;
        EXPECT_EQ(faultOf([&] { writeWholeFile(place.path() / "DATA.RTF", std::to_string(failure)); }), 0);
        EXPECT_EQ(place.read("DATA.RTF"), std::to_string(failure));
    }
    syncFailure = 0;
}

TEST(StagedFile, WhoseBytesDoNotReachTheDiskLeavesTheOldFile) {
    TemporaryFolder place;
    place.write("DATA.RTF", "old");
    syncFailure = EIO;
    EXPECT_EQ(faultOf([&] { writeWholeFile(place.path() / "DATA.RTF", "new"); }), fault::kDeviceIo);
    syncFailure = 0;
    EXPECT_EQ(place.read("DATA.RTF"), "old");
    EXPECT_EQ(filesIn(place.path()), 1);
}

TEST(StagedFile, LeavesAPipeOfItsWaitingNameAlone) {
    TemporaryFolder place;
    const fs::path pipe = place.path() / ".DATA.RTF.part";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    writeWholeFile(place.path() / "DATA.RTF", "new");
    EXPECT_EQ(place.read("DATA.RTF"), "new");
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_EQ(filesIn(place.path()), 2);
}

TEST(StagedFile, OfAKilledProgramIsTakenByTheNextSave) {
    TemporaryFolder place;
    place.write("report.rtf", "old");
    for (int killed = 0; killed < 3; ++killed) {
        const pid_t child = ::fork();
        if (child == 0) {
            // Neither the destructor nor the commit comes.
            new StagedFile(place.path() / "report.rtf", std::string(5000, 'x'));
            ::_exit(0);
        }
        ::waitpid(child, nullptr, 0);
        EXPECT_EQ(filesIn(place.path()), 2) << "one waiting file, however often";
    }
    EXPECT_EQ(place.read("report.rtf"), "old");
    writeWholeFile(place.path() / "report.rtf", "new");
    EXPECT_EQ(place.read("report.rtf"), "new");
    EXPECT_EQ(filesIn(place.path()), 1);
}

TEST(StagedFile, OfTwoProgramsAtOnceTheLaterIsWhole) {
    TemporaryFolder place;
    StagedFile one(place.path() / "report.rtf", std::string(9000, '1'));
    StagedFile two(place.path() / "report.rtf", std::string(500, '2'));
    two.commit();
    EXPECT_EQ(place.read("report.rtf"), std::string(500, '2'));
    one.commit();
    EXPECT_EQ(place.read("report.rtf"), std::string(9000, '1'));
    EXPECT_EQ(filesIn(place.path()), 1);
}

TEST(WriteWholeFile, LeavesAFileThatMayOnlyBeReadAlsoBehindALink) {
    const TemporaryFolder place;
    place.write("mine.rtf", "old");
    fs::create_symlink("mine.rtf", place.path() / "link.rtf");
    {
        const testing::ReadOnlyFile file(place.path() / "mine.rtf");
        const std::string told = "Permission denied: " + (place.path() / "mine.rtf").string();
        EXPECT_EQ(complaint(place.path() / "mine.rtf"), told);
        EXPECT_EQ(complaint(place.path() / "link.rtf"), told);
        EXPECT_EQ(complaint(place.path() / "other.rtf"), "");
    }
    EXPECT_EQ(place.read("mine.rtf"), "old");
    EXPECT_EQ(complaint(place.path() / "mine.rtf"), "");
}

TEST(WriteWholeFile, FollowsALinkAndKeepsIt) {
    TemporaryFolder place;
    place.write("far/report.rtf", "old");
    fs::create_symlink(place.path() / "far" / "report.rtf", place.path() / "report.rtf");
    writeWholeFile(place.path() / "report.rtf", "new");
    EXPECT_TRUE(fs::is_symlink(place.path() / "report.rtf"));
    EXPECT_EQ(place.read("far/report.rtf"), "new");
}

TEST(WriteWholeFile, FollowsALinkWhoseTargetIsStillToBeMade) {
    TemporaryFolder place;
    place.write("far/other", "");
    fs::create_symlink("far/second.rtf", place.path() / "first.rtf");
    fs::create_symlink("report.rtf", place.path() / "far" / "second.rtf");
    writeWholeFile(place.path() / "first.rtf", "new");
    EXPECT_TRUE(fs::is_symlink(place.path() / "first.rtf"));
    EXPECT_TRUE(fs::is_symlink(place.path() / "far" / "second.rtf"));
    EXPECT_EQ(place.read("far/report.rtf"), "new");
}

TEST(WriteWholeFile, ALinkThatLeadsToItselfIsSeventyFive) {
    TemporaryFolder place;
    fs::create_symlink("b", place.path() / "a");
    fs::create_symlink("a", place.path() / "b");
    EXPECT_EQ(faultOf([&] { writeWholeFile(place.path() / "a", "new"); }), fault::kPathAccess);
    EXPECT_TRUE(fs::is_symlink(place.path() / "a"));
}

TEST(WriteWholeFile, FollowsFortyLinksAndNoMore) {
    TemporaryFolder place;
    for (int link = 1; link <= 41; ++link)
        fs::create_symlink(std::to_string(link - 1), place.path() / std::to_string(link));
    writeWholeFile(place.path() / "40", "new");
    EXPECT_EQ(place.read("0"), "new");
    EXPECT_EQ(faultOf([&] { writeWholeFile(place.path() / "41", "newer"); }), fault::kPathAccess);
    EXPECT_EQ(place.read("0"), "new");
}

TEST(WriteWholeFile, WritesThroughAPipeAndLeavesIt) {
    TemporaryFolder place;
    const fs::path pipe = place.path() / "report.rtf";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const std::string content(300000, 'x');  // more than a pipe holds
    std::string got;
    std::thread reader([&] {
        const Descriptor end(::open(pipe.c_str(), O_RDONLY));
        char block[4096];
        for (ssize_t count = 0; (count = ::read(end.number(), block, sizeof block)) > 0;)
            got.append(block, static_cast<std::size_t>(count));
    });
    writeWholeFile(pipe, content);
    reader.join();
    EXPECT_EQ(got, content);
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_EQ(filesIn(place.path()), 1);
}

TEST(WriteWholeFile, APipeWhoseReaderLeavesIsAnErrorAndNotTheEndOfTheProgram) {
    TemporaryFolder place;
    const fs::path pipe = place.path() / "report.rtf";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::thread reader([&] {
        const Descriptor end(::open(pipe.c_str(), O_RDONLY));
        char byte = 0;
        EXPECT_EQ(::read(end.number(), &byte, 1), 1);
    });
    EXPECT_EQ(faultOf([&] { writeWholeFile(pipe, std::string(300000, 'x')); }), fault::kDeviceIo);
    reader.join();
}

TEST(WriteWholeFile, WritesThroughADeviceAndLeavesIt) {
    TemporaryFolder place;
    if (!fs::is_character_file("/dev/full")) GTEST_SKIP() << "this system has no such device";
    fs::create_symlink("/dev/full", place.path() / "report.rtf");
    EXPECT_EQ(faultOf([&] { writeWholeFile(place.path() / "report.rtf", "new"); }), fault::kDiskFull);
    writeWholeFile("/dev/null", "new");
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_TRUE(fs::is_symlink(place.path() / "report.rtf"));
}

TEST(WriteWholeFile, TakesNamesAsLongAsTheDiskDoesAndSaysSoBeyond) {
    TemporaryFolder place;
    const std::string longest(255, 'n');
    writeWholeFile(place.path() / longest, "new");
    EXPECT_EQ(place.read(longest), "new");
    // Two that differ at their ends alone wait under names of their own.
    StagedFile one(place.path() / (std::string(254, 'n') + "1"), "one");
    StagedFile two(place.path() / (std::string(254, 'n') + "2"), "two");
    one.commit();
    two.commit();
    EXPECT_EQ(place.read(std::string(254, 'n') + "1"), "one");
    EXPECT_EQ(filesIn(place.path()), 3);

    EXPECT_EQ(faultOf([&] { writeWholeFile(place.path() / std::string(256, 'n'), "new"); }),
              fault::kBadFileName);
    EXPECT_EQ(faultOf([&] { readWholeFile(place.path() / std::string(256, 'n')); }), fault::kBadFileName);
    std::string endless = place.path().string();
    while (endless.size() < 9000)
        endless += "/folder";
    const std::string told = complaint(endless);
    EXPECT_NE(told.find("the name is too long"), std::string::npos) << told;
    EXPECT_LT(told.size(), 400U);
}

TEST(WriteWholeFile, SaysWhichFileFailed) {
    TemporaryFolder place;
    const fs::path missing = place.path() / "missing" / "report.rtf";
    EXPECT_EQ(complaint(missing), "Path/File access error: " + missing.string());
    EXPECT_EQ(complaint(place.path()), "Path/File access error: " + place.path().string());
}

TEST(TwoFiles, GoIntoPlaceTogether) {
    TemporaryFolder place;
    place.write("DATA.RTF", "old sheet");
    place.write("CONDENSED.DAT", "old records");
    StagedFile sheet(place.path() / "DATA.RTF", "new sheet");
    StagedFile records(place.path() / "CONDENSED.DAT", "new records");
    commitTogether(sheet, records);
    EXPECT_EQ(place.read("DATA.RTF"), "new sheet");
    EXPECT_EQ(place.read("CONDENSED.DAT"), "new records");
    EXPECT_EQ(filesIn(place.path()), 2);
}

TEST(TwoFiles, TheFirstGoesBackWhenTheSecondCannotBePutInPlace) {
    for (const int disk : {0, EPERM}) {
        for (const bool hadOne : {true, false}) {
            TemporaryFolder place;
            if (hadOne) place.write("DATA.RTF", "old sheet");
            StagedFile sheet(place.path() / "DATA.RTF", "new sheet");
            StagedFile records(place.path() / "CONDENSED.DAT", "new records");
            // A folder with something in it can't be replaced.
            place.write("CONDENSED.DAT/other", "");
            // A disk without second names is asked for one only where there is a file to keep.
            linkFailure = hadOne ? disk : 0;
            EXPECT_EQ(faultOf([&] { commitTogether(sheet, records); }), fault::kPathAccess);
            linkFailure = 0;
            EXPECT_EQ(fs::exists(place.path() / "DATA.RTF"), hadOne);
            EXPECT_EQ(hadOne ? place.read("DATA.RTF") : "old sheet", "old sheet");
        }
    }
}

TEST(TwoFiles, GoIntoPlaceTogetherOnADiskThatKnowsNoSecondNames) {
    TemporaryFolder place;
    place.write("DATA.RTF", "old sheet");
    StagedFile sheet(place.path() / "DATA.RTF", "new sheet");
    StagedFile records(place.path() / "CONDENSED.DAT", "new records");
    linkFailure = EPERM;
    commitTogether(sheet, records);
    linkFailure = 0;
    EXPECT_EQ(place.read("DATA.RTF"), "new sheet");
    EXPECT_EQ(place.read("CONDENSED.DAT"), "new records");
    EXPECT_EQ(filesIn(place.path()), 2);
}

}  // namespace
}  // namespace norlaplan
