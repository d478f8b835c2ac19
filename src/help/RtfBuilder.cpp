#include "help/RtfBuilder.h"

#include <algorithm>
#include <utility>

namespace norlaplan {
namespace {

// Some three hundred pages: what is read stays small and shows at once, however large the file is. Lines,
// tabs and cells take the viewer longest.
constexpr std::size_t kMostParagraphs = 10000;
constexpr std::size_t kMostRuns = 20000;
constexpr std::size_t kMostRows = 3000;
constexpr std::size_t kMostTextBytes = 1U << 20U;
constexpr std::size_t kMostPictureBytes = 32U << 20U;
constexpr std::size_t kMostTabs = 50000;
constexpr std::size_t kMostCellsOfARow = 64;
constexpr std::size_t kMostCells = 3000;

}  // namespace

bool RtfBuilder::isFull() const {
    return paragraphCount_ >= kMostParagraphs || runCount_ >= kMostRuns || rowCount_ >= kMostRows ||
           textBytes_ >= kMostTextBytes || pictureBytes_ >= kMostPictureBytes || tabCount_ >= kMostTabs ||
           cellCount_ >= kMostCells;
}

void RtfBuilder::addText(const std::string& text, const CharacterLook& look) {
    if (text.empty() || look.hidden) return;
    textBytes_ += text.size();
    tabCount_ += static_cast<std::size_t>(std::count(text.begin(), text.end(), '\t'));
    // A line of its own is as long to lay out as a paragraph.
    paragraphCount_ += static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    if (!runs_.empty()) {
        if (auto* const last = std::get_if<TextRun>(&runs_.back()); last != nullptr && last->look == look) {
            last->text += text;
            return;
        }
    }
    ++runCount_;
    runs_.emplace_back(TextRun{text, look});
}

void RtfBuilder::addPicture(PictureRun picture) {
    ++runCount_;
    pictureBytes_ += picture.bytes.size();
    runs_.emplace_back(std::move(picture));
}

Paragraph RtfBuilder::takeParagraph(const RtfLook& look) {
    ++paragraphCount_;
    Paragraph paragraph{look.paragraph, std::exchange(runs_, {}), look.character};
    if (std::exchange(breakBefore_, false)) paragraph.look.pageBreakBefore = true;
    return paragraph;
}

void RtfBuilder::endParagraph(const RtfLook& look) {
    if (look.inTable) {
        cell_.push_back(takeParagraph(look));
        return;
    }
    document_.blocks.emplace_back(takeParagraph(look));
}

void RtfBuilder::endCell(const RtfLook& look) {
    cell_.push_back(takeParagraph(look));
    ++cellCount_;
    if (row_.cells.size() < kMostCellsOfARow) row_.cells.push_back({{}, std::move(cell_)});
    cell_.clear();
}

void RtfBuilder::endRow(const RtfRow& definition) {
    ++rowCount_;
    row_.leftEdge = definition.leftEdge();
    for (std::size_t i = 0; i < row_.cells.size() && i < definition.cells().size(); ++i) {
        row_.cells[i].look = definition.cells()[i];
    }
    if (!row_.cells.empty()) document_.blocks.emplace_back(std::exchange(row_, {}));
    // Paragraphs that no cell's end claimed are text of their own.
    for (Paragraph& paragraph : cell_) {
        document_.blocks.emplace_back(std::move(paragraph));
    }
    cell_.clear();
}

RichDocument RtfBuilder::take(const RtfLook& look, const RtfRow& definition) {
    document_.cutShort = isFull();
    endRow(definition);
    if (!runs_.empty()) document_.blocks.emplace_back(takeParagraph(look));
    return std::move(document_);
}

}  // namespace norlaplan
