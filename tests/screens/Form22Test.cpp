#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTextEdit>
#include <QTimer>

#include "help/HelpTopics.h"
#include "screens/Everything.h"
#include "screens/Form20.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/InformationControls.h"

namespace norlaplan::testing {
namespace {

/// The help index in front, by the main menu, with a short page for every topic.
struct Help : Program {
    Help() {
        giveInformation(*this);
        state.helpTopic = 0;
        screens.show(forms::kMainMenu);
        control<QAction>(forms::kMainMenu, "kmetrichelp").trigger();
    }
    QRadioButton& topic(int number) {
        return control<QRadioButton>(forms::kHelpIndex, qPrintable(QString("Option%1").arg(number)));
    }
    QColor colourOf(int number) { return topic(number).palette().color(QPalette::WindowText); }
    int reds() {
        int count = 0;
        for (int number = 1; number <= 21; ++number)
            count += colourOf(number) == QColor(255, 0, 0) ? 1 : 0;
        return count;
    }
    QString page() { return control<QTextEdit>(forms::kHelpTopic, "RichTextBox1").toPlainText().trimmed(); }
    void press(Qt::Key key) {
        Form& form = *screens.current();
        QWidget* const focus = form.focusWidget();
        QTest::keyClick(focus == nullptr ? &form : focus, key);
    }
};

/// What a user reads on a form: the texts of all that is seen, and where the focus is.
QStringList seen(const Form& form) {
    QStringList texts;
    for (const QWidget* const widget : form.findChildren<QWidget*>()) {
        if (!widget->isVisible()) continue;
        if (auto* const label = qobject_cast<const QLabel*>(widget)) texts << label->text();
        if (auto* const field = qobject_cast<const QLineEdit*>(widget)) texts << field->text();
        if (auto* const text = qobject_cast<const QPlainTextEdit*>(widget)) texts << text->toPlainText();
        if (auto* const list = qobject_cast<const QComboBox*>(widget)) texts << list->currentText();
        if (auto* const button = qobject_cast<const QAbstractButton*>(widget))
            texts << button->text() + (button->isChecked() ? " marked" : "");
        if (auto* const table = qobject_cast<const QAbstractItemView*>(widget))
            texts << QString("%1 rows").arg(table->model()->rowCount());
    }
    return texts << form.windowTitle();
}

void everyScreenWithATopic() {
    QTest::addColumn<QString>("name");
    for (const FormEntry& entry : formRegistry()) {
        if (std::string(entry.name) != "Form20") QTest::newRow(entry.name.text) << entry.name.text;
    }
}

}  // namespace

/// The help: its index, its viewer, and F1 on every screen.
class Form22Test : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kHelpIndex, {kInformationRows, informationScenes()}),
                 QStringList());
        QCOMPARE(controlsThatDiffer(forms::kHelpTopic, {kInformationRows, informationScenes()}),
                 QStringList());
    }

    void everyTopicOpensItsPageAndEscapeComesBackToTheIndex() {
        Help help;
        QCOMPARE(help.screens.current()->windowTitle(), QString("Help Index"));
        for (const HelpTopic& topic : helpTopics()) {
            QCOMPARE(help.inFront(), std::string(forms::kHelpIndex));
            QCOMPARE(help.topic(topic.number).text(), QString(topic.caption));
            help.topic(topic.number).click();
            QCOMPARE(help.inFront(), std::string(forms::kHelpTopic));
            QCOMPARE(help.page(), QString("Page of topic %1").arg(topic.number));
            QCOMPARE(int(help.state.helpTopic), topic.number);
            help.press(Qt::Key_Escape);
            QVERIFY(!help.screens.form(forms::kHelpTopic).isVisible());
            QVERIFY(help.topic(topic.number).isChecked());
        }
        QVERIFY(help.messages.shown.empty());
    }

    void everyTopicIsBlueUntilThePointerMakesItRed() {
        Help help;
        QCOMPARE(help.reds(), 0);
        QCOMPARE(help.colourOf(1), QColor(0, 0, 255));
        for (const int number : {4, 21, 4}) {
            QTest::mouseMove(&help.topic(number), QPoint(8, 8));
            QCOMPARE(help.colourOf(number), QColor(255, 0, 0));
            QCOMPARE(help.reds(), 1);
        }
        QTest::mouseMove(help.topic(4).parentWidget(), QPoint(1, 1));
        QCOMPARE(help.reds(), 0);
        QTest::mouseMove(&help.topic(7), QPoint(8, 8));
        QTest::mouseMove(help.screens.current(), QPoint(1, 1));
        QCOMPARE(help.reds(), 0);
    }

    void escapeInATopicHidesTheIndex() {
        Help help;
        help.topic(9).setFocus();
        QTest::keyClick(&help.topic(9), Qt::Key_Escape);
        QCOMPARE(help.inFront(), std::string(forms::kMainMenu));
        QVERIFY(!help.screens.form(forms::kHelpIndex).isVisible());
    }

    void theCloseButtonHidesTheIndex() {
        Help help;
        help.click(forms::kHelpIndex, "Close");
        QCOMPARE(help.inFront(), std::string(forms::kMainMenu));
    }

    void arrowKeysGoFromTopicToTopicAndEnterOpensOne() {
        Help help;
        QCOMPARE(help.screens.current()->focusWidget(), &help.topic(1));
        help.press(Qt::Key_Up);
        QCOMPARE(help.screens.current()->focusWidget(), &help.topic(1));
        help.press(Qt::Key_Down);
        QCOMPARE(help.screens.current()->focusWidget(), &help.topic(2));
        // Seven topics stand in a column.
        help.press(Qt::Key_Right);
        QCOMPARE(help.screens.current()->focusWidget(), &help.topic(9));
        help.press(Qt::Key_Right);
        help.press(Qt::Key_Right);
        QCOMPARE(help.screens.current()->focusWidget(), &help.topic(16));
        help.press(Qt::Key_Left);
        help.press(Qt::Key_Up);
        QCOMPARE(help.screens.current()->focusWidget(), &help.topic(8));
        QCOMPARE(help.inFront(), std::string(forms::kHelpIndex));
        help.press(Qt::Key_Return);
        QCOMPARE(help.page(), QString("Page of topic 8"));
        help.press(Qt::Key_Escape);
        QCOMPARE(help.screens.current()->focusWidget(), &help.topic(8));
        help.press(Qt::Key_Down);
        QCOMPARE(help.inFront(), std::string(forms::kHelpIndex));
        help.press(Qt::Key_Space);
        QCOMPARE(help.page(), QString("Page of topic 9"));
    }

    void theTopicsStandInThreeEvenColumns() {
        Help help;
        QApplication::processEvents();
        for (const int top : {1, 8, 15}) {
            QCOMPARE(help.topic(top).y(), help.topic(1).y());
            for (int number = top + 1; number < top + 7; ++number) {
                QCOMPARE(help.topic(number).x(), help.topic(top).x());
                QVERIFY(help.topic(number).y() > help.topic(number - 1).y());
            }
        }
        QVERIFY(help.topic(8).x() > help.topic(1).x());
        QVERIFY(help.topic(15).x() > help.topic(8).x());
    }

    void aMissingPageIsAFileErrorAndTheIndexStays() {
        Help help;
        help.take("help/HELP5.RTF");
        help.topic(5).click();
        QCOMPARE(help.lastMessage(),
                 (Message{"Run-time error '53'",
                          "File not found: " + (help.files.path() / "help/HELP5.RTF").string() + "\n\nHelp",
                          Icon::Critical}));
        QCOMPARE(help.inFront(), std::string(forms::kHelpIndex));
        help.topic(6).click();
        QCOMPARE(help.page(), QString("Page of topic 6"));
    }

    void aPageThatIsNoRichTextSaysSo() {
        Help help;
        help.give("help/HELP3.RTF", "%PDF-1.4");
        help.topic(3).click();
        QCOMPARE(help.page(), QString("This document can't be shown: it is not a rich text file."));
    }

    void aPageIsReadEachTimeItIsShown() {
        Help help;
        help.topic(2).click();
        help.press(Qt::Key_Escape);
        help.give("help/HELP2.RTF", "{\\rtf1 revised\\par}");
        help.topic(2).click();
        QCOMPARE(help.page(), QString("revised"));
    }

    void theTextFillsTheViewerAndCanBeReadOnly() {
        Help help;
        help.topic(2).click();
        Form& viewer = *help.screens.current();
        QCOMPARE(viewer.windowTitle(), QString("Norlaplan Help"));
        auto& text = help.control<QTextEdit>(forms::kHelpTopic, "RichTextBox1");
        QVERIFY(text.isReadOnly());
        for (const QSize size : {QSize(500, 300), QSize(1300, 800), QSize(700, 900)}) {
            viewer.resize(size);
            QApplication::processEvents();
            QCOMPARE(text.mapTo(&viewer, QPoint(0, 0)), QPoint(0, 0));
            QCOMPARE(text.size(), size);
        }
        QTest::keyClicks(&text, "words");
        QCOMPARE(help.page(), QString("Page of topic 2"));
    }

    void aWideViewerKeepsItsLinesReadableAndInTheMiddle() {
        Help help;
        std::string words;
        for (int i = 0; i < 400; ++i)
            words += "words ";
        help.give("help/HELP2.RTF", "{\\rtf1 " + words + "\\par}");
        help.topic(2).click();
        const auto& text = help.control<QTextEdit>(forms::kHelpTopic, "RichTextBox1");
        for (const int width : {600, 1600}) {
            help.screens.current()->resize(width, 500);
            QApplication::processEvents();
            QTextCursor cursor(text.document());
            const int left = text.cursorRect(cursor).left();
            cursor.movePosition(QTextCursor::EndOfLine);
            const int right = text.viewport()->width() - text.cursorRect(cursor).right();
            QVERIFY2(left >= 20 && right >= 20, qPrintable(QString("%1 %2").arg(left).arg(right)));
            QVERIFY(text.viewport()->width() - left - right <= 725);
            // A line ends where the next word has no room.
            QVERIFY(std::abs(left - right) < 60);
        }
    }

    void f1OpensTheTopicOfEveryScreenAndNothingIsLost_data() { everyScreenWithATopic(); }
    void f1OpensTheTopicOfEveryScreenAndNothingIsLost() {
        QFETCH(QString, name);
        Everything program;
        const QByteArray text = name.toUtf8();
        Form& form = program.open(FormName(text.constData()));
        QCOMPARE(program.inFront(), name.toStdString());
        const QStringList before = seen(form);
        const auto press = [&](Qt::Key key) {
            QWidget* const focus = program.screens.current()->focusWidget();
            QTest::keyClick(focus == nullptr ? program.screens.current() : focus, key);
        };

        press(Qt::Key_F1);
        QCOMPARE(program.inFront(), std::string(forms::kHelpTopic));
        QCOMPARE(int(program.state.helpTopic), topicOfScreen(name.toStdString()).value_or(0));
        press(Qt::Key_Escape);
        QCOMPARE(program.inFront(), std::string(forms::kHelpIndex));
        if (name != "Form22") press(Qt::Key_Escape);
        QCOMPARE(program.inFront(), name.toStdString());
        QVERIFY(form.isVisible());
        // The index marks the topic that was read.
        if (name != "Form22") QCOMPARE(seen(form), before);

        press(Qt::Key_F1);
        QCOMPARE(program.inFront(), std::string(forms::kHelpTopic));
        program.screens.current()->close();
        QCOMPARE(program.inFront(), name.toStdString());
        QVERIFY(program.messages.shown.empty());
    }

    void f1InTheMiddleOfAnEntryKeepsIt() {
        Everything program;
        program.open(forms::kLoads);
        QLineEdit& axial = program.field(forms::kLoads, "Text2");
        axial.setFocus();
        axial.setText("12.");
        axial.setCursorPosition(2);
        QTest::keyClick(&axial, Qt::Key_F1);
        QCOMPARE(program.inFront(), std::string(forms::kHelpTopic));
        QTest::keyClick(program.screens.current(), Qt::Key_Escape);
        QTest::keyClick(program.screens.current(), Qt::Key_Escape);
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        QCOMPARE(axial.text(), QString("12."));
        QCOMPARE(axial.cursorPosition(), 2);
        QCOMPARE(program.screens.current()->focusWidget(), &axial);
    }

    void f1OnTheStartScreenStopsItsTimer() {
        Program program;
        giveInformation(program);
        ShowStartScreen(program.screens);
        QTest::keyClick(program.screens.current(), Qt::Key_F1);
        QCOMPARE(program.inFront(), std::string(forms::kHelpTopic));
        QVERIFY(!program.control<QTimer>(forms::kStart, "Timer1").isActive());
        program.screens.current()->close();
        QCOMPARE(program.inFront(), std::string(forms::kStart));
    }

    void f1WithoutItsPageIsAFileErrorAndTheScreenStays() {
        Everything program;
        program.take("help/HELP13.RTF");
        program.open(forms::kLoads);
        program.type(forms::kLoads, "Text2", "77");
        QTest::keyClick(&program.field(forms::kLoads, "Text2"), Qt::Key_F1);
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '53'"));
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        QCOMPARE(program.field(forms::kLoads, "Text2").text(), QString("77"));
    }

    void f1InTheViewerLeavesThePageThatIsRead() {
        Help help;
        help.topic(4).click();
        help.press(Qt::Key_F1);
        QCOMPARE(help.page(), QString("Page of topic 4"));
        QCOMPARE(help.inFront(), std::string(forms::kHelpTopic));
    }

    void anotherTopicMayBeReadBeforeGoingBack() {
        Everything program;
        program.open(forms::kSizes);
        QTest::keyClick(program.screens.current(), Qt::Key_F1);
        QTest::keyClick(program.screens.current(), Qt::Key_Escape);
        program.click(forms::kHelpIndex, "Option6");
        QCOMPARE(program.inFront(), std::string(forms::kHelpTopic));
        QTest::keyClick(program.screens.current(), Qt::Key_Escape);
        QTest::keyClick(program.screens.current(), Qt::Key_Escape);
        QCOMPARE(program.inFront(), std::string(forms::kSizes));
        QTest::keyClick(program.screens.current(), Qt::Key_Escape);
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
    }

    void aTopicNumberBeyondItsFieldIsAnOverflow() {
        Help help;
        help.screens.runAction("Help", [&] { showHelpTopic(help.screens, 40000); });
        QCOMPARE(help.lastMessage().title, std::string("Run-time error '6'"));
        QCOMPARE(help.inFront(), std::string(forms::kHelpIndex));
    }
};

}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::Form22Test)
#include "Form22Test.moc"
