#include <cmath>

#include <gtest/gtest.h>

#include "loaddist/radlodestar2.h"
#include "numbers/RuntimeError.h"
#include "state/Patience.h"
#include "support/FaultOf.h"
#include "support/PlainSolver.h"
#include "support/RecordingPorts.h"
#include "support/SolverCases.h"

namespace norlaplan {
namespace {

using testing::argumentsOf;
using testing::faultOf;
using testing::RecordingMessages;

plain::Bearing radialBearing() {
    return {'C', 3.0F, 0.375F, 20, 0.19875F, 0.0F, 0.0012F, 0.0F, 500.0F, 0.0F, 0.0F};
}

TEST(RadialRow, WithoutLoadLeavesEveryBallUnloadedAfterNoIterationAndHasNoSafety) {
    ProgramState state;
    RecordingMessages messages;
    plain::Bearing bearing = radialBearing();
    bearing.radialLoad = 0.0F;
    EXPECT_EQ(faultOf([&] { SolveRadialRow(state, argumentsOf(bearing), messages); }),
              fault::kDivisionByZero);
    EXPECT_EQ(state.solver.RadialDisp, 0.0);
    EXPECT_EQ(state.solver.Iteration, 0);
    for (int ball = 1; ball <= 20; ++ball)
        EXPECT_EQ(state.solver.BallLoad(1, ball), 0.0) << ball;
}

TEST(RadialRow, WithALargeClearanceStoresNoDeflectionForTheBallsOutOfTouch) {
    ProgramState state;
    RecordingMessages messages;
    plain::Bearing bearing = radialBearing();
    bearing.clearance = 0.02F;
    SolveRadialRow(state, argumentsOf(bearing), messages);
    int carrying = 0;
    for (int ball = 1; ball <= 20; ++ball) {
        const double cosine = std::cos((ball - 1) * plain::kTwoPi / 20);
        const bool touches = state.solver.RadialDisp * cosine > 0.01;
        EXPECT_EQ(state.solver.BallDeflection(1, ball) > 0.0, touches) << ball;
        EXPECT_EQ(state.solver.BallLoad(1, ball) > 0.0, touches) << ball;
        carrying += touches ? 1 : 0;
    }
    EXPECT_GE(carrying, 1);
    EXPECT_LE(carrying, 5);
}

/// A load so large that its last digit is coarser than the tolerance: Newton's steps go round in circles.
plain::Bearing circlingBearing(float load) {
    return {'C', 17.5F, 0.25F, 175, 0.1325F, 0.0F, 0.0012F, 0.0F, load, 0.0F, 0.0F};
}

TEST(RadialRow, GoesOnByBisectionSilentlyAfterTwentySixNewtonPasses) {
    // The second load's passes are another number when the halves are exchanged.
    for (const float load : {1e10F, 3.125e10F}) {
        ProgramState state;
        RecordingMessages messages;
        const plain::Result expected = plain::solveRadialRow(circlingBearing(load));
        SolveRadialRow(state, argumentsOf(circlingBearing(load)), messages);
        EXPECT_GT(state.solver.Iteration, 26);
        EXPECT_EQ(state.solver.Iteration, expected.iterations);
        EXPECT_EQ(state.solver.RadialDisp, expected.radial);
        EXPECT_EQ(state.solver.ForceRadialSum, static_cast<double>(load));
        EXPECT_TRUE(messages.shown.empty());
        EXPECT_TRUE(messages.asked.empty());
    }
}

TEST(RadialRow, ThatBisectsWithoutEndIsEndedByItsGuardUnasked) {
    ProgramState state;
    RecordingMessages messages;
    plain::Bearing bearing = radialBearing();
    bearing.ballDiameter = 0.15625F;
    bearing.grooveRadius = 0.0828125F;
    bearing.balls = 48;
    bearing.radialLoad = 1e10F;
    EXPECT_THROW(SolveRadialRow(state, argumentsOf(bearing), messages), NotConverging);
    EXPECT_TRUE(messages.asked.empty());
}

TEST(RadialRow, IgnoresWhatOnlyACoupledSolveReads) {
    ProgramState plainState;
    ProgramState state;
    RecordingMessages messages;
    plain::Bearing bearing = radialBearing();
    SolveRadialRow(plainState, argumentsOf(bearing), messages);
    bearing.axialLoad = 300.0F;
    bearing.moment = 700.0F;
    bearing.angleDegrees = 30.0F;
    SolveRadialRow(state, argumentsOf(bearing), messages);
    EXPECT_EQ(state.solver.RadialDisp, plainState.solver.RadialDisp);
    EXPECT_EQ(state.solver.AxialLoad, 0.0);
    EXPECT_EQ(state.solver.MomentLoad, 0.0);
    EXPECT_EQ(state.solver.ContactAngle, 0.0);
    EXPECT_EQ(state.solver.ForceZeroAngle, 0);
}

}  // namespace
}  // namespace norlaplan
