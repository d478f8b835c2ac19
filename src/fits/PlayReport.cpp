#include "fits/PlayReport.h"

#include "documents/RTFroutines.h"
#include "fits/GraphReport.h"

namespace norlaplan {
namespace {

/// The notes; the saved document words their first line in its own way.
std::vector<NoteLine> playNotes(const std::string& firstLine) {
    std::vector<NoteLine> notes;
    for (const std::string& line :
         {firstLine,
          std::string(
              "axial play or tilt of axis are required, Varden's Engineering department must be consulted."),
          std::string(
              "The internal clearance shown above is the total diametral clearance.  It is the sum of the"),
          std::string(
              "radial clearance contained on both sides of the bearing.  The clearance in the bearing is"),
          std::string(
              "assumed to be equally distributed around the bearing so that the races can translate along"),
          std::string("the rotational axis evenly.")}) {
        notes.push_back({{{line}}});
    }
    return notes;
}

}  // namespace

std::string playRtf(const ProgramState& state, ClockPort& clock) {
    RtfDocument document;
    document.RtfHeader();
    document.RtfGraph(playGraphPage(state, PlayGraph::AxialPlay));
    writeNotesBelowGraph(
        document,
        playNotes(
            "The values show above are for Engineering Reference Only!  If specific target values for"));
    document.append("\\page");
    document.RtfGraph(playGraphPage(state, PlayGraph::Tilt));
    document.append(graphFooter(clock));
    document.append("}{\\par }}");
    return document.rtf();
}

void printPlay(const ProgramState& state, PlayGraph which, ClockPort& clock, Canvas& canvas) {
    printGraphPage(
        playGraph(state, which, GraphTarget::Printer),
        playNotes(
            "The values shown above are for Engineering Reference only!  If specific target values for"),
        clock, canvas);
}

Document playDocument(const ProgramState& state, PlayGraph which, ClockPort& clock) {
    const bool tilt = which == PlayGraph::Tilt;
    const std::string& number = state.bearing.partNumber;
    Document document;
    document.title = (tilt ? "Tilt of axis of " : "Axial play of ") + number;
    document.fileName = number + (tilt ? " tilt" : " axialplay");
    document.saveTitle = tilt ? "Save Tilt of Axis Graph As" : "Save Axial Play Graph As";
    document.defaultExtension = ".RTF";
    document.filters = {{"Rich Text File (*.rtf)", "*.rtf"}, {"Bitmap File (*.bmp)", "*.bmp"}};
    document.rtf = [&] { return playRtf(state, clock); };
    document.pages.draw = [&, which](Canvas& canvas) { printPlay(state, which, clock, canvas); };
    document.picture = {papers::kGraphPicture, [&, which](Canvas& canvas) {
                            drawGraph(playGraph(state, which, GraphTarget::Screen), canvas);
                        }};
    return document;
}

}  // namespace norlaplan
