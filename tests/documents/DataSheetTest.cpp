#include <algorithm>
#include <functional>
#include <string>
#include <vector>

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

TEST(DataSheet, CutsTheInfoBoxAtTheMarginAndKeepsItsRecord) {
    Sheet sheet;
    const RecordingCanvas canvas = sheet.draw();
    const auto box = std::find_if(canvas.rectangles.begin(), canvas.rectangles.end(),
                                  [](const auto& drawn) { return drawn.box.left == 5.25; });
    ASSERT_NE(box, canvas.rectangles.end());
    EXPECT_EQ(box->box.right, 8.0);
    EXPECT_EQ(box->box.top, 4.96);
    EXPECT_NE(sheet.files.records.find("9.636"), std::string::npos);
}

TEST(DataSheet, SetsTheTextsOfItsCellsInTheirMiddle) {
    Sheet sheet;
    const RecordingCanvas canvas = sheet.draw();
    for (const auto& text : canvas.texts) {
        // Cells are centred texts with a box of their own; everything else begins at its stated top.
        EXPECT_EQ(text.look.middle, text.look.alignment == Alignment::Centre) << text.text;
    }
    for (const char* const cell : {"Radial", " 11,543 lbs.", "Part Number Detail", "7.4988", "Ø Housing"}) {
        const auto at = std::find_if(canvas.texts.begin(), canvas.texts.end(),
                                     [&](const auto& text) { return text.text == cell; });
        ASSERT_NE(at, canvas.texts.end()) << cell;
        EXPECT_TRUE(at->look.middle) << cell;
    }
}

TEST(DataSheet, LeavesTheNotesClearOfTheirFrames) {
    Sheet sheet;
    const RecordingCanvas canvas = sheet.draw();
    const struct {
        const char *first, *last;
        double size, top, bottom;
    } notes[] = {{" Capacities do not apply simultaneously, and are based on",
                  " Dynamic rating is based on 1,000,000 revolutions L10 life.", 9.0, 1.7, 1.08},
                 {" Speeds shown are for '0' preload ", " for more information. ", 7.0, 1.8, 1.5}};
    for (const auto& note : notes) {
        double first = 0.0, last = 0.0;
        for (const auto& text : canvas.texts) {
            if (text.text == note.first) first = text.box.top;
            if (text.text == note.last) last = text.box.top;
        }
        // Times: capitals from 0.229 em below the top of the line to 0.891, tails to 1.107.
        const double em = note.size / 72.0;
        EXPECT_GT(note.top - (first - 0.208 * em), 0.012) << note.first;
        EXPECT_GT(last - 1.107 * em - note.bottom, 0.012) << note.last;
    }
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

TEST(DataSheet, TellsInRedOfADrawingThatIsCutShort) {
    constexpr const char* kNote = "The drawing is not whole: its overlay draws too much.";
    const auto notesOf = [](const RecordingCanvas& canvas) {
        int notes = 0;
        for (const auto& text : canvas.texts) {
            if (text.text != kNote) continue;
            ++notes;
            EXPECT_EQ(text.look.colour, 255U);
        }
        return notes;
    };
    Sheet sheet;
    EXPECT_EQ(notesOf(sheet.draw()), 0);
    for (const char* const overlay : {"overlays/X.ovl", "overlays/RIBBONXC.sep"}) {
        Sheet cut;
        std::string plot = "PU0,0;";
        for (int i = 0; i < 6000; ++i)
            plot += "PD1,1;";
        cut.place.write(overlay, plot);
        EXPECT_EQ(notesOf(cut.draw()), 1) << overlay;
    }
}

TEST(DataSheet, OfAnOverlayThatIsTooLargeIsAnInvalidFormat) {
    Sheet sheet;
    sheet.place.write("overlays/X.ovl", std::string((4U << 20U) + 1, ' '));
    try {
        checkDataSheet(sheet.state.bearing, ProgramFolder(sheet.place.path()));
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), fault::kInvalidFormat);
        EXPECT_NE(std::string(error.what()).find("X.ovl"), std::string::npos);
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

TEST(DataSheet, BeginsAsItsBearingAndNoOtherDoes) {
    Sheet sheet;
    sheet.draw();
    const auto begins = [&] {
        const SheetFiles beginning = dataSheetBeginning(sheet.state);
        const bool rtf = sheet.files.rtf.starts_with(beginning.rtf);
        EXPECT_EQ(sheet.files.records.starts_with(beginning.records), rtf);
        return rtf;
    };
    EXPECT_TRUE(begins());
    const ProgramState own = sheet.state;
    const std::vector<std::function<void(ProgramState&)>> others = {
        [](ProgramState& state) { state.bearing.partNumber = "K19013XP0A"; },
        [](ProgramState& state) { state.bearing.partNumber = "K20013XP0"; },
        [](ProgramState& state) { state.bearing.separatorCode = "ZS"; },
        [](ProgramState& state) { state.bearing.mass = 1.5; },
        [](ProgramState& state) {
            state.unitSystem = "METRIC";
            ApplyUnitSystem("METRIC", state.units);
        }};
    for (const auto& change : others) {
        sheet.state = own;
        change(sheet.state);
        EXPECT_FALSE(begins());
        sheet.draw();
        EXPECT_TRUE(begins());
        sheet.state = own;
        EXPECT_FALSE(begins());
        sheet.draw();
    }
}

/// The longest text of the detail that begins with these words.
std::string detailOf(const RecordingCanvas& canvas, const std::string& words) {
    for (const auto& text : canvas.texts) {
        if (text.text.starts_with(words)) return text.text;
    }
    return "";
}

TEST(DataSheet, CutsATextOfATableThatWouldRunOutOfItsFrame) {
    Sheet sheet;
    for (const std::string& separator :
         {std::string("= Ribbon "), std::string("= W"), std::string("= i"), std::string("= \u00e4\u4e2d")}) {
        std::string text = "P";
        while (text.size() < 4000)
            text += separator;
        sheet.state.bearing.separatorText = text;
        const RecordingCanvas canvas = sheet.draw();
        const std::string shown = detailOf(canvas, " " + separator);
        EXPECT_LT(shown.size(), 130U) << separator;
        EXPECT_TRUE(shown.ends_with("\u2026")) << separator;
    }
    sheet.state.bearing.separatorText = "P= Formed Wire, Full Complement Type";
    EXPECT_EQ(detailOf(sheet.draw(), " = Formed"),
              " = Formed Wire, Full Complement Type, limited availability!")
        << "the longest of the sample catalogue stands whole";
}

TEST(DataSheet, DropsTheFirstCharacterOfASeparatorTextWhateverItsBytes) {
    Sheet sheet;
    sheet.state.bearing.limitedFlag = "N";
    sheet.state.bearing.separatorText = "\u00c4= K\u00e4fig";
    EXPECT_EQ(detailOf(sheet.draw(), " = K"), " = K\u00e4fig");
}

}  // namespace
}  // namespace norlaplan
