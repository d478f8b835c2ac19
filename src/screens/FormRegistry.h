#pragma once

#include <memory>
#include <span>
#include <string>
namespace norlaplan {

class Form;
class Screens;

/// The name of a form, as the program's users know it ("Form9"). Navigation goes by the constants
/// below; a bare text isn't taken.
struct FormName {
    explicit constexpr FormName(const char* name) : text(name) {}
    operator std::string() const { return text; }

    const char* text;
};

namespace forms {

inline constexpr FormName kStart{"Form1"};
inline constexpr FormName kTextViewer{"Form2"};
inline constexpr FormName kMainMenu{"Form3"};
inline constexpr FormName kAbout{"Form4"};
inline constexpr FormName kUnits{"Form6"};
inline constexpr FormName kProductPage{"Form7"};
inline constexpr FormName kProductTable{"Form8"};
inline constexpr FormName kPartNumber{"Form9"};
inline constexpr FormName kApplication{"Form10"};
inline constexpr FormName kUserInfo{"Form11"};
inline constexpr FormName kSizes{"Form12"};
inline constexpr FormName kSort{"Form13"};
inline constexpr FormName kLoads{"Form14"};
inline constexpr FormName kResults{"Form15"};
inline constexpr FormName kStyle{"Form16"};
inline constexpr FormName kDataSheet{"Form17"};
inline constexpr FormName kAxialPlay{"Form18"};
inline constexpr FormName kLife{"Form19"};
inline constexpr FormName kHelpTopic{"Form20"};
inline constexpr FormName kCatalogPages{"Form21"};
inline constexpr FormName kHelpIndex{"Form22"};
inline constexpr FormName kPreloadTorque{"Form23"};
inline constexpr FormName kDeflection{"Form24"};
inline constexpr FormName kGraphSettings{"Form25"};
inline constexpr FormName kDeflectionGraph{"Form26"};
inline constexpr FormName kLubeFilm{"Form27"};
inline constexpr FormName kFaxCover{"Form28"};
inline constexpr FormName kPictureBrowser{"Form29"};
inline constexpr FormName kContactStress{"form30"};
inline constexpr FormName kThermalFits{"Form31"};
inline constexpr FormName kAnalysis{"DataForm"};
inline constexpr FormName kBallResults{"lodestarform"};
inline constexpr FormName kBallLoadGraph{"tlodestarballloads"};
inline constexpr FormName kTrainingShow{"form5"};

}  // namespace forms

/// What there is to know of a form before it is made.
struct FormEntry {
    FormName name;
    const char* plainName;  ///< what people call it: "The load screen"
    std::unique_ptr<Form> (*make)(Screens& all);
};

/// Every form of the program, in the order of their names.
std::span<const FormEntry> formRegistry();

/// Makes all forms of the program known to the navigator.
void addForms(Screens& screens);

}  // namespace norlaplan
