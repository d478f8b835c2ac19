#include <QApplication>
#include <QStyleOptionFrame>
#include <map>

#include "numbers/Text.h"
#include "screens/AnalysisProgram.h"
#include "screens/controls/AnalysisControls.h"
#include "screens/controls/ControlsOfAForm.h"
#include "support/HandPictures.h"

namespace norlaplan::testing {
namespace {

using Texts = std::map<std::string, std::string>;

/// What stands in the fields of the results, by pictures written out by hand.
Texts resultsByHand(const SolverState& s, bool metric) {
    using namespace hand;
    const double tilt = s.Tilt;
    const double inches = metric ? 25.4 : 1.0;
    Texts texts = {
        {"Text25", life(s.L10InnerRotationRow1, s.L10InnerRotationRow1)},
        {"Text26", life(s.L10OuterRotationRow1, s.L10InnerRotationRow1)},
        {"Text33", pointed(s.SafetyInner, 2)},
        {"Text34", pointed(s.SafetyOuter, 2)},
        {"Text52", pointed(s.RadialDisp * inches, 6)},
        {"Text53", pointed(s.AxialDisp * inches, 6)},
        {"Text54", pointed(metric ? tilt : tilt * 180.0 / 3.14159265359, 6).substr(0, 7)},
    };
    const auto both = [&](const char* inner, const char* outer, double a, double b, auto picture) {
        texts[inner] = picture(a);
        texts[outer] = picture(b);
    };
    const auto upTo1 = [](double value) { return pointedShortened(value, 1); };
    const auto upTo2 = [](double value) { return pointedShortened(value, 2); };
    const auto fixed4 = [](double value) { return fixedPoint(value, 4); };
    const auto pointed4 = [](double value) { return pointed(value, 4); };
    if (metric) {
        both("Text27", "Text28", s.RmcRow1 * 4.448, s.RmcRow2 * 4.448, upTo1);
        both("Text29", "Text30", s.MaxBallLoad * 4.448, s.MaxBallLoad * 4.448, upTo1);
        both("Text31", "Text32", s.InnerStaticCapacityNewtons, s.OuterStaticCapacityNewtons, whole);
        both("Text35", "Text36", s.MaxInnerStressMpa, s.MaxOuterStressMpa, whole);
        both("Text37", "Text38", s.MeanInnerStressMpa, s.MeanOuterStressMpa, whole);
        both("Text39", "Text40", s.InnerMajorAxisMm, s.OuterMajorAxisMm, fixed4);
        both("Text41", "Text42", s.InnerMinorAxisMm, s.OuterMinorAxisMm, fixed4);
        if (s.RowCount == 1) texts["Text28"] = "N/A";
    } else {
        both("Text27", "Text28", s.RmcRow1, s.RmcRow2, upTo2);
        both("Text29", "Text30", s.MaxBallLoad, s.MaxBallLoad, upTo2);
        both("Text31", "Text32", s.InnerStaticCapacity, s.OuterStaticCapacity, upTo2);
        both("Text35", "Text36", s.MaxInnerStress, s.MaxOuterStress, grouped);
        both("Text37", "Text38", s.MeanInnerStress, s.MeanOuterStress, grouped);
        both("Text39", "Text40", s.InnerMajorAxis, s.OuterMajorAxis, pointed4);
        both("Text41", "Text42", s.InnerMinorAxis, s.OuterMinorAxis, pointed4);
    }
    return texts;
}

void compareAll(Analysis& program, const Texts& expected) {
    for (const auto& [name, text] : expected)
        QVERIFY2(program.shown(name.c_str()) == text,
                 (name + ": " + program.shown(name.c_str()) + " for " + text).c_str());
}

class DataFormTest : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kAnalysis, {kAnalysisRows, analysisScenes()}), QStringList());
    }

    void opensFromTheLifeScreenWithItsKeywords_data() {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<bool>("opens");
        QTest::newRow("print option") << "LARS HOFMANN" << true;
        QTest::newRow("in small letters") << "Sam Lund" << true;
        QTest::newRow("with a blank behind") << "SAM LUND " << false;
        QTest::newRow("another") << "BALL SHOW" << false;
    }
    void opensFromTheLifeScreenWithItsKeywords() {
        QFETCH(QString, keyword);
        QFETCH(bool, opens);
        Analysis program("US", qPrintable(keyword));
        program.solve("K19013XP0");
        const auto& button = program.control<QAbstractButton>(forms::kLife, "Command8");
        QCOMPARE(button.isVisible(), opens);
        QCOMPARE(button.text(), QString("Show Sams Tlodestar Results"));
        if (!opens) return;
        program.openAnalysis();
        QCOMPARE(program.inFront(), std::string(forms::kAnalysis));
        QCOMPARE(program.screens.current()->windowTitle(), QString("Lodestar stripped down"));
    }

    void showsTheModulusThatALaterFilmCheckLeaves() {
        Analysis program("US", "LARS HOFMANN\r\nLUBE FILM");
        program.enterNumber("K19013XP0");
        program.openLife("500", "200", "100", "400");
        program.openAnalysis();
        QCOMPARE(program.shown("Text11"), std::string("29"));
        program.click(forms::kAnalysis, "Command3");
        program.click(forms::kLife, "Command6");
        program.type(forms::kLubeFilm, "Text1", ".9");
        program.type(forms::kLubeFilm, "Text2", "100");
        program.click(forms::kLubeFilm, "Command2");
        program.screens.showAlone(forms::kLife);
        program.openAnalysis();
        QCOMPARE(program.shown("Text11"), std::string("29000000"));
    }

    void itsButtonsBearTheirCaptions() {
        Program program;
        program.compareButton(forms::kAnalysis, "Command1", "More", "Show the data of every ball");
        program.compareButton(forms::kAnalysis, "Command3", "CLose", "Return to the load-life calculation");
    }

    void showsWhatTheSolveWasGiven_data() { stylesAndUnits(); }
    void showsWhatTheSolveWasGiven() {
        QFETCH(QString, number);
        QFETCH(QString, units);
        Analysis program(units.toStdString());
        program.solve(qPrintable(number));
        program.openAnalysis();
        const BearingSpec& bearing = program.state.bearing;
        const LoadCase& loads = program.state.loads;
        const bool radial = number[6] == 'C', pair = number[6] == 'B' || number[6] == 'F';
        program.compareNumber("Text1", bearing.ballDiameter);
        program.compareNumber("Text15", bearing.ballDiameter * 25.4);
        program.compareNumber("Text2", bearing.pitchDiameter);
        program.compareNumber("Text16", bearing.pitchDiameter * 25.4);
        QCOMPARE(program.shown("Text3"), std::to_string(int{bearing.ballCount}));
        QCOMPARE(program.shown("Text4"), std::string(radial ? "0" : "30"));
        QCOMPARE(program.shown("Text17"), std::string(radial ? "0." : "0.5236"));
        program.compareNumber("Text5", 100.0 * bearing.raceRadius / bearing.ballDiameter);
        program.compareNumber("Text6", 100.0 * bearing.raceRadius / bearing.ballDiameter);
        program.compareNumber("Text14", loads.radialLoad);
        program.compareNumber("Text20", loads.radialLoad * 4.448);
        program.compareNumber("Text48", radial ? 0.0 : double{loads.axialLoad});
        program.compareNumber("Text50", radial ? 0.0 : loads.axialLoad * 4.448);
        program.compareNumber("Text49", radial ? 0.0 : double{loads.momentLoad});
        program.compareNumber("Text51", radial ? 0.0 : loads.momentLoad * 0.11298);
        for (const char* const modulus : {"Text8", "Text11"})
            QCOMPARE(program.shown(modulus), std::string("29"));
        for (const char* const modulus : {"Text18", "Text19"})
            QCOMPARE(program.shown(modulus), std::string("199.955"));
        for (const char* const ratio : {"Text9", "Text12"})
            QCOMPARE(program.shown(ratio), std::string("0.25"));
        if (pair) {
            const double centres = 2.0 * (2.0 * bearing.raceRadius - bearing.ballDiameter);
            const double clearance = centres * (1.0 - std::sqrt(0.75));
            QVERIFY(std::abs(program.field("Text43").text().toDouble() - clearance) < 6e-6);
            program.compareNumber("Text66", bearing.height / 2.0);
            program.compareNumber("Text65", bearing.height / 2.0 * 25.4);
        } else {
            program.compareNumber("Text43", bearing.meanClearance);
            QVERIFY(std::abs(program.field("Text44").text().toDouble() - bearing.meanClearance * 25.4) <
                    6e-6);
        }
        for (const char* const name : {"Text13", "Text45", "Text66", "Text65", "Option3", "Option4"})
            QCOMPARE(program.control<QWidget>(forms::kAnalysis, name).isEnabled(), pair);
        QCOMPARE(program.shown("Text22"), number.toStdString());
        QCOMPARE(program.shown("Text24"), std::string("3/14/26"));
        QCOMPARE(program.control<QRadioButton>(forms::kAnalysis, "Option5").isChecked(), number[6] == 'X');
        QCOMPARE(program.control<QRadioButton>(forms::kAnalysis, "Option6").isChecked(), number[6] == 'B');
        QCOMPARE(program.control<QRadioButton>(forms::kAnalysis, "Option7").isChecked(), number[6] == 'F');
        QVERIFY(program.messages.shown.empty());
    }

    void showsTheResultsInEnglishUnitsFirst_data() { stylesAndUnits(); }
    void showsTheResultsInEnglishUnitsFirst() {
        QFETCH(QString, number);
        QFETCH(QString, units);
        Analysis program(units.toStdString());
        program.solve(qPrintable(number));
        program.openAnalysis();
        QVERIFY(program.control<QRadioButton>(forms::kAnalysis, "Option1").isChecked());
        compareAll(program, resultsByHand(program.state.solver, false));
        QCOMPARE(program.caption("CaptionText29"), std::string("Max. Ball Load (lbs.)"));
        QCOMPARE(program.caption("CaptionText35"), std::string("Hertz Stress (PSI)"));
        QCOMPARE(program.caption("CaptionText39"), std::string("Contact Ellipse (in.)"));
        QCOMPARE(program.caption("CaptionText52"), std::string("Radial (in.)"));
        QCOMPARE(program.caption("CaptionText53"), std::string("Axial (in.)"));
        QCOMPARE(program.caption("CaptionText54"), std::string("Tilt (degrees)"));
        QCOMPARE(program.caption("CaptionText27"), std::string("RMC Loads (Lbs)"));
    }

    void showsThemInMetricUnitsAndBack_data() { stylesAndUnits(); }
    void showsThemInMetricUnitsAndBack() {
        QFETCH(QString, number);
        QFETCH(QString, units);
        Analysis program(units.toStdString());
        program.solve(qPrintable(number));
        program.openAnalysis();
        program.mark("Option2");
        compareAll(program, resultsByHand(program.state.solver, true));
        QCOMPARE(program.caption("CaptionText29"), std::string("Max. Ball Load (N)"));
        QCOMPARE(program.caption("CaptionText35"), std::string("Hertz Stress (MPa)"));
        QCOMPARE(program.caption("CaptionText39"), std::string("Contact Ellipse (mm)"));
        QCOMPARE(program.caption("CaptionText52"), std::string("Radial (mm)"));
        QCOMPARE(program.caption("CaptionText53"), std::string("Axial (mm)"));
        QCOMPARE(program.caption("CaptionText54"), std::string("Tilt (radians)"));
        QCOMPARE(program.caption("CaptionText27"), std::string("RMC loads (N)"));
        program.mark("Option1");
        compareAll(program, resultsByHand(program.state.solver, false));
        QCOMPARE(program.caption("CaptionText27"), std::string("RMC Loads (Lbs)"));
    }

    void theChecksAreTheSumsOfTheLastPass() {
        Analysis program;
        program.solve("K19013XP0");
        program.openAnalysis();
        for (const char* const name : {"Frame7", "Text62", "Label79", "Label80"})
            QVERIFY2(program.visible(name), name);
        QCOMPARE(program.caption("Label79"), std::string("Convergence Achieved in:"));
        QCOMPARE(program.caption("Label80"), std::string("Iterations"));
        for (const auto& [name, load] :
             std::map<const char*, double>{{"Text57", 500.0}, {"Text58", 200.0}, {"Text59", 100.0}})
            QVERIFY2(std::abs(program.field(name).text().toDouble() - load) < 1e-3, name);
        QCOMPARE(program.shown("Text62"), std::to_string(int{program.state.solver.Iteration}));
        QVERIFY(program.field("Text62").text().toInt() > 1);
        program.compareNumber("Text60", program.state.solver.Kn);
        program.compareNumber("Text61", program.state.solver.CiCo);
    }

    void beforeASolveHasConvergedThereAreNoResults() {
        Program program;
        program.screens.show(forms::kAnalysis);
        for (const char* const name :
             {"Frame4", "Frame5", "Frame6", "Frame7", "Text62", "Label79", "Label80"})
            QVERIFY2(!program.control<QWidget>(forms::kAnalysis, name).isVisible(), name);
        for (int i = 25; i <= 42; ++i) {
            const QByteArray name = "Text" + QByteArray::number(i);
            QCOMPARE(program.control<QLineEdit>(forms::kAnalysis, name.constData()).text(), QString());
        }
        QVERIFY(program.control<QWidget>(forms::kAnalysis, "Frame1").isVisible());
        QVERIFY(program.messages.shown.empty());
    }

    void theFieldsOfResultsAreWhiteAndTakeNoEntry() {
        Analysis program;
        program.solve("K19013XP0");
        program.openAnalysis();
        for (const auto& [name, text] : resultsByHand(program.state.solver, false)) {
            const QLineEdit& field = program.field(name.c_str());
            QVERIFY2(field.isReadOnly(), name.c_str());
            QCOMPARE(field.palette().color(QPalette::Base), QColor(255, 255, 255));
        }
    }

    void anEntryStartsNoSolveAndTheLifeScreenStaysAsItWas() {
        Analysis program;
        program.solve("K19013XP0");
        const QString life = program.control<QLabel>(forms::kLife, "Label8").text();
        program.openAnalysis();
        const Texts before = resultsByHand(program.state.solver, false);
        // A solve would write its own count of passes.
        program.state.solver.Iteration = 7777;
        program.enter("Text14", "900");
        program.enter("Text4", "40");
        program.pick("Combo1", 5);
        compareAll(program, before);
        program.click(forms::kAnalysis, "Command3");
        QCOMPARE(program.inFront(), std::string(forms::kLife));
        QCOMPARE(int(program.state.solver.Iteration), 7777);
        QCOMPARE(program.control<QLabel>(forms::kLife, "Label8").text(), life);
    }

    void theEntriesStayUntilTheNextSolveOverwritesThem() {
        Analysis program;
        program.solve("K19013XP0");
        program.openAnalysis();
        program.enter("Text14", "900");
        program.enter("Text63", "0.15");
        program.pick("Combo1", 5);
        program.mark("Option2");
        program.click(forms::kAnalysis, "Command3");
        program.openAnalysis();
        QCOMPARE(program.shown("Text14"), std::string("900"));
        QCOMPARE(program.shown("Text7"), std::string("Si3N4"));
        QVERIFY(program.control<QRadioButton>(forms::kAnalysis, "Option2").isChecked());
        program.click(forms::kAnalysis, "Command3");
        program.solve("K19013XP0", "400");
        program.openAnalysis();
        QCOMPARE(program.shown("Text14"), std::string("400"));
        QCOMPARE(program.shown("Text8"), std::string("29"));
        QCOMPARE(program.shown("Text7"), std::string());
        QVERIFY(program.control<QRadioButton>(forms::kAnalysis, "Option1").isChecked());
        QCOMPARE(program.shown("Text63"), std::string("0.15"));
        compareAll(program, resultsByHand(program.state.solver, false));
    }

    void moreShowsTheBallsInItsPlace() {
        Analysis program;
        program.solve("K19013XP0");
        program.openAnalysis();
        program.click(forms::kAnalysis, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kBallResults));
        QVERIFY(!program.screens.form(forms::kAnalysis).isVisible());
        program.screens.form(forms::kBallResults).close();
        QCOMPARE(program.inFront(), std::string(forms::kLife));
    }

    void noFieldCutsItsNumber_data() { stylesAndUnits(); }
    void noFieldCutsItsNumber() {
        QFETCH(QString, number);
        QFETCH(QString, units);
        Analysis program(units.toStdString());
        program.solve(number.toUtf8().constData());
        program.openAnalysis();
        for (const auto* const field : program.screens.form(forms::kAnalysis).findChildren<QLineEdit*>()) {
            if (!field->isVisible()) continue;
            QStyleOptionFrame frame;
            frame.initFrom(field);
            const QMargins margins = field->textMargins();
            const int room =
                field->style()->subElementRect(QStyle::SE_LineEditContents, &frame, field).width() -
                margins.left() - margins.right();
            const QString what = field->objectName() + ": " + field->text();
            QVERIFY2(field->fontMetrics().horizontalAdvance(field->text()) <= room, qPrintable(what));
        }
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::DataFormTest)
#include "DataFormTest.moc"
