#include <gtest/gtest.h>

#include "numbers/FormatNumber.h"
#include "state/UnitMode.h"

namespace norlaplan {
namespace {

TEST(ApplyUnitSystem, FillsTheUsFields) {
    UnitMode units;
    ApplyUnitSystem("US", units);
    EXPECT_EQ(units.lengthUnit, "inches");
    EXPECT_EQ(units.loadUnitWord, "pounds");
    EXPECT_EQ(units.loadUnit, "lbs");
    EXPECT_EQ(units.momentUnitWord, "inch-lbs.");
    EXPECT_EQ(units.momentUnit, "in-lbs");
    EXPECT_EQ(units.tempUnit, "deg. F");
    EXPECT_EQ(units.lengthPicture, "###0.0000");
    EXPECT_EQ(units.runoutPicture, "#.00000");
    EXPECT_EQ(units.forceFactor.stored(), 1.0F);
    EXPECT_EQ(units.massFactor.stored(), 1.0F);
}

TEST(ApplyUnitSystem, HoldsTheMetricFactorsInThirtyTwoBits) {
    UnitMode units;
    ApplyUnitSystem("METRIC", units);
    EXPECT_EQ(units.lengthFactor.stored(), 25.4F);
    EXPECT_EQ(units.forceFactor.stored(), 0.2248089F);
    EXPECT_EQ(units.momentFactor.stored(), 8.850744F);
    EXPECT_EQ(units.massFactor.stored(), static_cast<float>(1.0 / 2.204622));
    EXPECT_EQ(units.crossSectionPicture, "#");
    EXPECT_EQ(units.filletPicture, "0.00");
}

TEST(ApplyUnitSystem, SetsTheNumberPicturesOfBothSystems) {
    const struct {
        std::string UnitMode::*picture;
        const char *us, *metric;
    } rows[] = {{&UnitMode::lengthPicture, "###0.0000", "###0.000"},
                {&UnitMode::loadPicture, "#,##0", "#,##0"},
                {&UnitMode::runoutPicture, "#.00000", "0.0000"},
                {&UnitMode::tolerancePicture, ".00000", "0.0000"},
                {&UnitMode::filletPicture, ".000", "0.00"},
                {&UnitMode::clearancePicture, ".0000", "0.000"},
                {&UnitMode::crossSectionPicture, "#.000", "#"}};
    UnitMode us, metric;
    ApplyUnitSystem("US", us);
    ApplyUnitSystem("METRIC", metric);
    for (const auto& row : rows) {
        EXPECT_EQ(us.*row.picture, row.us);
        EXPECT_EQ(metric.*row.picture, row.metric);
    }
}

TEST(ApplyUnitSystem, LeavesEveryFieldForAnyOtherText) {
    UnitMode units;
    ApplyUnitSystem("METRIC", units);
    ApplyUnitSystem("metric", units);
    ApplyUnitSystem("", units);
    EXPECT_EQ(units.lengthUnit, "mm");
}

TEST(MetricLengths, ShowAFiveThirtySecondsBallAsThreePointNineSixNine) {
    UnitMode units;
    ApplyUnitSystem("METRIC", units);
    EXPECT_EQ(FormatNumber(0.15625 * units.lengthFactor, units.lengthPicture), "3.969");
}

TEST(NewState, StartsWithUsUnits) {
    EXPECT_EQ(initialUnits().lengthUnit, "inches");
}

TEST(ApplyUnitSystem, SetsTheWordsAndFactorsOfBothSystems) {
    const struct {
        std::string UnitMode::*word;
        const char *us, *metric;
    } words[] = {{&UnitMode::lengthUnit, "inches", "mm"},  {&UnitMode::loadUnitWord, "pounds", "N"},
                 {&UnitMode::loadUnit, "lbs", "N"},        {&UnitMode::momentUnitWord, "inch-lbs.", "N-m"},
                 {&UnitMode::momentUnit, "in-lbs", "N-m"}, {&UnitMode::tempUnit, "deg. F", "deg. C"}};
    const struct {
        Single UnitMode::*factor;
        double metric;
    } factors[] = {{&UnitMode::forceFactor, 0.2248089},
                   {&UnitMode::lengthFactor, 25.4},
                   {&UnitMode::momentFactor, 8.850744},
                   {&UnitMode::massFactor, 1.0 / 2.204622}};
    UnitMode us, metric;
    ApplyUnitSystem("US", us);
    ApplyUnitSystem("METRIC", metric);
    const UnitMode first = initialUnits();
    for (const auto& row : words) {
        EXPECT_EQ(us.*row.word, row.us);
        EXPECT_EQ(first.*row.word, row.us);
        EXPECT_EQ(metric.*row.word, row.metric);
    }
    for (const auto& row : factors) {
        EXPECT_EQ((us.*row.factor).stored(), 1.0F);
        EXPECT_EQ((first.*row.factor).stored(), 1.0F);
        EXPECT_EQ((metric.*row.factor).stored(), static_cast<float>(row.metric));
    }
}

}  // namespace
}  // namespace norlaplan
