#include "numbers/FormatNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "numbers/Arithmetic.h"

namespace norlaplan {
namespace {

constexpr int kSignificantDigits = 15;

/// A picture taken apart.
struct Picture {
    std::string whole;     ///< digit places before the point, without commas
    std::string fraction;  ///< digit places behind it
    bool point = false;
    bool grouped = false;
    std::string exponent;  ///< digit places of the exponent; empty for none
    bool exponentPlus = false;
};

bool isPlace(char c) {
    return c == '0' || c == '#';
}

Picture parsePicture(std::string_view text) {
    Picture picture;
    std::size_t at = 0;
    for (; at < text.size() && text[at] != 'E'; ++at) {
        const char c = text[at];
        if (isPlace(c)) (picture.point ? picture.fraction : picture.whole) += c;
        if (c == '.') picture.point = true;
        if (c == ',' && !picture.point && !picture.whole.empty()) picture.grouped = true;
    }
    if (at < text.size()) {
        picture.exponentPlus = text[at + 1] == '+';
        for (++at; at < text.size(); ++at) {
            if (isPlace(text[at])) picture.exponent += text[at];
        }
    }
    return picture;
}

/// A decimal number 0.d1d2d3... x 10^scale, its digits without leading or trailing meaning.
struct Decimal {
    std::string digits;
    int scale = 0;

    bool isZero() const { return digits.find_first_not_of('0') == std::string::npos; }
};

Decimal toDecimal(double magnitude) {
    std::array<char, 40> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                   std::chars_format::scientific, kSignificantDigits - 1)
                         .ptr;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t mark = text.find('e');
    Decimal decimal;
    for (const char c : text.substr(0, mark)) {
        if (c != '.') decimal.digits += c;
    }
    const std::size_t digits = mark + (text[mark + 1] == '+' ? 2 : 1);
    std::from_chars(text.data() + digits, text.data() + text.size(), decimal.scale);
    ++decimal.scale;
    if (decimal.isZero()) decimal.scale = 0;
    return decimal;
}

/// Rounds half away from zero to `places` digits behind the point.
Decimal roundedTo(Decimal decimal, int places) {
    const int keep = decimal.scale + places;
    if (keep < 0) return {"", 0};
    const auto kept = static_cast<std::size_t>(keep);
    if (kept >= decimal.digits.size()) return decimal;
    const bool up = decimal.digits[kept] >= '5';
    decimal.digits.resize(kept);
    if (!up) return decimal;
    std::size_t at = kept;
    while (at > 0 && decimal.digits[at - 1] == '9')
        decimal.digits[--at] = '0';
    if (at > 0) {
        ++decimal.digits[at - 1];
    } else {
        decimal.digits.insert(decimal.digits.begin(), '1');
        ++decimal.scale;
    }
    return decimal;
}

char digitAt(const Decimal& decimal, int place) {
    return place >= 0 && static_cast<std::size_t>(place) < decimal.digits.size()
               ? decimal.digits[static_cast<std::size_t>(place)]
               : '0';
}

std::string wholePart(const Decimal& decimal, const Picture& picture) {
    std::string digits;
    for (int i = 0; i < decimal.scale; ++i)
        digits += digitAt(decimal, i);
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    const std::size_t firstZero = picture.whole.find('0');
    const std::size_t needed = firstZero == std::string::npos ? 0 : picture.whole.size() - firstZero;
    if (digits.size() < needed) digits.insert(0, needed - digits.size(), '0');
    if (picture.grouped) {
        for (std::size_t at = digits.size(); at > 3; at -= 3)
            digits.insert(at - 3, ",");
    }
    return digits;
}

std::string fractionPart(const Decimal& decimal, const Picture& picture) {
    std::string digits;
    for (std::size_t i = 0; i < picture.fraction.size(); ++i) {
        digits += digitAt(decimal, decimal.scale + static_cast<int>(i));
    }
    const std::size_t lastZero = picture.fraction.rfind('0');
    const std::size_t needed = lastZero == std::string::npos ? 0 : lastZero + 1;
    while (digits.size() > needed && digits.back() == '0')
        digits.pop_back();
    return digits;
}

std::string exponentPart(int exponent, const Picture& picture) {
    std::string digits = std::to_string(std::abs(exponent));
    const std::size_t firstZero = picture.exponent.find('0');
    const std::size_t needed = firstZero == std::string::npos ? 1 : picture.exponent.size() - firstZero;
    if (digits.size() < needed) digits.insert(0, needed - digits.size(), '0');
    const std::string sign = exponent < 0 ? "-" : picture.exponentPlus ? "+" : "";
    return "E" + sign + digits;
}

}  // namespace

std::string FormatNumber(double value, std::string_view pictureText) {
    checked(value);
    const Picture picture = parsePicture(pictureText);
    const int places = static_cast<int>(picture.fraction.size());
    Decimal decimal = toDecimal(std::fabs(value));
    int exponent = 0;
    if (!picture.exponent.empty()) {
        const int wholePlaces = static_cast<int>(picture.whole.size());
        const bool zero = decimal.isZero();
        if (!zero) {
            exponent = decimal.scale - wholePlaces;
            decimal.scale = wholePlaces;
        }
        decimal = roundedTo(decimal, places);
        if (!zero && decimal.scale > wholePlaces) {
            ++exponent;
            --decimal.scale;
        }
    } else {
        decimal = roundedTo(decimal, places);
    }
    std::string text = value < 0.0 ? "-" : "";
    text += wholePart(decimal, picture);
    if (picture.point) text += "." + fractionPart(decimal, picture);
    if (!picture.exponent.empty()) text += exponentPart(exponent, picture);
    return text;
}

}  // namespace norlaplan
