#include <string>

#include <gtest/gtest.h>

#include "catalogue/SectionConstants.h"

namespace norlaplan {
namespace {

/// The maker's constants, as they stand on the drawings of the three cross-sections.
struct SectionRow {
    const char* name;
    double code;
    const char* family;
    float ball, scale, groove, inner, outer;
    const char* text;
};
constexpr SectionRow kRows[] = {
    {"EightAngular", 8.0, "A", 0.15625F, 6.35F, 0.0828125F, 0.0985F, 0.0921F,
     "08 = .315 x .315 Cross Section"},
    {"EightRadial", 8.0, "C", 0.15625F, 6.35F, 0.0828125F, 0.099F, 0.0998F, "08 = .315 x .315 Cross Section"},
    {"EightFourPoint", 8.0, "X", 0.15625F, 6.35F, 0.0828125F, 0.099F, 0.0998F,
     "08 = .315 x .315 Cross Section"},
    {"ThirteenAngular", 13.0, "A", 0.25F, 3.91F, 0.1325F, 0.1647F, 0.1523F, "13 = .512 x .512 Cross Section"},
    {"ThirteenRadial", 13.0, "C", 0.25F, 3.91F, 0.1325F, 0.1656F, 0.1656F, "13 = .512 x .512 Cross Section"},
    {"ThirteenFourPoint", 13.0, "X", 0.25F, 3.91F, 0.1325F, 0.1656F, 0.1656F,
     "13 = .512 x .512 Cross Section"},
    {"TwentyAngular", 20.0, "A", 0.375F, 2.54F, 0.19875F, 0.2602F, 0.2374F, "20 = .787 x .787 Cross Section"},
    {"TwentyRadial", 20.0, "C", 0.375F, 2.54F, 0.19875F, 0.2618F, 0.2616F, "20 = .787 x .787 Cross Section"},
    {"TwentyFourPoint", 20.0, "X", 0.375F, 2.54F, 0.19875F, 0.2618F, 0.2616F,
     "20 = .787 x .787 Cross Section"},
};

class SectionConstants : public ::testing::TestWithParam<SectionRow> {};

TEST_P(SectionConstants, AreTheMakers) {
    const SectionRow& row = GetParam();
    BearingSpec bearing;
    bearing.crossSectionCode = row.code;
    bearing.familyCode = row.family;
    setSectionConstants(bearing, initialUnits());
    EXPECT_EQ(bearing.ballDiameter.stored(), row.ball);
    EXPECT_EQ(bearing.drawingScale.stored(), row.scale);
    EXPECT_EQ(bearing.raceRadius.stored(), row.groove);
    EXPECT_EQ(bearing.innerSection.stored(), row.inner);
    EXPECT_EQ(bearing.outerSection.stored(), row.outer);
    EXPECT_EQ(bearing.innerWidth.stored(), static_cast<float>(row.code / 25.4));
    EXPECT_EQ(bearing.outerWidth.stored(), static_cast<float>(row.code / 25.4));
    EXPECT_EQ(bearing.staticFactor, 1.0);
    EXPECT_EQ(bearing.crossSectionText, row.text);
}

INSTANTIATE_TEST_SUITE_P(All, SectionConstants, ::testing::ValuesIn(kRows),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace norlaplan
