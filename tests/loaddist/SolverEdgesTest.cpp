#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "loaddist/AssembleRows.h"
#include "loaddist/radlodestar2.h"
#include "numbers/RuntimeError.h"
#include "support/FaultOf.h"
#include "support/PlainSolver.h"
#include "support/RecordingPorts.h"
#include "support/SolverCases.h"

namespace norlaplan {
namespace {

using testing::argumentsOf;
using testing::faultOf;
using testing::RecordingMessages;
using testing::solverCases;

TEST(Torque, IsHalfThePitchDiameterOfTheBearingTimesAllBallLoadsTimesTheCoefficient) {
    for (const char style : {'C', 'X', 'B'}) {
        ProgramState state;
        state.bearing.pitchDiameter = 8.0;
        state.life.torqueCoefficient = 0.004;
        RecordingMessages messages;
        // The argument's own pitch diameter is another one.
        const SolveArguments arguments = argumentsOf(solverCases(style)[1]);
        const SolveResult result = style == 'C' ? SolveRadialRow(state, arguments, messages)
                                                : SolveCoupledRows(state, arguments, messages).value();
        double sum = 0.0;
        for (int row = 1; row <= 2; ++row) {
            for (int ball = 1; ball <= state.solver.BallCount; ++ball)
                sum += state.solver.BallLoad(row, ball);
        }
        EXPECT_NEAR(result.torque / (sum * 4.0 * 0.004), 1.0, 1e-6) << style;
    }
}

/// Hardly any contact angle and no axial load: the contact lines start without an axial part.
plain::Bearing unstableBearing(char style) {
    return {style, 3.0F, 0.25F, 20, 0.1325F, 0.3F, 0.0F, 1e-7F, 0.0F, 0.0F, 0.0F};
}

struct UnstableCase {
    char style;
    const char* title;
};

class UnstableStyles : public ::testing::TestWithParam<UnstableCase> {};

TEST_P(UnstableStyles, AreToldWithAnAdviceAndAbortTheSolve) {
    ProgramState state;
    RecordingMessages messages;
    const auto result = SolveCoupledRows(state, argumentsOf(unstableBearing(GetParam().style)), messages);
    EXPECT_FALSE(result.has_value());
    EXPECT_TRUE(state.solver.SolveAborted);
    const std::vector<Message> expected = {{GetParam().title, "Unstable Bearing Configuration", Icon::None}};
    EXPECT_EQ(messages.shown, expected);
    EXPECT_TRUE(messages.asked.empty());
}

INSTANTIATE_TEST_SUITE_P(Styles, UnstableStyles,
                         ::testing::Values(UnstableCase{'X', "Please try a Back-to-Back set"},
                                           UnstableCase{'F', "Please try a Back-to-Back set"},
                                           UnstableCase{'B', "Please try a Four-Point Contact"},
                                           UnstableCase{'Q', "Please try a different bearing style"}));

TEST(UnstableBearing, TurnsTheEnteredLoadsThatAreZeroIntoOneAndShowsAllThree) {
    ProgramState state;
    ApplyUnitSystem("METRIC", state.units);
    state.loads.radialLoadDisplay = 0.0;
    state.loads.axialLoadDisplay = 2.5;
    state.loads.momentLoadDisplay = 0.0;
    RecordingMessages messages;
    SolveCoupledRows(state, argumentsOf(unstableBearing('B')), messages);
    EXPECT_EQ(state.loads.radialLoadDisplay, 1.0);
    EXPECT_EQ(state.loads.axialLoadDisplay, 2.5);
    EXPECT_EQ(state.loads.momentLoadDisplay, 1.0);
    EXPECT_EQ(state.entries.radial, "1");
    EXPECT_EQ(state.entries.axial, "2.5");
    EXPECT_EQ(state.entries.moment, "1");
    EXPECT_EQ(state.loads.radialLoad.stored(), state.units.forceFactor.stored());
    EXPECT_EQ(state.loads.axialLoad.stored(), static_cast<float>(2.5 * state.units.forceFactor));
    EXPECT_EQ(state.loads.momentLoad.stored(), state.units.momentFactor.stored());
}

TEST(UnstableBearing, LeavesLoadsThatAreNotZeroAsTheyWere) {
    ProgramState state;
    state.loads.radialLoadDisplay = 7.0;
    state.loads.axialLoadDisplay = -3.0;
    state.loads.momentLoadDisplay = 0.5;
    RecordingMessages messages;
    SolveCoupledRows(state, argumentsOf(unstableBearing('X')), messages);
    EXPECT_EQ(state.loads.radialLoadDisplay, 7.0);
    EXPECT_EQ(state.loads.axialLoadDisplay, -3.0);
    EXPECT_EQ(state.loads.momentLoadDisplay, 0.5);
}

/// The displacements from which a solve starts: an unstable one ends before its first step.
SolverState startOf(plain::Bearing bearing) {
    ProgramState state;
    RecordingMessages messages;
    SolveCoupledRows(state, argumentsOf(bearing), messages);
    EXPECT_EQ(messages.shown.size(), 1U);
    return state.solver;
}

TEST(CoupledRows, SolveAlikeAfterARadialRow) {
    for (const char style : {'X', 'B', 'F'}) {
        ProgramState fresh, used;
        RecordingMessages messages;
        SolveRadialRow(used, argumentsOf(solverCases('C').front()), messages);
        used.solver.ForceZeroAngle = 1;
        const SolveArguments arguments = argumentsOf(solverCases(style)[1]);
        ASSERT_TRUE(SolveCoupledRows(fresh, arguments, messages).has_value());
        ASSERT_TRUE(SolveCoupledRows(used, arguments, messages).has_value());
        EXPECT_EQ(used.solver.ForceZeroAngle, 0) << style;
        EXPECT_EQ(used.solver.AxialDisp, fresh.solver.AxialDisp) << style;
        EXPECT_EQ(used.solver.RadialDisp, fresh.solver.RadialDisp) << style;
        EXPECT_EQ(used.solver.Tilt, fresh.solver.Tilt) << style;
        EXPECT_EQ(used.solver.Kn, fresh.solver.Kn) << style;
    }
}

TEST(CoupledRows, StartATenThousandthAsideWithoutRadialLoadAndClearance) {
    EXPECT_EQ(startOf(unstableBearing('X')).RadialDisp, 0.0001);
    EXPECT_EQ(startOf(unstableBearing('B')).RadialDisp, 0.0001);
}

TEST(CoupledRows, StartOnTheSideOfANegativeRadialLoad) {
    plain::Bearing bearing = unstableBearing('X');
    bearing.radialLoad = 200.0F;
    const double positive = startOf(bearing).RadialDisp;
    bearing.radialLoad = -200.0F;
    EXPECT_GT(positive, 0.0);
    EXPECT_EQ(startOf(bearing).RadialDisp, -positive);
}

TEST(CoupledRows, OfABackToBackPairAtAngleZeroKeepTheClearanceOfTheLastSolveAndDivideByZero) {
    ProgramState state;
    state.solver.DiametralClearance = 0.125;
    RecordingMessages messages;
    plain::Bearing bearing = solverCases('B')[1];
    bearing.angleDegrees = 0.0F;
    EXPECT_EQ(faultOf([&] { SolveCoupledRows(state, argumentsOf(bearing), messages); }),
              fault::kDivisionByZero);
    EXPECT_EQ(state.solver.DiametralClearance, 0.125);
    EXPECT_FALSE(state.solver.SolveAborted);
    EXPECT_TRUE(messages.shown.empty());
}

TEST(CoupledRows, OfAFourPointBearingLeaveTheGapOfTheLastPair) {
    ProgramState state;
    state.solver.GapDistance = 0.25;
    state.solver.CenterlineSpacing = 0.5;
    RecordingMessages messages;
    const plain::Bearing bearing = solverCases('X')[1];
    const plain::Result expected = plain::solveCoupledRows(bearing);
    ASSERT_TRUE(SolveCoupledRows(state, argumentsOf(bearing), messages).has_value());
    EXPECT_EQ(state.solver.GapDistance, 0.25);
    EXPECT_EQ(state.solver.CenterlineSpacing, 0.5);
    EXPECT_EQ(state.solver.AxialDisp, expected.axial);
}

/// A narrow face-to-face pair under a radial load alone: its steps never settle.
plain::Bearing wanderingBearing() {
    return {'F', 3.0F, 0.375F, 20, 0.19875F, 0.78740157F, 0.0012F, 30.0F, 500.0F, 0.0F, 0.0F};
}

const Message kQuestion{"Difficulty in solving this load case", "Do you want to keep trying?",
                        Icon::Question};

TEST(CoupledRows, AskAtTheTenThousandthPassAndAbortOnNo) {
    ProgramState state;
    RecordingMessages messages;
    messages.answers = {Answer::No};
    EXPECT_FALSE(SolveCoupledRows(state, argumentsOf(wanderingBearing()), messages).has_value());
    EXPECT_EQ(messages.asked, std::vector<Message>{kQuestion});
    EXPECT_EQ(state.solver.Iteration, 10000);
    EXPECT_EQ(state.solver.RadialDisp, plain::solveCoupledRows(wanderingBearing(), 9999).radial);
    EXPECT_TRUE(state.solver.SolveAborted);
    EXPECT_TRUE(messages.shown.empty());
}

/// Counts how often a solve asks whether it is still wanted, and stops it there.
struct Onlooker : RecordingMessages {
    explicit Onlooker(int stopAt) : stopAt_(stopAt) {}
    bool stillWanted() override { return ++looks < stopAt_; }
    int looks = 0;

