#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "capacity/LoadLife.h"
#include "catalogue/Decoding.h"
#include "catalogue/LoadGrid.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "state/LoadEntry.h"
#include "state/MenuConditions.h"
#include "state/Patience.h"
#include "state/SolverFields.h"
#include "support/ProcessorTime.h"

namespace norlaplan {
namespace {

using testing::GridBearing;
using testing::GridLoad;

// Watched by the sanitizers ten thousand passes take some thirty times as long.
#ifdef NORLAPLAN_SANITIZE
constexpr std::size_t kUsualCases = 400;
constexpr double kMostSeconds = 60.0;
#else
constexpr std::size_t kUsualCases = 2000;
constexpr double kMostSeconds = 2.0;
#endif

/// NORLAPLAN_GRID_CASES=1000000 for a full run.
std::size_t wantedCases() {
    const char* const wanted = std::getenv("NORLAPLAN_GRID_CASES");
    return wanted == nullptr ? kUsualCases : static_cast<std::size_t>(std::strtoull(wanted, nullptr, 10));
}

/// The grid goes in parts, so that they can be shared among processes.
constexpr std::size_t kParts = 8;
/// Coprime to the number of loads, so that the cases of one bearing and of the next lie all over the grid.
constexpr std::size_t kStride = 7919;
static_assert(testing::kGridLoads % kStride != 0);

/// What there is to say of the cases of a part.
struct Tally {
    std::map<std::string, int> ends;
    double slowest = 0.0;
    std::string slowestCase;

