#include <cmath>

#include "Fuzzing.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "state/LoadEntry.h"
#include "state/ProgramState.h"
#include "state/SizeEntry.h"

using namespace norlaplan;

namespace {

void enter(const std::string& text) {
    ProgramState state;
    prepareLoadEntry(state);
    state.entries.radial = state.entries.axial = state.entries.moment = state.entries.speed = text;
    try {
        enterLoads(state);
    } catch (const RuntimeError&) {
        // A number that its field can't hold.
    }
    state.entries.minBore = state.entries.maxOd = state.entries.minHeight = state.entries.maxHeight = text;
    try {
        enterSizes(state);
    } catch (const RuntimeError&) {
    }
}

void readBack(const std::string& text) {
    const std::optional<double> value = wholeNumberText(text);
    if (!value) return;
    fuzz::must(std::isfinite(*value), "a number that was entered is finite");
    fuzz::must(wholeNumberText(plainText(*value)) == *value, "a number's text reads back to it");
    fuzz::must(leadingNumber(shortestText(*value)) == *value, "a number's short text reads back to it");
}

}  // namespace

/// Reads any bytes as the texts that users type where numbers belong.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = fuzz::textOf(data, size);
    readBack(text);
    try {
        fuzz::must(std::isfinite(leadingNumber(text)), "what a text begins with is finite");
    } catch (const RuntimeError& error) {
        fuzz::must(error.number() == fault::kOverflow, "a number's only fault is its size");
    }
    const std::string upper = upperCase(text);
    fuzz::must(upperCase(upper) == upper, "capitals stay capitals");
    fuzz::must(trimmed(trimmed(text)) == trimmed(text), "what is trimmed stays trimmed");
    fuzz::must(lowerCase(text).size() == text.size(), "small letters take as much room");
    enter(text);
    return 0;
}
