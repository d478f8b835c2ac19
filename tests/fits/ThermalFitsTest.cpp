#include <gtest/gtest.h>

#include "fits/FitMaterials.h"
#include "fits/SampleBearings.h"
#include "fits/ThermalFits.h"
#include "support/FaultOf.h"
#include "support/PlainFits.h"

namespace norlaplan {
namespace {

using testing::faultOf;
using testing::fitLettersOf;
using testing::PlainFits;
using testing::plainFits;
using testing::SampleBearings;
using testing::sampleSizes;

class ThermalFitting : public ::testing::Test {
  protected:
    explicit ThermalFitting(const std::string& units = "US") : run(units) {}

    void decode(const std::string& number) {
        ASSERT_TRUE(run.decoded(number)) << number;
        prepareThermalFits(run.state);
    }
    void enter(const std::string& high, const std::string& low, const std::string& shaft,
               const std::string& housing) {
        fits.highTempText = high;
        fits.lowTempText = low;
        fits.shaftExpansionText = shaft;
        fits.housingExpansionText = housing;
    }
    void calculate() { ASSERT_FALSE(computeThermalFits(run.state)); }

    SampleBearings run;
    ThermalFits& fits = run.state.thermalFits;
    const BearingSpec& bearing = run.state.bearing;
};

class MetricThermalFitting : public ThermalFitting {
  protected:
    MetricThermalFitting() : ThermalFitting("METRIC") {}
};

TEST_F(ThermalFitting, EqualsThePlainCalculationToTheLastBitForEveryBearingOfTheCatalogue) {
    struct Row {
        const char *high, *low, *shaft, *housing;
    };
    const Row rows[] = {{"68", "68", "7e-6", "7e-6"},           {"250", "-65", "1.3E-05", "5.30E-06"},
                        {"250", "-65", "5.30E-06", "1.3E-05"},  {"212", "32", "7E-06", "7E-06"},
                        {"400", "300", "1.31E-05", "1.31E-05"}, {"-100", "-300", "0", "5.6e-6"}};
    for (const std::string& size : sampleSizes()) {
        for (const std::string style : {"X", "C", "B", "F", "A", "U", "T"}) {
            const bool plainStyle = std::string("AUT").find(style) != std::string::npos;
            for (const std::string& letter :
                 plainStyle ? std::vector<std::string>{""} : fitLettersOf(style)) {
                if (letter == "Z") continue;
                const std::string number =
                    (letter.empty() ? "N" : "K") + size.substr(1) + style + "P0" + letter;
                decode(number);
                for (const Row& row : rows) {
                    enter(row.high, row.low, row.shaft, row.housing);
                    calculate();
                    const PlainFits plain = plainFits(bearing, std::stof(row.high), std::stof(row.low),
                                                      std::stof(row.shaft), std::stof(row.housing));
                    ASSERT_EQ(fits.shaftSize.stored(), plain.shaftSize) << number << row.high;
                    ASSERT_EQ(fits.housingSize.stored(), plain.housingSize) << number << row.high;
                    EXPECT_EQ(fits.comment.find("maximum interference") != std::string::npos,
                              plain.clearance > 0.0);
                    EXPECT_EQ(fits.partNumber, number);
                }
            }
        }
    }
}

TEST_F(ThermalFitting, KeepsEntriesAndResultsOfTheSameBearing) {
    decode("K19013XP0E");
    enter("250", "-65", "1.3e-5", "7e-6");
    calculate();
    const std::string shaftLine = fits.shaftLine;
    EXPECT_FALSE(refreshThermalFits(run.state));
    EXPECT_EQ(fits.shaftLine, shaftLine);
    EXPECT_EQ(fits.highTempText, "250");
}

TEST_F(ThermalFitting, OfAnotherBearingKeepsTheEntriesOnly) {
    decode("K19013XP0E");
    enter("250", "-65", "1.3e-5", "7e-6");
    calculate();
    ASSERT_TRUE(run.decoded("K10013XP0E"));
    EXPECT_FALSE(refreshThermalFits(run.state));
    EXPECT_EQ(fits.highTempText + fits.lowTempText + fits.shaftExpansionText + fits.housingExpansionText,
              "250-651.3e-57e-6");
    EXPECT_EQ(fits.fitTempUnit + fits.expansionUnit, "°F.in/in/°F.");
    EXPECT_EQ(fits.shaftLine + fits.housingLine + fits.comment + fits.partNumber, "");
    EXPECT_EQ(fits.shaftSize.stored(), 0.0F);
}

TEST_F(ThermalFitting, InOtherUnitsBeginsAnew) {
    decode("K19013XP0E");
    enter("250", "-65", "1.3e-5", "7e-6");
    calculate();
    ApplyUnitSystem("METRIC", run.state.units);
    EXPECT_TRUE(refreshThermalFits(run.state));
    EXPECT_EQ(fits.highTempText, "20");
    EXPECT_EQ(fits.lowTempText, "20");
    EXPECT_EQ(fits.shaftExpansionText, "1.26E-05");
    EXPECT_EQ(fits.fitTempUnit, "°C.");
    EXPECT_EQ(fits.shaftLine + fits.partNumber, "");
    EXPECT_FALSE(refreshThermalFits(run.state));
}

TEST_F(ThermalFitting, AtRoomTemperatureIsTheLargestBoreWithTheClearance) {
    decode("K19013XP0E");
    calculate();
    const double B = bearing.bore + bearing.boreTolerance;
    EXPECT_EQ(fits.shaftSize.stored(), static_cast<float>(B + bearing.fitLow));
    // The shaft has used the clearance up, so none is left for the housing.
    const double left = bearing.fitLow + (B - fits.shaftSize);
    EXPECT_NEAR(fits.housingSize, bearing.outsideDiameter - left, 1e-6);
    EXPECT_NEAR(left, 0.0, 1e-6);
}

TEST_F(ThermalFitting, OfAShaftLikeTheRingsAddsTheClearanceAtTheLowerEnd) {
    decode("K19013XP0E");
    enter("200", "-60", "7.00E-06", "7.00E-06");
    calculate();
    const double low = 1.0 + (-60.0 - 68.0) * 7e-6;
    EXPECT_NEAR(fits.shaftSize, bearing.bore + bearing.boreTolerance + bearing.fitLow / low, 1e-6);
}

TEST_F(ThermalFitting, KeepsEveryPartFreeOfInterferenceBeyondTheClearanceAtBothEnds) {
    for (const std::string number : {"K19013XP0", "K19013XP0E", "K19013XP0R", "S19013CP0", "K19013BP0R"}) {
        decode(number);
        for (const std::string shaft : {"5.3e-6", "7e-6", "1.3e-5"}) {
            for (const std::string housing : {"5.3e-6", "7e-6", "1.3e-5"}) {
                enter("250", "-65", shaft, housing);
                calculate();
                const FitGoal goal = *fitGoal(bearing);
                for (const double T : {250.0 - 68.0, -65.0 - 68.0}) {
                    const double ring = 1.0 + T * bearing.bearingExpansion;
                    const double into = fits.shaftSize * (1.0 + T * fits.shaftExpansion) - goal.bore * ring;
                    EXPECT_LE(into, goal.clearance + 2e-6) << number << shaft << housing << T;
                }
            }
        }
    }
}

TEST_F(ThermalFitting, TakesThePreloadedSizesAndNoClearanceForAPreloadLetter) {
    decode("K19013XP0R");
    calculate();
    EXPECT_EQ(fits.shaftSize.stored(), static_cast<float>(bearing.preloadBore + bearing.boreTolerance));
    EXPECT_EQ(fits.housingSize.stored(), bearing.preloadOd.stored());
    EXPECT_EQ(
        fits.comment,
        "Shaft and Housing sizes set so that at temperature limits, there will be no interfernece with the "
        "bearing bore or outer diameter");
}

TEST_F(ThermalFitting, RefusesAnUnspecifiedFitAndChangesNothingElse) {
    decode("K19013XP0E");
    calculate();
    const std::string line = fits.shaftLine;
    decode("K19013XP0Z");
    enter("20", "70", "7e-6", "7e-6");
    const auto refusal = computeThermalFits(run.state);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(*refusal, (Message{"Fitup information is required for this option",
                                 "Cannot Calculate with 'Z' Fitup", Icon::Critical}));
    EXPECT_EQ(fits.shaftLine, line);
    EXPECT_EQ(fits.partNumber, "K19013XP0E");
    EXPECT_EQ(fits.highTemp, 68.0);
    EXPECT_EQ(fits.highTempText, "70");
}

TEST_F(ThermalFitting, LetsSwappedTemperaturesChangePlaces) {
    decode("K19013XP0");
    enter("-65", "250", "1.3e-5", "1.3e-5");
    calculate();
    EXPECT_EQ(fits.highTempText, "250");
    EXPECT_EQ(fits.lowTempText, "-65");
    EXPECT_EQ(fits.highTemp, 250.0);
    EXPECT_EQ(fits.lowTemp, -65.0);
    // 9 is less than 10, though not as a text.
    enter("9", "10", "0", "0");
    calculate();
    EXPECT_EQ(fits.highTempText, "10");
}

TEST_F(ThermalFitting, ReadsTheNumberAtTheStartOfAFieldAndNothingAsZero) {
    decode("K19013XP0");
    enter("abc", " 12.5 deg", "", "7e-6x");
    calculate();
    EXPECT_EQ(fits.highTemp, 12.5);
    EXPECT_EQ(fits.lowTemp, 0.0);
    EXPECT_EQ(fits.shaftExpansion, 0.0);
    EXPECT_EQ(fits.housingExpansion.stored(), 7e-6F);
}

TEST_F(ThermalFitting, OfAnExpansionThatShrinksASizeToNothingIsADivisionByZero) {
    decode("K19013XP0");
    calculate();
    const double held = fits.shaftSize;
    // One degree below room temperature: 1 + (67 - 68) x 1 = 0.
    enter("67", "60", "1", "0");
    EXPECT_EQ(faultOf([&] { computeThermalFits(run.state); }), fault::kDivisionByZero);
    enter("67", "69", "0", "-0.5");
    calculate();
    enter("70", "60", "0", "-0.5");
    EXPECT_EQ(faultOf([&] { computeThermalFits(run.state); }), fault::kDivisionByZero);
    enter("1e39", "60", "0", "0");
    EXPECT_EQ(faultOf([&] { computeThermalFits(run.state); }), fault::kOverflow);
    enter("1e999", "60", "0", "0");
    EXPECT_EQ(faultOf([&] { computeThermalFits(run.state); }), fault::kOverflow);
    EXPECT_NEAR(fits.shaftSize, held, 1e-4);
}

TEST_F(ThermalFitting, ShowsItsLinesWithTheSecondNumberOfTheShaftAlwaysZero) {
    decode("K19013XP0E");
    run.state.bearing.bore = 7.5;
    run.state.bearing.boreTolerance = -0.0009765625;
    run.state.bearing.fitLow = 0.0009765625;
    run.state.bearing.outsideDiameter = 8.5;
    run.state.bearing.odTolerance = -0.0005;
    calculate();
    EXPECT_EQ(fits.shaftLine, "Shaft size 7.5000000 + 0.0000, 0.0000");
    EXPECT_EQ(fits.housingLine, "Housing size 8.5000000 +0.0005 -0.0000");
    EXPECT_EQ(
        fits.comment,
        "Shaft and Housing sizes set so that at temperature limits, maximum interference will equal the "
        "minimum clearance in the bearing(s)");
}

TEST_F(ThermalFitting, BeginsAtRoomTemperatureWithTheFirstMaterial) {
    decode("K19013XP0");
    EXPECT_EQ(fits.highTempText, "68");
    EXPECT_EQ(fits.lowTempText, "68");
    EXPECT_EQ(fits.shaftExpansionText, "7.00E-06");
    EXPECT_EQ(fits.housingExpansionText, "7.00E-06");
    EXPECT_EQ(fits.fitTempUnit, "°F.");
    EXPECT_EQ(fits.expansionUnit, "in/in/°F.");
}

TEST_F(MetricThermalFitting, BeginsAtRoomTemperatureWithTheFirstMaterial) {
    decode("K19013XP0");
    EXPECT_EQ(fits.highTempText, "20");
    EXPECT_EQ(fits.lowTempText, "20");
    EXPECT_EQ(fits.shaftExpansionText, "1.26E-05");
    EXPECT_EQ(fits.fitTempUnit, "°C.");
    EXPECT_EQ(fits.expansionUnit, "m/m/°C.");
}

TEST_F(MetricThermalFitting, ReadsDegreesCelsiusAndShowsMillimetres) {
    decode("K19013XP0");
    enter("100", "-40", "1.26E-05", "2.34E-05");
    calculate();
    EXPECT_EQ(fits.highTemp, 212.0);
    EXPECT_EQ(fits.lowTemp, -40.0);
    EXPECT_EQ(fits.shaftExpansion.stored(), 7e-6F);
    EXPECT_EQ(fits.housingExpansion.stored(), 1.3e-5F);
    EXPECT_EQ(fits.shaftLine.substr(0, 14), "Shaft size 189");
    SampleBearings inches;
    ASSERT_TRUE(inches.decoded("K19013XP0"));
    inches.state.thermalFits.highTempText = "212";
    inches.state.thermalFits.lowTempText = "-40";
    inches.state.thermalFits.shaftExpansionText = "7e-6";
    inches.state.thermalFits.housingExpansionText = "1.3e-5";
    ASSERT_FALSE(computeThermalFits(inches.state));
    EXPECT_EQ(inches.state.thermalFits.shaftSize, fits.shaftSize);
    EXPECT_EQ(inches.state.thermalFits.housingSize, fits.housingSize);
}

TEST_F(MetricThermalFitting, ConvertsTheToleranceOfTheHousing) {
    decode("K19013XP0");
    run.state.bearing.odTolerance = -0.0005;
    calculate();
    EXPECT_NE(fits.housingLine.find(" +0.0127 -0.0000"), std::string::npos) << fits.housingLine;
}

TEST(FitMaterialTexts, AreRoundedToThreeDigitsInBothUnits) {
    UnitMode us, metric;
    ApplyUnitSystem("US", us);
    ApplyUnitSystem("METRIC", metric);
    struct Row {
        const char *name, *us, *metric;
    };
    const Row rows[] = {{"52100 Steel", "7.00E-06", "1.26E-05"},
                        {"440C steel", "5.60E-06", "1.01E-05"},
                        {"6061 Aluminum", "1.30E-05", "2.34E-05"},
                        {"7075 Aluminum", "1.31E-05", "2.36E-05"},
                        {"Ti6Al4V", "5.30E-06", "9.54E-06"}};
    ASSERT_EQ(kFitMaterials.size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(kFitMaterials[i].name, std::string(rows[i].name));
        EXPECT_EQ(expansionText(kFitMaterials[i], us), rows[i].us);
        EXPECT_EQ(expansionText(kFitMaterials[i], metric), rows[i].metric);
        EXPECT_EQ(fitMaterial(rows[i].name), &kFitMaterials[i]);
    }
    EXPECT_EQ(fitMaterial("TI6AL4V"), &kFitMaterials[4]);
    EXPECT_EQ(fitMaterial("Other"), nullptr);
}

}  // namespace
}  // namespace norlaplan
