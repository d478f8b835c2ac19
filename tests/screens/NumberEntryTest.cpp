#include <QAbstractItemView>
#include <QAccessible>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>

#include "screens/Program.h"
#include "state/NumberHistory.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

/// What a screen reader was alerted to.
QStringList alerts;

}  // namespace

/// The screen reader of the tests: their platform has none, and the toolkit's own function would tell nobody.
void QAccessible::updateAccessibility(QAccessibleEvent* event) {
    if (event->type() == QAccessible::Alert) alerts << event->object()->objectName();
}

namespace {

struct Entry : Program {
    Entry() {
        useUnits("US");
        open();
    }
    void open() {
        screens.showAlone(forms::kMainMenu);
        click(forms::kMainMenu, "Command8");
    }
    QLineEdit& field() { return control<QLineEdit>(forms::kPartNumber, "Text1"); }
    void enter(const char* number) {
        type(forms::kPartNumber, "Text1", number);
        QTest::keyClick(&field(), Qt::Key_Return);
    }
    QString text(const char* label) { return control<QLabel>(forms::kPartNumber, label).text(); }
    QString spoken(const char* label) { return control<QLabel>(forms::kPartNumber, label).accessibleName(); }
    QString line() { return text("Explanation").trimmed(); }
    /// The numbers that are offered for what stands in the field.
    QStringList offered() {
        QCompleter& completer = *field().completer();
        completer.setCompletionPrefix(field().text());
        QStringList numbers;
        for (int row = 0; row < completer.completionModel()->rowCount(); ++row)
            numbers << completer.completionModel()->index(row, 0).data().toString();
        return numbers;
    }
};

}  // namespace

/// What the entry screen tells and keeps while a part number is typed.
class NumberEntryTest : public QObject {
    Q_OBJECT

  private slots:
    void each_character_stands_in_its_cell_over_its_meaning() {
        Entry entry;
        QTest::keyClicks(&entry.field(), "k19o13x");
        QString characters;
        for (int position = 1; position <= 10; ++position)
            characters += entry.text(qPrintable(QString("Place%1").arg(position)));
        QCOMPARE(characters, QString("K19013X"));
        QCOMPARE(entry.text("Code1"), QString("Vacuum Degassed 52100 Steel"));
        QCOMPARE(entry.text("Code2"), QString("190 mm"));
        QCOMPARE(entry.text("Code3"), QString("13 mm"));
        QCOMPARE(entry.text("Code4"), QString("4-Point Contact Ball Radial Bearing"));
        QCOMPARE(entry.text("Code6"), QString("0, 1, 2, 4 or 6"));
        QCOMPARE(entry.line(), QString());
        QTest::keyClicks(&entry.field(), "p0");
        QCOMPARE(entry.text("Code5"), QString("Snapover Brass Ribbon"));
        QCOMPARE(entry.line(), QString("This part number is complete."));
    }

    void a_cell_has_room_for_the_broadest_letter_however_narrow_the_window() {
        Entry entry;
        for (int position = 1; position <= 10; ++position) {
            const QByteArray name = QString("Place%1").arg(position).toUtf8();
            const auto& cell = entry.control<QLabel>(forms::kPartNumber, name);
            const QMargins around = cell.contentsMargins();
            QVERIFY(cell.minimumWidth() >=
                    cell.fontMetrics().horizontalAdvance('W') + around.left() + around.right());
        }
    }

    void the_first_wrong_character_is_marked_and_told() {
        Entry entry;
        QTest::keyClicks(&entry.field(), "K19013DP7");
        QCOMPARE(entry.line(), QString("Position 7 is wrong. Style: A, B, C, F, T, U or X."));
        QCOMPARE(entry.spoken("Place7"), QString("Position 7: D, wrong"));
        QCOMPARE(entry.spoken("Place9"), QString("Position 9: 7"));
        QCOMPARE(entry.spoken("Place10"), QString("Position 10: nothing yet"));
        const auto ink = [&](const char* name) {
            return entry.control<QLabel>(forms::kPartNumber, name).palette().color(QPalette::WindowText);
        };
        QCOMPARE(ink("Place7"), ink("Explanation"));
        QVERIFY(ink("Place7") != ink("Place9"));
        QCOMPARE(entry.field().accessibleDescription(),
                 QString("9 or 10 digit code. Position 7 is wrong. Style: A, B, C, F, T, U or X."));
        QTest::keyClick(&entry.field(), Qt::Key_Backspace);
        QTest::keyClick(&entry.field(), Qt::Key_Backspace);
        QTest::keyClick(&entry.field(), Qt::Key_Backspace);
        QCOMPARE(entry.line(), QString());
        QCOMPARE(entry.spoken("Place7"), QString("Position 7: nothing yet"));
    }

    void a_screen_reader_is_alerted_by_what_is_wrong_and_by_nothing_else() {
        Entry entry;
        const auto alertsOf = [&](const char* typed) {
            entry.field().clear();
            alerts.clear();
            QTest::keyClicks(&entry.field(), typed);
            return alerts;
        };
        QCOMPARE(alertsOf("K19013XP0"), QStringList());
        // Wrong at its first place, and at its ninth.
        QCOMPARE(alertsOf("Q"), QStringList("Explanation"));
        QCOMPARE(alertsOf("K19013XP3"), QStringList("Explanation"));
    }

    void a_z_separator_is_told_once_it_is_chosen() {
        Entry entry;
        QTest::keyClicks(&entry.field(), "K19013XZ0");
        QCOMPARE(entry.text("Code5"), QString("choose which Z below"));
        QCOMPARE(entry.line(), QString());
        QApplication::processEvents();
        entry.click(forms::kPartNumber, "Option5");
        QCOMPARE(entry.line(), QString("This part number is complete."));
    }

