#include "state/ApplicationFields.h"

#include <array>
#include <numeric>

namespace norlaplan {
namespace {

using Data = ApplicationData;
using User = UserInfo;
using Unit = FieldUnit;

constexpr ApplicationField contact(const char* control, int flag, const char* label, const char* tip,
                                   std::string User::*place) {
    return {control, 1, flag, label, tip, Unit::None, nullptr, place};
}
constexpr ApplicationField own(const char* control, int tab, int flag, const char* label, const char* tip,
                               std::string Data::*place, Unit unit = Unit::None) {
    return {control, tab, flag, label, tip, unit, place, nullptr};
}
constexpr ApplicationField group(const char* firstOption, int tab, int flag, std::string Data::*place) {
    return own(firstOption, tab, flag, "", "", place);
}

/// The one description of the form's values: screen, lights and data file walk it.
constexpr ApplicationField kFields[] = {
    contact("Text1", 1, "Name", "Company Contact Name", &User::userName),
    contact("Text2", 2, "Company", "Company Name", &User::userCompany),
    contact("Text3", 3, "Address line 1", "Company Address Line 1", &User::userAddress1),
    contact("Text4", 4, "Address line 2", "Company Address Line 2", &User::userAddress2),
    contact("Text5", 5, "Title", "Contact Job Title", &User::userTitle),
    contact("Text6", 6, "Phone #", "Complete Phone Number", &User::userPhone),
    contact("Text7", 7, "Fax #", "Complete Facsimile Number", &User::userFax),
    own("Text8", 1, 8, "Application", "How Bearing will be Used", &Data::bearingUse),
    own("Text9", 1, 9, "Project", "Project Name", &Data::projectName),
    own("Text10", 1, 10, "Quantity", "Number of Bearings needed", &Data::quantity),
    group("Option1", 1, 11, &Data::type),
    group("Option6", 1, 12, &Data::usage),
    own("Text11", 2, 13, "Radial", "Maximum nonrotating Radial Load", &Data::staticRadial, Unit::Load),
    own("Text12", 2, 14, "Axial", "Maximum nonrotating Thrust Load", &Data::staticAxial, Unit::Load),
    own("Text13", 2, 15, "Moment", "Maximum nonrotating Moment Load", &Data::staticMoment, Unit::Moment),
    own("Text14", 2, 16, "Radial", "Average rotating Radial Load", &Data::dynamicRadial, Unit::Load),
    own("Text15", 2, 17, "Axial", "Average rotating Thrust Load", &Data::dynamicAxial, Unit::Load),
    own("Text16", 2, 18, "Moment", "Average rotating Moment Load", &Data::dynamicMoment, Unit::Moment),
    own("Check1", 2, 0, "Vibration or Shock", "", &Data::shock),
    own("Text17", 2, 19, "Details", "Details of Shock or Vibration", &Data::shockDetails),
    own("Text18", 2, 20, "Factor of Safety", "Desired Factor of Safety", &Data::safetyFactor),
    group("Option10", 2, 21, &Data::safetyIncluded),
    own("Text19", 3, 23, "Maximum", "Maximum expected RMP", &Data::maximumSpeed, Unit::Rpm),
    own("Text20", 3, 24, "Minimum", "Minimum expected RPM", &Data::minimumSpeed, Unit::Rpm),
    group("Option12", 4, 25, &Data::oscillation),
    own("Text21", 4, 26, "Angle in Degrees", "Angle of Oscillation", &Data::oscillationAngle),
    own("Text22", 4, 27, "Frequency", "Cycles per second", &Data::oscillationFrequency),
    group("Option14", 5, 28, &Data::precisionClass),
    own("Text23", 5, 29, "Inner Race", "Inner Race Runout \"Full Indicator Movement\"",
        &Data::innerRadialRunout, Unit::Length),
    own("Text24", 5, 30, "Outer Race", "Outer Race Radial Runout \"Full Indicator Movement\"",
        &Data::outerRadialRunout, Unit::Length),
    own("Text25", 5, 31, "Inner Race", "Inner Race Axial Runout \"Full Indicator Movement\"",
        &Data::innerAxialRunout, Unit::Length),
    own("Text26", 5, 32, "Outer Race", "Outer Race Axial Runout \"Full Indicator Movement\"",
        &Data::outerAxialRunout, Unit::Length),
    own("Text27", 5, 33, "Radial", "Radial Play of Bearing(S)", &Data::radialPlay, Unit::Length),
    own("Text28", 5, 34, "Axial", "Axial Play of Bearing(S)", &Data::axialPlay, Unit::Length),
    own("Text29", 6, 35, "Minimum", "Minimum Acceptable L10 Life", &Data::minimumLife, Unit::Hours),
    own("Text30", 6, 36, "Average", "Average Expected Bearing L10 life", &Data::averageLife, Unit::Hours),
    own("Text31", 6, 37, "Comments", "Alternate Life requirements", &Data::lifeComments),
    own("Text32", 7, 38, "Normal Operating", "Typical Operating Temperature", &Data::normalTemp,
        Unit::Temperature),
    own("Text33", 7, 39, "Minimum", "Coldest Expected Temperature", &Data::minimumTemp, Unit::Temperature),
    own("Text34", 7, 40, "Maximum", "Hottest Expected Temperature", &Data::maximumTemp, Unit::Temperature),
    own("Text35", 7, 41, "Shaft to Housing", "\"+\" is shaft hotter, \"-\" is shaft cooler than housing",
        &Data::tempDifference, Unit::Temperature),
    own("Text36", 8, 42, "Proposed Lubricant", "Type , name and manufacturer of lubricant desired",
        &Data::lubricant),
    own("Text37", 8, 43, "Via", "Initial fill, grease injection, oil bath, etc.", &Data::lubricationMethod),
    own("Text38", 9, 44, "Bore", "Bearing Inner Diameter", &Data::preferredBore, Unit::Length),
    own("Text39", 9, 45, "O.D.", "Bearing Outer Diameter", &Data::preferredOd, Unit::Length),
    own("Text40", 9, 46, "Width", "Overall Width of bearing in Axial Direction", &Data::preferredWidth,
        Unit::Length),
    own("Text41", 9, 47, "Min. Bore", "Smallest Acceptable Inner Diameter", &Data::minimumBore, Unit::Length),
    own("Text42", 9, 48, "Max. O.D.", "Largest Acceptable Outer Diameter", &Data::maximumOd, Unit::Length),
    own("Text43", 9, 49, "Max. Width", "Maximum overall axial width", &Data::maximumWidth, Unit::Length),
    own("Text44", 9, 50, "Preferred Type",
        "Style of bearing such as \"Radial\",  \"4-Point Contact\", \"Duplexed Back-to-Back\", etc.",
        &Data::preferredType),
    group("Option21", 9, 51, &Data::bearingAxis),
    group("Option23", 9, 52, &Data::rotatingRace),
    own("Text45", 10, 53, "Shaft", "Material or Properties of the Shaft", &Data::shaftMaterial),
    own("Text46", 10, 54, "Housing", "Material or Properties of the Housing", &Data::housingMaterial),
    own("Text47", 11, 55, "Allowable Bearing Torque", "Maximum Drive Torque Available to Rotate Bearing",
        &Data::allowableTorque),
    own("Text48", 11, 56, "Sealing", "Are Integral Seals Required in the Bearing?", &Data::sealing),
    own("Text49", 11, 57, "Protective Coating", "Thin Dense Chrome, Cadmium, Etc.", &Data::coating),
    own("Text50", 11, 58, "Other", "Other", &Data::otherRequirements),
    own("Text51", 12, 59, "Remarks", "Any Additional Requirements not yet Specified", &Data::remarks),
};

constexpr ApplicationOption kTypes[] = {{"Option1", "EXPERIMENTAL", "EXPERIMENTAL"},
                                        {"Option2", "PROTOTYPE", "PROTOTYPE"},
                                        {"Option3", "PRODUCTION", "PRODUCTION"},
                                        {"Option4", "SPECIAL MACHINE", "SPECIAL MACHINE"},
                                        {"Option5", "OTHER", "OTHER"}};
constexpr ApplicationOption kUsages[] = {{"Option6", "O.E.M.", "O.E.M."},
                                         {"Option7", "RESALE", "RESALE"},
                                         {"Option8", "OWN USE", "OWN USE"},
                                         {"Option9", "REPLACEMENT", "REPLACEMENT"}};
constexpr ApplicationOption kIncluded[] = {{"Option10", "IS", "IS"}, {"Option11", "IS NOT", "IS NOT"}};
constexpr ApplicationOption kOscillations[] = {{"Option12", kYes, kYes}, {"Option13", kNo, kNo}};
constexpr ApplicationOption kClasses[] = {{"Option14", "0 = PRECISION CLASS 1", "0"},
                                          {"Option15", "1 = PRECISION CLASS 1 with CLASS 4 RUNOUTS", "1"},
                                          {"Option16", "2 = PRECISION CLASS 1 with CLASS 6 RUNOUTS", "2"},
                                          {"Option17", "3 = PRECISION CLASS 3", "3"},
                                          {"Option18", "4 = PRECISION CLASS 4", "4"},
                                          {"Option19", "6 = PRECISION CLASS 6", "6"},
                                          {"Option20", "8 = OTHER - DEFINED BELOW", "8"}};
constexpr ApplicationOption kAxes[] = {{"Option21", "VERTICAL", "VERTICAL"},
                                       {"Option22", "HORIZONTAL", "HORIZONTAL"}};
constexpr ApplicationOption kRaces[] = {{"Option23", "INNER", "INNER"}, {"Option24", "OUTER", "OUTER"}};

constexpr ApplicationGroup kGroups[] = {
    {&Data::type, "TYPE", kTypes},
    {&Data::usage, "USAGE", kUsages},
    {&Data::safetyIncluded, "INCLUDED IN LOADS ABOVE", kIncluded},
    {&Data::oscillation, "WILL THE BEARING OSCILLATE?", kOscillations},
    {&Data::precisionClass, "PRECISION CLASS", kClasses},
    {&Data::bearingAxis, "BEARING AXIS", kAxes},
    {&Data::rotatingRace, "ROTATING RACE RELATIVE TO LOAD", kRaces},
};

/// The completeness flags of a tab.
struct FlagRange {
    int first, last;
};
constexpr std::array<FlagRange, kApplicationTabs> kRanges = {{{1, 12},
                                                              {13, 22},
                                                              {23, 24},
                                                              {25, 27},
                                                              {28, 34},
                                                              {35, 37},
                                                              {38, 41},
                                                              {42, 43},
                                                              {44, 52},
                                                              {53, 54},
                                                              {55, 58},
                                                              {59, 59}}};

constexpr const char* kTabs[kApplicationTabs] = {
    "FROM",        "LOADS",   "SPEED",    "OSCILLATION",          "ACCURACY", "LIFE", "TEMPERATURE",
    "LUBRICATION", "BEARING", "MATERIAL", "SPECIAL REQUIREMENTS", "REMARKS"};

}  // namespace

std::span<const ApplicationField> applicationFields() {
    return kFields;
}

const ApplicationField& applicationField(const std::string& control) {
    for (const ApplicationField& field : kFields) {
        if (control == field.control) return field;
    }
    raise(fault::kSubscript);
}

std::string& valueOf(const ApplicationField& field, ApplicationData& data, UserInfo& user) {
    return field.isContact() ? user.*field.contact : data.*field.own;
}

const std::string& valueOf(const ApplicationField& field, const ApplicationData& data, const UserInfo& user) {
    return field.isContact() ? user.*field.contact : data.*field.own;
}

std::span<const ApplicationGroup> applicationGroups() {
    return kGroups;
}

void setApplicationDefaults(ApplicationData& data) {
    if (data.precisionClass.empty()) data.precisionClass = kClasses[0].value;
    if (data.shock.empty()) data.shock = kNo;
}

const char* applicationTab(int tab) {
    return kTabs[tab - 1];
}

void noteEntry(ApplicationForm& form, const ApplicationField& field, const std::string& value) {
    auto& complete = form.complete;
    const auto note = [&complete](int flag, bool filled) {
        complete.at(static_cast<std::size_t>(flag)) = filled ? 1 : 0;
    };
    if (field.flag != 0) note(field.flag, !value.empty());
    if (field.own != &Data::oscillation) return;
    const bool still = value == kNo;
    for (const char* const control : {"Text21", "Text22"}) {
        const ApplicationField& needed = applicationField(control);
        note(needed.flag, still || !(form.data.*needed.own).empty());
    }
}

void noteAllEntries(ApplicationForm& form, const UserInfo& user) {
    // The oscillation comes last: it decides about the fields before it.
    for (const ApplicationField& field : kFields)
        noteEntry(form, field, valueOf(field, form.data, user));
    noteEntry(form, applicationField("Option12"), form.data.oscillation);
}

Light statusLight(const ApplicationForm& form, int tab) {
    const auto [first, last] = kRanges.at(static_cast<std::size_t>(tab) - 1);
    const auto begin = form.complete.begin();
    const int sum = std::accumulate(begin + first, begin + last + 1, 0);
    if (sum == 0) return Light::Red;
    return sum == last - first + 1 ? Light::Green : Light::Yellow;
}

}  // namespace norlaplan
