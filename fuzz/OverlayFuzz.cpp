#include "Fuzzing.h"
#include "documents/OverlayReader.h"

using namespace norlaplan;

/// Draws any bytes as an HP-GL plot: the drawing is bounded and its records can be read and painted.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int kMostShapes = 5100;
    RtfDocument document;
    OverlayToRtf(document, fuzz::textOf(data, size));
    fuzz::must(document.shapeCounter() <= kMostShapes, "a drawing is bounded");
    const std::vector<SheetRecord> records = readSheetRecords(document.records());
    fuzz::must(static_cast<int>(records.size()) == document.shapeCounter(), "each shape has its record");
    fuzz::NoCanvas canvas;
    paintRecords(records, canvas);
    return 0;
}
