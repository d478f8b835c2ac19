#pragma once

#include <string>

#include <gtest/gtest.h>

#include "state/SolverState.h"
#include "support/PlainSolver.h"

namespace norlaplan::testing {

/// Every value that a solve leaves for the screens and reports.
inline void expectTheSame(const SolverState& solver, const plain::Result& expected, int rows) {
    ASSERT_EQ(solver.ElasticSum.stored(), expected.elasticSum);
    ASSERT_EQ(solver.Kn.stored(), expected.Kn);
    ASSERT_EQ(solver.RadialDisp, expected.radial);
    ASSERT_EQ(solver.Iteration, expected.iterations);
    for (int row = 1; row <= rows; ++row) {
        for (int ball = 1; ball <= solver.BallCount; ++ball) {
            SCOPED_TRACE("row " + std::to_string(row) + " ball " + std::to_string(ball));
            const auto i = static_cast<std::size_t>(ball);
            ASSERT_EQ(solver.BallLoad(row, ball), expected.load[row][i]);
            ASSERT_EQ(solver.InnerSemiMajor(row, ball).stored(), expected.innerMajor[row][i]);
            ASSERT_EQ(solver.InnerSemiMinor(row, ball).stored(), expected.innerMinor[row][i]);
            ASSERT_EQ(solver.InnerStress(row, ball).stored(), expected.innerStress[row][i]);
            ASSERT_EQ(solver.OuterSemiMajor(row, ball).stored(), expected.outerMajor[row][i]);
            ASSERT_EQ(solver.OuterSemiMinor(row, ball).stored(), expected.outerMinor[row][i]);
            ASSERT_EQ(solver.OuterStress(row, ball).stored(), expected.outerStress[row][i]);
        }
    }
    ASSERT_EQ(solver.InnerDynamicCapacity.stored(), expected.innerCapacity);
    ASSERT_EQ(solver.OuterDynamicCapacity.stored(), expected.outerCapacity);
    ASSERT_EQ(solver.RmcRow1.stored(), expected.cubeMean[1]);
    ASSERT_EQ(solver.RmcRow2.stored(), expected.cubeMean[2]);
    ASSERT_EQ(solver.MeanRow1.stored(), expected.tenthMean[1]);
    ASSERT_EQ(solver.MeanRow2.stored(), expected.tenthMean[2]);
    ASSERT_EQ(solver.L10InnerRotationRow1.stored(), expected.innerRotation[1]);
    ASSERT_EQ(solver.L10InnerRotationRow2.stored(), expected.innerRotation[2]);
    ASSERT_EQ(solver.L10OuterRotationRow1.stored(), expected.outerRotation[1]);
    ASSERT_EQ(solver.L10OuterRotationRow2.stored(), expected.outerRotation[2]);
    ASSERT_EQ(solver.InnerStaticCapacity.stored(), expected.innerStatic);
    ASSERT_EQ(solver.OuterStaticCapacity.stored(), expected.outerStatic);
    ASSERT_EQ(solver.MaxBallRow, expected.largestRow);
    ASSERT_EQ(solver.MaxBallNumber, expected.largestBall);
}

}  // namespace norlaplan::testing
