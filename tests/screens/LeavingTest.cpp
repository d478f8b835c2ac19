#include <QAction>
#include <filesystem>
#include <fstream>

#include "numbers/RuntimeError.h"
#include "screens/Program.h"
#include "support/FakeProgram.h"
#include "support/FaultOf.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

namespace fs = std::filesystem;

struct Menu : Program {
    Menu() {
        useUnits("US");
        state.options.qlxOption = true;
        screens.show(forms::kMainMenu);
    }
    void trigger(const char* action) { control<QAction>(forms::kMainMenu, action).trigger(); }
};

}  // namespace

/// What leaves the program by its menu: mail and export.
class LeavingTest : public QObject {
    Q_OBJECT

  private slots:
    void the_mail_program_gets_subject_and_file_as_they_are() {
        const FakeProgram fake("xdg-email");
        const TemporaryFolder files;
        const std::string name = "a b'; $(touch x) \"&.rtf";
        files.write(name, "report");
        DesktopMail mail;
        mail.createApplication();
        mail.createItem(0);
        mail.saveItem();
        mail.attach({files.path() / name, 1, 2, ""});
        mail.setSubject(name + " Ann");
        mail.display();
        QCOMPARE(fake.told(),
                 "<--subject><" + name + " Ann><--attach><" + (files.path() / name).string() + ">");
        QCOMPARE(files.read(name), std::string("report"));
    }

    void without_a_mail_program_the_fault_is_429() {
        const FakeProgram fake("xdg-email");
        fake.remove();
        DesktopMail mail;
        QCOMPARE(faultOf([&] { mail.createApplication(); }), 429);
    }

    void what_the_mail_program_ends_with_tells_the_fault_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("fault");
        QTest::newRow("done") << 0 << 0;
        QTest::newRow("usage") << 1 << 440;
        QTest::newRow("no file") << 2 << 53;
        QTest::newRow("no mail program of the desktop") << 3 << 429;
        QTest::newRow("failed") << 4 << 440;
    }
    void what_the_mail_program_ends_with_tells_the_fault() {
        QFETCH(int, code);
        QFETCH(int, fault);
        const FakeProgram fake("xdg-email", code);
        DesktopMail mail;
        mail.createApplication();
        mail.createItem(0);
        mail.setSubject("x");
        QCOMPARE(faultOf([&] { mail.display(); }), fault);
    }

    void a_file_that_has_gone_is_not_attached() {
        const FakeProgram fake("xdg-email");
        DesktopMail mail;
        mail.createApplication();
        mail.createItem(0);
        try {
            mail.attach({"/nowhere/a.rtf", 1, 2, ""});
            QFAIL("there is no such file");
        } catch (const RuntimeError& error) {
            QCOMPARE(error.number(), 53);
            QCOMPARE(error.what(), "File not found: /nowhere/a.rtf");
        }
        // The system can't even look for a name like this.
        QCOMPARE(faultOf([&] { mail.attach({"/" + std::string(300, 'a'), 1, 2, ""}); }), 53);
        mail.setSubject("x");
        mail.display();
        QCOMPARE(fake.told(), std::string("<--subject><x>"));
    }

    void a_new_mail_has_nothing_of_the_one_before() {
        const FakeProgram fake("xdg-email");
        const TemporaryFolder files;
        files.write("a.rtf", "");
        DesktopMail mail;
        mail.createApplication();
        mail.createItem(0);
        mail.attach({files.path() / "a.rtf", 1, 2, ""});
        mail.createItem(0);
        mail.setSubject("x");
        mail.display();
        QCOMPARE(fake.told(), std::string("<--subject><x>"));
    }

    void the_menu_sends_the_file_saved_last() {
        Menu menu;
        menu.state.lastSavedFile = "/save/a.rtf";
        menu.state.user.userMailSuffix = "Ann";
        menu.trigger("mail");
        QCOMPARE(menu.mail.steps.size(), std::size_t{6});
        QCOMPARE(menu.mail.steps[4], std::string("subject a.rtf Ann"));
        QVERIFY(menu.messages.shown.empty());
    }

    void the_export_writes_the_bearing_in_hand_and_is_not_what_is_mailed() {
        Menu menu;
        menu.enterNumber("K19013XP0");
        menu.saveDialog.choice = SaveChoice{menu.files.path() / "out.qlx", 1};
        menu.trigger("makeqlx");
        QVERIFY(menu.messages.shown.empty());
        const SaveRequest& request = menu.saveDialog.requests.back();
        QCOMPARE(request.title, std::string("Save Brimhall .qlx File"));
        QCOMPARE(request.defaultExtension, std::string("qlx"));
        const std::string text = menu.files.read("out.qlx");
        QCOMPARE(std::count(text.begin(), text.end(), '\n'), std::ptrdiff_t{73});
        QVERIFY(text.find("\r\n\"K19013XP0\"\r\n") != std::string::npos);
        QVERIFY(menu.control<QLabel>(forms::kMainMenu, "SavedText").toolTip().endsWith("out.qlx"));
        QVERIFY(menu.state.lastSavedFile.empty());
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
    }

    void the_export_without_a_bearing_asks_for_one() {
        Menu menu;
        menu.trigger("makeqlx");
        QCOMPARE(menu.lastMessage(),
                 (Message{"Missing Part Number", "Please enter part number first", Icon::Information}));
        QVERIFY(menu.saveDialog.requests.empty());
    }

    void the_export_left_without_a_name_fails_to_make_its_file() {
        Menu menu;
        menu.enterNumber("K19013XP0");
        menu.trigger("makeqlx");
        QCOMPARE(menu.lastMessage().title, std::string("Run-time error '75'"));
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
    }

    void the_export_in_metric_units_ends_the_program_with_65_lines_written() {
        Menu menu;
        menu.useUnits("METRIC");
        menu.enterNumber("K19013XP0");
        menu.saveDialog.choice = SaveChoice{menu.files.path() / "out.qlx", 1};
        menu.trigger("makeqlx");
        const std::string text = menu.files.read("out.qlx");
        QCOMPARE(std::count(text.begin(), text.end(), '\n'), std::ptrdiff_t{65});
        QCOMPARE(menu.lastMessage().title, std::string("Create QLX file"));
        QVERIFY(menu.screens.current() == nullptr);
    }

    void the_export_in_metric_units_asks_for_an_unsaved_form_first() {
        Menu menu;
        menu.useUnits("METRIC");
        menu.enterNumber("K19013XP0");
        menu.state.application.unsaved = true;
        menu.saveDialog.choice = SaveChoice{menu.files.path() / "out.qlx", 1};
        menu.trigger("makeqlx");
        QCOMPARE(menu.messages.asked.back().title, std::string("Application Form"));
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
        QVERIFY(!fs::exists(menu.files.path() / "out.qlx"));
    }
};

QTEST_MAIN(LeavingTest)
#include "LeavingTest.moc"
