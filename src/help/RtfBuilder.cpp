#include "help/RtfBuilder.h"

#include <utility>

namespace norlaplan {
namespace {

constexpr std::size_t kMostCells = 64;

}  // namespace

void RtfBuilder::addText(const std::string& text) {
    if (text.empty()) return;
    if (!runs_.empty()) {
        if (auto* const last = std::get_if<TextRun>(&runs_.back()); last != nullptr && last->look == look) {
            last->text += text;
            return;
        }
    }
    runs_.push_back(TextRun{text, look});
}

void RtfBuilder::addPicture(PictureRun picture) {
    runs_.push_back(std::move(picture));
}

Paragraph RtfBuilder::takeParagraph() {
    Paragraph paragraph{paragraphLook, std::exchange(runs_, {})};
    paragraph.look.pageBreakBefore = std::exchange(breakBefore_, false);
    return paragraph;
}

void RtfBuilder::endParagraph() {
    if (inTable) {
        cell_.push_back(takeParagraph());
    } else {
        document_.blocks.emplace_back(takeParagraph());
    }
}

void RtfBuilder::endCell() {
    cell_.push_back(takeParagraph());
    if (row_.cells.size() < kMostCells) row_.cells.push_back(std::exchange(cell_, {}));
    cell_.clear();
}

void RtfBuilder::endRow() {
    if (!row_.cells.empty()) {
        row_.edges = cellEdges;
        document_.blocks.emplace_back(std::exchange(row_, {}));
    }
    cell_.clear();
    inTable = false;
}

RichDocument RtfBuilder::take() {
    if (!row_.cells.empty()) endRow();
    if (!runs_.empty()) {
        inTable = false;
        endParagraph();
    }
    return std::move(document_);
}

}  // namespace norlaplan
