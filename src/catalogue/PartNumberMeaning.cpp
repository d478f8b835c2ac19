#include "catalogue/PartNumberMeaning.h"

#include <algorithm>

#include "catalogue/CodeTexts.h"
#include "catalogue/FitRangeText.h"
#include "catalogue/PartNumberRules.h"
#include "catalogue/PartNumberTables.h"
#include "numbers/FormatNumber.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

enum CodeIndex : std::size_t { kMaterial, kBore, kSection, kStyle, kSeparator, kPrecision, kFit };
constexpr std::size_t kStylePlace = 7, kSeparatorPlace = 8, kPrecisionPlace = 9, kFitPlace = 10;

/// "08, 13 or 20".
std::string sectionCodes() {
    std::string list;
    for (std::size_t i = 0; i < kCrossSections.size(); ++i) {
        if (i > 0) list += i + 1 < kCrossSections.size() ? ", " : " or ";
        list += FormatNumber(kCrossSections[i], "00").substr(0, 2);
    }
    return list;
}

std::array<NumberCode, 7> emptyCodes() {
    return {{{1, 1, "Material", "", materialCodes()},
             {2, 4, "Bore", "", "3 digits, mm"},
             {5, 6, "Section", "", sectionCodes()},
             {7, 7, "Style", "", styleLetters()},
             {8, 8, "Separator", "", "a letter"},
             {9, 9, "Precision", "", precisionCodes()},
             {10, 10, "Fit", "", "a letter or none"}}};
}

/// "K = Vacuum Degassed 52100 Steel" without its code.
std::string afterCode(const std::string& text) {
    return trimmed(text.substr(text.find('=') + 1));
}

