#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <cmath>

#include "deflection/DeflectionTexts.h"
#include "screens/GraphPicture.h"
#include "screens/Program.h"
#include "screens/Theme.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/DeflectionControls.h"
#include "support/DeflectionCases.h"

namespace norlaplan::testing {
namespace {

/// The deflection screen of a bearing, opened from the main menu.
struct Deflection : Program {
    explicit Deflection(const char* number = "K19013BP0T", const char* system = "US") {
        useUnits(system);
        enterNumber(number);
        click(forms::kMainMenu, "Command12");
    }
    void calculate(const char* preload) {
        type(forms::kDeflection, "Text3", preload);
        click(forms::kDeflection, "Command3");
    }
    QLineEdit& field(const char* name) { return control<QLineEdit>(forms::kDeflection, name); }
    QString shown(const char* name) { return field(name).text(); }
    GraphPicture& picture(const char* name) { return control<GraphPicture>(forms::kDeflection, name); }
    QComboBox& list(const char* name) { return control<QComboBox>(forms::kDeflection, name); }
    QString unit(const char* name) {
        return control<QLabel>(forms::kDeflection, qPrintable(QString(name) + "Unit")).text();
    }
    bool isShown(const char* name) { return control<QWidget>(forms::kDeflection, name).isVisible(); }
    /// What the calculation of the shipped catalogue gives with the proposed maxima.
    DeflectionTexts afresh(const char* number, double preload) {
        const BearingSpec bearing = bearingOf(number);
        return deflectionTexts(deflectionOf(bearing, usualInput(bearing, preload)), initialUnits());
    }
};

const char* const kRates[] = {"Text8", "Text9", "Text10", "Text11", "Text12", "Text13"};

/// How many pixels have about that colour.
int pixelsLike(const QImage& picture, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            const int off = std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                            std::abs(pixel.blue() - colour.blue());
            count += off < 120 ? 1 : 0;
        }
    }
    return count;
}

const QColor kRedPen(255, 0, 0), kGreenPen(0, 128, 0);

QImage imageOf(QWidget& widget) {
    QApplication::processEvents();
    return widget.grab().toImage();
}

