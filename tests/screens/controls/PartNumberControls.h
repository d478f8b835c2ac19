#pragma once

#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// The part number screen.
namespace norlaplan::testing {

inline constexpr ControlRow kPartNumberRows[] = {
    {"Form9", "Form9", "Part Number Processing"},
    {"Form9", "Label1", "Enter full Metric part number:"},
    {"Form9", "Text1", "", "9 or 10 digit code", kBoth, "!typed"},
    {"Form9", "Text1", "*19013*", "9 or 10 digit code", kBoth, "typed"},
    {"Form9", "Text2",
     "Please enter the exact part number.\n"
     "An example of a valid part number is K19013XP0.  The\n"
     "actual number of characters required is either 9 or 10."},
    {"Form9", "Label2", "If the VARDEN Part Number is not understood, Click Here!"},
    {"Form9", "Frame1", "Z SEPARATOR OPTIONS", "", kBoth, "Z & !C or X"},
    {"Form9", "Option1", "PTFE TOROIDS", "", kBoth, "Z & !C or X"},
    {"Form9", "Option2", "VESPEL TOROIDS", "", kBoth, "Z & !C or X"},
    {"Form9", "Option3", "SPACER BALLS", "", kBoth, "Z & !C or X"},
    {"Form9", "Frame2", "Z SEPARATOR OPTIONS", "", kBoth, "Z & C or X"},
    {"Form9", "Option5", "PTFE SLUGS", "", kBoth, "Z & C or X"},
    {"Form9", "Option6", "SPACER BALLS", "", kBoth, "Z & C or X"},
    {"Form9", "Command1", "View Data Sheet"},
    {"Form9", "Command2", "Explain Part        Numbers", "Show character by character explanation"},
    {"Form9", "Command3", "&Main Menu", "Return to Main Menu"},
};

inline std::vector<Scene> partNumberScenes() {
    std::vector<Scene> scenes = {
        {"part number", "Form9", {}, {}, [](Visitor& go) { go.press("Command8"); }},
        {"part number, IAN MORAY", "Form9", {"IAN MORAY"}, {}, [](Visitor&) {}},
    };
    const struct {
        const char* text;
        Facts facts;
    } typed[] = {
        {"K19013X", {"typed"}},
        {"K19013XP0", {"typed", "C or X"}},
        {"K19013XZ", {"typed", "Z", "C or X"}},
        {"k19013cz0", {"typed", "Z", "C or X"}},
        {"K19013BZ", {"typed", "Z"}},
        {"K19013FZ0A", {"typed", "Z"}},
        {"K19013AZ0", {"typed", "Z"}},
    };
    for (const auto& [text, facts] : typed) {
        scenes.push_back(
            {std::string("part number, ") + text, "Form9", {}, facts, [number = text](Visitor& go) {
                 go.typeNumber(number);
             }});
    }
    return scenes;
}

}  // namespace norlaplan::testing
