#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "loaddist/AssembleRows.h"
#include "loaddist/SameSolve.h"
#include "loaddist/radlodestar2.h"
#include "numbers/PiValue.h"
#include "numbers/RuntimeError.h"
#include "support/PlainSolver.h"
#include "support/RecordingPorts.h"
#include "support/SolverCases.h"

namespace norlaplan {
namespace {

using testing::argumentsOf;
using testing::expectTheSame;
using testing::RecordingMessages;
using testing::solverCases;

class CoupledStyles : public ::testing::TestWithParam<char> {};

TEST_P(CoupledStyles, AgreeWithThePlainTranscriptionToTheLastBit) {
    int solved = 0;
    for (const plain::Bearing& bearing : solverCases(GetParam())) {
        // A face-to-face pair of this width carries no large moment; what can't converge is no case here.
        if (bearing.style == 'F' && bearing.moment > 1000.0F) continue;
        const plain::Result expected = plain::solveCoupledRows(bearing);
        if (expected.iterations > 9000) continue;
        ++solved;
        ProgramState state;
        state.bearing.pitchDiameter = bearing.pitchDiameter;
        RecordingMessages messages;
        const auto result = SolveCoupledRows(state, argumentsOf(bearing), messages);
        ASSERT_TRUE(result.has_value());
        const SolverState& solver = state.solver;
        ASSERT_EQ(solver.AxialDisp, expected.axial);
        ASSERT_EQ(solver.Tilt, expected.tilt);
        expectTheSame(solver, expected, 2);
        ASSERT_EQ(result->lifeRevolutions.stored(), expected.life);
        ASSERT_EQ(result->safetyFactor.stored(), expected.safety);
    }
    EXPECT_GE(solved, 70);
}

TEST_P(CoupledStyles, CarryTheLoadsThatAreApplied) {
    int solved = 0;
    for (const plain::Bearing& bearing : solverCases(GetParam())) {
        if (bearing.style == 'F' && bearing.moment > 1000.0F) continue;
        ProgramState state;
        RecordingMessages messages;
        if (!SolveCoupledRows(state, argumentsOf(bearing), messages)) continue;
        ++solved;
        EXPECT_NEAR(state.solver.ForceAxialSum, static_cast<double>(bearing.axialLoad), 1e-6);
        EXPECT_NEAR(state.solver.ForceRadialSum, static_cast<double>(bearing.radialLoad), 1e-6);
        EXPECT_NEAR(state.solver.MomentSum, static_cast<double>(bearing.moment), 1e-5);
    }
    EXPECT_GE(solved, 70);
}

INSTANTIATE_TEST_SUITE_P(Styles, CoupledStyles, ::testing::Values('X', 'B', 'F'));

TEST(RadialRow, AgreesWithThePlainTranscriptionToTheLastBit) {
    for (const plain::Bearing& bearing : solverCases('C')) {
        for (const float clearance : {bearing.clearance, -0.0003F, 0.02F}) {
            plain::Bearing row = bearing;
            row.clearance = clearance;
            const plain::Result expected = plain::solveRadialRow(row);
            ProgramState state;
            RecordingMessages messages;
            const SolveResult result = SolveRadialRow(state, argumentsOf(row), messages);
            expectTheSame(state.solver, expected, 1);
            ASSERT_EQ(result.lifeRevolutions.stored(), expected.life);
            ASSERT_EQ(result.safetyFactor.stored(), expected.safety);
        }
    }
}

TEST(RadialRow, LoadsAtMostHalfOfTheBallsAndNoneOfTheSecondRow) {
    ProgramState state;
    RecordingMessages messages;
    SolveRadialRow(state, argumentsOf(solverCases('C')[0]), messages);
    const SolverState& solver = state.solver;
    double sum = 0.0;
    for (int ball = 1; ball <= solver.BallCount; ++ball) {
        const double angle = (ball - 1) * TwoPiValue / solver.BallCount;
        if (std::cos(angle) <= 0.0) {
            EXPECT_EQ(solver.BallLoad(1, ball), 0.0);
        }
        EXPECT_EQ(solver.BallLoad(2, ball), 0.0);
        sum += std::cos(angle) * solver.BallLoad(1, ball);
    }
    EXPECT_NEAR(sum, 500.0, 1e-5);
}

TEST(RadialRow, LeavesNoAxialForceMomentOrTiltOfAnEarlierSolve) {
    ProgramState state;
    RecordingMessages messages;
    plain::Bearing before = solverCases('X')[0];
    before.axialLoad = 300.0F;
    before.moment = 100.0F;
    ASSERT_TRUE(SolveCoupledRows(state, argumentsOf(before), messages).has_value());
    ASSERT_NEAR(state.solver.ForceAxialSum, 300.0, 1e-6);
    ASSERT_NE(state.solver.Tilt, 0.0);
    const plain::Bearing radial = solverCases('C')[0];
    SolveRadialRow(state, argumentsOf(radial), messages);
    EXPECT_EQ(state.solver.ForceAxialSum, 0.0);
    EXPECT_NEAR(state.solver.ForceRadialSum, static_cast<double>(radial.radialLoad), 1e-5);
    EXPECT_EQ(state.solver.MomentSum, 0.0);
    EXPECT_EQ(state.solver.AxialDisp, 0.0);
    EXPECT_EQ(state.solver.Tilt, 0.0);
}

int faultOf(const plain::Bearing& bearing) {
    ProgramState state;
    RecordingMessages messages;
    try {
        if (bearing.style == 'C') {
            SolveRadialRow(state, argumentsOf(bearing), messages);
        } else {
            SolveCoupledRows(state, argumentsOf(bearing), messages);
        }
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(Loads, OfASignThatTheStyleDoesNotTakeAreFaultFive) {
    for (const char style : {'X', 'B', 'F'}) {
        plain::Bearing bearing = solverCases(style)[0];
        bearing.axialLoad = -10.0F;
        EXPECT_EQ(faultOf(bearing), fault::kInvalidCall) << style;
    }
    plain::Bearing radial = solverCases('C')[0];
    radial.radialLoad = -10.0F;
    EXPECT_EQ(faultOf(radial), fault::kInvalidCall);
}

TEST(Loads, NoneAtAllOnARadialRowIsADivisionByZero) {
    plain::Bearing radial = solverCases('C')[0];
    radial.radialLoad = 0.0F;
    EXPECT_EQ(faultOf(radial), fault::kDivisionByZero);
}

TEST(CoupledRows, KeepTheSignOfANegativeRadialLoad) {
    ProgramState state;
    RecordingMessages messages;
    plain::Bearing bearing = solverCases('X')[0];
    bearing.radialLoad = -500.0F;
    bearing.axialLoad = 50.0F;
    ASSERT_TRUE(SolveCoupledRows(state, argumentsOf(bearing), messages).has_value());
    EXPECT_LT(state.solver.RadialDisp, 0.0);
    EXPECT_NEAR(state.solver.ForceRadialSum, -500.0, 1e-6);
}

TEST(Assembly, OfAContactLineWithoutAxialPartIsADivisionByZero) {
    ProgramState state;
    RecordingMessages messages;
    plain::Bearing bearing = solverCases('X')[2];
    bearing.clearance = 0.0F;
    ASSERT_TRUE(SolveCoupledRows(state, argumentsOf(bearing), messages).has_value());
    SolverState& solver = state.solver;
    // The second row's line begins at A0Sin along the axis; this displacement lays it flat.
    solver.AxialDisp = solver.A0Sin;
    solver.Tilt = 0.0;
    try {
        CoupledRows rows(solver);
        AssembleRows(solver, rows);
        FAIL() << "a contact line without an axial part has no moment arm";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), fault::kDivisionByZero);
    }
}

TEST(Stiffness, IsTheDerivativeOfTheForcesByEachDisplacement) {
    for (const char style : {'X', 'B', 'F'}) {
        ProgramState state;
        RecordingMessages messages;
        plain::Bearing bearing = solverCases(style)[6];
        bearing.moment = 100.0F;
        ASSERT_TRUE(SolveCoupledRows(state, argumentsOf(bearing), messages).has_value());
        SolverState& solver = state.solver;
        CoupledRows rows(solver);
        const Assembly here = AssembleRows(solver, rows);
        double SolverState::*const unknowns[] = {&SolverState::AxialDisp, &SolverState::RadialDisp,
                                                 &SolverState::Tilt};
        for (std::size_t j = 0; j < 3; ++j) {
            double sums[2][2] = {};
            const double step = 1e-8;
            const double before = solver.*unknowns[j];
            for (int side = 0; side < 2; ++side) {
                solver.*unknowns[j] = before + (side == 0 ? -step : step);
                AssembleRows(solver, rows);
                sums[side][0] = solver.ForceAxialSum;
                sums[side][1] = solver.ForceRadialSum;
            }
            solver.*unknowns[j] = before;
            for (std::size_t i = 0; i < 2; ++i) {
                const double slope = (sums[1][i] - sums[0][i]) / (2.0 * step) / solver.Kn;
                EXPECT_NEAR(here.stiffness[i + 1][j + 1], slope, 1e-4 * (std::fabs(slope) + 1.0))
                    << style << " " << i << " " << j;
            }
        }
    }
}

}  // namespace
}  // namespace norlaplan
