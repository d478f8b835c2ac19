#include <QTimer>
#include <filesystem>

#include <sys/stat.h>

#include "screens/Program.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/StartControls.h"

using namespace norlaplan;
using namespace norlaplan::testing;

class StartScreenTest : public QObject {
    Q_OBJECT

  private slots:
    void its_controls_are_as_their_rows_say() {
        QCOMPARE(controlsThatDiffer(forms::kStart, {kStartRows, startScenes()}), QStringList());
    }

    void the_start_screen_waits_four_seconds_and_then_opens_the_main_menu_by_itself() {
        Program program;
        ShowStartScreen(program.screens);
        QCOMPARE(program.inFront(), std::string(forms::kStart));
        auto& timer = program.control<QTimer>(forms::kStart, "Timer1");
        QVERIFY(timer.isActive());
        QCOMPARE(timer.interval(), 4000);
        timer.start(0);
        QTRY_COMPARE(program.inFront(), std::string(forms::kMainMenu));
    }

    void start_opens_the_main_menu_and_stops_the_timer() {
        Program program;
        ShowStartScreen(program.screens);
        program.click(forms::kStart, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QVERIFY(!program.control<QTimer>(forms::kStart, "Timer1").isActive());
        QVERIFY(!program.screens.form(forms::kStart).isVisible());
    }

    void the_warranty_stops_the_timer_and_comes_back_to_the_start_screen() {
        Program program;
        ShowStartScreen(program.screens);
        program.click(forms::kStart, "Command2");
        QCOMPARE(program.inFront(), std::string(forms::kTextViewer));
        QCOMPARE(program.screens.form(forms::kTextViewer).windowTitle(), QString("Warranty"));
        QCOMPARE(program.control<QAbstractButton>(forms::kTextViewer, "Command1").text(),
                 QString("Exit Warranty"));
        QVERIFY(!program.control<QTimer>(forms::kStart, "Timer1").isActive());
        program.click(forms::kTextViewer, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kStart));
    }

    void quit_ends_the_program() {
        Program program;
        ShowStartScreen(program.screens);
        program.click(forms::kStart, "Command3");
        QCOMPARE(program.inFront(), std::string());
    }

    void without_a_settings_file_the_program_starts_in_us_units_and_without_a_word() {
        Program program;
        ShowStartScreen(program.screens);
        QCOMPARE(program.state.unitSystem, std::string("US"));
        QVERIFY(program.messages.shown.empty());
    }

    void a_settings_file_cut_short_is_told_and_the_program_starts() {
        Program program;
        program.files.write("SETTINGS.INI", "A\r\nB\r\nC\r\n");
        ShowStartScreen(program.screens);
        QCOMPARE(program.inFront(), std::string(forms::kStart));
        QCOMPARE(program.messages.shown.size(), std::size_t{1});
    }

    void skip_intro_goes_to_the_main_menu_at_once() {
        Program program;
        program.files.write("Extras.txt", "Skip Intro\r\n");
        ShowStartScreen(program.screens);
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QVERIFY(!program.screens.form(forms::kStart).isVisible());
        QVERIFY(!program.control<QTimer>(forms::kStart, "Timer1").isActive());
    }

    void options_and_settings_that_are_too_large_are_told_and_the_program_starts() {
        for (const char* const name : {"SETTINGS.INI", "Extras.txt"}) {
            Program program;
            program.files.write(name, "");
            std::filesystem::resize_file(program.files.path() / name, 1U << 30U);
            ShowStartScreen(program.screens);
            QCOMPARE(program.inFront(), std::string(forms::kStart));
            QCOMPARE(program.messages.shown.size(), std::size_t{1});
            QCOMPARE(program.lastMessage().title, std::string(name));
        }
    }

    void nothing_in_the_place_of_a_file_is_waited_for_data() {
        QTest::addColumn<QString>("file");
        for (const char* const file :
             {"SETTINGS.INI", "Extras.txt", "bkground/start.png", "bkground/T-X.BMP", "icons/onmoniter.ico",
              "icons/TRFFC10A.ICO", "icons/TRFFC10C.ICO", "help/INTRO.RTF"})
            QTest::newRow(file) << file;
    }
    void nothing_in_the_place_of_a_file_is_waited_for() {
        QFETCH(QString, file);
        Program program;
        const std::filesystem::path pipe = program.files.path() / file.toStdString();
        program.give(file.toStdString(), "");
        std::filesystem::remove(pipe);
        QCOMPARE(::mkfifo(pipe.c_str(), 0600), 0);
        ShowStartScreen(program.screens);
        QCOMPARE(program.inFront(), std::string(forms::kStart));
        for (const FormName form : {forms::kMainMenu, forms::kStyle, forms::kApplication}) {
            program.screens.show(form);
            QCOMPARE(program.inFront(), std::string(form));
            program.screens.form(form).grab();
        }
    }

    void skip_intro_with_a_trailing_blank_does_not() {
        Program program;
        program.files.write("Extras.txt", "SKIP INTRO \r\n");
        ShowStartScreen(program.screens);
        QCOMPARE(program.inFront(), std::string(forms::kStart));
    }

    void ian_moray_comes_up_on_the_part_number_screen() {
        Program program;
        program.files.write("Extras.txt", "IAN MORAY\r\n");
        ShowStartScreen(program.screens);
        QCOMPARE(program.inFront(), std::string(forms::kPartNumber));
        program.click(forms::kPartNumber, "Command3");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
    }
};

QTEST_MAIN(StartScreenTest)
#include "StartScreenTest.moc"
