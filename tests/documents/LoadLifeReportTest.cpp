#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "documents/LoadLifeReport.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::FixedClock;
using testing::RecordingCanvas;

ProgramState resultOf(double speed) {
    ProgramState state;
    state.user.userName = "Ann";
    state.bearing.partNumber = "K19013FR0A";
    state.bearing.styleLetter = "F";
    state.bearing.bore = 7.5;
    state.bearing.outsideDiameter = 8.5;
    state.bearing.height = 1.0;
    state.loads.radialLoadDisplay = 1200.0;
    state.loads.speed = speed;
    state.life.l10Revolutions = 1162182300.0;
    state.life.l10Hours = 48424.3;
    state.life.staticSafetyFactor = 2.5;
    state.life.torqueLabel = "Estimated Starting Torque = ";
    state.life.torqueDisplay = 0.4;
    state.life.speedVerdict = "The speed of 400 RPM is below the recommended limit of 873 RPM.";
    state.life.speedVerdictColor = 2;
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

    RecordingCanvas canvas;
    FixedClock clock;
    printLoadLife(state, clock, canvas);
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
    RecordingCanvas canvas;
    FixedClock clock;
    printLoadLife(resultOf(400.0), clock, canvas);
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
    RecordingCanvas canvas;
    FixedClock clock;
    printLoadLife(state, clock, canvas);
    EXPECT_TRUE(canvas.hasText("Percentage of Dynamic Capacity = "));
    EXPECT_TRUE(canvas.hasText("Speed factor = 0.5"));
    EXPECT_TRUE(canvas.hasText("Maximum Capacity = "));
    EXPECT_TRUE(canvas.hasText("Maximum Load or Reaction = "));
}

}  // namespace
}  // namespace norlaplan
