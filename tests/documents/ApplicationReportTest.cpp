#include <algorithm>

#include <gtest/gtest.h>

#include "documents/ApplicationReport.h"
#include "documents/SampleApplication.h"
#include "support/OnPaper.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::filledApplication;
using testing::FixedClock;
using testing::RecordingCanvas;

/// Letters as narrow as those of Times.
struct NarrowCanvas : RecordingCanvas {
    double textWidth(std::string_view text, const TextLook& look) override {
        return 0.85 * RecordingCanvas::textWidth(text, look);
    }
};

std::string rtfOf(const ProgramState& state) {
    FixedClock clock;
    return applicationRtf(state, clock);
}

/// The document behind its head, without the line ends that RTF passes over.
std::string bodyOf(const ProgramState& state) {
    std::string rtf = rtfOf(state);
    rtf.erase(0, rtf.find("\\pard\\qc{\\fs32"));
    std::erase(rtf, '\r');
    std::erase(rtf, '\n');
    return rtf;
}

/// Fails unless the pieces stand in the text one behind the other.
void expectInOrder(const std::string& text, const std::vector<std::string>& pieces) {
    std::size_t at = 0;
    for (const std::string& piece : pieces) {
        const std::size_t found = text.find(piece, at);
        ASSERT_NE(found, std::string::npos) << piece;
        at = found + piece.size();
    }
}

RecordingCanvas printed(const ProgramState& state) {
    FixedClock clock;
    RecordingCanvas canvas;
    printApplication(state, clock, canvas);
    return canvas;
}

/// What is printed, in the order of the drawing, each text behind a "|".
std::string wordsOf(const RecordingCanvas& canvas) {
    std::string words;
    for (const auto& text : canvas.texts)
        words += "|" + text.text;
    return words;
}

TEST(ApplicationRtf, HoldsTheStatedPartsInTheirOrder) {
    expectInOrder(
        bodyOf(filledApplication()),
        {"{\\fs32\\cf2\\b REQUEST FOR BEARING PROPOSAL DATA FORM}",
         "{\\fs24\\cf6\\b Attention: Varden Sales}",
         "{\\fs24\\cf2\\b TO:}\\plain\\fs20\\cf1\\tab Varden Corporation",
         "Fax: ",
         "Phone: ",
         "{\\fs24\\cf2\\b FROM:}\\plain\\fs20\\cf1\\tab Text1\\tab Text5\\par",
         "Text2\\tab Phone: Text6\\par",
         "Text3\\par",
         "Text4\\tab Fax: Text7\\par",
         "Application = Text8\\par",
         "Project = Text9\\par",
         "Type = OTHER",
         "Usage = REPLACEMENT",
         "{\\fs24\\cf2\\b LOADS:}\\plain\\fs20\\cf1\\tab ",
         "Static Radial Max: Text11 pounds",
         "Dynamic Radial avg.: Text14 pounds",
         "Static Axial Max: Text12 pounds",
         "Dynamic Axial avg.: Text15 pounds",
         "Static Moment Max: Text13 inch-lbs.",
         "Dynamic Moment avg.: Text16 inch-lbs.",
         "VIBRATION OR SHOCK IS PRESENT FOR Text17",
         "FACTOR OF SAFETY OF Text18 IS NOT INCLUDED IN LOADS ABOVE",
         "{\\fs24\\cf2\\b SPEED:}\\plain\\fs20\\cf1\\tab ",
         "RPM (max) Text19",
         "RPM (min) Text20",
         "{\\fs24\\cf2\\b ACCURACY:}\\plain\\fs20\\cf1\\tab ",
         "Permissible Radial Runout for Inner Text23 inches",
         "Outer Text24 inches",
         "Permissible Axial Runout for Inner Text25 inches",
         "Outer Text26 inches",
         "Permissible Looseness in Radial Direction Text27 inches",
         "Axial Text28 inches",
         "{\\fs24\\cf2\\b LIFE:}\\plain\\fs20\\cf1\\tab ",
         "Minimum Hours Text29",
         "Average Hours Text30",
         "Comments: Text31",
         "{\\fs24\\cf2\\b TEMPERATURE:}\\plain\\fs20\\cf1\\tab ",
         "Normal Operating Temp = Text32 deg. F",
         "Min Temp = Text33 deg. F",
         "Max Temp = Text34 deg. F",
         "Differential between shaft and housing is Text35 deg. F",
         "{\\fs24\\cf2\\b LUBRICATION:}\\plain\\fs20\\cf1\\tab ",
         "Proposed Lubricant is Text36  via Text37",
         "{\\fs24\\cf2\\b BEARING:}\\plain\\fs20\\cf1\\tab ",
         "Preferred Size : ",
         "Bore Text38",
         "O.D. Text39",
         "Width Text40",
         "Envelope Size :",
         "Min. Bore Text41",
         "Max. O.D. Text42",
         "Max. Width Text43",
         "Preferred type is Text44",
         "Bearing axis is HORIZONTAL with the OUTER race rotation relative to load",
         "{\\fs24\\cf2\\b MATERIAL:}\\plain\\fs20\\cf1\\tab ",
         "Shaft Text45",
         "Housing Text46",
         "{\\fs24\\cf2\\b SPECIAL REQUIREMENTS:}\\plain\\fs20\\cf1\\tab ",
         "Allowable Bearing Torque: Text47",
         "Sealing: Text48",
         "Protective Coating: Text49",
         "Other: Text50",
         "{\\fs24\\cf2\\b REMARKS:}\\plain\\fs20\\cf1\\tab Text51",
         "{\\footer \\pard\\plain \\qc\\widctlpar\\tqc\\tx4320\\tqr\\tx8640\\adjustright\\fs16\\cgrid",
         "{NORLAPLAN-MM version 1.00        Saved  3/14/26 9:26 AM\\par }}",
         "}{\\par }}"});
}

