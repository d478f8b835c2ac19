#include <QGroupBox>
#include <QLocale>
#include <QRadioButton>
#include <QRubberBand>
#include <QWheelEvent>

#include "screens/ContactView.h"
#include "screens/SolvedBearing.h"
#include "screens/controls/ContactControls.h"
#include "screens/controls/ControlsOfAForm.h"

namespace norlaplan::testing {
namespace {

constexpr const char* kForm = "form30";
const QColor kGroove(0, 0, 0), kRing(0, 128, 0), kEllipse(0, 0, 128);

bool hasDrawn(const QImage& image, QPointF place, QColor colour, int reach = 1) {
    return hasInk(image, place, colour, Qt::white, reach);
}

/// The contact stress screen of a solved bearing.
struct Stress : SolvedBearing {
    explicit Stress(const char* number = "K19013XP0", const TypedLoads& loads = {}, const char* units = "US")
        : SolvedBearing(number, loads, units) {
        open("Command7");
    }
    QString label(int number) {
        return control<QLabel>(kForm, qPrintable(QString("Label%1").arg(number))).text();
    }
    QGroupBox& frame(const char* name) { return control<QGroupBox>(kForm, name); }
    QRadioButton& option(const char* name) { return control<QRadioButton>(kForm, name); }
    ContactView& picture() { return control<ContactView>(kForm, "Picture1"); }
    QImage image() { return imageOf(picture()); }
    QImage inside() { return insideOf(picture()); }
    void press(Qt::Key key) { QTest::keyClick(&picture(), key); }

