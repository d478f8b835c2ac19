#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "numbers/Single.h"

namespace norlaplan {

/// Upper case of a UTF-8 text: Latin, Greek, Cyrillic and Armenian letters that have one capital letter. What
/// is no such letter stays, bytes that are no UTF-8 as well. Never follows the locale.
std::string upperCase(std::string_view text);
/// ASCII lower case; other characters stay.
std::string lowerCase(std::string_view text);
/// Without the blanks at both ends.
std::string trimmed(std::string_view text);

/// The number at the start of a text: blanks, sign, digits, point, exponent; 0 when there is none.
/// "8X" gives 8. Never follows the locale; error 6 when it is too large for 64 bits.
double leadingNumber(std::string_view text);

/// The same number, and whether the text is nothing else: blanks around it are none of it, and a text of
/// blanks is the number 0.
struct NumberAtStart {
    double value = 0.0;
    bool whole = true;
};
NumberAtStart numberAtStart(std::string_view text);

/// The whole text as a number, as a field on a screen is read: blanks around it and grouping commas in the
/// whole part are passed over ("1,733" is 1733). Nothing when any of it is not a number or not finite.
std::optional<double> wholeNumberText(std::string_view text);

/// The shortest text that reads back to the same 32-bit value, with no exponent: 0.25 is "0.25",
/// 1162182272 is "1162182300".
std::string plainText(Single value);
/// The same for a 64-bit value.
std::string plainText(double value);
std::string plainText(int value);

/// The shortest text of the value's own width, with an exponent where that is shorter: for data files.
std::string shortestText(Single value);
std::string shortestText(double value);

}  // namespace norlaplan
