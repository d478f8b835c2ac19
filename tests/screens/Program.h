#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QtTest>
#include <filesystem>
#include <string>

#include "screens/Form1.h"
#include "screens/Screens.h"
#include "screens/platform/QtPorts.h"
#include "support/Folders.h"
#include "support/RecordingDesktop.h"
#include "support/RecordingOffice.h"
#include "support/RecordingPorts.h"

namespace norlaplan::testing {

/// The whole program on a folder of its own: the real forms and catalogue, with ports that record and answer.
struct Program {
    /// Prints on `other` instead of the recording printer when one is given.
    explicit Program(PrinterPort* other = nullptr) : paper(other == nullptr ? &printer : other) {
        namespace fs = std::filesystem;
        for (const auto& entry : fs::directory_iterator(programFolder())) {
            if (entry.is_directory())
                fs::create_directory_symlink(entry.path(), files.path() / entry.path().filename());
        }
        addForms(screens);
    }

    /// A control of a form, by the name it has.
    template <typename Control>
    Control& control(const std::string& form, const char* name) {
        auto* const found = screens.form(form).findChild<Control*>(QString::fromUtf8(name));
        if (found == nullptr) throw std::runtime_error(form + " has no " + name);
        return *found;
    }
    void click(const std::string& form, const char* name) {
        // What has just come into view takes its place first, as before any user's click.
        QCoreApplication::processEvents();
        QTest::mouseClick(&control<QAbstractButton>(form, name), Qt::LeftButton);
    }
    /// Fails the test unless the button has this caption and tip.
    void compareButton(const std::string& form, const char* name, const char* caption, const char* tip) {
        const auto& button = control<QAbstractButton>(form, name);
        QCOMPARE(button.text(), QString(caption));
        QCOMPARE(button.toolTip(), QString(tip));
    }
    void useUnits(const std::string& system) {
        state.unitSystem = system;
        ApplyUnitSystem(system, state.units);
    }
    void type(const std::string& form, const char* field, const char* text) {
        QLineEdit& edit = control<QLineEdit>(form, field);
        edit.clear();
        QTest::keyClicks(&edit, text);
    }
    /// From the main menu: types a part number and presses Enter.
    void enterNumber(const char* number) {
        screens.showAlone(forms::kMainMenu);
        click(forms::kMainMenu, "Command8");
        type(forms::kPartNumber, "Text1", number);
        QTest::keyClick(&control<QLineEdit>(forms::kPartNumber, "Text1"), Qt::Key_Return);
    }
    /// From the main menu: enters loads for the bearing in hand and proceeds to its life.
    void openLife(const char* radial, const char* axial = "", const char* moment = "",
                  const char* speed = "") {
        click(forms::kMainMenu, "Command13");
        type(forms::kLoads, "Text1", radial);
        type(forms::kLoads, "Text2", axial);
        type(forms::kLoads, "Text3", moment);
        type(forms::kLoads, "Text4", speed);
        click(forms::kLoads, "Command1");
    }
    /// The name of the form in front, empty when there is none.
    std::string inFront() const {
        const Form* const form = screens.current();
        return form == nullptr ? "" : form->objectName().toStdString();
    }
    /// The last message; an empty one when there was none.
    Message lastMessage() const { return messages.shown.empty() ? Message{} : messages.shown.back(); }
    /// Puts a file of the test's own into the program folder, "help/HELP1.RTF", in place of any that is
    /// there.
    void give(const std::filesystem::path& name, const std::string& content) {
        own(name.parent_path());
        std::filesystem::remove(files.path() / name);
        files.write(name, content);
    }
    /// Takes a file or a whole folder out of the program folder.
    void take(const std::filesystem::path& name) {
        own(name.parent_path());
        std::filesystem::remove_all(files.path() / name);
    }
    /// Makes `form` known as an empty window, so that a test sees that it is opened, whatever it would do.
    void blank(const std::string& form) {
        screens.add(form,
                    [form](Screens& all) { return std::make_unique<Form>(all, FormName(form.c_str()), ""); });
    }

  private:
    /// A folder of links in place of the link to the folder that all tests share.
    void own(const std::filesystem::path& name) {
        namespace fs = std::filesystem;
        if (!fs::is_symlink(files.path() / name)) return;
        fs::remove(files.path() / name);
        fs::create_directory(files.path() / name);
        for (const auto& entry : fs::directory_iterator(programFolder() / name))
            fs::create_symlink(entry.path(), files.path() / name / entry.path().filename());
    }

  public:
    TemporaryFolder files;
    ProgramFolder folder{files.path()};
    ProgramState state;
    RecordingMessages messages;
    PresetSaveDialog saveDialog;
    RecordingPrinter printer;
    PrinterPort* paper;
    FixedClock clock;
    FolderSheets sheets{folder};
    MemoryUserFiles userFiles;
    RecordingDesktop desktop;
    PresetColourDialog colourDialog;
    PresetOpenDialog openDialog;
    RecordingMail mail;
    RecordingOffice office;
    Screens screens{{state, folder, messages, saveDialog, *paper, clock, sheets, userFiles, desktop,
                     colourDialog, openDialog, mail, office}};
};

}  // namespace norlaplan::testing
