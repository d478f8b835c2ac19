#include <gtest/gtest.h>

#include "state/NewBearing.h"

namespace norlaplan {
namespace {

ProgramState filled() {
    ProgramState state;
    state.bearing.partNumber = "K19013XP0";
    state.bearing.styleLetter = "X";
    state.bearing.fitLetter = "A";
    state.bearing.separatorCode = "P";
    state.bearing.bore = 7.5;
    state.bearing.pitchDiameter = 8.0;
    state.bearing.ballCount = 60;
    state.bearing.materialText = "K = Vacuum Degassed 52100 Steel";
    state.loads.radialLoad = 100.0;
    state.loadsEntered = true;
    state.styleChosen = true;
    state.sizesChosen = true;
    state.criteria.minBore = 2.0;
    state.search.rows.resize(3);
    state.entries.radial = "100";
    state.style.searchStyleCaption = "RADIAL CONTACT";
    state.unitSystem = "METRIC";
    state.user.userName = "Ada";
    state.options.qlxOption = true;
    return state;
}

TEST(NewBearing, ClearsTheBearingItsLoadsAndTheSearch) {
    ProgramState state = filled();
    clearBearingAndLoads(state);
    EXPECT_EQ(state.bearing.partNumber, "");
    EXPECT_EQ(state.bearing.styleLetter, "");
    EXPECT_EQ(state.bearing.separatorCode, "");
    EXPECT_EQ(state.bearing.fitLetter, "");
    EXPECT_EQ(state.bearing.bore, 0.0);
    EXPECT_EQ(state.bearing.pitchDiameter, 0.0);
    EXPECT_EQ(state.bearing.ballCount, 0);
    EXPECT_EQ(state.loads.radialLoad, 0.0);
    EXPECT_FALSE(state.loadsEntered);
    EXPECT_FALSE(state.styleChosen);
    EXPECT_FALSE(state.sizesChosen);
    EXPECT_EQ(state.criteria.minBore, 0.0);
    EXPECT_TRUE(state.search.rows.empty());
    EXPECT_EQ(state.entries.radial, "");
}

TEST(NewBearing, KeepsOptionsUnitsAndUserInformation) {
    ProgramState state = filled();
    clearBearingAndLoads(state);
    EXPECT_EQ(state.unitSystem, "METRIC");
    EXPECT_EQ(state.user.userName, "Ada");
    EXPECT_TRUE(state.options.qlxOption);
}

TEST(NewBearing, KeepsTheTextsThatAreNotNamed) {
    ProgramState state = filled();
    clearBearingAndLoads(state);
    EXPECT_EQ(state.bearing.materialText, "K = Vacuum Degassed 52100 Steel");
    EXPECT_EQ(state.style.searchStyleCaption, "RADIAL CONTACT");
}

TEST(NewBearing, ClearsEverySizeOfTheBearing) {
    constexpr Single BearingSpec::*kSizes[] = {&BearingSpec::outsideDiameter, &BearingSpec::bore,
                                               &BearingSpec::height,          &BearingSpec::pitchDiameter,
                                               &BearingSpec::momentArm,       &BearingSpec::ballDiameter,
                                               &BearingSpec::raceRadius,      &BearingSpec::stdClearanceLow,
                                               &BearingSpec::stdClearanceHigh};
    ProgramState state = filled();
    for (const auto size : kSizes)
        state.bearing.*size = 1.5;
    clearBearingAndLoads(state);
    for (const auto size : kSizes)
        EXPECT_EQ(state.bearing.*size, 0.0);
}

}  // namespace
}  // namespace norlaplan
