#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "deflection/ConstantsReport.h"
#include "deflection/DeflectionTexts.h"
#include "numbers/Text.h"
#include "support/DeflectionCases.h"

namespace norlaplan {
namespace {

using testing::bearingOf;
using testing::RecordingCanvas;

UnitMode unitsOf(const std::string& system) {
    UnitMode units = initialUnits();
    ApplyUnitSystem(system, units);
    return units;
}

struct PrintedConstants {
    BearingSpec bearing;
    DeflectionResult result;
    RecordingCanvas canvas;

    PrintedConstants(const std::string& number, double preload, const UnitMode& units = initialUnits())
        : bearing(bearingOf(number)),
          result(testing::deflectionOf(bearing, testing::usualInput(bearing, preload))) {
        testing::FixedClock clock;
        const Document document = deflectionConstantsDocument(result, bearing, units, clock);
        document.pages.draw(canvas);
    }
    /// The texts of the page's rows from that text on, in the order in which they were written.
    std::vector<std::string> from(const std::string& first, std::size_t count) const {
        std::vector<std::string> texts;
        bool found = false;
        for (const RecordingCanvas::Text& text : canvas.texts) {
            found = found || text.text == first;
            if (found && texts.size() < count) texts.push_back(text.text);
        }
        return texts;
    }
    double heightOf(const std::string& wanted) const {
        for (const RecordingCanvas::Text& text : canvas.texts) {
            if (text.text == wanted) return text.box.top;
        }
        return 0.0;
    }
};

TEST(ThePageOfDeflectionConstants, HasItsRowsInTheirOrder) {
    const PrintedConstants page("K19013BP0T", 0.001);
    double above = 11.0;
    for (const char* const row :
         {"DEFLECTION CONSTANTS FOR : ", "Radial Spring Rate =", "Radial Relief Load =",
          "Radial Deflection Constant =", "Moment Spring Rate =", "Moment Relief Load =",
          "Moment Deflection Constants =", "Axial Spring Rate =", "Axial Relief Load =",
          "Non-Linear Axial Deflection Data Points", "Load", "NORLAPLAN-MM version 1.00"}) {
        EXPECT_LT(page.heightOf(row), above) << row;
        EXPECT_GT(page.heightOf(row), 0.3) << row;
        above = page.heightOf(row);
    }
    EXPECT_TRUE(page.canvas.hasText("Printed: 3/14/26 9:26 AM"));
    for (const RecordingCanvas::Text& text : page.canvas.texts) {
        const bool head = text.text == "Load" || text.text == "Contact Angle" || text.text == "Deflection";
        EXPECT_TRUE(text.look.bold || !head) << text.text;
        EXPECT_GE(text.look.points, 7.0) << text.text;
    }
    EXPECT_TRUE(page.canvas.hasText("Contact Angle"));
}

TEST(ThePageOfDeflectionConstants, SaysValuesAndUnitsAsTheScreenDoes) {
    for (const std::string system : {"US", "METRIC"}) {
        const UnitMode units = unitsOf(system);
        const PrintedConstants page("K19013XP0", 0.001, units);
        const DeflectionTexts texts = deflectionTexts(page.result, units);
        const bool us = system == "US";
        EXPECT_EQ(page.from("Radial Spring Rate =", 6),
                  (std::vector<std::string>{
                      "Radial Spring Rate =", texts.radialSpringRate, us ? "pounds/inch" : "N/mm",
                      "Radial Relief Load =", texts.radialReliefLoad, us ? "pounds" : "N"}));
        EXPECT_EQ(page.from("Moment Spring Rate =", 6),
                  (std::vector<std::string>{
                      "Moment Spring Rate =", texts.momentSpringRate, us ? "inch-lbs/radian" : "N-m/radian",
                      "Moment Relief Load =", texts.momentReliefLoad, us ? "inch-lbs." : "N-m"}));
        EXPECT_TRUE(page.canvas.hasText(texts.momentConstant1 + " , " + texts.momentConstant2));
        EXPECT_TRUE(page.canvas.hasText("Ci + Co = " + plainText(page.bearing.ciPlusCo)));
    }
}

TEST(ThePageOfDeflectionConstants, KeepsValuesClearOfTheirNames) {
    PrintedConstants page("K19013BP0T", 0.001);
    const auto& texts = page.canvas.texts;
    int rows = 0;
    for (std::size_t i = 0; i + 1 < texts.size(); ++i) {
        if (!texts[i].text.ends_with(" =")) continue;
        ++rows;
        EXPECT_GT(texts[i + 1].box.left,
                  texts[i].box.left + page.canvas.textWidth(texts[i].text, texts[i].look))
            << texts[i].text;
    }
    EXPECT_EQ(rows, 8);
}

TEST(ThePageOfDeflectionConstants, TellsTheKindOfPreload) {
    EXPECT_TRUE(
        PrintedConstants("K19013FP0T", 0.001).canvas.hasText("Axial Preload level set at 0.001000 inches"));
    EXPECT_TRUE(PrintedConstants("K19013XP0", 0.001, unitsOf("METRIC"))
                    .canvas.hasText("Diametral Preload level set at 0.025400 mm"));
}

TEST(ThePageOfDeflectionConstants, HasNoAxialAndMomentRowsForARadialContactBearing) {
    const PrintedConstants page("K19013CP0", 0.001);
    for (const RecordingCanvas::Text& text : page.canvas.texts) {
        EXPECT_EQ(text.text.find("Axial"), std::string::npos);
        EXPECT_EQ(text.text.find("Moment"), std::string::npos);
    }
    EXPECT_TRUE(page.canvas.hasText("Radial Relief Load ="));
}

TEST(ThePageOfDeflectionConstants, SaysNoneForTheRatesOfABearingWithoutPreload) {
    const PrintedConstants page("K19013XP0", 0.0);
    EXPECT_EQ(page.from("Radial Spring Rate =", 4),
              (std::vector<std::string>{"Radial Spring Rate =", "none", "Radial Relief Load =", "none"}));
}

TEST(ThePageOfDeflectionConstants, HoldsAllRowsOfTheAxialLawWithinItsFrame) {
    for (const double preload : {0.0, 0.001}) {
        const PrintedConstants page("K19013BP0T", preload);
        const auto rows = axialPointTexts(page.result, initialUnits());
        EXPECT_GT(rows.size(), 50U);
        std::size_t found = 0;
        for (const RecordingCanvas::Text& text : page.canvas.texts) {
            found += std::any_of(rows.begin(), rows.end(),
                                 [&](const AxialPointTexts& row) { return row.deflection == text.text; });
            if (text.text.find("version") == std::string::npos && text.text.find("Printed") != 0) {
                EXPECT_GT(text.box.bottom, 0.8) << text.text;
            }
        }
        EXPECT_EQ(found, rows.size());
        EXPECT_EQ(rows.front().load, "0");
        EXPECT_EQ(rows.front().contactAngle, "30.0");
        EXPECT_EQ(rows.front().deflection, "0.000000");
    }
}

}  // namespace
}  // namespace norlaplan
