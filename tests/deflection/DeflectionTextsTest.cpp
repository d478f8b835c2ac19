#include <string>

#include <gtest/gtest.h>

#include "deflection/DeflectionTexts.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

/// Numbers that show their pictures.
DeflectionResult resultOfStyle(const std::string& style) {
    DeflectionResult result;
    result.styleLetter = style;
    result.input.preload = 0.001;
    result.radialSpringRate = 5474512.3;
    result.radialReliefLoad = 4896.25;
    result.radialConstant = 3.70664e-06;
    if (style == "C") return result;
    result.axialSpringRate = 1000000.0;
    result.axialReliefLoad = 461.5;
    result.momentSpringRate = 22454000.0;
    result.momentReliefLoad = 842.0;
    result.momentConstant1 = 8.4112e-07;
    result.momentConstant2 = 2.1283e-07;
    result.axialPoints = {{0.0, 30.0 * PiValue / 180.0, 0.0, false},
                          {925.4999999999998, 36.04 * PiValue / 180.0, 0.0014443, false},
                          {0.4, 30.06 * PiValue / 180.0, 0.0000012, false}};
    if (style != "X") return result;
    result.initialTilt = 0.0;
    result.initialAngle = 30.0;
    return result;
}

TEST(DeflectionTexts, ShowAFourPointBearingWithFourPlacesAndATenth) {
    const DeflectionTexts texts = deflectionTexts(resultOfStyle("X"), initialUnits());
    EXPECT_EQ(texts.radialSpringRate, "5.4745E+06");
    EXPECT_EQ(texts.axialSpringRate, "1.E+06");
    EXPECT_EQ(texts.momentSpringRate, "2.2454E+07");
    EXPECT_EQ(texts.radialReliefLoad, "4,896.3");
    EXPECT_EQ(texts.axialReliefLoad, "461.5");
    EXPECT_EQ(texts.momentReliefLoad, "842.0");
    EXPECT_EQ(texts.radialConstant, "3.7066E-06");
    EXPECT_EQ(texts.momentConstant1, "8.4112E-07");
    EXPECT_EQ(texts.momentConstant2, "2.1283E-07");
    EXPECT_EQ(texts.initialTilt, "0.0000E+00");
    EXPECT_EQ(texts.initialAngle, "30");
}

TEST(DeflectionTexts, ShowAPairWithTwoPlacesAndWholeLoads) {
    const DeflectionTexts texts = deflectionTexts(resultOfStyle("B"), initialUnits());
    EXPECT_EQ(texts.radialSpringRate, "5.47E+06");
    EXPECT_EQ(texts.radialReliefLoad, "4,896");
    EXPECT_EQ(texts.axialReliefLoad, "462");
    EXPECT_EQ(texts.initialTilt, "");
    EXPECT_EQ(texts.initialAngle, "");
}

TEST(DeflectionTexts, ShowARadialContactBearingsRateInFull) {
    const DeflectionTexts texts = deflectionTexts(resultOfStyle("C"), initialUnits());
    EXPECT_EQ(texts.radialSpringRate, "5,474,512");
    EXPECT_EQ(texts.radialReliefLoad, "4,896.3");
    for (const std::string& none : {texts.axialSpringRate, texts.momentSpringRate, texts.axialReliefLoad,
                                    texts.momentReliefLoad, texts.momentConstant1, texts.momentConstant2})
        EXPECT_EQ(none, "");
    EXPECT_TRUE(texts.axialPoints.empty());
}

TEST(DeflectionTexts, LeaveRatesAndReliefLoadsOutWithNoPreload) {
    DeflectionResult result = resultOfStyle("X");
    result.input.preload = 0.0;
    result.radialReliefLoad = result.axialReliefLoad = result.momentReliefLoad = Single(-1.0);
    const DeflectionTexts texts = deflectionTexts(result, initialUnits());
    EXPECT_EQ(texts.radialReliefLoad, "");
    EXPECT_EQ(texts.radialSpringRate, "");
    EXPECT_EQ(texts.radialConstant, "3.7066E-06");
}

TEST(AxialPointTexts, PadTheLoadToEightAndRoundOnFifteenDigits) {
    const DeflectionTexts texts = deflectionTexts(resultOfStyle("X"), initialUnits());
    ASSERT_EQ(texts.axialPoints.size(), 3U);
    EXPECT_EQ(texts.axialPoints[0], "0       30.0     0.000000");
    EXPECT_EQ(texts.axialPoints[1], "926     36.0     0.001444");
    // The picture "#,###" has no place for a zero.
    EXPECT_EQ(texts.axialPoints[2], "        30.1     0.000001");
}

TEST(DeflectionTexts, StandInDisplayUnits) {
    UnitMode units = initialUnits();
    ApplyUnitSystem("METRIC", units);
    const DeflectionTexts texts = deflectionTexts(resultOfStyle("X"), units);
    // 5474512.3 lb/in x 4.448222 N/lb / 25.4 mm/in
    EXPECT_EQ(texts.radialSpringRate, "9.5873E+05");
    EXPECT_EQ(texts.radialReliefLoad, "21,779.6");  // 4896.25 / 0.2248089
    EXPECT_EQ(texts.momentReliefLoad, "95.1");      // 842 / 8.850744
    // The law holds in newtons and millimeters: 25.4 x 3.70664e-6 x 0.2248089^(2/3) = 3.48095e-5
    EXPECT_EQ(texts.radialConstant, "3.4809E-05");
    EXPECT_EQ(texts.axialPoints[0], "0       30.0     0.000000");
    EXPECT_EQ(texts.axialPoints[1], "4,117   36.0     0.036685");  // 925.5 / 0.2248089, 0.0014443 x 25.4
}

}  // namespace
}  // namespace norlaplan
