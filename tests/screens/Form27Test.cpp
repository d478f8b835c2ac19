#include <QGroupBox>
#include <QRadioButton>

#include "screens/SolvedBearing.h"
#include "screens/controls/ContactControls.h"
#include "screens/controls/ControlsOfAForm.h"
#include "support/PlainFilm.h"

namespace norlaplan::testing {
namespace {

/// The film check of a solved bearing.
struct Film : SolvedBearing {
    explicit Film(const TypedLoads& loads = {}, const char* units = "US")
        : SolvedBearing("K19013XP0", loads, units) {
        open("Command6");
    }
    QString label(const char* name) { return control<QLabel>(forms::kLubeFilm, name).text(); }
    QLineEdit& field(const char* name) { return control<QLineEdit>(forms::kLubeFilm, name); }
    bool isMarked(const char* name) { return control<QRadioButton>(forms::kLubeFilm, name).isChecked(); }
    bool showsResults() { return control<QGroupBox>(forms::kLubeFilm, "Frame5").isVisible(); }
    void press(const char* name) { click(forms::kLubeFilm, name); }
    void enter(const char* gravity, const char* viscosity, const char* unit) {
        type(forms::kLubeFilm, "Text1", gravity);
        type(forms::kLubeFilm, "Text2", viscosity);
        if (*unit != '\0') press(unit);
        press("Command2");
    }
    /// What the lubricant gives for the solve in hand.
    plain::Film plainFilm(double gravity, double viscosity, bool ssu) const {
        plain::FilmInput in;
        in.ballDiameter = state.bearing.ballDiameter;
        in.pitchDiameter = state.bearing.pitchDiameter;
        in.angle = state.bearing.contactAngle;
        in.load = state.solver.MaxBallLoad;
        in.speed = state.loads.speed;
        in.gravity = gravity;
        in.viscosity = viscosity;
        in.ssu = ssu;
        return plain::film(in);
    }
};

QString fixed(double value, int places) {
    return QString::number(value, 'f', places);
}

/// As "0.00E+00" writes it.
QString scientific(double value) {
    return QString::number(value, 'E', 2);
}

class Form27Test : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kLubeFilm, {kContactRows, contactScenes()}), QStringList());
    }

    void opensWithTheBearingAndWithoutResults() {
        Film film;
        QCOMPARE(film.inFront(), std::string(forms::kLubeFilm));
        QCOMPARE(film.screens.current()->windowTitle(),
                 QString("Lube Film Thickness Check for K19013XP0 Restricted use!"));
        QVERIFY(!film.showsResults());
        QCOMPARE(film.field("Text1").text(), QString("0.8608"));
        QCOMPARE(film.field("Text2").text(), QString());
        for (const char* const option : {"Option1", "Option2", "Option3", "Option4", "Option5", "Option6"})
            QVERIFY2(!film.isMarked(option), option);
        film.compareButton(forms::kLubeFilm, "Command1", "Return", "Return to Load Life Screen");
        film.compareButton(forms::kLubeFilm, "Command2", "Calculate", "Yes, Calculate");
    }

    void namesTheBearingInTheUnitsInForce_data() {
        QTest::addColumn<QString>("units");
        QTest::addColumn<QStringList>("lines");
        // K19013XP0: balls of 1/4 inch on 7.4803 / 2 + 7.9921 / 2 ... inches; 25.4 mm an inch.
        QTest::newRow("US") << "US"
                            << QStringList{"Ball Diameter = .250 inches", "Conformity = 53 %",
                                           "Ball Surface Finish = 2AA", "Path Surface Finish = 16AA"};
        QTest::newRow("METRIC") << "METRIC"
                                << QStringList{"Ball Diameter = 6.350 mm", "Conformity = 53 %",
                                               "Ball Surface Finish = 0.05 um",
                                               "Path Surface Finish = 0.41 um"};
    }
    void namesTheBearingInTheUnitsInForce() {
        QFETCH(QString, units);
        QFETCH(QStringList, lines);
        Film film({}, qPrintable(units));
        const double factor = units == "US" ? 1.0 : 25.4;
        const QString unit = units == "US" ? " inches" : " mm";
        QCOMPARE(film.label("Label1"), lines[0]);
        QCOMPARE(film.label("Label2"),
                 "Pitch Diameter = " + fixed(film.state.bearing.pitchDiameter * factor, 3) + unit);
        QCOMPARE(film.label("Label3"), QString("Contact Angle = 30 Degrees"));
        QCOMPARE(film.label("Label4"), lines[1]);
        QCOMPARE(film.label("Label5"), lines[2]);
        QCOMPARE(film.label("Label6"), lines[3]);
    }

    void aDensityFillsTheSpecificGravity_data() {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("gravity");
        QTest::newRow("Option3") << "Mineral Oil"
                                 << "0.9";
        QTest::newRow("Option4") << "Synthetic Hydrocarbon"
                                 << "0.92";
        QTest::newRow("Option5") << "Perfluoro-polyether oil"
                                 << "1.85";
        QTest::newRow("Option6") << "multipleaclylanated cylcopenzane oil"
                                 << "0.85";
    }
    void aDensityFillsTheSpecificGravity() {
        QFETCH(QString, caption);
        QFETCH(QString, gravity);
        Film film;
        const char* const option = QTest::currentDataTag();
        QCOMPARE(film.control<QRadioButton>(forms::kLubeFilm, option).text(), caption);
        film.press(option);
        QCOMPARE(film.field("Text1").text(), gravity);
        QVERIFY(film.isMarked(option));
        // A number of the user's own belongs to none of them.
        film.type(forms::kLubeFilm, "Text1", "1");
        QVERIFY(!film.isMarked(option));
        film.press(option);
        QCOMPARE(film.field("Text1").text(), gravity);
    }

    void computesWhatAnIndependentTranscriptionGives_data() {
        QTest::addColumn<QString>("units");
        QTest::addColumn<QString>("viscosityUnit");
        QTest::addColumn<QString>("viscosity");
        QTest::newRow("SSU") << "US"
                             << "Option1"
                             << "300";
        QTest::newRow("SSU of exactly 100") << "US"
                                            << "Option1"
                                            << "100";
        QTest::newRow("centistokes") << "US"
                                     << "Option2"
                                     << "65";
        QTest::newRow("centistokes, metric") << "METRIC"
                                             << "Option2"
                                             << "65";
    }
    void computesWhatAnIndependentTranscriptionGives() {
        QFETCH(QString, units);
        QFETCH(QString, viscosityUnit);
        QFETCH(QString, viscosity);
        Film film({}, qPrintable(units));
        film.enter("0.9", qPrintable(viscosity), qPrintable(viscosityUnit));
        QVERIFY(film.showsResults());
        const plain::Film plain = film.plainFilm(0.9, viscosity.toDouble(), viscosityUnit == "Option1");
        const bool us = units == "US";
        // 4.4482... N to the pound.
        const double load = film.state.solver.MaxBallLoad / (us ? 1.0 : double(0.2248089F));
        QCOMPARE(film.label("Label9"), "Maximum Ball Load = " + fixed(load, 3) + (us ? " lbs" : " N"));
        QCOMPARE(film.label("Label10"), QString("Inner Race Rotation Speed = 400 RPM"));
        QCOMPARE(film.label("Label11"), QString("Outer Race Rotation Speed = 0 RPM"));
        QCOMPARE(film.label("Label12"),
                 "Min. Iso Lube Film = " + scientific(plain.film * (us ? 1.0 : double(25.4F))) +
                     (us ? " inches" : " mm"));
        QCOMPARE(film.label("Label13"), "Film/Finish Ratio 'Lambda' = " + fixed(plain.lambda, 3));
        QCOMPARE(film.label("Label14"), "L10 life factor is = " + fixed(plain.factor, 2));
        QCOMPARE(film.label("Label15"),
                 "Minimum recommended viscosity is = " + fixed(plain.viscosity, 2) + " centiStokes");
        QVERIFY(!film.label("Label16").isEmpty());
        QVERIFY(film.messages.shown.empty());
    }

    void aSpeedOfZeroHasNoFilm() {
        Film film({"500", "200", "100", ""});
        film.enter("0.9", "65", "Option2");
        QCOMPARE(film.label("Label10"), QString("Inner Race Rotation Speed = 0 RPM"));
        QCOMPARE(film.label("Label12"), QString("Min. Iso Lube Film = 0.00E+00 inches"));
        QCOMPARE(film.label("Label13"), QString("Film/Finish Ratio 'Lambda' = 0.000"));
        QCOMPARE(film.label("Label14"), QString("L10 life factor is = 0.16"));
        QCOMPARE(film.label("Label16"),
                 QString("Surface smearing or deformation, accompanied by wear on the rolling surfaces"));
        // No viscosity is enough: the search ends at 20 stokes.
        QVERIFY(film.label("Label15").startsWith("Minimum recommended viscosity is = 200"));
    }

    void withNeitherUnitTheViscosityCountsAsZeroAndTheScreenSaysSo() {
        Film film;
        film.enter("0.9", "65", "");
        QVERIFY(film.showsResults());
        QCOMPARE(film.label("Label13"), QString("Film/Finish Ratio 'Lambda' = 0.000"));
        const auto& warning = film.control<QLabel>(forms::kLubeFilm, "Warning1");
        QVERIFY(warning.isVisible());
        film.press("Option2");
        film.press("Command2");
        QVERIFY(!warning.isVisible());
        QVERIFY(film.label("Label13") != "Film/Finish Ratio 'Lambda' = 0.000");
    }

    void aFaultIsToldAndTheScreenGoesOn_data() {
        QTest::addColumn<QString>("gravity");
        QTest::addColumn<QString>("viscosity");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<int>("number");
        QTest::newRow("0 SSU") << "0.9"
                               << "0"
                               << "Option1" << 11;
        QTest::newRow("no viscosity, in SSU") << "0.9"
                                              << ""
                                              << "Option1" << 11;
        QTest::newRow("a word, in SSU") << "0.9"
                                        << "thick"
                                        << "Option1" << 11;
        // 1 * 0.00226 - 1.95 / 1 is below 0.
        QTest::newRow("negative stokes") << "0.9"
                                         << "1"
                                         << "Option1" << 5;
        QTest::newRow("negative viscosity") << "0.9"
                                            << "-5"
                                            << "Option2" << 5;
        QTest::newRow("negative density") << "-1"
                                          << "65"
                                          << "Option2" << 5;
        QTest::newRow("beyond every number") << "0.9"
                                             << "1e999"
                                             << "Option2" << 6;
    }
    void aFaultIsToldAndTheScreenGoesOn() {
        QFETCH(QString, gravity);
        QFETCH(QString, viscosity);
        QFETCH(QString, unit);
        QFETCH(int, number);
        Film film;
        film.enter("0.9", "65", "Option2");
        QVERIFY(film.showsResults());
        film.enter(qPrintable(gravity), qPrintable(viscosity), qPrintable(unit));
        QCOMPARE(film.messages.shown.size(), std::size_t{1});
        QCOMPARE(film.lastMessage().title, "Run-time error '" + std::to_string(number) + "'");
        QVERIFY(film.lastMessage().prompt.ends_with("\n\nCalculate"));
        QCOMPARE(film.inFront(), std::string(forms::kLubeFilm));
        QVERIFY(!film.showsResults());
        film.enter("0.9", "65", "Option2");
        QVERIFY(film.showsResults());
        QCOMPARE(film.messages.shown.size(), std::size_t{1});
    }

    void whatIsNoNumberCountsAsZero_data() {
        QTest::addColumn<QString>("gravity");
        QTest::addColumn<QString>("viscosity");
        QTest::newRow("no density") << ""
                                    << "65";
        QTest::newRow("density in words") << "heavy"
                                          << "65";
        QTest::newRow("no viscosity") << "0.9"
                                      << "";
        QTest::newRow("viscosity in words") << "0.9"
                                            << "thick";
    }
    void whatIsNoNumberCountsAsZero() {
        QFETCH(QString, gravity);
        QFETCH(QString, viscosity);
        Film film;
        film.enter(qPrintable(gravity), qPrintable(viscosity), "Option2");
        QVERIFY(film.messages.shown.empty());
        QCOMPARE(film.label("Label13"), QString("Film/Finish Ratio 'Lambda' = 0.000"));
    }

    void resultsGoWhenWhatIsEnteredChanges() {
        Film film;
        const auto& frame = film.control<QGroupBox>(forms::kLubeFilm, "Frame5");
        const auto& window = *film.screens.current();
        const QSize size = window.size();
        film.enter("0.9", "65", "Option2");
        QVERIFY(frame.isVisible());
        film.type(forms::kLubeFilm, "Text2", "66");
        QVERIFY(!frame.isVisible());
        film.press("Command2");
        QVERIFY(frame.isVisible());
        film.press("Option1");
        QVERIFY(!frame.isVisible());
        film.press("Command2");
        film.press("Option5");
        QVERIFY(!frame.isVisible());
        QCOMPARE(window.size(), size);
    }

    void anotherOpeningKeepsTheLubricantAndHidesTheResults() {
        Film film;
        film.enter("0.9", "65", "Option2");
        film.press("Command1");
        film.open("Command6");
        QVERIFY(!film.showsResults());
        QCOMPARE(film.field("Text2").text(), QString("65"));
        QVERIFY(film.isMarked("Option2"));
    }

    void theKeyboardReachesEveryControl() {
        Film film;
        compareKeyboard(*film.screens.current());
    }

    void comingBackLeavesTheLifeAsItWas() {
        Film film;
        film.enter("0.9", "65", "Option2");
        film.compareComingBack([&] { film.press("Command1"); });
        film.open("Command6");
        film.compareComingBack([&] { film.screens.current()->close(); });
    }

    void enterCalculates() {
        Film film;
        film.type(forms::kLubeFilm, "Text2", "65");
        film.press("Option2");
        QTest::keyClick(&film.field("Text2"), Qt::Key_Return);
        QVERIFY(film.showsResults());
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::Form27Test)
#include "Form27Test.moc"
