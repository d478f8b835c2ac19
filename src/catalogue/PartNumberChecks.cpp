#include "catalogue/PartNumberChecks.h"

#include "catalogue/CodeTexts.h"
#include "catalogue/PartNumberRules.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

std::string joined(const Characters& characters) {
    std::string text;
    for (const std::string& character : characters)
        text += character;
    return text;
}

void checkFit(Characters& characters, BearingSpec& bearing, MessagePort& messages) {
    bearing.fitLetter = characters.size() == kLongestNumber ? characters[9] : kNoFit;
    if (dropsFit(bearing.styleLetter) && bearing.fitLetter != kNoFit) {
        messages.show({"Dropping fitup code", "No fitup allowed"});
        bearing.fitLetter = kNoFit;
    }
    refuseFor(fitFault(bearing.styleLetter, bearing.fitLetter));
    // A blank in the tenth place is no fit letter, and no part of the number.
    if (bearing.fitLetter == kNoFit) characters.resize(kShortestNumber);
}

void checkBore(const Characters& characters, BearingSpec& bearing) {
    // The value is taken before the characters are looked at, so a failing number has touched the bore.
    bearing.bore = leadingDigits(characters, 2, 4);
    for (const std::size_t position : {2U, 3U, 4U})
        refuseFor(boreDigitFault(position, characters[position - 1]));
}

}  // namespace

void refuseFor(const std::optional<Message>& fault) {
    if (fault) throw Refusal{*fault};
}

void checkPartNumber(std::string& number, BearingSpec& bearing, MessagePort& messages) {
    number = upperCase(number);
    Characters characters = charactersOf(number);
    refuseFor(lengthFault(characters.size()));
    repairDigits(characters);
    number = joined(characters);
    bearing.materialCode = characters[0];
    refuseFor(materialFault(bearing.materialCode));
    bearing.crossSectionCode = leadingDigits(characters, 5, 6);
    refuseFor(crossSectionFault(bearing.crossSectionCode));
    bearing.styleLetter = characters[6];
    bearing.familyCode = familyOf(bearing.styleLetter);
    refuseFor(styleFault(bearing.styleLetter));
    checkFit(characters, bearing, messages);
    number = joined(characters);
    bearing.precisionCode = characters[8];
    refuseFor(precisionFault(bearing.precisionCode));
    checkBore(characters, bearing);
    bearing.separatorCode = characters[7];
}

}  // namespace norlaplan
