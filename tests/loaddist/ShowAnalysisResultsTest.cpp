#include <map>
#include <string>

#include <gtest/gtest.h>

#include "loaddist/ShowAnalysisResults.h"
#include "loaddist/radlodestar2.h"
#include "support/RecordingPorts.h"
#include "support/SolverCases.h"

namespace norlaplan {
namespace {

std::string pictureOf(double life) {
    return lifePicture(life, life);
}

TEST(LifePicture, KeepsFourFiguresFromTenThousandRevolutionsOn) {
    EXPECT_EQ(pictureOf(9999.0), "####");
    EXPECT_EQ(pictureOf(10000.0), "00.00E+00");
    EXPECT_EQ(pictureOf(100000.0), "000.0E+00");
    EXPECT_EQ(pictureOf(1000000.0), "0.000E+00");
    EXPECT_EQ(pictureOf(10000000.0), "00.00E+00") << "exactly ten million is in the upper band";
    EXPECT_EQ(pictureOf(100000000.0), "000.0E+00");
    EXPECT_EQ(pictureOf(1000000000.0), "0.000E+00");
    EXPECT_EQ(pictureOf(10000000000.0), "00.00E+00");
    EXPECT_EQ(pictureOf(99999997952.0), "000.0E+00");
    EXPECT_EQ(pictureOf(999999995904.0), "0.000E+00");
}

TEST(LifePicture, OfRowTwoTestsItsUpperEndsOnRowOne) {
    EXPECT_STREQ(lifePicture(5e6, 8e6), "0.000E+00");
    EXPECT_STREQ(lifePicture(5e6, 2e7), "####") << "no band below ten million holds row 1, none above row 2";
    // Row 2 is beyond the band's end, but row 1 isn't.
    EXPECT_STREQ(lifePicture(5e8, 8e6), "0.000E+00");
}

SolverState sample() {
    SolverState solver;
    solver.BallCount = 2;
    ResetAnalysis(solver);
    solver.L10InnerRotationRow1 = 1234567.0;
    solver.L10OuterRotationRow1 = 987654.0;
    solver.RmcRow1 = 12.345F;
    solver.MaxBallLoad = 25.5;
    solver.SafetyInner = 28.948864F;
    solver.MaxInnerStress = 198338.39F;
    solver.InnerMajorAxis = 0.03141F;
    solver.RadialDisp = 0.00096953882877;
    solver.Tilt = -0.001;
    solver.BallDeflection(1, 1) = 0.0001234;
    solver.BallLoad(1, 1) = 25.272362;
    solver.BallAngleText(1, 1) = "30.125";
    solver.InnerStress(1, 1) = 198338.39F;
    solver.InnerSemiMajor(1, 1) = 0.0157F;
    return solver;
}

TEST(AnalysisResults, FillTheFieldsOfTheForm) {
    std::map<std::string, std::string> shown;
    for (const AnalysisField& field : ShowAnalysisResults(sample()).fields)
        shown[field.control] = field.text;
    EXPECT_EQ(shown.size(), 23U);
    EXPECT_EQ(shown["Text25"], "1.235E+06");
    EXPECT_EQ(shown["Text26"], "9.877E+05") << "in the picture of the inner race's rotation";
    EXPECT_EQ(shown["Text27"], "12.35");
    EXPECT_EQ(shown["Text29"], "25.5");
    EXPECT_EQ(shown["Text30"], "25.5");
    EXPECT_EQ(shown["Text33"], "28.95");
    EXPECT_EQ(shown["Text35"], "198,338");
    EXPECT_EQ(shown["Text39"], ".0314");
    EXPECT_EQ(shown["Text52"], ".000970");
    // -0.001 rad is -0.0572958 degrees; the text is cut behind its seventh character.
    EXPECT_EQ(shown["Text54"], "-.05729");
}

TEST(AnalysisResults, GiveAGridLineForEveryBallBelowTwoHeaders) {
    const AnalysisResults results = ShowAnalysisResults(sample());
    ASSERT_EQ(results.firstRow.size(), 4U);
    ASSERT_EQ(results.secondRow.size(), 4U);
    EXPECT_EQ(results.firstRow[0][4], "Max. Hertz");
    EXPECT_EQ(results.firstRow[1], (std::array<std::string, 10>{"No.", "Defl. (in)", "Force (lb)", "Angle",
                                                                "Inner Race", "Outer Race", "Major Dia",
                                                                "Minor Dia", "Major Dia", "Minor Dia"}));
    const auto& line = results.firstRow[2];
    EXPECT_EQ(line[0], "1");
    EXPECT_EQ(line[1], ".000123");
    EXPECT_EQ(line[2], "25.27") << "the first five characters, not rounded";
    EXPECT_EQ(line[3], "30.125");
    EXPECT_EQ(line[4], "198,338");
    EXPECT_EQ(line[6], "0.0314");
    EXPECT_EQ(results.firstRow[3][0], "2");
}

TEST(AnalysisResults, KeepTheBallsOfTheSolveWhateverTheBallCountIsNow) {
    SolverState solver = sample();
    solver.BallCount = 40;
    EXPECT_EQ(ShowAnalysisResults(solver).firstRow.size(), 4U);
    solver.BallCount = 0;
    EXPECT_EQ(ShowAnalysisResults(solver).secondRow.size(), 4U);
}

TEST(AnalysisResults, OfARadialBearingHaveAnEmptySecondRow) {
    ProgramState state;
    testing::RecordingMessages messages;
    SolveRadialRow(state, testing::argumentsOf(testing::solverCases('C').front()), messages);
    EXPECT_TRUE(state.solver.converged);
    const AnalysisResults results = ShowAnalysisResults(state.solver);
    for (std::size_t i = 2; i < results.secondRow.size(); ++i) {
        EXPECT_EQ(results.secondRow[i][2], "0");
        EXPECT_EQ(results.secondRow[i][4], "");
    }
}

}  // namespace
}  // namespace norlaplan
