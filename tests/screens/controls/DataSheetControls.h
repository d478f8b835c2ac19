#pragma once

#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// The data sheet screen.
namespace norlaplan::testing {

inline constexpr ControlRow kDataSheetRows[] = {
    {"Form17", "Form17", "Drawing Display"},
    {"Form17", "Command1", "&Main Menu", "Return to Main Menu"},
    {"Form17", "Command2", "Redraw"},
    {"Form17", "Command3", "&Save", "Save data sheet to file"},
    {"Form17", "Command4", "P&rint", "Print data sheet"},
    {"Form17", "Picture2", "",
     "Draw a frame with the mouse to look closer; the wheel, + and - zoom, 0 shows the whole page, the "
     "middle button moves it",
     kBoth, "", kOwnTip},
    {"Form17", "VScroll1", ""},
    {"Form17", "HScroll1", "", "", kBoth, "zoomed", kOwn},
    {"Form17", "Line1", "", "", kBoth, "frame drawn"},
    {"Form17", "Line2", "", "", kBoth, "frame drawn"},
    {"Form17", "Line3", "", "", kBoth, "frame drawn"},
    {"Form17", "Line4", "", "", kBoth, "frame drawn"},
    {"Form17", "WholePage", "&Whole Page", "Show the whole page (0)", kBoth, "", kOwn},
    {"Form17", "PageWidth", "Page Wi&dth", "Show the page as wide as the window", kBoth, "", kOwn},
    {"Form17", "ZoomIn", "Zoom &In", "Look closer (+)", kBoth, "", kOwn},
    {"Form17", "ZoomOut", "Zoom &Out", "Show more of the page (-)", kBoth, "", kOwn},
    {"Form17", "OpenSaved", "Open", "Open the saved file with its program", kBoth, "saved", kOwn},
    {"Form17", "ShowSaved", "Show in Folder", "Open the folder of the saved file", kBoth, "saved", kOwn},
};

inline std::vector<Scene> dataSheetScenes() {
    const auto openSheet = [](Visitor& go) {
        go.decode("K19013XP0");
        go.press("Command9");
    };
    return {
        {"sheet", "Form17", {}, {}, openSheet},
        {"sheet from the list",
         "Form17",
         {},
         {},
         [](Visitor& go) {
             go.search(2, "");
             go.click(forms::kResults, "Command4");
         }},
        {"sheet, saved",
         "Form17",
         {},
         {"saved"},
         [openSheet](Visitor& go) {
             openSheet(go);
             go.save(forms::kDataSheet, "Command3");
         }},
        {"sheet, zoomed",
         "Form17",
         {},
         {"zoomed"},
         [openSheet](Visitor& go) {
             openSheet(go);
             go.click(forms::kDataSheet, "ZoomIn");
             QCoreApplication::processEvents();
         }},
        {"sheet, frame drawn",
         "Form17",
         {},
         {"frame drawn"},
         [openSheet](Visitor& go) {
             openSheet(go);
             QWidget& drawing = go.control<QWidget>(forms::kDataSheet, "Picture2");
             QTest::mousePress(&drawing, Qt::LeftButton, {}, {60, 60});
             QTest::mouseMove(&drawing, {200, 200});
         }},
    };
}

}  // namespace norlaplan::testing
