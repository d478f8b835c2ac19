#pragma once

#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// The deflection screen, its graph in full size and the axes of that.
namespace norlaplan::testing {

inline constexpr ControlRow kDeflectionRows[] = {
    {"Form24", "Form24", "Deflection due to Load for Preloaded Bearings"},
    {"Form24", "Text3", kAnyText, "Axial preload of bearing set in inches", kUs, "pair"},
    {"Form24", "Text3", kAnyText, "Axial preload of bearing set in millimeters", kMetric, "pair"},
    {"Form24", "Text3", kAnyText, "Diametral preload in inches", kUs, "!pair"},
    {"Form24", "Text3", kAnyText, "Diametral preload in millimeters", kMetric, "!pair"},
    {"Form24", "Combo2", kAnyText, "Usual preloads; the one that is chosen goes into the field", kBoth, "",
     kOwnTip},
    {"Form24", "Text14Label", "Max Radial Load"},
    {"Form24", "Text14", "~", "Radial load at the end of its curve", kBoth, "", kOwnTip},
    {"Form24", "Text15Label", "Max Axial Load", "", kBoth, "!K19013CP0"},
    {"Form24", "Text15", "~", "Axial load at the end of its curve", kBoth, "!K19013CP0", kOwnTip},
    {"Form24", "Text16Label", "Max Moment Load", "", kBoth, "!K19013CP0"},
    {"Form24", "Text16", "~", "Moment at the end of its curve", kBoth, "!K19013CP0", kOwnTip},
    {"Form24", "Picture1", "", "Click here to view and print Radial Graph", kBoth, "", kStated, "calculated"},
    {"Form24", "Picture2", "", "Click here to view and print Axial Graph", kBoth, "", kStated,
     "calculated & !K19013CP0"},
    {"Form24", "Picture3", "", "Click here to view and print Moment Graph", kBoth, "", kStated,
     "calculated & !K19013CP0"},
    {"Form24", "Text8", "~", "Load per deflection up to the relief load", kBoth, "calculated", kOwnTip},
    {"Form24", "Text8", "", "Load per deflection up to the relief load", kBoth, "!calculated", kOwnTip},
    {"Form24", "Text9", "~", "Load at which the preload is gone", kBoth, "calculated", kOwnTip},
    {"Form24", "Text9", "", "Load at which the preload is gone", kBoth, "!calculated", kOwnTip},
    {"Form24", "Text10", "~", "Load per deflection up to the relief load", kBoth, "!K19013CP0 & calculated",
     kOwnTip},
    {"Form24", "Text10", "", "Load per deflection up to the relief load", kBoth, "!K19013CP0 & !calculated",
     kOwnTip},
    {"Form24", "Text11", "~", "Load at which the preload is gone", kBoth, "!K19013CP0 & calculated", kOwnTip},
    {"Form24", "Text11", "", "Load at which the preload is gone", kBoth, "!K19013CP0 & !calculated", kOwnTip},
    {"Form24", "Text12", "~", "Load per deflection up to the relief load", kBoth, "!K19013CP0 & calculated",
     kOwnTip},
    {"Form24", "Text12", "", "Load per deflection up to the relief load", kBoth, "!K19013CP0 & !calculated",
     kOwnTip},
    {"Form24", "Text13", "~", "Load at which the preload is gone", kBoth, "!K19013CP0 & calculated", kOwnTip},
    {"Form24", "Text13", "", "Load at which the preload is gone", kBoth, "!K19013CP0 & !calculated", kOwnTip},
    {"Form24", "Text2Label", "RADIAL CONST."},
    {"Form24", "Text2", kAnyText},
    {"Form24", "Text4Label", "MOMENT CONST. 1", "", kBoth, "!K19013CP0"},
    {"Form24", "Text4", kAnyText, "", kBoth, "!K19013CP0"},
    {"Form24", "Text5Label", "MOMENT CONST. 2", "", kBoth, "!K19013CP0"},
    {"Form24", "Text5", kAnyText, "", kBoth, "!K19013CP0"},
    {"Form24", "Text6Label", "INITIAL TILT", "", kBoth, "K19013XP0"},
    {"Form24", "Text6", kAnyText, "", kBoth, "K19013XP0"},
    {"Form24", "Text7Label", "INITAL ANGLE", "", kBoth, "K19013XP0"},
    {"Form24", "Text7", kAnyText, "", kBoth, "K19013XP0"},
    {"Form24", "Combo1Label", "AXIAL DATA PTS.", "", kBoth, "!K19013CP0"},
    {"Form24", "Combo1", kAnyText, "Load, contact angle in degrees and deflection", kBoth, "!K19013CP0",
     kOwnTip},
    {"Form24", "Command1", "&Main Menu", "Return to Main Menu"},
    {"Form24", "Command2", "&Print", "Print the constants", kBoth, "", kOwnTip, "calculated"},
    {"Form24", "Command3", "&Calculate", "Create deflection graphs"},

    {"Form25", "Form25", "Graph Adjustment"},
    {"Form25", "Text1Label", "Maximum:"},
    {"Form25", "Text1", "~", "Load at the end of the axis", kBoth, "", kOwnTip},
    {"Form25", "Text2Label", "Major Unit:"},
    {"Form25", "Text2", "~", "Load from grid line to grid line", kBoth, "", kOwnTip},
    {"Form25", "Text3Label", "Maximum:"},
    {"Form25", "Text3", "~", "Deflection at the end of the axis", kBoth, "", kOwnTip},
    {"Form25", "Text4Label", "Major Unit:"},
    {"Form25", "Text4", "~", "Deflection from grid line to grid line", kBoth, "", kOwnTip},
    {"Form25", "Combo1Label", "Numeric Format:"},
    {"Form25", "Combo1", "#,###", "Picture of the numbers along the axis", kBoth, "", kOwnTip},
    {"Form25", "Combo2Label", "Numeric Format"},
    {"Form25", "Combo2", "0.00E-00", "Picture of the numbers along the axis", kBoth, "", kOwnTip},
    {"Form25", "Command1", "Redraw Graphs", "Draw the graph with these axes", kBoth, "", kOwnTip},
    {"Form25", "Command2", "Cancel", "Retain old settings"},

    {"Form26", "Form26", "Deflection Graph"},
    {"Form26", "Picture1", "", "Deflection graph", kBoth, "", kOwnTip},
    {"Form26", "Command1", "P&rint", "Print the graph", kBoth, "", kOwnTip},
    {"Form26", "Command2", "<< &Previous", "Return to deflection constants", kBoth, "", kOwnTip},
    {"Form26", "Command3", "&Change Graph Settings", "Set the axes of the graph", kBoth, "", kOwnTip},
    {"Form26", "Command4", "&Save", "Save the graph to file", kBoth, "", kOwnTip},
    {"Form26", "CopyTable", "Copy &Table", "Copy the points of the curve for a spreadsheet (Ctrl+Shift+C)",
     kBoth, "", kOwn},
    {"Form26", "Picture1 > CopyTableItem", "Copy Table", "", kBoth, "", kOwn},
    {"Form26", "OpenSaved", "Open", "Open the saved file with its program", kBoth, "saved", kOwn},
    {"Form26", "ShowSaved", "Show in Folder", "Open the folder of the saved file", kBoth, "saved", kOwn},
};

inline std::vector<Scene> deflectionScenes() {
    const auto open = [](const char* number) {
        return [number](Visitor& go) {
            go.decode(number);
            go.press("Command12");
        };
    };
    const auto calculated = [open](const char* number) {
        return [open, number](Visitor& go) {
            open(number)(go);
            go.type(forms::kDeflection, "Text3", go.metric() ? "0.0254" : "0.001");
            go.click(forms::kDeflection, "Command3");
        };
    };
    const auto graph = [calculated](Visitor& go) {
        calculated("K19013XP0")(go);
        go.click(forms::kDeflection, "Picture1");
    };
    std::vector<Scene> scenes = {
        {"deflection graph", "Form26", {}, {}, graph},
        {"deflection graph, saved",
         "Form26",
         {},
         {"saved"},
         [graph](Visitor& go) {
             graph(go);
             go.save(forms::kDeflectionGraph, "Command4");
         }},
        {"axes of the graph",
         "Form25",
         {},
         {},
         [graph](Visitor& go) {
             graph(go);
             go.click(forms::kDeflectionGraph, "Command3");
         }},
    };
    for (const char* const number : {"K19013XP0", "K19013CP0", "K19013BR0N", "K19013FR0N"}) {
        Facts facts = {number};
        if (std::string(number).size() == 10) facts.insert("pair");
        const std::string name = std::string("deflection of ") + number[6];
        scenes.push_back({name, "Form24", {}, facts, open(number)});
        facts.insert("calculated");
        scenes.push_back({name + ", calculated", "Form24", {}, facts, calculated(number)});
    }
    return scenes;
}

}  // namespace norlaplan::testing
