#include <gtest/gtest.h>

#include "state/LoadEntry.h"
#include "state/SizeEntry.h"
#include "state/UnitChange.h"

namespace norlaplan {
namespace {

ProgramState usState() {
    ProgramState state;
    state.unitSystem = "US";
    return state;
}

TEST(EnterLoads, FillsEmptyFieldsWithZeroAndTakesTheAbsoluteSpeed) {
    ProgramState state = usState();
    state.entries.radial = "-120.5";
    state.entries.speed = "-300";
    EXPECT_FALSE(enterLoads(state).has_value());
    EXPECT_EQ(state.entries.axial, "0");
    EXPECT_EQ(state.loads.radialLoad, -120.5) << "a negative load is kept";
    EXPECT_EQ(state.loads.speed, 300.0);
    EXPECT_TRUE(state.loadsEntered);
}

TEST(EnterLoads, TellsOfOneWrongFieldInTheOrderSpeedMomentAxialRadial) {
    ProgramState state = usState();
    state.entries = {"", "", "", "", "abc", "x", "y", "z"};
    EXPECT_EQ(enterLoads(state), (Message{"Please correct Speed", "Speed input error"}));
    state.entries.speed = "1";
    EXPECT_EQ(enterLoads(state), (Message{"Please correct load", "Moment Load input error"}));
    state.entries.moment = "1";
    EXPECT_EQ(enterLoads(state), (Message{"Please correct load", "Axial Load input error"}));
    state.entries.axial = "1";
    EXPECT_EQ(enterLoads(state), (Message{"Please correct load", "Radial Load input error"}));
    EXPECT_FALSE(state.loadsEntered);
}

TEST(EnterLoads, LeavesALoadAsItWasWhereItsTextIsNoNumber) {
    ProgramState state = usState();
    state.loads.radialLoadDisplay = 7.0;
    state.entries.radial = "abc";
    state.entries.axial = "5";
    enterLoads(state);
    EXPECT_EQ(state.loads.radialLoadDisplay, 7.0);
    EXPECT_EQ(state.loads.axialLoadDisplay, 5.0);
}

TEST(EnterLoads, WantsALoadAndForTheRadialStyleARadialOne) {
    ProgramState state = usState();
    EXPECT_EQ(enterLoads(state), (Message{"Missing Loads", "At least one load must be entered!"}));
    state.style.searchStyleCaption = "RADIAL CONTACT";
    state.entries.axial = "5";
    EXPECT_EQ(enterLoads(state), (Message{"Missing Load", "You must enter a Radial Load"}));
}

TEST(EnterLoads, RefusesANumberThatNoFieldHolds) {
    ProgramState state = usState();
    state.entries.radial = "1e60";
    EXPECT_EQ(enterLoads(state), (Message{"Please correct load", "Radial Load input error"}));
}

TEST(EnterLoads, ConvertsWithTheThirtyTwoBitFactors) {
    ProgramState state = usState();
    changeUnits(state, "METRIC");
    state.entries.radial = "1000";
    state.entries.moment = "10";
    EXPECT_FALSE(enterLoads(state).has_value());
    EXPECT_EQ(state.loads.radialLoad.stored(), static_cast<float>(1000.0 * static_cast<double>(0.2248089F)));
    EXPECT_EQ(state.loads.momentLoad.stored(), static_cast<float>(10.0 * static_cast<double>(8.850744F)));
}

TEST(PrepareLoadEntry, TakesAxialLoadAndMomentFromARadialBearing) {
    ProgramState state = usState();
    state.bearing.styleLetter = "C";
    state.entries.axial = "5";
    state.loads.momentLoadDisplay = 3.0;
    prepareLoadEntry(state);
    EXPECT_EQ(state.entries.axial, "");
    EXPECT_EQ(state.loads.momentLoadDisplay, 0.0);
}

TEST(RadialContact, IsToldByTheStyleOfThePathInHand) {
    ProgramState state = usState();
    state.bearing.styleLetter = "X";
    state.style.searchStyleCaption = "RADIAL CONTACT";
    EXPECT_TRUE(isRadialContact(state)) << "a search, whatever bearing was in hand before";
    state.knownBearingLoadInput = true;
    EXPECT_FALSE(isRadialContact(state)) << "a known bearing, whatever was searched before";
    state.bearing.styleLetter = "C";
    EXPECT_TRUE(isRadialContact(state));
    state.knownBearingLoadInput = false;
    state.style.searchStyleCaption = "4-POINT CONTACT";
    EXPECT_FALSE(isRadialContact(state));
}

TEST(EnterLoads, RefusedCountAsNoneAndShowWhatIsCalculatedWith) {
    ProgramState state = usState();
    state.entries.radial = "100";
    ASSERT_FALSE(enterLoads(state).has_value());
    state.entries.radial = "200";
    state.entries.axial = "abc";
    ASSERT_TRUE(enterLoads(state).has_value());
    EXPECT_FALSE(state.loadsEntered);
    EXPECT_EQ(state.loads.radialLoadDisplay, 200.0);
    EXPECT_EQ(state.loads.radialLoad, 200.0);
}

TEST(PrepareLoadEntry, TakesTheSpeedFromABearingWithoutSeparator) {
    ProgramState state = usState();
    state.bearing.partNumber = "K19013XF0";
    state.loads.speed = 100.0;
    prepareLoadEntry(state);
    EXPECT_EQ(state.loads.speed, 0.0);
    EXPECT_FALSE(takesSpeed(state));
    state.style.searchStyleCaption = "4-POINT CONTACT";
    EXPECT_TRUE(takesSpeed(state)) << "a search, whatever bearing is in hand";
}

TEST(PrepareLoadEntry, TakesThePoundsWithTheLoadsThatARadialBearingDoesNotCarry) {
    ProgramState state = usState();
    state.entries.radial = "100";
    state.entries.axial = "500";
    state.entries.moment = "30";
    ASSERT_FALSE(enterLoads(state).has_value());
    state.bearing.styleLetter = "C";
    prepareLoadEntry(state);
    EXPECT_EQ(state.loads.axialLoad, 0.0);
    EXPECT_EQ(state.loads.momentLoad, 0.0);
    EXPECT_EQ(state.loads.radialLoad, 100.0);
    EXPECT_TRUE(state.loadsEntered);
}

TEST(PrepareLoadEntry, LeavesNoEnteredLoadsWhereNoneIsLeft) {
    ProgramState state = usState();
    state.entries.axial = "500";
    ASSERT_FALSE(enterLoads(state).has_value());
    state.bearing.styleLetter = "C";
    prepareLoadEntry(state);
    EXPECT_FALSE(state.loadsEntered);
}

TEST(EnterLoads, TakesNothingWhenALoadIsTooLargeForItsField) {
    ProgramState state = usState();
    state.entries.radial = "100";
    ASSERT_FALSE(enterLoads(state).has_value());
    changeUnits(state, "METRIC");
    state.entries.radial = "200";
    state.entries.moment = "1e38";
    EXPECT_THROW(enterLoads(state), RuntimeError) << "8.85e38 pound-inches";
    EXPECT_NEAR(state.loads.radialLoadDisplay, 445.0, 0.5);
    EXPECT_NEAR(state.loads.radialLoad, 100.0, 0.1);
    EXPECT_FALSE(state.loadsEntered);
}

TEST(EnterSizes, TellsOfTheFirstMissingSizeInTheStatedOrder) {
    ProgramState state = usState();
    EXPECT_EQ(enterSizes(state), (Message{"Missing Data", "Please Enter Minimum Bore", Icon::Critical}));
    state.entries.minBore = "5";
    EXPECT_EQ(enterSizes(state)->prompt, "Please Enter Maximum Outer Diameter");
    state.entries.maxOd = "9";
    EXPECT_EQ(enterSizes(state)->prompt, "Please Enter Maximum Height");
    state.entries.maxHeight = "1";
    EXPECT_EQ(enterSizes(state)->prompt, "Please Enter Minimum Height");
    EXPECT_TRUE(state.sizeInputPending);
    state.entries.minHeight = "0.2";
    EXPECT_FALSE(enterSizes(state).has_value());
    EXPECT_FALSE(state.sizeInputPending);
    EXPECT_TRUE(state.sizesChosen);
}

TEST(EnterSizes, QuotesATextThatIsNoNumberAndDoesNotCallItMissing) {
    ProgramState state = usState();
    state.entries = {"5", "5.5e", "0.2", "1", "", "", "", ""};
    const auto message = enterSizes(state);
    ASSERT_TRUE(message.has_value());
    EXPECT_EQ(*message,
              (Message{"Missing Data", "Please Enter Maximum Outer Diameter\n\n\"5.5e\" is not a number.",
                       Icon::Critical}));
    EXPECT_FALSE(state.sizeInputPending);
    EXPECT_FALSE(state.sizesChosen);
}

TEST(EnterSizes, NamesTheTextThatTheMessageIsAbout) {
    ProgramState state = usState();
    state.entries = {"5", "9", "", "1", "", "", "", ""};
    EXPECT_EQ(enterSizes(state)->field, &EntryTexts::minHeight);
    state.entries = {"", "9", "", "1", "", "", "", ""};
    EXPECT_EQ(enterSizes(state)->field, &EntryTexts::minBore);
}

TEST(EnterLoads, NamesTheTextThatTheMessageIsAbout) {
    ProgramState state = usState();
    state.entries.radial = "abc";
    state.entries.moment = "1";
    EXPECT_EQ(enterLoads(state)->field, &EntryTexts::radial);
    state.entries.radial = "1";
    state.entries.speed = "fast";
    EXPECT_EQ(enterLoads(state)->field, &EntryTexts::speed);
    state.entries = {};
    EXPECT_EQ(enterLoads(state)->field, &EntryTexts::radial);
}

TEST(EnterSizes, TakesNoneOfTheSizesWhenOneIsMissing) {
    ProgramState state = usState();
    state.entries = {"5", "9", "0.2", "1", "", "", "", ""};
    ASSERT_FALSE(enterSizes(state).has_value());
    state.entries.minBore = "7";
    state.entries.maxOd = "";
    ASSERT_TRUE(enterSizes(state).has_value());
    EXPECT_EQ(state.criteria.minBoreDisplay, 5.0);
    EXPECT_EQ(state.criteria.minBore, 5.0);
}

TEST(EnterSizes, SwapsSizesInTheWrongOrderAlsoInTheFields) {
    ProgramState state = usState();
    state.entries = {"9", "5", "1", "0.2", "", "", "", ""};
    EXPECT_FALSE(enterSizes(state).has_value());
    EXPECT_EQ(state.entries.minBore, "5");
    EXPECT_EQ(state.entries.maxOd, "9");
    EXPECT_EQ(state.entries.minHeight, "0.2");
    EXPECT_EQ(state.entries.maxHeight, "1");
    EXPECT_EQ(state.criteria.minBore, 5.0);
    EXPECT_EQ(state.criteria.maxHeight, 1.0);
}

TEST(ChangeOfUnits, ConvertsWhatStandsInTheFieldsAndKeepsEmptyOnesEmpty) {
    ProgramState state = usState();
    state.entries.minBore = "7.5";
    state.entries.radial = "100.4";
    changeUnits(state, "METRIC");
    EXPECT_EQ(state.entries.minBore, "190.500");
    EXPECT_EQ(state.entries.radial, "447") << "100.4 / 0.2248089 = 446.6";
    EXPECT_EQ(state.entries.maxOd, "");
    EXPECT_EQ(state.loads.radialLoadDisplay, 447.0);
    changeUnits(state, "US");
    EXPECT_EQ(state.entries.minBore, "7.500");
    EXPECT_EQ(state.entries.radial, "100") << "it has passed through whole newtons";
    EXPECT_EQ(state.loads.radialLoadDisplay, 100.0);
    EXPECT_EQ(state.loads.radialLoad, 100.0) << "what the screen shows is what is calculated with";
}

TEST(ChangeOfUnits, ReadsAFieldAsItsScreenDoes) {
    ProgramState state = usState();
    state.entries.radial = "1,000";
    state.entries.axial = "";
    state.entries.moment = "";
    ASSERT_FALSE(enterLoads(state).has_value());
    changeUnits(state, "METRIC");
    EXPECT_EQ(state.entries.radial, "4448") << "1000 / 0.2248089 = 4448.2";
    EXPECT_NEAR(state.loads.radialLoad, 1000.0, 0.1);
}

TEST(ChangeOfUnits, KeepsTheLoadBehindAFieldThatShowsNoNumber) {
    for (const char* const text : {"", "abc"}) {
        ProgramState state = usState();
        state.entries.radial = "100";
        ASSERT_FALSE(enterLoads(state).has_value());
        state.entries.radial = text;
        changeUnits(state, "METRIC");
        EXPECT_EQ(state.entries.radial, text);
        EXPECT_NEAR(state.loads.radialLoadDisplay, 444.8222, 0.0001);
        EXPECT_NEAR(state.loads.radialLoad, 100.0, 0.0001);
    }
}

TEST(ChangeOfUnits, LeavesTheInchesOfTheSizesThatWereTaken) {
    ProgramState state = usState();
    changeUnits(state, "METRIC");
    state.entries.minBore = "100";
    state.entries.maxOd = "126";
    state.entries.minHeight = "13";
    state.entries.maxHeight = "13";
    ASSERT_FALSE(enterSizes(state).has_value());
    const SearchCriteria taken = state.criteria;
    EXPECT_EQ(taken.minBore.stored(), static_cast<float>(100.0 / static_cast<double>(25.4F)));
    for (const char* const system : {"US", "METRIC", "US"}) {
        changeUnits(state, system);
        EXPECT_EQ(state.criteria.minBore, taken.minBore);
        EXPECT_EQ(state.criteria.maxOd, taken.maxOd);
        EXPECT_EQ(state.criteria.minHeight, taken.minHeight);
        EXPECT_EQ(state.criteria.maxHeight, taken.maxHeight);
        EXPECT_TRUE(state.sizesChosen);
    }
    EXPECT_EQ(state.entries.minBore, "3.937");
    EXPECT_EQ(state.criteria.minBoreDisplay, Single(3.937));
}

TEST(ChangeOfUnits, OfASizeThatWasTypedButNotTakenLeavesTheSizesToBeEntered) {
    ProgramState state = usState();
    for (std::string EntryTexts::*const size :
         {&EntryTexts::minBore, &EntryTexts::maxOd, &EntryTexts::minHeight, &EntryTexts::maxHeight})
        state.entries.*size = "5";
    ASSERT_FALSE(enterSizes(state).has_value());
    state.entries.maxOd = "9";
    changeUnits(state, "METRIC");
    EXPECT_EQ(state.criteria.maxOdDisplay, Single(228.6));
    EXPECT_FALSE(state.sizesChosen) << "a search would show 228.6 mm and take 5 inches";
}

TEST(ChangeOfUnits, ThatOverflowsChangesNothing) {
    ProgramState state = usState();
    state.entries.minBore = "7.5";
    state.entries.radial = "100.4";
    state.entries.moment = "1e38";
    changeUnits(state, "METRIC");
    state.entries.moment = "1e38";
    const EntryTexts texts = state.entries;
    EXPECT_THROW(changeUnits(state, "US"), RuntimeError);
    EXPECT_EQ(state.unitSystem, "METRIC");
    EXPECT_EQ(state.units.lengthUnit, "mm");
    EXPECT_EQ(state.entries.minBore, texts.minBore);
    EXPECT_EQ(state.entries.radial, texts.radial);
    EXPECT_EQ(state.loads.radialLoadDisplay, 447.0);
}

TEST(ChangeOfUnits, ToTheUnitsInForceChangesNothingWhateverTheSettingsFileHeld) {
    ProgramState state;
    state.unitSystem = "metric";
    ApplyUnitSystem(state.unitSystem, state.units);
    state.entries.radial = "100.4";
    state.entries.minBore = "7.50001";
    changeUnits(state, "US");
    EXPECT_EQ(state.entries.radial, "100.4");
    EXPECT_EQ(state.entries.minBore, "7.50001");
    EXPECT_EQ(state.unitSystem, "US");
}

TEST(ChangeOfUnits, ThatRoundsEveryLoadToNothingLeavesNoneEntered) {
    ProgramState state = usState();
    changeUnits(state, "METRIC");
    state.entries.radial = "1";
    ASSERT_FALSE(enterLoads(state).has_value());
    changeUnits(state, "US");
    EXPECT_EQ(state.entries.radial, "0") << "1 N is 0.22 lb";
    EXPECT_FALSE(state.loadsEntered);
}

TEST(ChangeOfUnits, ToTheSameUnitsChangesNothing) {
    ProgramState state = usState();
    state.entries.radial = "100.4";
    changeUnits(state, "US");
    EXPECT_EQ(state.entries.radial, "100.4");
}

}  // namespace
}  // namespace norlaplan
