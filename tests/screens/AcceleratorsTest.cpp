#include <QMenu>
#include <QMenuBar>
#include <set>

#include "screens/Accelerators.h"
#include "screens/Program.h"

namespace norlaplan::testing {
namespace {

class AcceleratorsTest : public QObject {
    Q_OBJECT

  private slots:
    void aStatedLetterIsKeptAndTheFirstOfTwoHasIt() {
        const QList<QChar> letters =
            accelerators::choose({"&Sort List", "P&rint Results", "Save", "&Short-cut to Data Sheet"});
        QCOMPARE(letters[0], QChar('S'));
        QCOMPARE(letters[1], QChar('R'));
        QVERIFY(!letters[2].isNull() && letters[2] != 'S');
        QVERIFY(!letters[3].isNull() && letters[3] != 'S');
    }

    void aLetterThatAnotherNeedsMoreIsGivenUp() {
        // "AB" would take A, "A" has nothing else.
        QCOMPARE(accelerators::choose({"AB", "A"}), (QList<QChar>{'B', 'A'}));
        QCOMPARE(accelerators::choose({"ABC", "AB", "A"}), (QList<QChar>{'C', 'B', 'A'}));
    }

    void whereNoLetterIsLeftThereIsNone() {
        QCOMPARE(accelerators::choose({"A", "a"}), (QList<QChar>{'A', QChar()}));
        QCOMPARE(accelerators::choose({"File"}, "FIL"), (QList<QChar>{'E'}));
        QCOMPARE(accelerators::choose({"12 < 3"}), (QList<QChar>{QChar()}));
    }

    void theLetterIsMarkedWhereItIsSeenBest() {
        QCOMPARE(accelerators::marked("Ball Load Plot", 'L'), QString("Ball &Load Plot"));
        QCOMPARE(accelerators::marked("Save", 'V'), QString("Sa&ve"));
        QCOMPARE(accelerators::marked("&Short-cut", 'H'), QString("S&hort-cut"));
        QCOMPARE(accelerators::marked("&Sort", 'S'), QString("&Sort"));
        QCOMPARE(accelerators::marked("&Sort", QChar()), QString("Sort"));
    }

    void everyButtonOfEveryFormHasALetterOfItsOwn() {
        Program program;
        for (const FormEntry& entry : formRegistry()) {
            if (entry.make == nullptr) continue;
            Form& form = program.screens.form(entry.name);
            form.prepareToShow(QRect(0, 0, 1024, 768));
            std::set<QString> letters;
            if (auto* const bar = form.findChild<QMenuBar*>()) {
                for (const QAction* const menu : bar->actions())
                    letters.insert(QKeySequence::mnemonic(menu->text()).toString());
            }
            for (const auto* const button : form.findChildren<QAbstractButton*>()) {
                if (button->text().isEmpty()) continue;
                const QString key = button->shortcut().toString();
                const QString what = form.objectName() + " " + button->objectName() + " " + key;
                QVERIFY2(key.startsWith("Alt+"), qPrintable(what));
                QVERIFY2(letters.insert(key).second, qPrintable(what));
            }
        }
    }

    void everyItemOfAMenuHasALetterOfItsOwn() {
        Program program;
        for (const QMenu* const menu : program.screens.form(forms::kMainMenu).findChildren<QMenu*>()) {
            std::set<QString> letters;
            for (const QAction* const item : menu->actions()) {
                if (item->isSeparator()) continue;
                const QString key = QKeySequence::mnemonic(item->text()).toString();
                QVERIFY2(!key.isEmpty() && letters.insert(key).second, qPrintable(item->text()));
            }
        }
    }

    void captionsStayAsTheyAreStated() {
        Program program;
        Form& form = program.screens.form(forms::kResults);
        form.prepareToShow(QRect(0, 0, 1024, 768));
        QCOMPARE(program.control<QAbstractButton>(forms::kResults, "Command4").text(),
                 QString("&Short-cut to Data Sheet"));
        QCOMPARE(program.control<QAbstractButton>(forms::kResults, "Command6").text(), QString("Save"));
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::AcceleratorsTest)
#include "AcceleratorsTest.moc"
