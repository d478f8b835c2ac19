#include <gtest/gtest.h>

#include "documents/WrappedText.h"

namespace norlaplan {
namespace {

using Lines = std::vector<std::string>;

/// Every byte is one wide.
Lines wrapped(std::string_view text, double width) {
    return wrappedText(text, width, [](std::string_view piece) { return static_cast<double>(piece.size()); });
}

TEST(WrappedText, BreaksAtBlanksAndLineFeeds) {
    EXPECT_EQ(wrapped("one two three", 7.0), (Lines{"one two", "three"}));
    EXPECT_EQ(wrapped("one two three", 13.0), (Lines{"one two three"}));
    EXPECT_EQ(wrapped("one\ntwo", 13.0), (Lines{"one", "two"}));
    EXPECT_EQ(wrapped("one\n\ntwo\n", 13.0), (Lines{"one", "", "two", ""}));
    EXPECT_EQ(wrapped("", 5.0), (Lines{""}));
}

TEST(WrappedText, KeepsBlanksInsideALineAndDropsThoseAtABreak) {
    EXPECT_EQ(wrapped("a  b", 4.0), (Lines{"a  b"}));
    EXPECT_EQ(wrapped("ab   cd", 4.0), (Lines{"ab", "cd"}));
}

TEST(WrappedText, CutsAWordThatIsWiderThanALine) {
    EXPECT_EQ(wrapped("abcdefgh", 3.0), (Lines{"abc", "def", "gh"}));
    EXPECT_EQ(wrapped("x abcdefgh y", 3.0), (Lines{"x", "abc", "def", "gh", "y"}));
    // Not inside a character, and never less than one.
    EXPECT_EQ(wrapped("\xc3\xa4\xc3\xb6", 3.0), (Lines{"\xc3\xa4", "\xc3\xb6"}));
    EXPECT_EQ(wrapped("ab", 0.0), (Lines{"a", "b"}));
}

TEST(WrappedText, LosesNoCharacterOfBrokenText) {
    EXPECT_EQ(wrapped("\xc3", 3.0), (Lines{"\xc3"}));
    EXPECT_EQ(wrapped("\x80\xff", 3.0), (Lines{"\x80\xff"}));
}

}  // namespace
}  // namespace norlaplan
