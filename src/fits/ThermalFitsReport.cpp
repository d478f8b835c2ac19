#include "fits/ThermalFitsReport.h"

#include <vector>

#include "documents/DataSheet.h"
#include "documents/PrintedPage.h"
#include "documents/RTFroutines.h"
#include "documents/ReportTexts.h"
#include "fits/LastCharacter.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr const char* kTitle = "RESULTS OF THERMAL FITUP CALCULATION FOR : ";
constexpr double kBody = 12.0;

std::string shownTemperature(const ThermalFits& fits, const std::string& entry) {
    return entry + " " + fits.fitTempUnit;
}

std::string shownExpansion(const ThermalFits& fits, const std::string& entry) {
    return FormatNumber(leadingNumber(entry), "0.00E+00") + " " + fits.expansionUnit;
}

std::string shownSize(const ProgramState& state, double inches) {
    return FormatNumber(inches * state.units.lengthFactor, "0.0000");
}

/// The shaft has no tolerance of its own: the second number is always zero.
std::string shaftSizeText(const ProgramState& state) {
    return shownSize(state, state.thermalFits.shaftSize) + " + 0.0000 / " + FormatNumber(0.0, "0.0000") +
           " " + state.units.lengthUnit;
}

std::string housingSizeText(const ProgramState& state) {
    return shownSize(state, state.thermalFits.housingSize) + " + " +
           shownSize(state, -state.bearing.odTolerance) + " / - 0.0000 " + state.units.lengthUnit;
}

enum class FitKind { Clearance, Preload, Unspecified };

FitKind fitKind(const BearingSpec& bearing) {
    const std::string last = lastCharacter(bearing);
    if (last <= "J") return FitKind::Clearance;
    return last == "Z" ? FitKind::Unspecified : FitKind::Preload;
}

const std::vector<std::string> kClearanceNotes = {
    "Shaft and Housing sizes set so that at temperature limits, maximum interference will equal the minimum",
    "clearance in the bearing(s)."};

std::vector<std::string> printedNotes(const BearingSpec& bearing) {
    switch (fitKind(bearing)) {
        case FitKind::Clearance:
            return kClearanceNotes;
        case FitKind::Unspecified:
            return {};
        case FitKind::Preload:
            break;
    }
    return {"Shaft and Housing sizes set so that at maximum material conditions and at temperature limits,",
            "there will be no interference with the bearing bore or outer diameter.  The original \"" +
                lastCharacter(bearing) + "\" fitup will not",
            "be affected by the temperature changes.  It is further assumed that the clamping of the bearing",
            "is compliant enough to permit relative radial movement so that this is possible."};
}

std::vector<std::string> savedNotes(const BearingSpec& bearing) {
    if (fitKind(bearing) != FitKind::Preload) return printedNotes(bearing);
    return {
        "Shaft and Housing sizes set so that at temperature limits, there will be no interference with the ",
        "bearing bore or outer diameter."};
}

void printTitle(Canvas& canvas, PageWriter& page, const std::string& number) {
    TextLook look = timesLook(14.0, true);
    page.put(kPageLeft, kTitle, look);
    const double behind = kPageLeft + canvas.textWidth(kTitle, look);
    look.underline = true;
    page.put(behind, number, look);
    page.endLine(look.points);
}

void printEntries(PageWriter& page, const ProgramState& state) {
    constexpr double kValues = 3.3;
    const ThermalFits& fits = state.thermalFits;
    const TextLook look = timesLook(kBody);
    const auto row = [&](const char* name, const std::string& value) {
        page.put(kPageLeft, name, look);
        page.put(kValues, value, look);
        page.endLine(kBody);
    };
    row("Bore =", shownLength(state, state.bearing.bore));
    row("Outer Dia. =", shownLength(state, state.bearing.outsideDiameter));
    row("Minimum Temperature =", shownTemperature(fits, fits.lowTempText));
    row("Maximum Temperature =", shownTemperature(fits, fits.highTempText));
    row("Shaft Thermal Coefficient =", shownExpansion(fits, fits.shaftExpansionText));
    row("Housing Thermal Coefficient =", shownExpansion(fits, fits.housingExpansionText));
}

}  // namespace

