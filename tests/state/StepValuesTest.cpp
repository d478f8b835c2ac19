#include <gtest/gtest.h>

#include "state/SearchQuestion.h"
#include "state/StepValues.h"
#include "state/StyleTable.h"

namespace norlaplan {
namespace {

class AStep : public ::testing::Test {
  protected:
    void useMetric() { ApplyUnitSystem("METRIC", state.units); }
    void choose(const char* caption) {
        state.style.searchStyleCaption = caption;
        state.styleChosen = true;
    }
    void setSizes(double bore, double od, double low, double high) {
        state.criteria.minBoreDisplay = bore;
        state.criteria.maxOdDisplay = od;
        state.criteria.minHeightDisplay = low;
        state.criteria.maxHeightDisplay = high;
        state.sizesChosen = true;
    }
    void setLoads(double radial, double axial, double moment, double speed) {
        state.loads.radialLoadDisplay = radial;
        state.loads.axialLoadDisplay = axial;
        state.loads.momentLoadDisplay = moment;
        state.loads.speed = speed;
        state.loadsEntered = true;
    }
    void holdBearing() {
        BearingSpec& bearing = state.bearing;
        bearing.partNumber = "K19013XP0";
        bearing.styleLetter = "X";
        bearing.bore = 7.4803;
        bearing.outsideDiameter = 8.5;
        bearing.height = 0.5;
        state.decoded.set(bearing, state.units.system);
    }
    ProgramState state;
};

TEST_F(AStep, ThatWasNotDoneShowsNothing) {
    EXPECT_EQ(styleValue(state), "");
    EXPECT_EQ(sizesValue(state), "");
    EXPECT_EQ(loadsValue(state), "");
    EXPECT_EQ(bearingValue(state), "");
    choose("4-POINT CONTACT");
    setSizes(5, 9, 1, 2);
    setLoads(1, 2, 3, 4);
    state.styleChosen = false;
    state.sizesChosen = false;
    state.loadsEntered = false;
    EXPECT_EQ(styleValue(state), "");
    EXPECT_EQ(sizesValue(state), "");
    EXPECT_EQ(loadsValue(state), "");
}

TEST_F(AStep, ShowsTheChosenStyle) {
    const char* const shown[] = {"Back-to-back set", "4-point contact",
                                 "Face-to-face set", "Back-to-back set with spacers",
                                 "Radial contact",   "Face-to-face set with spacers"};
    for (std::size_t i = 0; i < kStyles.size(); ++i) {
        choose(kStyles[i].caption);
        EXPECT_EQ(styleValue(state), shown[i]);
    }
}

TEST_F(AStep, ShowsTheEnvelopeAsItWasEntered) {
    setSizes(5, 9, 0.2, 1.25);
    EXPECT_EQ(sizesValue(state), "5 to 9 in, 0.2 to 1.25 in high");
    useMetric();
    setSizes(100, 126, 13, 13);
    EXPECT_EQ(sizesValue(state), "100 to 126 mm, 13 mm high");
}

TEST_F(AStep, ShowsTheLoadsThatThereAreAndTheSpeed) {
    setLoads(1200, 0, 0, 400);
    EXPECT_EQ(loadsValue(state), "1,200 lb radial, 400 rpm");
    setLoads(0.5, -12345.25, 1234567, 0);
    EXPECT_EQ(loadsValue(state), "0.5 lb radial, -12,345.25 lb axial, 1,234,567 in-lb moment, no speed");
    setLoads(0, -123, 0, 1000);
    EXPECT_EQ(loadsValue(state), "-123 lb axial, 1,000 rpm");
    useMetric();
    setLoads(999, 0, 100, 999.5);
    EXPECT_EQ(loadsValue(state), "999 N radial, 100 N-m moment, 999.5 rpm");
}

TEST_F(AStep, ShowsStyleAndSizesOfTheBearingInHandOnceItIsDecoded) {
    holdBearing();
    EXPECT_EQ(bearingValue(state), "4-point contact, 7.4803 x 8.5000 x 0.5000 in");
    state.bearing.partNumber = "K15008XP0";
    EXPECT_EQ(bearingValue(state), "");
    useMetric();
    holdBearing();
    EXPECT_EQ(bearingValue(state), "4-point contact, 190.000 x 215.900 x 12.700 mm");
    for (const auto& [letter, name] : {std::pair{"A", "Angular contact"}, std::pair{"B", "Back-to-back set"},
                                       std::pair{"C", "Radial contact"}, std::pair{"F", "Face-to-face set"},
                                       std::pair{"T", "Tandem pair"}, std::pair{"U", "Universal ground"}}) {
        state.bearing.styleLetter = letter;
        EXPECT_EQ(bearingValue(state).substr(0, bearingValue(state).find(',')), name);
    }
}

TEST_F(AStep, ShowsTheListOnlyAsLongAsItAnswersTheStepsBefore) {
    choose("4-POINT CONTACT");
    setSizes(5, 9, 1, 2);
    setLoads(1, 2, 3, 4);
    EXPECT_EQ(resultsValue(state), "");
    state.search.question = searchQuestion(state);
    EXPECT_EQ(resultsValue(state), "");
    state.search.rows.resize(1);
    state.search.rows[0].name = "K15008XP0 ";
    EXPECT_EQ(resultsValue(state), "1 bearing");
    state.search.rows.resize(2);
    state.search.rows[1].name = "K15013XP0 ";
    state.search.chosenName = "K17013XP0 ";
    EXPECT_EQ(resultsValue(state), "2 bearings");
    state.search.chosenName = "K15013XP0 ";
    EXPECT_EQ(resultsValue(state), "2 bearings, K15013XP0 chosen");
    const ProgramState answered = state;
    setLoads(1, 2, 3, 5);
    EXPECT_EQ(resultsValue(state), "");
    state = answered;
    setSizes(5, 9, 1, 2.5);
    EXPECT_EQ(resultsValue(state), "");
    state = answered;
    choose("RADIAL CONTACT");
    EXPECT_EQ(resultsValue(state), "");
    state = answered;
    useMetric();
    EXPECT_EQ(resultsValue(state), "");
    state = answered;
    EXPECT_EQ(resultsValue(state), "2 bearings, K15013XP0 chosen");
}

TEST_F(AStep, StandsUnderTheUnitsInForce) {
    EXPECT_EQ(unitsValue(state), "US units: in, lb, in-lb");
    useMetric();
    EXPECT_EQ(unitsValue(state), "METRIC units: mm, N, N-m");
}

}  // namespace
}  // namespace norlaplan