// Cells begin an inch and a half from the margin, the second one 2.9 inches behind the first; the sizes stand
// in columns 1.2, 2.7 and 4.2 inches behind theirs. An inch is 1440 twips.
TEST(ApplicationRtf, HasATabStopForEachColumn) {
    const std::string body = bodyOf(filledApplication());
    const std::string hanging = "\\pard\\fi-2160\\li2160\\tx2160";
    for (const char* const head :
         {"TO:", "FROM:", "LOADS:", "SPEED:", "LIFE:", "TEMPERATURE:", "MATERIAL:"}) {
        EXPECT_NE(body.find(hanging + "\\tx6336\\sb100{\\fs24\\cf2\\b " + head), std::string::npos) << head;
    }
    EXPECT_NE(body.find(hanging + "\\tx3888\\tx6048\\tx8208\\sb100{\\fs24\\cf2\\b BEARING:"),
              std::string::npos);
    expectInOrder(body,
                  {"\\tab Preferred Size : \\tab Bore Text38\\tab O.D. Text39\\tab Width Text40\\par",
                   "\\sb0\\tab Envelope Size :\\tab Min. Bore Text41\\tab Max. O.D. Text42\\tab Max. Width "
                   "Text43\\par"});
}

TEST(ApplicationRtf, GivesALongHeadALineOfItsOwn) {
    const std::string body = bodyOf(filledApplication());
    EXPECT_NE(body.find("SPECIAL REQUIREMENTS:}\\plain\\fs20\\cf1\\tab \\par\\tab Allowable"),
              std::string::npos);
    EXPECT_NE(body.find("TEMPERATURE:}\\plain\\fs20\\cf1\\tab Normal"), std::string::npos);
    EXPECT_NE(body.find("LUBRICATION:}\\plain\\fs20\\cf1\\tab Proposed"), std::string::npos);
}

TEST(ApplicationRtf, TellsOfShockAndOscillationOnlyWhereThereIsSome) {
    ProgramState state = filledApplication();
    EXPECT_EQ(bodyOf(state).find("OSCILLATION"), std::string::npos);
    state.application.data.oscillation = "YES";
    state.application.data.shock = "NO";
    const std::string body = bodyOf(state);
    expectInOrder(body,
                  {"SPEED:", "{\\fs24\\cf2\\b OSCILLATION:}\\plain\\fs20\\cf1\\tab Angle: Text21 degrees",
                   "Frequency: Text22", "ACCURACY:"});
    EXPECT_EQ(body.find("VIBRATION"), std::string::npos);
    EXPECT_NE(body.find("FACTOR OF SAFETY OF Text18"), std::string::npos);
}

