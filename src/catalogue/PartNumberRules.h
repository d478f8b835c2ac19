#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "numbers/Single.h"
#include "state/Ports.h"

namespace norlaplan {

/// The characters of a part number, each a UTF-8 text of its own. Positions count from 1.
using Characters = std::vector<std::string>;
/// The message that refuses a code; nothing for a good one.
using Fault = std::optional<Message>;

constexpr std::size_t kShortestNumber = 9;
constexpr std::size_t kLongestNumber = 10;
constexpr const char* kNoFit = " ";
/// Positions 5 and 6, millimetres.
constexpr std::array<double, 3> kCrossSections = {8.0, 13.0, 20.0};

/// The characters of the upper-cased text, so that a stray accented letter counts as the one position it was
/// typed in.
Characters charactersOf(const std::string& text);
/// A letter O becomes the digit 0 in the positions 2 to 6 and 9, as far as the number goes.
void repairDigits(Characters& characters);
/// The number that the digits at the start of the characters [first, last] make; 0 for none.
double leadingDigits(const Characters& characters, std::size_t first, std::size_t last);

// The rules of the single codes: the decoder refuses by them, the entry screen explains by them.
Fault lengthFault(std::size_t length);
Fault materialFault(const std::string& code);
/// One digit of the bore, at this position.
Fault boreDigitFault(std::size_t position, const std::string& character);
Fault crossSectionFault(Single code);
Fault styleFault(const std::string& letter);
/// `kNoFit` for a number without fit letter.
Fault fitFault(const std::string& styleLetter, const std::string& fitLetter);
Fault precisionFault(const std::string& code);

/// Duplex pairs must have a fit letter.
bool needsFit(const std::string& styleLetter);
/// Single angular contact bearings and tandem sets must not have one: it is dropped with a warning.
bool dropsFit(const std::string& styleLetter);

}  // namespace norlaplan
