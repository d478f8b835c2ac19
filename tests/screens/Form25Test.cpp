#include <QComboBox>
#include <QLabel>

#include "screens/Program.h"
#include "screens/Theme.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/DeflectionControls.h"

namespace norlaplan::testing {
namespace {

/// The graph adjustment screen over the radial graph of a pair.
struct Adjustment : Program {
    Adjustment() {
        useUnits("US");
        enterNumber("K19013BP0T");
        click(forms::kMainMenu, "Command12");
        type(forms::kDeflection, "Text3", "0.0010");
        click(forms::kDeflection, "Command3");
        click(forms::kDeflection, "Picture1");
        click(forms::kDeflectionGraph, "Command3");
    }
    QLineEdit& field(const char* name) { return control<QLineEdit>(forms::kGraphSettings, name); }
    QComboBox& list(const char* name) { return control<QComboBox>(forms::kGraphSettings, name); }
    void enter(const char* name, const char* text) { field(name).setText(text); }
    void redraw() { click(forms::kGraphSettings, "Command1"); }
    const GraphSettings& settings() const { return state.graphSettings; }
};

QStringList itemsOf(const QComboBox& list) {
    QStringList items;
    for (int i = 0; i < list.count(); ++i)
        items.append(list.itemText(i));
    return items;
}

class Form25Test : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { theme::apply(); }

    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kGraphSettings, {kDeflectionRows, deflectionScenes()}),
                 QStringList());
    }

    void opensWithTheAxesOfTheGraphAndItsTexts() {
        Adjustment program;
        QCOMPARE(program.inFront(), std::string(forms::kGraphSettings));
        QCOMPARE(program.screens.form(forms::kGraphSettings).windowTitle(), QString("Graph Adjustment"));
        program.compareButton(forms::kGraphSettings, "Command2", "Cancel", "Retain old settings");
        QCOMPARE(program.control<QAbstractButton>(forms::kGraphSettings, "Command1").text(),
                 QString("Redraw Graphs"));
        QCOMPARE(program.field("Text1").text().toDouble(), program.settings().xMax);
        QCOMPARE(program.field("Text2").text().toDouble(), program.settings().xMajor);
        QVERIFY(std::abs(program.field("Text3").text().toDouble() / program.settings().yMax - 1.0) < 1e-14);
        QVERIFY(std::abs(program.field("Text4").text().toDouble() / program.settings().yMajor - 1.0) < 1e-14);
        QCOMPARE(itemsOf(program.list("Combo1")), (QStringList{"#,###", "#,###.0", "#.00E+##"}));
        QCOMPARE(itemsOf(program.list("Combo2")), (QStringList{"0.00E-00", "0.####0"}));
        QCOMPARE(program.list("Combo1").currentText(), QString("#,###"));
        QCOMPARE(program.list("Combo2").currentText(), QString("0.00E-00"));
    }

    void everyFieldHasItsLabelAsBuddy() {
        Adjustment program;
        const std::pair<const char*, const char*> labels[] = {
            {"Text1", "Maximum:"}, {"Text2", "Major Unit:"}, {"Combo1", "Numeric Format:"},
            {"Text3", "Maximum:"}, {"Text4", "Major Unit:"}, {"Combo2", "Numeric Format"}};
        for (const auto& [name, caption] : labels) {
            const QString labelName = QString(name) + "Label";
            const auto& label = program.control<QLabel>(forms::kGraphSettings, qPrintable(labelName));
            QCOMPARE(label.text(), QString(caption));
            QCOMPARE(label.buddy(), &program.control<QWidget>(forms::kGraphSettings, name));
        }
    }

    void redrawsWithTheUsersOwnAxesUntilAPictureIsClicked() {
        Adjustment program;
        const double byRule = program.settings().xMax;
        program.enter("Text1", "5,000");
        program.enter("Text2", "500");
        program.enter("Text3", "0.002");
        program.enter("Text4", "5e-4");
        program.list("Combo1").setCurrentText("#.00E+##");
        program.list("Combo2").setCurrentText("0.####0");
        program.redraw();
        QCOMPARE(program.inFront(), std::string(forms::kDeflectionGraph));
        QCOMPARE(program.settings().xMax, 5000.0);
        QCOMPARE(program.settings().xMajor, 500.0);
        QCOMPARE(program.settings().yMax, 0.002);
        QCOMPARE(program.settings().yMajor, 0.0005);
        QCOMPARE(program.settings().xFormat, std::string("#.00E+##"));
        QCOMPARE(program.settings().yFormat, std::string("0.####0"));
        QCOMPARE(program.settings().settingsAdjusted, std::string("Y"));
        program.click(forms::kDeflectionGraph, "Command3");
        QCOMPARE(program.field("Text1").text(), QString("5000"));
        program.click(forms::kGraphSettings, "Command2");
        program.click(forms::kDeflectionGraph, "Command2");
        program.click(forms::kDeflection, "Picture1");
        QCOMPARE(program.settings().xMax, byRule);
        QCOMPARE(program.settings().settingsAdjusted, std::string("N"));
    }

    void enterInAFieldRedraws() {
        Adjustment program;
        program.enter("Text1", "5000");
        QTest::keyClick(&program.field("Text1"), Qt::Key_Return);
        QCOMPARE(program.inFront(), std::string(forms::kDeflectionGraph));
        QCOMPARE(program.settings().xMax, 5000.0);
    }

    void cancelRetainsTheOldSettings() {
        Adjustment program;
        const double before = program.settings().xMax;
        program.enter("Text1", "123");
        program.list("Combo1").setCurrentText("#,###.0");
        program.click(forms::kGraphSettings, "Command2");
        QCOMPARE(program.inFront(), std::string(forms::kDeflectionGraph));
        QCOMPARE(program.settings().xMax, before);
        QCOMPARE(program.settings().xFormat, std::string("#,###"));
        QCOMPARE(program.settings().settingsAdjusted, std::string("N"));
        program.click(forms::kDeflectionGraph, "Command3");
        QCOMPARE(program.field("Text1").text().toDouble(), before);
        QCOMPARE(program.list("Combo1").currentText(), QString("#,###"));
    }

    void badAxesAreADataErrorAndChangeNothing_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("more");
        for (const char* const field : {"Text1", "Text2", "Text3", "Text4"}) {
            QTest::addRow("%s text", field) << field << "abc"
                                            << "";
            QTest::addRow("%s empty", field) << field << ""
                                             << "";
            QTest::addRow("%s huge", field) << field << "1e999"
                                            << "";
            for (const char* const number : {"0", "-1"})
                QTest::addRow("%s %s", field, number)
                    << field << number << "\n\nMaximum and major unit must be above 0.";
        }
        for (const char* const step : {"Text2", "Text4"})
            QTest::addRow("%s a millionth", step)
                << step << "1e-9"
                << "\n\nThe major unit divides the axis into more than 100 steps.";
    }
    void badAxesAreADataErrorAndChangeNothing() {
        QFETCH(QString, field);
        QFETCH(QString, entered);
        QFETCH(QString, more);
        Adjustment program;
        const GraphSettings before = program.settings();
        program.enter(qPrintable(field), qPrintable(entered));
        program.redraw();
        QCOMPARE(program.lastMessage().title, std::string("data error"));
        QCOMPARE(QString::fromStdString(program.lastMessage().prompt), "Invalid input" + more);
        QCOMPARE(program.inFront(), std::string(forms::kGraphSettings));
        QCOMPARE(program.field(qPrintable(field)).text(), entered);
        QCOMPARE(program.screens.current()->focusWidget(), &program.field(qPrintable(field)));
        QCOMPARE(program.settings().xMax, before.xMax);
        QCOMPARE(program.settings().yMajor, before.yMajor);
        QCOMPARE(program.settings().settingsAdjusted, std::string("N"));
    }

    void escapeLeavesItAsCancelDoes() {
        Adjustment program;
        program.enter("Text1", "123");
        QTest::keyClick(&program.field("Text1"), Qt::Key_Escape);
        QCOMPARE(program.inFront(), std::string(forms::kDeflectionGraph));
        QCOMPARE(program.settings().settingsAdjusted, std::string("N"));
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::Form25Test)
#include "Form25Test.moc"
