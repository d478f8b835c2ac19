#include <string>

#include <gtest/gtest.h>

#include "capacity/SolveAdvice.h"

namespace norlaplan {
namespace {

std::string textOf(bool radialContact, double radial, double axial, int fault) {
    LoadCase loads;
    loads.radialLoad = radial;
    loads.axialLoad = axial;
    try {
        solveWithAdvice(radialContact, loads, [&]() -> int { raise(fault); });
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), fault);
        return error.what();
    }
    return "";
}

TEST(SolveAdvice, TellsWhichLoadToEnterAsAPositiveNumber) {
    EXPECT_NE(textOf(true, -5.0, 0.0, fault::kInvalidCall).find("Enter the radial load"), std::string::npos);
    EXPECT_NE(textOf(false, 5.0, -5.0, fault::kInvalidCall).find("Enter the axial load"), std::string::npos);
}

TEST(SolveAdvice, IsLeftOutWhereTheLoadsAreNotToBlame) {
    EXPECT_EQ(textOf(false, -5.0, 5.0, fault::kInvalidCall).find("Enter"), std::string::npos);
    EXPECT_EQ(textOf(true, 5.0, -5.0, fault::kInvalidCall).find("Enter"), std::string::npos);
    EXPECT_EQ(textOf(false, 5.0, -5.0, fault::kDivisionByZero).find("Enter"), std::string::npos);
}

TEST(SolveAdvice, GivesTheResultThrough) {
    EXPECT_EQ(solveWithAdvice(true, LoadCase{}, [] { return 7; }), 7);
}

}  // namespace
}  // namespace norlaplan
