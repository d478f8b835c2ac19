#include <string>

#include <gtest/gtest.h>

#include "documents/RTFroutines.h"
#include "documents/SheetRecords.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::RecordingCanvas;

/// A document with one record of each kind.
std::string oneOfEach() {
    RtfDocument document;
    SheetText text;
    text.box = {1.0, 10.177, 2.5, 9.5};
    text.size = 27.0;
    text.colour = "PURPLE";
    text.text = "say \"Ø\", twice";
    text.bold = true;
    text.font = "Courier New";
    text.vertical = true;
    document.RTFDATASHEETTEXT(text);
    document.RTFTEXTWBOX({text, 123});
    document.TINTEDTTEXTBOX({0.4, 4.31, 3.4, 2.82}, 456, 789);
    document.RTFLINE({1, 2}, {3, 4}, 255, 19050.0);
    document.RTFDATASHEETLINE({1, 2}, {3, 4}, 16711680, 9525.0, 6);
    document.RTFCIRCLE({1, 2}, 0.488, 0, 9525.0);
    document.endRecords();
    return document.records();
}

TEST(SheetRecords, ReadBackWhatWasWritten) {
    const std::vector<SheetRecord> records = readSheetRecords(oneOfEach());
    ASSERT_EQ(records.size(), 6U);
    const auto& text = std::get<SheetText>(records[0]);
    EXPECT_EQ(text.text, "say \"Ø\", twice");
    EXPECT_EQ(text.box.top, 10.177);
    EXPECT_TRUE(text.bold && text.vertical);
    EXPECT_EQ(std::get<SheetTextBox>(records[1]).fill, 123U);
    EXPECT_EQ(std::get<SheetTint>(records[2]).fill, 456U);
    EXPECT_EQ(std::get<SheetLine>(records[4]).dash, 6);
    EXPECT_EQ(std::get<SheetCircle>(records[5]).radius, 0.488);
    std::string again;
    for (const SheetRecord& record : records)
        std::visit([&](const auto& one) { appendRecord(again, one); }, record);
    EXPECT_EQ(again + "ALLDONE\r\n", oneOfEach());
}

TEST(SheetRecords, KeepFourThousandBytesOfATextWithNoCharacterCut) {
    SheetText text;
    text.text = "a";
    while (text.text.size() < 5000)
        text.text += "\u00D8";
    std::string written;
    appendRecord(written, text);
    const std::string read = std::get<SheetText>(readSheetRecords(written)[0]).text;
    EXPECT_EQ(read, text.text.substr(0, 3999));
}

TEST(SheetRecords, EndAtTheLastLineOrTheFilesEnd) {
    EXPECT_TRUE(readSheetRecords("").empty());
    EXPECT_TRUE(readSheetRecords("\r\n\r\n").empty());
    EXPECT_TRUE(readSheetRecords("ALLDONE\r\nNONSENSE\r\n").empty());
}

TEST(SheetRecords, RefuseALineThatTheyCantMean) {
    for (const char* const bad :
         {"NONSENSE\r\n", "RTFLINE\r\n1 2 3\r\n", "RTFLINE\r\n1 2 3 4 5 6 7\r\n",
          "RTFLINE\r\na b c d e f\r\n", "RTFLINE\r\n1 2 3 4 -5 6\r\n", "RTFLINE\r\n1 2 3 4 5 1e300\r\n",
          "RTFCIRCLE", "RTFDATASHEETTEXT\r\n1 2 3 4 5 \"RED\r\n", "\x01\x02\x03"}) {
        EXPECT_THROW(readSheetRecords(bad), BadSheetRecord) << bad;
    }
}

TEST(SheetRecords, SurviveEveryCut) {
    const std::string whole = oneOfEach();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        try {
            readSheetRecords(std::string_view(whole).substr(0, length));
        } catch (const BadSheetRecord&) {
            continue;
        }
    }
}

TEST(SheetPainter, DrawsEachRecordWithItsColourAndTypeface) {
    RecordingCanvas canvas;
    paintSheet(oneOfEach(), canvas);
    const auto& text = canvas.texts.at(1);
    EXPECT_EQ(text.text, "say \"Ø\", twice");
    EXPECT_EQ(text.look.colour, 0xFF00FFU);
    EXPECT_EQ(text.look.typeface, Typeface::Courier);
    EXPECT_EQ(canvas.texts.at(2).look.alignment, Alignment::Centre);
    ASSERT_EQ(canvas.rectangles.size(), 2U);
    EXPECT_EQ(canvas.rectangles[1].fill, 456U);
    ASSERT_EQ(canvas.lines.size(), 2U);
    EXPECT_EQ(canvas.lines[1].pen.dash, 6);
    EXPECT_EQ(canvas.circles.back().radius, 0.488);
}

}  // namespace
}  // namespace norlaplan
