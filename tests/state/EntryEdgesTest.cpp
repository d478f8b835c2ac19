#include <gtest/gtest.h>

#include "state/LoadEntry.h"
#include "state/SizeEntry.h"
#include "state/UnitChange.h"

namespace norlaplan {
namespace {

ProgramState stateIn(const char* system) {
    ProgramState state;
    state.unitSystem = system;
    ApplyUnitSystem(system, state.units);
    return state;
}

TEST(EnterSizes, CountsInInchesWhateverTheUnits) {
    ProgramState state = stateIn("METRIC");
    state.entries = {"127", "254", "12.7", "25.4", "", "", "", ""};
    state.search.noResultFlag = true;
    ASSERT_FALSE(enterSizes(state).has_value());
    const SearchCriteria& sizes = state.criteria;
    EXPECT_EQ(sizes.minBoreDisplay, 127.0);
    EXPECT_NEAR(sizes.minBore, 5.0, 1e-6);
    EXPECT_NEAR(sizes.maxOd, 10.0, 1e-6);
    EXPECT_NEAR(sizes.minHeight, 0.5, 1e-6);
    EXPECT_NEAR(sizes.maxHeight, 1.0, 1e-6);
    EXPECT_FALSE(state.search.noResultFlag) << "new sizes, new search";
}

TEST(EnterSizes, MissingOnesAreNotTaken) {
    ProgramState state = stateIn("US");
    state.entries.minBore = "5";
    const auto refusal = enterSizes(state);
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->title, "Missing Data");
    EXPECT_EQ(refusal->icon, Icon::Critical);
    EXPECT_FALSE(state.sizesChosen);
    EXPECT_EQ(state.criteria.minBoreDisplay, 0.0);
}

TEST(ShowSizesAgain, FillsTheFieldsOfTheSizesThatAreKnown) {
    ProgramState state = stateIn("US");
    state.entries = {"a", "b", "c", "d", "", "", "", ""};
    state.criteria.minBoreDisplay = 5.25;
    state.criteria.maxHeightDisplay = 0.75;
    showSizesAgain(state);
    EXPECT_EQ(state.entries.minBore, "5.25");
    EXPECT_EQ(state.entries.maxOd, "b");
    EXPECT_EQ(state.entries.minHeight, "c");
    EXPECT_EQ(state.entries.maxHeight, "0.75");
    state.criteria.maxOdDisplay = 9.0;
    state.criteria.minHeightDisplay = 0.5;
    showSizesAgain(state);
    EXPECT_EQ(state.entries.maxOd, "9");
    EXPECT_EQ(state.entries.minHeight, "0.5");
}

TEST(EnterLoads, TakesAnyOneLoadForEnough) {
    for (std::string EntryTexts::*const load :
         {&EntryTexts::radial, &EntryTexts::axial, &EntryTexts::moment}) {
        ProgramState state = stateIn("US");
        state.entries.*load = "10";
        EXPECT_FALSE(enterLoads(state).has_value());
        EXPECT_TRUE(state.loadsEntered);
    }
}

TEST(EnterLoads, OfAKnownRadialBearingGoThroughWithoutARadialLoad) {
    ProgramState state = stateIn("US");
    state.knownBearingLoadInput = true;
    state.style.searchStyleCaption = "RADIAL CONTACT";
    state.entries.axial = "5";
    EXPECT_FALSE(enterLoads(state).has_value()) << "the style was searched for earlier";
}

TEST(EnterLoads, OfASearchForRadialBearingsGoThroughWithARadialLoad) {
    ProgramState state = stateIn("US");
    state.style.searchStyleCaption = "RADIAL CONTACT";
    state.entries.radial = "5";
    EXPECT_FALSE(enterLoads(state).has_value());
}

TEST(EnterLoads, EachLoadIsItsOwnInPoundsAndPoundInches) {
    ProgramState state = stateIn("METRIC");
    state.entries = {"", "", "", "", "100", "200", "30", "400"};
    ASSERT_FALSE(enterLoads(state).has_value());
    EXPECT_EQ(state.loads.radialLoadDisplay, 100.0);
    EXPECT_EQ(state.loads.axialLoadDisplay, 200.0);
    EXPECT_EQ(state.loads.momentLoadDisplay, 30.0);
    EXPECT_EQ(state.loads.speed, 400.0);
    EXPECT_NEAR(state.loads.radialLoad, 22.48089, 1e-4);
    EXPECT_NEAR(state.loads.axialLoad, 44.96178, 1e-4);
    EXPECT_NEAR(state.loads.momentLoad, 265.52232, 1e-4);
}

TEST(TakesSpeed, GoesByTheEighthCharacterOfThePartNumber) {
    ProgramState state;
    for (const char* number : {"", "K19013X", "K19013XP0", "KF9013XPF"}) {
        state.bearing.partNumber = number;
        EXPECT_TRUE(takesSpeed(state)) << number;
    }
    for (const char* number : {"K19013XF", "K19013XF0"}) {
        state.bearing.partNumber = number;
        EXPECT_FALSE(takesSpeed(state)) << number;
    }
}

TEST(RadialContact, GoesByWhatIsThereWhereThePathInHandHasNone) {
    ProgramState state;
    state.bearing.styleLetter = "C";
    EXPECT_TRUE(isRadialContact(state)) << "no style was searched for";
    state.bearing.styleLetter = "X";
    EXPECT_FALSE(isRadialContact(state));
    state.bearing.styleLetter = "";
    state.knownBearingLoadInput = true;
    state.style.searchStyleCaption = "RADIAL CONTACT";
    EXPECT_TRUE(isRadialContact(state)) << "no bearing is known";
    state.style.searchStyleCaption = "";
    EXPECT_FALSE(isRadialContact(state));
}

TEST(PrepareLoadEntry, ClearsWhatTheBearingDoesNotTakeAndNothingElse) {
    ProgramState state = stateIn("US");
    const EntryTexts typed{"", "", "", "", "1", "2", "3", "4"};
    state.entries = typed;
    state.loads.axialLoadDisplay = 2.0;
    state.loads.momentLoadDisplay = 3.0;
    state.loads.speed = 4.0;
    state.bearing.partNumber = "K19013XP0";
    state.bearing.styleLetter = "X";
    prepareLoadEntry(state);
    EXPECT_EQ(state.entries.axial + state.entries.moment + state.entries.speed, "234");
    EXPECT_EQ(state.loads.axialLoadDisplay, 2.0);
    EXPECT_EQ(state.loads.speed, 4.0);
    state.bearing.partNumber = "K19013CF0";
    state.bearing.styleLetter = "C";
    prepareLoadEntry(state);
    EXPECT_EQ(state.entries.radial, "1");
    EXPECT_EQ(state.entries.axial, "");
    EXPECT_EQ(state.entries.moment, "");
    EXPECT_EQ(state.entries.speed, "0");
    EXPECT_EQ(state.loads.axialLoadDisplay, 0.0);
    EXPECT_EQ(state.loads.momentLoadDisplay, 0.0);
    EXPECT_EQ(state.loads.speed, 0.0);
}

TEST(ChangeOfUnits, ConvertsEveryFieldByItsOwnFactor) {
    ProgramState state = stateIn("US");
    state.entries = {"1", "2", "3", "4", "100", "200", "300", "400"};
    changeUnits(state, "METRIC");
    EXPECT_EQ(state.unitSystem, "METRIC");
    EXPECT_EQ(state.units.lengthUnit, "mm");
    EXPECT_EQ(state.entries.minBore, "25.400");
    EXPECT_EQ(state.entries.maxOd, "50.800");
    EXPECT_EQ(state.entries.minHeight, "76.200");
    EXPECT_EQ(state.entries.maxHeight, "101.600");
    EXPECT_EQ(state.entries.radial, "445") << "100 / 0.2248089 = 444.8";
    EXPECT_EQ(state.entries.axial, "890") << "200 / 0.2248089 = 889.6";
    EXPECT_EQ(state.entries.moment, "34") << "300 / 8.850744 = 33.9";
    EXPECT_EQ(state.entries.speed, "400");
    EXPECT_NEAR(state.criteria.maxHeightDisplay, 101.6, 1e-5);
    EXPECT_NEAR(state.loads.axialLoad, 890.0 * 0.2248089, 1e-4);
    EXPECT_NEAR(state.loads.momentLoad, 34.0 * 8.850744, 1e-4);
    changeUnits(state, "US");
    EXPECT_EQ(state.entries.minHeight, "3.000");
    EXPECT_EQ(state.entries.moment, "301") << "34 x 8.850744 = 300.9";
    EXPECT_EQ(state.loads.momentLoad, 301.0);
}

TEST(EnterSizes, LeavesEqualSizesInTheFieldsWhereTheyWereTyped) {
    ProgramState state = stateIn("US");
    state.entries = {"5.0", "5", "1.0", "1", "", "", "", ""};
    ASSERT_FALSE(enterSizes(state).has_value());
    EXPECT_EQ(state.entries.minBore, "5.0");
    EXPECT_EQ(state.entries.maxOd, "5");
    EXPECT_EQ(state.entries.minHeight, "1.0");
    EXPECT_EQ(state.entries.maxHeight, "1");
}

}  // namespace
}  // namespace norlaplan
