#include <gtest/gtest.h>

#include "numbers/RuntimeError.h"
#include "state/MoveFile.h"
#include "state/WholeFile.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::TemporaryFolder;

int faultOfMove(const std::filesystem::path& from, const std::filesystem::path& to) {
    try {
        moveFile(from, to);
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(MoveFile, TheFileStandsUnderTheNewNameOnly) {
    const TemporaryFolder files;
    files.write("a", "content");
    moveFile(files.path() / "a", files.path() / "b");
    EXPECT_EQ(files.read("b"), "content");
    EXPECT_FALSE(std::filesystem::exists(files.path() / "a"));
}

TEST(MoveFile, AFileThatStandsThereIsReplaced) {
    const TemporaryFolder files;
    files.write("a", "new");
    files.write("b", "old");
    moveFile(files.path() / "a", files.path() / "b");
    EXPECT_EQ(files.read("b"), "new");
}

TEST(MoveFile, ToItselfKeepsIt) {
    const TemporaryFolder files;
    files.write("a", "content");
    moveFile(files.path() / "a", files.path() / "a");
    EXPECT_EQ(files.read("a"), "content");
}

TEST(MoveFile, GoesToAnotherFileSystem) {
    const std::filesystem::path other = "/dev/shm";
    if (!std::filesystem::exists(other)) GTEST_SKIP() << "no second file system";
    const TemporaryFolder files;
    files.write("a", "content");
    const std::filesystem::path target = other / files.path().filename();
    moveFile(files.path() / "a", target);
    EXPECT_EQ(readWholeFile(target), "content");
    EXPECT_FALSE(std::filesystem::exists(files.path() / "a"));
    std::filesystem::remove(target);
}

TEST(MoveFile, NothingToMoveIsFileNotFound) {
    const TemporaryFolder files;
    EXPECT_EQ(faultOfMove(files.path() / "a", files.path() / "b"), fault::kFileNotFound);
}

TEST(MoveFile, AFailureLeavesTheFileWhereItWas) {
    const TemporaryFolder files;
    files.write("a", "content");
    EXPECT_EQ(faultOfMove(files.path() / "a", files.path() / "missing" / "b"), fault::kPathAccess);
    EXPECT_EQ(files.read("a"), "content");
}

}  // namespace
}  // namespace norlaplan