    int heaviest(int row) const {
        int ball = 1;
        double most = 0.0;
        for (int i = 1; i <= solver().BallCount; ++i) {
            if (solver().BallLoad(row, i) > most) most = solver().BallLoad(row, ball = i);
        }
        return ball;
    }
    double D() const { return state.bearing.ballDiameter; }
    double shoulder() const { return state.bearing.referenceDiameter1 / 2.0; }
    /// A place of the section in pixels of the area that is shown: in its middle, y upward.
    QPointF pixel(double x, double y) { return pixel(x, y, picture().area()); }
    QPointF pixel(double x, double y, const DrawingArea& area) {
        const double scale = std::min(picture().width() / area.width, picture().height() / -area.height);
        return {picture().width() / 2.0 + (x - area.left - area.width / 2.0) * scale,
                picture().height() / 2.0 - (y - area.top - area.height / 2.0) * scale};
    }
    /// On the upper groove, `angle` radians up from the middle plane's side.
    QPointF onGroove(double angle) {
        const double r = state.bearing.raceRadius;
        const double offset = r - D() / 2.0;
        const double a = state.bearing.contactAngle;
        const double cx = offset * std::cos(a) + state.bearing.pitchDiameter / 2.0;
        return pixel(cx - r * std::cos(angle), -offset * std::sin(a) + r * std::sin(angle));
    }
    double ballAngle(int row) const {
        return QString::fromStdString(solver().BallAngleText(row, heaviest(row))).toDouble() * M_PI / 180.0;
    }
    void clearRow(int row) {
        for (int i = 1; i <= solver().BallCount; ++i)
            state.solver.BallLoad(row, i) = 0.0;
    }
    void drag(QPoint from, QPoint to) {
        QTest::mousePress(&picture(), Qt::LeftButton, {}, from);
        QTest::mouseMove(&picture(), to);
        QTest::mouseRelease(&picture(), Qt::LeftButton, {}, to);
    }
};

void compareAreas(const DrawingArea& area, double left, double top, double width, double height) {
    QVERIFY2(std::abs(area.left - left) < 1e-6, qPrintable(QString("left %1").arg(area.left)));
    QVERIFY2(std::abs(area.top - top) < 1e-6, qPrintable(QString("top %1").arg(area.top)));
    QVERIFY2(std::abs(area.width - width) < 1e-6, qPrintable(QString("width %1").arg(area.width)));
    QVERIFY2(std::abs(area.height - height) < 1e-6, qPrintable(QString("height %1").arg(area.height)));
}

/// With thousands grouped, as "#,###.0" and "###,###" write a number above 1.
QString grouped(double value, int places) {
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(value, 'f', places);
}

class form30Test : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kContactStress, {kContactRows, contactScenes()}), QStringList());
    }

    void saysWhatItIs() {
        Stress stress;
        QCOMPARE(stress.inFront(), std::string(kForm));
        QCOMPARE(stress.screens.current()->windowTitle(), QString("Compressive Stress for K19013XP0"));
        stress.compareButton(kForm, "Command1", "Redraw", "Refresh screen after data changes");
        stress.compareButton(kForm, "Command2", "Return", "Return to Load Life Screen");
        QCOMPARE(stress.option("Option1").toolTip(), QString("Display row 1"));
        QCOMPARE(stress.option("Option2").toolTip(), QString("Display row 2"));
        QStringList instructions;
        for (const QLabel* const line : stress.frame("Frame3").findChildren<QLabel*>())
            instructions << line->text();
        QCOMPARE(instructions, (QStringList{"Use Up and Down Arrow to move diagram",
                                            "Use Left and Right Arrow to move diagram",
                                            "Use 'Page-Up' and 'Page Down' to Enlarge or Shrink diagram"}));
        QCOMPARE(stress.label(16), QString("Simulated Display of heaviest loaded ball for chosen row"));
        for (const char* const name : {"Text1", "Text2", "Text3", "Text4"})
            QVERIFY(stress.control<QLineEdit>(kForm, name).isVisible());
    }

    void tellsBothRowsInPoundsAndInches_data() {
        QTest::addColumn<QString>("units");
        QTest::newRow("US") << "US";
        QTest::newRow("METRIC") << "METRIC";
    }
    void tellsBothRowsInPoundsAndInches() {
        QFETCH(QString, units);
        Stress stress("K19013XP0", {}, qPrintable(units));
        for (const int row : {1, 2}) {
            const int ball = stress.heaviest(row);
            const SolverState& solver = stress.solver();
            const int first = row == 1 ? 1 : 6;
            const double angle = QString::fromStdString(solver.BallAngleText(row, ball)).toDouble();
            QVERIFY(solver.BallLoad(row, ball) > 1.0);
            QCOMPARE(stress.label(first),
                     "Max. Ball Load = " + grouped(solver.BallLoad(row, ball), 1) + " lbs.");
            QCOMPARE(stress.label(first + 1),
                     "Maximum Avg. Stress = " + grouped(solver.InnerStress(row, ball), 0) + " psi");
            QCOMPARE(stress.label(first + 2),
                     "Ellipse Major Axis = " +
                         QString::number(2.0 * solver.InnerSemiMajor(row, ball), 'f', 4) + " in.");
            QCOMPARE(stress.label(first + 3),
                     "Ellipse Minor Axis = " +
                         QString::number(2.0 * solver.InnerSemiMinor(row, ball), 'f', 4) + " in.");
            QCOMPARE(stress.label(first + 4), "Contact Angle = " + QString::number(angle, 'f', 2) + "°");
        }
    }

    void showsTheChosenRowInBlueOnWhite() {
        Stress stress;
        QVERIFY(stress.option("Option1").isChecked());
        const auto compare = [&](const char* chosen, const char* other) {
            const QImage shown = imageOf(stress.frame(chosen));
            QVERIFY(shown.pixelColor(shown.width() - 20, shown.height() / 2).lightness() > 250);
            bool blue = false;
            for (int x = 0; x < shown.width(); ++x)
                blue = blue || hasDrawn(shown, QPointF(x, shown.height() / 2.0), Qt::blue, 6);
            QVERIFY(blue);
            const QImage quiet = imageOf(stress.frame(other));
            QVERIFY(quiet.pixelColor(quiet.width() - 20, quiet.height() / 2).lightness() < 250);
            QCOMPARE(stress.frame(chosen).title(),
                     QString("Contact Stress Row %1 Displayed").arg(QString(chosen).back()));
            QCOMPARE(stress.frame(other).title(),
                     QString("Contact Stress Row %1").arg(QString(other).back()));
        };
        compare("Frame1", "Frame2");
        const QImage first = stress.inside();
        stress.click(kForm, "Option2");
        compare("Frame2", "Frame1");
        QVERIFY(stress.inside() != first);
        stress.click(kForm, "Option1");
        QCOMPARE(stress.inside(), first);
    }

    void aRowWithoutLoadCannotBeChosen_data() {
        QTest::addColumn<int>("row");
        QTest::newRow("row 1") << 1;
        QTest::newRow("row 2") << 2;
    }
    void aRowWithoutLoadCannotBeChosen() {
        QFETCH(int, row);
        Stress stress;
        stress.click(kForm, "Command2");
        stress.clearRow(row);
        stress.open("Command7");
        QCOMPARE(stress.option("Option1").isEnabled(), row != 1);
        QCOMPARE(stress.option("Option2").isEnabled(), row != 2);
        QCOMPARE(stress.option("Option1").isChecked(), row != 1);
        QCOMPARE(stress.option("Option2").isChecked(), row != 2);
        QCOMPARE(stress.label(row == 1 ? 1 : 6), QString("Max. Ball Load = .0 lbs."));
        QVERIFY(stress.messages.shown.empty());
    }

    void withoutAnyLoadThereIsStillADrawing() {
        Stress stress;
        stress.click(kForm, "Command2");
        stress.clearRow(1);
        stress.clearRow(2);
        stress.open("Command7");
        QVERIFY(!stress.option("Option1").isEnabled());
        QVERIFY(!stress.option("Option2").isEnabled());
        QVERIFY(stress.messages.shown.empty());
        QVERIFY(hasDrawn(stress.image(), stress.pixel(stress.shoulder(), -0.9 * stress.D()), kRing));
    }

    void opensOnTheBallAtTwoAndAHalfDiameters() {
        Stress stress;
        const double D = stress.D();
        compareAreas(stress.picture().area(), stress.state.bearing.pitchDiameter / 2.0 - 2.0 * D, 1.25 * D,
                     2.5 * D, -2.5 * D);
    }

    void drawsGrooveShoulderAndEllipseWhereGeometryPutsThem_data() {
        QTest::addColumn<QString>("number");
        QTest::newRow("X") << "K19013XP0";
        QTest::newRow("B") << "K19013BP0A";
        QTest::newRow("F") << "K19013FP0A";
    }
    void drawsGrooveShoulderAndEllipseWhereGeometryPutsThem() {
        QFETCH(QString, number);
        Stress stress(qPrintable(number), {"100", "200", "0", "400"});
        QCOMPARE(stress.inFront(), std::string(kForm));
        const QImage image = stress.image();
        const double D = stress.D();
        QVERIFY(hasDrawn(image, stress.pixel(stress.shoulder(), 0.9 * D), kRing));
        QVERIFY(hasDrawn(image, stress.pixel(stress.shoulder(), -0.9 * D), kRing));
        QVERIFY(!hasDrawn(image, stress.pixel(stress.shoulder() + 0.05 * D, 0.9 * D), kRing));
        QVERIFY(hasDrawn(image, stress.onGroove(0.1), kGroove));
        // The long axis is the chord between the ellipse's ends; both ends lie on the groove.
        const int row = stress.option("Option1").isChecked() ? 1 : 2;
        const int ball = stress.heaviest(row);
        const double half = stress.solver().InnerSemiMajor(row, ball) / stress.state.bearing.raceRadius;
        const double e = stress.ballAngle(row);
        QVERIFY(hasDrawn(image, stress.onGroove(e - half), kEllipse));
        QVERIFY(hasDrawn(image, stress.onGroove(e + half), kEllipse));
        const QPointF middle = (stress.onGroove(e - half) + stress.onGroove(e + half)) / 2.0;
        QVERIFY(hasDrawn(image, (middle + stress.onGroove(e - half)) / 2.0, kEllipse));
    }

    void keysMoveAndZoomTheDrawing_data() {
        QTest::addColumn<int>("key");
        // Left edge, top and extent of the area in ball diameters, from the middle of the pitch circle.
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("top");
        QTest::addColumn<double>("extent");
        QTest::newRow("Page Down") << int(Qt::Key_PageDown) << -2.0 - 0.125 << 1.25 + 0.125 << 2.75;
        QTest::newRow("Page Up") << int(Qt::Key_PageUp) << -2.0 + 0.125 / 1.1 << 1.25 - 0.125 / 1.1
                                 << 2.5 / 1.1;
        QTest::newRow("Up") << int(Qt::Key_Up) << -2.0 << 1.0 << 2.5;
        QTest::newRow("Down") << int(Qt::Key_Down) << -2.0 << 1.5 << 2.5;
        QTest::newRow("Left") << int(Qt::Key_Left) << -1.75 << 1.25 << 2.5;
        QTest::newRow("Right") << int(Qt::Key_Right) << -2.25 << 1.25 << 2.5;
    }
    void keysMoveAndZoomTheDrawing() {
        QFETCH(int, key);
        QFETCH(double, left);
        QFETCH(double, top);
        QFETCH(double, extent);
        Stress stress;
        const double D = stress.D();
        const double middle = stress.state.bearing.pitchDiameter / 2.0;
        stress.press(Qt::Key(key));
        compareAreas(stress.picture().area(), middle + left * D, top * D, extent * D, -extent * D);
        const DrawingArea expected{middle + left * D, top * D, extent * D, -extent * D};
        QVERIFY(hasDrawn(stress.image(), stress.pixel(stress.shoulder(), 0.8 * D, expected), kRing));
        stress.press(Qt::Key_Home);
        compareAreas(stress.picture().area(), middle - 2.0 * D, 1.25 * D, 2.5 * D, -2.5 * D);
    }

    void pageKeysWorkWhereverTheFocusIs() {
        Stress stress;
        const double before = stress.picture().area().width;
        QTest::keyClick(&stress.control<QLineEdit>(kForm, "Text3"), Qt::Key_PageDown);
        QVERIFY(std::abs(stress.picture().area().width - 1.1 * before) < 1e-9);
        QTest::keyClick(&stress.control<QAbstractButton>(kForm, "Command1"), Qt::Key_PageUp);
        QVERIFY(std::abs(stress.picture().area().width - before) < 1e-9);
    }

    void theScaleEndsAtATenthAndAtTenTimes() {
        Stress stress;
        const double opening = stress.picture().area().width;
        for (int i = 0; i < 60; ++i)
            stress.press(Qt::Key_PageDown);
        // 1.1 to the 25th is 10.83, to the 24th 9.85.
        QVERIFY(std::abs(stress.picture().area().width / opening - std::pow(1.1, 25)) < 1e-6);
        stress.press(Qt::Key_Home);
        for (int i = 0; i < 60; ++i)
            stress.press(Qt::Key_PageUp);
        QVERIFY(std::abs(stress.picture().area().width / opening - std::pow(1.1, -25)) < 1e-9);
        QVERIFY(stress.messages.shown.empty());
    }

    void theWheelZoomsAsThePageKeysDo() {
        Stress stress;
        const double opening = stress.picture().area().width;
        const auto turn = [&](int notches) {
            const QPointF place(50.0, 50.0);
            QWheelEvent event(place, stress.picture().mapToGlobal(place), {}, {0, 120 * notches},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&stress.picture(), &event);
        };
        turn(1);
        QVERIFY(std::abs(stress.picture().area().width - opening / 1.1) < 1e-9);
        turn(-1);
        QVERIFY(std::abs(stress.picture().area().width - opening) < 1e-9);
    }

    void aFrameBecomesTheView() {
        Stress stress;
        const QSize size = stress.picture().size();
        const DrawingArea before = stress.picture().area();
        const double perPixel = before.width / std::min(size.width(), size.height());
        const QPoint from(size.width() / 2 - 100, size.height() / 2 - 40);
        const QPoint to(size.width() / 2 + 20, size.height() / 2 + 60);
        const auto& shape = stress.control<QRubberBand>(kForm, "Shape1");
        QTest::mousePress(&stress.picture(), Qt::LeftButton, {}, to);
        QTest::mouseMove(&stress.picture(), from);
        QVERIFY(shape.isVisible());
        QCOMPARE(shape.geometry(), QRect(from, to));
        QTest::mouseRelease(&stress.picture(), Qt::LeftButton, {}, from);
        QVERIFY(!shape.isVisible());
        const double middleX = before.left + before.width / 2.0;
        const double middleY = before.top + before.height / 2.0;
        compareAreas(stress.picture().area(), middleX + (from.x() - size.width() / 2.0) * perPixel,
                     middleY + (size.height() / 2.0 - from.y()) * perPixel, 120 * perPixel, -100 * perPixel);
    }

    void aFrameOfNoExtentChangesNothing_data() {
        QTest::addColumn<QPoint>("to");
        QTest::newRow("a click") << QPoint(100, 100);
        QTest::newRow("a flat frame") << QPoint(160, 100);
        QTest::newRow("a narrow frame") << QPoint(100, 160);
    }
    void aFrameOfNoExtentChangesNothing() {
        QFETCH(QPoint, to);
        Stress stress;
        const QImage before = stress.inside();
        stress.drag({100, 100}, to);
        QCOMPARE(stress.inside(), before);
        QVERIFY(stress.messages.shown.empty());
    }

    void framesWithinFramesEndWithoutAFault() {
        Stress stress;
        const QPoint middle = stress.picture().rect().center();
        for (int i = 0; i < 30; ++i)
            stress.drag(middle - QPoint(3, 3), middle + QPoint(3, 3));
        QVERIFY(stress.messages.shown.empty());
        stress.press(Qt::Key_Home);
        QVERIFY(hasDrawn(stress.image(), stress.pixel(stress.shoulder(), 0.9 * stress.D()), kRing));
    }

    void linesKeepTheirWeightAtEveryZoom() {
        Stress stress;
        const auto weight = [&] {
            // Across the shoulder, where nothing else is near.
            const QImage image = stress.image();
            const QPointF at = stress.pixel(stress.shoulder(), -0.6 * stress.D());
            double ink = 0.0;
            for (int x = qRound(at.x()) - 6; x <= qRound(at.x()) + 6; ++x)
                ink += (255 - image.pixelColor(x, qRound(at.y())).red()) / 255.0;
            return ink;
        };
        const double opening = weight();
        QVERIFY(opening > 0.5);
        for (int i = 0; i < 4; ++i)
            stress.press(Qt::Key_PageUp);
        QVERIFY(std::abs(weight() - opening) < 0.2);
        for (int i = 0; i < 12; ++i)
            stress.press(Qt::Key_PageDown);
        QVERIFY(std::abs(weight() - opening) < 0.2);
    }

    void tellsAnEllipseThatRunsOverTheEdge() {
        Stress stress;
        const auto& warning = stress.control<QLabel>(kForm, "Warning1");
        QVERIFY(!warning.isVisible());
        stress.click(kForm, "Command2");
        // As long as the groove's radius the half ellipse spans 57 degrees.
        stress.state.solver.InnerSemiMajor(1, stress.heaviest(1)) = stress.state.bearing.raceRadius;
        stress.open("Command7");
        QVERIFY(warning.isVisible());
        QCOMPARE(warning.text(),
                 QString("The ellipse runs over the edge of the groove by the length shown."));
        stress.click(kForm, "Option2");
        QVERIFY(!warning.isVisible());
    }

    void notesChangeNothing() {
        Stress stress;
        const QImage before = stress.inside();
        for (const char* const name : {"Text1", "Text2", "Text3", "Text4"}) {
            for (const char* const text : {"1.5", "", "no number", "1e999"})
                stress.type(kForm, name, text);
        }
        QCOMPARE(stress.inside(), before);
        QVERIFY(stress.messages.shown.empty());
    }

    void redrawKeepsTheView() {
        Stress stress;
        stress.press(Qt::Key_PageUp);
        const QImage before = stress.inside();
        stress.click(kForm, "Command1");
        QCOMPARE(stress.inside(), before);
    }

    void anotherOpeningBeginsWithRowOneAndTheOpeningView() {
        Stress stress;
        const QImage before = stress.inside();
        stress.click(kForm, "Option2");
        stress.press(Qt::Key_PageDown);
        stress.click(kForm, "Command2");
        stress.open("Command7");
        QVERIFY(stress.option("Option1").isChecked());
        QCOMPARE(stress.inside(), before);
    }

    void aRadialBearingHasAnAngleOfZero() {
        // Its button is hidden; opened otherwise the screen still says what holds.
        SolvedBearing radial("K19013CP0", {"500", "", "", "400"});
        QVERIFY(!radial.control<QAbstractButton>(forms::kLife, "Command7").isVisible());
        radial.screens.show(forms::kContactStress);
        QCOMPARE(radial.control<QLabel>(kForm, "Label5").text(), QString("Contact Angle = 0°"));
        QVERIFY(!radial.control<QRadioButton>(kForm, "Option2").isEnabled());
    }

    void withoutASolveItIsAFaultAndTheScreenBeforeComesBack() {
        Program program;
        program.screens.show(forms::kMainMenu);
        program.screens.runAction("Contact Stress", [&] { program.screens.show(forms::kContactStress); });
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '9'"));
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
    }

    void theKeyboardReachesEveryControl() {
        Stress stress;
        compareKeyboard(*stress.screens.current());
    }

    void comingBackLeavesTheLifeAsItWas() {
        Stress stress;
        stress.click(kForm, "Option2");
        stress.compareComingBack([&] { stress.click(kForm, "Command2"); });
        stress.open("Command7");
        stress.compareComingBack([&] { stress.screens.current()->close(); });
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::form30Test)
#include "form30Test.moc"
