#include <algorithm>
#include <cmath>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "documents/SampleSheet.h"
#include "support/OnPaper.h"

/// Where each text of the data sheet stands, and how it looks: page inches from the lower left corner.
namespace norlaplan {
namespace {

using testing::Sheet;

constexpr Colour kNoFill = 0x1000000;
const Colour kGrey = rgb(221, 221, 221), kHeading = rgb(0, 204, 255), kPale = rgb(204, 255, 255);

struct Placed {
    std::string text;
    PageBox box;
    double size = 9.0;
    std::string colour = "BLACK";
    std::string font = "TNR";
    bool bold = false, vertical = false;
    Colour fill = kNoFill;
};

Placed placedOf(const SheetText& text, Colour fill) {
    return {text.text, text.box, text.size, text.colour, text.font, text.bold, text.vertical, fill};
}

std::vector<Placed> placedOn(Sheet& sheet) {
    sheet.draw();
    std::vector<Placed> found;
    for (const SheetRecord& record : readSheetRecords(sheet.files.records)) {
        if (const auto* const text = std::get_if<SheetText>(&record))
            found.push_back(placedOf(*text, kNoFill));
        if (const auto* const box = std::get_if<SheetTextBox>(&record))
            found.push_back(placedOf(box->text, box->fill));
    }
    return found;
}

bool same(const PageBox& a, const PageBox& b) {
    const auto near = [](double one, double other) { return std::fabs(one - other) < 1e-4; };
    return near(a.left, b.left) && near(a.top, b.top) && near(a.right, b.right) && near(a.bottom, b.bottom);
}

/// Fails unless each of the texts stands on the sheet, in its place and with its looks.
void expectPlaces(Sheet& sheet, const std::vector<Placed>& expected) {
    const std::vector<Placed> found = placedOn(sheet);
    for (const Placed& one : expected) {
        const auto at = std::find_if(found.begin(), found.end(), [&](const Placed& other) {
            return other.text == one.text && same(other.box, one.box);
        });
        if (at == found.end()) {
            ADD_FAILURE() << one.text << " does not stand at " << one.box.left << ", " << one.box.top;
            continue;
        }
        EXPECT_EQ(at->size, one.size) << one.text;
        EXPECT_EQ(at->colour, one.colour) << one.text;
        EXPECT_EQ(at->font, one.font) << one.text;
        EXPECT_EQ(at->bold, one.bold) << one.text;
        EXPECT_EQ(at->vertical, one.vertical) << one.text;
        EXPECT_EQ(at->fill, one.fill) << one.text;
    }
}

TEST(SheetPlaces, OfTitleInformationAndClosingLines) {
    Sheet sheet;
    sheet.state.bearing.availabilityText = "In stock";
    expectPlaces(sheet,
                 {{"K19013XP0", {3.455, 10.177, 6.0, 9.502}, 27.0, "BLUE"},
                  {"TECHNICAL DATA SHEET", {3.117, 10.303, 5.897, 9.953}, 14.0, "BLACK", "Courier New"},
                  {"", {5.25, 4.96, 9.636, 4.41}, 10.0, "BLACK", "TNR", false, false, kGrey},
                  {"Drawing Scale 3.91:1, All Dimensions in Inches", {5.35, 4.96, 8.4, 4.8}},
                  {"81 Balls, Ø .250 Nominal", {5.35, 4.8, 8.4, 4.64}},
                  {"Approximate Weight = 1.250 lbs.", {5.35, 4.64, 8.4, 4.48}},
                  {"In stock", {2.65, 0.875, 6.5, 0.705}, 9.0, "BLUE"},
                  {"Varden Reserves the Right to Change Specifications and Other Information Without Notice",
                   {1.8, 0.625, 7.5, 0.455}}});
}

TEST(SheetPlaces, OfTheWordMetric) {
    Sheet sheet;
    sheet.state.unitSystem = "METRIC";
    ApplyUnitSystem("METRIC", sheet.state.units);
    expectPlaces(sheet, {{"(METRIC)", {6.756, 9.486, 9.636, 8.886}, 24.0},
                         {"Drawing Scale 3.91:1, All Dimensions in mm.", {5.35, 4.96, 8.4, 4.8}},
                         {"Approximate Mass = .567 kg.", {5.35, 4.64, 8.4, 4.48}}});
}

TEST(SheetPlaces, OfTheRatings) {
    Sheet sheet;
    BearingSpec& bearing = sheet.state.bearing;
    bearing.staticRadial = 1000.0;
    bearing.dynamicRadial = 2000.0;
    bearing.staticThrust = 3000.0;
    bearing.dynamicThrust = 4000.0;
    bearing.staticMoment = 5000.0;
    bearing.dynamicMoment = 6000.0;
    const std::vector<std::vector<std::string>> rows = {{"", "Static", "Dynamic"},
                                                        {"Radial", " 1,000 lbs.", " 2,000 lbs."},
                                                        {"Axial", " 3,000 lbs.", " 4,000 lbs."},
                                                        {"Moment", " 5,000 in-lbs.", " 6,000 in-lbs."}};
    std::vector<Placed> expected = {
        {"Static and Dynamic Ratings", {0.4, 2.75, 3.4, 2.54}, 11.0, "BLACK", "TNR", false, false, kHeading}};
    const double columns[] = {0.4, 1.2, 2.3, 3.4};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const double top = 2.54 - 0.21 * static_cast<double>(i);
        for (std::size_t j = 0; j < 3; ++j) {
            expected.push_back({rows[i][j],
                                {columns[j], top, columns[j + 1], top - 0.21},
                                10.0,
                                "BLACK",
                                "TNR",
                                false,
                                false,
                                kGrey});
        }
    }
    expectPlaces(sheet, expected);
}

std::vector<Placed> cellsOf(const std::vector<std::vector<std::string>>& rows, double left, double right) {
    std::vector<Placed> expected;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const double top = 4.1 - 0.175 * static_cast<double>(i);
        const double width = (right - left) / static_cast<double>(rows[i].size());
        for (std::size_t j = 0; j < rows[i].size(); ++j) {
            const double x = left + width * static_cast<double>(j);
            expected.push_back(
                {rows[i][j], {x, top, x + width, top - 0.175}, 9.0, "BLACK", "TNR", false, false, kGrey});
        }
    }
    return expected;
}

