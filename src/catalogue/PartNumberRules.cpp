#include "catalogue/PartNumberRules.h"

#include <algorithm>
#include <initializer_list>

#include "catalogue/CodeTexts.h"
#include "numbers/Text.h"
#include "numbers/Utf8.h"

namespace norlaplan {
namespace {

bool isOneOf(const std::string& styleLetter, std::initializer_list<const char*> letters) {
    return std::find(letters.begin(), letters.end(), styleLetter) != letters.end();
}

}  // namespace

Characters charactersOf(const std::string& text) {
    Characters characters;
    for (const char byte : upperCase(text)) {
        if (continuesCharacter(byte) && !characters.empty()) {
            characters.back() += byte;
        } else {
            characters.emplace_back(1, byte);
        }
    }
    return characters;
}

void repairDigits(Characters& characters) {
    for (const std::size_t position : {2U, 3U, 4U, 5U, 6U, 9U}) {
        if (position <= characters.size() && characters[position - 1] == "O") characters[position - 1] = "0";
    }
}

double leadingDigits(const Characters& characters, std::size_t first, std::size_t last) {
    double value = 0.0;
    for (std::size_t position = first; position <= last; ++position) {
        const char c = characters[position - 1][0];
        if (c < '0' || c > '9') break;
        value = value * 10.0 + (c - '0');
    }
    return value;
}

Fault lengthFault(std::size_t length) {
    constexpr const char* kPrompt = "Please verify Part Number and try again";
    if (length < kShortestNumber) return Message{"Part Number too short", kPrompt};
    if (length > kLongestNumber) return Message{"Part Number too long", kPrompt};
    return std::nullopt;
}

Fault materialFault(const std::string& code) {
    if (!materialTextOf(code).empty()) return std::nullopt;
    return Message{"Material " + code + " Not valid", "Unsupported Material Type"};
}

Fault boreDigitFault(std::size_t position, const std::string& character) {
    if (character.size() == 1 && character[0] >= '0' && character[0] <= '9') return std::nullopt;
    return Message{"character must be numeric",
                   "Error in position " + std::to_string(position) + " of the part number"};
}

Fault crossSectionFault(Single code) {
    if (std::find(kCrossSections.begin(), kCrossSections.end(), code) != kCrossSections.end())
        return std::nullopt;
    return Message{"Width of " + plainText(code) + " Not Valid", "Unsupported Cross Section"};
}

Fault styleFault(const std::string& letter) {
    if (!familyOf(letter).empty()) return std::nullopt;
    return Message{"Type " + letter + " not known", "Undefined Bearing Style"};
}

Fault fitFault(const std::string& styleLetter, const std::string& fitLetter) {
    if (fitLetter == kNoFit) {
        if (!needsFit(styleLetter)) return std::nullopt;
        return Message{"Please supply internal fitup", "Missing Fit"};
    }
    // The character before "A" is let through as well; the fit table then decides.
    const char code = fitLetter[0];
    if (code >= 64 && code <= 90) return std::nullopt;
    return Message{"Invalid character entry", "Fitup character must be a letter"};
}

Fault precisionFault(const std::string& code) {
    if (!precisionTextOf(code).empty()) return std::nullopt;
    return Message{"Precision class " + code + " not available", "Unsupported Precision Class"};
}

bool needsFit(const std::string& styleLetter) {
    return isOneOf(styleLetter, {"B", "F"});
}

bool dropsFit(const std::string& styleLetter) {
    return isOneOf(styleLetter, {"T", "U", "A"});
}

}  // namespace norlaplan
