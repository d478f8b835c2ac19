#pragma once

#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// The start screen, the text viewer and the units screen.
namespace norlaplan::testing {

inline constexpr ControlRow kStartRows[] = {
    {"Form1", "Form1", "Form1"},
    {"Form1", "Image2", "", "", kBoth, "!NED GROVE"},
    {"Form1", "Image2", "", "Our latest logo - cute isn't it?", kBoth, "NED GROVE"},
    {"Form1", "Image3", "", "", kBoth, "NED GROVE"},
    {"Form1", "Image4", "", "", kBoth, "NED GROVE"},
    {"Form1", "Image5", "", "", kBoth, "NED GROVE"},
    {"Form1", "Label4", "NORLAPLAN-MM"},
    {"Form1", "Label3", "Bearing Design Program", "", kBoth, "!NED GROVE"},
    {"Form1", "Label3", "Norlaplan Tool version for Ned Q. Grove", "", kBoth, "NED GROVE"},
    {"Form1", "Label1", "Begin Program"},
    {"Form1", "Label2", "Varden Warranty for this Software"},
    {"Form1", "Command1", "Start", "Run Software"},
    {"Form1", "Command2", "Warranty", "View Warranty and software limitations"},
    {"Form1", "Command3", "Quit", "Exit to Windows"},

    {"Form2", "Form2", "", "", kBoth, "no text"},
    {"Form2", "Form2", "Warranty", "", kBoth, "warranty"},
    {"Form2", "Form2", "Introduction to NORLAPLAN MM™ Software", "", kBoth, "introduction"},
    {"Form2", "Form2", "Part Number Breakdown", "", kBoth, "breakdown"},
    {"Form2", "Form2", "Varden Distributor Information", "", kBoth, "distributor"},
    {"Form2", "RichTextBox1", "", "", kBoth, "no text"},
    {"Form2", "RichTextBox1", "*", "", kBoth, "!no text"},
    {"Form2", "Command1", "Return", "Close File", kBoth, "no text"},
    {"Form2", "Command1", "Exit Warranty", "Close File", kBoth, "warranty"},
    {"Form2", "Command1", "Exit Introduction", "Close File", kBoth, "introduction"},
    {"Form2", "Command1", "Exit Part Number Explanation", "Close File", kBoth, "breakdown"},
    {"Form2", "Command1", "Exit Distributor Information", "Close File", kBoth, "distributor"},

    {"Form6", "Form6", "Measurement"},
    {"Form6", "Frame1", "Units of Measurement"},
    {"Form6", "Option1", "U.S. units (inches and pounds)", "", kBoth, "", kStated, "", "US"},
    {"Form6", "Option2", "SI units (mm and Newtons)", "", kBoth, "", kStated, "", "METRIC"},
    {"Form6", "Label1", "Changing this setting will clear all data that has been entered"},
    {"Form6", "Command1", "&OK", "Accept Change of Units", kBoth, "", kOwnText},
    {"Form6", "Command2", "&Cancel", "Retain current Units Selection"},
};

inline std::vector<Scene> startScenes() {
    return {
        {"start", "Form1", {}, {}, [](Visitor&) {}},
        {"start, NED GROVE", "Form1", {"NED GROVE"}, {}, [](Visitor&) {}},
        // No button leads to the viewer without a text; its caption stands until a text brings another.
        {"text viewer alone",
         "Form2",
         {},
         {"no text"},
         [](Visitor& go) { go.screens.show(forms::kTextViewer); }},
        {"warranty", "Form2", {}, {"warranty"}, [](Visitor& go) { go.click(forms::kStart, "Command2"); }},
        {"warranty by the menu", "Form2", {}, {"warranty"}, [](Visitor& go) { go.pickItem("warranty"); }},
        {"introduction", "Form2", {}, {"introduction"}, [](Visitor& go) { go.press("Command1"); }},
        {"part number breakdown",
         "Form2",
         {},
         {"breakdown"},
         [](Visitor& go) {
             go.press("Command8");
             go.click(forms::kPartNumber, "Command2");
         }},
        {"distributors",
         "Form2",
         {},
         {"distributor"},
         [](Visitor& go) { go.pickItem("DistributorInformation"); }},
        {"units", "Form6", {}, {}, [](Visitor& go) { go.pickItem("dimensions"); }},
    };
}

}  // namespace norlaplan::testing
