#include "fits/TorqueReport.h"

#include "documents/RTFroutines.h"
#include "fits/GraphReport.h"
#include "fits/TorqueAxes.h"
#include "fits/TorqueGraph.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

std::vector<NoteLine> torqueNotes(const ProgramState& state) {
    const double most = computeTorqueAxes(state.torque, state.units).xMax * state.units.lengthFactor;
    return {
        {{{"1.) “Starting torque” is defined as the amount of torque to initiate rotation."}}},
        {{{"2.) Torque values shown are based on preload values only, and "},
          {"do not include", true},
          {" the following:"}}},
        {{{"a. The effects of any interference fits with the shaft or housing."}}, true},
        {{{"b. The effects of viscous lubricant drag."}}, true},
        {{{"c. Any externally applied loads."}}, true},
        {{{"d. Environmental factors such as thermal gradiants within the bearing."}}, true},
        {{{"3.) Although the graph shows a maximum preload value of " +
           FormatNumber(most, state.units.lengthPicture) + ", this does not guarantee"}}},
        {{{"     that the " + state.bearing.partNumber +
           " bearing can be safely preloaded to that value, it is shown for reference only."}}},
        {{{"4.) Torque values shown are for reference only.  If there is a specific torque requirement,"}}},
        {{{"     Varden should be contacted for assistance in establishing an acceptance limit."}}},
    };
}

}  // namespace

std::string torqueRtf(const ProgramState& state, ClockPort& clock) {
    RtfDocument document;
    document.RtfHeader();
    document.RtfGraph(torqueGraphPage(state));
    writeNotesBelowGraph(document, torqueNotes(state));
    document.append(graphFooter(clock));
    document.append("}{\\par }}");
    return document.rtf();
}

void printTorque(const ProgramState& state, ClockPort& clock, Canvas& canvas) {
    printGraphPage(torqueGraph(state, GraphTarget::Printer), torqueNotes(state), clock, canvas);
}

Document torqueDocument(const ProgramState& state, ClockPort& clock) {
    Document document;
    document.title = "Preload torque of " + state.bearing.partNumber;
    document.fileName = upperCase(trimmed(state.bearing.partNumber)) + "-Torque";
    document.saveTitle = "Save Torque Graph As";
    document.filters = {{"Rich Text File (*.rtf)", "*.RTF"}, {"BitMap File(*.bmp)", "*.BMP"}};
    document.rtf = [&] { return torqueRtf(state, clock); };
    document.pages.draw = [&](Canvas& canvas) { printTorque(state, clock, canvas); };
    document.picture = {papers::kGraphPicture,
                        [&](Canvas& canvas) { drawGraph(torqueGraph(state, GraphTarget::Screen), canvas); }};
    return document;
}

}  // namespace norlaplan
