#include <QAction>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <array>
#include <set>

#include "screens/Program.h"
#include "screens/controls/ApplicationControls.h"
#include "screens/controls/ControlsOfAForm.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

const char* const kForm = "Form10";

/// What stands in a text of the form, a line or several.
QString textIn(QWidget& box) {
    if (const auto* const line = qobject_cast<QLineEdit*>(&box)) return line->text();
    return dynamic_cast<QPlainTextEdit&>(box).toPlainText();
}

std::vector<std::string> linesOf(std::string text) {
    std::vector<std::string> lines;
    for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n")) {
        lines.push_back(text.substr(0, end));
        text.erase(0, end + 2);
    }
    return lines;
}

/// The program with the application form opened from the main menu.
struct Application : Program {
    Application() {
        useUnits("US");
        screens.show(forms::kMainMenu);
        openForm();
        saveDialog.choice = SaveChoice{files.path() / "Application Form.rtf", 1};
    }
    void openForm() {
        click(forms::kMainMenu, "Command3");
        QApplication::setActiveWindow(screens.current());
    }
    QWidget& box(int number) { return control<QWidget>(kForm, qPrintable(QString("Text%1").arg(number))); }
    QTabWidget& tabs() { return control<QTabWidget>(kForm, "SSTab1"); }
    QString light(int tab) { return tabs().tabToolTip(tab - 1); }
    QWidget* focus() { return screens.current()->focusWidget(); }
    bool isShown(const char* name) {
        auto& widget = control<QWidget>(kForm, name);
        return widget.isVisibleTo(tabs().widget(tabOf(widget)));
    }
    int tabOf(QWidget& widget) {
        int tab = 0;
        while (!tabs().widget(tab)->isAncestorOf(&widget))
            ++tab;
        return tab;
    }
    void trigger(const char* action) { control<QAction>(forms::kMainMenu, action).trigger(); }
    std::string dataFile() { return files.read("Application Form..KDN"); }

    /// Fills every control of the form with nothing but the keyboard: texts by `enter`, the first option of
    /// each group, the last precision class.
    template <typename Enter>
    void fillByKeys(Enter enter) {
        for (int tab = 0; tab < 12; ++tab) {
            QCOMPARE(tabs().currentIndex(), tab);
            std::set<QWidget*> seen;
            while (tabs().currentWidget()->isAncestorOf(focus()) && seen.insert(focus()).second) {
                QWidget* const now = focus();
                if (now->objectName().startsWith("Text")) {
                    enter(*now);
                } else if (now->objectName() == "Option14") {
                    for (int down = 0; down < 6; ++down)
                        QTest::keyClick(focus(), Qt::Key_Down);
                } else {
                    QTest::keyClick(now, Qt::Key_Space);
                }
                QTest::keyClick(focus(), Qt::Key_Tab);
            }
            if (!tabs().currentWidget()->isAncestorOf(focus())) QTest::keyClick(focus(), Qt::Key_Backtab);
            if (tab < 11) QTest::keyClick(focus(), Qt::Key_Tab, Qt::ControlModifier);
        }
    }
    /// Tabs to a button of the footer and presses Enter.
    void press(const char* button) {
        for (int i = 0; i < 20 && focus()->objectName() != button; ++i)
            QTest::keyClick(focus(), Qt::Key_Tab);
        QCOMPARE(focus()->objectName(), QString(button));
        QTest::keyClick(focus(), Qt::Key_Return);
    }
};

}  // namespace

class Form10Test : public QObject {
    Q_OBJECT

  private slots:
    void its_controls_are_as_their_rows_say() {
        QCOMPARE(controlsThatDiffer(forms::kApplication, {kApplicationRows, applicationScenes()}),
                 QStringList());
    }

