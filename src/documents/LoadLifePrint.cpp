#include "documents/LoadLifeReport.h"
#include "documents/PrintedPage.h"
#include "documents/ReportTexts.h"
#include "documents/SectionDrawing.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr double kBody = 12.0;
constexpr Colour kGoodGreen = rgb(0, 128, 0);
constexpr int kWithinLimit = 2;

/// Lines for the maker's own engineers; only the speed factor has a value here.
void printDevelopmentLines(PageWriter& page, const ProgramState& state) {
    const TextLook look = timesLook(10.0);
    page.line("Percentage of Dynamic Capacity = ", look);
    page.line("Speed factor = " + plainText(state.bearing.speedFactor), look);
    page.line("Maximum Capacity = ", look);
    page.line("Maximum Load or Reaction = ", look);
    page.skip(0.1);
}

void printColumns(PageWriter& page, const ProgramState& state) {
    const TextLook look = timesLook(kBody);
    constexpr double kFirstValue = 1.9;
    constexpr double kSecond = 3.9;
    constexpr double kSecondValue = 5.2;
    const auto row = [&](const std::string& name, const std::string& value, const std::string& secondName,
                         const std::string& secondValue) {
        page.put(kPageLeft, name, look);
        page.put(kFirstValue, value, look);
        page.put(kSecond, secondName, look);
        page.put(kSecondValue, secondValue, look);
        page.endLine(kBody);
    };
    const BearingSpec& bearing = state.bearing;
    const LoadCase& loads = state.loads;
    row("Bore =", shownLength(state, bearing.bore),
        "Radial Load =", shownLoad(state, loads.radialLoadDisplay));
    row("Outer Dia. =", shownLength(state, bearing.outsideDiameter),
        "Axial Load =", shownLoad(state, loads.axialLoadDisplay));
    row("Height =", shownLength(state, bearing.height),
        "Moment Load =", shownMoment(state, loads.momentLoadDisplay));
    if (loads.speed != 0.0) row("", "", "Speed =", plainText(loads.speed) + " RPM");
}

void printResults(PageWriter& page, const ProgramState& state) {
    const TextLook look = timesLook(13.0, true);
    const LifeResult& life = state.life;
    const bool speed = state.loads.speed != 0.0;
    page.lifeText(kPageLeft, "L", " Life in Revolutions =  " + plainText(life.l10Revolutions), look);
    page.endLine(look.points);
    if (speed) {
        page.lifeText(kPageLeft, "         L",
                      " Life in Hours =  " + FormatNumber(life.l10Hours, state.units.loadPicture), look);
        page.endLine(look.points);
    }
    page.skip(0.1);
    page.line("Static Safety Factor is =  " + plainText(life.staticSafetyFactor), look);
    page.line(reportTorque(state), look);
    if (!speed) return;
    page.skip(0.1);
    const bool within = life.speedVerdictColor == kWithinLimit;
    page.line(life.speedVerdict, timesLook(11.0, true, within ? kGoodGreen : colours::kRed));
}

/// One sentence: among lines in a list its parts would look like two that lack a comma.
constexpr const char* kExternalOnly =
    "Results shown are for the external load case only and do not include the effect of any preload.";

void printNotes(PageWriter& page) {
    const TextLook look = timesLook(11.0);
    for (const char* const words :
         {"The Static Safety Factor is based on non-detrimental permanent deformation, and the assumption",
          "that the inner and outer bearing races are radially restrained by a rigid shaft and housing.", "",
          "The starting torque is based on light oil lubrication.  Torque values for grease will generally",
          "be higher.  The effect of grease on bearing torque over temperature can vary significantly and",
          "is best found by testing.", "", kExternalOnly}) {
        page.line(words, look);
    }
}

}  // namespace

void printLoadLife(const ProgramState& state, const ProgramFolder& folder, ClockPort& clock, Canvas& canvas) {
    drawPageFrame(canvas);
    PageWriter page(canvas, 10.0);
    if (state.options.larsHofmannOption) printDevelopmentLines(page, state);
    TextLook title = timesLook(15.0, true);
    page.put(kPageLeft, "RESULTS OF LOAD-LIFE CALCULATION FOR : ", title);
    const double behind = kPageLeft + canvas.textWidth("RESULTS OF LOAD-LIFE CALCULATION FOR : ", title);
    title.underline = true;
    page.put(behind, state.bearing.partNumber, title);
    page.endLine(title.points);
    page.skip(0.25);
    printColumns(page, state);
    page.skip(0.2);
    drawSection(canvas, state.bearing, folder, {3.2, page.y() - kSectionHeight / 2.0});
    page.skip(kSectionHeight + 0.3);
    printResults(page, state);
    page.skip(0.3);
    printNotes(page);
    page.skip(0.1);
    for (const std::string& warning : state.life.warnings)
        page.line(warning, timesLook(11.0, true, colours::kRed));
    drawPageFooter(canvas, clock);
}

Document loadLifeDocument(const ProgramState& state, const ProgramFolder& folder, ClockPort& clock) {
    Document document;
    document.title = "Load-life calculation for " + state.bearing.partNumber;
    document.fileName = state.bearing.partNumber + "-load.rtf";
    document.rtf = [&] { return loadLifeRtf(state, clock); };
    document.pages.draw = [&](Canvas& canvas) { printLoadLife(state, folder, clock, canvas); };
    return document;
}

}  // namespace norlaplan
