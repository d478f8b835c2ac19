#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "documents/LoadLifeReport.h"
#include "documents/ReportSamples.h"
#include "numbers/RuntimeError.h"
#include "support/FaultOf.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::FixedClock;
using testing::RecordingCanvas;

ProgramState resultOf(double speed) {
    ProgramState state = testing::sampleLife(speed);
    state.life.l10Hours = 48424.3;
    state.life.torqueDisplay = 0.4;
    state.life.speedVerdict = "The speed of 400 RPM is below the recommended limit of 873 RPM.";
    return state;
}

std::string rtfOf(const ProgramState& state) {
    FixedClock clock;
    return loadLifeRtf(state, clock);
}

TEST(LoadLifeRtf, HoldsTheStatedLines) {
    const std::string rtf = rtfOf(resultOf(400.0));
    for (const char* const line :
         {"{\\fs28\\cf1\\b RESULTS OF LOAD-LIFE CALCULATION FOR : \r\n\\ul K19013FR0A}",
          "{\\fs24\\cf1 Bore = \\tab 7.5000 inches", "\\tab\\tab 1,200 pounds}",
          "{\\tab\\tab\\tab\\tab\\fs24\\ Speed = 400 RPM}", "\\tab 1162182300}", "\\tab 48424.3}",
          "{\\fs24\\b\\cf6 Static Safety Factor is =  2.5}",
          "{\\tab\\fs24\\b\\cf1 Estimated Starting Torque = 0.40 inch-lbs.}",
          "{\\fs20\\cf4\\b The speed of 400 RPM is below",
          "NORLAPLAN-MM version 1.00  Ann        Saved  3/14/26 9:26 AM"}) {
        EXPECT_NE(rtf.find(line), std::string::npos) << line;
    }
}

TEST(LoadLifeRtf, LeavesSpeedHoursAndVerdictOutWithoutASpeed) {
    const std::string rtf = rtfOf(resultOf(0.0));
    for (const char* const word : {"RPM", "Hours", "recommended limit"}) {
        EXPECT_EQ(rtf.find(word), std::string::npos) << word;
    }
}

/// Overlays of a face-to-face pair with a ribbon. The section has a line from (3.5, 7) to (4, 8) and a circle
/// around (4, 8); a dimension stands left of it, a line runs out of it; the separator is one line from
/// (7, 5.5) to (7.5, 5.5).
struct Overlays {
    Overlays() {
        place.write("overlays/F.ovl",
                    "PW0.35;PU3302,6477;PD3810,7493;PU3302,7493;AA3810,7493,360;"
                    "PU1270,6477;PD1270,7493;PU3810,6477;PD3810,5461;");
        place.write("overlays/RIBBONA.sep", "PU6858,4953;PD7366,4953;");
    }
    ProgramFolder folder() const { return ProgramFolder(place.path()); }
    testing::TemporaryFolder place;
};

RecordingCanvas printed(const ProgramState& state) {
    const Overlays overlays;
    const ProgramFolder folder = overlays.folder();
    FixedClock clock;
    RecordingCanvas canvas;
    loadLifeDocument(state, folder, clock).pages.draw(canvas);
    return canvas;
}

TEST(LoadLifeReport, CarriesEachWarningInRedBehindTheNotes) {
    ProgramState state = resultOf(400.0);
    const std::string balance = "The ball loads do not balance the applied loads.";
    const std::string row = "Row 2 has the shorter life: 28,572,300 revolutions";
    state.life.warnings = {balance, row};
    const std::string rtf = rtfOf(state);
    const std::size_t note = rtf.find("of any preload.");
    ASSERT_NE(note, std::string::npos);
    EXPECT_GT(rtf.find("{\\fs24\\b\\cf6 " + balance + "}"), note);
    EXPECT_LT(rtf.find("{\\fs24\\b\\cf6 " + row + "}"), rtf.find("{\\footer"));

    const RecordingCanvas canvas = printed(state);
    double before = 11.0;
    for (const std::string& text :
         {std::string(
              "Results shown are for the external load case only and do not include the effect of any "
              "preload."),
          balance, row}) {
        const auto drawn = std::find_if(canvas.texts.begin(), canvas.texts.end(),
                                        [&](const auto& candidate) { return candidate.text == text; });
        ASSERT_NE(drawn, canvas.texts.end()) << text;
        EXPECT_LT(drawn->box.top, before) << text;
        EXPECT_GT(drawn->box.bottom, 0.8) << "above the footer";
        if (text != balance && text != row) continue;
        EXPECT_EQ(drawn->look.colour, colours::kRed) << text;
        before = drawn->box.top;
    }
}

