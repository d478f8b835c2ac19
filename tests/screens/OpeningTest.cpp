#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <algorithm>

#include "screens/Everything.h"
#include "screens/FlowRow.h"

namespace norlaplan::testing {
namespace {

/// Where a user starts on a form that has just been opened, and what Enter does there.
struct Start {
    FormName form;
    /// The control with the focus: of a form that asks, the first field that the program can't fill by
    /// itself; of one that shows, what is looked at or chosen from; else the button that one most probably
    /// wants.
    const char* focus;
    /// The button that Enter presses from anywhere but another button: the one that leads on. Empty: there is
    /// none.
    const char* main;
};

const Start kStarts[] = {
    {forms::kStart, "Command1", ""},
    {forms::kTextViewer, "RichTextBox1", "Command1"},
    {forms::kMainMenu, "Command8", ""},
    {forms::kAbout, "Command1", "Command1"},
    {forms::kTrainingShow, "MainMenu", ""},
    {forms::kUnits, "Option1", "Command1"},
    {forms::kProductTable, "Return", ""},
    {forms::kPartNumber, "Text1", "Command1"},
    {forms::kApplication, "Text1", "Command3"},
    {forms::kUserInfo, "Text1", "Command1"},
    {forms::kSizes, "Text1", "Command2"},
    {forms::kSort, "Command1", "Command1"},
    {forms::kLoads, "Text1", "Command1"},
    {forms::kResults, "List1", "Command4"},
    {forms::kStyle, "Image1", "Command1"},
    {forms::kAxialPlay, "Option1", "Command2"},
    {forms::kLife, "Command4", "Command4"},
    {forms::kHelpTopic, "RichTextBox1", ""},
    {forms::kCatalogPages, "RichTextBox1", ""},
    {forms::kHelpIndex, "Option1", ""},
    {forms::kPreloadTorque, "Command1", "Command1"},
    {forms::kDeflection, "Text3", "Command3"},
    {forms::kGraphSettings, "Text1", "Command1"},
    {forms::kDeflectionGraph, "Command4", "Command4"},
    {forms::kLubeFilm, "Text2", "Command2"},
    {forms::kFaxCover, "Text1", "Command1"},
    {forms::kPictureBrowser, "File1", "Command2"},
    {forms::kContactStress, "Picture1", "Command1"},
    {forms::kThermalFits, "Text1", "Command1"},
    {forms::kBallResults, "MSFlexGrid1", ""},
    {forms::kBallLoadGraph, "Picture1", "Command2"},
};

/// The buttons under a page from the left, the upper row first.
QList<QPushButton*> footerOf(const Form& form) {
    QList<QPushButton*> buttons;
    for (const QLayout* const row : form.findChildren<QLayout*>()) {
        if (dynamic_cast<const FlowRow*>(row) == nullptr) continue;
        for (int i = 0; i < row->count(); ++i) {
            auto* const button = qobject_cast<QPushButton*>(row->itemAt(i)->widget());
            if (button != nullptr && button->isVisible()) buttons << button;
        }
    }
    return buttons;
}

QStringList namesOf(const QList<QPushButton*>& buttons) {
    QStringList names;
    for (const QPushButton* const button : buttons)
        names << button->objectName();
    return names;
}

void startsAsRows() {
    QTest::addColumn<std::size_t>("row");
    for (std::size_t row = 0; row < std::size(kStarts); ++row)
        QTest::addRow("%s", kStarts[row].form.text) << row;
}

class OpeningTest : public QObject {
    Q_OBJECT

  private slots:
    void aFormOpensWithTheFocusWhereOneStarts_data() { startsAsRows(); }
    void aFormOpensWithTheFocusWhereOneStarts() {
        QFETCH(std::size_t, row);
        Everything program;
        const Form& form = program.open(kStarts[row].form);
        QVERIFY(form.focusWidget() != nullptr);
        QCOMPARE(form.focusWidget()->objectName(), QString(kStarts[row].focus));
    }

    void enterPressesTheMainButtonOnceAndItAloneIsBold_data() { startsAsRows(); }
    void enterPressesTheMainButtonOnceAndItAloneIsBold() {
        QFETCH(std::size_t, row);
        const QString main = kStarts[row].main;
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            Everything program;
            Form& form = program.open(kStarts[row].form);
            QStringList bold;
            for (const QPushButton* const button : footerOf(form)) {
                if (button->font().bold()) bold << button->objectName();
            }
            QCOMPARE(bold, main.isEmpty() ? QStringList() : QStringList(main));
            if (main.isEmpty()) return;
            // From the form itself, as from a field that leaves the key alone.
            if (form.focusWidget() != nullptr &&
                qobject_cast<QAbstractButton*>(form.focusWidget()) != nullptr)
                form.focusWidget()->clearFocus();
            QSignalSpy pressed(form.findChild<QPushButton*>(main), &QPushButton::clicked);
            QTest::keyClick(&form, key);
            QCOMPARE(pressed.count(), 1);
        }
    }

    void tabGoesThroughTheFooterFromTheRightToTheMainMenu_data() { startsAsRows(); }
    void tabGoesThroughTheFooterFromTheRightToTheMainMenu() {
        QFETCH(std::size_t, row);
        Everything program;
        Form& form = program.open(kStarts[row].form);
        QApplication::setActiveWindow(&form);
        QList<QPushButton*> buttons = footerOf(form);
        buttons.removeIf([](const QPushButton* button) { return !button->isEnabled(); });
        std::reverse(buttons.begin(), buttons.end());
        if (buttons.isEmpty()) return;
        buttons.first()->setFocus();
        QStringList visited = {buttons.first()->objectName()};
        for (qsizetype i = 1; i < buttons.size(); ++i) {
            QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
            visited << form.focusWidget()->objectName();
        }
        QCOMPARE(visited, namesOf(buttons));
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::OpeningTest)
#include "OpeningTest.moc"
