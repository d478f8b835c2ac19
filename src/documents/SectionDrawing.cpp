#include "documents/SectionDrawing.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "documents/OverlayReader.h"
#include "numbers/RuntimeError.h"

namespace norlaplan {
namespace {

// Where the sheet has its section, a hair larger than the rings, that of a set, and the view of the
// separator.
constexpr PageBox kSection{2.91, 8.84, 4.99, 6.76};
constexpr PageBox kSetSection{3.41, 8.84, 4.49, 6.76};
constexpr PageBox kSeparator{6.35, 6.15, 8.15, 5.05};
/// Above the section, where a drawing that isn't whole is told.
constexpr PageBox kNote{2.3, 9.4, 6.7, 9.2};
/// From the middle of the section to that of the separator.
constexpr double kBeside = 2.4;

/// Which separator drawing a style takes.
const char* separatorSuffix(const std::string& styleLetter) {
    if (styleLetter == "X" || styleLetter == "C") return "XC";
    return styleLetter == "U" ? "U" : "A";
}

PagePoint middleOf(const PageBox& box) {
    return {(box.left + box.right) / 2.0, (box.top + box.bottom) / 2.0};
}

/// Moves lines and circles of a field elsewhere; gives false for what lies outside the field or isn't one.
class Mover {
  public:
    Mover(const PageBox& field, PagePoint to)
        : field_(field), right_(to.x - middleOf(field).x), up_(to.y - middleOf(field).y) {}

    bool operator()(SheetLine& line) const {
        const bool begins = move(line.from);
        const bool ends = move(line.to);
        return begins && ends;
    }
    bool operator()(SheetCircle& circle) const { return move(circle.centre); }
    template <typename Other>
    bool operator()(Other&) const {
        return false;
    }

  private:
    bool move(PagePoint& point) const {
        const bool inside = point.x >= field_.left && point.x <= field_.right && point.y >= field_.bottom &&
                            point.y <= field_.top;
        point = {point.x + right_, point.y + up_};
        return inside;
    }

    PageBox field_;
    double right_, up_;
};

void drawField(Canvas& canvas, const std::vector<SheetRecord>& records, const PageBox& field,
               PagePoint centre) {
    const Mover mover(field, centre);
    std::vector<SheetRecord> moved;
    for (SheetRecord record : records) {
        if (std::visit(mover, record)) moved.push_back(std::move(record));
    }
    paintRecords(moved, canvas);
}

/// The name comes from a table: it names a file of the overlays' folder or nothing.
void refuseOtherFolders(const std::string& overlay) {
    const bool leaves = overlay.find_first_of(std::string_view("/\\\0", 3)) != std::string::npos ||
                        overlay.find("..") != std::string::npos;
    if (!leaves) return;
    // A message ends at a zero byte.
    std::string shown = overlay;
    std::replace(shown.begin(), shown.end(), '\0', '?');
    throw RuntimeError(fault::kBadFileName, runtimeErrorText(fault::kBadFileName) +
                                                ": the separator table names the overlay \"" + shown +
                                                "\", which is no name of a file in the overlays folder");
}

}  // namespace

Overlays readOverlays(const BearingSpec& bearing, const ProgramFolder& folder) {
    refuseOtherFolders(bearing.separatorOverlay);
    return {
        folder.read("\\overlays\\" + bearing.styleLetter + ".ovl", kMostPlotBytes),
        folder.read("\\overlays\\" + bearing.separatorOverlay + separatorSuffix(bearing.styleLetter) + ".sep",
                    kMostPlotBytes)};
}

void writeOverlays(RtfDocument& document, const BearingSpec& bearing, const ProgramFolder& folder) {
    const Overlays overlays = readOverlays(bearing, folder);
    const bool section = OverlayToRtf(document, overlays.section);
    const bool separator = OverlayToRtf(document, overlays.separator);
    if (section && separator) return;
    SheetText note;
    note.box = kNote;
    note.size = 10.0;
    note.colour = "RED";
    note.font = "TNR";
    note.text = "The drawing is not whole: its overlay draws too much.";
    document.RTFDATASHEETTEXT(note);
}

void drawSection(Canvas& canvas, const BearingSpec& bearing, const ProgramFolder& folder, PagePoint centre) {
    RtfDocument document;
    writeOverlays(document, bearing, folder);
    const std::vector<SheetRecord> records = readSheetRecords(document.records());
    const bool set = bearing.styleLetter == "B" || bearing.styleLetter == "F" || bearing.styleLetter == "T";
    drawField(canvas, records, set ? kSetSection : kSection, centre);
    drawField(canvas, records, kSeparator, {centre.x + kBeside, centre.y});
}

}  // namespace norlaplan
