#include <string>

#include <gtest/gtest.h>

#include "documents/SampleSheet.h"
#include "numbers/RuntimeError.h"

namespace norlaplan {
namespace {

using testing::RecordingCanvas;
using testing::Sheet;

TEST(DataSheet, ShowsSizesRatingsAndCodesOfTheBearing) {
    Sheet sheet;
    const RecordingCanvas canvas = sheet.draw();
    for (const char* const text : {"K19013XP0",
                                   "TECHNICAL DATA SHEET",
                                   "Drawing Scale 3.91:1, All Dimensions in Inches",
                                   "81 Balls, Ø .250 Nominal",
                                   "Approximate Weight = 1.250 lbs.",
                                   " 11,543 lbs.",
                                   " 46,125 in-lbs.",
                                   "Standard Recommended Fits",
                                   "If Used Face-to-Face",
                                   "7.5000",
                                   "7.4988",
                                   " = Vacuum Degassed 52100 Steel",
                                   "= Bore Size in mm",
                                   " = .512 x .512 Cross Section",
                                   " = 4-Point Contact Ball Radial Bearing",
                                   " = Snapover Brass Ribbon, limited availability!",
                                   "Standard .0008-.0019 Clearance",
                                   ".00160",
                                   "Will Clear .024",
                                   "0.5000",
                                   "Ø 8.5000",
                                   "Ø 7.5000",
                                   "Ø 8.0000 Ref. Pitch",
                                   "+.00000",
                                   "-.00120",
                                   "+.000",
                                   "-.005",
                                   "   the 'P' separator.  The Static ratings are based on the"}) {
        EXPECT_TRUE(canvas.hasText(text)) << text;
    }
    EXPECT_FALSE(canvas.hasText("(METRIC)"));
}

TEST(DataSheet, ShowsMetricSizesInMetricUnits) {
    Sheet sheet;
    sheet.state.unitSystem = "METRIC";
    ApplyUnitSystem("METRIC", sheet.state.units);
    const RecordingCanvas canvas = sheet.draw();
    // 7.5 x 25.4 = 190.5; 11542.5 / 0.2248089 = 51343.6; 0.0236 x 25.4 = 0.599; 1.25 / 2.204622 = 0.567
    for (const char* const text :
         {"(METRIC)", "Ø 190.500", " 51,344 N.", "Will Clear 0.60", "+0.0000", "Approximate Mass = .567 kg.",
          "Drawing Scale 3.91:1, All Dimensions in mm."}) {
        EXPECT_TRUE(canvas.hasText(text)) << text;
    }
}

TEST(DataSheet, ShowsOnePairOfFitsWithTheirNoteWhenTheSecondColumnIsZero) {
    Sheet sheet;
    sheet.state.bearing.fitLetter = "Z";
    sheet.state.bearing.fitShaft3 = 0.0;
    const RecordingCanvas canvas = sheet.draw();
    EXPECT_TRUE(canvas.hasText("'Z - Special Fitup' - Recommended Fits"));
    EXPECT_TRUE(canvas.hasText("  Note: Precise fits cannot be determined"));
    EXPECT_TRUE(canvas.hasText(" = Special Internal Fitup"));
    EXPECT_FALSE(canvas.hasText("If Used Face-to-Face"));
    EXPECT_FALSE(canvas.hasText(" only.  Check actual fit value "));
}

TEST(DataSheet, WithoutItsOverlayIsFileNotFound) {
    Sheet sheet;
    sheet.state.bearing.separatorOverlay = "NONE";
    try {
        sheet.draw();
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), fault::kFileNotFound);
    }
}

TEST(DataSheet, EndsItsRecordsAndCarriesTheFooter) {
    Sheet sheet;
    sheet.state.options.footerText = " Mill & Co {1}";
    sheet.draw();
    EXPECT_TRUE(sheet.files.records.ends_with("ALLDONE\r\n"));
    EXPECT_NE(
        sheet.files.rtf.find("NORLAPLAN-MM version 1.00   Mill & Co \\{1\\}        Saved  3/14/26 9:26 AM"),
        std::string::npos);
}

}  // namespace
}  // namespace norlaplan
