#include <gtest/gtest.h>

#include "state/NumberHistory.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::MemoryUserFiles;

/// "K00013XP0", "K00113XP0" ...
std::string numberOf(int bore) {
    const std::string digits = std::to_string(1000 + bore).substr(1);
    return "K" + digits + "13XP0";
}

TEST(NumberHistory, IsEmptyAtFirst) {
    MemoryUserFiles files;
    EXPECT_TRUE(enteredNumbers(files).empty());
}

TEST(NumberHistory, KeepsTheLatestNumberFirstAndEachOnce) {
    MemoryUserFiles files;
    for (const char* const number : {"K19013XP0", "K10008XP0A", "K15013CP0", "K19013XP0"})
        rememberNumber(files, number);
    EXPECT_EQ(enteredNumbers(files), (std::vector<std::string>{"K19013XP0", "K15013CP0", "K10008XP0A"}));
}

TEST(NumberHistory, KeepsTheLastTwentyNumbers) {
    MemoryUserFiles files;
    for (int bore = 0; bore < 25; ++bore)
        rememberNumber(files, numberOf(bore));
    const std::vector<std::string> numbers = enteredNumbers(files);
    ASSERT_EQ(numbers.size(), 20U);
    EXPECT_EQ(numbers.front(), numberOf(24));
    EXPECT_EQ(numbers.back(), numberOf(5));
}

TEST(NumberHistory, PassesOverWhatIsNoPartNumber) {
    MemoryUserFiles files;
    rememberNumber(files, "K19013XP");
    rememberNumber(files, "K19013XP0AB");
    rememberNumber(files, "");
    EXPECT_TRUE(enteredNumbers(files).empty());
    const std::string zero("\0K1901\0XP0\n", 11);
    files.texts.begin()->second = "\xff\xfe garbage\n\n  k19013xp0 \r\nK19013 P0\nK19013XP0\n" + zero +
                                  std::string(70000, 'A') + "\nS10008XW4";
    EXPECT_EQ(enteredNumbers(files), (std::vector<std::string>{"K19013XP0", "S10008XW4"}));
}

TEST(NumberHistory, OfAFileWithMoreNumbersTakesTheFirstTwenty) {
    MemoryUserFiles files;
    rememberNumber(files, numberOf(0));
    for (int bore = 1; bore < 100; ++bore)
        files.texts.begin()->second += numberOf(bore) + "\n";
    EXPECT_EQ(enteredNumbers(files).size(), 20U);
    EXPECT_EQ(enteredNumbers(files).back(), numberOf(19));
}

TEST(NumberHistory, ThatCanBeNeitherReadNorWrittenIsNoError) {
    MemoryUserFiles files;
    rememberNumber(files, "K19013XP0");
    files.broken = true;
    EXPECT_TRUE(enteredNumbers(files).empty());
    EXPECT_NO_THROW(rememberNumber(files, "K10008XP0"));
    files.broken = false;
    EXPECT_EQ(enteredNumbers(files), std::vector<std::string>{"K19013XP0"});
}

}  // namespace
}  // namespace norlaplan
