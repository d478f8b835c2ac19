#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <set>

#include "screens/Accelerators.h"
#include "screens/EntryLabel.h"
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
                // The application form has more options than there are letters.
                if (key.isEmpty() && qobject_cast<const QRadioButton*>(button) != nullptr &&
                    form.findChildren<QAbstractButton*>().size() > 26)
                    continue;
                QVERIFY2(key.startsWith("Alt+"), qPrintable(what));
                QVERIFY2(letters.insert(key).second, qPrintable(what));
            }
        }
    }

    void theFieldsTakeTheLettersThatTheButtonsLeave() {
        Program program;
        for (const FormEntry& entry : formRegistry()) {
            Form& form = program.screens.form(entry.name);
            form.prepareToShow(QRect(0, 0, 1024, 768));
            std::set<QChar> letters;
            for (const auto* const button : form.findChildren<QAbstractButton*>()) {
                if (!button->shortcut().isEmpty()) letters.insert(button->shortcut().toString().back());
            }
            for (const auto* const label : form.findChildren<QLabel*>()) {
                const auto* const caption = dynamic_cast<const EntryLabel*>(label);
                if (caption == nullptr || caption->letter().isNull()) continue;
                const QString what = form.objectName() + " " + caption->text() + " " + caption->letter();
                QVERIFY2(letters.insert(caption->letter()).second, qPrintable(what));
                QVERIFY2(caption->text().toUpper().contains(caption->letter()), qPrintable(what));
            }
        }
    }

    void altAndTheLetterOfAFieldGoToItAndSelectWhatItHolds() {
        Program program;
        program.enterNumber("K19013XP0");
        program.click(forms::kMainMenu, "Command13");
        QVERIFY(QTest::qWaitForWindowActive(program.screens.current()));
        program.type(forms::kLoads, "Text2", "123");
        QVERIFY(!program.control<QLineEdit>(forms::kLoads, "Text4").hasFocus());
        for (const auto* const label : program.screens.form(forms::kLoads).findChildren<QLabel*>()) {
            const auto* const caption = dynamic_cast<const EntryLabel*>(label);
            if (caption == nullptr || caption->buddy() == nullptr || !caption->isVisible()) continue;
            QVERIFY2(!caption->letter().isNull(), qPrintable(caption->text()));
            QTest::keyClick(program.screens.current(), Qt::Key(caption->letter().unicode()), Qt::AltModifier);
            QVERIFY2(caption->buddy()->hasFocus(), qPrintable(caption->text()));
        }
        auto& axial = program.control<QLineEdit>(forms::kLoads, "Text2");
        QCOMPARE(axial.text(), QString("123"));
        program.control<QLineEdit>(forms::kLoads, "Text1").setFocus();
        const auto* const caption =
            dynamic_cast<const EntryLabel*>(axial.parent()->findChild<QLabel*>("Label2"));
        QVERIFY(caption != nullptr);
        QTest::keyClick(program.screens.current(), Qt::Key(caption->letter().unicode()), Qt::AltModifier);
        QCOMPARE(axial.selectedText(), QString("123"));
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
