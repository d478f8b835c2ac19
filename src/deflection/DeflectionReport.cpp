#include "deflection/DeflectionReport.h"

#include "documents/DataSheet.h"
#include "documents/Maker.h"
#include "documents/PrintedPage.h"
#include "documents/RTFroutines.h"

namespace norlaplan {
namespace {

std::string contactNote() {
    return std::string("3.) If actual deflection values are required, please contact Varden at ") +
           maker::kPhone + ".";
}
/// From the head of a document's page to the notes beneath its graph, twips.
constexpr const char* kSpaceForGraph = "\\pard\\sb8250";

}  // namespace

std::string deflectionRtf(const DeflectionGraphData& data, const GraphSettings& settings,
                          const std::string& userName, ClockPort& clock) {
    RtfDocument document;
    document.RtfHeader();
    writeGraph(savedDeflectionGraph(data, settings), document);
    document.append(kSpaceForGraph);
    document.append("{\\fs28\\cf1\\ul\\b Notes:}");
    document.append("\\plain");
    document.append("\\par\\pard\\par");
    document.append("{\\fs24\\ ");
    document.append("1.) The curve shown is based on nominal bearing tolerances.}\\par");
    document.append("{\\fs24\\ 2.) The \\ldblquote Free Race\\rdblquote  title implies ");
    document.append("that the races are unrestrained by the shaft or housing.}\\par");
    document.append("{\\fs24\\ " + rtfText(contactNote()) + "}\\par");
    document.append(documentFooter(kProgramVersion + std::string("  ") + userName + "        Printed  " +
                                   clock.date() + " " + clock.time()));
    document.append("}{\\par }}");
    return document.rtf();
}

void printDeflectionGraph(const DeflectionGraphData& data, const GraphSettings& settings, ClockPort& clock,
                          Canvas& canvas) {
    constexpr double kLeft = 2.25;
    constexpr double kRight = 9.25;
    constexpr double kLine = 0.19;
    drawPageFrame(canvas, papers::kLetterLandscape);
    double top = 8.05;
    const auto put = [&](const std::string& text, const TextLook& look) {
        canvas.text({kLeft, top, kRight, top - kLine}, text, look);
        top -= kLine;
    };
    put("Notes:", timesLook(11.0, true));
    for (const std::string& note : std::initializer_list<std::string>{
             "1.) The curve shown is based on nominal bearing tolerances.",
             "2.) The \"Free Race\" title implies that the races are unrestrained by the shaft or housing.",
             contactNote()})
        put(note, timesLook(11.0));
    drawGraph(printedDeflectionGraph(data, settings), canvas);
    drawPageFooter(canvas, clock, "", papers::kLetterLandscape);
}

std::string deflectionGraphName(const DeflectionGraphData& data) {
    const char kind = data.title.empty() ? ' ' : data.title[0];
    return data.partNumber + (kind == 'R' ? " radial def" : kind == 'A' ? " axial def" : " moment def");
}

Document deflectionDocument(const DeflectionGraphData& data, const GraphSettings& settings,
                            const std::string& userName, ClockPort& clock) {
    Document document;
    document.title = "Deflection graph of " + data.partNumber;
    document.fileName = deflectionGraphName(data);
    document.saveTitle = "Save Deflection Graph As";
    document.filters = {{"Rich Text File (*.rtf)", "*.rtf"}, {"BitMap File(*.bmp)", "*.bmp"}};
    document.rtf = [=, &clock] { return deflectionRtf(data, settings, userName, clock); };
    document.pages = {papers::kLetterLandscape,
                      [=, &clock](Canvas& canvas) { printDeflectionGraph(data, settings, clock, canvas); }};
    document.picture = {{8.5, kDeflectionPicture},
                        [=](Canvas& canvas) { drawGraph(deflectionGraph(data, settings), canvas); }};
    return document;
}

}  // namespace norlaplan
