#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <cstdio>

#include "screens/GraphScreen.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/FitsControls.h"
#include "support/DiskTroubles.h"
#include "support/PlainFits.h"

namespace norlaplan::testing {
namespace {

struct FitsScreen : GraphScreen {
    explicit FitsScreen(const char* units = "US") : GraphScreen("Form31", "Command19") {
        useUnits(units);
        state.options.tempFitsOption = true;
    }

    QString field(const char* name) { return control<QLineEdit>("Form31", name).text(); }
    /// Puts any text into a field, as pasting does.
    void put(const char* name, const char* text) {
        QLineEdit& edit = control<QLineEdit>("Form31", name);
        edit.selectAll();
        edit.insert(text);
    }
    void enter(const char* high, const char* low, const char* shaft, const char* housing) {
        put("Text1", high);
        put("Text2", low);
        put("Text3", shaft);
        put("Text4", housing);
    }
    QComboBox& list(const char* name) { return control<QComboBox>("Form31", name); }
    QString text(const char* name) { return label(name).text(); }
    void calculate() { press("Command1"); }
    /// The two lines for sizes and tolerance in inches.
    void compareLines(const PlainFits& plain) {
        const double factor = state.unitSystem == "METRIC" ? static_cast<double>(25.4F) : 1.0;
        char shaft[80], housing[80];
        std::snprintf(shaft, sizeof shaft, "Shaft size %.7f + 0.0000, 0.0000",
                      static_cast<double>(plain.shaftSize) * factor);
        std::snprintf(housing, sizeof housing, "Housing size %.7f +%.4f -0.0000",
                      static_cast<double>(plain.housingSize) * factor,
                      -static_cast<double>(state.bearing.odTolerance) * factor);
        QCOMPARE(text("Label10"), QString(shaft));
        QCOMPARE(text("Label11"), QString(housing));
    }
};

constexpr const char* kUsesClearance =
    "Shaft and Housing sizes set so that at temperature limits, maximum interference will equal the minimum "
    "clearance in the bearing(s)";
constexpr const char* kNoInterference =
    "Shaft and Housing sizes set so that at temperature limits, there will be no interfernece with the "
    "bearing bore or outer diameter";

/// The thermal fits screen by the controls that a user works with.
class Form31Test : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kThermalFits, {kFitsRows, fitsScenes()}), QStringList());
    }

    void itsButtonShowsWithItsOptionOnly() {
        FitsScreen screen;
        screen.state.options.tempFitsOption = false;
        screen.screens.showAlone(forms::kMainMenu);
        QVERIFY(!screen.control<QWidget>("Form3", "Command19").isVisible());
        screen.state.options.tempFitsOption = true;
        screen.enterNumber("K19013XP0");
        QVERIFY(screen.control<QWidget>("Form3", "Command19").isVisible());
    }

    void withoutABearingTheMenuAsksForOne() {
        FitsScreen screen;
        screen.screens.showAlone(forms::kMainMenu);
        screen.click("Form3", "Command19");
        QCOMPARE(screen.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(screen.lastMessage().title, std::string("Missing bearing data"));
        QCOMPARE(screen.lastMessage().prompt, std::string("Please select a bearing first"));
    }

    void itCalculatesForEveryStyleAndFit_data() {
        QTest::addColumn<QString>("units");
        QTest::newRow("US") << "US";
        QTest::newRow("metric") << "METRIC";
    }
    void itCalculatesForEveryStyleAndFit() {
        QFETCH(QString, units);
        FitsScreen screen(qPrintable(units));
        const bool metric = units == "METRIC";
        auto numbers = numbersOf({"X", "C", "F", "B"});
        numbers.insert(numbers.end(), {"K19013AP0", "K19013UP0", "K19013TP0"});
        for (const std::string& number : numbers) {
            screen.messages.shown.clear();
            screen.openFor(number);
            QCOMPARE(screen.inFront(), std::string("Form31"));
            // 212 and 32 degrees Fahrenheit; 1.3E-05 per degree Fahrenheit.
            if (metric)
                screen.enter("100", "0", "2.34E-05", "9.54E-06");
            else
                screen.enter("212", "32", "1.30E-05", "5.30E-06");
            screen.calculate();
            if (screen.state.bearing.fitLetter == "Z") {
                QCOMPARE(screen.lastMessage(), (Message{"Fitup information is required for this option",
                                                        "Cannot Calculate with 'Z' Fitup", Icon::Critical}));
                QCOMPARE(screen.text("Label10"), QString());
                continue;
            }
            QVERIFY2(screen.messages.shown.empty(), number.c_str());
            const float shaft = static_cast<float>(metric ? 2.34e-5 / 1.8 : 1.3e-5);
            const float housing = static_cast<float>(metric ? 9.54e-6 / 1.8 : 5.3e-6);
            const PlainFits plain = plainFits(screen.state.bearing, 212.0F, 32.0F, shaft, housing);
            screen.compareLines(plain);
            QCOMPARE(screen.text("Label12"),
                     QString(plain.clearance > 0.0 ? kUsesClearance : kNoInterference));
        }
    }

    void captionsAndTipsAreTheStatedOnes() {
        FitsScreen screen;
        QCOMPARE(screen.screens.form("Form31").windowTitle(), QString("Modified Fitups"));
        screen.compareButton("Form31", "Command1", "Calculate", "Perform Calculation");
        screen.compareButton("Form31", "Command2", "&Main Menu", "Return to Main Menu");
        screen.compareButton("Form31", "Command3", "Print", "Print Results of Calculations");
        screen.compareButton("Form31", "Command4", "Save", "Save Results to file");
        for (const auto& [frame, caption] :
             {std::pair{"Frame1", "Temperature Extremes"},
              {"Frame2", "Shaft Data"},
              {"Frame3", "Housing Data"},
              {"Frame4", "Suggested Shaft and Housing Sizes at Room Temperature"},
              {"Frame5", "Comments"},
              {"Frame6", "Legend"}})
            QCOMPARE(screen.control<QGroupBox>("Form31", frame).title(), QString(caption));
        QCOMPARE(screen.text("Label1"), QString("High Temperature"));
        QCOMPARE(screen.text("Label3"), QString("Low Temperature"));
        QCOMPARE(screen.text("Label20"), QString("Temperature increasing to the right"));
        const char* const lines[] = {"Bearing bore", "High Temp", "Low Temp",  "Room Temp",
                                     "Shaft",        "Housing",   "Bearing OD"};
        for (int i = 0; i < 7; ++i)
            QCOMPARE(screen.text(("Label" + std::to_string(13 + i)).c_str()), QString(lines[i]));
    }

    void itBeginsAtRoomTemperatureWithTheFirstMaterial_data() {
        QTest::addColumn<QString>("units");
        QTest::addColumn<QString>("temperature");
        QTest::addColumn<QString>("degrees");
        QTest::addColumn<QString>("coefficient");
        QTest::addColumn<QString>("perDegree");
        QTest::newRow("US") << "US"
                            << "68"
                            << "°F."
                            << "7.00E-06"
                            << "in/in/°F.";
        QTest::newRow("metric") << "METRIC"
                                << "20"
                                << "°C."
                                << "1.26E-05"
                                << "m/m/°C.";
    }
    void itBeginsAtRoomTemperatureWithTheFirstMaterial() {
        QFETCH(QString, units);
        QFETCH(QString, temperature);
        QFETCH(QString, degrees);
        QFETCH(QString, coefficient);
        QFETCH(QString, perDegree);
        FitsScreen screen(qPrintable(units));
        screen.openFor("K19013XP0");
        for (const char* const name : {"Text1", "Text2"})
            QCOMPARE(screen.field(name), temperature);
        for (const char* const name : {"Label2", "Label4"})
            QCOMPARE(screen.text(name), degrees);
        for (const char* const name : {"Text3", "Text4"})
            QCOMPARE(screen.field(name), coefficient);
        for (const char* const name : {"Label6", "Label9"})
            QCOMPARE(screen.text(name), perDegree);
        for (const char* const name : {"Combo1", "Combo2"})
            QCOMPARE(screen.list(name).currentText(), QString("52100 Steel"));
        for (const char* const name : {"Label10", "Label11", "Label12"})
            QCOMPARE(screen.text(name), QString());
    }

    void aMaterialFillsInItsCoefficient_data() {
        QTest::addColumn<QString>("units");
        QTest::addColumn<QStringList>("coefficients");
        QTest::newRow("US") << "US"
                            << QStringList{"7.00E-06", "5.60E-06", "1.30E-05", "1.31E-05", "5.30E-06", ""};
        QTest::newRow("metric") << "METRIC" << QStringList{"1.26E-05", "1.01E-05", "2.34E-05",
                                                           "2.36E-05", "9.54E-06", ""};
    }
    void aMaterialFillsInItsCoefficient() {
        QFETCH(QString, units);
        QFETCH(QStringList, coefficients);
        const QStringList materials = {"52100 Steel",   "440C steel", "6061 Aluminum",
                                       "7075 Aluminum", "Ti6Al4V",    "Other"};
        FitsScreen screen(qPrintable(units));
        screen.openFor("K19013XP0");
        for (const auto& [list, field] : {std::pair{"Combo1", "Text3"}, {"Combo2", "Text4"}}) {
            QCOMPARE(screen.list(list).count(), 6);
            // From the last row to the first, so that each is a change.
            for (int row = 5; row >= 0; --row) {
                screen.list(list).setCurrentIndex(row);
                QCOMPARE(screen.list(list).currentText(), materials[row]);
                QCOMPARE(screen.field(field), coefficients[row]);
            }
        }
    }

    void aCoefficientThatIsTypedIsOfAnotherMaterial() {
        FitsScreen screen;
        screen.openFor("K19013XP0");
        screen.type("Form31", "Text3", "9e-6");
        QCOMPARE(screen.list("Combo1").currentText(), QString("Other"));
        QCOMPARE(screen.field("Text3"), QString("9e-6"));
        QCOMPARE(screen.list("Combo2").currentText(), QString("52100 Steel"));
    }

    void temperaturesTheWrongWayRoundChangePlaces() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        screen.enter("-40", "180", "1.3e-5", "7e-6");
        screen.calculate();
        QCOMPARE(screen.field("Text1"), QString("180"));
        QCOMPARE(screen.field("Text2"), QString("-40"));
        screen.compareLines(plainFits(screen.state.bearing, 180.0F, -40.0F, 1.3e-5F, 7e-6F));
    }

    void textIsReadAsTheNumberAtItsStartAndAnEmptyFieldAsNothing() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        screen.enter("150 degrees", "", "1e-5 or so", "steel");
        screen.calculate();
        QVERIFY(screen.messages.shown.empty());
        screen.compareLines(plainFits(screen.state.bearing, 150.0F, 0.0F, 1e-5F, 0.0F));
        QCOMPARE(screen.field("Text1"), QString("150 degrees"));
    }

    void anExpansionThatLeavesNothingIsAFaultAndTheResultsStay() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        screen.enter("168", "-40", "7e-6", "7e-6");
        screen.calculate();
        const QString before = screen.text("Label10");
        QVERIFY(before.startsWith("Shaft size 7."));
        // 128 degrees above room temperature at minus one in 128: the housing is gone.
        screen.enter("196", "196", "7e-6", "-0.0078125");
        screen.calculate();
        QVERIFY(screen.lastMessage().prompt.starts_with("Division by zero"));
        QCOMPARE(screen.text("Label10"), before);
        QCOMPARE(screen.inFront(), std::string("Form31"));
    }

    void numbersBeyondAllFieldsAreAFaultAndTheResultsStay() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        screen.calculate();
        const QString before = screen.text("Label11");
        screen.put("Text1", "1e39");
        screen.calculate();
        QVERIFY(screen.lastMessage().prompt.starts_with("Overflow"));
        QCOMPARE(screen.text("Label11"), before);
        QCOMPARE(screen.field("Text1"), QString("1e39"));
    }

    void theDrawingHasItsLinesWhereTheTemperaturesAre() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        screen.enter("200", "0", "7e-6", "7e-6");
        screen.calculate();
        // From 0 - 200 / 4 to 200 / 4 + 200: 300 degrees across.
        const QImage image = screen.seen();
        const auto colourAt = [&](double degrees) {
            const QPoint middle = screen.pixelOf(8.5 * (degrees + 50.0) / 300.0, 1.0);
            // The line is two pixels wide or so; the purest of its neighbourhood is its colour.
            QColor purest = image.pixelColor(middle);
            for (int dx = -2; dx <= 2; ++dx) {
                const QColor near = image.pixelColor(middle + QPoint(dx, 0));
                if (near.hsvSaturation() > purest.hsvSaturation()) purest = near;
            }
            return purest;
        };
        QVERIFY(FitsScreen::isBright(colourAt(0.0), 240));
        QVERIFY(FitsScreen::isBright(colourAt(200.0), 0));
        QVERIFY(FitsScreen::isBright(colourAt(68.0), 120));
        QVERIFY(colourAt(100.0).hsvSaturation() < 70);
    }

    void eachLineOfTheLegendIsDrawnInItsColour() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        const QRgb colours[] = {qRgb(0, 0, 0),     qRgb(255, 0, 0),   qRgb(0, 0, 255),    qRgb(0, 255, 0),
                                qRgb(255, 0, 255), qRgb(0, 255, 255), qRgb(255, 255, 225)};
        for (int i = 0; i < 7; ++i)
            QVERIFY2(screen.pixelsOf(colours[i], ("Line" + std::to_string(i + 1)).c_str()) > 20,
                     std::to_string(i).c_str());
    }

    void temperaturesWithoutARangeHaveSizesButNoDrawing() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        screen.enter("200", "0", "7e-6", "7e-6");
        screen.calculate();
        QVERIFY(screen.pixelsOfHue(240) > 50);
        // At 0 degrees the picture has no width at all.
        screen.enter("0", "0", "7e-6", "7e-6");
        screen.calculate();
        QVERIFY(screen.lastMessage().prompt.starts_with("Division by zero"));
        screen.compareLines(plainFits(screen.state.bearing, 0.0F, 0.0F, 7e-6F, 7e-6F));
        QCOMPARE(screen.pixelsOfHue(240), 0);
        // It opens again all the same.
        screen.messages.shown.clear();
        screen.openFor("K19013XP0E");
        QCOMPARE(screen.inFront(), std::string("Form31"));
        QVERIFY(screen.messages.shown.empty());
    }

    void theLastResultsStandWhenItIsOpenedAgain() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        screen.enter("250", "-65", "1.3e-5", "7e-6");
        screen.calculate();
        const QString shaft = screen.text("Label10");
        screen.press("Command2");
        QCOMPARE(screen.inFront(), std::string(forms::kMainMenu));
        screen.click("Form3", "Command19");
        QCOMPARE(screen.text("Label10"), shaft);
        QCOMPARE(screen.field("Text1"), QString("250"));
        QVERIFY(screen.pixelsOfHue(240) > 50);
    }

    void anotherBearingKeepsTheEntriesButNotTheResults() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        screen.enter("250", "-65", "1.3e-5", "7e-6");
        screen.calculate();
        screen.openFor("K10013XP0E");
        QCOMPARE(screen.text("Label10"), QString());
        QCOMPARE(screen.text("Label12"), QString());
        QCOMPARE(screen.pixelsOfHue(240), 0);
        QCOMPARE(screen.field("Text1"), QString("250"));
        QCOMPARE(screen.field("Text3"), QString("1.3e-5"));
    }

    void otherUnitsBeginAnew() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        screen.list("Combo2").setCurrentIndex(3);
        screen.enter("250", "-65", "1.3e-5", "7e-6");
        screen.calculate();
        screen.useUnits("METRIC");
        screen.openFor("K19013XP0E");
        QCOMPARE(screen.field("Text1"), QString("20"));
        QCOMPARE(screen.field("Text4"), QString("1.26E-05"));
        QCOMPARE(screen.list("Combo2").currentIndex(), 0);
        QCOMPARE(screen.text("Label10"), QString());
    }

    void enterGoesThroughTheFieldsToCalculate() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        const char* const order[] = {"Text1", "Text2", "Text3", "Text4", "Command1"};
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(QApplication::focusWidget()->objectName(), QString(order[i]));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        }
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("Command1"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(screen.text("Label10").startsWith("Shaft size "));
    }

    void itPrintsWhatStandsInTheFields() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        screen.enter("200", "0", "1.3e-5", "7e-6");
        screen.calculate();
        screen.put("Text1", "250");
        screen.press("Command3");
        QCOMPARE(screen.printer.documents, std::vector<std::string>{"Thermal fits of K19013XP0E"});
        const PlainFits plain = plainFits(screen.state.bearing, 250.0F, 0.0F, 1.3e-5F, 7e-6F);
        screen.compareLines(plain);
        char shaft[80];
        std::snprintf(shaft, sizeof shaft, "Shaft size =   %.4f + 0.0000 / 0.0000 inches",
                      static_cast<double>(plain.shaftSize));
        QVERIFY2(screen.printed(shaft), shaft);
        for (const char* const text :
             {"RESULTS OF THERMAL FITUP CALCULATION FOR : ", "K19013XP0E", "Minimum Temperature =", "0 °F.",
              "250 °F.", "1.30E-05 in/in/°F.", "Suggested shaft and housing sizes", "Notes:",
              "Shaft and Housing sizes set so that at temperature limits, maximum interference will equal "
              "the "
              "minimum",
              "clearance in the bearing(s)."})
            QVERIFY2(screen.printed(text), text);
    }

    void unspecifiedFitsAreNeitherPrintedNorSaved() {
        FitsScreen screen;
        screen.openFor("K19013XP0Z");
        for (const char* const button : {"Command3", "Command4"}) {
            screen.messages.shown.clear();
            screen.press(button);
            QCOMPARE(screen.lastMessage().prompt, std::string("Cannot Calculate with 'Z' Fitup"));
        }
        QVERIFY(screen.printer.documents.empty());
        QVERIFY(screen.saveDialog.requests.empty());
    }

    void itSavesAsRichText() {
        FitsScreen screen("METRIC");
        screen.openFor("K19013XP0R");
        screen.saveTo("fits.rtf", 1);
        screen.press("Command4");
        const SaveRequest& request = screen.saveDialog.requests.front();
        QCOMPARE(request.name, std::string("K19013XP0R-tempfit.rtf"));
        QCOMPARE(request.folder, screen.files.path() / "save");
        QCOMPARE(request.filters[0].label + "|" + request.filters[0].pattern,
                 std::string("Rich Text Files (*.rtf)|*.rtf"));
        const std::string rtf = screen.saved("fits.rtf");
        for (const char* const text :
             {"{\\fs28\\cf1\\b RESULTS OF THERMAL FITUP CALCULATION FOR : ", "{\\fs24\\cf1 Bore = \\tab ",
              "{\\par\\fs24\\cf2 Housing size = ", "1.26E-05 m/m/", "        Saved  3/14/26 9:26 AM"})
            QVERIFY2(rtf.find(text) != std::string::npos, text);
        QCOMPARE(screen.state.lastSavedFile, (screen.files.path() / "fits.rtf").string());
    }

    void aFolderThatTakesNoFilesIsToldAndNothingIsLeftThere() {
        FitsScreen screen;
        screen.openFor("K19013XP0E");
        std::filesystem::create_directory(screen.files.path() / "locked");
        screen.saveTo("locked/fits.rtf", 1);
        {
            const ReadOnlyFolder trouble(screen.files.path() / "locked");
            screen.press("Command4");
        }
        QVERIFY(screen.lastMessage().prompt.starts_with("Permission denied"));
        QVERIFY(std::filesystem::is_empty(screen.files.path() / "locked"));
        QCOMPARE(screen.state.lastSavedFile, std::string());
        // The results are still there.
        QVERIFY(screen.text("Label10").startsWith("Shaft size "));
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::Form31Test)
#include "Form31Test.moc"