    void print() const {
        for (const auto& [end, count] : ends)
            std::cout << "    " << count << "  " << end << "\n";
        std::cout << "    slowest " << slowest << " s: " << slowestCase << "\n";
    }
};

struct AllFinite {
    void operator()(const char* name, double value) const { EXPECT_TRUE(std::isfinite(value)) << name; }
    void operator()(const char* name, const Single& value) const { (*this)(name, double{value}); }
    void operator()(const char*, const Int16&) const {}
    void operator()(const char* name, const std::string& text) const {
        const std::string lower = lowerCase(text);
        EXPECT_EQ(lower.find("nan"), std::string::npos) << name << " " << text;
        EXPECT_EQ(lower.find("inf"), std::string::npos) << name << " " << text;
    }
};

void expectFinite(const ProgramState& state) {
    constexpr AllFinite kFinite;
    visitSolver(state.solver, kFinite);
    for (int row = 1; row <= state.solver.RowCount; ++row) {
        for (int ball = 1; ball <= state.solver.BallCount; ++ball)
            visitBall(state.solver, row, ball, kFinite);
    }
    const LifeResult& life = state.life;
    for (const double value : {double{life.startingTorque}, double{life.l10Revolutions},
                               double{life.l10Hours}, double{life.staticSafetyFactor},
                               double{life.torqueDisplay}, double{life.loadPercent}, double{life.speedLimit}})
        EXPECT_TRUE(std::isfinite(value));
    EXPECT_GE(life.l10Revolutions, 0.0);
    EXPECT_GE(life.staticSafetyFactor, 0.0);
    for (const std::string& line : {lifeLine(state), hoursLine(state), safetyLine(state), torqueLine(state)})
        kFinite("line", line);
}

/// How far the forces of the balls are from the applied loads, at least and at most, as a part of the largest
/// load: a load that is next to nothing beside a preload is lost in the last digits of the sums.
struct Imbalance {
    double least, most;
};

/// From the balls' loads and contact angles; those of row 2 point the other way along the axis. Moments count
/// at half the pitch diameter; that of the balls is the solver's own sum.
Imbalance imbalance(const SolverState& solver) {
    const bool oneRow = solver.RowCount == 1;
    double radial = 0.0, axial = 0.0, all = 0.0;
    for (int row = 1; row <= solver.RowCount; ++row) {
        for (int ball = 1; ball <= solver.BallCount; ++ball) {
            const double Q = solver.BallLoad(row, ball);
            const double place = (ball - 1) * 2.0 * 3.14159265358979 / solver.BallCount;
            radial += Q * (oneRow ? 1.0 : solver.BallCosAngle(row, ball)) * std::cos(place);
            axial += oneRow ? 0.0 : Q * solver.BallSinAngle(row, ball) * (row == 1 ? 1.0 : -1.0);
            all += Q;
        }
    }
    const double arm = solver.PitchDiameter / 2.0;
    const double load = std::max(
        {std::fabs(solver.RadialLoad), std::fabs(solver.AxialLoad), std::fabs(solver.MomentLoad) / arm});
    const double away = std::max({std::fabs(radial - solver.RadialLoad), std::fabs(axial - solver.AxialLoad),
                                  std::fabs(solver.MomentSum - solver.MomentLoad) / arm});
    if (load == 0.0) return {0.0, 0.0};
    const double lost = 1e-12 * all;
    return {(away - lost) / load, (away + lost) / load};
}

void expectBalancedOrTold(const ProgramState& state) {
    const auto& warnings = state.life.warnings;
    const bool told = std::count(warnings.begin(), warnings.end(), kUnbalancedSentence) > 0;
    const Imbalance away = imbalance(state.solver);
    if (away.most < 0.001) {
        EXPECT_FALSE(told) << away.most;
    } else if (away.least > 0.001) {
        EXPECT_TRUE(told) << away.least;
    }
}

/// Enters the loads and solves, as the screens do; gives how it ended.
std::string endOf(ProgramState& state, testing::RecordingMessages& messages, const GridLoad& load) {
    if (const auto refused = loadableBearingRefusal(state)) return "refused: " + refused->title;
    const BearingSpec& bearing = state.bearing;
    prepareLoadEntry(state);
    const bool radial = isRadialContact(state);
    state.entries.radial = plainText(load.radial * bearing.staticRadial);
    state.entries.axial = radial ? "" : plainText(load.axial * bearing.staticThrust);
    state.entries.moment = radial ? "" : plainText(load.moment * bearing.staticMoment);
    if (takesSpeed(state)) state.entries.speed = plainText(load.speed);
    if (const auto refused = enterLoads(state)) return "refused: " + refused->title;
    if (const auto refused = lifeRefusal(state)) return "refused: " + refused->title;
    if (!computeLoadLife(state, messages)) {
        EXPECT_FALSE(messages.shown.empty() && messages.asked.empty()) << "no result and not a word";
        return "no result: " + (messages.shown.empty() ? messages.asked.back() : messages.shown.back()).title;
    }
    expectFinite(state);
    expectBalancedOrTold(state);
    return state.life.warnings.empty() ? "a result" : "a result with a warning";
}

std::string guarded(ProgramState& state, testing::RecordingMessages& messages, const GridLoad& load) {
    try {
        return endOf(state, messages, load);
    } catch (const RuntimeError& error) {
        EXPECT_GT(error.number(), 0);
        return "run-time error " + std::to_string(error.number());
    } catch (const NotConverging&) {
        return "ended as not converging";
    }
}

void solveOne(const testing::Decoding& decoded, const GridLoad& load, Tally& tally) {
    ProgramState state = decoded.state;
    testing::RecordingMessages messages;
    const std::string name = state.bearing.partNumber + " radial " + plainText(load.radial) + " axial " +
                             plainText(load.axial) + " moment " + plainText(load.moment) + " speed " +
                             plainText(load.speed);
    SCOPED_TRACE(name);
    const double begun = testing::processorSeconds();
    std::string end = guarded(state, messages, load);
    const double seconds = testing::processorSeconds() - begun;
    EXPECT_LT(seconds, kMostSeconds);
    if (!messages.asked.empty()) end += ", asked";
    ++tally.ends[end];
    if (seconds > tally.slowest) {
        tally.slowest = seconds;
        tally.slowestCase = name;
    }
}

class TheLoadGrid : public ::testing::TestWithParam<std::size_t> {};

/// Every bearing of the catalogue in every style with every fit letter, under loads from none to far beyond
/// capacity: each case ends in time with finite results that are in balance or told, or with a message.
TEST_P(TheLoadGrid, EndsInTimeWithResultsThatAreInBalanceOrWithAMessage) {
    const std::vector<GridBearing> bearings = testing::gridBearings();
    const std::size_t cases = wantedCases();
    const std::size_t step = std::max<std::size_t>(1, bearings.size() / std::max<std::size_t>(1, cases));
    const std::size_t taken = (bearings.size() + step - 1) / step;
    const std::size_t loads = (cases + taken - 1) / taken;
    Tally tally;
    for (std::size_t at = GetParam() * step; at < bearings.size(); at += kParts * step) {
        testing::Decoding decoded(testing::programFolder());
        ApplyUnitSystem("US", decoded.state.units);
        decoded.state.bearing.zSeparatorChoice = bearings[at].zChoice;
        decoded.state.knownBearingLoadInput = true;
        if (decoded.decode(bearings[at].number).end != DecodeEnd::Decoded) {
            // A pair has no number without a fit.
            ASSERT_EQ(decoded.messages.shown.back(), (Message{"Please supply internal fitup", "Missing Fit"}))
                << bearings[at].number;
            tally.ends["refused: no fit letter"] += static_cast<int>(loads);
            continue;
        }
        for (std::size_t load = 0; load < loads; ++load)
            solveOne(decoded, testing::gridLoad((at * loads + load) * kStride % testing::kGridLoads), tally);
    }
    tally.print();
}

INSTANTIATE_TEST_SUITE_P(Part, TheLoadGrid, ::testing::Range(std::size_t{0}, kParts));

}  // namespace
}  // namespace norlaplan
