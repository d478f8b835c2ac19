#pragma once

#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// The load-life screen. The bearings have 190 mm bore, 216 mm outer diameter and 13 mm height, 26 mm as a
/// pair; an inch is 25.4 mm.
namespace norlaplan::testing {

inline constexpr ControlRow kLifeRows[] = {
    {"Form19", "Form19", "LOAD-LIFE CALCULATION FOR K19013XP0", "", kBoth, "K19013XP0"},
    {"Form19", "Form19", "LOAD-LIFE CALCULATION FOR K19013CP0", "", kBoth, "K19013CP0"},
    {"Form19", "Form19", "LOAD-LIFE CALCULATION FOR K19013BR0N", "", kBoth, "K19013BR0N"},
    {"Form19", "Form19", "LOAD-LIFE CALCULATION FOR K19013FR0N", "", kBoth, "K19013FR0N"},
    {"Form19", "Frame1", "SIZE"},
    {"Form19", "Label1", "BORE       = 7.4803 inches", "", kUs},
    {"Form19", "Label1", "BORE       = 190.000 mm", "", kMetric},
    {"Form19", "Label2", "O. D.      = 8.5039 inches", "", kUs},
    {"Form19", "Label2", "O. D.      = 216.000 mm", "", kMetric},
    {"Form19", "Label3", "HEIGHT     = 0.5118 inches", "", kUs, "!pair"},
    {"Form19", "Label3", "HEIGHT     = 13.000 mm", "", kMetric, "!pair"},
    {"Form19", "Label3", "HEIGHT     = 1.0236 inches", "", kUs, "pair"},
    {"Form19", "Label3", "HEIGHT     = 26.000 mm", "", kMetric, "pair"},
    {"Form19", "Frame2", "LOADS"},
    {"Form19", "Label4", "RADIAL = 1,200 pounds", "", kUs},
    {"Form19", "Label4", "RADIAL = 1,200 N", "", kMetric},
    {"Form19", "Label5", "AXIAL  = 300 pounds", "", kUs, "!K19013CP0"},
    {"Form19", "Label5", "AXIAL  = 300 N", "", kMetric, "!K19013CP0"},
    {"Form19", "Label5", "AXIAL  = 0 pounds", "", kUs, "K19013CP0"},
    {"Form19", "Label5", "AXIAL  = 0 N", "", kMetric, "K19013CP0"},
    {"Form19", "Label6", "MOMENT = 50 inch-lbs.", "", kUs, "!K19013CP0"},
    {"Form19", "Label6", "MOMENT = 50 N-m", "", kMetric, "!K19013CP0"},
    {"Form19", "Label6", "MOMENT = 0 inch-lbs.", "", kUs, "K19013CP0"},
    {"Form19", "Label6", "MOMENT = 0 N-m", "", kMetric, "K19013CP0"},
    {"Form19", "Label7", "SPEED =  400 RPM", "", kBoth, "400 rpm"},
    {"Form19", "Label7", "SPEED =  50000 RPM", "", kBoth, "50000 rpm"},
    {"Form19", "Frame3", "Radial Contact", "", kBoth, "K19013CP0"},
    {"Form19", "Frame3", "Four-Point Contact", "", kBoth, "K19013XP0"},
    {"Form19", "Frame3", "Back-to-Back Duplex", "", kBoth, "K19013BR0N"},
    {"Form19", "Frame3", "Face-to-Face Duplex", "", kBoth, "K19013FR0N"},
    {"Form19", "Image1", ""},
    {"Form19", "Picture1", ""},
    {"Form19", "Frame4", "LOAD AND LIFE RESULTS"},
    {"Form19", "Label8", "L10 LIFE = ~ REVOLUTIONS"},
    {"Form19", "Label9", "L10 LIFE = ~ HOURS", "", kBoth, "400 rpm"},
    {"Form19", "Label9", "L10 LIFE = ~ HOURS", "", kBoth, "50000 rpm"},
    {"Form19", "Label10", "STATIC SAFETY FACTOR = ~"},
    {"Form19", "Label13", "Estimated Starting Torque = ~ inch-lbs. ", "", kUs},
    {"Form19", "Label13", "Estimated Starting Torque = ~ N-m ", "", kMetric},
    {"Form19", "Frame5", "COMMENTS"},
    {"Form19", "Label11", "The speed of 400 RPM is below the recommended limit of ~ RPM.", "", kBoth,
     "400 rpm"},
    {"Form19", "Label11",
     "WARNING !!!, the speed of 50000 RPM exceeds the maximum recommended limit of ~ RPM!", "", kBoth,
     "50000 rpm"},
    {"Form19", "Label12",
     "The STATIC SAFETY FACTOR is based on non-detrimental permanent deformation, and the assumption that "
     "the inner and outer bearing races are radially restrained by a rigid shaft and housing."},
    {"Form19", "Label14",
     "Starting Torque is based on typical aplications.  Actual measurements may vary by 50% of the values "
     "listed.  If specific values are required, they must be noted before ordering."},
    {"Form19", "Command1", "&Previous", "Return to load input"},
    {"Form19", "Command2", "&Main Menu", "Return to Main Menu"},
    {"Form19", "Command3", "P&rint", "Print results of calculations"},
    {"Form19", "Command4", "&Save", "Save Results to file"},
    {"Form19", "Command5", "Ball Load             Plot",
     "Option to see how loads are distributed around both rows of balls", kBoth, "BALL SHOW"},
    {"Form19", "Command6", "Lube Film          Check", "", kBoth, "LUBE FILM"},
    {"Form19", "Command7", "Contact         Stress", "View path stress and contact angle", kBoth,
     "PATH STRESS & !K19013CP0"},
    {"Form19", "Command8", "Show Sams Tlodestar Results", "", kBoth, "LARS HOFMANN"},
    {"Form19", "Command8", "Show Sams Tlodestar Results", "", kBoth, "SAM LUND & !LARS HOFMANN"},
    {"Form19", "OpenSaved", "Open", "Open the saved file with its program", kBoth, "saved", kOwn},
    {"Form19", "ShowSaved", "Show in Folder", "Open the folder of the saved file", kBoth, "saved", kOwn},
};

inline std::vector<Scene> lifeScenes() {
    const auto life = [](const char* number, const char* speed) {
        return [number, speed](Visitor& go) {
            go.decode(number);
            go.solve(speed);
        };
    };
    const std::vector<std::string> all = {"DEFLECTION", "NED GROVE", "FAX COVER",   "LARS HOFMANN",
                                          "BALL SHOW",  "LUBE FILM", "PATH STRESS", "QLX",
                                          "SAM LUND",   "TEMPFITS"};
    std::vector<Scene> scenes = {
        {"life of X, saved",
         "Form19",
         {},
         {"K19013XP0", "saved"},
         [life](Visitor& go) {
             life("K19013XP0", "")(go);
             go.save(forms::kLife, "Command4");
         }},
        {"life of X over the speed limit",
         "Form19",
         {},
         {"K19013XP0", "50000 rpm"},
         life("K19013XP0", "50000")},
        {"life of X, all options", "Form19", all, {"K19013XP0"}, life("K19013XP0", "")},
        {"life of C, all options", "Form19", all, {"K19013CP0"}, life("K19013CP0", "")},
        {"life of B, all options", "Form19", all, {"K19013BR0N", "pair"}, life("K19013BR0N", "")},
    };
    for (const char* const number : {"K19013XP0", "K19013CP0", "K19013BR0N", "K19013FR0N"}) {
        Facts facts = {number};
        if (std::string(number).size() == 10) facts.insert("pair");
        scenes.push_back({std::string("life of ") + number[6] + " without a speed",
                          "Form19",
                          {},
                          facts,
                          life(number, "")});
        facts.insert("400 rpm");
        scenes.push_back({std::string("life of ") + number[6] + " with a speed",
                          "Form19",
                          {},
                          facts,
                          life(number, "400")});
    }
    for (const std::string& keyword : all)
        scenes.push_back(
            {"life of X, " + keyword, "Form19", {keyword}, {"K19013XP0"}, life("K19013XP0", "")});
    return scenes;
}

}  // namespace norlaplan::testing
