#pragma once

#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// The load distribution analysis and its table of balls.
namespace norlaplan::testing {

inline constexpr ControlRow kAnalysisRows[] = {
    {"DataForm", "DataForm", "Lodestar stripped down"},
    {"DataForm", "Command1", "More", "Show the data of every ball", kBoth, "", kOwnTip},
    {"DataForm", "Command3", "CLose", "Return to the load-life calculation", kBoth, "", kOwnTip},
    {"DataForm", "Option1", "English", "Show the results in pounds, psi and inches", kBoth, "", kOwnTip, "",
     "!metric results"},
    {"DataForm", "Option2", "Metric", "Show the results in newtons, MPa and millimeters", kBoth, "", kOwnTip,
     "", "metric results"},

    {"DataForm", "Frame1", "Bearing Data"},
    {"DataForm", "Frame2", "Applied Loads"},
    {"DataForm", "Frame3", "Customer Data"},
    {"DataForm", "Frame10", "Coefficient of Friction"},
    {"DataForm", "Frame7", "Checks"},
    {"DataForm", "Frame4", "*", "", kBoth, "", kOwnText},
    {"DataForm", "Frame5", "*", "", kBoth, "", kOwnText},
    {"DataForm", "Frame6", "*", "", kBoth, "", kOwnText},

    {"DataForm", "CaptionText1", "Ball Diameter"},
    {"DataForm", "Text1", kAnyText, "Diameter of a ball", kBoth, "", kOwnTip},
    {"DataForm", "Text15", kAnyText, "Diameter of a ball", kBoth, "", kOwn},
    {"DataForm", "CaptionText2", "Pitch Diameter"},
    {"DataForm", "Text2", kAnyText, "Diameter of the circle of the ball centers", kBoth, "", kOwnTip},
    {"DataForm", "Text16", kAnyText, "Diameter of the circle of the ball centers", kBoth, "", kOwn},
    {"DataForm", "CaptionText3", "No. of Balls"},
    {"DataForm", "Text3", kAnyText, "Balls of one row", kBoth, "", kOwnTip},
    {"DataForm", "CaptionText4", "Free Contact Angle, deg."},
    {"DataForm", "Text4", kAnyText, "Contact angle without load; it sets the diametral clearance", kBoth, "",
     kOwnTip},
    {"DataForm", "Text17", kAnyText, "Contact angle without load; it sets the diametral clearance", kBoth, "",
     kOwn},
    {"DataForm", "CaptionText5", "Conformity: Inner Race"},
    {"DataForm", "Text5", kAnyText, "Groove radius of the inner race in per cent of the ball diameter", kBoth,
     "", kOwnTip},
    {"DataForm", "CaptionText6", "Conformity: Outer Race"},
    {"DataForm", "Text6", kAnyText, "Groove radius of the outer race in per cent of the ball diameter", kBoth,
     "", kOwnTip},
    {"DataForm", "CaptionText43", "DC (+) or Preload (-)"},
    {"DataForm", "Text43", kAnyText, "Diametral clearance, negative for a preload; it sets the contact angle",
     kBoth, "", kOwnTip},
    {"DataForm", "Text44", kAnyText, "Diametral clearance, negative for a preload; it sets the contact angle",
     kBoth, "", kOwn},
    {"DataForm", "CaptionText13", "Gap Distance", "", kBoth, "", kStated, "pair"},
    {"DataForm", "Text13", kAnyText, "Gap between the rings of a pair", kBoth, "", kOwnTip, "pair"},
    {"DataForm", "Text45", kAnyText, "Gap between the rings of a pair", kBoth, "", kOwn, "pair"},
    {"DataForm", "CaptionText66", "Centerline Spacing", "", kBoth, "", kStated, "pair"},
    {"DataForm", "Text66", kAnyText, "Distance of the ball rows of a pair", kBoth, "", kOwnTip, "pair"},
    {"DataForm", "Text65", kAnyText, "Distance of the ball rows of a pair", kBoth, "", kOwn, "pair"},
    {"DataForm", "Option3", "Positive", "The spacing is stored as its amount", kBoth, "", kOwn, "pair", ""},
    {"DataForm", "Option4", "Negative", "The spacing is stored below zero", kBoth, "", kOwn, "pair", kNever},
    {"DataForm", "Option5", "Four-point", "Four-point contact: style X", kBoth, "", kOwn, "", "K19013XP0"},
    {"DataForm", "Option6", "Back-to-back", "Back-to-back pair: style B", kBoth, "", kOwn, "", "K19013BR0N"},
    {"DataForm", "Option7", "Face-to-face", "Face-to-face pair: style F", kBoth, "", kOwn, "", "K19013FR0N"},
    {"DataForm", "CaptionText14", "Radial, lbs."},
    {"DataForm", "Text14", kAnyText, "Load across the axis", kBoth, "", kOwnTip},
    {"DataForm", "Text20", kAnyText, "Load across the axis", kBoth, "", kOwnTip},
    {"DataForm", "CaptionText48", "Axial, lbs."},
    {"DataForm", "Text48", kAnyText, "Load along the axis", kBoth, "", kOwnTip},
    {"DataForm", "Text50", kAnyText, "Load along the axis", kBoth, "", kOwnTip},
    {"DataForm", "CaptionText49", "Moment, in-lbs."},
    {"DataForm", "Text49", kAnyText, "Overturning moment", kBoth, "", kOwnTip},
    {"DataForm", "Text51", kAnyText, "Overturning moment", kBoth, "", kOwnTip},

    {"DataForm", "Combo1", kAnyText, "Fills in name, modulus and Poisson's ratio", kBoth, "", kOwn},
    {"DataForm", "Text7", kAnyText, "Name of the material", kBoth, "", kOwnTip},
    {"DataForm", "CaptionText8", "Elastic Modulus, MPsi"},
    {"DataForm", "Text8", kAnyText, "Young's modulus", kBoth, "", kOwnTip},
    {"DataForm", "Text18", kAnyText, "Young's modulus", kBoth, "", kOwn},
    {"DataForm", "CaptionText9", "Poisson's Ratio"},
    {"DataForm", "Text9", kAnyText},
    {"DataForm", "Combo2", kAnyText, "Fills in name, modulus and Poisson's ratio", kBoth, "", kOwn},
    {"DataForm", "Text10", kAnyText, "Name of the material", kBoth, "", kOwnTip},
    {"DataForm", "CaptionText11", "Elastic Modulus, MPsi"},
    {"DataForm", "Text11", kAnyText, "Young's modulus", kBoth, "", kOwnTip},
    {"DataForm", "Text19", kAnyText, "Young's modulus", kBoth, "", kOwn},
    {"DataForm", "CaptionText12", "Poisson's Ratio"},
    {"DataForm", "Text12", kAnyText},
    {"DataForm", "CaptionText63", "Starting"},
    {"DataForm", "Text63", kAnyText, "Coefficient of friction at the start", kBoth, "", kOwnTip},
    {"DataForm", "CaptionText64", "Running"},
    {"DataForm", "Text64", kAnyText, "Coefficient of friction while running", kBoth, "", kOwnTip},
    {"DataForm", "CaptionText22", "Part Number"},
    {"DataForm", "Text22", "K19013XP0", "Bearing of the last solve", kBoth, "K19013XP0", kOwnTip},
    {"DataForm", "Text22", "K19013CP0", "Bearing of the last solve", kBoth, "K19013CP0", kOwnTip},
    {"DataForm", "Text22", "K19013BR0N", "Bearing of the last solve", kBoth, "K19013BR0N", kOwnTip},
    {"DataForm", "Text22", "K19013FR0N", "Bearing of the last solve", kBoth, "K19013FR0N", kOwnTip},
    {"DataForm", "CaptionText24", "Date"},
    {"DataForm", "Text24", kAnyText, "Day of the last solve", kBoth, "", kOwnTip},

    {"DataForm", "CaptionText27", "RMC Loads (Lbs)", "", kBoth, "!metric results"},
    {"DataForm", "CaptionText27", "RMC loads (N)", "", kBoth, "metric results"},
    {"DataForm", "CaptionText29", "Max. Ball Load (lbs.)", "", kBoth, "!metric results"},
    {"DataForm", "CaptionText29", "Max. Ball Load (N)", "", kBoth, "metric results"},
    {"DataForm", "CaptionText35", "Hertz Stress (PSI)", "", kBoth, "!metric results"},
    {"DataForm", "CaptionText35", "Hertz Stress (MPa)", "", kBoth, "metric results"},
    {"DataForm", "CaptionText39", "Contact Ellipse (in.)", "", kBoth, "!metric results"},
    {"DataForm", "CaptionText39", "Contact Ellipse (mm)", "", kBoth, "metric results"},
    {"DataForm", "CaptionText52", "Radial (in.)", "", kBoth, "!metric results"},
    {"DataForm", "CaptionText52", "Radial (mm)", "", kBoth, "metric results"},
    {"DataForm", "CaptionText53", "Axial (in.)", "", kBoth, "!metric results"},
    {"DataForm", "CaptionText53", "Axial (mm)", "", kBoth, "metric results"},
    {"DataForm", "CaptionText54", "Tilt (degrees)", "", kBoth, "!metric results"},
    {"DataForm", "CaptionText54", "Tilt (radians)", "", kBoth, "metric results"},
    {"DataForm", "Text25", "~"},
    {"DataForm", "Text26", "~"},
    {"DataForm", "Text55", kAnyText},
    {"DataForm", "Text56", kAnyText},
    {"DataForm", "Text27", "~"},
    {"DataForm", "Text28", "N/A", "", kBoth, "metric results & K19013CP0"},
    {"DataForm", "Text28", kAnyText, "", kBoth, "!metric results"},
    {"DataForm", "Text28", "~", "", kBoth, "metric results & !K19013CP0"},
    {"DataForm", "Text29", "~"},
    {"DataForm", "Text30", "~"},
    {"DataForm", "Text31", "~"},
    {"DataForm", "Text32", "~"},
    {"DataForm", "Text33", "~"},
    {"DataForm", "Text34", "~"},
    {"DataForm", "Text35", "~"},
    {"DataForm", "Text36", "~"},
    {"DataForm", "Text37", "~"},
    {"DataForm", "Text38", "~"},
    {"DataForm", "Text39", "~"},
    {"DataForm", "Text40", "~"},
    {"DataForm", "Text41", "~"},
    {"DataForm", "Text42", "~"},
    {"DataForm", "Text52", kAnyText},
    {"DataForm", "Text53", kAnyText},
    {"DataForm", "Text54", kAnyText},
    {"DataForm", "CaptionText57", "Fr ="},
    {"DataForm", "Text57", kAnyText},
    {"DataForm", "CaptionText58", "Fa ="},
    {"DataForm", "Text58", kAnyText},
    {"DataForm", "CaptionText59", "Moment ="},
    {"DataForm", "Text59", kAnyText},
    {"DataForm", "CaptionText60", "Kn ="},
    {"DataForm", "Text60", kAnyText},
    {"DataForm", "CaptionText61", "CiCo ="},
    {"DataForm", "Text61", kAnyText},
    {"DataForm", "Label79", "Convergence Achieved in:"},
    {"DataForm", "Text62", "~"},
    {"DataForm", "Label80", "Iterations"},

    {"lodestarform", "lodestarform", "INDIVIDUAL BALL DATA"},
    {"lodestarform", "Frame4", "Row 1", "", kBoth, "", kOwnText},
    {"lodestarform", "MSFlexGrid1", ""},
    {"lodestarform", "Frame1", "Row 2", "", kBoth, "", kOwnText},
    {"lodestarform", "MSFlexGrid3", ""},
    {"lodestarform", "MSFlexGrid1 > Copy", "Copy", "Copy the table for a spreadsheet", kBoth, "", kOwn},
    {"lodestarform", "MSFlexGrid1 > Sort", "Sort by this column",
     "Sort by the column of the chosen cell; again turns the order", kBoth, "", kOwn},
    {"lodestarform", "MSFlexGrid3 > Copy", "Copy", "Copy the table for a spreadsheet", kBoth, "", kOwn},
    {"lodestarform", "MSFlexGrid3 > Sort", "Sort by this column",
     "Sort by the column of the chosen cell; again turns the order", kBoth, "", kOwn},
    {"lodestarform", "Command1", "Analysis", "Return to the load distribution analysis", kBoth, "", kOwn},
    {"lodestarform", "Command2", "Close", "Return to the load-life calculation", kBoth, "", kOwn},
};

inline std::vector<Scene> analysisScenes() {
    const auto analysis = [](const char* number) {
        return [number](Visitor& go) {
            go.decode(number);
            go.solve("400");
            go.click(forms::kLife, "Command8");
        };
    };
    std::vector<Scene> scenes;
    for (const char* const number : {"K19013XP0", "K19013CP0", "K19013BR0N", "K19013FR0N"}) {
        Facts facts = {number};
        if (std::string(number).size() == 10) facts.insert("pair");
        const std::string name = std::string("analysis of ") + number[6];
        scenes.push_back({name, "DataForm", {"SAM LUND"}, facts, analysis(number)});
        facts.insert("metric results");
        scenes.push_back({name + " in metric results",
                          "DataForm",
                          {"LARS HOFMANN"},
                          facts,
                          [number, analysis](Visitor& go) {
                              analysis(number)(go);
                              go.click(forms::kAnalysis, "Option2");
                          }});
    }
    scenes.push_back({"balls of X", "lodestarform", {"SAM LUND"}, {}, [analysis](Visitor& go) {
                          analysis("K19013XP0")(go);
                          go.click(forms::kAnalysis, "Command1");
                      }});
    return scenes;
}

}  // namespace norlaplan::testing
