#pragma once

#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// The main menu: its buttons, the marks of the two paths, its menus.
namespace norlaplan::testing {

/// The lines that Extras.txt may hold and that let the start screen or the main menu come up.
inline const std::vector<std::string> kKeywords = {"DEFLECTION", "NED GROVE", "FAX COVER", "LARS HOFMANN",
                                                   "SKIP INTRO", "BALL SHOW", "LUBE FILM", "PATH STRESS",
                                                   "QLX",        "SAM LUND",  "TEMPFITS"};

inline constexpr ControlRow kMainMenuRows[] = {
    {"Form3", "Form3", "Norlaplan MM"},
    {"Form3", "Command1", "Introduction", "Software Introduction"},
    {"Form3", "Command2", "Bearing Training", "View Power Point Presentation"},
    {"Form3", "Command3", "Application Form", "Fill out Application form to send to Varden"},
    {"Form3", "Command4", "Set Style", "Select any of 6 bearing styles"},
    {"Form3", "Command5", "Set Sizes", "Set minimum and maximum envelope sizes"},
    {"Form3", "Command6", "Load Input", "Enter Load condition"},
    {"Form3", "Command7", "Search Results", "Create and see list of possible bearings"},
    {"Form3", "Command8", "Enter Model Number", "Enter 9 or 10 digit model number"},
    {"Form3", "Command9", "Data Sheet", "View Data sheet (drawing)"},
    {"Form3", "Command10", "Preload Torque", "Calculate torque vs. preload curve"},
    {"Form3", "Command11", "Axial Play", "Calculate axial movement based on radial clearance"},
    {"Form3", "Command12", "Deflection", "Calculate Deflection Characteristics"},
    {"Form3", "Command13", "Load Input", "Enter load case"},
    {"Form3", "Command14", "Static + Dynamic Life", "Safety factor and L10 life based on load case"},
    {"Form3", "Command15", "Quit", "Exit Program"},
    {"Form3", "Command16", "Fax Cover Page", "Print out Fax Cover Page", kBoth, "FAX COVER"},
    {"Form3", "Command17", "Ned's Stuff", "Ned Grove's Bearing Pictures", kBoth, "NED GROVE"},
    {"Form3", "Command18", "Is Part Number Known ?", "Directional flow for data entry"},
    {"Form3", "Command19", "Temp Fits", "Shaft and Housing Fits at High or Low Temperatures", kBoth,
     "TEMPFITS"},
    {"Form3", "Label1", "Start here", "", kBoth, "known path", kOwnText},
    {"Form3", "Label2", "Start here", "", kBoth, "search path", kOwnText},
    {"Form3", "Label3", "", "", kBoth, "!K19013XP0"},
    {"Form3", "Label3", "K19013XP0", "", kBoth, "K19013XP0"},

    {"Form3", "File", "File"},
    {"Form3", "File > New", "New", "", kBoth, "", kOwnText},
    {"Form3", "File > Sendto", "Send To"},
    {"Form3", "File > Sendto > mail", "Mail Recipient"},
    {"Form3", "File > makeqlx", "Create QLX file", "", kBoth, "QLX"},
    {"Form3", "File > Exit", "Exit", "", kBoth, "", kOwnText},
    {"Form3", "Options", "Options"},
    {"Form3", "Options > dimensions", "Dimensions"},
    {"Form3", "Options > settings", "Settings"},
    {"Form3", "Options > settings > userinfo", "User Info"},
    {"Form3", "Bearing Types", "Bearing Types"},
    {"Form3", "Bearing Types > Metric Series", "Metric Series", "", kBoth, "", kOwn},
    {"Form3", "Bearing Types > Inch Series", "Inch Series", "", kBoth, "", kOwn},
    {"Form3", "Bearing Types > Four-Point Contact", "Four-Point Contact", "", kBoth, "", kOwn},
    {"Form3", "Bearing Types > Duplex Sets", "Duplex Sets", "", kBoth, "", kOwn},
    {"Form3", "Bearing Types > Stainless Series", "Stainless Series", "", kBoth, "", kOwn},
    {"Form3", "Bearing Types > Ceramic Hybrid", "Ceramic Hybrid", "", kBoth, "", kOwn},
    {"Form3", "Bearing Types > Slewing Rings", "Slewing Rings", "", kBoth, "", kOwn},
    {"Form3", "Bearing Types > Custom", "Custom", "", kBoth, "", kOwnText},
    {"Form3", "Additional Information", "Additional Information"},
    {"Form3", "Additional Information > Catalog", "Download Catalog"},
    {"Form3", "Additional Information > CatalogIntroduction", "Catalog Introduction", "", kBoth, "", kOwn},
    {"Form3", "Additional Information > DistributorInformation", "Distributor Information", "", kBoth, "",
     kOwnText},
    {"Form3", "Additional Information > warranty", "Warranty", "", kBoth, "", kOwnText},
    {"Form3", "Help", "Help"},
    {"Form3", "Help > kmetrichelp", "Help"},
    {"Form3", "Help > About", "About", "", kBoth, "", kOwnText},
};

inline std::vector<Scene> mainMenuScenes() {
    const auto toMenu = [](Visitor& go) { go.toMenu(); };
    std::vector<Scene> scenes = {
        {"menu", "Form3", {}, {}, toMenu},
        {"menu, all options", "Form3", kKeywords, {}, toMenu},
        {"menu, a bearing in hand", "Form3", {}, {"K19013XP0"}, [](Visitor& go) { go.decode("K19013XP0"); }},
        {"menu, part number known",
         "Form3",
         {},
         {"known path"},
         [](Visitor& go) {
             go.messages.answers = {Answer::Yes};
             go.press("Command18");
             go.click(forms::kPartNumber, "Command3");
         }},
        {"menu, part number not known",
         "Form3",
         {},
         {"search path"},
         [](Visitor& go) {
             go.messages.answers = {Answer::No};
             go.press("Command18");
             go.click(forms::kStyle, "Command2");
         }},
    };
    for (const std::string& keyword : kKeywords)
        scenes.push_back({"menu, " + keyword, "Form3", {keyword}, {}, toMenu});
    return scenes;
}

}  // namespace norlaplan::testing
