#include <QAccessible>
#include <QLineEdit>

#include "screens/Everything.h"

namespace norlaplan::testing {
namespace {

class KeysTest : public QObject {
    Q_OBJECT

  private slots:
    void escapeGoesBackFromEveryFormToTheOneBeneath() {
        for (const FormEntry& entry : formRegistry()) {
            const std::string name = entry.name;
            if (name == "Form1" || name == "Form3" || name == "Form20") continue;
            Everything program;
            Form& form = program.open(entry.name);
            QCOMPARE(program.inFront(), name);
            QWidget* const focus = form.focusWidget();
            QTest::keyClick(focus == nullptr ? &form : focus, Qt::Key_Escape);
            QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        }
    }

    void whateverTakesTheFocusOnAnyFormIsReadAloud() {
        Everything program;
        QStringList silent;
        for (const FormEntry& entry : formRegistry()) {
            const Form& form = program.open(entry.name);
            for (auto* const widget : form.findChildren<QWidget*>()) {
                // Parts that a control makes for itself are read with it.
                if ((widget->focusPolicy() & Qt::TabFocus) == 0 || widget->objectName().isEmpty() ||
                    widget->objectName().startsWith("qt_"))
                    continue;
                QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(widget);
                if (spoken == nullptr || spoken->text(QAccessible::Name).trimmed().isEmpty())
                    silent << form.objectName() + "." + widget->objectName();
            }
        }
        QVERIFY2(silent.isEmpty(), qPrintable(silent.join(", ")));
    }

    void escapeEndsNothingOnTheMainMenu() {
        Everything program;
        Form& menu = program.open(forms::kMainMenu);
        QTest::keyClick(&menu, Qt::Key_Escape);
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QVERIFY(program.messages.asked.empty());
    }

    void enterPressesTheMainButtonWhenTheFocusIsOnNoOther() {
        Everything program;
        Form& units = program.open(forms::kUnits);
        QTest::keyClick(&program.control<QWidget>(forms::kUnits, "Option1"), Qt::Key_Return);
        QVERIFY(!units.isVisible());
        Form& sizes = program.open(forms::kSizes);
        QTest::keyClick(&sizes, Qt::Key_Return);
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
    }

    void enterPressesTheButtonWithTheFocus() {
        Everything program;
        program.open(forms::kSizes);
        auto& menu = program.control<QWidget>(forms::kSizes, "Command3");
        menu.setFocus();
        QTest::keyClick(&menu, Qt::Key_Return);
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
    }

    void altWithALetterTypesNothing() {
        Everything program;
        program.open(forms::kSizes);
        QLineEdit& bore = program.field(forms::kSizes, "Text1");
        bore.clear();
        QTest::keyClick(&bore, Qt::Key_E, Qt::AltModifier);
        QTest::keyClick(&bore, Qt::Key_5, Qt::AltModifier);
        QCOMPARE(bore.text(), QString());
        QTest::keyClicks(&bore, "5e1");
        QCOMPARE(bore.text(), QString("5e1"));
        program.open(forms::kPartNumber);
        QLineEdit& number = program.field(forms::kPartNumber, "Text1");
        number.clear();
        QTest::keyClick(&number, Qt::Key_Z, Qt::AltModifier);
        QCOMPARE(number.text(), QString());
    }

    void theSizeThatAMessageIsAboutHasTheFocusAndIsSelected() {
        Everything program;
        program.open(forms::kSizes);
        program.type(forms::kSizes, "Text4", "1.2e");
        program.click(forms::kSizes, "Command2");
        QCOMPARE(program.lastMessage().prompt,
                 std::string("Please Enter Maximum Height\n\n\"1.2e\" is not a number."));
        QLineEdit& height = program.field(forms::kSizes, "Text4");
        QCOMPARE(program.screens.current()->focusWidget(), &height);
        QCOMPARE(height.selectedText(), QString("1.2e"));
    }

    void theLoadThatAMessageIsAboutHasTheFocusAndIsSelected() {
        Everything program;
        program.open(forms::kLoads);
        program.field(forms::kLoads, "Text3").setText("much");
        program.click(forms::kLoads, "Command1");
        QCOMPARE(program.lastMessage().prompt, std::string("Moment Load input error"));
        QLineEdit& moment = program.field(forms::kLoads, "Text3");
        QCOMPARE(program.screens.current()->focusWidget(), &moment);
        QCOMPARE(moment.selectedText(), QString("much"));
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::KeysTest)
#include "KeysTest.moc"
