#include "documents/ApplicationReport.h"
#include "documents/Maker.h"
#include "numbers/Text.h"
#include "state/ApplicationFields.h"

namespace norlaplan {
namespace {

/// From this class on the runouts themselves are asked for.
constexpr double kOtherPrecision = 8.0;
constexpr const char* kTenBlanks = "          ";

ApplicationSection makerLines(ApplicationWords words) {
    const std::string fax = std::string("Fax: ") + maker::kFax;
    const std::string phone = std::string("Phone: ") + maker::kPhone;
    ApplicationSection section{"TO:", {{maker::kName}, {maker::kCity}}};
    if (words == ApplicationWords::Print)
        section.lines.push_back({fax + kTenBlanks + phone});
    else
        section.lines.push_back({fax, phone});
    return section;
}

ApplicationSection contactLines(const UserInfo& user, ApplicationWords words) {
    const bool print = words == ApplicationWords::Print;
    return {"FROM:",
            {{user.userName, user.userTitle},
             {user.userCompany, (print ? "Phone " : "Phone: ") + user.userPhone},
             {user.userAddress1},
             {user.userAddress2, (print ? "Fax " : "Fax: ") + user.userFax}}};
}

ApplicationSection purposeLines(const ApplicationData& data, ApplicationWords words) {
    const bool print = words == ApplicationWords::Print;
    return {"",
            {{(print ? "Application " : "Application = ") + data.bearingUse},
             {(print ? "    Project  " : "Project = ") + data.projectName},
             {"Type = " + data.type, "Usage = " + data.usage}}};
}

ApplicationSection loadLines(const ApplicationData& data, const UnitMode& units) {
    const std::string force = " " + units.loadUnitWord;
    const std::string moment = " " + units.momentUnitWord;
    ApplicationSection section{"LOADS:",
                               {{"Static Radial Max: " + data.staticRadial + force,
                                 "Dynamic Radial avg.: " + data.dynamicRadial + force},
                                {"Static Axial Max: " + data.staticAxial + force,
                                 "Dynamic Axial avg.: " + data.dynamicAxial + force},
                                {"Static Moment Max: " + data.staticMoment + moment,
                                 "Dynamic Moment avg.: " + data.dynamicMoment + moment}}};
    if (data.shock == kYes)
        section.lines.push_back({"VIBRATION OR SHOCK IS PRESENT FOR " + data.shockDetails});
    section.lines.push_back({"FACTOR OF SAFETY OF " + data.safetyFactor + " " + data.safetyIncluded +
                             " INCLUDED IN LOADS ABOVE"});
    return section;
}

ApplicationSection accuracyLines(const ApplicationData& data, const UnitMode& units) {
    if (leadingNumber(data.precisionClass) < kOtherPrecision)
        return {"ACCURACY:", {{"Varden Precision Class " + data.precisionClass}}};
    const auto length = [&](const char* words, const std::string& value) {
        return words + value + " " + units.lengthUnit;
    };
    return {"ACCURACY:",
            {{length("Permissible Radial Runout for Inner ", data.innerRadialRunout),
              length("Outer ", data.outerRadialRunout)},
             {length("Permissible Axial Runout for Inner ", data.innerAxialRunout),
              length("Outer ", data.outerAxialRunout)},
             {length("Permissible Looseness in Radial Direction ", data.radialPlay),
              length("Axial ", data.axialPlay)}},
            {3.9}};
}

ApplicationSection temperatureLines(const ApplicationData& data, const UnitMode& units) {
    const std::string unit = " " + units.tempUnit;
    return {"TEMPERATURE:",
            {{"Normal Operating Temp = " + data.normalTemp + unit},
             {"Min Temp = " + data.minimumTemp + unit, "Max Temp = " + data.maximumTemp + unit},
             {"Differential between shaft and housing is " + data.tempDifference + unit}}};
}

ApplicationSection bearingLines(const ApplicationData& data) {
    return {"BEARING:",
            {{"Preferred Size : ", "Bore " + data.preferredBore, "O.D. " + data.preferredOd,
              "Width " + data.preferredWidth},
             {"Envelope Size :", "Min. Bore " + data.minimumBore, "Max. O.D. " + data.maximumOd,
              "Max. Width " + data.maximumWidth},
             {"Preferred type is " + data.preferredType},
             {"Bearing axis is " + data.bearingAxis + " with the " + data.rotatingRace +
              " race rotation relative to load"}},
            {1.2, 2.7, 4.2}};
}

}  // namespace

std::vector<ApplicationSection> applicationSections(const ProgramState& state, ApplicationWords words) {
    const ApplicationData& data = state.application.data;
    std::vector<ApplicationSection> sections = {makerLines(words), contactLines(state.user, words),
                                                purposeLines(data, words), loadLines(data, state.units)};
    const auto add = [&sections](ApplicationSection section) { sections.push_back(std::move(section)); };
    add({"SPEED:", {{"RPM (max) " + data.maximumSpeed, "RPM (min) " + data.minimumSpeed}}});
    if (data.oscillation == kYes) {
        add({"OSCILLATION:",
             {{"Angle: " + data.oscillationAngle + " degrees", "Frequency: " + data.oscillationFrequency}}});
    }
    add(accuracyLines(data, state.units));
    add({"LIFE:",
         {{"Minimum Hours " + data.minimumLife, "Average Hours " + data.averageLife},
          {"Comments: " + data.lifeComments}}});
    add(temperatureLines(data, state.units));
    add({"LUBRICATION:", {{"Proposed Lubricant is " + data.lubricant + "  via " + data.lubricationMethod}}});
    add(bearingLines(data));
    add({"MATERIAL:", {{"Shaft " + data.shaftMaterial, "Housing " + data.housingMaterial}}});
    add({"SPECIAL REQUIREMENTS:",
         {{"Allowable Bearing Torque: " + data.allowableTorque, "Sealing: " + data.sealing},
          {"Protective Coating: " + data.coating, "Other: " + data.otherRequirements}}});
    add({"REMARKS:", {{data.remarks}}});
    return sections;
}

}  // namespace norlaplan
