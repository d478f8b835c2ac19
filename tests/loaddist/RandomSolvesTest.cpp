#include <cmath>
#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "loaddist/ContactConstants.h"
#include "loaddist/SameSolve.h"
#include "loaddist/radlodestar2.h"
#include "numbers/RuntimeError.h"
#include "support/ContactInputs.h"
#include "support/FullCount.h"
#include "support/RecordingPorts.h"
#include "support/SolverCases.h"

namespace norlaplan {
namespace {

using testing::argumentsOf;
using testing::expectTheSame;
using testing::fullCount;
using testing::inputsOf;

class Chance {
  public:
    explicit Chance(unsigned seed) : random_(seed) {}

    float between(double least, double most) {
        return static_cast<float>(std::uniform_real_distribution<double>(least, most)(random_));
    }
    /// Of every order of magnitude alike, and sometimes nothing.
    float load(double least, double most) {
        if (random_() % 4 == 0) return 0.0F;
        return static_cast<float>(
            std::exp(std::uniform_real_distribution<double>(std::log(least), std::log(most))(random_)));
    }
    template <typename Of>
    auto oneOf(const Of& choices) {
        return choices[random_() % std::size(choices)];
    }

  private:
    std::mt19937_64 random_;
};

plain::Bearing anyBearing(Chance& chance, char style) {
    const testing::Section section = chance.oneOf(testing::kSections);
    plain::Bearing bearing;
    bearing.style = style;
    bearing.ballDiameter = section.ball;
    bearing.grooveRadius =
        chance.oneOf(std::vector<float>{section.groove, section.ball * chance.between(0.505, 0.6)});
    bearing.pitchDiameter = chance.between(12.0, 80.0) * section.ball;
    const float most = 3.14F * bearing.pitchDiameter / section.ball;
    bearing.balls = static_cast<int>(most * chance.between(0.4, 0.95));
    bearing.spacing = section.width * chance.between(0.5, 3.0);
    bearing.clearance = chance.between(-0.0008, 0.0025);
    bearing.radialLoad = chance.load(0.5, 5000.0);
    if (style != 'C') {
        bearing.axialLoad = chance.load(0.5, 5000.0);
        bearing.moment = chance.load(0.5, 5000.0);
    }
    return bearing;
}

/// The solve of a bearing as it ended.
struct Ended {
    ProgramState state;
    testing::RecordingMessages messages;
    std::optional<SolveResult> result;
    bool faulted = false;

    explicit Ended(const plain::Bearing& bearing) {
        state.bearing.pitchDiameter = bearing.pitchDiameter;
        try {
            result = bearing.style == 'C' ? SolveRadialRow(state, argumentsOf(bearing), messages)
                                          : SolveCoupledRows(state, argumentsOf(bearing), messages);
        } catch (const RuntimeError&) {
            faulted = true;
        }
    }
};

bool isFinite(const plain::Result& result) {
    bool finite = std::isfinite(result.axial + result.radial + result.tilt) && std::isfinite(result.safety);
    // A row that carries next to nothing lives longer than 32 bits hold.
    for (const float* const lives : {result.innerRotation, result.outerRotation})
        finite = finite && std::isfinite(lives[1]) && std::isfinite(lives[2]);
    return finite;
}

/// Gives whether the solve came to a result.
bool expectTheSolveOf(const plain::Bearing& bearing) {
    // The program asks before its pass 10000: 9999 steps were then taken.
    constexpr int kStepsBeforeTheQuestion = 9999;
    const Ended program(bearing);
    const plain::Result expected = bearing.style == 'C'
                                       ? plain::solveRadialRow(bearing)
                                       : plain::solveCoupledRows(bearing, kStepsBeforeTheQuestion);
    const SolverState& solver = program.state.solver;
    if (program.faulted || expected.unstable) {
        EXPECT_TRUE(expected.unstable || !isFinite(expected)) << "no fault without a number that is none";
        EXPECT_FALSE(program.result);
        return false;
    }
    EXPECT_EQ(solver.AxialDisp, expected.axial);
    EXPECT_EQ(solver.RadialDisp, expected.radial);
    EXPECT_EQ(solver.Tilt, expected.tilt);
    EXPECT_EQ(solver.Iteration, expected.iterations);
    if (!program.result) {
        EXPECT_EQ(expected.iterations, kStepsBeforeTheQuestion + 1);
        EXPECT_EQ(program.messages.asked.size(), 1U);
        return false;
    }
    expectTheSame(solver, expected, bearing.style == 'C' ? 1 : 2);
    EXPECT_EQ(program.result->lifeRevolutions.stored(), expected.life);
    EXPECT_EQ(program.result->safetyFactor.stored(), expected.safety);
    return true;
}

class RandomSolves : public ::testing::TestWithParam<char> {};

TEST_P(RandomSolves, AgreeWithThePlainTranscriptionToTheLastBit) {
    Chance chance(static_cast<unsigned>(GetParam()));
    const int cases = fullCount(60, 4000);
    int solved = 0;
    for (int i = 0; i < cases && !HasFailure(); ++i) {
        plain::Bearing bearing = anyBearing(chance, GetParam());
        // A radial row needs a load.
        if (bearing.style == 'C' && bearing.radialLoad == 0.0F) bearing.radialLoad = 100.0F;
        SCOPED_TRACE("case " + std::to_string(i));
        solved += expectTheSolveOf(bearing) ? 1 : 0;
    }
    EXPECT_GT(solved, cases / 2);
}

INSTANTIATE_TEST_SUITE_P(Styles, RandomSolves, ::testing::Values('C', 'X', 'B', 'F'));

TEST(RandomGeometries, HaveTheContactConstantsOfThePlainTranscription) {
    Chance chance(20);
    for (int i = fullCount(100, 20000); i > 0; --i) {
        plain::Bearing bearing;
        bearing.ballDiameter = chance.between(0.05, 1.5);
        bearing.pitchDiameter = bearing.ballDiameter * chance.between(3.0, 150.0);
        bearing.grooveRadius = bearing.ballDiameter * chance.between(0.5005, 0.8);
        const Single angle = chance.oneOf(std::vector<double>{0.0, 0.5235988, 0.3, 0.9});
        plain::Result expected;
        plain::contactConstants(bearing, angle, expected);
        SolverState state = inputsOf(bearing, angle);
        ContactConstants(state);
        ASSERT_EQ(state.Kn.stored(), expected.Kn);
        ASSERT_EQ(state.CiCo, expected.CiCo);
        ASSERT_EQ(state.InnerK.stored(), expected.inner.K);
        ASSERT_EQ(state.InnerE.stored(), expected.inner.E);
        ASSERT_EQ(state.InnerKappaSq.stored(), expected.inner.kappaSq);
        ASSERT_EQ(state.OuterK.stored(), expected.outer.K);
        ASSERT_EQ(state.OuterE.stored(), expected.outer.E);
        ASSERT_EQ(state.OuterKappaSq.stored(), expected.outer.kappaSq);
    }
}

}  // namespace
}  // namespace norlaplan
