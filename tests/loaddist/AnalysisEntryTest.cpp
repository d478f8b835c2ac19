#include <cmath>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "loaddist/AnalysisEntry.h"
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