    void captions_and_tips_are_as_stated() {
        Application program;
        QCOMPARE(program.inFront(), std::string(kForm));
        QCOMPARE(program.screens.current()->windowTitle(), QString("Application Form"));
        program.compareButton(kForm, "Command1", "&Main Menu", "Return to Main Menu");
        program.compareButton(kForm, "Command2", "P&rint", "Print completed form");
        program.compareButton(kForm, "Command3", "&Save", "Save data to file");
        const char* const tips[51] = {
            "Company Contact Name",
            "Company Name",
            "Company Address Line 1",
            "Company Address Line 2",
            "Contact Job Title",
            "Complete Phone Number",
            "Complete Facsimile Number",
            "How Bearing will be Used",
            "Project Name",
            "Number of Bearings needed",
            "Maximum nonrotating Radial Load",
            "Maximum nonrotating Thrust Load",
            "Maximum nonrotating Moment Load",
            "Average rotating Radial Load",
            "Average rotating Thrust Load",
            "Average rotating Moment Load",
            "Details of Shock or Vibration",
            "Desired Factor of Safety",
            "Maximum expected RMP",
            "Minimum expected RPM",
            "Angle of Oscillation",
            "Cycles per second",
            "Inner Race Runout \"Full Indicator Movement\"",
            "Outer Race Radial Runout \"Full Indicator Movement\"",
            "Inner Race Axial Runout \"Full Indicator Movement\"",
            "Outer Race Axial Runout \"Full Indicator Movement\"",
            "Radial Play of Bearing(S)",
            "Axial Play of Bearing(S)",
            "Minimum Acceptable L10 Life",
            "Average Expected Bearing L10 life",
            "Alternate Life requirements",
            "Typical Operating Temperature",
            "Coldest Expected Temperature",
            "Hottest Expected Temperature",
            "\"+\" is shaft hotter, \"-\" is shaft cooler than housing",
            "Type , name and manufacturer of lubricant desired",
            "Initial fill, grease injection, oil bath, etc.",
            "Bearing Inner Diameter",
            "Bearing Outer Diameter",
            "Overall Width of bearing in Axial Direction",
            "Smallest Acceptable Inner Diameter",
            "Largest Acceptable Outer Diameter",
            "Maximum overall axial width",
            "Style of bearing such as \"Radial\",  \"4-Point Contact\", \"Duplexed Back-to-Back\", etc.",
            "Material or Properties of the Shaft",
            "Material or Properties of the Housing",
            "Maximum Drive Torque Available to Rotate Bearing",
            "Are Integral Seals Required in the Bearing?",
            "Thin Dense Chrome, Cadmium, Etc.",
            "Other",
            "Any Additional Requirements not yet Specified"};
        for (int i = 1; i <= 51; ++i)
            QCOMPARE(program.box(i).toolTip(), QString(tips[i - 1]));
        const char* const options[24] = {"EXPERIMENTAL",
                                         "PROTOTYPE",
                                         "PRODUCTION",
                                         "SPECIAL MACHINE",
                                         "OTHER",
                                         "O.E.M.",
                                         "RESALE",
                                         "OWN USE",
                                         "REPLACEMENT",
                                         "IS",
                                         "IS NOT",
                                         "YES",
                                         "NO",
                                         "0 = PRECISION CLASS 1",
                                         "1 = PRECISION CLASS 1 with CLASS 4 RUNOUTS",
                                         "2 = PRECISION CLASS 1 with CLASS 6 RUNOUTS",
                                         "3 = PRECISION CLASS 3",
                                         "4 = PRECISION CLASS 4",
                                         "6 = PRECISION CLASS 6",
                                         "8 = OTHER - DEFINED BELOW",
                                         "VERTICAL",
                                         "HORIZONTAL",
                                         "INNER",
                                         "OUTER"};
        for (int i = 1; i <= 24; ++i) {
            const QString name = QString("Option%1").arg(i);
            QCOMPARE(program.control<QRadioButton>(kForm, qPrintable(name)).text(), QString(options[i - 1]));
        }
        QCOMPARE(program.control<QAbstractButton>(kForm, "Check1").text(), QString("Vibration or Shock"));
        QCOMPARE(program.control<QLabel>(kForm, "Label21").text(), QString("Angle in Degrees"));
        QCOMPARE(program.control<QLabel>(kForm, "Label22").text(), QString("Frequency"));
    }

    void every_text_says_what_it_is() {
        Application program;
        for (int i = 1; i <= 51; ++i)
            QVERIFY2(!program.box(i).accessibleName().isEmpty(), qPrintable(QString::number(i)));
    }

    void the_tabs_are_the_sections_of_the_document() {
        Application program;
        const QStringList names = {
            "FROM",        "LOADS",   "SPEED",    "OSCILLATION",          "ACCURACY", "LIFE", "TEMPERATURE",
            "LUBRICATION", "BEARING", "MATERIAL", "SPECIAL REQUIREMENTS", "REMARKS"};
        QCOMPARE(program.tabs().count(), 12);
        for (int tab = 0; tab < 12; ++tab)
            QCOMPARE(program.tabs().tabText(tab), names[tab]);
    }

