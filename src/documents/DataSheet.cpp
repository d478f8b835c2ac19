#include "documents/DataSheet.h"

#include <utility>

#include "documents/Maker.h"
#include "documents/SectionDrawing.h"
#include "documents/SheetWriter.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

void writeTitle(const SheetWriter& sheet) {
    sheet.text({3.455, 10.177, 6.0, 9.502}, sheet.bearing.partNumber, {27.0, "BLUE"});
    sheet.text({3.117, 10.303, 5.897, 9.953}, "TECHNICAL DATA SHEET", {14.0, "BLACK", false, "Courier New"});
    if (sheet.state.unitSystem == "METRIC") sheet.text({6.756, 9.486, 9.636, 8.886}, "(METRIC)", {24.0});
}

void writeInfo(const SheetWriter& sheet) {
    const bool metric = sheet.state.unitSystem == "METRIC";
    const std::string mass = FormatNumber(sheet.bearing.mass * sheet.units.massFactor, "##.000");
    sheet.box({5.25, 4.96, 9.636, 4.41}, "", kGreyFill, {10.0});
    sheet.text({5.35, 4.96, 8.4, 4.80},
               "Drawing Scale " + FormatNumber(sheet.bearing.drawingScale, "0.00") +
                   (metric ? ":1, All Dimensions in mm." : ":1, All Dimensions in Inches"));
    sheet.text({5.35, 4.80, 8.4, 4.64}, sheet.bearing.ballsText);
    sheet.text({5.35, 4.64, 8.4, 4.48},
               metric ? "Approximate Mass = " + mass + " kg." : "Approximate Weight = " + mass + " lbs.");
}

void writeRunout(const SheetWriter& sheet, double top, const char* race, double runout) {
    constexpr double kLine = 0.165;
    sheet.box({0.4, top, 1.85, top - 0.55}, "", kGreyFill);
    const std::string value = sheet.length(runout, sheet.units.runoutPicture) + " Max. FIM";
    double y = top - 0.04;
    for (const std::string& words : {std::string(race), std::string("Axial Runout"), value}) {
        sheet.text({0.5, y, 1.8, y - kLine}, words);
        y -= kLine;
    }
}

void writeClosingLines(const SheetWriter& sheet) {
    // Boxes are higher than the lines' step: word processors cut what hangs below a box.
    constexpr double kHeight = 0.17;
    sheet.text({2.65, 0.875, 6.5, 0.875 - kHeight}, sheet.bearing.availabilityText, {9.0, "BLUE"});
    sheet.text({2.83, 0.75, 6.5, 0.75 - kHeight},
               std::string("For More Information, call Varden at ") + maker::kPhone);
    sheet.text({1.8, 0.625, 7.5, 0.625 - kHeight},
               "Varden Reserves the Right to Change Specifications and Other Information Without Notice");
}

void writeBeginning(const SheetWriter& sheet) {
    sheet.document.RtfHeader();
    writeTitle(sheet);
    writeInfo(sheet);
    writeRatings(sheet);
}

}  // namespace

std::string documentFooter(const std::string& line) {
    return R"({\footer \pard\plain \qc\widctlpar\tqc\tx4320\tqr\tx8640\adjustright\fs16\cgrid)"
           "\r\n{" +
           rtfText(line) + "\r\n\\par }}";
}

std::string savedFooter(const std::string& text, ClockPort& clock) {
    return documentFooter(kProgramVersion + std::string("  ") + text + "        Saved  " + clock.date() +
                          " " + clock.time());
}

SheetFiles makeDataSheet(const ProgramState& state, const ProgramFolder& folder, ClockPort& clock) {
    RtfDocument document;
    const SheetWriter sheet(document, state);
    writeBeginning(sheet);
    writeFits(sheet);
    writePartNumberDetail(sheet);
    writeSpeedPanel(sheet);
    writeRunout(sheet, 5.61, "Outer Race", state.bearing.outerAxialRunout);
    writeRunout(sheet, 4.96, "Inner Race", state.bearing.innerAxialRunout);
    writeOverlays(document, state.bearing, folder);
    writeSizeTexts(sheet);
    writeClosingLines(sheet);
    document.append(savedFooter(state.options.footerText, clock));
    document.append("}{\\par }}");
    document.endRecords();
    return {document.rtf(), document.records()};
}

SheetFiles dataSheetBeginning(const ProgramState& state) {
    RtfDocument document;
    writeBeginning(SheetWriter(document, state));
    return {document.rtf(), document.records()};
}

void checkDataSheet(const BearingSpec& bearing, const ProgramFolder& folder) {
    readOverlays(bearing, folder);
}

Document dataSheetDocument(const std::string& partNumber, std::string records,
                           std::function<std::string()> rtf) {
    Document document;
    document.title = "Data sheet " + partNumber;
    document.fileName = trimmed(upperCase(partNumber));
    document.folder = "\\";
    document.saveTitle = "Save Data Sheet As";
    document.filters = {{"Rich Text File(*.rtf)", "*.rtf"}, {"Bitmap File(*.bmp)", "*.bmp"}};
    document.rtf = std::move(rtf);
    document.pages.draw = [drawn = std::move(records)](Canvas& canvas) { paintSheet(drawn, canvas); };
    return document;
}

}  // namespace norlaplan
