#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "deflection/DeflectionFieldEntry.h"
#include "numbers/RuntimeError.h"
#include "support/DeflectionCases.h"

namespace norlaplan {
namespace {

using testing::bearingOf;

ProgramState stateWith(const std::string& number, const std::string& system = "US") {
    ProgramState state;
    state.bearing = bearingOf(number);
    state.unitSystem = system;
    ApplyUnitSystem(system, state.units);
    prepareDeflectionFields(state);
    return state;
}

DeflectionRefusal refusalOf(const ProgramState& state) {
    const auto entered = enteredDeflection(state);
    return std::get<DeflectionRefusal>(entered);
}

TEST(TheDeflectionFields, BeginWithNoPreloadAndAFifthOfTheDynamicRatings) {
    const ProgramState state = stateWith("K19013BP0T");
    EXPECT_EQ(state.deflectionFields.preload, "0.0000");
    const auto fifth = [](double rating) { return std::to_string(static_cast<int>(rating * 0.2)); };
    EXPECT_EQ(state.deflectionFields.maxRadialLoad, fifth(state.bearing.dynamicRadial));
    EXPECT_EQ(state.deflectionFields.maxAxialLoad, fifth(state.bearing.dynamicThrust));
    EXPECT_EQ(state.deflectionFields.maxMomentLoad, fifth(state.bearing.dynamicMoment));
}

TEST(TheDeflectionFields, AreLookedAtInTheOrderInWhichTheyStand) {
    ProgramState state = stateWith("K19013BP0T");
    DeflectionFields& fields = state.deflectionFields;
    std::string* const all[] = {&fields.preload, &fields.maxRadialLoad, &fields.maxAxialLoad,
                                &fields.maxMomentLoad};
    for (std::string* const field : all)
        field->clear();
    for (std::string* const field : all) {
        EXPECT_EQ(&(fields.*refusalOf(state).field), field);
        *field = "1";
    }
}

TEST(TheDeflectionFields, StayWithTheirBearingAndGoWithAnotherOneOrOtherUnits) {
    ProgramState state = stateWith("K19013BP0T");
    state.deflectionFields.preload = "0.0010";
    state.deflection.partNumber = "K19013BP0T";
    prepareDeflectionFields(state);
    EXPECT_EQ(state.deflectionFields.preload, "0.0010");
    EXPECT_TRUE(hasDeflection(state));

    state.unitSystem = "METRIC";
    ApplyUnitSystem("METRIC", state.units);
    prepareDeflectionFields(state);
    EXPECT_EQ(state.deflectionFields.preload, "0.0000");
    EXPECT_FALSE(hasDeflection(state));

    state.deflectionFields.preload = "0.0254";
    state.deflection.partNumber = "K19013BP0T";
    state.bearing = bearingOf("K19013XP0");
    EXPECT_FALSE(hasDeflection(state));
    prepareDeflectionFields(state);
    EXPECT_EQ(state.deflectionFields.preload, "0.0000");
}

TEST(TheDeflectionFields, AndResultAreThoseOfOneSeparatorChoice) {
    ProgramState state = stateWith("K19013XP0");
    state.bearing.zSeparatorChoice = "S";
    prepareDeflectionFields(state);
    testing::RecordingMessages messages;
    solveDeflection(state, proposedDeflectionEntry(state.bearing, state.units), messages);
    state.deflectionFields.preload = "0.0010";
    prepareDeflectionFields(state);
    EXPECT_EQ(state.deflectionFields.preload, "0.0010");
    EXPECT_TRUE(hasDeflection(state));

    // The same number with other spacers has another count of balls.
    state.bearing.zSeparatorChoice = "T";
    EXPECT_FALSE(hasDeflection(state));
    prepareDeflectionFields(state);
    EXPECT_EQ(state.deflectionFields.preload, "0.0000");
    EXPECT_TRUE(state.deflection.partNumber.empty());
}

TEST(TheDeflectionFields, AreReadInDisplayUnits) {
    ProgramState state = stateWith("K19013BP0T", "METRIC");
    state.deflectionFields = {" 0.0254 ", "1,000", "500", "10", "K19013BP0T", "METRIC", ""};
    const DeflectionEntry entry = std::get<DeflectionEntry>(enteredDeflection(state));
    EXPECT_EQ(entry.preload, 0.0254);
    EXPECT_EQ(entry.maxRadialLoad, 1000.0);
    EXPECT_EQ(entry.maxAxialLoad, 500.0);
    EXPECT_EQ(entry.maxMomentLoad, 10.0);
}

struct BadField {
    std::string DeflectionFields::*field;
    const char* text;
    const char* prompt;
};

class ABadField : public ::testing::TestWithParam<BadField> {};

TEST_P(ABadField, IsToldOfWithItsNameAndTheReason) {
    ProgramState state = stateWith("K19013XP0");
    state.deflectionFields.*GetParam().field = GetParam().text;
    const DeflectionRefusal refusal = refusalOf(state);
    EXPECT_EQ(refusal.title, "Please correct entry");
    EXPECT_EQ(refusal.prompt, GetParam().prompt);
    EXPECT_EQ(refusal.field, GetParam().field);
}

INSTANTIATE_TEST_SUITE_P(
    All, ABadField,
    ::testing::Values(
        BadField{&DeflectionFields::preload, "abc", "Preload input error\n\n\"abc\" is not a number."},
        BadField{&DeflectionFields::preload, "", "Preload input error\n\nPlease enter a number."},
        BadField{&DeflectionFields::preload, "1e999", "Preload input error\n\n\"1e999\" is not a number."},
        BadField{&DeflectionFields::preload, "-0.001", "Preload input error\n\nA preload can't be below 0."},
        BadField{&DeflectionFields::maxRadialLoad, "0",
                 "Max Radial Load input error\n\nThe end of a curve must be above 0."},
        BadField{&DeflectionFields::maxAxialLoad, "0",
                 "Max Axial Load input error\n\nThe end of a curve must be above 0."},
        BadField{&DeflectionFields::maxMomentLoad, "-5",
                 "Max Moment Load input error\n\nThe end of a curve must be above 0."}));

TEST(ARadialContactBearing, IsAskedForItsRadialMaximumAlone) {
    ProgramState state = stateWith("K19013CP0");
    state.deflectionFields.maxAxialLoad = "abc";
    state.deflectionFields.maxMomentLoad = "0";
    EXPECT_TRUE(std::holds_alternative<DeflectionEntry>(enteredDeflection(state)));
}

TEST(ADeflectionThatFails, LeavesNoResultAndSaysWhatToEnterInstead) {
    ProgramState state = stateWith("K19013XP0");
    testing::RecordingMessages messages;
    DeflectionEntry entry = proposedDeflectionEntry(state.bearing, state.units);
    solveDeflection(state, entry, messages);
    EXPECT_TRUE(hasDeflection(state));
    entry.preload = 1e-6;
    try {
        solveDeflection(state, entry, messages);
        FAIL() << "the root of a negative number";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 5);
        EXPECT_NE(std::string(error.what()).find("Try a preload of the list"), std::string::npos);
    }
    EXPECT_FALSE(hasDeflection(state));
}

TEST(TheOfferedPreloads, AreEightStepsOfHalfAThousandthOfAnInch) {
    EXPECT_EQ(offeredPreloads(initialUnits()),
              (std::vector<std::string>{"0.0000", "0.0005", "0.0010", "0.0015", "0.0020", "0.0025", "0.0030",
                                        "0.0035"}));
    UnitMode metric = initialUnits();
    ApplyUnitSystem("METRIC", metric);
    EXPECT_EQ(offeredPreloads(metric), (std::vector<std::string>{"0.0000", "0.0127", "0.0254", "0.0381",
                                                                 "0.0508", "0.0635", "0.0762", "0.0889"}));
}

TEST(ThePreloadAskedFor, IsAxialForAPairAndDiametralOtherwise) {
    UnitMode metric = initialUnits();
    ApplyUnitSystem("METRIC", metric);
    for (const char* const pair : {"B", "F"}) {
        EXPECT_EQ(preloadTip(pair, initialUnits()), "Axial preload of bearing set in inches");
        EXPECT_EQ(preloadTip(pair, metric), "Axial preload of bearing set in millimeters");
    }
    for (const char* const single : {"X", "C"}) {
        EXPECT_EQ(preloadTip(single, initialUnits()), "Diametral preload in inches");
        EXPECT_EQ(preloadTip(single, metric), "Diametral preload in millimeters");
    }
}

}  // namespace
}  // namespace norlaplan