  private:
    int stopAt_;
};

TEST(CoupledRows, OfTensOfThousandsOfBallsCanBeStoppedInEveryPass) {
    plain::Bearing bearing = wanderingBearing();
    bearing.balls = 30000;
    ProgramState state;
    Onlooker messages(3);
    EXPECT_FALSE(SolveCoupledRows(state, argumentsOf(bearing), messages).has_value());
    EXPECT_TRUE(state.solver.SolveAborted);
    EXPECT_EQ(state.solver.Iteration, 3);
    EXPECT_TRUE(messages.asked.empty());
}

TEST(CoupledRows, OfAFewBallsAskNobody) {
    ProgramState state;
    Onlooker messages(1);
    EXPECT_TRUE(SolveCoupledRows(state, argumentsOf(solverCases('X')[1]), messages).has_value());
    EXPECT_EQ(messages.looks, 0);
}

TEST(CoupledRows, CountTenThousandPassesAnewOnYes) {
    ProgramState state;
    RecordingMessages messages;
    messages.answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(SolveCoupledRows(state, argumentsOf(wanderingBearing()), messages).has_value());
    EXPECT_EQ(messages.asked, (std::vector<Message>{kQuestion, kQuestion}));
    EXPECT_EQ(state.solver.Iteration, 10000);
    // The count begins at 1, but anew at 0: the second round is one pass longer.
    EXPECT_EQ(state.solver.RadialDisp, plain::solveCoupledRows(wanderingBearing(), 19999).radial);
    EXPECT_NE(state.solver.RadialDisp, plain::solveCoupledRows(wanderingBearing(), 19998).radial);
}

TEST(CoupledRows, LeaveWithoutResultsWhileAnEarlierAbortHasNotBeenLookedAt) {
    ProgramState state;
    state.solver.SolveAborted = true;
    RecordingMessages messages;
    EXPECT_FALSE(SolveCoupledRows(state, argumentsOf(solverCases('X')[1]), messages).has_value());
    EXPECT_TRUE(state.solver.SolveAborted);
}

TEST(BallAngles, AreShownForABallThatJustTouchesAndNotForOneOutOfTouch) {
    SolverState solver;
    solver.BallCount = 1;
    ResetAnalysis(solver);
    solver.CentreDistance = 5.0;
    // Row 1 just touches, 3-4-5; row 2 stands a hair apart.
    solver.BallX(1, 1) = 4.0;
    solver.BallY(1, 1) = 3.0;
    solver.BallDist(1, 1) = 5.0;
    solver.BallX(2, 1) = 4.0;
    solver.BallY(2, 1) = 3.0;
    solver.BallDist(2, 1) = std::nextafter(5.0, 0.0);
    writeBallAngles(solver);
    EXPECT_EQ(solver.BallAngleText(1, 1), "36.869");  // atan(3/4) = 36.8699 degrees, cut to six characters
    EXPECT_EQ(solver.BallAngleText(2, 1), "  N/A ");
}

/// A four-point bearing of one ball whose grooves' centres are one inch apart.
SolverState oneBall() {
    SolverState solver;
    solver.BallCount = 1;
    ResetAnalysis(solver);
    solver.StyleIsX = true;
    solver.CentreDistance = 1.0;
    solver.ContactAngle = 0.5;
    solver.PitchDiameter = 8.0;
    solver.CentreRadius = 4.0;
    solver.Kn = 1e6;
    return solver;
}

int faultOfAssembly(SolverState& solver) {
    CoupledRows rows(solver);
    return faultOf([&] { AssembleRows(solver, rows); });
}

TEST(Assembly, GivesABallThatJustTouchesNoDeflectionAndNoLoad) {
    SolverState solver = oneBall();
    CoupledRows rows(solver);
    const Assembly assembly = AssembleRows(solver, rows);
    for (double* const cell : {&solver.BallDeflection(1, 1), &solver.BallLoad(1, 1)})
        *cell = 9.0;
    writeBallTables(solver, rows);
    ASSERT_EQ(solver.BallDist(1, 1), 1.0);
    EXPECT_EQ(solver.BallDeflection(1, 1), 0.0);
    EXPECT_EQ(solver.BallLoad(1, 1), 0.0);
    EXPECT_EQ(assembly.stiffness[1][1], 0.0);
    writeBallAngles(solver);
    EXPECT_EQ(solver.BallAngleText(1, 1), "28.647");  // 0.5 radians
}

TEST(Assembly, TellsApartBallsThatTouchAndThatDoNotByTheLastRounding) {
    // Around the place where both rows just touch, in steps that change a line's length by one rounding or
    // none.
    int touching = 0, apart = 0;
    for (int step = -800; step <= 800; ++step) {
        SolverState solver = oneBall();
        solver.AxialDisp = step * 2e-17;
        solver.RadialDisp = step % 7 * 1e-17;
        CoupledRows rows(solver);
        const Assembly assembly = AssembleRows(solver, rows);
        writeBallTables(solver, rows);
        double axial = 0.0, moment = 0.0;
        bool free = true;
        for (int row = 1; row <= 2; ++row) {
            const double x = solver.BallX(row, 1), y = solver.BallY(row, 1);
            const double d = std::sqrt(x * x + y * y);
            const double e = d - 1.0;
            const double Q = e < 0.0 ? 0.0 : std::pow(e, 1.5) * solver.Kn;
            ++(e < 0.0 ? apart : touching);
            free &= e <= 0.0;
            axial = row == 1 ? axial + Q * (y / d) : axial - Q * (y / d);
            moment = row == 1 ? moment + Q * (y / d) * 8.0 / 2.0 : moment - Q * (y / d) * 8.0 / 2.0;
            EXPECT_EQ(solver.BallLoad(row, 1), Q) << step;
            EXPECT_EQ(solver.BallDeflection(row, 1), e > 0.0 ? e : 0.0) << step;
        }
        EXPECT_EQ(solver.ForceAxialSum, axial) << step;
        EXPECT_EQ(solver.MomentSum, moment) << step;
        EXPECT_EQ(assembly.stiffness[1][1] == 0.0, free) << step;
    }
    EXPECT_GT(touching, 100);
    EXPECT_GT(apart, 100);
}

TEST(Assembly, OfALoadedContactLineAlongTheAxisIsADivisionByZero) {
    SolverState solver = oneBall();
    solver.RadialDisp = -std::cos(solver.ContactAngle);
    solver.AxialDisp = 1.0;
    EXPECT_EQ(faultOfAssembly(solver), fault::kDivisionByZero);
    // Out of touch the same line has no angle to show, and no fault.
    solver.AxialDisp = 0.25;
    EXPECT_EQ(faultOfAssembly(solver), 0);
}

TEST(Solver, EndsInAFaultForABearingWithoutBallsOrWithFewer) {
    for (const char style : {'C', 'X', 'B', 'F'}) {
        for (const int balls : {0, -1, -2, -32768}) {
            plain::Bearing bearing = solverCases(style).front();
            bearing.balls = balls;
            const SolveArguments arguments = argumentsOf(bearing);
            ProgramState state;
            RecordingMessages messages;
            const int fault = faultOf([&] {
                if (style == 'C')
                    SolveRadialRow(state, arguments, messages);
                else
                    SolveCoupledRows(state, arguments, messages);
            });
            EXPECT_EQ(fault, balls == 0 ? fault::kDivisionByZero : fault::kSubscript) << style << balls;
        }
    }
}

TEST(ResetAnalysis, ClearsTheBallTablesAndKeepsTheSemiAxes) {
    SolverState solver;
    solver.BallCount = 3;
    ResetAnalysis(solver);
    solver.BallLoad(1, 2) = 7.0;
    solver.BallDeflection(2, 3) = 7.0;
    solver.BallAngleText(1, 1) = "30.000";
    solver.InnerSemiMajor(1, 2) = 0.5;
    solver.OuterSemiMinor(2, 3) = 0.25;
    ResetAnalysis(solver);
    EXPECT_EQ(solver.BallLoad(1, 2), 0.0);
    EXPECT_EQ(solver.BallDeflection(2, 3), 0.0);
    EXPECT_EQ(solver.BallAngleText(1, 1), "");
    EXPECT_EQ(solver.InnerSemiMajor(1, 2), 0.5);
    EXPECT_EQ(solver.OuterSemiMinor(2, 3), 0.25);
}

}  // namespace
}  // namespace norlaplan
