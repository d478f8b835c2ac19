#pragma once

#include "screens/Information.h"
#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// The screens of help and product information.
namespace norlaplan::testing {

inline constexpr ControlRow kInformationRows[] = {
    {"Form4", "Form4", "About Norlaplan-MM"},
    {"Form4", "Image1", ""},
    {"Form4", "Label1", "NORLAPLAN-MM version 1.00"},
    {"Form4", "Label2", "*", "", kBoth, "", kOwn},
    {"Form4", "Label3", "*", "", kBoth, "", kOwn},
    {"Form4", "Command1", "Close"},

    {"form5", "form5", ""},
    {"form5", "OLE1", ""},
    {"form5", "File", "*", "Where the document is", kBoth, "", kOwn},
    {"form5", "MainMenu", "&Main Menu", "Return to Main Menu; the show goes on", kBoth, "", kOwn},

    {"Form7", "Form7", "Other Varden Bearings", "", kBoth, "!metric series"},
    {"Form7", "Form7", "Other Varden Bearings - Metric Series", "", kBoth, "metric series"},
    {"Form7", "Label1", "Metric Series", "", kBoth, "metric series", kOwn},
    {"Form7", "Label1", "*", "", kBoth, "!metric series", kOwn},
    {"Form7", "Text1", "*"},
    {"Form7", "Picture1", ""},
    {"Form7", "Image1", ""},
    {"Form7", "Command1", "Metric Series data Tables", "Load Excel files", kBoth, "metric series"},
    {"Form7", "Close", "Close", "Close this page", kBoth, "", kOwn},

    {"Form8", "Form8", "Metric Thin Section Bearings"},
    {"Form8", "OLE1", ""},
    {"Form8", "File", "*", "Where the document is", kBoth, "", kOwn},
    {"Form8", "OpenAgain", "Open Again", "Open the workbook once more", kBoth, "", kOwn},
    {"Form8", "Return", "Return", "Go back to the product line", kBoth, "", kOwn},

    {"Form20", "Form20", "Norlaplan Help"},
    {"Form20", "RichTextBox1", "Page of topic 4"},

    {"Form21", "Form21", "Varden Norlaring Catalog"},
    {"Form21", "RichTextBox1", "The catalog begins"},
    {"Form21", "Command1", "&Main Menu", "Return to main menu"},

    {"Form22", "Form22", "Help Index"},
    {"Form22", "Label1", "Choose a Topic for detailed Help"},
    {"Form22", "Option1", "\"File \" -Menu"},
    {"Form22", "Option2", "Dimensions - Options"},
    {"Form22", "Option3", "User Information - Settings"},
    {"Form22", "Option4", "Deflection", "", kBoth, "", kStated, "", "read"},
    {"Form22", "Option5", "Preload Torque"},
    {"Form22", "Option6", "Bearing Definitions and Terms"},
    {"Form22", "Option7", "About Varden Corporation"},
    {"Form22", "Option8", "Revision History"},
    {"Form22", "Option9", "Application Form"},
    {"Form22", "Option10", "Bearing Training"},
    {"Form22", "Option11", "Set Style"},
    {"Form22", "Option12", "Set Sizes"},
    {"Form22", "Option13", "Load Input"},
    {"Form22", "Option14", "Search Results"},
    {"Form22", "Option15", "Sort List of Bearings"},
    {"Form22", "Option16", "Enter Model  Number"},
    {"Form22", "Option17", "Data Sheet"},
    {"Form22", "Option18", "Static + Dynamic Life"},
    {"Form22", "Option19", "Axial Play"},
    {"Form22", "Option20", "How To Use this Program"},
    {"Form22", "Option21", "Trouble Shooting"},
    {"Form22", "Keys", "*", "", kBoth, "", kOwn},
    {"Form22", "Close", "Close", "Close the index and go back", kBoth, "", kOwn},

    {"Form29", "Form29", "Custom Bearing Pictures and Drawings For Ned Grove"},
    {"Form29", "Label1", "Select a Picture from the List", "", kBoth, "!full size"},
    {"Form29", "File1", "", "", kBoth, "!full size"},
    {"Form29", "Image1", "", "", kBoth, "!full size"},
    {"Form29", "Line1", "", "", kBoth, "!full size"},
    {"Form29", "Line2", "", "", kBoth, "!full size"},
    {"Form29", "Line3", "", "", kBoth, "!full size"},
    {"Form29", "Line4", "", "", kBoth, "!full size"},
    {"Form29", "FullSize", "", "", kBoth, "full size", kOwn},
    {"Form29", "Command1", "&Main Menu", "Return to Main Menu"},
    {"Form29", "Command2", "&View", "View Chosen picture", kBoth, "!full size"},
    {"Form29", "BackToList", "Back to List", "Show the list of pictures", kBoth, "full size", kOwn},
};

inline std::vector<Scene> informationScenes() {
    const auto with = [](const std::function<void(Visitor&)>& route) {
        return [route](Visitor& go) {
            giveInformation(go);
            go.state.helpTopic = 0;
            route(go);
        };
    };
    return {
        {"about", "Form4", {}, {}, with([](Visitor& go) { go.pickItem("About"); })},
        {"training", "form5", {}, {}, with([](Visitor& go) { go.press("Command2"); })},
        {"product line", "Form7", {}, {}, with([](Visitor& go) { go.pickItem("Stainless"); })},
        {"metric series", "Form7", {}, {"metric series"}, with([](Visitor& go) {
             go.pickItem("Metric Series");
         })},
        {"metric tables", "Form8", {}, {}, with([](Visitor& go) {
             go.pickItem("Metric Series");
             go.click(forms::kProductPage, "Command1");
         })},
        {"help index", "Form22", {}, {}, with([](Visitor& go) { go.pickItem("kmetrichelp"); })},
        {"help topic", "Form20", {}, {}, with([](Visitor& go) {
             go.pickItem("kmetrichelp");
             go.click(forms::kHelpIndex, "Option4");
         })},
        {"help index after a topic", "Form22", {}, {"read"}, with([](Visitor& go) {
             go.pickItem("kmetrichelp");
             go.click(forms::kHelpIndex, "Option4");
             QTest::keyClick(go.screens.current(), Qt::Key_Escape);
         })},
        {"catalog introduction", "Form21", {}, {}, with([](Visitor& go) {
             go.pickItem("CatalogIntroduction");
         })},
        {"picture browser", "Form29", {"NED GROVE"}, {}, with([](Visitor& go) { go.press("Command17"); })},
        {"picture at full size", "Form29", {"NED GROVE"}, {"full size"}, with([](Visitor& go) {
             go.press("Command17");
             go.click(forms::kPictureBrowser, "Command2");
         })},
    };
}

}  // namespace norlaplan::testing