class Form24Test : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { theme::apply(); }

    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kDeflection, {kDeflectionRows, deflectionScenes()}),
                 QStringList());
    }

    void opensFromTheMainMenuWithItsCaptionsAndTips() {
        Deflection program;
        QCOMPARE(program.inFront(), std::string(forms::kDeflection));
        QCOMPARE(program.screens.form(forms::kDeflection).windowTitle(),
                 QString("Deflection due to Load for Preloaded Bearings"));
        program.compareButton(forms::kDeflection, "Command3", "&Calculate", "Create deflection graphs");
        program.compareButton(forms::kDeflection, "Command1", "&Main Menu", "Return to Main Menu");
        QCOMPARE(program.control<QAbstractButton>(forms::kDeflection, "Command2").text(), QString("&Print"));
        for (const char* const axis : {"Radial", "Axial", "Moment"}) {
            const QString name = QString(axis) == "Radial"  ? "Picture1"
                                 : QString(axis) == "Axial" ? "Picture2"
                                                            : "Picture3";
            QCOMPARE(program.picture(qPrintable(name)).toolTip(),
                     QString("Click here to view and print %1 Graph").arg(axis));
        }
    }

    void aBearingOfAnotherStyleIsRefused() {
        Program program;
        program.enterNumber("K19013AP0");
        program.click(forms::kMainMenu, "Command12");
        QCOMPARE(program.lastMessage(), (Message{"Try another Bearing type", "Bearing type A Not allowed"}));
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
    }

    void anotherSeparatorChoiceOfTheSameNumberIsAnotherBearing() {
        Program program;
        const auto decodeWith = [&](const char* option) {
            program.screens.showAlone(forms::kMainMenu);
            program.click(forms::kMainMenu, "Command8");
            program.type(forms::kPartNumber, "Text1", "K19013XZ0");
            program.click(forms::kPartNumber, option);
            QTest::keyClick(&program.control<QLineEdit>(forms::kPartNumber, "Text1"), Qt::Key_Return);
            program.screens.showAlone(forms::kMainMenu);
            program.click(forms::kMainMenu, "Command12");
        };
        const auto rate = [&] { return program.control<QLineEdit>(forms::kDeflection, "Text8").text(); };
        const auto calculate = [&] {
            program.type(forms::kDeflection, "Text3", "0.0010");
            program.click(forms::kDeflection, "Command3");
        };
        decodeWith("Option6");
        const int spacerBalls = program.state.bearing.ballCount;
        calculate();
        const QString withSpacers = rate();
        QVERIFY(!withSpacers.isEmpty());
        decodeWith("Option5");
        QVERIFY(program.state.bearing.ballCount != spacerBalls);
        QCOMPARE(rate(), QString());
        calculate();
        QVERIFY(rate() != withSpacers);
    }

    void thePreloadsTipGoesByStyleAndUnits_data() {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("system");
        QTest::addColumn<QString>("tip");
        const QString axial = "Axial preload of bearing set in ", diametral = "Diametral preload in ";
        for (const char* const pair : {"K19013BP0T", "K19013FP0T"}) {
            QTest::addRow("%s US", pair) << pair << "US" << axial + "inches";
            QTest::addRow("%s METRIC", pair) << pair << "METRIC" << axial + "millimeters";
        }
        for (const char* const single : {"K19013XP0", "K19013CP0"}) {
            QTest::addRow("%s US", single) << single << "US" << diametral + "inches";
            QTest::addRow("%s METRIC", single) << single << "METRIC" << diametral + "millimeters";
        }
    }
    void thePreloadsTipGoesByStyleAndUnits() {
        QFETCH(QString, number);
        QFETCH(QString, system);
        QFETCH(QString, tip);
        Deflection program(qPrintable(number), qPrintable(system));
        QCOMPARE(program.field("Text3").toolTip(), tip);
    }

    void theListOfPreloadsFillsTheFieldAndFollowsIt() {
        Deflection program;
        QComboBox& list = program.list("Combo2");
        QCOMPARE(list.count(), 8);
        QCOMPARE(list.itemText(0), QString("0.0000"));
        QCOMPARE(list.itemText(7), QString("0.0035"));
        list.setCurrentIndex(2);
        QCOMPARE(program.shown("Text3"), QString("0.0010"));
        program.type(forms::kDeflection, "Text3", "0.00123");
        QCOMPARE(list.currentIndex(), -1);
        program.type(forms::kDeflection, "Text3", "0.0035");
        QCOMPARE(list.currentIndex(), 7);
        // By the keyboard, as a user chooses.
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Up);
        QCOMPARE(program.shown("Text3"), QString("0.0030"));
    }

    void theListOfPreloadsIsInMillimetersInMetricUnits() {
        Deflection program("K19013BP0T", "METRIC");
        QComboBox& list = program.list("Combo2");
        QCOMPARE(list.itemText(1), QString("0.0127"));
        QCOMPARE(list.itemText(7), QString("0.0889"));
        list.setCurrentIndex(1);
        QCOMPARE(program.shown("Text3"), QString("0.0127"));
    }

    void theMaximaAreAFifthOfTheDynamicRatings() {
        for (const char* const system : {"US", "METRIC"}) {
            Deflection program("K19013XP0", system);
            const BearingSpec& bearing = program.state.bearing;
            const UnitMode& units = program.state.units;
            const auto fifth = [](double rating, double factor) {
                return QString::number(std::floor(rating * 0.2 / factor), 'f', 0);
            };
            QCOMPARE(program.shown("Text14"), fifth(bearing.dynamicRadial, units.forceFactor));
            QCOMPARE(program.shown("Text15"), fifth(bearing.dynamicThrust, units.forceFactor));
            QCOMPARE(program.shown("Text16"), fifth(bearing.dynamicMoment, units.momentFactor));
        }
    }

    void unitsStandBesideTheValues() {
        Deflection us;
        QCOMPARE(us.unit("Text3"), QString("inches"));
        QCOMPARE(us.unit("Text8"), QString("pounds/inch"));
        QCOMPARE(us.unit("Text9"), QString("pounds"));
        QCOMPARE(us.unit("Text12"), QString("inch-lbs/radian"));
        QCOMPARE(us.unit("Text13"), QString("inch-lbs."));
        Deflection metric("K19013BP0T", "METRIC");
        QCOMPARE(metric.unit("Text3"), QString("mm"));
        QCOMPARE(metric.unit("Text8"), QString("N/mm"));
        QCOMPARE(metric.unit("Text9"), QString("N"));
        QCOMPARE(metric.unit("Text12"), QString("N-m/radian"));
        QCOMPARE(metric.unit("Text13"), QString("N-m"));
    }

    void nothingShowsBeforeTheFirstCalculation() {
        Deflection program;
        for (const char* const name : kRates)
            QCOMPARE(program.shown(name), QString());
        QCOMPARE(program.list("Combo1").count(), 0);
        for (const char* const name : {"Picture1", "Picture2", "Picture3"})
            QVERIFY(!program.picture(name).isEnabled());
        QVERIFY(!program.control<QPushButton>(forms::kDeflection, "Command2").isEnabled());
    }

    void showsTheResultsOfAPair() {
        for (const char* const number : {"K19013BP0T", "K19013FP0T"}) {
            Deflection program(number);
            program.calculate("0.0010");
            const DeflectionTexts texts = program.afresh(number, 0.001);
            QCOMPARE(program.shown("Text8").toStdString(), texts.radialSpringRate);
            QCOMPARE(program.shown("Text9").toStdString(), texts.radialReliefLoad);
            QCOMPARE(program.shown("Text10").toStdString(), texts.axialSpringRate);
            QCOMPARE(program.shown("Text11").toStdString(), texts.axialReliefLoad);
            QCOMPARE(program.shown("Text12").toStdString(), texts.momentSpringRate);
            QCOMPARE(program.shown("Text13").toStdString(), texts.momentReliefLoad);
            QCOMPARE(program.shown("Text2").toStdString(), texts.radialConstant);
            QCOMPARE(program.shown("Text4").toStdString(), texts.momentConstant1);
            QCOMPARE(program.shown("Text5").toStdString(), texts.momentConstant2);
            QVERIFY(!program.isShown("Text6") && !program.isShown("Text7"));
            QVERIFY(program.messages.shown.empty());
        }
    }

    void aFourPointBearingHasItsInitialTiltAndAngleToo() {
        Deflection program("K19013XP0");
        program.state.options.deflectionOption = true;
        program.calculate("0.0005");
        QVERIFY(program.isShown("Text6") && program.isShown("Text7"));
        QCOMPARE(program.shown("Text7"), QString("30"));
        QCOMPARE(program.shown("Text6").left(6), QString("0.0000"));
        QVERIFY(program.shown("Text8").contains("E+"));
    }

    void aRadialBearingShowsNoAxialAndMomentData() {
        Deflection program("K19013CP0");
        program.calculate("0.0010");
        QCOMPARE(program.shown("Text8").toStdString(), program.afresh("K19013CP0", 0.001).radialSpringRate);
        for (const char* const name : {"Text10", "Text11", "Text12", "Text13", "Text4", "Text5", "Text6",
                                       "Text7", "Text15", "Text16", "Combo1"})
            QVERIFY2(!program.isShown(name), name);
        QVERIFY(program.picture("Picture1").isEnabled());
        for (const char* const name : {"Picture2", "Picture3"}) {
            QCOMPARE(program.picture(name).words(), QString("NO GRAPH"));
            QVERIFY(!program.picture(name).isEnabled());
        }
    }

    void theListOfAxialPointsBeginsUnloadedAndHasTheReliefLoad() {
        Deflection program;
        program.calculate("0.0010");
        QComboBox& points = program.list("Combo1");
        QCOMPARE(points.itemText(0), QString("0       30.0     0.000000"));
        QVERIFY(points.count() >= 51 && points.count() <= 55);
        const double load = *program.state.deflection.axialReliefLoad;
        const QString relief = QString::number(std::floor(load));
        bool found = false;
        for (int i = 0; i < points.count(); ++i)
            found = found || points.itemText(i).left(8).trimmed().remove(',') == relief;
        QVERIFY(found);
    }

    void withoutPreloadThereAreNoRatesAndTheCurvesAreGreen() {
        Deflection program;
        program.calculate("0");
        for (const char* const name : kRates)
            QCOMPARE(program.shown(name), QString());
        QVERIFY(!program.shown("Text2").isEmpty());
        for (const char* const name : {"Picture1", "Picture2", "Picture3"}) {
            const QImage picture = imageOf(program.picture(name));
            QVERIFY2(pixelsLike(picture, kGreenPen) > 100, name);
            QCOMPARE(pixelsLike(picture, kRedPen), 0);
        }
    }

    void withAPreloadTheCurvesAreRedUpToReliefAndGreenBeyond() {
        Deflection program;
        program.calculate("0.0005");
        for (const char* const name : {"Picture1", "Picture2", "Picture3"}) {
            const QImage picture = imageOf(program.picture(name));
            int lastRed = -1, firstGreen = picture.width();
            for (int x = 0; x < picture.width(); ++x) {
                const QImage column = picture.copy(x, 0, 1, picture.height());
                if (pixelsLike(column, kRedPen) > 0) lastRed = x;
                if (pixelsLike(column, kGreenPen) > 0) firstGreen = std::min(firstGreen, x);
            }
            QVERIFY2(lastRed > 10 && firstGreen < picture.width(), name);
            QVERIFY2(std::abs(firstGreen - lastRed) <= 3, name);
        }
    }

    void aCurveFillsItsPictureFromCornerToCorner() {
        Deflection program;
        program.calculate("0.0010");
        const QImage picture = imageOf(program.picture("Picture1"));
        const int margin = 12;
        const auto inCorner = [&](int x, int y) {
            const QImage corner = picture.copy(x, y, margin, margin);
            return pixelsLike(corner, kRedPen) + pixelsLike(corner, kGreenPen) > 0;
        };
        QVERIFY(inCorner(2, picture.height() - margin - 2));
        QVERIFY(inCorner(picture.width() - margin - 2, 2));
    }

    void enterInAFieldCalculates() {
        Deflection program;
        program.type(forms::kDeflection, "Text3", "0.001");
        QTest::keyClick(&program.field("Text3"), Qt::Key_Return);
        QVERIFY(!program.shown("Text8").isEmpty());
    }

    void theResultsSayWhatPreloadTheyAreFor() {
        Deflection program;
        program.calculate("0.0010");
        const auto sentence = [&] {
            return program.control<QLabel>(forms::kDeflection, "ResultsFor").text();
        };
        QCOMPARE(sentence(), QString("At an axial preload of 0.0010 inches"));
        // What is typed but not calculated doesn't change it.
        program.type(forms::kDeflection, "Text3", "0.0035");
        QCOMPARE(sentence(), QString("At an axial preload of 0.0010 inches"));
    }

    void theSameBearingHasTheSameStiffnessInBothUnits() {
        Deflection us, metric("K19013BP0T", "METRIC");
        us.calculate("0.0010");
        metric.calculate("0.0254");
        const auto number = [](Deflection& program, const char* name) {
            return program.shown(name).remove(',').toDouble();
        };
        // Relief loads in whole units: within half of one.
        QVERIFY(std::abs(number(us, "Text9") / 0.2248089 - number(metric, "Text9")) < 3.0);
        QVERIFY(std::abs(number(us, "Text8") / 0.2248089 / 25.4 / number(metric, "Text8") - 1.0) < 0.02);
    }

    void badEntriesAreToldOfAndKeepTheResults_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("prompt");
        QTest::newRow("text") << "Text3"
                              << "abc"
                              << "Preload input error\n\n\"abc\" is not a number.";
        QTest::newRow("empty") << "Text3"
                               << ""
                               << "Preload input error\n\nPlease enter a number.";
        QTest::newRow("negative") << "Text3"
                                  << "-0.001"
                                  << "Preload input error\n\nA preload can't be below 0.";
        for (const auto& [field, name] :
             {std::pair{"Text14", "Radial"}, {"Text15", "Axial"}, {"Text16", "Moment"}})
            QTest::newRow(name)
                << field << "0"
                << QString("Max %1 Load input error\n\nThe end of a curve must be above 0.").arg(name);
    }
    void badEntriesAreToldOfAndKeepTheResults() {
        QFETCH(QString, field);
        QFETCH(QString, entered);
        QFETCH(QString, prompt);
        Deflection program;
        program.calculate("0.0010");
        const QString rate = program.shown("Text8");
        program.field(qPrintable(field)).setText(entered);
        program.click(forms::kDeflection, "Command3");
        QCOMPARE(program.lastMessage().title, std::string("Please correct entry"));
        QCOMPARE(QString::fromStdString(program.lastMessage().prompt), prompt);
        QCOMPARE(program.shown("Text8"), rate);
        QCOMPARE(program.inFront(), std::string(forms::kDeflection));
        QCOMPARE(program.screens.current()->focusWidget(), &program.field(qPrintable(field)));
    }

    void aPreloadFarBeyondTheBearingEndsWithAMessageAndTheScreenGoesOn_data() {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("preload");
        for (const char* const number : {"K19013XP0", "K19013CP0"}) {
            for (const char* const preload : {"0.5", "10", "1e300"})
                QTest::addRow("%s %s", number, preload) << number << preload;
        }
        // Of these the program tries for ten seconds before it asks.
        QTest::newRow("back to back") << "K19013BP0T"
                                      << "10";
        QTest::newRow("face to face") << "K19013FP0T"
                                      << "1e300";
        QTest::newRow("tiny") << "K19013XP0"
                              << "1e-6";
    }
    void aPreloadFarBeyondTheBearingEndsWithAMessageAndTheScreenGoesOn() {
        QFETCH(QString, number);
        QFETCH(QString, preload);
        Deflection program(qPrintable(number));
        program.calculate("0.0010");
        program.messages.shown.clear();
        program.field("Text3").setText(preload);
        program.click(forms::kDeflection, "Command3");
        if (program.messages.shown.empty()) {
            // Whatever it is, it is an answer.
            QVERIFY(!program.shown("Text8").isEmpty());
        } else {
            QVERIFY(program.shown("Text8").isEmpty());
            QVERIFY(!program.picture("Picture1").isEnabled());
        }
        QCOMPARE(program.inFront(), std::string(forms::kDeflection));
        program.messages.shown.clear();
        program.calculate("0.0010");
        QVERIFY(program.messages.shown.empty());
        QVERIFY(!program.shown("Text8").isEmpty());
        QVERIFY(program.picture("Picture1").isEnabled());
    }

    void printsThePageOfConstants() {
        Deflection program;
        program.calculate("0.0010");
        program.click(forms::kDeflection, "Command2");
        QCOMPARE(program.printer.documents, std::vector<std::string>{"Deflection constants for K19013BP0T"});
        QVERIFY(program.printer.papers[0] == papers::kLetter);
        QVERIFY(program.printer.canvas.hasText("DEFLECTION CONSTANTS FOR : "));
        QVERIFY(program.printer.canvas.hasText("Axial Preload level set at 0.001000 inches"));
        QVERIFY(program.printer.canvas.hasText(program.shown("Text8").toStdString()));
    }

    void keepsWhatWasEnteredAndFoundWhenItIsOpenedAgain() {
        Deflection program;
        program.calculate("0.0015");
        const QString rate = program.shown("Text8");
        program.click(forms::kDeflection, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        program.click(forms::kMainMenu, "Command12");
        QCOMPARE(program.shown("Text3"), QString("0.0015"));
        QCOMPARE(program.shown("Text8"), rate);
    }

    void anotherBearingBeginsAnew() {
        Deflection program;
        program.calculate("0.0015");
        program.enterNumber("K19013XP0");
        program.click(forms::kMainMenu, "Command12");
        QCOMPARE(program.shown("Text3"), QString("0.0000"));
        QCOMPARE(program.shown("Text8"), QString());
        QVERIFY(!program.picture("Picture1").isEnabled());
        QCOMPARE(program.control<QGroupBox>(forms::kDeflection, "Frame1").title(),
                 QString("PRELOAD AND MAXIMUM LOADS OF K19013XP0"));
    }

    void withoutTheOptionTheConstantsLieBeneathTheWindow() {
        const auto heightWith = [](bool option) {
            Program program;
            program.state.options.deflectionOption = option;
            program.enterNumber("K19013BP0T");
            program.click(forms::kMainMenu, "Command12");
            Form& form = program.screens.form(forms::kDeflection);
            form.prepareToShow(QRect(0, 0, 1600, 1200));
            return form.height();
        };
        Deflection program;
        const int constants = program.control<QWidget>(forms::kDeflection, "Frame4").sizeHint().height();
        QCOMPARE(heightWith(true) - heightWith(false), constants);
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::Form24Test)
#include "Form24Test.moc"
