#include <algorithm>

#include <gtest/gtest.h>

#include "fits/PlayCurve.h"
#include "fits/PlayReport.h"
#include "fits/SampleBearings.h"
#include "fits/ThermalFits.h"
#include "fits/ThermalFitsReport.h"
#include "fits/TorqueCurve.h"
#include "fits/TorqueReport.h"

namespace norlaplan {
namespace {

using testing::RecordingCanvas;
using testing::SampleBearings;

int depthAtEnd(const std::string& rtf) {
    int depth = 0;
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        if (rtf[i] == '\\') {
            ++i;
        } else if (rtf[i] == '{' || rtf[i] == '}') {
            depth += rtf[i] == '{' ? 1 : -1;
        }
    }
    return depth;
}

class AFitsReport : public ::testing::Test {
  protected:
    void take(const std::string& number) {
        ASSERT_TRUE(run.decoded(number)) << number;
        computeTorqueCurve(run.bearing(), state.torque, run.messages);
        if (run.bearing().styleLetter == "C" || run.bearing().styleLetter == "X")
            computePlayCurve(run.bearing(), state.units, state.play);
        prepareThermalFits(state);
        computeThermalFits(state);
    }
    bool contains(const std::string& rtf, const std::string& words) const {
        return rtf.find(words) != std::string::npos;
    }

