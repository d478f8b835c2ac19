#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "numbers/Arithmetic.h"
#include "numbers/Int16.h"
#include "numbers/Single.h"
#include "support/FaultOf.h"

namespace norlaplan {
namespace {

using testing::faultOf;

TEST(SingleField, RoundsToThirtyTwoBitsWhereItIsStored) {
    const Single tenth = 0.1;
    EXPECT_EQ(static_cast<double>(tenth), static_cast<double>(0.1F));
    EXPECT_NE(static_cast<double>(tenth), 0.1);
}

TEST(SingleField, LeavesTheArithmeticBetweenFieldsInSixtyFourBits) {
    const Single a = 16777216.0;
    const Single b = 1.0;
    EXPECT_EQ(a + b, 16777217.0) << "32-bit arithmetic would lose the one";
}

TEST(SingleField, OverflowsWhereTheValueDoesNotFit) {
    EXPECT_EQ(faultOf([] { [[maybe_unused]] const Single tooLarge = 1e39; }), fault::kOverflow);
    EXPECT_EQ(faultOf([] { [[maybe_unused]] const Single none = std::nan(""); }), fault::kOverflow);
    EXPECT_EQ(faultOf([] { [[maybe_unused]] const Single largest = 3.4e38; }), 0);
}

TEST(Int16Field, RoundsHalvesToTheEvenNumberAndOverflowsOutsideItsRange) {
    EXPECT_EQ(Int16(2.5), 2);
    EXPECT_EQ(Int16(3.5), 4);
    EXPECT_EQ(Int16(-2.5), -2);
    EXPECT_EQ(Int16(32767.0), 32767);
    EXPECT_EQ(faultOf([] { [[maybe_unused]] const Int16 tooLarge(32768.0); }), fault::kOverflow);
    EXPECT_EQ(faultOf([] { [[maybe_unused]] const Int16 none(std::nan("")); }), fault::kOverflow);
}

TEST(FlagField, IsMinusOneWhenSet) {
    EXPECT_EQ(Flag(true).value(), -1);
    EXPECT_EQ(Flag(false).value(), 0);
}

TEST(Division, ByZeroIsElevenAlsoForZeroByZero) {
    EXPECT_EQ(faultOf([] { divide(1.0, 0.0); }), fault::kDivisionByZero);
    EXPECT_EQ(faultOf([] { divide(0.0, 0.0); }), fault::kDivisionByZero);
    EXPECT_EQ(faultOf([] { divide(1e300, 1e-300); }), fault::kOverflow);
    EXPECT_EQ(divide(7.0, 2.0), 3.5);
}

TEST(Power, OfANegativeNumberIsFiveAndWhatIsNotFiniteSix) {
    EXPECT_EQ(faultOf([] { power(-1.0, kTwoThirds); }), fault::kInvalidCall);
    EXPECT_EQ(faultOf([] { power(0.0, -1.0 / 3.0); }), fault::kOverflow);
    EXPECT_EQ(faultOf([] { power(10.0, 400.0); }), fault::kOverflow);
    EXPECT_EQ(power(2.0, 10.0), 1024.0);
    EXPECT_EQ(power(-2.0, 3.0), -8.0);
}

TEST(SquareRoot, OfANegativeNumberIsFive) {
    EXPECT_EQ(faultOf([] { squareRoot(-1e-300); }), fault::kInvalidCall);
    EXPECT_EQ(squareRoot(-0.0), 0.0);
    EXPECT_EQ(squareRoot(2.25), 1.5);
}

TEST(NaturalLog, OfZeroAndBelowIsFive) {
    EXPECT_EQ(faultOf([] { naturalLog(0.0); }), fault::kInvalidCall);
    EXPECT_EQ(naturalLog(1.0), 0.0);
}

TEST(IntRoutine, GivesTheWholeNumberNotAboveTheValue) {
    EXPECT_EQ(Int(1.9), 1.0);
    EXPECT_EQ(Int(-1.5), -2.0);
    EXPECT_EQ(Int(-2.0), -2.0);
}

TEST(Int16Field, HoldsBothEndsOfItsRangeAndNothingBeyond) {
    EXPECT_EQ(Int16(-32768), -32768);
    EXPECT_EQ(Int16(32767), 32767);
    EXPECT_EQ(faultOf([] { [[maybe_unused]] const Int16 tooSmall(-32769); }), fault::kOverflow);
    EXPECT_EQ(faultOf([] { [[maybe_unused]] const Int16 tooLarge(32768); }), fault::kOverflow);
    EXPECT_EQ(Int16(32767.4), 32767);
    Int16 field;
    EXPECT_EQ(field, 0);
    field = 4.5;
    EXPECT_EQ(field, 4);
    field = -7;
    EXPECT_EQ(field, -7);
}

TEST(SingleField, AddsSubtractsAndMultipliesInSixtyFourBitsAndRoundsOnce) {
    Single field;
    EXPECT_EQ(static_cast<double>(field), 0.0);
    field += 0.1;
    EXPECT_EQ(field.stored(), 0.1F);
    field -= 0.25;
    EXPECT_EQ(field.stored(), static_cast<float>(static_cast<double>(0.1F) - 0.25));
    field *= -4.0;
    EXPECT_EQ(field.stored(), -4.0F * static_cast<float>(static_cast<double>(0.1F) - 0.25));
}

TEST(NaturalLog, IsTheLogarithmToTheBaseE) {
    EXPECT_EQ(naturalLog(10.0), std::log(10.0));
    EXPECT_EQ(faultOf([] { naturalLog(-1.0); }), fault::kInvalidCall);
    EXPECT_EQ(faultOf([] { naturalLog(1e-300); }), 0);
}

TEST(Faults, CarryTheirNumberAndTheirTextOrABetterOne) {
    const RuntimeError plain(fault::kPastEnd);
    EXPECT_EQ(plain.number(), 62);
    const RuntimeError told(fault::kFileNotFound, "File not found: Extras.txt");
    EXPECT_EQ(told.number(), 53);
    EXPECT_STREQ(told.what(), "File not found: Extras.txt");
}

TEST(RuntimeErrorText, IsTheClassicOne) {
    const struct {
        int number;
        const char* text;
    } rows[] = {{5, "Invalid procedure call or argument"},
                {6, "Overflow"},
                {7, "Out of memory"},
                {9, "Subscript out of range"},
                {11, "Division by zero"},
                {13, "Type mismatch"},
                {28, "Out of stack space"},
                {52, "Bad file name or number"},
                {53, "File not found"},
                {57, "Device I/O error"},
                {61, "Disk full"},
                {62, "Input past end of file"},
                {67, "Too many files"},
                {70, "Permission denied"},
                {75, "Path/File access error"},
                {76, "Path not found"},
                {321, "Invalid file format"},
                {429, "ActiveX component can't create object"},
                {440, "Automation error"},
                {481, "Invalid picture"},
                {1004, "Application-defined or object-defined error"}};
    for (const auto& row : rows) {
        EXPECT_EQ(runtimeErrorText(row.number), row.text);
        EXPECT_STREQ(RuntimeError(row.number).what(), row.text);
    }
}

}  // namespace
}  // namespace norlaplan