/// Whether a second character can make a section of this first one.
bool beginsSection(const std::string& first) {
    // The decoder reads digits up to the first other character, so that "8X" is a section too.
    for (const char* const second : {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", " "}) {
        if (!crossSectionFault(leadingDigits({first, second}, 1, 2))) return true;
    }
    return false;
}

/// Reads one number; what it gathers on the way is what the tables are asked for.
class Reader {
  public:
    Reader(const std::string& typed, const std::string& zChoice, const UnitMode& units,
           const ProgramFolder& folder)
        : characters_(charactersOf(typed)), units_(units), tables_{folder, untold_} {
        repairDigits(characters_);
        bearing_.zSeparatorChoice = zChoice;
        meaning_.codes = emptyCodes();
        for (std::size_t i = 0; i < std::min(characters_.size(), kLongestNumber); ++i)
            meaning_.places[i] = {characters_[i], Verdict::Good};
    }

    PartNumberMeaning read() {
        readMaterial();
        readBore();
        readSection();
        readStyle();
        readPrecisionClass();
        readFitLetter();
        askTable([&] { askSection(); });
        askTable([&] { askPrecision(); });
        askTable([&] { askSeparator(); });
        askTable([&] { askFit(); });
        conclude();
        return std::move(meaning_);
    }

  private:
    bool typed(std::size_t position) const { return position <= characters_.size(); }
    const std::string& at(std::size_t position) const { return characters_[position - 1]; }
    Verdict& verdict(std::size_t position) { return meaning_.places[position - 1].verdict; }
    bool good(CodeIndex index) const {
        const NumberCode& code = meaning_.codes[index];
        return std::all_of(meaning_.places.begin() + static_cast<std::ptrdiff_t>(code.first) - 1,
                           meaning_.places.begin() + static_cast<std::ptrdiff_t>(code.last),
                           [](const NumberPlace& place) { return place.verdict == Verdict::Good; });
    }
    void say(CodeIndex index, const std::string& text) { meaning_.codes[index].meaning = text; }
    void judge(std::size_t position, const Fault& fault) {
        if (fault) verdict(position) = Verdict::Wrong;
    }
    void refuse(CodeIndex index, const std::string& why) {
        NumberCode& code = meaning_.codes[index];
        for (std::size_t position = code.first; position <= code.last; ++position)
            verdict(position) = Verdict::Wrong;
        code.meaning.clear();
        code.allowed = why;
    }

    void readMaterial() {
        if (!typed(1)) return;
        judge(1, materialFault(at(1)));
        say(kMaterial, afterCode(materialTextOf(at(1))));
    }
    void readBore() {
        for (const std::size_t position : {2U, 3U, 4U}) {
            if (typed(position)) judge(position, boreDigitFault(position, at(position)));
        }
        if (!good(kBore)) return;
        bearing_.bore = leadingDigits(characters_, 2, 4);
        say(kBore, plainText(bearing_.bore) + " mm");
    }
    void readSection() {
        if (!typed(5)) return;
        if (!beginsSection(at(5))) verdict(5) = Verdict::Wrong;
        if (!typed(6) || verdict(5) == Verdict::Wrong) return;
        bearing_.crossSectionCode = leadingDigits(characters_, 5, 6);
        judge(6, crossSectionFault(bearing_.crossSectionCode));
        if (good(kSection)) say(kSection, plainText(bearing_.crossSectionCode) + " mm");
    }
    void readStyle() {
        if (!typed(kStylePlace)) return;
        bearing_.styleLetter = at(kStylePlace);
        bearing_.familyCode = familyOf(bearing_.styleLetter);
        judge(kStylePlace, styleFault(bearing_.styleLetter));
        say(kStyle, afterCode(styleTextOf(bearing_.styleLetter)));
    }
    void readPrecisionClass() {
        if (!typed(kPrecisionPlace)) return;
        bearing_.precisionCode = at(kPrecisionPlace);
        judge(kPrecisionPlace, precisionFault(bearing_.precisionCode));
        say(kPrecision, afterCode(precisionTextOf(bearing_.precisionCode)));
    }
    void readFitLetter() {
        bearing_.fitLetter = typed(kFitPlace) ? at(kFitPlace) : kNoFit;
        std::string& allowed = meaning_.codes[kFit].allowed;
        if (needsFit(bearing_.styleLetter)) allowed = "a letter";
        if (dropsFit(bearing_.styleLetter)) allowed = "none";
        if (bearing_.fitLetter == kNoFit) {
            // A blank in the tenth place is no fit letter.
            if (typed(kFitPlace)) meaning_.places[kFitPlace - 1] = {};
        } else if (dropsFit(bearing_.styleLetter)) {
            verdict(kFitPlace) = Verdict::Dropped;
            bearing_.fitLetter = kNoFit;
        } else {
            judge(kFitPlace, fitFault(bearing_.styleLetter, bearing_.fitLetter));
        }
    }

    /// A table that is missing or damaged is told of by the decode, as is a wrong field, not while somebody
    /// types.
    template <typename Question>
    static void askTable(const Question& question) {
        try {
            question();
        } catch (const RuntimeError&) {
        }
    }
    void askSection() {
        if (!good(kBore) || !good(kSection) || !good(kStyle)) return;
        if (readCrossSection(tables_, bearing_))
            refuse(kBore, "no " + plainText(bearing_.bore) + " mm in this section and style");
    }
    void askPrecision() {
        if (!good(kBore) || !good(kPrecision)) return;
        if (readPrecision(tables_, bearing_))
            refuse(kPrecision, "no class " + bearing_.precisionCode + " for this bore");
        else if (bearing_.fitLetter == kNoFit && !needsFit(bearing_.styleLetter))
            say(kFit, fitRangeTextOf(bearing_, units_));
    }
    void askSeparator() {
        if (!typed(kSeparatorPlace) || !good(kStyle)) return;
        bearing_.separatorCode = at(kSeparatorPlace);
        missingZ_ = bearing_.separatorCode == "Z" && bearing_.zSeparatorChoice.empty();
        if (missingZ_)
            meaning_.codes[kSeparator].allowed = "choose which Z below";
        else if (readSeparator(tables_, bearing_))
            refuse(kSeparator, "no " + at(kSeparatorPlace) + " for this style");
        else
            say(kSeparator, afterCode(bearing_.separatorText));
    }
    void askFit() {
        if (bearing_.fitLetter == kNoFit || !good(kFit) || !good(kStyle)) return;
        if (readFit(tables_, bearing_))
            refuse(kFit, "no " + bearing_.fitLetter + " in the table of fits");
        else
            say(kFit, afterCode(fitRangeTextOf(bearing_, units_)));
    }

    void conclude() {
        for (const NumberCode& code : meaning_.codes) {
            for (std::size_t position = code.first; position <= code.last; ++position) {
                if (verdict(position) != Verdict::Wrong || meaning_.wrongPosition != 0) continue;
                meaning_.wrongPosition = position;
                meaning_.reason = std::string(code.name) + ": " + code.allowed;
            }
        }
        if (meaning_.wrongPosition == 0 && characters_.size() > kLongestNumber) {
            meaning_.wrongPosition = kLongestNumber + 1;
            meaning_.reason = "A part number has 9 or 10 characters";
        }
        meaning_.complete = meaning_.wrongPosition == 0 && !missingZ_ && !lengthFault(characters_.size()) &&
                            !fitFault(bearing_.styleLetter, bearing_.fitLetter);
    }

    Characters characters_;
    const UnitMode& units_;
    TableFaults untold_;
    const CatalogueSource tables_;
    BearingSpec bearing_;
    bool missingZ_ = false;
    PartNumberMeaning meaning_;
};

}  // namespace

PartNumberMeaning explainPartNumber(const std::string& typed, const std::string& zChoice,
                                    const UnitMode& units, const ProgramFolder& folder) {
    return Reader(typed, zChoice, units, folder).read();
}

}  // namespace norlaplan
