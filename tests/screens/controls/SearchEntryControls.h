#pragma once

#include <array>

#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// What a search is given: the style and size screens. The load screen has a file of its own.
namespace norlaplan::testing {

/// The styles by their pictures' numbers, 1 to 6.
inline constexpr std::array<const char*, 7> kStyleCaptions = {"",
                                                              "BACK-TO-BACK SET",
                                                              "4-POINT CONTACT",
                                                              "FACE-TO-FACE SET",
                                                              "BACK-TO-BACK SET WITH SPACERS",
                                                              "RADIAL CONTACT",
                                                              "FACE-TO-FACE SET WITH SPACERS"};

inline constexpr ControlRow kSearchEntryRows[] = {
    {"Form16", "Form16", "Bearing Style Selection"},
    {"Form16", "Image1", "BACK-TO-BACK", "Angular Contact Bearings Duplexed Back-to-Back", kBoth, "", kOwnTip,
     "", "BACK-TO-BACK SET"},
    {"Form16", "Image2", "4-POINT CONTACT", "4-Point Contact Bearing", kBoth, "", kOwnTip, "",
     "4-POINT CONTACT"},
    {"Form16", "Image3", "FACE-TO-FACE", "Angular Contact Bearings Duplexed Face-to-Face", kBoth, "", kOwnTip,
     "", "FACE-TO-FACE SET"},
    {"Form16", "Image4", "BACK-TO-BACK W/ SPACERS",
     "Angular Contact Bearings Duplexed Back-to-Back with Spacers", kBoth, "", kOwnTip, "",
     "BACK-TO-BACK SET WITH SPACERS"},
    {"Form16", "Image5", "RADIAL CONTACT", "Radial Contact Bearing", kBoth, "", kOwnTip, "",
     "RADIAL CONTACT"},
    {"Form16", "Image6", "FACE-TO FACE W/ SPACERS",
     "Angular Contact Bearings Duplexed Face-to-Face with Spacers", kBoth, "", kOwnTip, "",
     "FACE-TO-FACE SET WITH SPACERS"},
    // A blank keeps the line free for the description.
    {"Form16", "Label1", " ", "", kBoth, "no style"},
    {"Form16", "Label1", "Angular Contact Bearings Duplexed Back-to-Back", "", kBoth, "BACK-TO-BACK SET"},
    {"Form16", "Label1", "4-Point Contact Bearing", "", kBoth, "4-POINT CONTACT"},
    {"Form16", "Label1", "Angular Contact Bearings Duplexed Face-to-Face", "", kBoth, "FACE-TO-FACE SET"},
    {"Form16", "Label1", "Angular Contact Bearings Duplexed Back-to-Back with Spacers", "", kBoth,
     "BACK-TO-BACK SET WITH SPACERS"},
    {"Form16", "Label1", "Radial Contact Bearing", "", kBoth, "RADIAL CONTACT"},
    {"Form16", "Label1", "Angular Contact Bearings Duplexed Face-to-Face with Spacers", "", kBoth,
     "FACE-TO-FACE SET WITH SPACERS"},
    {"Form16", "Command1", "Proceed to Bearing Size selection"},
    {"Form16", "Command2", "&Main Menu", "Return to Main Menu"},

    {"Form12", "Form12", "BEARING SIZE SELECTION FOR BACK-TO-BACK SET", "", kBoth, "BACK-TO-BACK SET"},
    {"Form12", "Form12", "BEARING SIZE SELECTION FOR 4-POINT CONTACT", "", kBoth, "4-POINT CONTACT"},
    {"Form12", "Form12", "BEARING SIZE SELECTION FOR FACE-TO-FACE SET", "", kBoth, "FACE-TO-FACE SET"},
    {"Form12", "Form12", "BEARING SIZE SELECTION FOR BACK-TO-BACK SET WITH SPACERS", "", kBoth,
     "BACK-TO-BACK SET WITH SPACERS"},
    {"Form12", "Form12", "BEARING SIZE SELECTION FOR RADIAL CONTACT", "", kBoth, "RADIAL CONTACT"},
    {"Form12", "Form12", "BEARING SIZE SELECTION FOR FACE-TO-FACE SET WITH SPACERS", "", kBoth,
     "FACE-TO-FACE SET WITH SPACERS"},
    {"Form12", "Label1", "MINIMUM BORE (in)", "", kUs},
    {"Form12", "Label1", "MINIMUM BORE (mm)", "", kMetric},
    {"Form12", "Label2", "MAXIMUM OUTER DIAMETER (in)", "", kUs},
    {"Form12", "Label2", "MAXIMUM OUTER DIAMETER (mm)", "", kMetric},
    {"Form12", "Label3", "MAX. HEIGHT (in)", "", kUs},
    {"Form12", "Label3", "MAX. HEIGHT (mm)", "", kMetric},
    {"Form12", "Label4", "MIN. HEIGHT (in)", "", kUs},
    {"Form12", "Label4", "MIN. HEIGHT (mm)", "", kMetric},
    {"Form12", "Text1", "", "The bearing's bore is at least this", kBoth, "!sizes entered", kOwnTip},
    {"Form12", "Text1", "7", "The bearing's bore is at least this", kUs, "sizes entered", kOwnTip},
    {"Form12", "Text1", "180", "The bearing's bore is at least this", kMetric, "sizes entered", kOwnTip},
    {"Form12", "Text2", "", "The bearing's outer diameter is at most this", kBoth, "!sizes entered", kOwnTip},
    {"Form12", "Text2", "9", "The bearing's outer diameter is at most this", kUs, "sizes entered", kOwnTip},
    {"Form12", "Text2", "220", "The bearing's outer diameter is at most this", kMetric, "sizes entered",
     kOwnTip},
    {"Form12", "Text3", "", "The bearing or set is at least this high", kBoth, "!sizes entered", kOwnTip},
    {"Form12", "Text3", "0.25", "The bearing or set is at least this high", kUs, "sizes entered", kOwnTip},
    {"Form12", "Text3", "5", "The bearing or set is at least this high", kMetric, "sizes entered", kOwnTip},
    {"Form12", "Text4", "", "The bearing or set is at most this high", kBoth, "!sizes entered", kOwnTip},
    {"Form12", "Text4", "2", "The bearing or set is at most this high", kUs, "sizes entered", kOwnTip},
    {"Form12", "Text4", "50", "The bearing or set is at most this high", kMetric, "sizes entered", kOwnTip},
    {"Form12", "Command1", "<< &Previous", "Go back to style selection", kBoth, "", kOwnTip},
    {"Form12", "Command2", "Proceed to load input"},
    {"Form12", "Command3", "&Main Menu", "Return to Main Menu", kBoth, "", kOwnTip},
};

inline std::vector<Scene> searchEntryScenes() {
    std::vector<Scene> scenes = {
        {"style", "Form16", {}, {"no style"}, [](Visitor& go) { go.press("Command4"); }},
        {"sizes once more",
         "Form12",
         {},
         {"RADIAL CONTACT", "sizes entered"},
         [](Visitor& go) {
             go.toSearchLoads(5);
             go.click(forms::kLoads, "Command2");
         }},
    };
    for (int style = 1; style <= 6; ++style) {
        const std::string caption = kStyleCaptions[static_cast<std::size_t>(style)];
        scenes.push_back(
            {"style, " + caption, "Form16", {}, {caption}, [style](Visitor& go) { go.chooseStyle(style); }});
        scenes.push_back(
            {"sizes, " + caption, "Form12", {}, {caption}, [style](Visitor& go) { go.toSizes(style); }});
    }
    return scenes;
}

}  // namespace norlaplan::testing