    SampleBearings run;
    ProgramState& state = run.state;
    RecordingCanvas canvas;
};

TEST_F(AFitsReport, OfTheTorqueHasItsNotesAndTwoRules) {
    take("K19013BP0R");
    const std::string rtf = torqueRtf(state, run.clock);
    EXPECT_EQ(depthAtEnd(rtf), 0);
    EXPECT_TRUE(contains(rtf, "{\\fs28\\cf1\\ul\\b Notes:}"));
    EXPECT_TRUE(contains(rtf, "\\ldblquote Starting torque\\rdblquote"));
    EXPECT_TRUE(contains(rtf, "{\\ul do not include}"));
    EXPECT_TRUE(contains(rtf, "{\\fs24\\cf1 2.) Torque values shown"));
    EXPECT_TRUE(contains(rtf, "{\\fs24\\cf1 \\tab b. The effects of viscous lubricant drag.}"));
    EXPECT_TRUE(contains(rtf, "maximum preload value of 0.0050, this does not guarantee"));
    EXPECT_TRUE(contains(rtf, "that the K19013BP0R bearing can be safely"));
    EXPECT_TRUE(contains(rtf, "NORLAPLAN-MM version 1.00        Printed  3/14/26 9:26 AM"));
    // 0.25 and 7.75 inches, 4 and 3.95 inches up.
    EXPECT_TRUE(contains(rtf, "\\shpleft360\\shptop10080"));
    EXPECT_TRUE(contains(rtf, "\\shpleft360\\shptop10152"));
}

TEST_F(AFitsReport, OfTheTorquePrintsItsNotes) {
    take("K19013BP0R");
    printTorque(state, run.clock, canvas);
    for (const char* const words :
         {"Notes:", "1.) “Starting torque” is defined as the amount of torque to initiate rotation.",
          "do not include", "d. Environmental factors such as thermal gradiants within the bearing.",
          "     Varden should be contacted for assistance in establishing an acceptance limit.",
          "NORLAPLAN-MM version 1.00", "\"R\" PRELOAD RANGE IN GREY"})
        EXPECT_TRUE(canvas.hasText(words)) << words;
    const auto note = [&](const std::string& words) {
        return *std::find_if(canvas.texts.begin(), canvas.texts.end(),
                             [&](const auto& text) { return text.text == words; });
    };
    EXPECT_TRUE(note("do not include").look.underline);
    EXPECT_GT(note("c. Any externally applied loads.").box.left, note("Notes:").box.left + 0.3);
    EXPECT_EQ(canvas.pages, 1);
}

TEST_F(AFitsReport, OfAGraphStandsInThePagesFrameWithRoomAroundIt) {
    constexpr double kRoom = 0.1;
    const auto isInside = [](double x, double y) {
        return x > 0.25 + kRoom && x < 8.25 - kRoom && y > 0.25 && y < 10.75 - kRoom;
    };
    const auto check = [&](const RecordingCanvas& page) {
        ASSERT_FALSE(page.rectangles.empty());
        EXPECT_DOUBLE_EQ(page.rectangles.front().box.left, 0.25);
        EXPECT_DOUBLE_EQ(page.rectangles.front().box.top, 10.75);
        for (const auto& line : page.lines) {
            // The rule above the page's last line goes from frame to frame.
            if (line.from.y < 1.0) continue;
            EXPECT_TRUE(isInside(line.from.x, line.from.y)) << line.from.x << ", " << line.from.y;
            EXPECT_TRUE(isInside(line.to.x, line.to.y)) << line.to.x << ", " << line.to.y;
        }
        for (const auto& text : page.texts)
            EXPECT_TRUE(isInside(text.box.left, text.box.top)) << text.text;
    };
    take("K19013BP0R");
    printTorque(state, run.clock, canvas);
    check(canvas);
    take("K19013XP0E");
    for (const PlayGraph which : {PlayGraph::AxialPlay, PlayGraph::Tilt}) {
        canvas = {};
        printPlay(state, which, run.clock, canvas);
        check(canvas);
    }
}

TEST_F(AFitsReport, OfThePlayHasBothGraphsOnTwoPagesAndItsOwnWording) {
    take("K19013XP0E");
    const std::string rtf = playRtf(state, run.clock);
    EXPECT_EQ(depthAtEnd(rtf), 0);
    const std::size_t axial = rtf.find("AXIAL PLAY DUE TO DIAMETRAL CLEARANCE");
    const std::size_t page = rtf.find("\\page");
    const std::size_t tilt = rtf.find("TILT OF AXIS DUE TO DIAMETRAL CLEARANCE");
    ASSERT_NE(tilt, std::string::npos);
    EXPECT_LT(axial, page);
    EXPECT_LT(page, tilt);
    EXPECT_TRUE(contains(rtf, "The values show above are for Engineering Reference Only!"));
    EXPECT_FALSE(contains(rtf, "The values shown above"));
}

TEST_F(AFitsReport, OfThePlayPrintsTheGraphOnShow) {
    take("K19013XP0E");
    printPlay(state, PlayGraph::Tilt, run.clock, canvas);
    EXPECT_TRUE(canvas.hasText("TILT OF AXIS DUE TO DIAMETRAL CLEARANCE"));
    EXPECT_FALSE(canvas.hasText("AXIAL PLAY DUE TO DIAMETRAL CLEARANCE"));
    EXPECT_TRUE(canvas.hasText(
        "The values shown above are for Engineering Reference only!  If specific target values for"));
    EXPECT_TRUE(canvas.hasText("\"E\" CLEARANCE RANGE IN GREY"));
}

TEST_F(AFitsReport, OfTheThermalFitsTellsEntriesAndSizes) {
    take("K19013XP0E");
    const std::string rtf = thermalFitsRtf(state, run.clock);
    EXPECT_EQ(depthAtEnd(rtf), 0);
    EXPECT_TRUE(contains(rtf, "{\\fs28\\cf1\\b RESULTS OF THERMAL FITUP CALCULATION FOR : "));
    EXPECT_TRUE(contains(rtf, "{\\fs24\\cf1 Bore = \\tab 7.4803 inches}"));
    EXPECT_TRUE(contains(rtf, "{\\par\\fs24\\cf1 Minimum Temperature = \\tab\\tab 68 "));
    EXPECT_TRUE(contains(rtf, "{\\par\\fs24\\cf1 Housing Thermal Coefficient = \\tab 7.00E-06 in/in/"));
    EXPECT_TRUE(contains(rtf, " + 0.0000 / 0.0000 inches}"));
    for (const char* const start :
         {"{\\par\\fs24\\cf1 Outer Dia. =\\tab ", "{\\par\\fs24\\cf1 Maximum Temperature = \\tab\\tab 68 ",
          "{\\par\\fs24\\cf1 Shaft Thermal Coefficient = \\tab\\tab 7.00E-06 in/in/",
          "\\pard{\\par\\fs24\\cf2\\b Suggested Shaft and housing sizes }", "{\\par\\fs24\\cf2 Shaft size = ",
          "{\\par\\fs24\\cf2 Housing size = ", "{\\par\\fs24\\cf1 Notes: }"})
        EXPECT_TRUE(contains(rtf, start)) << start;
    EXPECT_TRUE(contains(rtf, "NORLAPLAN-MM version 1.00        Saved  3/14/26 9:26 AM"));
    printThermalFits(state, run.clock, canvas);
    EXPECT_TRUE(canvas.hasText("Suggested shaft and housing sizes"));
    EXPECT_TRUE(canvas.hasText("7.00E-06 in/in/°F."));
}

TEST_F(AFitsReport, OfTheThermalFitsChoosesItsNotesByTheLastCharacter) {
    const std::string common = "clearance in the bearing(s).";
    const std::string saved = "bearing bore or outer diameter.";
    const std::string printed =
        "there will be no interference with the bearing bore or outer diameter.  The original \"R\" fitup "
        "will not";
    for (const auto& [number, preload] :
         {std::pair{"K19013XP0", false}, std::pair{"K19013XP0J", false}, std::pair{"K19013XP0R", true}}) {
        take(number);
        const std::string rtf = thermalFitsRtf(state, run.clock);
        RecordingCanvas page;
        printThermalFits(state, run.clock, page);
        EXPECT_EQ(contains(rtf, common), !preload) << number;
        EXPECT_EQ(contains(rtf, saved), preload) << number;
        EXPECT_EQ(page.hasText(common), !preload) << number;
        EXPECT_EQ(page.hasText(printed), preload) << number;
    }
}

TEST_F(AFitsReport, IsADocumentUnderItsProposedName) {
    take("K19013XP0R");
    EXPECT_EQ(torqueDocument(state, run.clock).fileName, "K19013XP0R-Torque");
    EXPECT_EQ(torqueDocument(state, run.clock).saveTitle, "Save Torque Graph As");
    EXPECT_EQ(playDocument(state, PlayGraph::AxialPlay, run.clock).fileName, "K19013XP0R axialplay");
    EXPECT_EQ(playDocument(state, PlayGraph::AxialPlay, run.clock).saveTitle, "Save Axial Play Graph As");
    EXPECT_EQ(playDocument(state, PlayGraph::Tilt, run.clock).fileName, "K19013XP0R tilt");
    EXPECT_EQ(playDocument(state, PlayGraph::Tilt, run.clock).saveTitle, "Save Tilt of Axis Graph As");
    EXPECT_EQ(thermalFitsDocument(state, run.clock).fileName, "K19013XP0R-tempfit.rtf");
}

TEST_F(AFitsReport, IsSavedInTheStatedFormats) {
    take("K19013XP0R");
    const auto filtersOf = [](const Document& document) {
        std::string list;
        for (const FileFilter& filter : document.filters)
            list += filter.label + "|" + filter.pattern + "|";
        return list;
    };
    EXPECT_EQ(filtersOf(torqueDocument(state, run.clock)),
              "Rich Text File (*.rtf)|*.RTF|BitMap File(*.bmp)|*.BMP|");
    for (const PlayGraph which : {PlayGraph::AxialPlay, PlayGraph::Tilt})
        EXPECT_EQ(filtersOf(playDocument(state, which, run.clock)),
                  "Rich Text File (*.rtf)|*.rtf|Bitmap File (*.bmp)|*.bmp|");
    EXPECT_EQ(filtersOf(thermalFitsDocument(state, run.clock)), "Rich Text Files (*.rtf)|*.rtf|");
}

}  // namespace
}  // namespace norlaplan
