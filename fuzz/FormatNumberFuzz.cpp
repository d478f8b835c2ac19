#include <cmath>
#include <cstring>

#include "Fuzzing.h"
#include "numbers/FormatNumber.h"
#include "numbers/RuntimeError.h"

using namespace norlaplan;

/// Writes any number, the first eight bytes, by any picture.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kMostDigits = 800;
    double value = 0.0;
    if (size < sizeof value) return 0;
    std::memcpy(&value, data, sizeof value);
    const std::string picture = fuzz::textOf(data + sizeof value, size - sizeof value);
    try {
        const std::string text = FormatNumber(value, picture);
        fuzz::must(std::isfinite(value), "a number that isn't finite has no text");
        fuzz::must(text.size() <= kMostDigits + 2 * picture.size(), "a text is no longer than its number");
        fuzz::must(FormatNumber(value, picture) == text, "a number has one text");
    } catch (const RuntimeError& error) {
        fuzz::must(error.number() == fault::kOverflow, "a picture's only fault is the number");
    }
    return 0;
}