std::string thermalFitsRtf(const ProgramState& state, ClockPort& clock) {
    const ThermalFits& fits = state.thermalFits;
    RtfDocument document;
    document.RtfHeader();
    document.append("{\\f1\\par\\par}");
    document.append("\\pard");
    document.append("\\par");
    document.append("{\\fs28\\cf1\\b RESULTS OF THERMAL FITUP CALCULATION FOR : ");
    document.append("\\ul " + rtfText(state.bearing.partNumber) + "}");
    document.append("\\par\\par");
    // The values stand in one column, however many tabs lead there.
    const std::string oneTab = tabStops({3600});
    const std::string twoTabs = tabStops({3000, 3600});
    const auto line = [&](const std::string& prefix, const std::string& value, const std::string& stops) {
        document.append(prefix + rtfText(value) + "}" + stops);
    };
    line("{\\fs24\\cf1 Bore = \\tab ", shownLength(state, state.bearing.bore), oneTab);
    line("{\\par\\fs24\\cf1 Outer Dia. =\\tab ", shownLength(state, state.bearing.outsideDiameter), oneTab);
    line("{\\par\\fs24\\cf1 Minimum Temperature = \\tab\\tab ", shownTemperature(fits, fits.lowTempText),
         twoTabs);
    line("{\\par\\fs24\\cf1 Maximum Temperature = \\tab\\tab ", shownTemperature(fits, fits.highTempText),
         twoTabs);
    line("{\\par\\fs24\\cf1 Shaft Thermal Coefficient = \\tab\\tab ",
         shownExpansion(fits, fits.shaftExpansionText), twoTabs);
    line("{\\par\\fs24\\cf1 Housing Thermal Coefficient = \\tab ",
         shownExpansion(fits, fits.housingExpansionText), oneTab);
    document.append("\\par\\par");
    document.append("\\pard{\\par\\fs24\\cf2\\b Suggested Shaft and housing sizes }");
    line("{\\par\\fs24\\cf2 Shaft size = ", shaftSizeText(state), "");
    line("{\\par\\fs24\\cf2 Housing size = ", housingSizeText(state), "");
    document.append("\\par\\par");
    document.append("{\\par\\fs24\\cf1 Notes: }");
    for (const std::string& note : savedNotes(state.bearing))
        line("{\\par\\fs24\\cf1 ", note, "");
    document.append("\\par");
    document.append(
        documentFooter(kProgramVersion + std::string("        Saved  ") + clock.date() + " " + clock.time()));
    document.append("}{\\par }}");
    return document.rtf();
}

void printThermalFits(const ProgramState& state, ClockPort& clock, Canvas& canvas) {
    drawPageFrame(canvas);
    PageWriter page(canvas, 10.0);
    const TextLook look = timesLook(kBody);
    const TextLook heading = timesLook(13.0, true);
    printTitle(canvas, page, state.bearing.partNumber);
    page.skip(0.25);
    printEntries(page, state);
    page.skip(0.25);
    page.line("Suggested shaft and housing sizes", heading);
    page.line("Shaft size =   " + shaftSizeText(state), look);
    page.line("Housing size =   " + housingSizeText(state), look);
    page.skip(0.25);
    page.line("Notes:", heading);
    for (const std::string& note : printedNotes(state.bearing))
        page.line(note, timesLook(11.0));
    drawPageFooter(canvas, clock);
}

Document thermalFitsDocument(const ProgramState& state, ClockPort& clock) {
    Document document;
    document.title = "Thermal fits of " + state.bearing.partNumber;
    document.fileName = state.bearing.partNumber + "-tempfit.rtf";
    document.filters = {{"Rich Text Files (*.rtf)", "*.rtf"}};
    document.rtf = [&] { return thermalFitsRtf(state, clock); };
    document.pages.draw = [&](Canvas& canvas) { printThermalFits(state, clock, canvas); };
    document.picture = {kThermalFitsPicture, [&](Canvas& canvas) { drawThermalFits(state, canvas); }};
    return document;
}

}  // namespace norlaplan
