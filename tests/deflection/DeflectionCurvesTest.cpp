#include <gtest/gtest.h>

#include "deflection/DeflectionCurves.h"

namespace norlaplan {
namespace {

TEST(AnAxialCurve, IsStillLinearAtALoadThatIsReliefItself) {
    DeflectionResult result;
    result.styleLetter = "B";
    result.input = {0.001, 1000.0, 1000.0, 1000.0};
    result.radialSpringRate = result.axialSpringRate = result.momentSpringRate = 1e6;
    result.radialReliefLoad = result.axialReliefLoad = result.momentReliefLoad = Single(100.0);
    result.radialConstant = result.momentConstant1 = 1e-6;
    result.momentConstant2 = 0.0;
    // The sixth row reaches the relief load, the one behind it marks it.
    for (int i = 0; i <= 50; ++i)
        result.axialPoints.push_back({i < 6 ? 20.0 * i : 20.0 * (i - 1), 0.6, 4e-5 * i, i == 6});
    computeCurves(result);
    EXPECT_EQ(result.axialCurve.at(5).deflection, 100.0 / 1e6);
    EXPECT_EQ(result.axialCurve.at(6).deflection, 100.0 / 1e6);
    EXPECT_NEAR(result.axialCurve.at(7).deflection, 100.0 / 1e6 + 4e-5, 1e-11) << "the offset is 32-bit";
}

}  // namespace
}  // namespace norlaplan
