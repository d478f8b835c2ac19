#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "loaddist/Arccos.h"
#include "loaddist/AssembleRows.h"
#include "loaddist/EllipticIntegrals.h"
#include "loaddist/Matrix3.h"
#include "loaddist/radlodestar2.h"
#include "numbers/PiValue.h"
#include "numbers/RuntimeError.h"
#include "support/PlainSolver.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::RecordingMessages;

constexpr double kTrueHalfPi = 1.5707963267948966;

SolveArguments argumentsOf(const plain::Bearing& bearing) {
    return {std::string("K19013") + bearing.style + "P0",
            bearing.pitchDiameter,
            bearing.ballDiameter,
            bearing.balls,
            bearing.grooveRadius,
            bearing.spacing,
            bearing.clearance,
            bearing.angleDegrees,
            bearing.radialLoad,
            bearing.axialLoad,
            bearing.moment};
}

struct Section {
    float ball, groove, width;
};
constexpr Section kSections[] = {
    {0.15625F, 0.0828125F, 0.31496063F}, {0.25F, 0.1325F, 0.51181102F}, {0.375F, 0.19875F, 0.78740157F}};

/// Bearings of all sections under loads of many kinds.
std::vector<plain::Bearing> cases(char style) {
    std::vector<plain::Bearing> all;
    const float loads[][3] = {{500, 0, 0}, {1200, 300, 900}, {10, 800, 0}, {50, 100, 2000}, {300, 50, 10}};
    for (const Section& section : kSections) {
        for (const float pitch : {3.0F, 8.0F, 17.5F}) {
            for (const float clearance : {0.00025F, 0.0012F}) {
                for (const auto& load : loads) {
                    const int balls = static_cast<int>(0.8F * 3.14F * pitch / section.ball);
                    all.push_back({style, pitch, section.ball, balls, section.groove, section.width,
                                   clearance, 30.0F, load[0], load[1], load[2]});
                }
            }
        }
    }
    return all;
}

void expectSameLoads(const SolverState& solver, const plain::Result& expected, int rows) {
    for (int row = 1; row <= rows; ++row) {
        for (int ball = 1; ball <= solver.BallCount; ++ball) {
            ASSERT_EQ(solver.BallLoad(row, ball), expected.load[row][static_cast<std::size_t>(ball)])
                << "row " << row << " ball " << ball;
        }
    }
}

class CoupledStyles : public ::testing::TestWithParam<char> {};

TEST_P(CoupledStyles, AgreeWithThePlainTranscriptionToTheLastBit) {
    for (const plain::Bearing& bearing : cases(GetParam())) {
        // A face-to-face pair of this width carries no large moment; what can't converge is no case here.
        if (bearing.style == 'F' && bearing.moment > 1000.0F) continue;
        const plain::Result expected = plain::solveCoupledRows(bearing);
        if (expected.iterations > 9000) continue;
        ProgramState state;
        state.bearing.pitchDiameter = bearing.pitchDiameter;
        RecordingMessages messages;
        const auto result = SolveCoupledRows(state, argumentsOf(bearing), messages);
        ASSERT_TRUE(result.has_value());
        const SolverState& solver = state.solver;
        ASSERT_EQ(solver.Kn.stored(), expected.Kn);
        ASSERT_EQ(solver.InnerK.stored(), expected.inner.K);
        ASSERT_EQ(solver.OuterE.stored(), expected.outer.E);
        ASSERT_EQ(solver.AxialDisp, expected.axial);
        ASSERT_EQ(solver.RadialDisp, expected.radial);
        ASSERT_EQ(solver.Tilt, expected.tilt);
        ASSERT_EQ(solver.Iteration, expected.iterations);
        expectSameLoads(solver, expected, 2);
        ASSERT_EQ(solver.InnerDynamicCapacity.stored(), expected.innerCapacity);
        ASSERT_EQ(result->lifeRevolutions.stored(), expected.life);
        ASSERT_EQ(result->safetyFactor.stored(), expected.safety);
    }
}

TEST_P(CoupledStyles, CarryTheLoadsThatAreApplied) {
    for (const plain::Bearing& bearing : cases(GetParam())) {
        if (bearing.style == 'F' && bearing.moment > 1000.0F) continue;
        ProgramState state;
        RecordingMessages messages;
        if (!SolveCoupledRows(state, argumentsOf(bearing), messages)) continue;
        EXPECT_NEAR(state.solver.ForceAxialSum, static_cast<double>(bearing.axialLoad), 1e-6);
        EXPECT_NEAR(state.solver.ForceRadialSum, static_cast<double>(bearing.radialLoad), 1e-6);
        EXPECT_NEAR(state.solver.MomentSum, static_cast<double>(bearing.moment), 1e-5);
    }
}

INSTANTIATE_TEST_SUITE_P(Styles, CoupledStyles, ::testing::Values('X', 'B', 'F'));

TEST(RadialRow, AgreesWithThePlainTranscriptionToTheLastBit) {
    for (const plain::Bearing& bearing : cases('C')) {
        for (const float clearance : {bearing.clearance, -0.0003F, 0.02F}) {
            plain::Bearing row = bearing;
            row.clearance = clearance;
            const plain::Result expected = plain::solveRadialRow(row);
            ProgramState state;
            RecordingMessages messages;
            const SolveResult result = SolveRadialRow(state, argumentsOf(row), messages);
            ASSERT_EQ(state.solver.RadialDisp, expected.radial);
            ASSERT_EQ(state.solver.Iteration, expected.iterations);
            expectSameLoads(state.solver, expected, 1);
            ASSERT_EQ(result.lifeRevolutions.stored(), expected.life);
            ASSERT_EQ(result.safetyFactor.stored(), expected.safety);
        }
    }
}

