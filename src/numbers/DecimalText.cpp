#include "numbers/DecimalText.h"

#include <array>
#include <charconv>
#include <cmath>

#include "numbers/Text.h"

namespace norlaplan {

namespace {

std::string digits(double value, int count) {
    std::array<char, 40> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, count)
            .ptr;
    return upperCase({buffer.data(), static_cast<std::size_t>(end - buffer.data())});
}

}  // namespace

std::string fifteenDigits(double value) {
    return digits(value, 15);
}

std::string printedNumber(Single value) {
    const std::string text = digits(std::fabs(value), 7);
    return (value < 0.0 ? "-" : " ") + (text.starts_with("0.") ? text.substr(1) : text);
}

}  // namespace norlaplan
