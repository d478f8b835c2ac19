#include "help/RtfRow.h"

#include <algorithm>

namespace norlaplan {
namespace {

constexpr std::size_t kMostCells = 64;
constexpr int kWidest = 31680;

}  // namespace

void RtfRow::word(const RtfToken& token, const RtfTables& tables) {
    const std::string_view name = token.text;
    if (name == "trowd") {
        cells_.clear();
        leftEdge_ = 0;
        next_ = {};
        side_ = nullptr;
    }
    if (name == "trleft") leftEdge_ = std::clamp(token.number, -kWidest, kWidest);
    if (name == "clbrdrl") side_ = &next_.left;
    if (name == "clbrdrt") side_ = &next_.top;
    if (name == "clbrdrr") side_ = &next_.right;
    if (name == "clbrdrb") side_ = &next_.bottom;
    if (name.starts_with("trbrdr")) side_ = nullptr;
    if (name.starts_with("brdr") && side_ != nullptr) {
        // Every style of line is shown as a thin one; width and colour words say nothing of a style.
        if (name == "brdrnone" || name == "brdrnil") *side_ = false;
        if (name == "brdrs" || name == "brdrth" || name == "brdrdb" || name == "brdrdot") *side_ = true;
        if (name == "brdrdash" || name == "brdrhair") *side_ = true;
    }
    if (name == "clcbpat") next_.fill = tables.colour(token.number);
    if (name == "cellx") endCell(std::clamp(token.number, -kWidest, kWidest));
}

void RtfRow::endCell(int rightEdge) {
    next_.rightEdge = rightEdge;
    if (cells_.size() < kMostCells) cells_.push_back(next_);
    next_ = {};
    side_ = nullptr;
}

}  // namespace norlaplan
