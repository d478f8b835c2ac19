#include "Fuzzing.h"
#include "documents/SheetRecords.h"

using namespace norlaplan;

namespace {

std::string written(const std::vector<SheetRecord>& records) {
    std::string text;
    for (const SheetRecord& record : records)
        std::visit([&](const auto& stored) { appendRecord(text, stored); }, record);
    return text;
}

}  // namespace

/// Reads any bytes as the records of a data sheet's drawing, paints them, and writes them: what is written is
/// read as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = fuzz::textOf(data, size);
    fuzz::NoCanvas canvas;
    try {
        const std::string once = written(readSheetRecords(text));
        fuzz::must(written(readSheetRecords(once)) == once, "written records are read as they were");
        paintSheet(text, canvas);
    } catch (const BadSheetRecord&) {
        return 0;
    }
    return 0;
}
