#include <QLabel>
#include <QLineEdit>
#include <cmath>

#include "screens/Program.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/LifeControls.h"
#include "screens/controls/LoadControls.h"

namespace norlaplan::testing {
namespace {

/// From a part number to its load-life report, by the controls that a user works with.
class KnownBearingJourneyTest : public QObject {
    Q_OBJECT

  private:
    static QString label(Program& program, const char* name) {
        return program.control<QLabel>(forms::kLife, name).text();
    }

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kLoads, {kLoadRows, loadScenes()}), QStringList());
        QCOMPARE(controlsThatDiffer(forms::kLife, {kLifeRows, lifeScenes()}), QStringList());
    }

    void showsLifeSafetyTorqueAndVerdict() {
        Program program;
        program.state.unitSystem = "US";
        program.enterNumber("k19013xp0");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        program.openLife("1200", "300", "900", "400");
        QCOMPARE(program.inFront(), std::string(forms::kLife));
        QCOMPARE(program.screens.form(forms::kLife).windowTitle(),
                 QString("LOAD-LIFE CALCULATION FOR K19013XP0"));
        QCOMPARE(label(program, "Label1"), QString("BORE       = 7.4803 inches"));
        QCOMPARE(label(program, "Label4"), QString("RADIAL = 1,200 pounds"));
        QCOMPARE(label(program, "Label7"), QString("SPEED =  400 RPM"));
        QVERIFY(label(program, "Label8").startsWith("L10 LIFE = "));
        QVERIFY(label(program, "Label9").endsWith(" HOURS"));
        QVERIFY(label(program, "Label10").startsWith("STATIC SAFETY FACTOR = "));
        QVERIFY(label(program, "Label11").startsWith("The speed of 400 RPM is below"));
        QVERIFY(program.control<QLabel>(forms::kLife, "Label11").isVisible());
    }

    void showsTheSameBearingUnderTheSameLoadInBothUnits() {
        Program us;
        us.useUnits("US");
        us.enterNumber("K19013XP0");
        us.openLife("224.8089", "44.96178", "88.50744", "400");
        Program metric;
        metric.useUnits("METRIC");
        metric.enterNumber("K19013XP0");
        // 1 N is 0.2248089 lb, 1 N-m is 8.850744 in-lb.
        metric.openLife("1000", "200", "10", "400");
        QCOMPARE(metric.inFront(), std::string(forms::kLife));
        QCOMPARE(label(metric, "Label1"), QString("BORE       = 190.000 mm"));
        QCOMPARE(label(metric, "Label2"), QString("O. D.      = 216.000 mm"));
        QCOMPARE(label(metric, "Label3"), QString("HEIGHT     = 13.000 mm"));
        QCOMPARE(label(metric, "Label4"), QString("RADIAL = 1,000 N"));
        QCOMPARE(label(metric, "Label6"), QString("MOMENT = 10 N-m"));
        QVERIFY(label(metric, "Label13").endsWith(" N-m "));
        const double ratio = metric.state.life.l10Revolutions / us.state.life.l10Revolutions;
        QVERIFY(std::abs(ratio - 1.0) < 1e-6);
        QCOMPARE(label(metric, "Label10"), label(us, "Label10"));
    }

    void hidesSpeedHoursAndVerdictWithoutASpeed() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("1200", "", "", "");
        QCOMPARE(program.inFront(), std::string(forms::kLife));
        for (const char* const name : {"Label7", "Label9", "Label11"}) {
            QVERIFY2(!program.control<QLabel>(forms::kLife, name).isVisible(), name);
        }
    }

    void savesAndPrintsTheReport() {
        Program program;
        program.enterNumber("K19013BR0N");
        program.openLife("500", "100", "50", "100");
        program.saveDialog.choice = SaveChoice{program.files.path() / "life.rtf", 1};
        program.click(forms::kLife, "Command4");
        QCOMPARE(program.saveDialog.requests.back().name, std::string("K19013BR0N-load.rtf"));
        QVERIFY(program.files.read("life.rtf").find("K19013BR0N") != std::string::npos);
        QCOMPARE(program.state.lastSavedFile, (program.files.path() / "life.rtf").string());
        program.click(forms::kLife, "Command3");
        QCOMPARE(program.printer.documents.size(), std::size_t{1});
        QVERIFY(program.printer.canvas.hasText("RESULTS OF LOAD-LIFE CALCULATION FOR : "));
    }

    void leavesNothingBehindWhenTheSaveIsCancelled() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("500", "", "", "");
        program.click(forms::kLife, "Command4");
        QVERIFY(program.state.lastSavedFile.empty());
        QVERIFY(program.messages.shown.empty());
    }

    void goesBackToTheLoadsWithPreviousAndToTheMenuOnClosing() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("500", "", "", "");
        program.click(forms::kLife, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        QVERIFY(program.state.knownBearingLoadInput);
        QCOMPARE(program.control<QLineEdit>(forms::kLoads, "Text1").text(), QString("500"));
        program.click(forms::kLoads, "Command1");
        program.screens.form(forms::kLife).close();
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QVERIFY(!program.state.knownBearingLoadInput);
    }

    void hidesOnEscape() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("500", "", "", "");
        QTest::keyClick(&program.screens.form(forms::kLife), Qt::Key_Escape);
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
    }

    void tellsOfABadLoadAndStays() {
        Program program;
        program.enterNumber("K19013XP0");
        program.click(forms::kMainMenu, "Command13");
        program.control<QLineEdit>(forms::kLoads, "Text2").setText("abc");
        program.click(forms::kLoads, "Command1");
        QCOMPARE(program.lastMessage().title, std::string("Please correct load"));
        QCOMPARE(program.lastMessage().prompt, std::string("Axial Load input error"));
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
    }

    void tellsOfANegativeAxialLoadWithAdviceAndStays() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("500", "-100", "", "");
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '5'"));
        QVERIFY(program.lastMessage().prompt.find("Proceed to life calculation") != std::string::npos);
        QVERIFY(program.lastMessage().prompt.find("positive number") != std::string::npos);
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        // The screen still serves this bearing: the corrected load goes on to its life.
        QVERIFY(!program.control<QAbstractButton>(forms::kLoads, "Command2").isVisible());
        program.type(forms::kLoads, "Text2", "100");
        program.click(forms::kLoads, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kLife));
        QVERIFY(label(program, "Label8").startsWith("L10 LIFE = "));
    }

    void aLifeThatIsGivenUpLeadsBackToTheLoadsAndLeavesNoMark() {
        Program program;
        program.enterNumber("K19013BR0A");
        program.openLife("0", "1e12", "0", "");
        QVERIFY(!program.messages.asked.empty());
        QCOMPARE(program.messages.asked.back().prompt, std::string("Do you want to keep trying?"));
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        QVERIFY(!program.state.solver.SolveAborted);
        program.type(forms::kLoads, "Text2", "100");
        program.click(forms::kLoads, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kLife));
        QVERIFY(label(program, "Label8").startsWith("L10 LIFE = "));
    }

    void theMainMenuButtonKeepsTheLoadsOrStaysWhenOneIsWrong() {
        Program program;
        program.enterNumber("K19013XP0");
        program.click(forms::kMainMenu, "Command13");
        program.control<QLineEdit>(forms::kLoads, "Text1").setText("abc");
        program.click(forms::kLoads, "Command3");
        QCOMPARE(program.lastMessage().prompt, std::string("Radial Load input error"));
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        program.type(forms::kLoads, "Text1", "500");
        program.click(forms::kLoads, "Command3");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QVERIFY(!program.state.knownBearingLoadInput);
        program.click(forms::kMainMenu, "Command14");
        QCOMPARE(program.inFront(), std::string(forms::kLife));
        QCOMPARE(label(program, "Label4"), QString("RADIAL = 500 pounds"));
    }

    void aKnownBearingTakesEveryLoadAfterASearchForRadialOnes() {
        Program program;
        program.state.style = {"RADIAL CONTACT", "C"};
        program.enterNumber("K19013XP0");
        program.openLife("", "100", "", "");
        QCOMPARE(program.inFront(), std::string(forms::kLife));
        QCOMPARE(label(program, "Label5"), QString("AXIAL  = 100 pounds"));
    }

    void aLoadScreenThatWasClosedServesTheSearchAgain() {
        Program program;
        program.enterNumber("K19013XP0");
        program.click(forms::kMainMenu, "Command13");
        program.screens.form(forms::kLoads).close();
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QVERIFY(!program.state.knownBearingLoadInput);
    }

    void theVerdictIsGreenWithinTheLimitAndRedAboveIt() {
        Program program;
        program.enterNumber("K19013XP0");
        const auto colour = [&] {
            return program.control<QLabel>(forms::kLife, "Label11").palette().color(QPalette::WindowText);
        };
        program.openLife("500", "", "", "100");
        QCOMPARE(colour(), QColor(0, 128, 0));
        program.screens.showAlone(forms::kMainMenu);
        program.openLife("500", "", "", "5000");
        QCOMPARE(colour(), QColor(255, 0, 0));
    }

    void theSideScreensCaptionsKeepTheirBlanks() {
        Program program;
        const auto caption = [&](const char* name) {
            return program.control<QAbstractButton>(forms::kLife, name).text();
        };
        QCOMPARE(caption("Command5"), QString("Ball Load             Plot"));
        QCOMPARE(caption("Command6"), QString("Lube Film          Check"));
        QCOMPARE(caption("Command7"), QString("Contact         Stress"));
    }

    void takesOnlyARadialLoadForARadialBearing() {
        Program program;
        program.enterNumber("K19013CP0");
        program.click(forms::kMainMenu, "Command13");
        for (const char* const name : {"Text2", "Text3"}) {
            QVERIFY(!program.control<QLineEdit>(forms::kLoads, name).isVisible());
        }
        QVERIFY(program.control<QLineEdit>(forms::kLoads, "Text4").isVisible());
    }

    void takesNoSpeedForABearingWithoutSeparator() {
        Program program;
        program.enterNumber("K19013XF0");
        program.click(forms::kMainMenu, "Command13");
        QVERIFY(!program.control<QLineEdit>(forms::kLoads, "Text4").isEnabled());
    }

    void showsTheSideScreenButtonsByTheirOptions() {
        Program program;
        program.state.options.ballShowOption = true;
        program.state.options.pathStressOption = true;
        program.enterNumber("K19013XP0");
        program.openLife("500", "", "", "");
        QVERIFY(program.control<QAbstractButton>(forms::kLife, "Command5").isVisible());
        QVERIFY(!program.control<QAbstractButton>(forms::kLife, "Command6").isVisible());
        QVERIFY(program.control<QAbstractButton>(forms::kLife, "Command7").isVisible());
        QVERIFY(!program.control<QAbstractButton>(forms::kLife, "Command8").isVisible());
    }

    void keepsItsValuesOnTheWayBackFromASideScreen() {
        Program program;
        program.blank(forms::kLubeFilm);
        program.state.options.lubeFilmOption = true;
        program.enterNumber("K19013XP0");
        program.openLife("500", "", "", "");
        const QString before = label(program, "Label8");
        program.click(forms::kLife, "Command6");
        QCOMPARE(program.inFront(), std::string(forms::kLubeFilm));
        // A solve would write its own count of iterations.
        program.state.solver.Iteration = 7777;
        program.screens.form(forms::kLubeFilm).close();
        QCOMPARE(program.inFront(), std::string(forms::kLife));
        QCOMPARE(int(program.state.solver.Iteration), 7777);
        QCOMPARE(label(program, "Label8"), before);
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::KnownBearingJourneyTest)
#include "KnownBearingJourneyTest.moc"