    void each_text_stands_on_the_tab_of_its_section() {
        Application program;
        const std::array<int, 12> lastOfTab = {10, 18, 20, 22, 28, 31, 35, 37, 44, 46, 50, 51};
        std::size_t tab = 0;
        for (int number = 1; number <= 51; ++number) {
            if (number > lastOfTab.at(tab)) ++tab;
            QCOMPARE(program.tabOf(program.box(number)), static_cast<int>(tab));
        }
    }

    void a_few_options_stand_side_by_side_and_many_one_under_another() {
        Application program;
        const auto place = [&](int option) {
            return program.control<QWidget>(kForm, qPrintable(QString("Option%1").arg(option))).pos();
        };
        QCoreApplication::processEvents();
        for (const int option : {2, 3, 4, 5, 7, 8, 9}) {
            QCOMPARE(place(option).y(), place(option - 1).y());
            QVERIFY(place(option).x() > place(option - 1).x());
        }
        program.tabs().setCurrentIndex(4);
        QCoreApplication::processEvents();
        for (int option = 15; option <= 20; ++option) {
            QCOMPARE(place(option).x(), place(option - 1).x());
            QVERIFY(place(option).y() > place(option - 1).y());
        }
    }

    void a_text_with_the_focus_is_light_yellow() {
        Application program;
        const auto paper = [&](int number) { return program.box(number).palette().color(QPalette::Base); };
        program.box(1).setFocus();
        QCOMPARE(paper(1), QColor(255, 255, 192));
        QCOMPARE(paper(2), QApplication::palette().color(QPalette::Base));
        program.box(8).setFocus();
        QCOMPARE(paper(1), QApplication::palette().color(QPalette::Base));
        QCOMPARE(paper(8), QColor(255, 255, 192));
    }

    void lights_tell_how_complete_each_section_is() {
        Application program;
        for (int tab = 1; tab <= 12; ++tab) {
            QCOMPARE(program.light(tab), QString("Empty Data Set"));
            QVERIFY(!program.tabs().tabIcon(tab - 1).isNull());
        }
        program.tabs().setCurrentIndex(2);
        QTest::keyClicks(&program.box(19), "100");
        QCOMPARE(program.light(3), QString("Partial Data Set"));
        QTest::keyClicks(&program.box(20), "10");
        QCOMPARE(program.light(3), QString("Complete Data Set"));
        QTest::keyClick(&program.box(20), Qt::Key_Backspace);
        QTest::keyClick(&program.box(20), Qt::Key_Backspace);
        QCOMPARE(program.light(3), QString("Partial Data Set"));
    }

    void lights_have_three_pictures_of_their_own() {
        Application program;
        program.tabs().setCurrentIndex(2);
        QList<QImage> pictures;
        const auto take = [&] { pictures << program.tabs().tabIcon(2).pixmap(32, 32).toImage(); };
        take();
        QTest::keyClicks(&program.box(19), "1");
        take();
        QTest::keyClicks(&program.box(20), "1");
        take();
        QVERIFY(pictures[0] != pictures[1]);
        QVERIFY(pictures[1] != pictures[2]);
        QVERIFY(pictures[0] != pictures[2]);
    }

