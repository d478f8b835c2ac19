#pragma once

#include <string>

namespace norlaplan {

// The texts of a part number's codes, letter first; empty for a code that isn't one.
std::string materialTextOf(const std::string& code);
std::string styleTextOf(const std::string& letter);
std::string precisionTextOf(const std::string& code);

// The codes that there are, as a list: "K, S or N".
std::string materialCodes();
std::string styleLetters();
std::string precisionCodes();

/// "A", "C" or "X": which tables serve the style; empty for a letter that is no style.
std::string familyOf(const std::string& styleLetter);

}  // namespace norlaplan
