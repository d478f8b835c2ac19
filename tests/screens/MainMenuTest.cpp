#include <QAction>
#include <QLabel>

#include "screens/Program.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/MainMenuControls.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

/// The main menu in front, every screen that it opens an empty window.
struct Menu : Program {
    Menu() {
        for (const FormName form :
             {forms::kPartNumber, forms::kDataSheet, forms::kPreloadTorque, forms::kAxialPlay,
              forms::kDeflection, forms::kLoads, forms::kLife, forms::kThermalFits, forms::kStyle,
              forms::kSizes, forms::kResults, forms::kUnits, forms::kUserInfo, forms::kHelpIndex})
            blank(form);
        screens.show(forms::kMainMenu);
    }
    void trigger(const char* action) { control<QAction>(forms::kMainMenu, action).trigger(); }
    void hold(const char* number, const char* style) {
        state.bearing.partNumber = number;
        state.bearing.styleLetter = style;
    }
};

}  // namespace

class MainMenuTest : public QObject {
    Q_OBJECT

  private slots:
    void its_controls_are_as_their_rows_say() {
        QCOMPARE(controlsThatDiffer(forms::kMainMenu, {kMainMenuRows, mainMenuScenes()}), QStringList());
    }

    void part_number_buttons_without_a_part_number_ask_for_it_data() {
        QTest::addColumn<QString>("name");
        for (const int n : {9, 10, 11, 12, 13, 14})
            QTest::addRow("Command%d", n) << QStringLiteral("Command%1").arg(n);
    }
    void part_number_buttons_without_a_part_number_ask_for_it() {
        QFETCH(QString, name);
        Menu menu;
        menu.click(forms::kMainMenu, name.toUtf8().constData());
        QCOMPARE(menu.lastMessage(),
                 (Message{"Missing Part Number", "Please enter part number first", Icon::Information}));
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
    }

