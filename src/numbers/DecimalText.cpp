#include "numbers/DecimalText.h"

#include <array>
#include <charconv>

#include "numbers/Text.h"

namespace norlaplan {

std::string fifteenDigits(double value) {
    std::array<char, 40> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 15)
            .ptr;
    return upperCase({buffer.data(), static_cast<std::size_t>(end - buffer.data())});
}

}  // namespace norlaplan