    void clearances_are_told_in_the_units_in_force() {
        Entry entry;
        QTest::keyClicks(&entry.field(), "K19013XP0");
        const QString inches = entry.spoken("Code7");
        QVERIFY2(inches.startsWith("Fit: Standard .00"), qPrintable(inches));
        entry.useUnits("METRIC");
        entry.open();
        const QString millimetres = entry.spoken("Code7");
        QVERIFY2(millimetres.startsWith("Fit: Standard 0.0"), qPrintable(millimetres));
    }

    void the_numbers_that_were_decoded_are_offered_as_one_types() {
        Entry entry;
        for (const char* const number : {"K19013XP0", "k10013xp0", "S19013XF0", "K19913XP0"}) {
            entry.enter(number);
            entry.open();
        }
        entry.field().clear();
        QTest::keyClicks(&entry.field(), "k1");
        QCOMPARE(entry.offered(), (QStringList{"K10013XP0", "K19013XP0"}));
        QTest::keyClicks(&entry.field(), "9");
        QCOMPARE(entry.offered(), QStringList{"K19013XP0"});
        // The whole number itself is no offer.
        QTest::keyClicks(&entry.field(), "013xp0");
        QCOMPARE(entry.offered(), QStringList());
    }

    void an_offer_taken_from_the_list_is_decoded_by_one_enter() {
        Entry entry;
        entry.enter("K19013XP0");
        entry.enterNumber("K10013XP0");
        entry.open();
        QApplication::setActiveWindow(&entry.screens.form(forms::kPartNumber));
        entry.field().clear();
        QTest::keyClicks(&entry.field(), "k1");
        QAbstractItemView& list = *entry.field().completer()->popup();
        QVERIFY(list.isVisible());
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(entry.field().text(), QString("K19013XP0"));
        QTest::keyClick(&list, Qt::Key_Return);
        QVERIFY(!list.isVisible());
        QCOMPARE(entry.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(entry.state.bearing.partNumber, std::string("K19013XP0"));
    }

    void enter_with_the_list_open_and_nothing_chosen_decodes_what_was_typed() {
        Entry entry;
        entry.enter("K19013XP0A");
        entry.open();
        entry.field().clear();
        QTest::keyClicks(&entry.field(), "K19013XP0");
        QAbstractItemView& list = *entry.field().completer()->popup();
        QVERIFY(list.isVisible());
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(entry.state.bearing.partNumber, std::string("K19013XP0"));
        QCOMPARE(entry.inFront(), std::string(forms::kMainMenu));
        QVERIFY(entry.messages.shown.empty());
    }

    void the_down_key_lists_every_number_from_an_empty_field() {
        Entry entry;
        entry.enter("K19013XP0");
        entry.open();
        entry.field().clear();
        QApplication::setActiveWindow(&entry.screens.form(forms::kPartNumber));
        QTest::keyClick(&entry.field(), Qt::Key_Down);
        QVERIFY(entry.field().completer()->popup()->isVisible());
        entry.field().completer()->popup()->hide();
    }

    void numbers_outlive_the_program_and_refused_ones_are_not_kept() {
        Entry entry;
        entry.enter("K19013XP0");
        entry.enterNumber("K19013QP0");
        QCOMPARE(enteredNumbers(entry.userFiles), std::vector<std::string>{"K19013XP0"});
        Entry next;
        next.userFiles.texts = entry.userFiles.texts;
        next.open();
        QTest::keyClicks(&next.field(), "k");
        QCOMPARE(next.offered(), QStringList{"K19013XP0"});
    }

    void a_store_that_cannot_be_used_keeps_nobody_from_decoding() {
        Entry entry;
        entry.userFiles.broken = true;
        entry.open();
        entry.enter("K19013XP0");
        QVERIFY(entry.messages.shown.empty());
        QCOMPARE(entry.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(entry.state.bearing.partNumber, std::string("K19013XP0"));
    }

    void the_number_is_selected_when_the_screen_is_opened_again() {
        Entry entry;
        entry.enter("K19013XP0");
        entry.open();
        QCOMPARE(entry.field().selectedText(), QString("K19013XP0"));
    }

    void a_number_whose_run_ends_elsewhere_is_not_wiped() {
        Entry entry;
        std::filesystem::create_directory(entry.files.path() / "CONDENSED.DAT");
        entry.enter("K19013XP0");
        QCOMPARE(entry.lastMessage().title, std::string("Please contact Varden with 75"));
        entry.open();
        QCOMPARE(entry.field().selectedText(), QString("K19013XP0"));
    }

    void nothing_is_selected_when_the_explanation_is_left_in_the_middle_of_typing() {
        Entry entry;
        QTest::keyClicks(&entry.field(), "K190");
        entry.click(forms::kPartNumber, "Command2");
        entry.click(forms::kTextViewer, "Command1");
        QCOMPARE(entry.field().selectedText(), QString());
        QTest::keyClicks(&entry.field(), "13");
        QCOMPARE(entry.field().text(), QString("K19013"));
    }

    void a_refused_number_comes_back_by_undo() {
        Entry entry;
        entry.enter("K19013QP0");
        QVERIFY(entry.field().text().isEmpty());
        QCOMPARE(entry.line(), QString("K19013QP0 was refused. Ctrl+Z brings it back."));
        entry.field().undo();
        QCOMPARE(entry.field().text(), QString("K19013QP0"));
        QCOMPARE(entry.line(), QString("Position 7 is wrong. Style: A, B, C, F, T, U or X."));
    }
};

QTEST_MAIN(NumberEntryTest)
#include "NumberEntryTest.moc"
