#include <gtest/gtest.h>

#include "state/MenuConditions.h"

namespace norlaplan {
namespace {

ProgramState bearingOfStyle(const char* style) {
    ProgramState state;
    state.bearing.partNumber = "K19013" + std::string(style) + "P0";
    state.bearing.styleLetter = style;
    return state;
}

TEST(MenuConditions, WantAPartNumberFirst) {
    ProgramState state;
    const Message missing{"Missing Part Number", "Please enter part number first", Icon::Information};
    EXPECT_EQ(bearingRefusal(state), missing);
    EXPECT_EQ(loadableBearingRefusal(state), missing);
    EXPECT_EQ(lifeRefusal(state), missing);
    EXPECT_EQ(preloadTorqueRefusal(state), missing);
    EXPECT_EQ(axialPlayRefusal(state), missing);
    EXPECT_EQ(thermalFitsRefusal(state), (Message{"Missing bearing data", "Please select a bearing first"}));
}

TEST(MenuConditions, NameTheStyleThatTakesNoLoads) {
    for (const char* style : {"U", "A", "T"}) {
        const ProgramState state = bearingOfStyle(style);
        EXPECT_EQ(
            loadableBearingRefusal(state),
            (Message{"Try another Bearing type", "Bearing type " + std::string(style) + " Not allowed"}));
        EXPECT_EQ(preloadTorqueRefusal(state)->prompt, "Only Duplexes , 'C' or 'X' styles allowed");
    }
    for (const char* style : {"C", "X", "B", "F"}) {
        EXPECT_FALSE(loadableBearingRefusal(bearingOfStyle(style)).has_value());
        EXPECT_FALSE(preloadTorqueRefusal(bearingOfStyle(style)).has_value());
    }
}

TEST(MenuConditions, AllowAxialPlayForRadialAndFourPointBearingsAlone) {
    EXPECT_FALSE(axialPlayRefusal(bearingOfStyle("C")).has_value());
    EXPECT_FALSE(axialPlayRefusal(bearingOfStyle("X")).has_value());
    EXPECT_EQ(axialPlayRefusal(bearingOfStyle("B"))->prompt,
              "Only radial and 4-point contact bearings allowed");
}

TEST(MenuConditions, ClearTheLoadsOfARadialBearingWithoutRadialLoad) {
    ProgramState state = bearingOfStyle("C");
    EXPECT_EQ(lifeRefusal(state)->prompt, "Please enter loads first");
    state.loadsEntered = true;
    EXPECT_EQ(lifeRefusal(state)->prompt, "Please enter Radial load first");
    EXPECT_FALSE(state.loadsEntered);
    EXPECT_EQ(lifeRefusal(state)->prompt, "Please enter loads first");
}

TEST(MenuConditions, AllowWhatTheBearingAndItsLoadsAllow) {
    for (const char* style : {"C", "X", "B", "F"}) {
        ProgramState state = bearingOfStyle(style);
        state.loadsEntered = true;
        state.loads.radialLoad = 10.0;
        EXPECT_FALSE(bearingRefusal(state).has_value());
        EXPECT_FALSE(lifeRefusal(state).has_value()) << style;
        EXPECT_FALSE(thermalFitsRefusal(state).has_value());
        EXPECT_TRUE(state.loadsEntered);
    }
    ProgramState axial = bearingOfStyle("X");
    axial.loadsEntered = true;
    EXPECT_FALSE(lifeRefusal(axial).has_value()) << "only a radial bearing needs a radial load";
}

TEST(MenuConditions, RefuseWithTheirTitlesAndIcons) {
    ProgramState state = bearingOfStyle("C");
    EXPECT_EQ(lifeRefusal(state), (Message{"Missing Load Data", "Please enter loads first"}));
    state.loadsEntered = true;
    EXPECT_EQ(lifeRefusal(state), (Message{"Missing Load Data", "Please enter Radial load first"}));
    EXPECT_EQ(
        axialPlayRefusal(bearingOfStyle("F")),
        (Message{"Wrong Bearing style", "Only radial and 4-point contact bearings allowed", Icon::Critical}));
    EXPECT_EQ(preloadTorqueRefusal(bearingOfStyle("T")),
              (Message{"Wrong Bearing style", "Only Duplexes , 'C' or 'X' styles allowed", Icon::Critical}));
}

TEST(MenuConditions, RefuseTheLifeOfAStyleThatTakesNoLoads) {
    ProgramState state = bearingOfStyle("U");
    state.loadsEntered = true;
    EXPECT_EQ(lifeRefusal(state)->prompt, "Bearing type U Not allowed");
}

TEST(MenuConditions, TakeNoTwoLettersForAStyle) {
    EXPECT_TRUE(preloadTorqueRefusal(bearingOfStyle("XC")).has_value());
    EXPECT_TRUE(axialPlayRefusal(bearingOfStyle("")).has_value());
}

TEST(MenuConditions, OfASearchNameTheFirstStepThatIsMissing) {
    ProgramState state;
    for (const auto& refusal : {sizesRefusal(state), searchLoadsRefusal(state), resultsRefusal(state)}) {
        ASSERT_TRUE(refusal.has_value());
        EXPECT_EQ(refusal->message,
                  (Message{"STYLE OF BEARING UNKNOWN", "BEARING STYLE MUST BE CHOSEN BEFORE SIZES"}));
        EXPECT_EQ(refusal->missing, SearchStep::Style);
    }
    state.styleChosen = true;
    EXPECT_FALSE(sizesRefusal(state).has_value());
    for (const auto& refusal : {searchLoadsRefusal(state), resultsRefusal(state)}) {
        ASSERT_TRUE(refusal.has_value());
        EXPECT_EQ(refusal->message, (Message{"Missing Bearing Size", "Size of bearing must be known"}));
        EXPECT_EQ(refusal->missing, SearchStep::Sizes);
    }
    state.sizesChosen = true;
    EXPECT_FALSE(searchLoadsRefusal(state).has_value());
    EXPECT_EQ(resultsRefusal(state)->message.title, "Missing Load Data");
    EXPECT_EQ(resultsRefusal(state)->message.prompt, "Bearing Loads Must be known");
    EXPECT_EQ(resultsRefusal(state)->missing, SearchStep::Loads);
    state.loadsEntered = true;
    EXPECT_FALSE(resultsRefusal(state).has_value());
}

TEST(MenuConditions, OfASearchWantTheStyleAlsoWhenSizesAndLoadsStand) {
    ProgramState state;
    state.sizesChosen = true;
    state.loadsEntered = true;
    EXPECT_EQ(searchLoadsRefusal(state)->missing, SearchStep::Style);
    EXPECT_EQ(resultsRefusal(state)->missing, SearchStep::Style);
}

}  // namespace
}  // namespace norlaplan