TEST(RadialRow, LoadsAtMostHalfOfTheBallsAndNoneOfTheSecondRow) {
    ProgramState state;
    RecordingMessages messages;
    SolveRadialRow(state, argumentsOf(cases('C')[0]), messages);
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
        plain::Bearing bearing = cases(style)[0];
        bearing.axialLoad = -10.0F;
        EXPECT_EQ(faultOf(bearing), fault::kInvalidCall) << style;
    }
    plain::Bearing radial = cases('C')[0];
    radial.radialLoad = -10.0F;
    EXPECT_EQ(faultOf(radial), fault::kInvalidCall);
}

TEST(Loads, NoneAtAllOnARadialRowIsADivisionByZero) {
    plain::Bearing radial = cases('C')[0];
    radial.radialLoad = 0.0F;
    EXPECT_EQ(faultOf(radial), fault::kDivisionByZero);
}

TEST(CoupledRows, KeepTheSignOfANegativeRadialLoad) {
    ProgramState state;
    RecordingMessages messages;
    plain::Bearing bearing = cases('X')[0];
    bearing.radialLoad = -500.0F;
    bearing.axialLoad = 50.0F;
    ASSERT_TRUE(SolveCoupledRows(state, argumentsOf(bearing), messages).has_value());
    EXPECT_LT(state.solver.RadialDisp, 0.0);
    EXPECT_NEAR(state.solver.ForceRadialSum, -500.0, 1e-6);
}

TEST(Assembly, OfAContactLineWithoutAxialPartIsADivisionByZero) {
    ProgramState state;
    RecordingMessages messages;
    plain::Bearing bearing = cases('X')[2];
    bearing.clearance = 0.0F;
    ASSERT_TRUE(SolveCoupledRows(state, argumentsOf(bearing), messages).has_value());
    SolverState& solver = state.solver;
    // The second row's line begins at A0Sin along the axis; this displacement lays it flat.
    solver.AxialDisp = solver.A0Sin;
    solver.Tilt = 0.0;
    try {
        AssembleRows(solver, ballCosines(solver.BallCount, solver.BallSpacing));
        FAIL() << "a contact line without an axial part has no moment arm";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), fault::kDivisionByZero);
    }
}

TEST(Stiffness, IsTheDerivativeOfTheForcesByEachDisplacement) {
    for (const char style : {'X', 'B', 'F'}) {
        ProgramState state;
        RecordingMessages messages;
        plain::Bearing bearing = cases(style)[6];
        bearing.moment = 100.0F;
        ASSERT_TRUE(SolveCoupledRows(state, argumentsOf(bearing), messages).has_value());
        SolverState& solver = state.solver;
        const std::vector<double> cosines = ballCosines(solver.BallCount, solver.BallSpacing);
        const Assembly here = AssembleRows(solver, cosines);
        double SolverState::*const unknowns[] = {&SolverState::AxialDisp, &SolverState::RadialDisp,
                                                 &SolverState::Tilt};
        for (std::size_t j = 0; j < 3; ++j) {
            double sums[2][2] = {};
            const double step = 1e-8;
            const double before = solver.*unknowns[j];
            for (int side = 0; side < 2; ++side) {
                solver.*unknowns[j] = before + (side == 0 ? -step : step);
                AssembleRows(solver, cosines);
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

TEST(EllipticIntegrals, AreAQuarterTurnForACircleAndNearTheTextbookElsewhere) {
    const EllipticResult circle = EllipticIntegrals(0.0);
    EXPECT_NEAR(circle.K, kTrueHalfPi, 1e-9);
    EXPECT_NEAR(circle.E, kTrueHalfPi, 1e-9);
    for (const double m : {0.1, 0.5, 0.9, 0.99}) {
        const EllipticResult sum = EllipticIntegrals(m);
        EXPECT_NEAR(sum.K, std::comp_ellint_1(std::sqrt(m)), 1e-6) << m;
        EXPECT_NEAR(sum.E, std::comp_ellint_2(std::sqrt(m)), 1e-6) << m;
        EXPECT_EQ(sum.K, plain::ellipticIntegrals(m).K) << m;
        EXPECT_EQ(sum.E, plain::ellipticIntegrals(m).E) << m;
    }
}

TEST(Matrix3, InverseTimesTheMatrixIsTheUnitMatrix) {
    const Matrix3 a = {{{}, {0, 4, -2, 1}, {0, 3, 6, -4}, {0, 2, 1, 8}}};
    const Matrix3 product = MatrixProduct3(a, InvertMatrix3(a));
    for (std::size_t i = 1; i <= 3; ++i) {
        for (std::size_t j = 1; j <= 3; ++j)
            EXPECT_NEAR(product[i][j], i == j ? 1.0 : 0.0, 1e-15);
    }
    EXPECT_THROW(InvertMatrix3(Matrix3{}), RuntimeError);
}

TEST(ArccosRoutine, IsTheAngleOfACosine) {
    EXPECT_NEAR(Arccos(0.5), kTrueHalfPi * 2.0 / 3.0, 1e-15);
    EXPECT_EQ(Arccos(1.0), 0.0);
    EXPECT_THROW(Arccos(0.0), RuntimeError);
    EXPECT_THROW(Arccos(1.5), RuntimeError);
}

}  // namespace
}  // namespace norlaplan