TEST(ApplicationRtf, GivesTheRunoutsForClass8AndTheClassForAllOthers) {
    for (const char* const precision : {"0", "1", "2", "3", "4", "6", ""}) {
        ProgramState state = filledApplication();
        state.application.data.precisionClass = precision;
        const std::string body = bodyOf(state);
        EXPECT_NE(body.find("\\tab Varden Precision Class " + std::string(precision) + "\\par"),
                  std::string::npos)
            << precision;
        EXPECT_EQ(body.find("Permissible"), std::string::npos) << precision;
    }
}

TEST(ApplicationRtf, HasTheUnitsInForce) {
    ProgramState state = filledApplication();
    ApplyUnitSystem("METRIC", state.units);
    const std::string body = bodyOf(state);
    for (const char* const text : {"Text11 N", "Text13 N-m", "Text23 mm", "Text32 deg. C"})
        EXPECT_NE(body.find(text), std::string::npos) << text;
}

TEST(ApplicationRtf, EscapesWhatIsEnteredAndKeepsItsLines) {
    ProgramState state = filledApplication();
    state.application.data.remarks = "{a} C:\\b\nZ\xc3\xbcrich \xce\xa9";
    EXPECT_NE(bodyOf(state).find("\\tab \\{a\\} C:\\\\b\\line Z\\'fcrich \\u937?\\par"), std::string::npos);
}

TEST(ApplicationRtf, OfHostileAndLongTextsHasItsGroupsClosed) {
    ProgramState state = filledApplication();
    std::string text;
    while (text.size() < 10000)
        text += "}}{\\*\\object {{\\ \xce\xa9";
    for (const ApplicationField& field : applicationFields()) {
        if (field.isText()) valueOf(field, state.application.data, state.user) = text;
    }
    int depth = 0;
    const std::string rtf = rtfOf(state);
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        if (rtf[i] == '\\') {
            ++i;
            continue;
        }
        depth += rtf[i] == '{' ? 1 : rtf[i] == '}' ? -1 : 0;
        ASSERT_GE(depth, i + 3 < rtf.size() ? 1 : 0) << i;
    }
    EXPECT_EQ(depth, 0);
}

TEST(ApplicationPrint, HasTheSameOrderWithItsOwnWords) {
    expectInOrder(wordsOf(printed(filledApplication())),
                  {"|REQUEST FOR BEARING PROPOSAL DATA FORM",
                   "|Attention: Varden Sales",
                   "|TO:",
                   "|Varden Corporation",
                   "|Fax: 1-800-555-0143          Phone: 1-800-555-0142",
                   "|FROM:",
                   "|Text1",
                   "|Text5",
                   "|Text2",
                   "|Phone Text6",
                   "|Text3",
                   "|Text4",
                   "|Fax Text7",
                   "|Application Text8",
                   "|    Project  Text9",
                   "|Type = OTHER",
                   "|Usage = REPLACEMENT",
                   "|LOADS:",
                   "|Static Radial Max: Text11 pounds",
                   "|SPEED:",
                   "|ACCURACY:",
                   "|LIFE:",
                   "|TEMPERATURE:",
                   "|LUBRICATION:",
                   "|BEARING:",
                   "|MATERIAL:",
                   "|SPECIAL REQUIREMENTS:",
                   "|REMARKS:",
                   "|Text51",
                   "|NORLAPLAN-MM version 1.00",
                   "|Printed: 3/14/26 9:26 AM"});
}

