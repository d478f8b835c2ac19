#include <QLabel>

#include "screens/Program.h"
#include "screens/Theme.h"

namespace norlaplan::testing {
namespace {

/// What the load-life screen says against trusting a result.
class LifeWarningsTest : public QObject {
    Q_OBJECT

  private:
    static QLabel& warning(Program& program, const char* name) {
        return program.control<QLabel>("Form19", name);
    }

  private slots:
    void showsTheShorterLifeOfRowTwoInRed() {
        Program program;
        program.useUnits("US");
        program.enterNumber("K19013XP0");
        program.openLife("1000", "", "-2000");
        QVERIFY(warning(program, "Warning1").isVisible());
        QVERIFY(warning(program, "Warning1").text().startsWith("Row 2 has the shorter life: "));
        const QPalette& colours = warning(program, "Warning1").palette();
        QCOMPARE(colours.color(QPalette::WindowText),
                 theme::badColour(program.screens.form("Form19").palette()));
        QVERIFY(!warning(program, "Warning2").isVisible());
    }

    void showsNothingForTheMirrorImageAlsoAfterAWarning() {
        Program program;
        program.useUnits("US");
        program.enterNumber("K19013XP0");
        program.openLife("1000", "", "-2000");
        program.click("Form19", "Command2");
        program.openLife("1000", "", "2000");
        QCOMPARE(program.inFront(), std::string("Form19"));
        QVERIFY(!warning(program, "Warning1").isVisible());
        QVERIFY(!warning(program, "Warning2").isVisible());
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::LifeWarningsTest)
#include "LifeWarningsTest.moc"
