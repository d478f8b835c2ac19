#pragma once

#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// Preload torque, axial play and tilt, thermal fits.
namespace norlaplan::testing {

inline constexpr ControlRow kFitsRows[] = {
    {"Form23", "Form23", "Preload Torque"},
    {"Form23", "Picture1", "", "Starting torque against preload", kBoth, "", kOwnTip},
    {"Form23", "Label1", "~ , ~", "", kBoth, "pointed at"},
    {"Form23", "Command1", "&Save", "Save Results to file"},
    {"Form23", "Command5", "P&rint", "Print Results of calculations"},
    {"Form23", "Command3", "&Main Menu", "Return to Main Menu"},
    {"Form23", "OpenSaved", "Open", "Open the saved file with its program", kBoth, "saved", kOwn},
    {"Form23", "ShowSaved", "Show in Folder", "Open the folder of the saved file", kBoth, "saved", kOwn},

    {"Form18", "Form18", "Axial Clearance"},
    {"Form18", "Option1", "Axial Movement", "Switch to Axial Movement", kBoth, "", kStated, "", "!tilt"},
    {"Form18", "Option2", "Tilt of Axis", "Switch to Tilt of Axis", kBoth, "", kStated, "", "tilt"},
    {"Form18", "Picture1", "", "Axial play against diametral clearance", kBoth, "!tilt", kOwnTip},
    {"Form18", "Picture2", "", "Tilt of axis against diametral clearance", kBoth, "tilt", kOwnTip},
    {"Form18", "Command3",
     "CLICK HERE                                     to see visual demonstration of                     "
     "Axial Play vs. Diametral Clearance",
     "View Demonstration"},
    {"Form18", "Frame3", "", "", kBoth, "demonstration"},
    {"Form18", "Command6", "Show Comments", "", kBoth, "!comments"},
    {"Form18", "Command6", "Hide Comments", "", kBoth, "comments"},
    {"Form18", "Frame1", "Comments", "", kBoth, "comments"},
    {"Form18", "Command2", "Save", "Save Results to file"},
    {"Form18", "Command4", "P&rint", "Print results of calculations"},
    {"Form18", "Command1", "&Main Menu", "Return to Main Menu"},
    {"Form18", "VScroll1", kAnyText, "", kBoth, "low window"},
    {"Form18", "OpenSaved", "Open", "Open the saved file with its program", kBoth, "saved", kOwn},
    {"Form18", "ShowSaved", "Show in Folder", "Open the folder of the saved file", kBoth, "saved", kOwn},

    {"Form31", "Form31", "Modified Fitups"},
    {"Form31", "Frame1", "Temperature Extremes"},
    {"Form31", "Label1", "High Temperature"},
    {"Form31", "Text1", "68", "The bearing gets as warm as this", kUs, "!calculated", kOwnTip},
    {"Form31", "Text1", "20", "The bearing gets as warm as this", kMetric, "!calculated", kOwnTip},
    {"Form31", "Text1", "120", "The bearing gets as warm as this", kBoth, "calculated", kOwnTip},
    {"Form31", "Label2", "°F.", "", kUs},
    {"Form31", "Label2", "°C.", "", kMetric},
    {"Form31", "Label3", "Low Temperature"},
    {"Form31", "Text2", "68", "The bearing gets as cold as this", kUs, "!calculated", kOwnTip},
    {"Form31", "Text2", "20", "The bearing gets as cold as this", kMetric, "!calculated", kOwnTip},
    {"Form31", "Text2", "10", "The bearing gets as cold as this", kBoth, "calculated", kOwnTip},
    {"Form31", "Label4", "°F.", "", kUs},
    {"Form31", "Label4", "°C.", "", kMetric},
    {"Form31", "Frame2", "Shaft Data"},
    {"Form31", "Label5", "Material"},
    {"Form31", "Combo1", "52100 Steel", "Shaft material: it fills in the coefficient", kBoth, "", kOwnTip},
    {"Form31", "Text3", "7.00E-06", "Expansion of the shaft per degree", kUs, "", kOwnTip},
    {"Form31", "Text3", "1.26E-05", "Expansion of the shaft per degree", kMetric, "", kOwnTip},
    {"Form31", "Label6", "in/in/°F.", "", kUs},
    {"Form31", "Label6", "m/m/°C.", "", kMetric},
    {"Form31", "Frame3", "Housing Data"},
    {"Form31", "Label8", "Material"},
    {"Form31", "Combo2", "52100 Steel", "Housing material: it fills in the coefficient", kBoth, "", kOwnTip},
    {"Form31", "Text4", "7.00E-06", "Expansion of the housing per degree", kUs, "", kOwnTip},
    {"Form31", "Text4", "1.26E-05", "Expansion of the housing per degree", kMetric, "", kOwnTip},
    {"Form31", "Label9", "in/in/°F.", "", kUs},
    {"Form31", "Label9", "m/m/°C.", "", kMetric},
    {"Form31", "Frame4", "Suggested Shaft and Housing Sizes at Room Temperature"},
    {"Form31", "Label10", "", "", kBoth, "!calculated"},
    {"Form31", "Label10", "Shaft size ~ + 0.0000, 0.0000", "", kBoth, "calculated"},
    {"Form31", "Label11", "", "", kBoth, "!calculated"},
    {"Form31", "Label11", "Housing size ~ +~ -0.0000", "", kBoth, "calculated"},
    {"Form31", "Frame5", "Comments"},
    {"Form31", "Label12", "", "", kBoth, "!calculated"},
    {"Form31", "Label12", "Shaft and Housing sizes set so that at temperature limits, *", "", kBoth,
     "calculated"},
    {"Form31", "Picture1", "", "Size of parts vs. Temperature"},
    {"Form31", "Frame6", "Legend"},
    {"Form31", "Label13", "Bearing bore"},
    {"Form31", "Label14", "High Temp"},
    {"Form31", "Label15", "Low Temp"},
    {"Form31", "Label16", "Room Temp"},
    {"Form31", "Label17", "Shaft"},
    {"Form31", "Label18", "Housing"},
    {"Form31", "Label19", "Bearing OD"},
    {"Form31", "Label20", "Temperature increasing to the right"},
    {"Form31", "Command1", "Calculate", "Perform Calculation"},
    {"Form31", "Command3", "Print", "Print Results of Calculations"},
    {"Form31", "Command4", "Save", "Save Results to file"},
    {"Form31", "Command2", "&Main Menu", "Return to Main Menu"},
    {"Form31", "OpenSaved", "Open", "Open the saved file with its program", kBoth, "saved", kOwn},
    {"Form31", "ShowSaved", "Show in Folder", "Open the folder of the saved file", kBoth, "saved", kOwn},
};

inline std::vector<Scene> fitsScenes() {
    const auto open = [](const char* number, const char* button) {
        return [number, button](Visitor& go) {
            go.decode(number);
            go.press(button);
        };
    };
    const auto then = [](const std::function<void(Visitor&)>& first, const char* form, const char* button) {
        return [first, form, button](Visitor& go) {
            first(go);
            go.click(form, button);
        };
    };
    const auto play = open("K19013XP0", "Command11"), fits = open("K19013XP0", "Command19");
    const auto torque = open("K19013BR0N", "Command10");
    const auto save = [](const std::function<void(Visitor&)>& first, const char* form, const char* button) {
        return [first, form, button](Visitor& go) {
            first(go);
            go.save(form, button);
        };
    };
    const auto calculated = [fits](Visitor& go) {
        fits(go);
        go.type(forms::kThermalFits, "Text1", "120");
        go.type(forms::kThermalFits, "Text2", "10");
        go.click(forms::kThermalFits, "Command1");
    };
    return {
        {"torque", "Form23", {}, {}, torque},
        {"torque, pointed at",
         "Form23",
         {},
         {"pointed at"},
         [torque](Visitor& go) {
             torque(go);
             QWidget& graph = go.control<QWidget>(forms::kPreloadTorque, "Picture1");
             const QWidget& readout = go.control<QWidget>(forms::kPreloadTorque, "Label1");
             for (int y = 0; y < graph.height() && !readout.isVisible(); y += 8)
                 QTest::mouseMove(&graph, {graph.width() / 2, y});
         }},
        {"torque, saved", "Form23", {}, {"saved"}, save(torque, "Form23", "Command1")},
        {"play", "Form18", {}, {}, play},
        {"play, tilt", "Form18", {}, {"tilt"}, then(play, "Form18", "Option2")},
        {"play, low window",
         "Form18",
         {},
         {"low window"},
         [play](Visitor& go) {
             play(go);
             Form& form = *go.screens.current();
             form.resize(form.width(), form.height() / 2);
             QCoreApplication::processEvents();
         }},
        {"play, comments", "Form18", {}, {"comments"}, then(play, "Form18", "Command6")},
        {"play, demonstration", "Form18", {}, {"demonstration"}, then(play, "Form18", "Command3")},
        {"play, saved", "Form18", {}, {"saved"}, save(play, "Form18", "Command2")},
        {"fits", "Form31", {"TEMPFITS"}, {}, fits},
        {"fits, calculated", "Form31", {"TEMPFITS"}, {"calculated"}, calculated},
        {"fits, saved",
         "Form31",
         {"TEMPFITS"},
         {"calculated", "saved"},
         save(calculated, "Form31", "Command4")},
    };
}

}  // namespace norlaplan::testing
