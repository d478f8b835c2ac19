#pragma once

#include <QTabWidget>

#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// The application form, a scene for each of its pages.
namespace norlaplan::testing {

inline constexpr ControlRow kApplicationRows[] = {
    {"Form10", "Form10", "Application Form"},
    {"Form10", "Command1", "&Main Menu", "Return to Main Menu"},
    {"Form10", "Command2", "P&rint", "Print completed form"},
    {"Form10", "Command3", "&Save", "Save data to file"},
    {"Form10", "Command4", "&Open...", "Read a saved data file back into the form", kBoth, "", kOwn},
    {"Form10", "SSTab1", ""},
    {"Form10", "SSTab1Tabs", "", "", kBoth, "", kOwn},
    {"Form10", "Legend1", "Green Light means Complete Data Set"},
    {"Form10", "Legend2", "Yellow Light means Partial Data Set"},
    {"Form10", "Legend3", "Red Light means Empty Data Set"},
    {"Form10", "Text1", "", "Company Contact Name", kBoth, "FROM"},
    {"Form10", "Text2", "", "Company Name", kBoth, "FROM"},
    {"Form10", "Text3", "", "Company Address Line 1", kBoth, "FROM"},
    {"Form10", "Text4", "", "Company Address Line 2", kBoth, "FROM"},
    {"Form10", "Text5", "", "Contact Job Title", kBoth, "FROM"},
    {"Form10", "Text6", "", "Complete Phone Number", kBoth, "FROM"},
    {"Form10", "Text7", "", "Complete Facsimile Number", kBoth, "FROM"},
    {"Form10", "Text8", "", "How Bearing will be Used", kBoth, "FROM"},
    {"Form10", "Text9", "", "Project Name", kBoth, "FROM"},
    {"Form10", "Text10", "", "Number of Bearings needed", kBoth, "FROM"},
    {"Form10", "Text11", "", "Maximum nonrotating Radial Load", kBoth, "LOADS"},
    {"Form10", "Text12", "", "Maximum nonrotating Thrust Load", kBoth, "LOADS"},
    {"Form10", "Text13", "", "Maximum nonrotating Moment Load", kBoth, "LOADS"},
    {"Form10", "Text14", "", "Average rotating Radial Load", kBoth, "LOADS"},
    {"Form10", "Text15", "", "Average rotating Thrust Load", kBoth, "LOADS"},
    {"Form10", "Text16", "", "Average rotating Moment Load", kBoth, "LOADS"},
    {"Form10", "Text17", "", "Details of Shock or Vibration", kBoth, "LOADS", kStated, "shock"},
    {"Form10", "Text18", "", "Desired Factor of Safety", kBoth, "LOADS"},
    {"Form10", "Text19", "", "Maximum expected RMP", kBoth, "SPEED"},
    {"Form10", "Text20", "", "Minimum expected RPM", kBoth, "SPEED"},
    {"Form10", "Text21", "", "Angle of Oscillation", kBoth, "OSCILLATION & oscillates"},
    {"Form10", "Text22", "", "Cycles per second", kBoth, "OSCILLATION & oscillates"},
    {"Form10", "Text23", "", "Inner Race Runout \"Full Indicator Movement\"", kBoth, "ACCURACY & class 8"},
    {"Form10", "Text24", "", "Outer Race Radial Runout \"Full Indicator Movement\"", kBoth,
     "ACCURACY & class 8"},
    {"Form10", "Text25", "", "Inner Race Axial Runout \"Full Indicator Movement\"", kBoth,
     "ACCURACY & class 8"},
    {"Form10", "Text26", "", "Outer Race Axial Runout \"Full Indicator Movement\"", kBoth,
     "ACCURACY & class 8"},
    {"Form10", "Text27", "", "Radial Play of Bearing(S)", kBoth, "ACCURACY & class 8"},
    {"Form10", "Text28", "", "Axial Play of Bearing(S)", kBoth, "ACCURACY & class 8"},
    {"Form10", "Text29", "", "Minimum Acceptable L10 Life", kBoth, "LIFE"},
    {"Form10", "Text30", "", "Average Expected Bearing L10 life", kBoth, "LIFE"},
    {"Form10", "Text31", "", "Alternate Life requirements", kBoth, "LIFE"},
    {"Form10", "Text32", "", "Typical Operating Temperature", kBoth, "TEMPERATURE"},
    {"Form10", "Text33", "", "Coldest Expected Temperature", kBoth, "TEMPERATURE"},
    {"Form10", "Text34", "", "Hottest Expected Temperature", kBoth, "TEMPERATURE"},
    {"Form10", "Text35", "", "\"+\" is shaft hotter, \"-\" is shaft cooler than housing", kBoth,
     "TEMPERATURE"},
    {"Form10", "Text36", "", "Type , name and manufacturer of lubricant desired", kBoth, "LUBRICATION"},
    {"Form10", "Text37", "", "Initial fill, grease injection, oil bath, etc.", kBoth, "LUBRICATION"},
    {"Form10", "Text38", "", "Bearing Inner Diameter", kBoth, "BEARING"},
    {"Form10", "Text39", "", "Bearing Outer Diameter", kBoth, "BEARING"},
    {"Form10", "Text40", "", "Overall Width of bearing in Axial Direction", kBoth, "BEARING"},
    {"Form10", "Text41", "", "Smallest Acceptable Inner Diameter", kBoth, "BEARING"},
    {"Form10", "Text42", "", "Largest Acceptable Outer Diameter", kBoth, "BEARING"},
    {"Form10", "Text43", "", "Maximum overall axial width", kBoth, "BEARING"},
    {"Form10", "Text44", "",
     "Style of bearing such as \"Radial\",  \"4-Point Contact\", \"Duplexed Back-to-Back\", etc.", kBoth,
     "BEARING"},
    {"Form10", "Text45", "", "Material or Properties of the Shaft", kBoth, "MATERIAL"},
    {"Form10", "Text46", "", "Material or Properties of the Housing", kBoth, "MATERIAL"},
    {"Form10", "Text47", "", "Maximum Drive Torque Available to Rotate Bearing", kBoth,
     "SPECIAL REQUIREMENTS"},
    {"Form10", "Text48", "", "Are Integral Seals Required in the Bearing?", kBoth, "SPECIAL REQUIREMENTS"},
    {"Form10", "Text49", "", "Thin Dense Chrome, Cadmium, Etc.", kBoth, "SPECIAL REQUIREMENTS"},
    {"Form10", "Text50", "", "Other", kBoth, "SPECIAL REQUIREMENTS"},
    {"Form10", "Text51", "", "Any Additional Requirements not yet Specified", kBoth, "REMARKS"},
    {"Form10", "Label21", "Angle in Degrees", "", kBoth, "OSCILLATION & oscillates"},
    {"Form10", "Label22", "Frequency", "", kBoth, "OSCILLATION & oscillates"},
    {"Form10", "Check1", "Vibration or Shock", "", kBoth, "LOADS", kStated, "", "shock"},
    {"Form10", "Option1", "EXPERIMENTAL", "", kBoth, "FROM"},
    {"Form10", "Option2", "PROTOTYPE", "", kBoth, "FROM"},
    {"Form10", "Option3", "PRODUCTION", "", kBoth, "FROM"},
    {"Form10", "Option4", "SPECIAL MACHINE", "", kBoth, "FROM"},
    {"Form10", "Option5", "OTHER", "", kBoth, "FROM"},
    {"Form10", "Option6", "O.E.M.", "", kBoth, "FROM"},
    {"Form10", "Option7", "RESALE", "", kBoth, "FROM"},
    {"Form10", "Option8", "OWN USE", "", kBoth, "FROM"},
    {"Form10", "Option9", "REPLACEMENT", "", kBoth, "FROM"},
    {"Form10", "Option10", "IS", "", kBoth, "LOADS"},
    {"Form10", "Option11", "IS NOT", "", kBoth, "LOADS"},
    {"Form10", "Option12", "YES", "", kBoth, "OSCILLATION", kStated, "", "oscillates"},
    {"Form10", "Option13", "NO", "", kBoth, "OSCILLATION"},
    {"Form10", "Option14", "0 = PRECISION CLASS 1", "", kBoth, "ACCURACY", kStated, "", "!class 8"},
    {"Form10", "Option15", "1 = PRECISION CLASS 1 with CLASS 4 RUNOUTS", "", kBoth, "ACCURACY"},
    {"Form10", "Option16", "2 = PRECISION CLASS 1 with CLASS 6 RUNOUTS", "", kBoth, "ACCURACY"},
    {"Form10", "Option17", "3 = PRECISION CLASS 3", "", kBoth, "ACCURACY"},
    {"Form10", "Option18", "4 = PRECISION CLASS 4", "", kBoth, "ACCURACY"},
    {"Form10", "Option19", "6 = PRECISION CLASS 6", "", kBoth, "ACCURACY"},
    {"Form10", "Option20", "8 = OTHER - DEFINED BELOW", "", kBoth, "ACCURACY", kStated, "", "class 8"},
    {"Form10", "Option21", "VERTICAL", "", kBoth, "BEARING"},
    {"Form10", "Option22", "HORIZONTAL", "", kBoth, "BEARING"},
    {"Form10", "Option23", "INNER", "", kBoth, "BEARING"},
    {"Form10", "Option24", "OUTER", "", kBoth, "BEARING"},
    {"Form10", "Frame13", "PERMISSIBLE ECCENTRICITY", "", kBoth, "ACCURACY & class 8"},
    {"Form10", "Frame14", "PERMISSIBLE FACE RUN-OUT", "", kBoth, "ACCURACY & class 8"},
    {"Form10", "Frame15", "PERMISSIBLE LOOSENESS", "", kBoth, "ACCURACY & class 8"},
};

inline std::vector<Scene> applicationScenes() {
    std::vector<Scene> scenes;
    const auto add = [&](const std::string& page, int tab, const Facts& facts, const char* choice) {
        Facts all = facts;
        all.insert(page);
        std::string name = "application form, " + page;
        for (const std::string& fact : facts)
            name += ", " + fact;
        scenes.push_back({name, "Form10", {}, all, [tab, choice](Visitor& go) {
                              go.press("Command3");
                              go.control<QTabWidget>(forms::kApplication, "SSTab1").setCurrentIndex(tab);
                              if (choice != nullptr) go.click(forms::kApplication, choice);
                          }});
    };
    const char* const pages[] = {
        "FROM",        "LOADS",   "SPEED",    "OSCILLATION",          "ACCURACY", "LIFE", "TEMPERATURE",
        "LUBRICATION", "BEARING", "MATERIAL", "SPECIAL REQUIREMENTS", "REMARKS"};
    for (int tab = 0; tab < 12; ++tab)
        add(pages[tab], tab, {}, nullptr);
    add("LOADS", 1, {"shock"}, "Check1");
    add("OSCILLATION", 3, {"oscillates"}, "Option12");
    add("ACCURACY", 4, {"class 8"}, "Option20");
    return scenes;
}

}  // namespace norlaplan::testing
