#pragma once

#include <QAction>
#include <array>

#include "screens/Program.h"

namespace norlaplan::testing {

/// Somebody who starts the program in a unit system with some lines in Extras.txt and goes to a form by its
/// buttons and menus.
class Visitor : public Program {
  public:
    Visitor(const std::string& system, const std::vector<std::string>& keywords) {
        std::string settings;
        for (int line = 0; line < 8; ++line)
            settings += " \r\n";
        files.write("SETTINGS.INI", settings + system + "\r\n");
        std::string extras;
        for (const std::string& keyword : keywords)
            extras += keyword + "\r\n";
        files.write("Extras.txt", extras);
        ShowStartScreen(screens);
    }

    bool metric() const { return state.units.system == "METRIC"; }

    void toMenu() {
        if (inFront() == std::string(forms::kStart)) click(forms::kStart, "Command1");
    }
    void pickItem(const char* name) {
        toMenu();
        control<QAction>(forms::kMainMenu, name).trigger();
    }
    void press(const char* menuButton) {
        toMenu();
        click(forms::kMainMenu, menuButton);
    }
    /// Types into the part number screen without leaving it.
    void typeNumber(const std::string& text) {
        if (inFront() != std::string(forms::kPartNumber)) press("Command8");
        type(forms::kPartNumber, "Text1", text.c_str());
    }
    void decode(const std::string& number) {
        typeNumber(number);
        click(forms::kPartNumber, "Command1");
    }
    /// From the menu: the loads of the bearing in hand, and on to its life.
    void solve(const char* speed) {
        press("Command13");
        enterLoads(speed);
    }
    /// The same figures in both unit systems, so that they read alike.
    void enterLoads(const char* speed) {
        type(forms::kLoads, "Text1", "1200");
        if (control<QWidget>(forms::kLoads, "Text2").isVisible()) {
            type(forms::kLoads, "Text2", "300");
            type(forms::kLoads, "Text3", "50");
        }
        type(forms::kLoads, "Text4", speed);
        click(forms::kLoads, "Command1");
    }
    void save(const std::string& form, const char* button) {
        saveDialog.choice = SaveChoice{files.path() / "saved.rtf", 1};
        click(form, button);
    }
    /// A style of the search path, 1 to 6, in the order of its screen.
    void chooseStyle(int style) {
        press("Command4");
        click(forms::kStyle, qPrintable(QString("Image%1").arg(style)));
    }
    void toSizes(int style) {
        chooseStyle(style);
        click(forms::kStyle, "Command1");
    }
    /// The envelope holds bearings of 190 mm bore and 13 mm height, and pairs of them.
    void toSearchLoads(int style) {
        toSizes(style);
        const std::array<const char*, 4> inches = {"7", "9", "0.25", "2"},
                                         millimetres = {"180", "220", "5", "50"};
        for (std::size_t i = 0; i < inches.size(); ++i) {
            const QByteArray field = "Text" + QByteArray::number(static_cast<int>(i) + 1);
            type(forms::kSizes, field.constData(), (metric() ? millimetres : inches)[i]);
        }
        click(forms::kSizes, "Command2");
    }
    void search(int style, const char* speed) {
        toSearchLoads(style);
        enterLoads(speed);
    }
};

}  // namespace norlaplan::testing
