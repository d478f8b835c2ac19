#include "state/SizeEntry.h"

#include <array>
#include <string>
#include <utility>

#include "numbers/Arithmetic.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

struct SizeField {
    std::string EntryTexts::*text;
    Single SearchCriteria::*size;
    const char* missing;
};

/// In the order in which a missing one is told of.
constexpr std::array<SizeField, 4> kFields = {{
    {&EntryTexts::minBore, &SearchCriteria::minBoreDisplay, "Please Enter Minimum Bore"},
    {&EntryTexts::maxOd, &SearchCriteria::maxOdDisplay, "Please Enter Maximum Outer Diameter"},
    {&EntryTexts::maxHeight, &SearchCriteria::maxHeightDisplay, "Please Enter Maximum Height"},
    {&EntryTexts::minHeight, &SearchCriteria::minHeightDisplay, "Please Enter Minimum Height"},
}};

}  // namespace

void showSizesAgain(ProgramState& state) {
    for (const SizeField& field : kFields) {
        const Single size = state.criteria.*field.size;
        if (size != 0.0) state.entries.*field.text = plainText(size);
    }
}

std::optional<FieldMessage> enterSizes(ProgramState& state) {
    SearchCriteria& criteria = state.criteria;
    for (const SizeField& field : kFields) {
        const std::string& text = state.entries.*field.text;
        if (wholeNumberText(text)) continue;
        std::string prompt = field.missing;
        if (trimmed(text).empty())
            state.sizeInputPending = true;
        else
            prompt += "\n\n\"" + text + "\" is not a number.";
        return FieldMessage{{"Missing Data", prompt, Icon::Critical}, field.text};
    }
    for (const SizeField& field : kFields)
        criteria.*field.size = *wholeNumberText(state.entries.*field.text);
    if (criteria.minBoreDisplay > criteria.maxOdDisplay) {
        std::swap(criteria.minBoreDisplay, criteria.maxOdDisplay);
        std::swap(state.entries.minBore, state.entries.maxOd);
    }
    if (criteria.minHeightDisplay > criteria.maxHeightDisplay) {
        std::swap(criteria.minHeightDisplay, criteria.maxHeightDisplay);
        std::swap(state.entries.minHeight, state.entries.maxHeight);
    }
    state.sizesChosen = true;
    state.search.noResultFlag = false;
    state.sizeInputPending = false;
    convertSizes(state);
    return std::nullopt;
}

void convertSizes(ProgramState& state) {
    SearchCriteria& criteria = state.criteria;
    const double factor = state.units.lengthFactor;
    criteria.minBore = divide(criteria.minBoreDisplay, factor);
    criteria.maxOd = divide(criteria.maxOdDisplay, factor);
    criteria.minHeight = divide(criteria.minHeightDisplay, factor);
    criteria.maxHeight = divide(criteria.maxHeightDisplay, factor);
}

}  // namespace norlaplan
