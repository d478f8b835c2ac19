#pragma once

#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// The side screens of a life: ball loads, contact stress, lube film. The pitch diameter of the bearings is
/// the mean of 190 and 216 mm, their balls have 0.25 in.
namespace norlaplan::testing {

inline constexpr ControlRow kContactRows[] = {
    {"tlodestarballloads", "tlodestarballloads", "Graph of Ball Loads vs Angular Position"},
    {"tlodestarballloads", "Picture1", "", "Graphical view of ball loads around bearing"},
    {"tlodestarballloads", "Label1", "Rotate \"3D\" graph around vertical axis"},
    {"tlodestarballloads", "HScroll1", ""},
    {"tlodestarballloads", "Label2", "Vertical Scale"},
    {"tlodestarballloads", "VScroll1", ""},
    {"tlodestarballloads", "Label3", "Ball Load Scale Modification"},
    {"tlodestarballloads", "VScroll2", ""},
    {"tlodestarballloads", "Picture2", "", "Display color of ball loads for Row 1"},
    {"tlodestarballloads", "Picture3", "", "Display color for ball loads for row 2"},
    {"tlodestarballloads", "Picture4", "", "Display color of base Ellipse (0 load)"},
    {"tlodestarballloads", "Picture5", "", "Background display color"},
    {"tlodestarballloads", "Picture6", "", "Display color for x-y-z axis"},
    {"tlodestarballloads", "Command2", "Refresh Graph"},
    {"tlodestarballloads", "Command3", "&Print", "Print the ball display"},
    {"tlodestarballloads", "Command1", "&Return", "Return to previous screen"},

    {"form30", "form30", "Compressive Stress for K19013XP0", "", kBoth, "K19013XP0"},
    {"form30", "form30", "Compressive Stress for K19013BR0N", "", kBoth, "K19013BR0N"},
    {"form30", "Label16", "Simulated Display of heaviest loaded ball for chosen row"},
    {"form30", "Picture1", "",
     "Draw a frame with the mouse to look closer; Home shows the drawing as it opened", kBoth, "", kOwnTip},
    {"form30", "Shape1", "", "", kBoth, "frame drawn"},
    {"form30", "Frame1", "Contact Stress Row 1 Displayed", "", kBoth, "!row 2"},
    {"form30", "Frame1", "Contact Stress Row 1", "", kBoth, "row 2"},
    {"form30", "Frame2", "Contact Stress Row 2", "", kBoth, "!row 2"},
    {"form30", "Frame2", "Contact Stress Row 2 Displayed", "", kBoth, "row 2"},
    {"form30", "Label1", "Max. Ball Load = ~ lbs."},
    {"form30", "Label2", "Maximum Avg. Stress = ~ psi"},
    {"form30", "Label3", "Ellipse Major Axis = ~ in."},
    {"form30", "Label4", "Ellipse Minor Axis = ~ in."},
    {"form30", "Label5", "Contact Angle = ~°"},
    {"form30", "Label6", "Max. Ball Load = ~ lbs."},
    {"form30", "Label7", "Maximum Avg. Stress = ~ psi"},
    {"form30", "Label8", "Ellipse Major Axis = ~ in."},
    {"form30", "Label9", "Ellipse Minor Axis = ~ in."},
    {"form30", "Label10", "Contact Angle = ~°"},
    {"form30", "Option1", "Row 1", "Display row 1", kBoth, "", kOwnText, "", "!row 2"},
    {"form30", "Option2", "Row 2", "Display row 2", kBoth, "", kOwnText, "", "row 2"},
    {"form30", "Text1", "", "Room for a number of your own; nothing is computed from it", kBoth, "", kOwnTip},
    {"form30", "Text2", "", "Room for a number of your own; nothing is computed from it", kBoth, "", kOwnTip},
    {"form30", "Text3", "", "Room for a number of your own; nothing is computed from it", kBoth, "", kOwnTip},
    {"form30", "Text4", "", "Room for a number of your own; nothing is computed from it", kBoth, "", kOwnTip},
    {"form30", "Label11", "Use Up and Down Arrow to move diagram"},
    {"form30", "Label12", "Use Left and Right Arrow to move diagram"},
    {"form30", "Label13", "Use 'Page-Up' and 'Page Down' to Enlarge or Shrink diagram"},
    {"form30", "Command1", "Redraw", "Refresh screen after data changes"},
    {"form30", "Command2", "Return", "Return to Load Life Screen"},

    {"Form27", "Form27", "Lube Film Thickness Check for K19013XP0 Restricted use!", "", kBoth, "K19013XP0"},
    {"Form27", "Form27", "Lube Film Thickness Check for K19013CP0 Restricted use!", "", kBoth, "K19013CP0"},
    {"Form27", "Label1", "Ball Diameter = .250 inches", "", kUs},
    {"Form27", "Label1", "Ball Diameter = 6.350 mm", "", kMetric},
    {"Form27", "Label2", "Pitch Diameter = 7.992 inches", "", kUs},
    {"Form27", "Label2", "Pitch Diameter = 203.000 mm", "", kMetric},
    {"Form27", "Label3", "Contact Angle = ~ Degrees"},
    {"Form27", "Label4", "Conformity = 53 %"},
    {"Form27", "Label5", "Ball Surface Finish = 2AA", "", kUs},
    {"Form27", "Label5", "Ball Surface Finish = 0.05 um", "", kMetric},
    {"Form27", "Label6", "Path Surface Finish = 16AA", "", kUs},
    {"Form27", "Label6", "Path Surface Finish = 0.41 um", "", kMetric},
    {"Form27", "Label7", "Specific Gravity"},
    {"Form27", "Unit1", "grams/cc."},
    {"Form27", "Text1", "0.8608", "Density of the lubricant relative to that of water", kBoth, "!calculated",
     kOwnTip},
    {"Form27", "Text1", "0.9", "Density of the lubricant relative to that of water", kBoth, "calculated",
     kOwnTip},
    {"Form27", "Label8", "Lubricant Viscosity"},
    {"Form27", "Text2", "", "Viscosity of the lubricant at running temperature", kBoth, "!calculated",
     kOwnTip},
    {"Form27", "Text2", "100", "Viscosity of the lubricant at running temperature", kBoth, "calculated",
     kOwnTip},
    {"Form27", "Option1", "SSU", "The viscosity is in Saybolt seconds", kBoth, "", kOwnTip, "", "calculated"},
    {"Form27", "Option2", "centistokes", "The viscosity is in centistokes", kBoth, "", kOwnTip, "", kNever},
    {"Form27", "Option3", "Mineral Oil", "Take its specific gravity", kBoth, "", kOwnTip, "", "calculated"},
    {"Form27", "Option4", "Synthetic Hydrocarbon", "Take its specific gravity", kBoth, "", kOwnTip, "",
     kNever},
    {"Form27", "Option5", "Perfluoro-polyether oil", "Take its specific gravity", kBoth, "", kOwnTip, "",
     kNever},
    {"Form27", "Option6", "multipleaclylanated cylcopenzane oil", "Take its specific gravity", kBoth, "",
     kOwnTip, "", kNever},
    {"Form27", "Command2", "Calculate", "Yes, Calculate"},
    {"Form27", "Command1", "Return", "Return to Load Life Screen"},
    {"Form27", "Label9", "Maximum Ball Load = ~ *", "", kBoth, "calculated"},
    {"Form27", "Label10", "Inner Race Rotation Speed = 400 RPM", "", kBoth, "calculated"},
    {"Form27", "Label11", "Outer Race Rotation Speed = 0 RPM", "", kBoth, "calculated"},
    {"Form27", "Label12", "Min. Iso Lube Film = ~ inches", "", kUs, "calculated"},
    {"Form27", "Label12", "Min. Iso Lube Film = ~ mm", "", kMetric, "calculated"},
    {"Form27", "Label13", "Film/Finish Ratio 'Lambda' = ~", "", kBoth, "calculated"},
    {"Form27", "Label14", "L10 life factor is = ~", "", kBoth, "calculated"},
    {"Form27", "Label15", "Minimum recommended viscosity is = ~ centiStokes", "", kBoth, "calculated"},
    {"Form27", "Label16", "*", "", kBoth, "calculated"},
};

inline std::vector<Scene> contactScenes() {
    const auto beside = [](const char* number, const char* button) {
        return [number, button](Visitor& go) {
            go.decode(number);
            go.solve("400");
            go.click(forms::kLife, button);
        };
    };
    const auto stress = beside("K19013BR0N", "Command7");
    return {
        {"ball loads of X", "tlodestarballloads", {"BALL SHOW"}, {}, beside("K19013XP0", "Command5")},
        {"ball loads of C", "tlodestarballloads", {"BALL SHOW"}, {}, beside("K19013CP0", "Command5")},
        {"contact stress of X", "form30", {"PATH STRESS"}, {"K19013XP0"}, beside("K19013XP0", "Command7")},
        {"contact stress of B", "form30", {"PATH STRESS"}, {"K19013BR0N"}, stress},
        {"contact stress of row 2",
         "form30",
         {"PATH STRESS"},
         {"K19013BR0N", "row 2"},
         [stress](Visitor& go) {
             stress(go);
             go.click(forms::kContactStress, "Option2");
         }},
        {"contact stress, frame drawn",
         "form30",
         {"PATH STRESS"},
         {"K19013BR0N", "frame drawn"},
         [stress](Visitor& go) {
             stress(go);
             QWidget& drawing = go.control<QWidget>(forms::kContactStress, "Picture1");
             QTest::mousePress(&drawing, Qt::LeftButton, {}, {60, 60});
             QTest::mouseMove(&drawing, {160, 160});
         }},
        {"lube film of X", "Form27", {"LUBE FILM"}, {"K19013XP0"}, beside("K19013XP0", "Command6")},
        {"lube film of C, calculated",
         "Form27",
         {"LUBE FILM"},
         {"K19013CP0", "calculated"},
         [beside](Visitor& go) {
             beside("K19013CP0", "Command6")(go);
             go.click(forms::kLubeFilm, "Option3");
             go.type(forms::kLubeFilm, "Text2", "100");
             go.click(forms::kLubeFilm, "Option1");
             go.click(forms::kLubeFilm, "Command2");
         }},
    };
}

}  // namespace norlaplan::testing
