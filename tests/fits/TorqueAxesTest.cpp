#include <cmath>

#include <gtest/gtest.h>

#include "fits/SampleBearings.h"
#include "fits/TorqueAxes.h"
#include "fits/TorqueCurve.h"
#include "support/FaultOf.h"

namespace norlaplan {
namespace {

using testing::faultOf;
using testing::SampleBearings;
using testing::sampleSizes;

UnitMode unitsOf(const std::string& system) {
    UnitMode units;
    ApplyUnitSystem(system, units);
    return units;
}

TorqueCurve endingAt(double torque) {
    TorqueCurve curve;
    curve.row(50).torque = torque;
    return curve;
}

TEST(TorqueAxesInInches, EndAtTheSingleFiveThousandthsInTenSteps) {
    const TorqueAxes axes = computeTorqueAxes(endingAt(12.0), unitsOf("US"));
    EXPECT_EQ(axes.xMax, static_cast<double>(0.005F));
    EXPECT_EQ(axes.xStep, 0.0005);
    EXPECT_EQ(axes.sx, 7.25 / static_cast<double>(0.005F));
}

TEST(TorqueAxesInMillimetres, EndAtThirteenHundredthsThoughTheLastPointLiesBefore) {
    const TorqueAxes axes = computeTorqueAxes(endingAt(12.0), unitsOf("METRIC"));
    EXPECT_EQ(axes.xMax, 0.13 / 25.4);
    EXPECT_EQ(axes.xStep, 0.01 / 25.4);
    EXPECT_EQ(axes.sx, 7.25 / (0.13 / 25.4));
}

TEST(TorqueAxesUpward, EndAtTheNextWholeMultipleOfItsPowerOfTen) {
    struct Row {
        double top;
        int yExp, yMant;
        double yMax, yStep;
    };
    // Fewer than four steps are halved.
    const Row rows[] = {{12.0, 1, 2, 20.0, 5.0},  {37.0, 1, 4, 40.0, 10.0},   {9.5, 0, 10, 10.0, 1.0},
                        {7.0, 0, 8, 8.0, 1.0},    {1.5, 0, 2, 2.0, 0.5},      {0.5, -1, 6, 0.6, 0.1},
                        {0.25, -1, 3, 0.3, 0.05}, {250.0, 2, 3, 300.0, 50.0}, {0.0625, -2, 7, 0.07, 0.01}};
    for (const Row& row : rows) {
        const TorqueAxes axes = computeTorqueAxes(endingAt(row.top), unitsOf("US"));
        EXPECT_EQ(axes.yExp, row.yExp) << row.top;
        EXPECT_EQ(axes.yMant, row.yMant) << row.top;
        EXPECT_NEAR(axes.yMax, row.yMax, 1e-12 * row.yMax) << row.top;
        EXPECT_NEAR(axes.yStep, row.yStep, 1e-12 * row.yStep) << row.top;
        EXPECT_EQ(axes.sy, 4.0 / axes.yMax) << row.top;
    }
}

TEST(TorqueAxesUpward, CountNewtonMetresInMetric) {
    // 17.701488 inch-pounds are 2 newton metres, less what 32 bits take off.
    const TorqueAxes axes = computeTorqueAxes(endingAt(17.7), unitsOf("METRIC"));
    EXPECT_EQ(axes.yExp, 0);
    EXPECT_EQ(axes.yMant, 2);
}

TEST(TorqueAxesUpward, LeaveRoomForEveryCurveOfTheCatalogue) {
    for (const std::string units : {"US", "METRIC"}) {
        SampleBearings run(units);
        for (const std::string& size : sampleSizes()) {
            for (const std::string style : {"X", "C", "F", "B"}) {
                ASSERT_TRUE(run.decoded(size + style + "P0E"));
                computeTorqueCurve(run.bearing(), run.state.torque, run.messages);
                const TorqueAxes axes = computeTorqueAxes(run.state.torque, run.state.units);
                const double top = run.state.torque.row(50).torque / run.state.units.momentFactor;
                EXPECT_GE(axes.yMax * (1.0 + 1e-12), top);
                EXPECT_LE(axes.yMax, top + 1.0001 * std::pow(10.0, axes.yExp));
            }
        }
    }
}

TEST(TorqueAxesOfACurveWithoutTorque, AreAFault) {
    EXPECT_EQ(faultOf([] { computeTorqueAxes(TorqueCurve{}, unitsOf("US")); }), fault::kInvalidCall);
}

}  // namespace
}  // namespace norlaplan
