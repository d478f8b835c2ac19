#include <QLabel>
#include <QPlainTextEdit>

#include "screens/Program.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/CorrespondenceControls.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

struct Cover : Program {
    Cover() {
        state.options.faxCoverEnabled = true;
        state.user.userName = "Ann";
        state.user.userPhone = "123";
        screens.show(forms::kMainMenu);
        click(forms::kMainMenu, "Command16");
    }
};

}  // namespace

class Form28Test : public QObject {
    Q_OBJECT

  private slots:
    void its_controls_are_as_their_rows_say() {
        QCOMPARE(controlsThatDiffer(forms::kFaxCover, {kCorrespondenceRows, correspondenceScenes()}),
                 QStringList());
    }

    void captions_and_tips_are_as_stated() {
        Cover program;
        QCOMPARE(program.screens.current()->windowTitle(), QString("Fax Cover Sheet"));
        program.compareButton("Form28", "Command1", "Print", "Print Cover Sheet to Printer");
        program.compareButton("Form28", "Command2", "Return", "Close Cover Sheet");
        const char* const captions[] = {"To:",     "FAX:", "Subject:", "# pages", "(including cover page)",
                                        "Message:"};
        for (int i = 1; i <= 6; ++i) {
            const QString name = QString("Label%1").arg(i);
            QCOMPARE(program.control<QLabel>("Form28", qPrintable(name)).text(), QString(captions[i - 1]));
        }
    }

    void prints_what_is_entered_by_keyboard() {
        Cover program;
        QApplication::setActiveWindow(program.screens.current());
        for (const char* const text : {"Bob", "765", "Bearings", "1"}) {
            QTest::keyClicks(program.screens.current()->focusWidget(), text);
            QTest::keyClick(program.screens.current()->focusWidget(), Qt::Key_Tab);
        }
        QWidget* const message = program.screens.current()->focusWidget();
        QTest::keyClicks(message, "first");
        QTest::keyClick(message, Qt::Key_Return);
        QTest::keyClicks(message, "second");
        QTest::keyClick(message, Qt::Key_Tab);
        QCOMPARE(program.screens.current()->focusWidget()->objectName(), QString("Command1"));
        QTest::keyClick(program.screens.current()->focusWidget(), Qt::Key_Return);
        QCOMPARE(program.printer.documents, (std::vector<std::string>{"Fax Cover Sheet"}));
        for (const char* const text :
             {"Bob", "765", "Bearings", "first", "second", "Ann", "call Ann at 123.",
              "We are transmitting (1) page including this one.  If transmission is not complete,"})
            QVERIFY2(program.printer.canvas.hasText(text), text);
    }

    void escape_in_any_box_and_the_button_return_to_the_menu_data() {
        QTest::addColumn<QString>("box");
        for (const char* const box : {"Text1", "Text2", "Text3", "Text4", "Text5", ""})
            QTest::newRow(box) << box;
    }
    void escape_in_any_box_and_the_button_return_to_the_menu() {
        QFETCH(QString, box);
        Cover program;
        if (box.isEmpty())
            program.click("Form28", "Command2");
        else
            QTest::keyClick(&program.control<QWidget>("Form28", qPrintable(box)), Qt::Key_Escape);
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
    }
};

QTEST_MAIN(Form28Test)
#include "Form28Test.moc"
