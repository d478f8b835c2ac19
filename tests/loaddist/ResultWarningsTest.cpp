#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "loaddist/ResultWarnings.h"
#include "loaddist/radlodestar2.h"
#include "support/RecordingPorts.h"
#include "support/SolverCases.h"

namespace norlaplan {
namespace {

using testing::RecordingMessages;
using Warnings = std::vector<std::string>;

const std::string kUnbalanced = "The ball loads do not balance the applied loads.";

struct Case {
    const char* what;
    double radial, axial, moment;              ///< applied
    double radialAway, axialAway, momentAway;  ///< the sums minus the loads
    bool warns;
};

// The pitch diameter is 8 inches: a moment counts a quarter of its pound-inches.
constexpr Case kCases[] = {
    {"in balance", 1000, 200, 300, 0, 0, 0, false},
    {"less than 0.1 % of the largest load", 1000, 0, 0, 0.999, -0.999, 3.99, false},
    {"exactly 0.1 %", 1000, 0, 0, 1.0, 0, 0, false},
    {"radial too far", 1000, 0, 0, 1.001, 0, 0, true},
    {"radial too little", 1000, 0, 0, -1.001, 0, 0, true},
    {"axial too far", 1000, 1, 0, 0, -1.001, 0, true},
    {"moment too far", 1000, 0, 0, 0, 0, 4.01, true},
    {"moment below its arm's share", 1000, 0, 0, 0, 0, -3.99, false},
    {"a small axial load is compared with the large radial one", 1000, 1, 0, 0, 0.5, 0, false},
    {"the moment is the largest load", 10, 0, 40000, 9.99, 0, 0, false},
    {"the moment is the largest load, but not large enough", 10, 0, 40000, 10.01, 0, 0, true},
    {"negative loads count by their size", -1000, 0, -40000, 9.99, 0, 39.9, false},
    {"negative loads, too far", -1000, 0, -40000, 0, 0, -40.1, true},
    {"no load at all: nothing to compare with", 0, 0, 0, 0.001, 0.001, 0.001, false},
};

SolverState stateOf(const Case& row) {
    SolverState solver;
    solver.PitchDiameter = 8.0;
    solver.RowCount = 2;
    solver.RadialLoad = row.radial;
    solver.AxialLoad = row.axial;
    solver.MomentLoad = row.moment;
    solver.ForceRadialSum = row.radial + row.radialAway;
    solver.ForceAxialSum = row.axial + row.axialAway;
    solver.MomentSum = row.moment + row.momentAway;
    return solver;
}

TEST(BalanceWarning, ComparesEachSumWithTheLargestLoad) {
    for (const Case& row : kCases)
        EXPECT_EQ(resultWarnings(stateOf(row)), row.warns ? Warnings{kUnbalanced} : Warnings{}) << row.what;
}

TEST(BalanceWarning, StaysAwayFromWhatConverges) {
    for (const char style : {'C', 'X', 'B'}) {
        for (const plain::Bearing& bearing : testing::solverCases(style)) {
            ProgramState state;
            RecordingMessages messages;
            if (style == 'C') {
                SolveRadialRow(state, testing::argumentsOf(bearing), messages);
            } else if (!SolveCoupledRows(state, testing::argumentsOf(bearing), messages)) {
                continue;
            }
            for (const std::string& warning : resultWarnings(state.solver))
                EXPECT_NE(warning, kUnbalanced) << style << " " << bearing.pitchDiameter;
        }
    }
}

SolverState rowsOf(double life1, double life2, double meanLoad2 = 10.0, int rows = 2) {
    SolverState solver;
    solver.PitchDiameter = 8.0;
    solver.RowCount = rows;
    solver.RmcRow2 = meanLoad2;
    solver.L10OuterRotationRow1 = life1;
    solver.L10OuterRotationRow2 = life2;
    return solver;
}

TEST(RowWarning, TellsTheShorterLifeOfRowTwo) {
    EXPECT_EQ(resultWarnings(rowsOf(719802496.0, 28572300.0)),
              Warnings{"Row 2 has the shorter life: 28,572,300 revolutions"});
    EXPECT_EQ(resultWarnings(rowsOf(1000.0, 999.0)), Warnings{"Row 2 has the shorter life: 999 revolutions"});
    EXPECT_EQ(resultWarnings(rowsOf(2.0, 0.25)), Warnings{"Row 2 has the shorter life: 0 revolutions"});
    EXPECT_EQ(resultWarnings(rowsOf(28572300.0, 719802496.0)), Warnings{});
    EXPECT_EQ(resultWarnings(rowsOf(1000.0, 1000.0)), Warnings{}) << "as long is not shorter";
}

TEST(RowWarning, IgnoresTheLifeThatAnUnloadedRowKeepsFromAnEarlierSolve) {
    EXPECT_EQ(resultWarnings(rowsOf(1000.0, 500.0, 0.0)), Warnings{});
    EXPECT_EQ(resultWarnings(rowsOf(1000.0, 500.0, 10.0, 1)), Warnings{}) << "a single row";
}

TEST(RowWarning, TakesTheSameRotationForBothRows) {
    SolverState solver = rowsOf(1000.0, 2000.0);
    solver.L10InnerRotationRow1 = 900.0;
    solver.L10InnerRotationRow2 = 800.0;
    EXPECT_EQ(resultWarnings(solver), Warnings{});
}

TEST(Warnings, StandTogetherBalanceFirst) {
    SolverState solver = rowsOf(1000.0, 500.0);
    solver.RadialLoad = 100.0;
    EXPECT_EQ(resultWarnings(solver), (Warnings{kUnbalanced, "Row 2 has the shorter life: 500 revolutions"}));
}

}  // namespace
}  // namespace norlaplan