    void part_number_buttons_open_their_screens_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("form");
        QTest::newRow("data sheet") << "Command9"
                                    << "Form17";
        QTest::newRow("preload torque") << "Command10"
                                        << "Form23";
        QTest::newRow("axial play") << "Command11"
                                    << "Form18";
        QTest::newRow("deflection") << "Command12"
                                    << "Form24";
        QTest::newRow("loads") << "Command13"
                               << "Form14";
    }
    void part_number_buttons_open_their_screens() {
        QFETCH(QString, name);
        QFETCH(QString, form);
        Menu menu;
        menu.hold("K19013XP0", "X");
        menu.click(forms::kMainMenu, name.toUtf8().constData());
        QVERIFY(menu.messages.shown.empty());
        QCOMPARE(menu.inFront(), form.toStdString());
    }

    void styles_that_a_calculation_does_not_serve_are_refused() {
        Menu menu;
        menu.hold("K19013AR0", "A");
        menu.click(forms::kMainMenu, "Command10");
        QCOMPARE(menu.lastMessage(), (Message{"Wrong Bearing style",
                                              "Only Duplexes , 'C' or 'X' styles allowed", Icon::Critical}));
        menu.click(forms::kMainMenu, "Command11");
        QCOMPARE(menu.lastMessage(),
                 (Message{"Wrong Bearing style", "Only radial and 4-point contact bearings allowed",
                          Icon::Critical}));
        menu.click(forms::kMainMenu, "Command12");
        QCOMPARE(menu.lastMessage(), (Message{"Try another Bearing type", "Bearing type A Not allowed"}));
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
    }

    void life_without_loads_asks_for_them() {
        Menu menu;
        menu.hold("K19013XP0", "X");
        menu.click(forms::kMainMenu, "Command14");
        QCOMPARE(menu.lastMessage(), (Message{"Missing Load Data", "Please enter loads first"}));
        menu.state.loadsEntered = true;
        menu.click(forms::kMainMenu, "Command14");
        QCOMPARE(menu.inFront(), std::string(forms::kLife));
    }

    void a_radial_contact_bearing_without_radial_load_loses_its_loads() {
        Menu menu;
        menu.hold("K19013CP0", "C");
        menu.state.loadsEntered = true;
        menu.click(forms::kMainMenu, "Command14");
        QCOMPARE(menu.lastMessage(), (Message{"Missing Load Data", "Please enter Radial load first"}));
        menu.click(forms::kMainMenu, "Command14");
        QCOMPARE(menu.lastMessage(), (Message{"Missing Load Data", "Please enter loads first"}));
    }

    void the_load_screen_knows_from_which_path_it_was_opened() {
        Menu menu;
        menu.hold("K19013XP0", "X");
        menu.click(forms::kMainMenu, "Command13");
        QVERIFY(menu.state.knownBearingLoadInput);
        menu.screens.show(forms::kMainMenu);
        menu.state.styleChosen = true;
        menu.state.sizesChosen = true;
        menu.click(forms::kMainMenu, "Command6");
        QVERIFY(!menu.state.knownBearingLoadInput);
        QCOMPARE(menu.inFront(), std::string(forms::kLoads));
    }

    void the_search_path_leads_to_the_step_that_is_missing() {
        Menu menu;
        const Message noStyle{"STYLE OF BEARING UNKNOWN", "BEARING STYLE MUST BE CHOSEN BEFORE SIZES"};
        for (const char* const button : {"Command5", "Command6", "Command7"}) {
            menu.screens.show(forms::kMainMenu);
            menu.messages.shown.clear();
            menu.click(forms::kMainMenu, button);
            QCOMPARE(menu.messages.shown, std::vector<Message>{noStyle});
            QCOMPARE(menu.inFront(), std::string(forms::kStyle));
        }
        menu.state.styleChosen = true;
        for (const char* const button : {"Command6", "Command7"}) {
            menu.screens.show(forms::kMainMenu);
            menu.click(forms::kMainMenu, button);
            QCOMPARE(menu.lastMessage(), (Message{"Missing Bearing Size", "Size of bearing must be known"}));
            QCOMPARE(menu.inFront(), std::string(forms::kSizes));
        }
        menu.state.sizesChosen = true;
        menu.screens.show(forms::kMainMenu);
        menu.click(forms::kMainMenu, "Command7");
        QCOMPARE(menu.lastMessage(), (Message{"Missing Load Data", "Bearing Loads Must be known"}));
        QCOMPARE(menu.inFront(), std::string(forms::kLoads));
        menu.state.loadsEntered = true;
        menu.screens.show(forms::kMainMenu);
        menu.click(forms::kMainMenu, "Command7");
        QCOMPARE(menu.inFront(), std::string(forms::kResults));
    }

    void the_question_about_the_part_number_marks_the_path_and_starts_it() {
        Menu menu;
        auto& known = menu.control<QLabel>(forms::kMainMenu, "Label1");
        auto& search = menu.control<QLabel>(forms::kMainMenu, "Label2");
        menu.messages.answers = {Answer::Yes};
        menu.click(forms::kMainMenu, "Command18");
        QCOMPARE(menu.messages.asked.back(),
                 (Message{"Program Help", "Do you know the Norlaring MM™ Part Number"}));
        QCOMPARE(menu.inFront(), std::string(forms::kPartNumber));
        QVERIFY(!known.isHidden());
        QVERIFY(search.isHidden());

        menu.screens.show(forms::kMainMenu);
        menu.messages.answers = {Answer::No};
        menu.click(forms::kMainMenu, "Command18");
        QCOMPARE(menu.inFront(), std::string(forms::kStyle));
        QVERIFY(known.isHidden());
        QVERIFY(!search.isHidden());

        menu.screens.show(forms::kMainMenu);
        menu.messages.answers = {Answer::Cancel};
        menu.click(forms::kMainMenu, "Command18");
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
        QVERIFY(!search.isHidden());
    }

    void optional_buttons_come_with_their_options() {
        Menu menu;
        for (const char* const name : {"Command16", "Command17", "Command19"})
            QVERIFY(menu.control<QWidget>(forms::kMainMenu, name).isHidden());
        QVERIFY(!menu.control<QAction>(forms::kMainMenu, "makeqlx").isVisible());
        menu.state.options.faxCoverEnabled = true;
        menu.state.options.nedGroveOption = true;
        menu.state.options.tempFitsOption = true;
        menu.state.options.qlxOption = true;
        menu.screens.show(forms::kMainMenu);
        for (const char* const name : {"Command16", "Command17", "Command19"})
            QVERIFY(menu.control<QWidget>(forms::kMainMenu, name).isVisible());
        QVERIFY(menu.control<QAction>(forms::kMainMenu, "makeqlx").isVisible());
        menu.click(forms::kMainMenu, "Command19");
        QCOMPARE(menu.lastMessage(), (Message{"Missing bearing data", "Please select a bearing first"}));
    }

    void the_background_shows_the_units() {
        Menu menu;
        const Form& form = menu.screens.form(forms::kMainMenu);
        QCOMPARE(form.palette().color(QPalette::Window), QColor(128, 128, 255));
        menu.state.unitSystem = "METRIC";
        menu.screens.show(forms::kMainMenu);
        QCOMPARE(form.palette().color(QPalette::Window), QColor(192, 255, 192));
        QVERIFY(form.palette().color(QPalette::WindowText).lightness() < 60);
    }

    void new_clears_the_bearing_and_the_loads_but_not_options_units_and_user() {
        Menu menu;
        menu.hold("K19013XP0", "X");
        menu.state.loadsEntered = true;
        menu.state.styleChosen = true;
        menu.state.loads.radialLoad = 100.0;
        menu.state.entries.radial = "100";
        menu.state.options.faxCoverEnabled = true;
        menu.state.user.userName = "Ada";
        menu.state.unitSystem = "METRIC";
        menu.files.write("DATA.RTF", "x");
        menu.trigger("New");
        QVERIFY(menu.state.bearing.partNumber.empty());
        QVERIFY(!menu.state.loadsEntered);
        QVERIFY(!menu.state.styleChosen);
        QCOMPARE(static_cast<double>(menu.state.loads.radialLoad), 0.0);
        QVERIFY(menu.state.entries.radial.empty());
        QVERIFY(menu.state.options.faxCoverEnabled);
        QCOMPARE(menu.state.user.userName, std::string("Ada"));
        QCOMPARE(menu.state.unitSystem, std::string("METRIC"));
        QVERIFY(std::filesystem::exists(menu.files.path() / "DATA.RTF"));
        QVERIFY(menu.control<QLabel>(forms::kMainMenu, "Label3").text().isEmpty());
    }

    void quit_asks_and_deletes_the_generated_sheet() {
        Menu menu;
        menu.files.write("DATA.RTF", "x");
        menu.files.write("CONDENSED.DAT", "x");
        menu.messages.answers = {Answer::No, Answer::Yes};
        menu.click(forms::kMainMenu, "Command15");
        QCOMPARE(menu.messages.asked.back(),
                 (Message{"Warning", "Are you Sure you want to quit ?", Icon::Warning}));
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
        QVERIFY(std::filesystem::exists(menu.files.path() / "DATA.RTF"));
        menu.click(forms::kMainMenu, "Command15");
        QCOMPARE(menu.inFront(), std::string());
        QVERIFY(!std::filesystem::exists(menu.files.path() / "DATA.RTF"));
        QVERIFY(!std::filesystem::exists(menu.files.path() / "CONDENSED.DAT"));
    }

    void exit_deletes_the_generated_sheet_without_a_question() {
        Menu menu;
        menu.files.write("DATA.RTF", "x");
        menu.trigger("Exit");
        QVERIFY(menu.messages.asked.empty());
        QCOMPARE(menu.inFront(), std::string());
        QVERIFY(!std::filesystem::exists(menu.files.path() / "DATA.RTF"));
    }

    void closing_the_window_ends_the_program_without_deleting() {
        Menu menu;
        menu.files.write("DATA.RTF", "x");
        menu.screens.form(forms::kMainMenu).close();
        QCOMPARE(menu.inFront(), std::string());
        QVERIFY(std::filesystem::exists(menu.files.path() / "DATA.RTF"));
    }

    void mail_without_a_saved_file_asks_for_one() {
        Menu menu;
        menu.trigger("mail");
        QCOMPARE(menu.lastMessage(),
                 (Message{"No File Available to Send", "Please Save File First", Icon::Critical}));
    }

    void menu_items_open_their_screens() {
        Menu menu;
        menu.trigger("dimensions");
        QCOMPARE(menu.inFront(), std::string(forms::kUnits));
        menu.screens.show(forms::kMainMenu);
        menu.trigger("userinfo");
        QCOMPARE(menu.inFront(), std::string(forms::kUserInfo));
        menu.screens.show(forms::kMainMenu);
        menu.trigger("kmetrichelp");
        QCOMPARE(menu.inFront(), std::string(forms::kHelpIndex));
        menu.screens.show(forms::kMainMenu);
        menu.trigger("Catalog");
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
        QVERIFY(menu.messages.shown.empty());
    }

    void texts_open_in_the_viewer_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("close");
        QTest::newRow("introduction") << "Command1"
                                      << "Introduction to NORLAPLAN MM™ Software"
                                      << "Exit Introduction";
        QTest::newRow("distributor") << "DistributorInformation"
                                     << "Varden Distributor Information"
                                     << "Exit Distributor Information";
        QTest::newRow("warranty") << "warranty"
                                  << "Warranty"
                                  << "Exit Warranty";
    }
    void texts_open_in_the_viewer() {
        QFETCH(QString, name);
        QFETCH(QString, title);
        QFETCH(QString, close);
        Menu menu;
        if (name.startsWith("Command"))
            menu.click(forms::kMainMenu, name.toUtf8().constData());
        else
            menu.trigger(name.toUtf8().constData());
        QVERIFY(menu.messages.shown.empty());
        QCOMPARE(menu.inFront(), std::string(forms::kTextViewer));
        QCOMPARE(menu.screens.form(forms::kTextViewer).windowTitle(), title);
        QCOMPARE(menu.control<QAbstractButton>(forms::kTextViewer, "Command1").text(), close);
    }

    void a_text_that_is_missing_is_a_file_error_and_the_menu_stays() {
        Menu menu;
        std::filesystem::remove(menu.files.path() / "help");
        menu.trigger("warranty");
        QCOMPARE(menu.lastMessage().title, std::string("Run-time error '53'"));
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
    }
};

QTEST_MAIN(MainMenuTest)
#include "MainMenuTest.moc"