/// A sheet whose eight fits can be told apart.
struct FittedSheet : Sheet {
    FittedSheet() {
        BearingSpec& bearing = state.bearing;
        bearing.fitShaft1 = 1.0;
        bearing.fitHousing1 = 2.0;
        bearing.fitShaft2 = 3.0;
        bearing.fitHousing2 = 4.0;
        bearing.fitShaft3 = 5.0;
        bearing.fitHousing3 = 6.0;
        bearing.fitShaft4 = 7.0;
        bearing.fitHousing4 = 8.0;
    }
};

TEST(SheetPlaces, OfTwoPairsOfFits) {
    FittedSheet sheet;
    expectPlaces(sheet, cellsOf({{"If Used Face-to-Face", "If Used Back-to-Back"},
                                 {"Ø Shaft", "Ø Housing", "Ø Shaft", "Ø Housing"},
                                 {"1.0000", "2.0000", "5.0000", "6.0000"},
                                 {"3.0000", "4.0000", "7.0000", "8.0000"}},
                                4.125, 7.9));
    expectPlaces(sheet, {{"Standard Recommended Fits",
                          {4.125, 4.31, 7.9, 4.1},
                          11.0,
                          "BLACK",
                          "TNR",
                          false,
                          false,
                          kHeading}});
}

TEST(SheetPlaces, OfOnePairOfFits) {
    FittedSheet sheet;
    BearingSpec& bearing = sheet.state.bearing;
    bearing.fitLetter = "Z";
    bearing.fitShaft3 = bearing.fitHousing3 = bearing.fitShaft4 = bearing.fitHousing4 = 0.0;
    expectPlaces(
        sheet, cellsOf({{"Ø Shaft", "Ø Housing"}, {"1.0000", "2.0000"}, {"3.0000", "4.0000"}}, 4.125, 5.875));
}

