#pragma once

#include "screens/controls/ControlRow.h"
#include "screens/controls/SearchEntryControls.h"
#include "screens/controls/Visitor.h"

/// The list of search results and its sort screen.
namespace norlaplan::testing {

inline constexpr ControlRow kResultsRows[] = {
    {"Form15", "Form15", "LIFE CALCULATION RESULTS FOR BACK-TO-BACK SET", "", kBoth, "BACK-TO-BACK SET"},
    {"Form15", "Form15", "LIFE CALCULATION RESULTS FOR 4-POINT CONTACT", "", kBoth, "4-POINT CONTACT"},
    {"Form15", "Form15", "LIFE CALCULATION RESULTS FOR FACE-TO-FACE SET", "", kBoth, "FACE-TO-FACE SET"},
    {"Form15", "Form15", "LIFE CALCULATION RESULTS FOR BACK-TO-BACK SET WITH SPACERS", "", kBoth,
     "BACK-TO-BACK SET WITH SPACERS"},
    {"Form15", "Form15", "LIFE CALCULATION RESULTS FOR RADIAL CONTACT", "", kBoth, "RADIAL CONTACT"},
    {"Form15", "Form15", "LIFE CALCULATION RESULTS FOR FACE-TO-FACE SET WITH SPACERS", "", kBoth,
     "FACE-TO-FACE SET WITH SPACERS"},
    {"Form15", "Frame1", "SIZE REQUIREMENTS", "Sizes entered to limit search"},
    {"Form15", "Label1", "MINIMUM BORE   = 7 inches", "", kUs},
    {"Form15", "Label1", "MINIMUM BORE   = 180 mm", "", kMetric},
    {"Form15", "Label2", "MAXIMUM O.D.   = 9 inches", "", kUs},
    {"Form15", "Label2", "MAXIMUM O.D.   = 220 mm", "", kMetric},
    {"Form15", "Label3", "MINIMUM HEIGHT = 0.25 inches", "", kUs},
    {"Form15", "Label3", "MINIMUM HEIGHT = 5 mm", "", kMetric},
    {"Form15", "Label4", "MAXIMUM HEIGHT = 2 inches", "", kUs},
    {"Form15", "Label4", "MAXIMUM HEIGHT = 50 mm", "", kMetric},
    {"Form15", "Frame2", "LOADS", "Loads entered for analysis"},
    {"Form15", "Label5", "RADIAL = 1200 lbs", "", kUs},
    {"Form15", "Label5", "RADIAL = 1200 N", "", kMetric},
    {"Form15", "Label6", "AXIAL =  300 lbs", "", kUs, "!RADIAL CONTACT"},
    {"Form15", "Label6", "AXIAL =  300 N", "", kMetric, "!RADIAL CONTACT"},
    {"Form15", "Label6", "AXIAL =  0 lbs", "", kUs, "RADIAL CONTACT"},
    {"Form15", "Label6", "AXIAL =  0 N", "", kMetric, "RADIAL CONTACT"},
    {"Form15", "Label7", "MOMENT = 50 in-lbs", "", kUs, "!RADIAL CONTACT"},
    {"Form15", "Label7", "MOMENT = 50 N-m", "", kMetric, "!RADIAL CONTACT"},
    {"Form15", "Label7", "MOMENT = 0 in-lbs", "", kUs, "RADIAL CONTACT"},
    {"Form15", "Label7", "MOMENT = 0 N-m", "", kMetric, "RADIAL CONTACT"},
    {"Form15", "Label8", "SPEED =  400 RPM", "", kBoth, "speed"},
    {"Form15", "Frame3", "RESULTS OF SEARCH"},
    {"Form15", "Label9", "BEARING         L10  LIFE              L10  LIFE"},
    {"Form15", "Combo1", "*    ~ revs.    ~ hrs.    STOCK - *", "Bearings that fit, with their life", kBoth,
     "speed", kOwnTip},
    {"Form15", "Combo1", "*    ~ revs.    STOCK - *", "Bearings that fit, with their life", kBoth, "!speed",
     kOwnTip},
    {"Form15", "List1", "", "", kBoth, "", kOwn},
    {"Form15", "List1 > Copy", "Copy", "Copy the table for a spreadsheet", kBoth, "", kOwn},
    {"Form15", "Frame4", "BACK-TO-BACK SET", "Image of bearing style chosen for analysis", kBoth,
     "BACK-TO-BACK SET", kOwnTip},
    {"Form15", "Frame4", "4-POINT CONTACT", "Image of bearing style chosen for analysis", kBoth,
     "4-POINT CONTACT", kOwnTip},
    {"Form15", "Frame4", "FACE-TO-FACE SET", "Image of bearing style chosen for analysis", kBoth,
     "FACE-TO-FACE SET", kOwnTip},
    {"Form15", "Frame4", "BACK-TO-BACK SET WITH SPACERS", "Image of bearing style chosen for analysis", kBoth,
     "BACK-TO-BACK SET WITH SPACERS", kOwnTip},
    {"Form15", "Frame4", "RADIAL CONTACT", "Image of bearing style chosen for analysis", kBoth,
     "RADIAL CONTACT", kOwnTip},
    {"Form15", "Frame4", "FACE-TO-FACE SET WITH SPACERS", "Image of bearing style chosen for analysis", kBoth,
     "FACE-TO-FACE SET WITH SPACERS", kOwnTip},
    {"Form15", "Image1", "", "Image of bearing style chosen for analysis"},
    {"Form15", "Frame5", "*", "Envelope size of selected bearing"},
    {"Form15", "Label11", "Bore = ~ inches", "", kUs},
    {"Form15", "Label11", "Bore = ~ mm", "", kMetric},
    {"Form15", "Label12", "O.D. = ~ inches", "", kUs},
    {"Form15", "Label12", "O.D. = ~ mm", "", kMetric},
    {"Form15", "Label13", "Height = ~ inches", "", kUs},
    {"Form15", "Label13", "Height = ~ mm", "", kMetric},
    {"Form15", "Label14",
     "   Data Sheet Available for                *A                      without Spacers Only!", "", kBoth,
     "spacers"},
    {"Form15", "Warning1", "Row 2 has the shorter life: ~ revolutions", "", kUs, "BACK-TO-BACK SET", kOwn},
    {"Form15", "Warning1", "Row 2 has the shorter life: ~ revolutions", "", kUs, "4-POINT CONTACT", kOwn},
    {"Form15", "Warning1", "Row 2 has the shorter life: ~ revolutions", "", kUs,
     "BACK-TO-BACK SET WITH SPACERS", kOwn},
    {"Form15", "Command1", "&Main Menu", "Return to Main Menu"},
    {"Form15", "Command2", "<< &Previous", "Go back to Load input"},
    {"Form15", "Command3", "P&rint Results", "Print results from search"},
    {"Form15", "Command4", "&Short-cut to Data Sheet", "Create data sheet for chosen bearing"},
    {"Form15", "Command5", "&Sort List", "Sort list of bearings"},
    {"Form15", "Command6", "Save", "Save Results to file"},
    {"Form15", "OpenSaved", "Open", "Open the saved file with its program", kBoth, "saved", kOwn},
    {"Form15", "ShowSaved", "Show in Folder", "Open the folder of the saved file", kBoth, "saved", kOwn},

    {"Form13", "Form13", "List Sort Options"},
    {"Form13", "Frame1", "Sort by", "", kBoth, "", kOwn},
    {"Form13", "Option1", "Bore Diameter", "", kBoth, "", kStated, "", "!sorted by life"},
    {"Form13", "Option2", "Outer Diameter", "", kBoth, "", kStated, "", kNever},
    {"Form13", "Option3", "L10 Life", "", kBoth, "", kStated, "", "sorted by life"},
    {"Form13", "Option4", "Availability", "", kBoth, "", kStated, "", kNever},
    {"Form13", "Frame2", "Order", "", kBoth, "", kOwn},
    {"Form13", "Option5", "Ascending", "", kBoth, "", kStated, "", "!sorted by life"},
    {"Form13", "Option6", "Decending", "", kBoth, "", kStated, "", "sorted by life"},
    {"Form13", "Command1", "Process", "Sort the list and go back to it", kBoth, "", kOwnTip},
};

inline std::vector<Scene> resultsScenes() {
    const auto sortedByLife = [](Visitor& go) {
        go.search(2, "400");
        go.click(forms::kResults, "Command5");
        go.click(forms::kSort, "Option3");
        go.click(forms::kSort, "Option6");
        go.click(forms::kSort, "Command1");
    };
    std::vector<Scene> scenes = {
        {"list after a sort", "Form15", {}, {"4-POINT CONTACT", "speed"}, sortedByLife},
        {"list without a speed", "Form15", {}, {"4-POINT CONTACT"}, [](Visitor& go) { go.search(2, ""); }},
        {"list, saved",
         "Form15",
         {},
         {"4-POINT CONTACT", "saved"},
         [](Visitor& go) {
             go.search(2, "");
             go.save(forms::kResults, "Command6");
         }},
        {"sort",
         "Form13",
         {},
         {},
         [](Visitor& go) {
             go.search(2, "");
             go.click(forms::kResults, "Command5");
         }},
        {"sort once more",
         "Form13",
         {},
         {"sorted by life"},
         [sortedByLife](Visitor& go) {
             sortedByLife(go);
             go.click(forms::kResults, "Command5");
         }},
    };
    for (int style = 1; style <= 6; ++style) {
        const std::string caption = kStyleCaptions[static_cast<std::size_t>(style)];
        Facts facts = {"speed", caption};
        if (caption.ends_with("SPACERS")) facts.insert("spacers");
        scenes.push_back(
            {"list, " + caption, "Form15", {}, facts, [style](Visitor& go) { go.search(style, "400"); }});
    }
    return scenes;
}

}  // namespace norlaplan::testing
