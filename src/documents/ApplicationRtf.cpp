#include "documents/ApplicationReport.h"
#include "documents/DataSheet.h"
#include "documents/RTFroutines.h"

namespace norlaplan {
namespace {

constexpr int kContentTwips = 2160;  ///< where the cells begin, from the margin
constexpr double kTwipsPerInch = 1440.0;
/// A longer head reaches into the cells; these then begin on the next line.
constexpr std::size_t kLongestHead = 14;

/// A cell's text; its line feeds stay line feeds.
std::string cellRtf(const std::string& text) {
    std::string rtf;
    std::size_t begin = 0;
    for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', begin)) {
        rtf += rtfText(text.substr(begin, end - begin)) + "\\line ";
        begin = end + 1;
    }
    return rtf + rtfText(text.substr(begin));
}

std::string lineRtf(const std::vector<std::string>& cells) {
    std::string rtf;
    for (const std::string& cell : cells)
        rtf += (rtf.empty() ? "" : "\\tab ") + cellRtf(cell);
    return rtf;
}

/// The paragraphs of a section hang under its head, with tab stops for its columns.
std::string paragraphs(const ApplicationSection& section) {
    const std::string content = std::to_string(kContentTwips);
    std::string rtf = "\\pard\\fi-" + content + "\\li" + content + "\\tx" + content;
    for (const double column : section.columns)
        rtf += "\\tx" + std::to_string(kContentTwips + static_cast<int>(column * kTwipsPerInch));
    return rtf;
}

void writeSection(RtfDocument& document, const ApplicationSection& section) {
    document.append(paragraphs(section));
    std::string before = "\\tab ";
    if (!section.head.empty()) {
        before = "\\sb100{\\fs24\\cf2\\b " + section.head + "}\\plain\\fs20\\cf1\\tab ";
        if (section.head.size() > kLongestHead) before += "\\par\\tab ";
    }
    for (const auto& cells : section.lines) {
        document.append(before + lineRtf(cells) + "\\par");
        before = "\\sb0\\tab ";
    }
}

}  // namespace

std::string applicationRtf(const ProgramState& state, ClockPort& clock) {
    RtfDocument document;
    document.RtfHeader();
    document.append("\\pard\\qc{\\fs32\\cf2\\b " + std::string(kApplicationTitle) + "}\\par");
    document.append("{\\fs24\\cf6\\b " + std::string(kApplicationAttention) + "}\\par");
    for (const ApplicationSection& section : applicationSections(state, ApplicationWords::Document))
        writeSection(document, section);
    document.append(
        documentFooter(kProgramVersion + std::string("        Saved  ") + clock.date() + " " + clock.time()));
    document.append("}{\\par }}");
    return document.rtf();
}

Document applicationDocument(const ProgramState& state, ClockPort& clock) {
    Document document;
    document.title = "Application Form";
    document.fileName = "Application Form.rtf";
    document.saveTitle = "Save Application Form As";
    document.rtf = [&] { return applicationRtf(state, clock); };
    document.pages.draw = [&](Canvas& canvas) { printApplication(state, clock, canvas); };
    return document;
}

}  // namespace norlaplan
