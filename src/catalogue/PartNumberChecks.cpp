#include "catalogue/PartNumberChecks.h"

#include <initializer_list>
#include <string_view>
#include <vector>

#include "catalogue/CodeTexts.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr std::size_t kShortest = 9;
constexpr std::size_t kLongest = 10;
constexpr const char* kNoFit = " ";

[[noreturn]] void refuse(const std::string& title, const std::string& prompt) {
    throw Refusal{{title, prompt, Icon::None}};
}

/// The characters of a UTF-8 text, so that a stray accented letter counts as the one position it was typed
/// in.
std::vector<std::string> charactersOf(const std::string& text) {
    std::vector<std::string> characters;
    for (const char byte : text) {
        const bool goesOn = (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
        if (goesOn && !characters.empty()) {
            characters.back() += byte;
        } else {
            characters.emplace_back(1, byte);
        }
    }
    return characters;
}

std::string joined(const std::vector<std::string>& characters) {
    std::string text;
    for (const std::string& character : characters)
        text += character;
    return text;
}

/// The number that the digits at the start of the characters [first, last] make; 0 for none. Positions count
/// from 1.
double leadingDigits(const std::vector<std::string>& characters, std::size_t first, std::size_t last) {
    double value = 0.0;
    for (std::size_t position = first; position <= last; ++position) {
        const char c = characters[position - 1][0];
        if (c < '0' || c > '9') break;
        value = value * 10.0 + (c - '0');
    }
    return value;
}

void checkLength(const std::vector<std::string>& characters) {
    constexpr const char* kPrompt = "Please verify Part Number and try again";
    if (characters.size() < kShortest) refuse("Part Number too short", kPrompt);
    if (characters.size() > kLongest) refuse("Part Number too long", kPrompt);
}

void repairDigits(std::vector<std::string>& characters) {
    for (const std::size_t position : {2U, 3U, 4U, 5U, 6U, 9U}) {
        if (characters[position - 1] == "O") characters[position - 1] = "0";
    }
}

void checkMaterial(const std::string& code, BearingSpec& bearing) {
    bearing.materialCode = code;
    if (materialTextOf(code).empty()) refuse("Material " + code + " Not valid", "Unsupported Material Type");
}

void checkCrossSection(double code, BearingSpec& bearing) {
    bearing.crossSectionCode = code;
    if (code != 8.0 && code != 13.0 && code != 20.0) {
        refuse("Width of " + plainText(bearing.crossSectionCode) + " Not Valid", "Unsupported Cross Section");
    }
}

void checkStyle(const std::string& letter, BearingSpec& bearing) {
    bearing.styleLetter = letter;
    bearing.familyCode = familyOf(letter);
    if (bearing.familyCode.empty()) refuse("Type " + letter + " not known", "Undefined Bearing Style");
}

bool styleIsOneOf(const BearingSpec& bearing, std::string_view letters) {
    return letters.find(bearing.styleLetter) != std::string_view::npos;
}

void checkFit(std::vector<std::string>& characters, BearingSpec& bearing, MessagePort& messages) {
    bearing.fitLetter = characters.size() == kLongest ? characters[9] : kNoFit;
    if (styleIsOneOf(bearing, "BF") && bearing.fitLetter == kNoFit) {
        refuse("Please supply internal fitup", "Missing Fit");
    }
    if (styleIsOneOf(bearing, "TUA") && bearing.fitLetter != kNoFit) {
        messages.show({"Dropping fitup code", "No fitup allowed"});
        bearing.fitLetter = kNoFit;
    }
    if (bearing.fitLetter == kNoFit) {
        // A blank in the tenth place is no fit letter, and no part of the number.
        characters.resize(kShortest);
        return;
    }
    // The character before "A" is let through as well; the fit table then decides.
    const char code = bearing.fitLetter[0];
    if (code < 64 || code > 90) refuse("Invalid character entry", "Fitup character must be a letter");
}

void checkPrecision(const std::string& code, BearingSpec& bearing) {
    bearing.precisionCode = code;
    if (precisionTextOf(code).empty()) {
        refuse("Precision class " + code + " not available", "Unsupported Precision Class");
    }
}

void checkBore(const std::vector<std::string>& characters, BearingSpec& bearing) {
    // The value is taken before the characters are looked at, so a failing number has touched the bore.
    bearing.bore = leadingDigits(characters, 2, 4);
    for (const std::size_t position : {2U, 3U, 4U}) {
        const std::string& character = characters[position - 1];
        if (character.size() == 1 && character[0] >= '0' && character[0] <= '9') continue;
        refuse("character must be numeric",
               "Error in position " + std::to_string(position) + " of the part number");
    }
}

}  // namespace

void checkPartNumber(std::string& number, BearingSpec& bearing, MessagePort& messages) {
    number = upperCase(number);
    std::vector<std::string> characters = charactersOf(number);
    checkLength(characters);
    repairDigits(characters);
    number = joined(characters);
    checkMaterial(characters[0], bearing);
    checkCrossSection(leadingDigits(characters, 5, 6), bearing);
    checkStyle(characters[6], bearing);
    checkFit(characters, bearing, messages);
    number = joined(characters);
    checkPrecision(characters[8], bearing);
    checkBore(characters, bearing);
    bearing.separatorCode = characters[7];
}

}  // namespace norlaplan
