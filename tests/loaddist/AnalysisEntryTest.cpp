#include <cmath>
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

}  // namespace
}  // namespace norlaplan
