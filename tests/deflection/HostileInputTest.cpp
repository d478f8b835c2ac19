#include <cmath>
#include <optional>
#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "support/DeflectionCases.h"

namespace norlaplan {
namespace {

using testing::bearingOf;
using testing::RecordingMessages;
using testing::usualInput;

/// A clock on which ten seconds pass in 64,000 passes of an iteration: more than any that comes to an end.
Patience::Seconds fastClock() {
    static double now = 0.0;
    return Patience::Seconds(now += 0.01);
}

enum class End { Answer, NotConverging };
/// A result, a fault's number, or the guard.
using Outcome = std::variant<End, int>;

/// Every number of a result is one.
void expectFinite(const DeflectionResult& result) {
    for (const auto* curve : {&result.radialCurve, &result.axialCurve, &result.momentCurve}) {
        for (const CurvePoint& point : *curve) {
            EXPECT_TRUE(std::isfinite(point.load));
            EXPECT_TRUE(std::isfinite(point.deflection));
        }
    }
    for (const auto& value : {result.radialSpringRate, result.axialSpringRate, result.momentSpringRate,
                              result.radialConstant, result.momentConstant1, result.momentConstant2}) {
        EXPECT_TRUE(std::isfinite(value.value_or(0.0)));
    }
    EXPECT_LE(result.axialPoints.size(), 55U);
}

Outcome outcomeOf(const BearingSpec& bearing, const DeflectionInput& input) {
    RecordingMessages messages;
    try {
        const DeflectionResult result = computeDeflection(bearing, input, Patience(messages, &fastClock));
        expectFinite(result);
        EXPECT_TRUE(messages.asked.empty());
        return End::Answer;
    } catch (const RuntimeError& error) {
        return error.number();
    } catch (const NotConverging&) {
        return End::NotConverging;
    }
}

TEST(ADeflectionCalculation, EndsForEveryPreloadAndMaximum) {
    for (const std::string number : {"K19013XP0", "K19013CP0", "K19013BP0T", "K04008FP0T", "K50020XP0"}) {
        const BearingSpec bearing = bearingOf(number);
        for (const double preload :
             {-1e300, -1.0, -0.001, 1e-300, 1e-9, 1e-6, 5e-6, 1e-5, 2e-5, 0.02, 0.5, 10.0, 1e10, 1e300}) {
            SCOPED_TRACE(number + " preload " + std::to_string(preload));
            outcomeOf(bearing, usualInput(bearing, preload));
        }
        for (const double preload : {0.0, 0.0005}) {
            for (const double maximum : {0.0, 1e-300, 1e-9, 0.01, 1.0, 10.0, 100.0, 250.0, -0.05, -0.1, -1.0,
                                         -100.0, 1e5, 1e7, 1e16, 1e300, -1e300}) {
                SCOPED_TRACE(number + " maximum " + std::to_string(maximum));
                outcomeOf(bearing, {preload, maximum, maximum, maximum});
            }
        }
    }
}

TEST(APreloadBelowZero, IsAnInvalidCallForASingleBearingAndComesToNoResultForAPair) {
    for (const double preload : {-0.001, -1.0}) {
        for (const auto& [number, outcome] : {std::pair<const char*, Outcome>{"K19013XP0", 5},
                                              {"K19013CP0", 5},
                                              {"K19013BP0T", End::NotConverging},
                                              {"K19013FP0T", End::NotConverging}}) {
            const BearingSpec bearing = bearingOf(number);
            EXPECT_EQ(outcomeOf(bearing, usualInput(bearing, preload)), outcome) << number;
        }
    }
}

TEST(ATinyPreload, LeadsAFourPointBearingToTheRootOfANegativeNumber) {
    const BearingSpec bearing = bearingOf("K19013XP0");
    for (const double preload : {1e-6, 5e-6, 1e-5, 2e-5})
        EXPECT_EQ(outcomeOf(bearing, usualInput(bearing, preload)), Outcome(5)) << preload;
}

TEST(ATinyPreload, CanKeepAPairsSearchWanderingUntilTheUserIsAsked) {
    const BearingSpec bearing = bearingOf("K19013BP0T");
    RecordingMessages messages;
    EXPECT_THROW(computeDeflection(bearing, usualInput(bearing, 1e-6), Patience(messages, &fastClock)),
                 NotConverging);
    ASSERT_EQ(messages.asked.size(), 1U);
    EXPECT_EQ(messages.asked[0].prompt, "Do you want to keep trying?");
}

TEST(AMaximumOfZero, ComesToNoResultWhereThereIsAnAxialTable) {
    const BearingSpec diagonal = bearingOf("K50020BP0T");
    EXPECT_EQ(outcomeOf(diagonal, {0.0005, 100.0, 0.0, 100.0}), Outcome(End::NotConverging));
    const BearingSpec radial = bearingOf("K19013CP0");
    EXPECT_EQ(outcomeOf(radial, {0.0005, 0.0, 0.0, 0.0}), Outcome(End::Answer));
}

TEST(AMaximumBelowZero, LeavesTheAxialTableWithoutRowsWhichIsASubscriptOutOfRange) {
    const BearingSpec bearing = bearingOf("K19013XP0");
    EXPECT_EQ(outcomeOf(bearing, {0.0005, 100.0, -100.0, 100.0}), Outcome(9));
    // With no preload every load is beyond relief; one below -1 meets a rate that there isn't.
    EXPECT_EQ(outcomeOf(bearing, {0.0, -100.0, 1000.0, 100.0}), Outcome(11));
}

TEST(AnAxialTableOfATinyMaximum, EndsAt55Rows) {
    const BearingSpec bearing = bearingOf("K50020BP0T");
    RecordingMessages messages;
    const DeflectionResult result =
        computeDeflection(bearing, {0.0, 100.0, 0.01, 100.0}, Patience(messages, &fastClock));
    EXPECT_EQ(result.axialPoints.size(), 55U);
}

}  // namespace
}  // namespace norlaplan
