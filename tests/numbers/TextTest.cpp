#include <limits>

#include <gtest/gtest.h>

#include "numbers/Text.h"

namespace norlaplan {
namespace {

TEST(LeadingNumber, IsTheNumberAtTheStartAndZeroForNone) {
    EXPECT_EQ(leadingNumber("8X"), 8.0);
    EXPECT_EQ(leadingNumber("  12.5 mm"), 12.5);
    EXPECT_EQ(leadingNumber(""), 0.0);
    EXPECT_EQ(leadingNumber("abc"), 0.0);
    EXPECT_EQ(leadingNumber("-.0012"), -0.0012);
    EXPECT_EQ(leadingNumber("1e3"), 1000.0);
    EXPECT_EQ(leadingNumber("1e"), 1.0);
    EXPECT_EQ(leadingNumber("5."), 5.0);
    EXPECT_EQ(leadingNumber("."), 0.0);
    EXPECT_EQ(leadingNumber("1,733"), 1.0);
    EXPECT_EQ(leadingNumber("nan"), 0.0);
    EXPECT_EQ(leadingNumber("1e-999"), 0.0);
    EXPECT_THROW(leadingNumber("1e999"), RuntimeError);
}

TEST(WholeNumberText, TakesTheWholeTextOrNothing) {
    EXPECT_EQ(wholeNumberText("1,733"), 1733.0);
    EXPECT_EQ(wholeNumberText(" -2.5 "), -2.5);
    EXPECT_EQ(wholeNumberText("+4"), 4.0);
    for (const char* bad :
         {"", " ", "abc", "12a", "1.2.3", "--1", "inf", "nan", "0x10", ",5", "1e999", "1 2"}) {
        EXPECT_FALSE(wholeNumberText(bad).has_value()) << bad;
    }
}

TEST(PlainText, IsTheShortestThatReadsBackWithoutExponent) {
    EXPECT_EQ(plainText(Single(1162182300.0)), "1162182300");
    EXPECT_EQ(plainText(Single(0.1)), "0.1");
    EXPECT_EQ(plainText(Single(0.00001)), "0.00001");
    EXPECT_EQ(plainText(Single(-2.5)), "-2.5");
    EXPECT_EQ(plainText(Single(0.0)), "0");
    EXPECT_EQ(plainText(Single(1e20)), "100000000000000000000");
    EXPECT_EQ(plainText(Single(100.0)), "100");
    EXPECT_EQ(plainText(0.1), "0.1");
    EXPECT_EQ(plainText(42), "42");
}

TEST(PlainText, ReadsBackToTheSameBits) {
    for (const float value : {3.4028235e38F, 1.17549435e-38F, 7.4803151F, 123456.79F, 0.33333334F}) {
        EXPECT_EQ(Single(leadingNumber(plainText(Single(value)))).stored(), value);
    }
}

TEST(UpperCase, ChangesLettersOfTheAlphabetAlone) {
    EXPECT_EQ(upperCase("k19o13xp0\xC3\xA4"), "K19O13XP0\xC3\xA4");
    EXPECT_EQ(lowerCase("AbC-8"), "abc-8");
    EXPECT_EQ(trimmed("  a b\t"), "a b");
}

}  // namespace
}  // namespace norlaplan