    void a_light_that_changed_from_outside_shows_when_the_mouse_moves_over_the_tabs() {
        Application program;
        program.state.application.complete[23] = 1;
        QCOMPARE(program.light(3), QString("Empty Data Set"));
        QTest::mouseMove(program.tabs().tabBar(), QPoint(20, 20));
        QMouseEvent move(QEvent::MouseMove, QPointF(20, 20),
                         program.tabs().tabBar()->mapToGlobal(QPointF(20, 20)), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(program.tabs().tabBar(), &move);
        QCOMPARE(program.light(3), QString("Partial Data Set"));
    }

    void choices_show_what_they_ask_for() {
        Application program;
        QVERIFY(!program.box(17).isEnabled());
        program.tabs().setCurrentIndex(1);
        program.click(kForm, "Check1");
        QVERIFY(program.box(17).isEnabled());
        QCOMPARE(program.state.application.data.shock, std::string("YES"));
        program.click(kForm, "Check1");
        QVERIFY(!program.box(17).isEnabled());
        QCOMPARE(program.state.application.data.shock, std::string("NO"));

        program.tabs().setCurrentIndex(3);
        program.click(kForm, "Option12");
        for (const char* const name : {"Text21", "Text22", "Label21", "Label22"})
            QVERIFY2(program.isShown(name), name);
        program.click(kForm, "Option13");
        for (const char* const name : {"Text21", "Text22", "Label21", "Label22"})
            QVERIFY2(!program.isShown(name), name);
        QCOMPARE(program.light(4), QString("Complete Data Set"));

        program.tabs().setCurrentIndex(4);
        QVERIFY(program.control<QRadioButton>(kForm, "Option14").isChecked());
        for (const char* const option : {"Option20", "Option19", "Option20", "Option15"}) {
            program.click(kForm, option);
            for (const char* const name :
                 {"Text23", "Text24", "Text25", "Text26", "Text27", "Text28", "Label23", "Label28"})
                QCOMPARE(program.isShown(name), QString(option) == "Option20");
        }
        QStringList frames;
        for (const char* const name : {"Text23", "Text25", "Text27"})
            frames << dynamic_cast<QGroupBox&>(*program.control<QWidget>(kForm, name).parentWidget()).title();
        QCOMPARE(frames, (QStringList{"PERMISSIBLE ECCENTRICITY", "PERMISSIBLE FACE RUN-OUT",
                                      "PERMISSIBLE LOOSENESS"}));
    }

    void enter_goes_through_the_texts_and_on_to_the_next_page() {
        Application program;
        program.box(1).setFocus();
        QTest::keyClick(program.focus(), Qt::Key_Return);
        QCOMPARE(program.focus()->objectName(), QString("Text2"));
        program.tabs().setCurrentIndex(2);
        program.box(20).setFocus();
        QTest::keyClick(program.focus(), Qt::Key_Return);
        QCOMPARE(program.tabs().currentIndex(), 3);
        QCOMPARE(program.focus()->objectName(), QString("Option12"));
        QVERIFY(program.saveDialog.requests.empty());
    }

    void filled_by_keyboard_alone_it_is_saved_with_its_data_and_read_back() {
        Application program;
        program.fillByKeys([](QWidget& box) { QTest::keyClicks(&box, box.objectName() + " {\\}"); });
        program.press("Command3");
        QVERIFY(program.messages.shown.empty());
        std::vector<std::string> wanted = {"NORLAPLAN-MM version 1.00", "", "US", " 0", " 0", " 0", ""};
        const auto texts = [&wanted](int first, int last) {
            for (int i = first; i <= last; ++i)
                wanted.push_back("Text" + std::to_string(i) + " {\\}");
        };
        const auto choice = [&wanted](const char* value) { wanted.emplace_back(value); };
        texts(1, 10);
        choice("EXPERIMENTAL");
        choice("O.E.M.");
        texts(11, 16);
        choice("YES");
        texts(17, 18);
        choice("IS");
        texts(19, 20);
        choice("YES");
        texts(21, 22);
        choice("8");
        texts(23, 44);
        choice("VERTICAL");
        choice("INNER");
        texts(45, 51);
        const std::vector<std::string> lines = linesOf(program.dataFile());
        QCOMPARE(lines.size(), std::size_t{66});
        for (std::size_t i = 0; i < lines.size(); ++i)
            QVERIFY2(lines[i] == wanted[i], (std::to_string(i + 1) + ": " + lines[i]).c_str());
        QCOMPARE(program.state.lastSavedFile, (program.files.path() / "Application Form.rtf").string());
        QVERIFY(program.files.read("Application Form.rtf").find("Project = Text9 \\{\\\\\\}") !=
                std::string::npos);
        QVERIFY(!program.state.application.unsaved);

        Application other;
        other.files.write("data.KDN", program.dataFile());
        other.openDialog.choice = other.files.path() / "data.KDN";
        other.press("Command4");
        QVERIFY(other.messages.shown.empty());
        for (int i = 1; i <= 51; ++i)
            QCOMPARE(textIn(other.box(i)), QString("Text%1 {\\}").arg(i));
        for (const char* const option :
             {"Option1", "Option6", "Option10", "Option12", "Option20", "Option21", "Option23", "Check1"})
            QVERIFY2(other.control<QAbstractButton>(kForm, option).isChecked(), option);
        QVERIFY(other.isShown("Text21"));
        QVERIFY(other.isShown("Text23"));
        QCOMPARE(other.light(9), QString("Complete Data Set"));
        QVERIFY(!other.state.application.unsaved);
    }

    void every_text_of_ten_thousand_characters_comes_back_as_it_was() {
        QString piece = QString::fromUtf8("a{b}\\c \xce\xa9 \xe8\xbb\xb8 \"d\", ");
        QString text;
        while (text.size() < 10000)
            text += piece;
        text.truncate(10000);
        Application program;
        QApplication::clipboard()->setText(text);
        program.fillByKeys([](QWidget& box) { QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier); });
        auto& remarks = dynamic_cast<QPlainTextEdit&>(program.box(51));
        remarks.setPlainText("first\n" + text + "\n\nlast");
        program.press("Command3");
        QCOMPARE(linesOf(program.dataFile()).size(), std::size_t{66});

        Application other;
        other.files.write("data.KDN", program.dataFile());
        other.openDialog.choice = other.files.path() / "data.KDN";
        other.click(kForm, "Command4");
        for (int i = 1; i <= 50; ++i)
            QVERIFY2(textIn(other.box(i)) == text, qPrintable(QString::number(i)));
        QCOMPARE(textIn(other.box(51)), "first\n" + text + "\n\nlast");
    }

