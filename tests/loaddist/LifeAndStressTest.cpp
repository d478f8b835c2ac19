#include <cmath>

#include <gtest/gtest.h>

#include "loaddist/LifeAndStress.h"
#include "loaddist/radlodestar2.h"
#include "numbers/RuntimeError.h"
#include "support/PlainContact.h"
#include "support/RecordingPorts.h"
#include "support/SolverCases.h"

namespace norlaplan {
namespace {

using testing::argumentsOf;
using testing::RecordingMessages;
using testing::solverCases;

constexpr double kTruePi = 3.141592653589793;

SolverState solved(char style) {
    ProgramState state;
    RecordingMessages messages;
    const SolveArguments arguments = argumentsOf(solverCases(style)[1]);
    if (style == 'C') {
        SolveRadialRow(state, arguments, messages);
    } else {
        EXPECT_TRUE(SolveCoupledRows(state, arguments, messages).has_value());
    }
    return state.solver;
}

void loadEveryBall(SolverState& solver, double load) {
    for (int row = 1; row <= 2; ++row) {
        for (int ball = 1; ball <= solver.BallCount; ++ball)
            solver.BallLoad(row, ball) = load;
    }
}

TEST(Stress, UnderThePressureEllipsoidCarriesTheBallLoad) {
    const SolverState solver = solved('X');
    for (int ball = 1; ball <= solver.BallCount; ++ball) {
        const double inner = 2.0 / 3.0 * kTruePi * solver.InnerSemiMajor(1, ball) *
                             solver.InnerSemiMinor(1, ball) * solver.InnerStress(1, ball);
        const double outer = 2.0 / 3.0 * kTruePi * solver.OuterSemiMajor(1, ball) *
                             solver.OuterSemiMinor(1, ball) * solver.OuterStress(1, ball);
        EXPECT_NEAR(inner, solver.BallLoad(1, ball), 1e-6 * inner + 1e-12);
        EXPECT_NEAR(outer, solver.BallLoad(1, ball), 1e-6 * outer + 1e-12);
    }
}

TEST(StaticCapacity, IsTheBallLoadThatGivesTheStressLimit) {
    SolverState solver = solved('X');
    loadEveryBall(solver, solver.InnerStaticCapacity);
    LifeAndStress(solver);
    EXPECT_NEAR(solver.MaxInnerStress, 609000.0, 1.0);
    EXPECT_NEAR(solver.SafetyInner, 1.0, 1e-6);
    loadEveryBall(solver, solver.OuterStaticCapacity);
    LifeAndStress(solver);
    EXPECT_NEAR(solver.MaxOuterStress, 609000.0, 1.0);
    EXPECT_NEAR(solver.SafetyOuter, 1.0, 1e-6);
}

TEST(MeanLoads, OfEqualBallLoadsAreThatLoad) {
    SolverState solver = solved('B');
    loadEveryBall(solver, 12.5);
    LifeAndStress(solver);
    for (const Single& mean : {solver.RmcRow1, solver.RmcRow2, solver.MeanRow1, solver.MeanRow2})
        EXPECT_NEAR(mean, 12.5, 1e-4);
    EXPECT_NEAR(solver.RmcRow1Newtons, 12.5 * 4.448, 1e-3);
}

TEST(Life, FallsWithTheCubeOfTheLoad) {
    SolverState solver = solved('B');
    loadEveryBall(solver, 10.0);
    LifeAndStress(solver);
    const double before = solver.L10OuterRotationRow1;
    loadEveryBall(solver, 20.0);
    LifeAndStress(solver);
    EXPECT_NEAR(before / solver.L10OuterRotationRow1, 8.0, 1e-4);
}

TEST(Life, OfARowByHandForOneUnevenLoad) {
    SolverState solver = solved('B');
    loadEveryBall(solver, 0.0);
    solver.BallLoad(1, 4) = 100.0;
    LifeAndStress(solver);
    // One ball of Z: the means are 100 / Z^(1/3) and 100 / Z^0.3; the race that turns takes the cube mean.
    const double cube = 100.0 / std::cbrt(static_cast<double>(solver.BallCount));
    const double tenth = 100.0 / std::pow(static_cast<double>(solver.BallCount), 0.3);
    const auto life = [](double inner, double outer) {
        return 1e6 * std::pow(std::pow(inner, -10.0 / 3.0) + std::pow(outer, -10.0 / 3.0), -0.9);
    };
    const double Qci = solver.InnerDynamicCapacity;
    const double Qco = solver.OuterDynamicCapacity;
    EXPECT_NEAR(solver.L10InnerRotationRow1 / life(Qci / cube, Qco / tenth), 1.0, 1e-5);
    EXPECT_NEAR(solver.L10OuterRotationRow1 / life(Qci / tenth, Qco / cube), 1.0, 1e-5);
}

TEST(Life, OfASecondRowWithoutLoadStaysAsItWas) {
    SolverState solver = solved('B');
    const double inner = solver.L10InnerRotationRow2;
    const double outer = solver.L10OuterRotationRow2;
    ASSERT_GT(inner, 0.0);
    loadEveryBall(solver, 0.0);
    solver.BallLoad(1, 1) = 100.0;
    LifeAndStress(solver);
    EXPECT_EQ(solver.RmcRow2, 0.0);
    EXPECT_EQ(solver.L10InnerRotationRow2, inner);
    EXPECT_EQ(solver.L10OuterRotationRow2, outer);
}

TEST(Life, OfTheSecondRowIsNotTouchedByASingleRow) {
    ProgramState state;
    state.solver.L10InnerRotationRow2 = 123.0;
    state.solver.L10OuterRotationRow2 = 456.0;
    RecordingMessages messages;
    SolveRadialRow(state, argumentsOf(solverCases('C')[0]), messages);
    EXPECT_EQ(state.solver.L10InnerRotationRow2, 123.0);
    EXPECT_EQ(state.solver.L10OuterRotationRow2, 456.0);
}

TEST(SolveResult, TakesTheOuterRotationLifeOfTheFirstRowAndTheSmallerSafety) {
    ProgramState state;
    RecordingMessages messages;
    const SolveResult result = SolveRadialRow(state, argumentsOf(solverCases('C')[0]), messages);
    EXPECT_EQ(result.lifeRevolutions.stored(), state.solver.L10OuterRotationRow1.stored());
    EXPECT_NE(result.lifeRevolutions.stored(), state.solver.L10InnerRotationRow1.stored());
    EXPECT_EQ(result.safetyFactor.stored(),
              std::fmin(state.solver.SafetyInner.stored(), state.solver.SafetyOuter.stored()));
}

TEST(DynamicExponent, ChangesAboveABallOfOneInchWithNoFurtherFactor) {
    const auto exponentOf = [](float ball) {
        ProgramState state;
        RecordingMessages messages;
        SolveRadialRow(
            state, argumentsOf({'C', 20.0F, ball, 30, ball * 0.53F, 0.0F, 0.0F, 0.0F, 900.0F, 0.0F, 0.0F}),
            messages);
        return state.solver;
    };
    const SolverState atOne = exponentOf(1.0F);
    const SolverState above = exponentOf(1.000001F);
    const SolverState two = exponentOf(2.0F);
    EXPECT_EQ(atOne.DynamicExponent.stored(), 1.8F);
    EXPECT_EQ(above.DynamicExponent.stored(), 1.4F);
    // At one inch both powers are 1, so the capacity has no step there; at two the smaller power counts.
    EXPECT_NEAR(above.InnerDynamicCapacity / atOne.InnerDynamicCapacity, 1.0, 1e-5);
    const double g = 0.1;
    const double ratio = std::pow(2.0, 0.3) * std::pow(2.0, 1.4) * std::pow(1.0 - g, 1.39) /
                         std::cbrt(1.0 + g) / (std::pow(1.0 - g / 2.0, 1.39) / std::cbrt(1.0 + g / 2.0));
    EXPECT_NEAR(two.InnerDynamicCapacity / atOne.InnerDynamicCapacity / ratio, 1.0, 1e-5);
}

TEST(LargestBallLoad, IsTheFirstOfEqualOnesInRowMajorOrder) {
    SolverState solver = solved('X');
    loadEveryBall(solver, 5.0);
    solver.BallLoad(1, 7) = 9.0;
    solver.BallLoad(1, 9) = 9.0;
    solver.BallLoad(2, 2) = 9.0;
    LifeAndStress(solver);
    EXPECT_EQ(solver.MaxBallRow, 1);
    EXPECT_EQ(solver.MaxBallNumber, 7);
    EXPECT_EQ(solver.MaxBallLoad, 9.0);
    EXPECT_EQ(solver.MaxInnerStress.stored(), solver.InnerStress(1, 7).stored());
}

TEST(LargestBallLoad, IsSearchedBeforeItIsRoundedToThirtyTwoBits) {
    SolverState solver = solved('X');
    loadEveryBall(solver, 5.0);
    const double greater = std::nextafter(9.0, 10.0);
    solver.BallLoad(1, 7) = 9.0;
    solver.BallLoad(2, 2) = greater;
    LifeAndStress(solver);
    EXPECT_EQ(solver.MaxBallRow, 2);
    EXPECT_EQ(solver.MaxBallNumber, 2);
    EXPECT_EQ(solver.MaxBallLoad, 9.0);
}

TEST(LargestBall, IsReportedInBothSystemsOfUnits) {
    const SolverState solver = solved('B');
    const int row = solver.MaxBallRow;
    const int ball = solver.MaxBallNumber;
    EXPECT_EQ(solver.InnerMajorAxis, 2.0 * solver.InnerSemiMajor(row, ball));
    EXPECT_EQ(solver.OuterMinorAxis, 2.0 * solver.OuterSemiMinor(row, ball));
    EXPECT_NEAR(solver.OuterMajorAxisMm / solver.OuterMajorAxis, 25.4, 1e-5);
    EXPECT_NEAR(solver.InnerMinorAxisMm / solver.InnerMinorAxis, 25.4, 1e-5);
    EXPECT_NEAR(solver.MaxBallLoadNewtons / solver.MaxBallLoad, 4.448, 1e-5);
    EXPECT_NEAR(solver.MaxInnerStressMpa / solver.MaxInnerStress, 0.006895, 1e-8);
    EXPECT_NEAR(solver.MeanInnerStress * 1.5 / solver.MaxInnerStress, 1.0, 1e-6);
    EXPECT_NEAR(solver.MeanOuterStressMpa * 1.5 / solver.MaxOuterStressMpa, 1.0, 1e-6);
    EXPECT_NEAR(solver.OuterStaticCapacityNewtons / solver.OuterStaticCapacity, 4.448, 1e-5);
}

TEST(UnloadedBall, HasNoStressAndKeepsTheEllipseOfTheLastSolve) {
    SolverState solver = solved('X');
    solver.BallLoad(1, 3) = 50.0;
    LifeAndStress(solver);
    const Single major = solver.InnerSemiMajor(1, 3);
    const Single minor = solver.OuterSemiMinor(1, 3);
    ASSERT_GT(major, 0.0);
    solver.BallLoad(1, 3) = 0.0;
    LifeAndStress(solver);
    EXPECT_EQ(solver.InnerStress(1, 3), 0.0);
    EXPECT_EQ(solver.OuterStress(1, 3), 0.0);
    EXPECT_EQ(solver.InnerSemiMajor(1, 3), major);
    EXPECT_EQ(solver.OuterSemiMinor(1, 3), minor);
}

TEST(NoLoadAtAll, IsADivisionByZero) {
    SolverState solver = solved('X');
    loadEveryBall(solver, 0.0);
    try {
        LifeAndStress(solver);
        FAIL() << "no load has no life";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), fault::kDivisionByZero);
    }
}

}  // namespace
}  // namespace norlaplan
