#include "documents/LoadLifeReport.h"

#include "documents/DataSheet.h"
#include "documents/RTFroutines.h"
#include "documents/ReportTexts.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr int kWithinLimit = 2;

void writeSizesAndLoads(RtfDocument& document, const ProgramState& state) {
    const BearingSpec& bearing = state.bearing;
    const LoadCase& loads = state.loads;
    document.append("{\\fs24\\cf1 Bore = \\tab " + shownLength(state, bearing.bore));
    document.append("\\tab\\tab Radial Load =");
    document.append("\\tab\\tab " + shownLoad(state, loads.radialLoadDisplay) + "}");
    document.append(tabStops({1600, 3900, 4000, 5700, 5800}));
    document.append("{\\par\\fs24\\cf1 Outer Dia. =\\tab " + shownLength(state, bearing.outsideDiameter));
    document.append("\\tab\\tab Axial Load =");
    document.append("\\tab\\tab " + shownLoad(state, loads.axialLoadDisplay) + "}");
    document.append(tabStops({1600, 3900, 4000, 5700, 5800}));
    document.append("{\\par\\fs24\\cf1 Height =\\tab " + shownLength(state, bearing.height));
    document.append("\\tab\\tab Moment Load =");
    document.append("\\tab " + shownMoment(state, loads.momentLoadDisplay) + "}");
    document.append(tabStops({1600, 3900, 4000, 5800}));
    document.append("\\par\\par");
}

void writeLives(RtfDocument& document, const ProgramState& state) {
    const bool speed = state.loads.speed != 0.0;
    if (speed) {
        document.append("{\\tab\\tab\\tab\\tab\\fs24\\ Speed = " + plainText(state.loads.speed) + " RPM}");
        document.append(tabStops({3700, 3800, 3900, 4000}));
        document.append("\\par");
    }
    document.append("\\par");
    document.append(tabStops({2700, 4300, 6500}));
    document.append("{\\fs24\\b L\\sub 10 \\nosupersub Life in Revolutions = ");
    document.append("\\tab " + plainText(state.life.l10Revolutions) + "}");
    if (speed) {
        document.append("{\\fs24\\tab\\b L\\sub 10 \\nosupersub Life in Hours = ");
        document.append("\\tab " + plainText(state.life.l10Hours) + "}");
    }
    document.append("\\par\\par");
}

void writeSafetyAndTorque(RtfDocument& document, const ProgramState& state) {
    document.append("{\\fs24\\b\\cf6 Static Safety Factor is =  " + plainText(state.life.staticSafetyFactor) +
                    "}");
    document.append("{\\tab\\fs24\\b\\cf1 " + reportTorque(state) + "}");
    document.append("\\par\\par");
    if (state.loads.speed == 0.0) return;
    const bool within = state.life.speedVerdictColor == kWithinLimit;
    document.append((within ? "{\\fs20\\cf4\\b " : "{\\fs20\\cf6\\b ") + rtfText(state.life.speedVerdict) +
                    "}");
    document.append("\\par\\par");
}

void writeNote(RtfDocument& document, const char* colour, std::initializer_list<const char*> lines) {
    for (const char* const line : lines) {
        document.append("{\\fs24\\b" + std::string(colour) + " " + line + "}\\par");
    }
    document.append("\\par");
}

}  // namespace

std::string loadLifeRtf(const ProgramState& state, ClockPort& clock) {
    RtfDocument document;
    document.RtfHeader();
    document.append("{\\f1\\par\\par}");
    document.append("\\pard");
    document.append("\\par");
    document.append("{\\fs28\\cf1\\b RESULTS OF LOAD-LIFE CALCULATION FOR : ");
    document.append("\\ul " + rtfText(state.bearing.partNumber) + "}");
    document.append("\\plain");
    document.append("\\par\\par");
    writeSizesAndLoads(document, state);
    writeLives(document, state);
    writeSafetyAndTorque(document, state);
    writeNote(document, "\\cf6",
              {"The Static Safety Factor is based on non-detrimental permanent deformation, and",
               "the assumption that the inner and outer bearing races are radially restrained by",
               "a rigid shaft and housing."});
    writeNote(document, "\\cf1",
              {"The starting torque is based on light oil lubrication.  Torque values for grease will",
               "generally be higher.  The effect of grease on bearing torque over temperature",
               "can vary significantly and is best found by testing."});
    writeNote(document, "\\cf1",
              {"Results shown are for the external load case only and do not include the effect ",
               "of any preload."});
    for (const std::string& warning : state.life.warnings)
        writeNote(document, "\\cf6", {warning.c_str()});
    document.append(savedFooter(state.user.userName, clock));
    document.append("}{\\par }}");
    return document.rtf();
}

}  // namespace norlaplan
