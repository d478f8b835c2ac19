#include <bit>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "numbers/DecimalText.h"
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

TEST(LeadingNumber, IsTheNumberOfSixtyFourBitsThatIsNearestToTheText) {
    // With 1 to 17 digits and the point anywhere: those of 15 digits and less are worked out in place.
    std::mt19937_64 generator(20261122);
    for (int i = 0; i < 300000; ++i) {
        const std::size_t size = 1 + generator() % 17;
        std::string text;
        for (std::size_t digit = 0; digit < size; ++digit)
            text += static_cast<char>('0' + generator() % 10);
        const std::size_t point = generator() % (size + 2);
        if (point <= size) text.insert(point, ".");
        if (generator() % 2 == 0) text.insert(0, "-");
        const double expected = std::strtod(text.c_str(), nullptr);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(leadingNumber(text)), std::bit_cast<std::uint64_t>(expected))
            << text;
    }
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

TEST(PrintedNumber, HasAPlaceForTheSignSevenDigitsAndNoZeroBeforeThePoint) {
    const std::pair<double, const char*> rows[] = {{0.15625, " .15625"},
                                                   {29000000.0, " 2.9E+07"},
                                                   {10000000.0, " 1E+07"},
                                                   {9999999.0, " 9999999"},
                                                   {0.0, " 0"},
                                                   {1.0, " 1"},
                                                   {-0.5, "-.5"},
                                                   {-1200.0, "-1200"},
                                                   {1.0 / 3.0, " .3333333"},
                                                   {1234567.89, " 1234568"},
                                                   {100.0, " 100"},
                                                   {0.0001, " .0001"}};
    for (const auto& [value, text] : rows)
        EXPECT_EQ(printedNumber(value), text);
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

TEST(Trimmed, TakesBlanksAndTabsFromBothEndsAndNothingElse) {
    EXPECT_EQ(trimmed("\t a\tb \t "), "a\tb");
    EXPECT_EQ(trimmed(" \t"), "");
    EXPECT_EQ(trimmed("\nx\n"), "\nx\n");
}

TEST(LeadingNumber, EndsWhereADigitASecondPointOrABrokenExponentEndsIt) {
    EXPECT_EQ(leadingNumber("+7"), 7.0);
    EXPECT_EQ(leadingNumber("\t-7"), -7.0);
    EXPECT_EQ(leadingNumber("- 7"), 0.0);
    EXPECT_EQ(leadingNumber("+-7"), 0.0);
    EXPECT_EQ(leadingNumber("09:30"), 9.0) << "the sign after 9 in ASCII is no digit";
    EXPECT_EQ(leadingNumber("2/3"), 2.0) << "the sign before 0 in ASCII is no digit";
    EXPECT_EQ(leadingNumber("1.2.3"), 1.2);
    EXPECT_EQ(leadingNumber(".5.5"), 0.5);
    EXPECT_EQ(leadingNumber("2E+03x"), 2000.0);
    EXPECT_EQ(leadingNumber("2e-2"), 0.02);
    EXPECT_EQ(leadingNumber("2e+"), 2.0);
    EXPECT_EQ(leadingNumber("2e+-3"), 2.0);
    EXPECT_EQ(leadingNumber("e5"), 0.0);
}

TEST(LeadingNumber, TooSmallForSixtyFourBitsIsZeroAndTooLargeAnOverflow) {
    EXPECT_EQ(leadingNumber("-1E-999"), 0.0);
    EXPECT_EQ(leadingNumber("3e-400 mm"), 0.0);
    EXPECT_THROW(leadingNumber("-1E+999"), RuntimeError);
    EXPECT_EQ(wholeNumberText("1e-999"), 0.0);
    // The zeros of the digits count as the exponent does.
    const std::string zeros(400, '0');
    EXPECT_EQ(leadingNumber("0." + zeros + "1"), 0.0);
    EXPECT_EQ(leadingNumber("-." + zeros + "25e+50"), 0.0);
    EXPECT_THROW(leadingNumber("1" + zeros), RuntimeError);
    EXPECT_THROW(leadingNumber("1" + zeros + ".5e-50"), RuntimeError);
    EXPECT_EQ(leadingNumber("1" + zeros + "e-400"), 1.0);
    EXPECT_EQ(leadingNumber("." + zeros + "1e+401"), 1.0);
    EXPECT_EQ(leadingNumber("1e-1" + zeros), 0.0);
    EXPECT_THROW(leadingNumber("1e1" + zeros), RuntimeError);
    EXPECT_EQ(leadingNumber("0e999"), 0.0);
    EXPECT_FALSE(wholeNumberText("1" + zeros + "e-50").has_value());
    EXPECT_EQ(wholeNumberText("0." + zeros + "1"), 0.0);
}

TEST(WholeNumberText, PassesOverCommasBetweenTheSignAndThePointAlone) {
    EXPECT_EQ(wholeNumberText("-1,234,567.25"), -1234567.25);
    EXPECT_EQ(wholeNumberText("+1,2"), 12.0);
    EXPECT_EQ(wholeNumberText("1,"), 1.0);
    EXPECT_EQ(wholeNumberText("1e3"), 1000.0);
    for (const char* bad : {"1.2,5", "1.,5", "-,5", "+,5", ",.5", "-", "+", "."}) {
        EXPECT_FALSE(wholeNumberText(bad).has_value()) << bad;
    }
}

TEST(PlainText, OfSixtyFourBitsHasNoExponentEither) {
    EXPECT_EQ(plainText(1e-7), "0.0000001");
    EXPECT_EQ(plainText(-1.5e22), "-15000000000000000000000");
    EXPECT_EQ(plainText(1234.5), "1234.5");
    EXPECT_EQ(plainText(12345678.0), "12345678");
    EXPECT_EQ(plainText(1.0), "1");
    EXPECT_EQ(plainText(-0.25), "-0.25");
    EXPECT_EQ(plainText(0.0), "0");
    EXPECT_EQ(plainText(-42), "-42");
}

TEST(ShortestText, IsTheShortestOfItsOwnWidth) {
    EXPECT_EQ(shortestText(Single(0.1)), "0.1") << "not the 64 bits of the 32-bit number";
    EXPECT_EQ(shortestText(0.1), "0.1");
    EXPECT_EQ(shortestText(static_cast<double>(0.1F)), "0.10000000149011612");
    EXPECT_EQ(shortestText(Single(1e30)), "1e+30");
    EXPECT_EQ(shortestText(-2.5e-300), "-2.5e-300");
}

TEST(NumberTexts, EndWhereTheyEndWhateverStandsBehindThem) {
    // A field of a line that goes on: the digits behind it are another field's.
    const struct {
        std::string_view line;
        std::size_t size;
        double number;
    } rows[] = {{"12", 1, 1.0},
                {"1.5", 2, 1.0},
                {"-7", 1, 0.0},
                {"2e+34", 4, 2000.0},
                {"2E-34", 4, 0.002},
                {"2e+3", 3, 2.0},
                {"2e3", 2, 2.0},
                {"3e2", 1, 3.0},
                {"  5", 2, 0.0},
                {"5,250", 1, 5.0},
                {".25", 1, 0.0},
                {".25", 2, 0.2},
                {"1234567890123456", 15, 123456789012345.0}};
    for (const auto& [line, size, number] : rows)
        EXPECT_EQ(leadingNumber(line.substr(0, size)), number) << line << ", the first " << size;
    EXPECT_EQ(wholeNumberText(std::string_view("1,250.75").substr(0, 5)), 1250.0);
    EXPECT_EQ(trimmed(std::string_view(" a b").substr(0, 2)), "a");
    EXPECT_EQ(lowerCase(std::string_view("AB").substr(0, 1)), "a");
    EXPECT_TRUE(numberAtStart(std::string_view("5 x").substr(0, 2)).whole);
    EXPECT_FALSE(numberAtStart("5 x").whole);
}

}  // namespace
}  // namespace norlaplan