    void an_empty_form_saves_and_prints() {
        Application program;
        program.click(kForm, "Command3");
        QCOMPARE(linesOf(program.dataFile()).size(), std::size_t{66});
        QVERIFY(program.files.read("Application Form.rtf").starts_with("{\\rtf1"));
        program.click(kForm, "Command2");
        QCOMPARE(program.printer.documents.size(), std::size_t{1});
        QVERIFY(program.printer.canvas.hasText("REQUEST FOR BEARING PROPOSAL DATA FORM"));
        QVERIFY(program.messages.shown.empty());
        const SaveRequest& request = program.saveDialog.requests.front();
        QCOMPARE(request.name, std::string("Application Form.rtf"));
        QCOMPARE(request.folder.filename().string(), std::string("save"));
    }

    void a_cancelled_dialog_ends_silently() {
        Application program;
        program.saveDialog.choice.reset();
        QTest::keyClicks(&program.box(1), "x");
        program.click(kForm, "Command3");
        program.click(kForm, "Command4");
        QVERIFY(program.state.lastSavedFile.empty());
        QVERIFY(program.state.application.unsaved);
        QCOMPARE(textIn(program.box(1)), QString("x"));
        QVERIFY(program.messages.shown.empty());
    }

    void neither_file_is_replaced_when_one_cannot_be_written() {
        Application program;
        program.files.write("Application Form.rtf", "old");
        std::filesystem::create_directory(program.files.path() / "Application Form..KDN");
        program.click(kForm, "Command3");
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '75'"));
        QCOMPARE(program.files.read("Application Form.rtf"), std::string("old"));
        QVERIFY(program.state.lastSavedFile.empty());
    }

