#include <string>

#include <gtest/gtest.h>

#include "documents/DataSheet.h"
#include "documents/SheetRecords.h"
#include "documents/SheetWriter.h"
#include "numbers/RuntimeError.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::FixedClock;
using testing::RecordingCanvas;
using testing::TemporaryFolder;

/// A four-point bearing by hand, with overlays of one line each.
struct Sheet {
    Sheet() {
        place.write("overlays/X.ovl", "PU0,0;PD10,10;");
        place.write("overlays/RIBBONXC.sep", "PU0,0;PD10,10;");
        BearingSpec& bearing = state.bearing;
        bearing.partNumber = "K19013XP0";
        bearing.materialCode = "K";
        bearing.materialText = "K = Vacuum Degassed 52100 Steel";
        bearing.crossSectionText = "13 = .512 x .512 Cross Section";
        bearing.styleLetter = "X";
        bearing.styleText = "X= 4-Point Contact Ball Radial Bearing";
        bearing.separatorCode = "P";
        bearing.separatorText = "P= Snapover Brass Ribbon";
        bearing.separatorOverlay = "RIBBON";
        bearing.precisionCode = "0";
        bearing.precisionText = "0= Precision Class 1";
        bearing.limitedFlag = "Y";
        bearing.fitLetter = " ";
        bearing.fitRangeText = "Standard .0008-.0019 Clearance";
        bearing.bore = 7.5;
        bearing.outsideDiameter = 8.5;
        bearing.pitchDiameter = 8.0;
        bearing.height = 0.5;
        bearing.boreTolerance = -0.0012;
        bearing.widthTolerance = -0.005;
        bearing.innerRadialRunout = 0.0016;
        bearing.filletRadius = 0.0236;
        bearing.drawingScale = 3.91;
        bearing.ballsText = "81 Balls, Ø .250 Nominal";
        bearing.mass = 1.25;
        bearing.staticRadial = 11542.5;
        bearing.staticMoment = 46124.56;
        bearing.fitShaft1 = 7.5;
        bearing.fitShaft3 = 7.4988;
        bearing.limitSpeedGrease = 900.0;
        bearing.limitSpeedOil = 1200.0;
    }

    RecordingCanvas draw() {
        FixedClock clock;
        files = makeDataSheet(state, ProgramFolder(place.path()), clock);
        RecordingCanvas canvas;
        paintSheet(files.records, canvas);
        return canvas;
    }

    TemporaryFolder place;
    ProgramState state;
    SheetFiles files;
};

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

TEST(DataSheet, DrawsEachLimitFlatThenToAFifthByTheLoadLevelRule) {
    Sheet sheet;
    const RecordingCanvas canvas = sheet.draw();
    // The scale's end is 1200, the oil limit: 1.43 + 1.65 = 3.08, and a fifth of it 1.76.
    bool flat = false, slope = false, foot = false;
    for (const auto& line : canvas.lines) {
        if (line.pen.colour != 255U || line.pen.width != 19050.0) continue;
        flat = flat || (line.from.y > 3.07 && line.from.y < 3.09 && line.to.x == 4.45);
        slope = slope || (line.from.x == 4.79 && line.to.x == 7.0);
        foot = foot || (line.from.x == 7.0 && line.to.x == 7.85);
    }
    EXPECT_FALSE(flat) << "the next end of the scale above 1200 is 1500";
    EXPECT_TRUE(slope && foot);
    EXPECT_TRUE(canvas.hasText(" 1500") && canvas.hasText(" 300") && canvas.hasText(" 25%") &&
                canvas.hasText("1200"));
    EXPECT_TRUE(canvas.hasText("Oil Lubricated"));
    EXPECT_FALSE(canvas.hasText("Oil Mist Lubricated"));
}

TEST(DataSheet, ShowsGreaseAloneForLooseSeparatorsAndMistForTheFinestPrecision) {
    Sheet loose;
    loose.state.bearing.separatorCode = "ZT";
    EXPECT_FALSE(loose.draw().hasText("Oil Lubricated"));
    Sheet fine;
    fine.state.bearing.precisionCode = "6";
    EXPECT_TRUE(fine.draw().hasText("Oil Mist Lubricated"));
}

TEST(DataSheet, SaysWhyThereIsNoSpeedWithoutASeparator) {
    Sheet sheet;
    sheet.state.bearing.separatorCode = "F";
    const RecordingCanvas canvas = sheet.draw();
    EXPECT_TRUE(canvas.hasText("Speed Data"));
    EXPECT_TRUE(canvas.hasText("Varden Engineering."));
    EXPECT_FALSE(canvas.hasText("Speed in RPM"));
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

TEST(NiceAxisMaximum, IsTheSmallestStepThatIsNotBelow) {
    const double rows[][2] = {{0, 100},       {100, 100},     {100.5, 200},  {601, 800},
                              {1000, 1000},   {1001, 1500},   {7500, 7500},  {35001, 40000},
                              {40000, 40000}, {40001, 50000}, {90000, 50000}};
    for (const auto& row : rows)
        EXPECT_EQ(NiceAxisMaximum(row[0]), row[1]) << row[0];
}

}  // namespace
}  // namespace norlaplan
