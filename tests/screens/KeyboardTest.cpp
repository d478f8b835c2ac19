#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <set>

#include "screens/Information.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

/// Every form, with a bearing decoded so that each one opens.
struct Everything : Program {
    Everything() {
        giveInformation(*this);
        state.unitSystem = "US";
        ApplyUnitSystem("US", state.units);
        state.options.faxCoverEnabled = state.options.nedGroveOption = state.options.tempFitsOption = true;
        screens.show(forms::kMainMenu);
        click(forms::kMainMenu, "Command8");
        QTest::keyClicks(&control<QWidget>(forms::kPartNumber, "Text1"), "K19013XZ0");
        click(forms::kPartNumber, "Option6");
        click(forms::kPartNumber, "Command1");
        screens.showAlone(forms::kMainMenu);
    }
};

void formsAsRows() {
    QTest::addColumn<QString>("form");
    for (const char* const form : {"Form1", "Form2", "Form3", "Form4", "form5", "Form6", "Form7", "Form8",
                                   "Form9", "Form17", "Form20", "Form21", "Form22", "Form29"})
        QTest::newRow(form) << form;
}

}  // namespace

class KeyboardTest : public QObject {
    Q_OBJECT

  private slots:
    void the_tab_key_reaches_every_control_data() { formsAsRows(); }
    void the_tab_key_reaches_every_control() {
        QFETCH(QString, form);
        Everything program;
        program.screens.show(FormName(qPrintable(form)));
        Form& window = *program.screens.current();
        QCOMPARE(window.objectName(), form);
        QApplication::setActiveWindow(&window);

        std::set<QWidget*> reached;
        for (int i = 0; i < 60; ++i) {
            QTest::keyClick(&window, Qt::Key_Tab);
            reached.insert(window.focusWidget());
        }
        // Of the options of one group the Tab key reaches the marked one; the arrow keys do the rest.
        for (auto* const button : window.findChildren<QAbstractButton*>()) {
            if (button->isVisible() && !button->autoExclusive())
                QVERIFY2(reached.contains(button), qPrintable(button->objectName()));
        }
        for (auto* const field : window.findChildren<QLineEdit*>())
            QVERIFY2(!field->isVisible() || reached.contains(field), qPrintable(field->objectName()));
    }

    void every_control_has_a_name_and_says_what_it_is_data() { formsAsRows(); }
    void every_control_has_a_name_and_says_what_it_is() {
        QFETCH(QString, form);
        Everything program;
        Form& window = program.screens.form(form.toStdString());
        for (auto* const button : window.findChildren<QAbstractButton*>()) {
            if (button->objectName().startsWith("qt_")) continue;
            QVERIFY(!button->objectName().isEmpty());
            QVERIFY2(!button->accessibleName().isEmpty(), qPrintable(button->objectName()));
        }
        for (auto* const field : window.findChildren<QLineEdit*>())
            QVERIFY2(!field->accessibleName().isEmpty(), qPrintable(field->objectName()));
    }

    void help_and_information_are_reached_read_and_left_by_keyboard() {
        Program program;
        giveInformation(program);
        program.state.options.nedGroveOption = true;
        program.screens.show(forms::kMainMenu);
        const auto front = [&] { return program.inFront(); };
        const auto key = [&](Qt::Key pressed) {
            Form& form = *program.screens.current();
            QTest::keyClick(form.focusWidget() == nullptr ? &form : form.focusWidget(), pressed);
        };
        const auto tabTo = [&](const char* control) {
            Form& form = *program.screens.current();
            QApplication::setActiveWindow(&form);
            for (int i = 0; i < 60 && form.focusWidget()->objectName() != control; ++i)
                QTest::keyClick(&form, Qt::Key_Tab);
            QCOMPARE(form.focusWidget()->objectName(), QString(control));
        };
        // Alt and a letter open a menu, and further letters choose from it.
        const auto menu = [&](Qt::Key opens, Qt::Key chooses) {
            Form& form = *program.screens.current();
            form.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&form));
            QTest::keyClick(&form, opens, Qt::AltModifier);
            QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
            QTest::keyClick(QApplication::activePopupWidget(), chooses);
        };

        menu(Qt::Key_H, Qt::Key_H);
        QCOMPARE(front(), std::string(forms::kHelpIndex));
        key(Qt::Key_Down);
        key(Qt::Key_Return);
        QCOMPARE(front(), std::string(forms::kHelpTopic));
        QCOMPARE(int(program.state.helpTopic), 2);
        key(Qt::Key_Escape);
        key(Qt::Key_Escape);
        QCOMPARE(front(), std::string(forms::kMainMenu));

        menu(Qt::Key_H, Qt::Key_A);
        QCOMPARE(front(), std::string(forms::kAbout));
        key(Qt::Key_Return);
        QCOMPARE(front(), std::string(forms::kMainMenu));

        menu(Qt::Key_B, Qt::Key_M);
        QCOMPARE(front(), std::string(forms::kProductPage));
        tabTo("Command1");
        key(Qt::Key_Return);
        QCOMPARE(front(), std::string(forms::kProductTable));
        key(Qt::Key_Escape);
        key(Qt::Key_Escape);
        QCOMPARE(front(), std::string(forms::kMainMenu));

        tabTo("Command2");
        key(Qt::Key_Return);
        QCOMPARE(front(), std::string(forms::kTrainingShow));
        key(Qt::Key_Return);
        QCOMPARE(front(), std::string(forms::kMainMenu));

        tabTo("Command17");
        key(Qt::Key_Space);
        QCOMPARE(front(), std::string(forms::kPictureBrowser));
        key(Qt::Key_Up);
        key(Qt::Key_Escape);
        QCOMPARE(front(), std::string(forms::kMainMenu));
        QVERIFY(program.messages.shown.empty());
    }

    void the_whole_way_to_the_data_sheet_goes_by_keyboard() {
        Program program;
        ShowStartScreen(program.screens);
        const auto press = [&](const char* button) {
            Form& window = *program.screens.current();
            QApplication::setActiveWindow(&window);
            for (int i = 0;
                 i < 60 && (window.focusWidget() == nullptr || window.focusWidget()->objectName() != button);
                 ++i)
                QTest::keyClick(&window, Qt::Key_Tab);
            QCOMPARE(window.focusWidget()->objectName(), QString(button));
            QTest::keyClick(window.focusWidget(), Qt::Key_Return);
        };
        press("Command1");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        press("Command8");
        QCOMPARE(program.inFront(), std::string(forms::kPartNumber));
        QWidget* const entry = program.screens.current()->focusWidget();
        QTest::keyClicks(entry, "K19013XP0");
        QTest::keyClick(entry, Qt::Key_Return);
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        press("Command9");
        QCOMPARE(program.inFront(), std::string(forms::kDataSheet));
        auto& bar = program.control<QScrollBar>(forms::kDataSheet, "VScroll1");
        QTest::keyClick(&bar, Qt::Key_PageDown);
        QVERIFY(bar.value() > 0);
        press("Command4");
        QCOMPARE(program.printer.documents.size(), std::size_t{1});
        press("Command1");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QVERIFY(program.messages.shown.empty());
    }
};

QTEST_MAIN(KeyboardTest)
#include "KeyboardTest.moc"