    void what_is_entered_stands_there_again_after_the_main_menu() {
        Application program;
        QTest::keyClicks(&program.box(9), "Antenna");
        program.click(kForm, "Option3");
        program.click(kForm, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        program.openForm();
        QCOMPARE(textIn(program.box(9)), QString("Antenna"));
        QVERIFY(program.control<QRadioButton>(kForm, "Option3").isChecked());
        program.screens.current()->close();
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(program.state.application.data.projectName, std::string("Antenna"));
    }

    void contact_fields_are_the_user_information() {
        Application program;
        QTest::keyClicks(&program.box(1), "Ann");
        program.click(kForm, "Command1");
        program.trigger("userinfo");
        QCOMPARE(program.control<QLineEdit>("Form11", "Text1").text(), QString("Ann"));
        program.type("Form11", "Text5", "Engineer");
        program.click("Form11", "Command1");
        program.openForm();
        QCOMPARE(textIn(program.box(5)), QString("Engineer"));
        // The blanks that fill the settings file count as nothing entered.
        QCOMPARE(program.state.user.userPhone, std::string(" "));
        QCOMPARE(textIn(program.box(6)), QString());
        QCOMPARE(program.state.application.complete[6], 0);
        QCOMPARE(program.state.application.complete[5], 1);
    }

    void units_stand_beside_the_values() {
        Application program;
        program.useUnits("METRIC");
        program.click(kForm, "Command1");
        program.openForm();
        for (const auto& [name, unit] : {std::pair{"Unit11", "N"},
                                         {"Unit13", "N-m"},
                                         {"Unit23", "mm"},
                                         {"Unit32", "deg. C"},
                                         {"Unit19", "RPM"},
                                         {"Unit29", "hours"}})
            QCOMPARE(program.control<QLabel>(kForm, name).text(), QString(unit));
    }

    void unsaved_entries_are_asked_for_before_they_are_lost_data() {
        QTest::addColumn<QString>("way");
        for (const char* const way : {"Open", "New", "Exit", "Quit", "Close"})
            QTest::newRow(way) << way;
    }
    void unsaved_entries_are_asked_for_before_they_are_lost() {
        QFETCH(QString, way);
        Application program;
        program.files.write("data.KDN", "x");
        program.openDialog.choice = program.files.path() / "data.KDN";
        const auto lose = [&] {
            if (way == "Open") program.click(kForm, "Command4");
            if (way != "Open") program.screens.showAlone(forms::kMainMenu);
            if (way == "New") program.trigger("New");
            if (way == "Exit") program.trigger("Exit");
            if (way == "Quit") program.click(forms::kMainMenu, "Command15");
            if (way == "Close") program.screens.form(forms::kMainMenu).close();
        };
        QTest::keyClicks(&program.box(9), "Antenna");
        program.messages.decide = [](const Message& question) {
            return question.title == "Warning" ? Answer::Yes : Answer::No;
        };
        lose();
        QCOMPARE(program.messages.asked.back().title, std::string("Application Form"));
        QCOMPARE(program.state.application.data.projectName, std::string("Antenna"));
        QVERIFY(program.screens.current() != nullptr);
        QVERIFY(program.openDialog.requests.empty());

        program.messages.decide = [](const Message&) { return Answer::Yes; };
        lose();
        if (way == "Open") QCOMPARE(program.openDialog.requests.size(), std::size_t{1});
        if (way == "New") QCOMPARE(program.state.application.data.projectName, std::string());
        if (way != "Open" && way != "New") QVERIFY(program.screens.current() == nullptr);
    }

    void nothing_is_asked_when_nothing_is_unsaved() {
        Application program;
        QTest::keyClicks(&program.box(9), "Antenna");
        program.click(kForm, "Command3");
        program.screens.showAlone(forms::kMainMenu);
        program.trigger("New");
        QVERIFY(program.messages.asked.empty());
        program.openForm();
        QCOMPARE(textIn(program.box(9)), QString());
        QCOMPARE(program.light(1), QString("Empty Data Set"));
    }

    void a_file_of_another_kind_is_refused_and_changes_nothing() {
        Application program;
        QTest::keyClicks(&program.box(9), "Antenna");
        program.state.application.unsaved = false;
        for (const std::string& content :
             {std::string(), std::string("NORLAPLAN-MM version 1.00\r\nshort\r\n"), std::string(200000, '\0'),
              std::string("{\\rtf1}")}) {
            program.files.write("data.KDN", content);
            program.openDialog.choice = program.files.path() / "data.KDN";
            program.messages.shown.clear();
            program.click(kForm, "Command4");
            QCOMPARE(program.messages.shown.size(), std::size_t{1});
            QCOMPARE(program.lastMessage().title, std::string("Application Form"));
            QVERIFY(program.lastMessage().prompt.starts_with("The file is no data file"));
            QCOMPARE(textIn(program.box(9)), QString("Antenna"));
        }
        program.openDialog.choice = program.files.path() / "none.KDN";
        program.click(kForm, "Command4");
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '53'"));
        std::ofstream(program.files.path() / "huge.KDN") << "x";
        std::filesystem::resize_file(program.files.path() / "huge.KDN", 1ULL << 33U);
        program.openDialog.choice = program.files.path() / "huge.KDN";
        program.click(kForm, "Command4");
        QVERIFY(program.lastMessage().prompt.starts_with("The file is too large"));
        QCOMPARE(textIn(program.box(9)), QString("Antenna"));
    }

    void a_form_of_the_other_units_is_taken_with_a_warning() {
        Application program;
        program.click(kForm, "Command3");
        program.useUnits("METRIC");
        program.openDialog.choice = program.files.path() / "Application Form..KDN";
        program.click(kForm, "Command4");
        QCOMPARE(program.lastMessage().prompt,
                 std::string("This form was filled in with US units, and the program now shows METRIC units. "
                             "The values are not converted."));
    }
};

QTEST_MAIN(Form10Test)
#include "Form10Test.moc"
