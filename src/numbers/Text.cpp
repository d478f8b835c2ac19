#include "numbers/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "numbers/RuntimeError.h"

namespace norlaplan {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

char asciiUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
char asciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Digits, a point and more digits at the start of a text, as the whole number that they are without the
/// point.
struct Mantissa {
    static constexpr int kMostDigits = 15;

    std::size_t length = 0;  ///< characters; 0 when no digit is among them
    int digits = 0, decimals = 0;
    std::int64_t number = 0;  ///< of the first `kMostDigits` digits

    /// The value of up to `kMostDigits` digits; nothing for more of them. The number and the power of ten are
    /// whole numbers that 64 bits hold, so their quotient, rounded once, is the value nearest to the text
    /// (W. D. Clinger, How to read floating point numbers accurately, 1990).
    std::optional<double> value() const {
        constexpr std::array kPowersOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                             1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
        if (digits > kMostDigits) return std::nullopt;
        return static_cast<double>(number) / kPowersOfTen[static_cast<std::size_t>(decimals)];
    }
};

Mantissa mantissaOf(std::string_view text) {
    Mantissa mantissa;
    std::size_t at = 0;
    bool point = false;
    for (; at < text.size() && (isDigit(text[at]) || (text[at] == '.' && !point)); ++at) {
        if (text[at] == '.') {
            point = true;
            continue;
        }
        if (mantissa.digits < Mantissa::kMostDigits)
            mantissa.number = mantissa.number * 10 + (text[at] - '0');
        ++mantissa.digits;
        if (point) ++mantissa.decimals;
    }
    if (mantissa.digits > 0) mantissa.length = at;
    return mantissa;
}

/// How many characters behind a mantissa make up an exponent such as "E+06"; 0 when they are none.
std::size_t exponentLength(std::string_view text) {
    if (text.empty() || asciiUpper(text[0]) != 'E') return 0;
    std::size_t at = 1;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    const std::size_t first = at;
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at == first ? 0 : at;
}

struct ScannedNumber {
    double value = 0.0;
    std::size_t length = 0;  ///< characters that belong to the number; 0 when there is none
    bool tooLarge = false;
};

/// Of a number without sign that 64 bits don't hold: whether it is too large for them, and not too small to
/// be told from zero. The power of ten of its first digit says which; it is far from 0 either way.
bool isTooLarge(std::string_view mantissa, std::string_view exponent) {
    double power = 0.0;
    if (!exponent.empty()) {
        const bool negative = exponent[1] == '-';
        exponent.remove_prefix(negative || exponent[1] == '+' ? 2 : 1);
        power = std::numeric_limits<double>::max();  // stays for an exponent that 64 bits don't hold either
        std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
        if (negative) power = -power;
    }
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    return power + static_cast<double>(point) > static_cast<double>(mantissa.find_first_not_of("0."));
}

ScannedNumber scanNumber(std::string_view text) {
    ScannedNumber scanned;
    std::size_t at = 0;
    const bool negative = !text.empty() && text[0] == '-';
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) at = 1;
    const Mantissa mantissa = mantissaOf(text.substr(at));
    if (mantissa.length == 0) return scanned;
    const std::size_t length = mantissa.length + exponentLength(text.substr(at + mantissa.length));
    if (length == mantissa.length) {
        if (const std::optional<double> value = mantissa.value())
            return {negative ? -*value : *value, at + length, false};
    }
    const char* first = text.data() + at;
    double value = 0.0;
    const auto result = std::from_chars(first, first + length, value);
    if (result.ec == std::errc::result_out_of_range) {
        const std::string_view number(first, length);
        scanned.tooLarge = isTooLarge(number.substr(0, mantissa.length), number.substr(mantissa.length));
        value = 0.0;
    }
    scanned.value = negative ? -value : value;
    scanned.length = at + length;
    return scanned;
}

/// The digits and decimal exponent of the shortest text that reads back to `value` (> 0).
template <typename Real>
std::string shortestFixed(Real value) {
    if (value == Real{0}) return "0";
    std::array<char, 64> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific).ptr;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t mark = text.find('e');
    std::string digits(text.substr(0, mark));
    const bool negative = digits.front() == '-';
    if (negative) digits.erase(0, 1);
    std::erase(digits, '.');
    const std::string_view exponentText = text.substr(mark + 1);
    int exponent = 0;
    std::from_chars(exponentText.data() + (exponentText.front() == '+' ? 1 : 0),
                    exponentText.data() + exponentText.size(), exponent);
    const int whole = exponent + 1;
    std::string plain;
    if (whole <= 0) {
        plain = "0." + std::string(static_cast<std::size_t>(-whole), '0') + digits;
    } else if (static_cast<std::size_t>(whole) >= digits.size()) {
        plain = digits + std::string(static_cast<std::size_t>(whole) - digits.size(), '0');
    } else {
        const auto split = static_cast<std::size_t>(whole);
        plain = digits.substr(0, split) + "." + digits.substr(split);
    }
    return negative ? "-" + plain : plain;
}

template <typename Real>
std::string shortest(Real value) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return std::string(buffer.data(), end);
}

}  // namespace

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), asciiLower);
    return lower;
}

std::string trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return std::string(text);
}

double leadingNumber(std::string_view text) {
    return numberAtStart(text).value;
}

NumberAtStart numberAtStart(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    const ScannedNumber scanned = scanNumber(text);
    if (scanned.tooLarge) raise(fault::kOverflow);
    const std::string_view rest = text.substr(scanned.length);
    return {scanned.value, std::all_of(rest.begin(), rest.end(), isBlank)};
}

std::optional<double> wholeNumberText(std::string_view text) {
    std::string plain = trimmed(text);
    const std::size_t point = std::min(plain.find('.'), plain.size());
    const std::size_t sign = !plain.empty() && (plain[0] == '-' || plain[0] == '+') ? 1 : 0;
    if (point > sign && plain[sign] == ',') return std::nullopt;
    plain.erase(std::remove(plain.begin(), plain.begin() + static_cast<std::ptrdiff_t>(point), ','),
                plain.begin() + static_cast<std::ptrdiff_t>(point));
    const ScannedNumber scanned = scanNumber(plain);
    if (scanned.length == 0 || scanned.length != plain.size() || scanned.tooLarge) return std::nullopt;
    return scanned.value;
}

std::string plainText(Single value) {
    return shortestFixed(value.stored());
}
std::string plainText(double value) {
    return shortestFixed(value);
}
std::string plainText(int value) {
    return std::to_string(value);
}
std::string shortestText(Single value) {
    return shortest(value.stored());
}
std::string shortestText(double value) {
    return shortest(value);
}

}  // namespace norlaplan