TEST(SheetPlaces, OfTheRunouts) {
    Sheet sheet;
    sheet.state.bearing.outerAxialRunout = 0.0021;
    sheet.state.bearing.innerAxialRunout = 0.0012;
    expectPlaces(sheet, {{"", {0.4, 5.61, 1.85, 5.06}, 9.0, "BLACK", "TNR", false, false, kGrey},
                         {"", {0.4, 4.96, 1.85, 4.41}, 9.0, "BLACK", "TNR", false, false, kGrey}});
    const std::vector<Placed> found = placedOn(sheet);
    const auto top = [&](const std::string& text) {
        const auto at =
            std::find_if(found.begin(), found.end(), [&](const auto& one) { return one.text == text; });
        EXPECT_NE(at, found.end()) << text;
        return at == found.end() ? 0.0 : at->box.top;
    };
    // Each names its race and gives its own figure, within its box.
    for (const auto& [race, figure, upper] : {std::tuple{"Outer Race", ".00210 Max. FIM", 5.61},
                                              std::tuple{"Inner Race", ".00120 Max. FIM", 4.96}}) {
        EXPECT_LT(top(race), upper) << race;
        EXPECT_LT(top(figure), top(race)) << race;
        EXPECT_GT(top(figure), upper - 0.55) << race;
    }
}

Placed drawn(const std::string& text, const PageBox& box, double size) {
    return {text, box, size, "BLACK", "Courier New"};
}

TEST(SheetPlaces, OfTheSizesOverTheDrawing) {
    Sheet sheet;
    BearingSpec& bearing = sheet.state.bearing;
    bearing.odTolerance = -0.0011;
    bearing.outerRadialRunout = 0.0018;
    bearing.referenceDiameter1 = 1.25;
    bearing.referenceDiameter2 = 2.25;
    expectPlaces(sheet, {drawn(".00160", {5.236, 6.102, 6.706, 5.752}, 14.0),
                         drawn(".00180", {3.236, 4.91, 4.706, 4.56}, 14.0),
                         drawn("Will Clear .024", {0.375, 10.2, 1.9, 10.05}, 10.0),
                         drawn("Max. Fillet Radius", {0.375, 10.05, 1.9, 9.9}, 10.0),
                         drawn("4 Exterior Corners", {0.375, 9.9, 1.9, 9.75}, 10.0),
                         drawn("0.5000", {1.056, 8.14, 2.316, 7.79}, 14.0),
                         drawn("0.5000", {6.558, 8.022, 7.818, 7.672}, 14.0),
                         drawn("Ø 8.5000", {3.898, 5.25, 5.578, 4.9}, 14.0),
                         drawn("Ø 7.5000", {5.372, 6.467, 7.052, 6.117}, 14.0),
                         drawn("Ø 8.0000 Ref. Pitch", {4.808, 9.088, 8.798, 8.738}, 14.0),
                         drawn("Ø 1.250 Ref.", {4.563, 5.741, 7.083, 5.391}, 14.0),
                         drawn("Ø 2.250 Ref.", {4.31, 5.487, 6.83, 5.137}, 14.0),
                         drawn("+.00000", {5.098, 5.261, 5.833, 5.086}, 7.0),
                         drawn("-.00110", {5.098, 5.172, 5.833, 4.997}, 7.0),
                         drawn("+.00000", {6.558, 6.479, 7.293, 6.304}, 7.0),
                         drawn("-.00120", {6.558, 6.389, 7.293, 6.214}, 7.0),
                         drawn("+.000", {1.824, 8.13, 2.349, 7.955}, 7.0),
                         drawn("-.005", {1.824, 8.041, 2.349, 7.866}, 7.0),
                         drawn("+.000", {7.328, 8.011, 7.853, 7.836}, 7.0),
                         drawn("-.005", {7.328, 7.922, 7.853, 7.747}, 7.0)});
}