TEST(ApplicationPrint, SetsItsCellsInColumnsBesideTheirHead) {
    FixedClock clock;
    NarrowCanvas canvas;
    ProgramState state = filledApplication();
    state.application.data.maximumWidth = "9";
    printApplication(state, clock, canvas);
    const auto place = [&](const std::string& text) {
        for (const auto& drawn : canvas.texts) {
            if (drawn.text == text) return drawn.box;
        }
        ADD_FAILURE() << text;
        return PageBox{};
    };
    const auto expectRow = [&](const std::string& head, const std::vector<std::string>& cells,
                               const std::vector<double>& columns) {
        const PageBox first = place(cells[0]);
        if (!head.empty()) {
            EXPECT_NEAR(place(head).left, first.left - 1.5, 1e-9) << head;
            EXPECT_NEAR(place(head).bottom, first.bottom, 1e-9) << head;
        }
        for (std::size_t i = 1; i < cells.size(); ++i) {
            EXPECT_NEAR(place(cells[i]).left, first.left + columns[i - 1], 1e-9) << cells[i];
            EXPECT_NEAR(place(cells[i]).top, first.top, 1e-9) << cells[i];
        }
    };
    expectRow("LOADS:", {"Static Radial Max: Text11 pounds", "Dynamic Radial avg.: Text14 pounds"}, {2.9});
    expectRow("SPEED:", {"RPM (max) Text19", "RPM (min) Text20"}, {2.9});
    expectRow("BEARING:", {"Preferred Size : ", "Bore Text38", "O.D. Text39", "Width Text40"},
              {1.2, 2.7, 4.2});
    expectRow("", {"Envelope Size :", "Min. Bore Text41", "Max. O.D. Text42", "Max. Width 9"},
              {1.2, 2.7, 4.2});
    EXPECT_LT(place("Envelope Size :").top, place("Preferred Size : ").top);
}

TEST(ApplicationPrint, SetsCellsBelowOneAnotherWhereOneIsTooWide) {
    ProgramState state = filledApplication();
    state.application.data.preferredBore = std::string(60, 'm');
    const RecordingCanvas canvas = printed(state);
    std::vector<PageBox> cells;
    for (const auto& drawn : canvas.texts) {
        for (const char* const start : {"Preferred Size", "Bore m", "O.D. Text39", "Width Text40"}) {
            if (drawn.text.starts_with(start)) cells.push_back(drawn.box);
        }
    }
    ASSERT_EQ(cells.size(), 4U);
    for (std::size_t i = 1; i < cells.size(); ++i) {
        EXPECT_NEAR(cells[i].left, cells[0].left, 1e-9);
        EXPECT_LT(cells[i].top, cells[i - 1].top);
    }
}

TEST(ApplicationPrint, OfAFilledFormIsOnePageInTimes) {
    FixedClock clock;
    NarrowCanvas canvas;
    printApplication(filledApplication(), clock, canvas);
    EXPECT_EQ(canvas.pages, 1);
    for (const auto& text : canvas.texts) {
        if (text.text != "VARDEN") {
            EXPECT_EQ(text.look.typeface, Typeface::Times) << text.text;
        }
    }
}

TEST(ApplicationPrint, OfLongTextsGoesOnOnFurtherPagesAndLosesNothing) {
    ProgramState state = filledApplication();
    std::string text;
    for (int word = 0; text.size() < 10000; ++word)
        text += "w" + std::to_string(word) + " ";
    state.application.data.remarks = text;
    const RecordingCanvas canvas = printed(state);
    EXPECT_GT(canvas.pages, 1);
    const std::string words = wordsOf(canvas);
    for (int page = 0; page <= canvas.pages + 1; ++page) {
        const std::string number = "Page " + std::to_string(page) + " of " + std::to_string(canvas.pages);
        EXPECT_EQ(words.find(number) != std::string::npos, page >= 1 && page <= canvas.pages) << number;
    }
    for (const char* const word : {"w0 ", "w999 ", "w1500 "})
        EXPECT_NE(words.find(word), std::string::npos) << word;
    for (const auto& drawn : canvas.texts)
        EXPECT_GT(drawn.box.bottom, 0.25) << drawn.text;
}

TEST(ApplicationDocument, IsProposedUnderItsNameInTheSaveFolder) {
    const ProgramState state;
    FixedClock clock;
    const Document document = applicationDocument(state, clock);
    EXPECT_EQ(document.fileName, "Application Form.rtf");
    EXPECT_EQ(document.folder, "\\save");
    ASSERT_EQ(document.filters.size(), 1U);
    EXPECT_EQ(document.filters[0].label, "Rich Text Files (*.rtf)");
    EXPECT_EQ(document.filters[0].pattern, "*.rtf");
}

TEST(ApplicationPrint, StandsOnItsPaper) {
    ProgramState state = filledApplication();
    EXPECT_EQ(testing::offPaper(printed(state), papers::kLetter), "");
    state.application.data.oscillation = "YES";
    state.application.data.remarks = std::string(3000, 'w');
    EXPECT_EQ(testing::offPaper(printed(state), papers::kLetter), "");
}

}  // namespace
}  // namespace norlaplan
