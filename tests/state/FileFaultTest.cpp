#include <cerrno>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "state/FileFault.h"
#include "support/FaultOf.h"

namespace norlaplan {
namespace {

using testing::faultOf;

std::string told(const std::string& path) {
    const std::string text = fileFault(fault::kFileNotFound, path).what();
    const std::string head = "File not found: ";
    EXPECT_EQ(text.substr(0, head.size()), head);
    return text.substr(head.size());
}

TEST(FileFault, TellsAPathOfTwoHundredAndFortyThreeCharactersWhole) {
    const std::string path = std::string(121, 'a') + "b" + std::string(121, 'c');
    EXPECT_EQ(told(path), path);
}

TEST(FileFault, TellsTheFirstAndTheLast120CharactersOfALongerPath) {
    EXPECT_EQ(told(std::string(120, 'a') + "bbbb" + std::string(120, 'c')),
              std::string(120, 'a') + "..." + std::string(120, 'c'));
    EXPECT_EQ(told(std::string(120, 'a') + std::string(500, 'b') + std::string(120, 'c')),
              std::string(120, 'a') + "..." + std::string(120, 'c'));
}

// "\u20AC" takes three bytes; the cuts would go through it.
TEST(FileFault, CutsNoCharacterInTwo) {
    const std::string euro = "\u20AC", middle(300, 'b');
    EXPECT_EQ(told(std::string(118, 'a') + euro + middle + std::string(120, 'c')),
              std::string(118, 'a') + "..." + std::string(120, 'c'));
    EXPECT_EQ(told(std::string(119, 'a') + euro + middle + std::string(120, 'c')),
              std::string(119, 'a') + "..." + std::string(120, 'c'));
    EXPECT_EQ(told(std::string(120, 'a') + middle + euro + std::string(119, 'c')),
              std::string(120, 'a') + "..." + std::string(119, 'c'));
    EXPECT_EQ(told(std::string(120, 'a') + middle + euro + std::string(118, 'c')),
              std::string(120, 'a') + "..." + std::string(118, 'c'));
}

TEST(FileFault, HasANumberForEachFailureOfTheSystem) {
    const std::pair<int, int> failures[] = {
        {ENOSPC, 61}, {EDQUOT, 61},       {EFBIG, 61}, {EACCES, 70}, {EPERM, 70},  {EROFS, 70},  {EISDIR, 75},
        {ELOOP, 75},  {ENAMETOOLONG, 52}, {EIO, 57},   {EINVAL, 57}, {EMFILE, 67}, {ENFILE, 67}, {ENOMEM, 7}};
    for (const auto& [failure, number] : failures)
        EXPECT_EQ(faultOfSystem(failure, fault::kFileNotFound), number) << failure;
    for (const int missing : {fault::kFileNotFound, fault::kPathNotFound}) {
        EXPECT_EQ(faultOfSystem(ENOENT, missing), missing);
        EXPECT_EQ(faultOfSystem(ENOTDIR, missing), missing);
    }
}

}  // namespace
}  // namespace norlaplan
