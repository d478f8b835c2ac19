#pragma once

#include "screens/controls/ControlRow.h"
#include "screens/controls/SearchEntryControls.h"
#include "screens/controls/Visitor.h"

/// The load screen, on both paths.
namespace norlaplan::testing {

inline constexpr ControlRow kLoadRows[] = {
    {"Form14", "Form14", "BEARING LOAD INPUT FOR BACK-TO-BACK SET ", "", kBoth, "BACK-TO-BACK SET"},
    {"Form14", "Form14", "BEARING LOAD INPUT FOR 4-POINT CONTACT ", "", kBoth, "4-POINT CONTACT"},
    {"Form14", "Form14", "BEARING LOAD INPUT FOR FACE-TO-FACE SET ", "", kBoth, "FACE-TO-FACE SET"},
    {"Form14", "Form14", "BEARING LOAD INPUT FOR BACK-TO-BACK SET WITH SPACERS ", "", kBoth,
     "BACK-TO-BACK SET WITH SPACERS"},
    {"Form14", "Form14", "BEARING LOAD INPUT FOR RADIAL CONTACT ", "", kBoth, "RADIAL CONTACT"},
    {"Form14", "Form14", "BEARING LOAD INPUT FOR FACE-TO-FACE SET WITH SPACERS ", "", kBoth,
     "FACE-TO-FACE SET WITH SPACERS"},
    // A known bearing goes by its own style.
    {"Form14", "Form14", "BEARING LOAD INPUT FOR 4-POINT CONTACT K19013XP0", "", kBoth, "K19013XP0"},
    {"Form14", "Form14", "BEARING LOAD INPUT FOR RADIAL CONTACT K19013CP0", "", kBoth, "K19013CP0"},
    {"Form14", "Form14", "BEARING LOAD INPUT FOR BACK-TO-BACK SET K19013BR0N", "", kBoth, "K19013BR0N"},
    {"Form14", "Form14", "BEARING LOAD INPUT FOR FACE-TO-FACE SET K19013FR0N", "", kBoth, "K19013FR0N"},
    {"Form14", "Form14", "BEARING LOAD INPUT FOR 4-POINT CONTACT K19013XF0", "", kBoth, "K19013XF0"},
    {"Form14", "Label1", "RADIAL (lbs)", "", kUs},
    {"Form14", "Label1", "RADIAL (N)", "", kMetric},
    {"Form14", "Label2", "AXIAL (lbs)", "", kUs, "!radial"},
    {"Form14", "Label2", "AXIAL (N)", "", kMetric, "!radial"},
    {"Form14", "Label3", "MOMENT (in-lbs)", "", kUs, "!radial"},
    {"Form14", "Label3", "MOMENT (N-M)", "", kMetric, "!radial"},
    {"Form14", "Label4", "SPEED (RPM)", "", kBoth, "", kOwnText},
    {"Form14", "Text1", "", "Load across the axis", kBoth, "!loads entered", kOwnTip},
    {"Form14", "Text1", "1200", "Load across the axis", kBoth, "loads entered", kOwnTip},
    {"Form14", "Text2", "", "Load along the axis", kBoth, "!radial & !loads entered", kOwnTip},
    {"Form14", "Text2", "300", "Load along the axis", kBoth, "!radial & loads entered", kOwnTip},
    {"Form14", "Text3", "", "Overturning moment", kBoth, "!radial & !loads entered", kOwnTip},
    {"Form14", "Text3", "50", "Overturning moment", kBoth, "!radial & loads entered", kOwnTip},
    {"Form14", "Text4", "", "Speed of the rotating ring; leave it empty for none", kBoth,
     "!loads entered & !no separator", kOwnTip},
    {"Form14", "Text4", "0", "Speed of the rotating ring; leave it empty for none", kBoth, "no separator",
     kOwnTip, kNever},
    {"Form14", "Text4", "400", "Speed of the rotating ring; leave it empty for none", kBoth, "loads entered",
     kOwnTip},
    {"Form14", "Command1", "Proceed to life calculation"},
    {"Form14", "Command2", "<< &Previous", "Return to size determination", kBoth, "search"},
    {"Form14", "Command3", "&Main Menu", "Return to Main Menu", kBoth, "", kOwnTip},
};

inline std::vector<Scene> loadScenes() {
    const auto known = [](const char* number) {
        return [number](Visitor& go) {
            go.decode(number);
            go.press("Command13");
        };
    };
    std::vector<Scene> scenes = {
        {"loads of X", "Form14", {}, {"K19013XP0"}, known("K19013XP0")},
        {"loads of C", "Form14", {}, {"K19013CP0", "radial"}, known("K19013CP0")},
        {"loads of B", "Form14", {}, {"K19013BR0N"}, known("K19013BR0N")},
        {"loads of F", "Form14", {}, {"K19013FR0N"}, known("K19013FR0N")},
        {"loads of X without a separator", "Form14", {}, {"K19013XF0", "no separator"}, known("K19013XF0")},
        {"loads of X once more",
         "Form14",
         {},
         {"K19013XP0", "loads entered"},
         [](Visitor& go) {
             go.decode("K19013XP0");
             go.solve("400");
             go.click(forms::kLife, "Command1");
         }},
        {"loads of X after a style was set",
         "Form14",
         {},
         {"K19013XP0"},
         [](Visitor& go) {
             go.chooseStyle(5);
             go.click(forms::kStyle, "Command2");
             go.decode("K19013XP0");
             go.press("Command13");
         }},
    };
    for (int style = 1; style <= 6; ++style) {
        const std::string caption = kStyleCaptions[static_cast<std::size_t>(style)];
        Facts facts = {"search", caption};
        if (caption == "RADIAL CONTACT") facts.insert("radial");
        scenes.push_back(
            {"loads, " + caption, "Form14", {}, facts, [style](Visitor& go) { go.toSearchLoads(style); }});
    }
    return scenes;
}

}  // namespace norlaplan::testing