TEST(SheetPlaces, OfTheSpeedChart) {
    Sheet sheet;
    sheet.state.bearing.limitSpeedGrease = 400.0;
    sheet.state.bearing.limitSpeedOil = 500.0;
    const std::vector<Placed> found = placedOn(sheet);
    const auto find = [&](const std::string& text) {
        const auto at =
            std::find_if(found.begin(), found.end(), [&](const auto& one) { return one.text == text; });
        EXPECT_NE(at, found.end()) << text;
        return at == found.end() ? Placed{} : *at;
    };
    const Placed heading = find("Maximum Limiting Speed vs. Load Level");
    EXPECT_TRUE(heading.bold);
    EXPECT_EQ(heading.colour, "BLUE");
    EXPECT_EQ(heading.size, 9.0);
    EXPECT_TRUE(find("Speed in RPM").vertical);
    const PageBox upright = find("Speed in RPM").box;
    EXPECT_LT(upright.right, 4.15) << "left of the scale";
    EXPECT_GT(upright.left, 3.4) << "and right of the ratings";
    EXPECT_NEAR((upright.top + upright.bottom) / 2.0, (3.08 + 1.43) / 2.0, 0.05)
        << "at half of the chart's height";
    EXPECT_LT(find("Percent of Dynamic Capacity").box.top, 1.28) << "below the percents";
    for (int percent = 25; percent <= 200; percent += 25) {
        const Placed label = find(" " + std::to_string(percent) + "%");
        const double half = 0.024 * static_cast<double>(label.text.size());
        EXPECT_NEAR(label.box.left, 4.45 + 0.017 * percent - half, 1e-4) << percent;
        EXPECT_NEAR(label.box.right, 4.45 + 0.017 * percent + half, 1e-4) << percent;
        EXPECT_EQ(label.size, 7.0);
    }
    // 500 is the scale's top: a hundred a fifth of 1.65 inches.
    for (int i = 1; i <= 5; ++i) {
        const double y = 1.43 + 0.33 * i;
        expectPlaces(sheet, {{" " + std::to_string(100 * i), {4.15, y + 0.05, 4.4, y - 0.05}, 7.0}});
    }
    EXPECT_EQ(find("Grease Lubricated").colour, "BLUE");
    EXPECT_EQ(find("Oil Lubricated").colour, "RED");
    EXPECT_EQ(find("400").colour, "BLUE");
    EXPECT_EQ(find("500").colour, "RED");
    expectPlaces(sheet, {{"", {4.6, 1.8, 5.9, 1.5}, 7.0, "BLACK", "TNR", false, false, kPale}});
}

TEST(SheetPlaces, AreOnThePaper) {
    Sheet sheet;
    EXPECT_EQ(testing::offPaper(sheet.draw(), papers::kLetter), "");
}

TEST(SheetPlaces, OfThePartNumberDetail) {
    Sheet sheet;
    expectPlaces(
        sheet, {{"Part Number Detail", {0.4, 4.31, 3.4, 4.1}, 11.0, "BLACK", "TNR", false, false, kHeading}});
    const std::vector<Placed> found = placedOn(sheet);
    // From top to bottom: codes in bold blue at 0.5, meanings in black behind them.
    double y = 4.1;
    for (const char* const code : {"K", "1", "9", "0", "1", "3", "X", "P", "0"}) {
        const auto at = std::find_if(found.begin(), found.end(), [&](const Placed& one) {
            return one.text == code && one.bold && one.box.left == 0.5 && one.box.top < y;
        });
        ASSERT_NE(at, found.end()) << code;
        EXPECT_EQ(at->colour, "BLUE") << code;
        EXPECT_EQ(at->size, 8.0) << code;
        y = at->box.top;
    }
    for (const auto& [meaning, size] :
         {std::pair{" = Vacuum Degassed 52100 Steel", 8.0}, std::pair{"= Bore Size in mm", 8.0},
          std::pair{" = Snapover Brass Ribbon, limited availability!", 8.0}}) {
        const auto at = std::find_if(found.begin(), found.end(),
                                     [&, words = meaning](const Placed& one) { return one.text == words; });
        ASSERT_NE(at, found.end()) << meaning;
        EXPECT_EQ(at->colour, "BLACK") << meaning;
        EXPECT_FALSE(at->bold) << meaning;
        EXPECT_EQ(at->size, size) << meaning;
        EXPECT_GT(at->box.left, 0.5) << meaning;
    }
    std::vector<double> brackets;
    for (const Placed& one : found) {
        if (one.text == "]") brackets.push_back(one.size);
    }
    EXPECT_EQ(brackets, (std::vector<double>{20.0, 12.0}));
}

}  // namespace
}  // namespace norlaplan
