#include "Fuzzing.h"
#include "help/RtfReader.h"

using namespace norlaplan;

namespace {

/// Whether it is UTF-8 by its leading and following bytes, with no control character but tab and line end.
bool isShowable(const std::string& text) {
    std::size_t following = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) == 0x80U) {
            if (following-- == 0) return false;
            continue;
        }
        if (following != 0) return false;
        if (byte < 0x20 && c != '\t' && c != '\n') return false;
        following = byte >= 0xF0U ? 3 : byte >= 0xE0U ? 2 : byte >= 0xC0U ? 1 : 0;
    }
    return following == 0;
}

std::size_t check(const Paragraph& paragraph) {
    for (const Run& run : paragraph.runs) {
        const auto* const text = std::get_if<TextRun>(&run);
        fuzz::must(text == nullptr || isShowable(text->text), "texts can be shown");
        fuzz::must(text == nullptr || (text->look.points > 0.0 && text->look.points < 10000.0),
                   "letters have a size");
    }
    return paragraph.runs.size();
}

void check(const std::optional<RichDocument>& document) {
    constexpr std::size_t kMostRuns = 20001;
    if (!document) return;
    std::size_t runs = 0;
    for (const Block& block : document->blocks) {
        if (const auto* const paragraph = std::get_if<Paragraph>(&block)) {
            runs += check(*paragraph);
            continue;
        }
        for (const TableCell& cell : std::get<TableRow>(block).cells) {
            for (const Paragraph& paragraph : cell.paragraphs)
                runs += check(paragraph);
        }
    }
    fuzz::must(runs <= kMostRuns, "a document is bounded");
}

}  // namespace

/// Reads any bytes as RTF, as they are and behind the mark that makes them pass for it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes = fuzz::textOf(data, size);
    check(readRtf(bytes));
    check(readRtf("{\\rtf1 " + bytes));
    return 0;
}