TEST(LoadLifePrint, FollowsTheStatedOrderDownThePage) {
    const RecordingCanvas canvas = printed(resultOf(400.0));
    double before = 11.0;
    for (const char* const text :
         {"RESULTS OF LOAD-LIFE CALCULATION FOR : ", "Bore =", "Outer Dia. =", "Height =", "Speed =",
          " Life in Revolutions =  1162182300", " Life in Hours =  48,424", "Static Safety Factor is =  2.5",
          "Estimated Starting Torque = 0.40 inch-lbs.",
          "The speed of 400 RPM is below the recommended limit of 873 RPM.", "is best found by testing.",
          "Results shown are for the external load case only and do not include the effect of any "
          "preload."}) {
        ASSERT_TRUE(canvas.hasText(text)) << text;
        for (const auto& drawn : canvas.texts) {
            if (drawn.text != text) continue;
            EXPECT_LT(drawn.box.top, before) << text;
            EXPECT_GT(drawn.box.bottom, 0.8) << "above the footer";
            before = drawn.box.top;
        }
    }
    EXPECT_TRUE(canvas.hasText("NORLAPLAN-MM version 1.00"));
    EXPECT_TRUE(canvas.hasText("Printed: 3/14/26 9:26 AM"));
}

TEST(LoadLifePrint, PutsTheDevelopmentLinesFirstOfWhichOnlyOneHasAValue) {
    ProgramState state = resultOf(0.0);
    state.options.larsHofmannOption = true;
    state.bearing.speedFactor = 0.5;
    const RecordingCanvas canvas = printed(state);
    EXPECT_TRUE(canvas.hasText("Percentage of Dynamic Capacity = "));
    EXPECT_TRUE(canvas.hasText("Speed factor = 0.5"));
    EXPECT_TRUE(canvas.hasText("Maximum Capacity = "));
    EXPECT_TRUE(canvas.hasText("Maximum Load or Reaction = "));
}

TEST(LoadLifePrint, ShowsTheSheetsSectionWithoutItsDimensionsAndTheSeparatorBesideIt) {
    const RecordingCanvas canvas = printed(resultOf(400.0));
    // The mark has 14 circles of its own.
    ASSERT_EQ(canvas.circles.size(), 15U);
    const auto& ball = canvas.circles.back();
    EXPECT_NEAR(ball.radius, 0.5, 1e-3);
    // The line within the section ends in the ball's middle; its pen is the overlay's.
    std::vector<RecordingCanvas::Line> drawn;
    for (const auto& line : canvas.lines) {
        if (line.to.y > 1.0) drawn.push_back(line);
    }
    ASSERT_EQ(drawn.size(), 2U);
    EXPECT_NEAR(drawn[0].to.x, ball.centre.x, 1e-3);
    EXPECT_NEAR(drawn[0].to.y, ball.centre.y, 1e-3);
    EXPECT_NEAR(drawn[0].from.x, ball.centre.x - 0.5, 1e-3);
    EXPECT_NEAR(drawn[0].from.y, ball.centre.y - 1.0, 1e-3);
    EXPECT_EQ(drawn[0].pen.colour, 3394611U);
    EXPECT_NEAR(drawn[1].to.x - drawn[1].from.x, 0.5, 1e-3);
    EXPECT_GT(drawn[1].from.x, ball.centre.x + 1.0);
}

TEST(LoadLifePrint, WithoutAnOverlayIsAFileError) {
    ProgramState state = resultOf(0.0);
    state.bearing.separatorOverlay = "NONE";
    EXPECT_EQ(testing::faultOf([&] { printed(state); }), fault::kFileNotFound);
}

TEST(LoadLifeDocument, SaysHowItIsCalledAndSaved) {
    const ProgramState state = resultOf(400.0);
    const Overlays overlays;
    const ProgramFolder folder = overlays.folder();
    FixedClock clock;
    const Document document = loadLifeDocument(state, folder, clock);
    EXPECT_EQ(document.title, "Load-life calculation for K19013FR0A");
    EXPECT_EQ(document.fileName, "K19013FR0A-load.rtf");
    EXPECT_EQ(document.saveTitle, "Save Results As");
    EXPECT_EQ(document.folder, "\\save");
    ASSERT_EQ(document.filters.size(), 1U);
    EXPECT_EQ(document.filters[0].label, "Rich Text Files (*.rtf)");
    EXPECT_EQ(document.pages.paper, papers::kLetter);
    EXPECT_EQ(document.rtf(), loadLifeRtf(state, clock));
}

}  // namespace
}  // namespace norlaplan
