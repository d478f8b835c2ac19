#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <set>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "loaddist/AnalysisEntry.h"
#include "loaddist/AnalysisNumbers.h"
#include "loaddist/ShowAnalysisResults.h"
#include "loaddist/radlodestar2.h"
#include "support/FaultOf.h"

namespace norlaplan {
namespace {

/// Grooves of 53 % about a ball of a quarter inch: their centres are 0.015 inches apart.
SolverState grooves() {
    SolverState solver;
    solver.BallDiameter = 0.25;
    solver.InnerConformityPct = 53.0;
    solver.OuterConformityPct = 53.0;
    return solver;
}

TEST(AnalysisEntry, OfTheContactAngleSetsTheClearanceToo) {
    SolverState solver = grooves();
    editContactAngleDegrees(solver, 30.0);
    EXPECT_NEAR(solver.ContactAngle, M_PI / 6.0, 1e-7);
    // 2 * 0.015 * (1 - cos 30)
    EXPECT_NEAR(solver.DiametralClearance, 0.03 * (1.0 - std::sqrt(0.75)), 1e-8);
    editContactAngleRadians(solver, M_PI / 4.0);
    EXPECT_NEAR(solver.ContactAngleDeg, 45.0, 1e-5);
    EXPECT_NEAR(solver.DiametralClearance, 0.03 * (1.0 - std::sqrt(0.5)), 1e-8);
}

TEST(AnalysisEntry, OfTheClearanceSetsTheContactAngle) {
    SolverState solver = grooves();
    editDiametralClearance(solver, 0.015);
    EXPECT_NEAR(solver.ContactAngleDeg, 60.0, 1e-4) << "cos a = 1 - 0.015 / 0.03";
    EXPECT_NEAR(solver.ContactAngle, M_PI / 3.0, 1e-6);
    EXPECT_EQ(testing::faultOf([&] { editDiametralClearance(solver, -0.001); }), fault::kInvalidCall);
    EXPECT_EQ(solver.ContactAngleDeg, 0.0);
    EXPECT_EQ(solver.DiametralClearance, Single(-0.001)) << "the entry itself is stored";
}

TEST(AnalysisEntry, OfASpacingTakesItsSignFromTheChoice) {
    SolverState solver;
    editCenterlineSpacing(solver, -0.5, false);
    EXPECT_EQ(solver.CenterlineSpacing, 0.5);
    editCenterlineSpacing(solver, 0.25, true);
    EXPECT_EQ(solver.CenterlineSpacing, -0.25);
}

TEST(AnalysisEntry, OfAStyleExcludesTheOthers) {
    SolverState solver = grooves();
    solver.DiametralClearance = 0.5;
    solver.ContactAngleDeg = 30.0;
    solver.ContactAngle = M_PI / 6.0;
    chooseStyle(solver, 'X');
    EXPECT_TRUE(solver.StyleIsX);
    EXPECT_EQ(solver.DiametralClearance, 0.5) << "only a pair takes it from the angle";
    chooseStyle(solver, 'F');
    EXPECT_FALSE(solver.StyleIsX);
    EXPECT_TRUE(solver.StyleIsF);
    EXPECT_NEAR(solver.DiametralClearance, 0.03 * (1.0 - std::sqrt(0.75)), 1e-8);
    solver.ContactAngleDeg = 0.0;
    solver.DiametralClearance = 0.5;
    chooseStyle(solver, 'B');
    EXPECT_EQ(solver.DiametralClearance, 0.5) << "no angle, no change";
}

TEST(AnalysisEntry, OfAStyleEndsThatOfARadialBearing) {
    SolverState solver = grooves();
    solver.StyleIsC = true;
    chooseStyle(solver, 'X');
    EXPECT_FALSE(solver.StyleIsC) << "one of the four holds";
}

TEST(AnalysisEntry, OfABallCountKeepsWhatTheBallsOfTheSolveCarry) {
    SolverState solver;
    solver.BallCount = 3;
    ResetAnalysis(solver);
    solver.BallLoad(2, 3) = 25.0;
    solver.InnerStress(1, 3) = 7.0;
    editBallCount(solver, 32767.0);
    EXPECT_EQ(solver.BallLoad(2, 3), 25.0);
    EXPECT_EQ(solver.BallLoad(2, 32767), 0.0);
    EXPECT_EQ(solver.BallAngleText(1, 32767), "");
    editBallCount(solver, 0.0);
    EXPECT_EQ(solver.BallCount, 0);
    EXPECT_EQ(solver.InnerStress(1, 3), 7.0);
    EXPECT_EQ(solver.solvedBalls, 3);
}

TEST(AnalysisEntry, OfABallCountRefusesWhatNoTableHolds) {
    SolverState solver;
    solver.BallCount = 3;
    ResetAnalysis(solver);
    EXPECT_EQ(testing::faultOf([&] { editBallCount(solver, 32768.0); }), fault::kOverflow);
    EXPECT_EQ(testing::faultOf([&] { editBallCount(solver, -1.0); }), fault::kSubscript);
    EXPECT_EQ(solver.BallCount, 3);
}

TEST(AnalysisEntry, OfAMaterialGoesToItsBodyAlone) {
    ProgramState state;
    chooseMaterial(state, AnalysisBody::Ball, 5);
    chooseMaterial(state, AnalysisBody::Race, 2);
    EXPECT_EQ(state.analysis.ballMaterial, "Si3N4");
    EXPECT_EQ(state.solver.InnerModulusMpsi, 46.0);
    EXPECT_EQ(state.solver.InnerPoisson, Single(0.26));
    EXPECT_EQ(state.analysis.raceMaterial, "17-4PH");
    EXPECT_EQ(state.solver.OuterModulusMpsi, 28.5);
    EXPECT_EQ(state.solver.OuterPoisson, Single(0.272));
}

TEST(AnalysisEntry, OfTheEmptyMaterialBlanksTheNameAndKeepsTheNumbers) {
    ProgramState state;
    chooseMaterial(state, AnalysisBody::Race, 8);
    chooseMaterial(state, AnalysisBody::Race, 9);
    EXPECT_EQ(state.analysis.raceMaterial, "");
    EXPECT_EQ(state.solver.OuterModulusMpsi, 10.0);
    EXPECT_EQ(state.solver.OuterPoisson, Single(0.316));
}

TEST(AnalysisEntry, FindsAMaterialByItsName) {
    EXPECT_EQ(materialRow("52100"), 0);
    EXPECT_EQ(materialRow("6061-T6"), 8);
    EXPECT_EQ(materialRow("M50"), 9);
    EXPECT_EQ(materialRow(""), 9);
}

TEST(AnalysisNotes, OfASolveNameItsBearingAndDayAndNoMaterials) {
    ProgramState state;
    state.bearing.partNumber = "K19013XP0";
    chooseMaterial(state, AnalysisBody::Ball, 5);
    state.analysis.startingFriction = 0.15;
    state.analysis.spacingNegative = true;
    noteSolve(state, "3/14/26");
    EXPECT_EQ(state.analysis.partNumber, "K19013XP0");
    EXPECT_EQ(state.analysis.date, "3/14/26");
    EXPECT_EQ(state.analysis.ballMaterial, "");
    EXPECT_FALSE(state.analysis.spacingNegative);
    EXPECT_EQ(state.analysis.startingFriction, Single(0.15)) << "no solve has a word on friction";
}

const AnalysisNumber& numberOf(const std::string& control) {
    for (const AnalysisNumber& number : analysisNumbers()) {
        if (control == number.control) return number;
    }
    throw std::runtime_error("no " + control);
}

TEST(AnalysisNumbers, HaveAFieldEach) {
    std::set<std::string> controls;
    for (const AnalysisNumber& number : analysisNumbers())
        EXPECT_TRUE(controls.insert(number.control).second) << number.control;
    EXPECT_EQ(controls.size(), 29U);
}

TEST(AnalysisNumbers, ShowAllDigitsAsGivenAndTheirPictureAsWorkedOut) {
    ProgramState state;
    state.solver = grooves();
    state.solver.DiametralClearance = 0.0040192;
    state.solver.ContactAngleDeg = 30.0;
    EXPECT_EQ(analysisText(numberOf("Text43"), state, true), "0.0040192");
    EXPECT_EQ(analysisText(numberOf("Text43"), state, false), "0.00402");
    EXPECT_EQ(analysisText(numberOf("Text4"), state, true), "30");
    EXPECT_EQ(analysisText(numberOf("Text4"), state, false), "30.");
    EXPECT_EQ(analysisText(numberOf("Text15"), state, false), "6.35") << "no picture of its own";
}

TEST(AnalysisNumbers, KeepWhatIsStoredIn64BitsWithinTheRangeOf32) {
    ProgramState state;
    numberOf("Text1").store(state, 0.1);
    EXPECT_EQ(state.solver.BallDiameter, 0.1);
    EXPECT_EQ(testing::faultOf([&] { numberOf("Text1").store(state, 1e39); }), fault::kOverflow);
    EXPECT_EQ(testing::faultOf([&] { numberOf("Text5").store(state, -1e39); }), fault::kOverflow);
    EXPECT_EQ(state.solver.BallDiameter, 0.1);
}

TEST(SolverState, TellsWhichSolveItsResultsAreOf) {
    SolverState solver;
    EXPECT_FALSE(solver.converged);
    solver.BallCount = 2;
    solver.converged = true;
    ResetAnalysis(solver);
    EXPECT_FALSE(solver.converged) << "a solve has begun";
    EXPECT_EQ(solver.solveNumber, 1);
    EXPECT_EQ(solver.solvedBalls, 2);
    ResetAnalysis(solver);
    EXPECT_EQ(solver.solveNumber, 2);
}

std::map<std::string, std::string> shown(const std::vector<AnalysisField>& fields) {
    std::map<std::string, std::string> texts;
    for (const AnalysisField& field : fields)
        texts[field.control] = field.text;
    return texts;
}

TEST(AnalysisResults, InMetricUnitsComeFromTheStoredMetricValues) {
    SolverState solver;
    solver.BallCount = 1;
    ResetAnalysis(solver);
    solver.RowCount = 2;
    solver.RmcRow2Newtons = 54.94;
    solver.MaxBallLoadNewtons = 113.42;
    solver.InnerStaticCapacityNewtons = 3283.6;
    solver.MaxInnerStressMpa = 1367.5;
    solver.InnerMajorAxisMm = 0.79781;
    solver.SafetyInner = 28.948864;
    solver.RadialDisp = 0.001;
    solver.Tilt = -0.0012345678;
    auto texts = shown(ShowAnalysisResults(solver, AnalysisUnits::Metric).fields);
    EXPECT_EQ(texts.size(), 23U);
    EXPECT_EQ(texts["Text28"], "54.9");
    EXPECT_EQ(texts["Text29"], "113.4");
    EXPECT_EQ(texts["Text31"], "3284");
    EXPECT_EQ(texts["Text35"], "1368");
    EXPECT_EQ(texts["Text39"], "0.7978");
    EXPECT_EQ(texts["Text33"], "28.95");
    EXPECT_EQ(texts["Text52"], ".025400");
    EXPECT_EQ(texts["Text54"], "-.00123") << "radians, the first seven characters";
    solver.RowCount = 1;
    EXPECT_EQ(shown(ShowAnalysisResults(solver, AnalysisUnits::Metric).fields)["Text28"], "N/A");
    EXPECT_EQ(std::string(analysisCaptions(AnalysisUnits::Metric).tilt), "Tilt (radians)");
    EXPECT_EQ(std::string(analysisCaptions(AnalysisUnits::English).meanLoads), "RMC Loads (Lbs)");
}

TEST(AnalysisResults, HoldTheChecksOfTheSolve) {
    SolverState solver;
    solver.BallCount = 1;
    ResetAnalysis(solver);
    solver.ForceRadialSum = 1000.25;
    solver.ForceAxialSum = -0.5;
    solver.MomentSum = 0.0;
    solver.Kn = 5000000.0;
    solver.CiCo = 1.5;
    solver.Iteration = 12;
    auto texts = shown(ShowAnalysisResults(solver).checks);
    EXPECT_EQ(texts["Text57"], "1000.25");
    EXPECT_EQ(texts["Text58"], "-0.5");
    EXPECT_EQ(texts["Text59"], "0");
    EXPECT_EQ(texts["Text60"], "5000000");
    EXPECT_EQ(texts["Text61"], "1.5");
    EXPECT_EQ(texts["Text62"], "12");
}

/// A number of the form: its field, the number in the solver, and how many of its own units make one of that.
struct ShownNumber {
    const char* control;
    double stored, factor;
};

/// Every number has a value of its own, so that a field that shows another's is found out.
TEST(AnalysisNumbers, ShowTheirOwnFieldInTheirOwnUnit) {
    ProgramState state;
    SolverState& solver = state.solver;
    solver.BallDiameter = 2.0;
    solver.PitchDiameter = 3.0;
    solver.BallCount = 5;
    solver.ContactAngleDeg = 7.0;
    solver.ContactAngle = 11.0;
    solver.InnerConformityPct = 13.0;
    solver.OuterConformityPct = 17.0;
    solver.DiametralClearance = 19.0;
    solver.GapDistance = 23.0;
    solver.CenterlineSpacing = 29.0;
    solver.RadialLoad = 31.0;
    solver.AxialLoad = 37.0;
    solver.MomentLoad = 41.0;
    solver.InnerModulusMpsi = 43.0;
    solver.InnerPoisson = 47.0;
    solver.OuterModulusMpsi = 53.0;
    solver.OuterPoisson = 59.0;
    state.analysis.startingFriction = 61.0;
    state.analysis.runningFriction = 67.0;
    const ShownNumber shown[] = {
        {"Text1", 2.0, 1.0},       {"Text15", 2.0, 25.4},   {"Text2", 3.0, 1.0},     {"Text16", 3.0, 25.4},
        {"Text3", 5.0, 1.0},       {"Text4", 7.0, 1.0},     {"Text17", 11.0, 1.0},   {"Text5", 13.0, 1.0},
        {"Text6", 17.0, 1.0},      {"Text43", 19.0, 1.0},   {"Text44", 19.0, 25.4},  {"Text13", 23.0, 1.0},
        {"Text45", 23.0, 25.4},    {"Text66", 29.0, 1.0},   {"Text65", 29.0, 25.4},  {"Text14", 31.0, 1.0},
        {"Text20", 31.0, 4.448},   {"Text48", 37.0, 1.0},   {"Text50", 37.0, 4.448}, {"Text49", 41.0, 1.0},
        {"Text51", 41.0, 0.11298}, {"Text8", 43.0, 1.0},    {"Text18", 43.0, 6.895}, {"Text9", 47.0, 1.0},
        {"Text11", 53.0, 1.0},     {"Text19", 53.0, 6.895}, {"Text12", 59.0, 1.0},   {"Text63", 61.0, 1.0},
        {"Text64", 67.0, 1.0}};
    ASSERT_EQ(analysisNumbers().size(), std::size(shown));
    for (const ShownNumber& one : shown) {
        const auto numbers = analysisNumbers();
        const auto at = std::find_if(numbers.begin(), numbers.end(), [&](const AnalysisNumber& number) {
            return std::string(number.control) == one.control;
        });
        ASSERT_NE(at, numbers.end()) << one.control;
        EXPECT_NEAR(at->value(state), one.stored * one.factor, 1e-5 * one.stored * one.factor) << one.control;
        EXPECT_EQ(at->given, one.factor == 1.0 && std::string(one.control) != "Text17") << one.control;
        // What is entered comes back from the same field. Angle and clearance bring others about.
        const std::string control = one.control;
        if (control == "Text4" || control == "Text17" || control == "Text43" || control == "Text44") continue;
        ProgramState entered = state;
        at->store(entered, 40.0);
        EXPECT_NEAR(at->value(entered), 40.0, 1e-4) << one.control;
    }
}

TEST(AnalysisTexts, AreTheFourOfTheCustomerAndTheMaterials) {
    ProgramState state;
    state.analysis.partNumber = "number";
    state.analysis.date = "date";
    state.analysis.ballMaterial = "ball";
    state.analysis.raceMaterial = "race";
    std::map<std::string, std::string> shown;
    for (const AnalysisText& text : analysisTexts())
        shown[text.control] = state.analysis.*text.text;
    const std::map<std::string, std::string> expected = {
        {"Text22", "number"}, {"Text24", "date"}, {"Text7", "ball"}, {"Text10", "race"}};
    EXPECT_EQ(shown, expected);
}

}  // namespace
}  // namespace norlaplan
