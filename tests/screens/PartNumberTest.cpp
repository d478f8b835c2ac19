#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "screens/Program.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/PartNumberControls.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

struct Entry : Program {
    Entry() {
        ApplyUnitSystem("US", state.units);
        state.unitSystem = "US";
        screens.show(forms::kMainMenu);
        click(forms::kMainMenu, "Command8");
    }
    QLineEdit& field() { return control<QLineEdit>(forms::kPartNumber, "Text1"); }
    void type(const char* text) {
        field().clear();
        QTest::keyClicks(&field(), text);
        // The window makes room for what has come up.
        QApplication::processEvents();
    }
    bool shows(const char* frame) { return !control<QWidget>(forms::kPartNumber, frame).isHidden(); }
};

}  // namespace

class PartNumberTest : public QObject {
    Q_OBJECT

  private slots:
    void its_controls_are_as_their_rows_say() {
        QCOMPARE(controlsThatDiffer(forms::kPartNumber, {kPartNumberRows, partNumberScenes()}),
                 QStringList());
    }

    void the_cursor_stands_in_the_number_at_once() {
        Entry entry;
        QVERIFY(entry.field().hasFocus() ||
                entry.screens.form(forms::kPartNumber).focusWidget() == &entry.field());
    }

    void no_separator_frame_shows_before_the_eighth_character() {
        Entry entry;
        entry.type("K19013X");
        QVERIFY(!entry.shows("Frame1") && !entry.shows("Frame2"));
        QTest::keyClicks(&entry.field(), "Z");
        QVERIFY(!entry.shows("Frame1") && entry.shows("Frame2"));
        entry.type("k19013az");
        QVERIFY(entry.shows("Frame1") && !entry.shows("Frame2"));
        entry.type("K19013AR0");
        QVERIFY(!entry.shows("Frame1") && !entry.shows("Frame2"));
    }

    void a_separator_option_sets_the_second_letter_data() {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("letter");
        QTest::newRow("PTFE toroids") << "K19013AZ0"
                                      << "Option1"
                                      << "P";
        QTest::newRow("Vespel toroids") << "K19013AZ0"
                                        << "Option2"
                                        << "V";
        QTest::newRow("spacer balls, angular") << "K19013AZ0"
                                               << "Option3"
                                               << "S";
        QTest::newRow("PTFE slugs") << "K19013XZ0"
                                    << "Option5"
                                    << "T";
        QTest::newRow("spacer balls, others") << "K19013XZ0"
                                              << "Option6"
                                              << "S";
    }
    void a_separator_option_sets_the_second_letter() {
        QFETCH(QString, number);
        QFETCH(QString, option);
        QFETCH(QString, letter);
        Entry entry;
        entry.type(number.toUtf8().constData());
        QVERIFY(entry.state.zSeparatorEntered.empty());
        entry.click(forms::kPartNumber, option.toUtf8().constData());
        QCOMPARE(entry.state.zSeparatorEntered, letter.toStdString());
    }

    void an_arrow_key_chooses_the_next_separator_as_a_click_does() {
        Entry entry;
        entry.type("K19013AZ0");
        entry.click(forms::kPartNumber, "Option1");
        QApplication::setActiveWindow(&entry.screens.form(forms::kPartNumber));
        QTest::keyClick(&entry.control<QRadioButton>(forms::kPartNumber, "Option1"), Qt::Key_Right);
        QVERIFY(entry.control<QRadioButton>(forms::kPartNumber, "Option2").isChecked());
        QCOMPARE(entry.state.zSeparatorEntered, std::string("V"));
    }

    void the_mark_stays_but_the_choice_is_lost_with_the_z() {
        Entry entry;
        entry.type("K19013XZ0");
        entry.click(forms::kPartNumber, "Option6");
        entry.type("K19013XP0");
        QVERIFY(entry.state.zSeparatorEntered.empty());
        entry.type("K19013XZ0");
        QVERIFY(entry.control<QRadioButton>(forms::kPartNumber, "Option6").isChecked());
        QVERIFY(entry.state.zSeparatorEntered.empty());
    }

    void a_half_typed_number_stays_on_the_entry_screen() {
        Entry entry;
        entry.type("k19");
        entry.click(forms::kPartNumber, "Command3");
        QCOMPARE(entry.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(entry.state.bearing.partNumber, std::string());
        entry.click(forms::kMainMenu, "Command8");
        QCOMPARE(entry.field().text(), QString("k19"));
    }

    void enter_decodes_and_the_main_menu_shows_the_number() {
        Entry entry;
        entry.type("k19o13xp0");
        QTest::keyClick(&entry.field(), Qt::Key_Return);
        QVERIFY2(entry.messages.shown.empty(), entry.lastMessage().prompt.c_str());
        QCOMPARE(entry.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(entry.control<QLabel>(forms::kMainMenu, "Label3").text(), QString("K19013XP0"));
        QVERIFY(std::filesystem::exists(entry.files.path() / "DATA.RTF"));
        QVERIFY(std::filesystem::exists(entry.files.path() / "CONDENSED.DAT"));
    }

    void the_button_decodes_as_enter_does() {
        Entry entry;
        entry.type("K19013XP0");
        entry.click(forms::kPartNumber, "Command1");
        QCOMPARE(entry.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(entry.control<QLabel>(forms::kMainMenu, "Label3").text(), QString("K19013XP0"));
    }

    void the_advice_cannot_be_changed() {
        Entry entry;
        QVERIFY(entry.control<QPlainTextEdit>(forms::kPartNumber, "Text2").isReadOnly());
    }

    void a_refused_number_brings_the_screen_back_empty_with_the_cursor_in_it() {
        Entry entry;
        entry.type("K19013X");
        QTest::keyClick(&entry.field(), Qt::Key_Return);
        QCOMPARE(entry.lastMessage(),
                 (Message{"Part Number too short", "Please verify Part Number and try again"}));
        QCOMPARE(entry.inFront(), std::string(forms::kPartNumber));
        QVERIFY(entry.field().text().isEmpty());
        QVERIFY(entry.state.bearing.partNumber.empty());
        QCOMPARE(entry.screens.form(forms::kPartNumber).focusWidget(), static_cast<QWidget*>(&entry.field()));
    }

    void a_sheet_that_cannot_be_written_is_told_and_the_old_one_stands() {
        Entry entry;
        entry.files.write("DATA.RTF", "old");
        std::filesystem::create_directory(entry.files.path() / "CONDENSED.DAT");
        entry.type("K19013XP0");
        entry.click(forms::kPartNumber, "Command1");
        QCOMPARE(entry.lastMessage(),
                 (Message{"Please contact Varden with 75",
                          "Path/File access error: " + (entry.files.path() / "CONDENSED.DAT").string()}));
        QCOMPARE(entry.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(entry.files.read("DATA.RTF"), std::string("old"));
    }

    void the_explanation_opens_in_the_viewer_and_returns_here() {
        Entry entry;
        entry.click(forms::kPartNumber, "Command2");
        QCOMPARE(entry.inFront(), std::string(forms::kTextViewer));
        QCOMPARE(entry.screens.form(forms::kTextViewer).windowTitle(), QString("Part Number Breakdown"));
        QCOMPARE(entry.control<QAbstractButton>(forms::kTextViewer, "Command1").text(),
                 QString("Exit Part Number Explanation"));
        entry.click(forms::kTextViewer, "Command1");
        QCOMPARE(entry.inFront(), std::string(forms::kPartNumber));
    }
};

QTEST_MAIN(PartNumberTest)
#include "PartNumberTest.moc"
