#pragma once

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

/// The number pictures of the analysis screens written out by hand.
namespace norlaplan::hand {

/// "0.0000" with so many places: the value's 15 figures, rounded half away from zero.
inline std::string fixedPoint(double value, int places) {
    char text[400];
    std::snprintf(text, sizeof text, "%.14e", std::fabs(value));
    const long double scaled = std::strtold(text, nullptr) * std::pow(10.0L, places);
    // A half may have lost its last bit to the decimals.
    const long double rounded = std::floor(scaled * (1.0L + 1e-17L) + 0.5L);
    std::snprintf(text, sizeof text, "%.*Lf", places, rounded / std::pow(10.0L, places));
    return (value < 0.0 ? "-" : "") + std::string(text);
}

inline std::string withoutZeroBeforePoint(std::string text) {
    const std::size_t at = text[0] == '-' ? 1 : 0;
    if (text[at] == '0' && text.size() > at + 1 && text[at + 1] == '.') text.erase(at, 1);
    return text;
}

/// "#.0000": no zero before the point.
inline std::string pointed(double value, int places) {
    return withoutZeroBeforePoint(fixedPoint(value, places));
}

/// "0.####": no zeros at the end, but the point always.
inline std::string shortened(double value, int places) {
    std::string text = fixedPoint(value, places);
    while (text.back() == '0')
        text.pop_back();
    return text;
}

/// "####.##".
inline std::string pointedShortened(double value, int places) {
    return withoutZeroBeforePoint(shortened(value, places));
}

/// "####": whole, and nothing at all for 0.
inline std::string whole(double value) {
    const std::string text = fixedPoint(value, 0);
    return text == "0" ? "" : text;
}

/// "#,###,###".
inline std::string grouped(double value) {
    std::string text = whole(value);
    for (int at = static_cast<int>(text.size()) - 3; at > (text[0] == '-' ? 1 : 0); at -= 3)
        text.insert(static_cast<std::size_t>(at), ",");
    return text;
}

/// "00.00E+00": so many places before the point, four figures in all.
inline std::string powerOfTen(double value, int before) {
    int exponent = static_cast<int>(std::floor(std::log10(value))) - before + 1;
    std::string mantissa = fixedPoint(value / std::pow(10.0, exponent), 4 - before);
    if (static_cast<int>(mantissa.find('.')) > before)
        mantissa = fixedPoint(value / std::pow(10.0, ++exponent), 4 - before);
    char text[64];
    std::snprintf(text, sizeof text, "%sE%c%02d", mantissa.c_str(), exponent < 0 ? '-' : '+',
                  std::abs(exponent));
    return text;
}

/// A life in the picture of the decade of `decade`, which is its own but for the outer race's.
inline std::string life(double value, double decade) {
    const int digits = static_cast<int>(std::floor(std::log10(decade)));
    switch (digits) {
        case 6:
        case 9:
            return powerOfTen(value, 1);
        case 7:
        case 10:
        case 4:
            return powerOfTen(value, 2);
        case 8:
        case 11:
        case 5:
            return powerOfTen(value, 3);
        default:
            return digits >= 12 ? powerOfTen(value, 1) : whole(value);
    }
}

}  // namespace norlaplan::hand
