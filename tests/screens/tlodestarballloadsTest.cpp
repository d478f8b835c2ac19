#include <QClipboard>
#include <QScrollBar>

#include "screens/SolvedBearing.h"
#include "screens/controls/ContactControls.h"
#include "screens/controls/ControlsOfAForm.h"

namespace norlaplan::testing {
namespace {

constexpr const char* kForm = "tlodestarballloads";
constexpr const char* kHint = "Point at a ball, or walk with the arrow keys, to read its load.";
const QColor kBlue(0, 0, 255), kRed(255, 0, 0), kGreen(0, 255, 0), kMagenta(255, 0, 255);

bool hasDrawn(const QImage& image, QPointF place, QColor colour, int reach = 1) {
    return hasInk(image, place, colour, Qt::black, reach);
}

/// The ball load graph of a solved bearing.
struct Graph : SolvedBearing {
    explicit Graph(const char* number = "K19013XP0", const TypedLoads& loads = {}, const char* units = "US")
        : SolvedBearing(number, loads, units) {
        open("Command5");
    }
    QWidget& picture() { return control<QWidget>(kForm, "Picture1"); }
    QImage image() { return imageOf(picture()); }
    QImage inside() { return insideOf(picture()); }
    QScrollBar& bar(const char* name) { return control<QScrollBar>(kForm, name); }
    void move(const char* name, int value) {
        bar(name).setValue(value);
        QCoreApplication::processEvents();
    }
    QString readout() { return control<QLabel>(kForm, "Readout").text(); }

    int largestBall(int row) const {
        int largest = 1;
        for (int i = 2; i <= solver().BallCount; ++i) {
            if (solver().BallLoad(row, i) > solver().BallLoad(row, largest)) largest = i;
        }
        return largest;
    }
    /// A place of the graph in pixels: the picture shows 2.6 S of loads, y downward.
    QPointF pixel(double x, double y, double S) {
        const double scale = std::min(picture().width(), picture().height()) / (2.6 * S);
        return {picture().width() / 2.0 + x * scale, picture().height() / 2.0 + y * scale};
    }
    /// `share` of the way up the spike of a ball of row 1, down that of row 2.
    QPointF onSpike(int row, int ball, double share, double S, double yaw = 0.0, double pitch = 80.0) {
        const double w = 2.0 * M_PI / solver().BallCount;
        const double turned = (ball - 1) * w;
        const double x = S * std::cos(turned + yaw * M_PI / 180.0);
        const double y = S * std::sin(turned) * std::cos(pitch * M_PI / 180.0);
        const double load = solver().BallLoad(row, ball) * share;
        return pixel(x, row == 1 ? y - load : y + load, S);
    }
    double largestLoad() const { return solver().MaxBallLoad; }
};

class tlodestarballloadsTest : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kBallLoadGraph, {kContactRows, contactScenes()}), QStringList());
    }

    void saysWhatItIs() {
        Graph graph;
        QCOMPARE(graph.inFront(), std::string(kForm));
        QCOMPARE(graph.screens.current()->windowTitle(), QString("Graph of Ball Loads vs Angular Position"));
        QCOMPARE(graph.picture().toolTip(), QString("Graphical view of ball loads around bearing"));
        graph.compareButton(kForm, "Command2", "Refresh Graph", "");
        graph.compareButton(kForm, "Command3", "&Print", "Print the ball display");
        graph.compareButton(kForm, "Command1", "&Return", "Return to previous screen");
        const std::pair<const char*, const char*> squares[] = {
            {"Picture2", "Display color of ball loads for Row 1"},
            {"Picture3", "Display color for ball loads for row 2"},
            {"Picture4", "Display color of base Ellipse (0 load)"},
            {"Picture5", "Background display color"},
            {"Picture6", "Display color for x-y-z axis"}};
        for (const auto& [name, tip] : squares)
            QCOMPARE(graph.control<QWidget>(kForm, name).toolTip(), QString(tip));
        const std::pair<const char*, const char*> bars[] = {
            {"HScroll1", "Rotate \"3D\" graph around vertical axis"},
            {"VScroll1", "Vertical Scale"},
            {"VScroll2", "Ball Load Scale Modification"}};
        for (const auto& [name, caption] : bars)
            QCOMPARE(graph.bar(name).accessibleName(), QString(caption));
    }

    void opensUntiltedWithTheLargestLoadAsRadius() {
        Graph graph;
        const double S = graph.largestLoad();
        QVERIFY(S > 1.0);
        QCOMPARE(graph.bar("HScroll1").value(), 0);
        QCOMPARE(graph.bar("VScroll1").value(), 80);
        QCOMPARE(graph.bar("VScroll2").value(), static_cast<int>(std::floor(S)));
        QCOMPARE(graph.bar("VScroll2").maximum(), static_cast<int>(std::floor(2.0 * S)));
    }

    void drawsSpikesBaseAndAxesWhereGeometryPutsThem() {
        Graph graph;
        const double S = graph.largestLoad();
        const QImage image = graph.image();
        const int ball = graph.largestBall(1);
        QVERIFY(graph.solver().BallLoad(1, ball) > 0.0);
        for (const double share : {0.3, 0.6, 0.9})
            QVERIFY(hasDrawn(image, graph.onSpike(1, ball, share, S), kBlue));
        QVERIFY(!hasDrawn(image, graph.onSpike(1, ball, 1.1, S), kBlue, 2));
        const int second = graph.largestBall(2);
        QVERIFY(graph.solver().BallLoad(2, second) > 0.0);
        QVERIFY(hasDrawn(image, graph.onSpike(2, second, 0.5, S), kRed));
        QVERIFY(hasDrawn(image, graph.pixel(1.05 * S, 0.0, S), kMagenta));
        QVERIFY(hasDrawn(image, graph.pixel(0.0, -0.05 * S, S), kMagenta));
        // The foot of a ball without a spike, of which the base alone passes.
        for (int i = 1; i <= graph.solver().BallCount; ++i) {
            if (graph.solver().BallLoad(1, i) == 0.0 && graph.solver().BallLoad(2, i) == 0.0)
                QVERIFY(hasDrawn(image, graph.onSpike(1, i, 0.0, S), kGreen));
        }
        QCOMPARE(image.pixelColor(3, 3), QColor(Qt::black));
    }

    void turnsByTheHorizontalBarAndNotInTheSine() {
        Graph graph;
        const double S = graph.largestLoad();
        const int ball = graph.largestBall(1);
        graph.move("HScroll1", 40);
        const QImage image = graph.image();
        QVERIFY(hasDrawn(image, graph.onSpike(1, ball, 0.6, S, 40.0), kBlue));
        QVERIFY(!hasDrawn(image, graph.onSpike(1, ball, 0.95, S, 0.0), kBlue));
        // The axis of 0 degrees is 1.1 S cos(40) long to both sides.
        QVERIFY(hasDrawn(image, graph.pixel(1.05 * S * std::cos(40.0 * M_PI / 180.0), 0.0, S), kMagenta));
        QVERIFY(!hasDrawn(image, graph.pixel(1.0 * S, 0.0, S), kMagenta));
    }

    void tiltsByTheFirstVerticalBar() {
        Graph graph("K19013CP0", {"500", "", "", "400"});
        const double S = graph.largestLoad();
        const int quarter = graph.solver().BallCount / 4 + 1;
        QCOMPARE(graph.solver().BallLoad(1, quarter), 0.0);
        graph.move("VScroll1", 0);
        QVERIFY(hasDrawn(graph.image(), graph.onSpike(1, quarter, 0.0, S, 0.0, 0.0), kGreen, 2));
        graph.move("VScroll1", 90);
        QVERIFY(!hasDrawn(graph.image(), graph.onSpike(1, quarter, 0.0, S, 0.0, 0.0), kGreen, 2));
    }

    void scalesByTheSecondVerticalBar() {
        Graph graph;
        const int ball = graph.largestBall(1);
        const int twice = graph.bar("VScroll2").maximum();
        graph.move("VScroll2", twice);
        QVERIFY(hasDrawn(graph.image(), graph.onSpike(1, ball, 0.8, twice), kBlue));
        QVERIFY(!hasDrawn(graph.image(), graph.onSpike(1, ball, 1.2, twice), kBlue));
    }

    void aRadialBearingHasOneRow() {
        Graph graph("K19013CP0", {"500", "", "", "400"});
        const QImage image = graph.inside();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor seen = image.pixelColor(x, y);
                // The axes are red and blue in equal parts, and what smoothing leaves of them is, too.
                QVERIFY(seen.red() - seen.blue() < 60);
            }
        }
    }

    void aColourThatIsPickedIsDrawn() {
        Graph graph;
        graph.colourDialog.choice = rgb(255, 255, 240);
        graph.click(kForm, "Picture5");
        QCOMPARE(graph.colourDialog.titles, std::vector<std::string>{"Background display color"});
        QCOMPARE(graph.colourDialog.opened, std::vector<Colour>{rgb(0, 0, 0)});
        QCOMPARE(graph.image().pixelColor(3, 3), QColor(255, 255, 240));
        QCOMPARE(imageOf(graph.control<QWidget>(kForm, "Picture5")).pixelColor(14, 14),
                 QColor(255, 255, 240));
        graph.colourDialog.choice = rgb(200, 120, 0);
        graph.click(kForm, "Picture2");
        QCOMPARE(graph.colourDialog.opened.back(), rgb(0, 0, 255));
        QVERIFY(hasDrawn(graph.image(), graph.onSpike(1, graph.largestBall(1), 0.6, graph.largestLoad()),
                         QColor(200, 120, 0)));
    }

    void aCancelledColourChangesNothing() {
        Graph graph;
        for (const char* const square : {"Picture2", "Picture3", "Picture4", "Picture5", "Picture6"}) {
            const QImage before = graph.inside();
            graph.click(kForm, square);
            QCOMPARE(graph.inside(), before);
        }
        QCOMPARE(graph.colourDialog.opened, (std::vector<Colour>{16711680, 255, 65280, 0, 16711935}));
        QVERIFY(graph.messages.shown.empty());
    }

    void aRefreshThatFailsPutsTheBarsBack() {
        Graph graph;
        const QImage before = graph.inside();
        graph.move("HScroll1", 70);
        graph.move("VScroll1", 20);
        graph.move("VScroll2", 0);
        QCOMPARE(graph.bar("HScroll1").value(), 0);
        QCOMPARE(graph.bar("VScroll1").value(), 80);
        QCOMPARE(graph.bar("VScroll2").value(), static_cast<int>(std::floor(graph.largestLoad())));
        QCOMPARE(graph.inside(), before);
        QVERIFY(graph.messages.shown.empty());
    }

    void theEndsOfTheBarsAreDrawn() {
        Graph graph;
        for (const char* const name : {"HScroll1", "VScroll1", "VScroll2"}) {
            graph.move(name, graph.bar(name).minimum());
            graph.move(name, graph.bar(name).maximum());
            QVERIFY(graph.image().pixelColor(3, 3) == QColor(Qt::black));
        }
        QVERIFY(graph.messages.shown.empty());
    }

    void tellsTheBallUnderThePointer() {
        Graph graph;
        QCOMPARE(graph.readout(), QString(kHint));
        // At a quarter of the circle the spikes stand farthest from each other.
        const int ball = graph.solver().BallCount / 4 + 1;
        const double load = graph.solver().BallLoad(1, ball);
        QVERIFY(load > 0.1 * graph.largestLoad());
        const QPointF place = graph.onSpike(1, ball, 0.98, graph.largestLoad());
        QTest::mouseMove(&graph.picture(), place.toPoint());
        const QString angle = QString::number((ball - 1) * 360.0 / graph.solver().BallCount, 'f', 1);
        const QString contact =
            QString::number(QString::fromStdString(graph.solver().BallAngleText(1, ball)).toDouble(), 'f', 2);
        QCOMPARE(graph.readout(), QString("Row 1, ball %1 at %2°: %3 lbs, contact angle %4°")
                                      .arg(ball)
                                      .arg(angle, QString::number(load, 'f', 1), contact));
        QTest::mouseMove(&graph.picture(), QPoint(5, 5));
        QCOMPARE(graph.readout(), QString(kHint));
    }

    void theArrowKeysWalkFromBallToBall() {
        Graph graph("K19013XP0", {}, "METRIC");
        const int last = graph.solver().BallCount;
        const auto starts = [&](int row, int ball) {
            return graph.readout().startsWith(QString("Row %1, ball %2 at ").arg(row).arg(ball));
        };
        QTest::keyClick(&graph.picture(), Qt::Key_Right);
        QVERIFY(starts(1, 1));
        QVERIFY(graph.readout().contains(" N, ") || graph.readout().contains("out of touch"));
        QTest::keyClick(&graph.picture(), Qt::Key_Right);
        QVERIFY(starts(1, 2));
        QTest::keyClick(&graph.picture(), Qt::Key_Down);
        QVERIFY(starts(2, 2));
        QTest::keyClick(&graph.picture(), Qt::Key_Left);
        QTest::keyClick(&graph.picture(), Qt::Key_Left);
        QVERIFY(starts(2, last));
        QTest::keyClick(&graph.picture(), Qt::Key_Up);
        QVERIFY(starts(1, last));
        graph.move("HScroll1", 10);
        QCOMPARE(graph.readout(), QString(kHint));
    }

    void theBallThatIsReadStandsOutFromTheBackground() {
        const std::pair<Colour, QColor> backgrounds[] = {{rgb(0, 0, 0), Qt::white},
                                                         {rgb(255, 255, 240), Qt::black}};
        for (const auto& [background, mark] : backgrounds) {
            Graph graph;
            graph.colourDialog.choice = background;
            graph.click(kForm, "Picture5");
            const int ball = graph.largestBall(1);
            const QPoint middle = graph.onSpike(1, ball, 0.5, graph.largestLoad()).toPoint();
            QVERIFY(graph.image().pixelColor(middle) != mark);
            for (int i = 0; i < ball; ++i)
                QTest::keyClick(&graph.picture(), Qt::Key_Right);
            QCOMPARE(graph.image().pixelColor(middle), mark);
        }
    }

    void aRadialBearingHasNoSecondRowToWalkTo() {
        Graph graph("K19013CP0", {"500", "", "", "400"});
        QTest::keyClick(&graph.picture(), Qt::Key_Right);
        QTest::keyClick(&graph.picture(), Qt::Key_Down);
        QVERIFY(graph.readout().startsWith("Row 1, ball 1 "));
    }

    void controlCCopiesTheGraph() {
        Graph graph;
        QGuiApplication::clipboard()->clear();
        QTest::keySequence(&graph.picture(), QKeySequence::Copy);
        const QImage copied = QGuiApplication::clipboard()->image();
        QVERIFY(!copied.isNull());
        QCOMPARE(copied.pixelColor(10, 10), QColor(Qt::black));
    }

    void printsLandscapeWhatIsShown() {
        Graph graph;
        graph.colourDialog.choice = rgb(1, 2, 3);
        graph.click(kForm, "Picture2");
        graph.click(kForm, "Command3");
        QCOMPARE(graph.printer.papers.size(), std::size_t{1});
        QVERIFY(graph.printer.papers[0] == papers::kLetterLandscape);
        const RecordingCanvas& page = graph.printer.canvas;
        for (const char* const text :
             {"K19013XP0 BALL LOAD GRAPHICAL DISPLAY", "LOAD CASE:", "RADIAL LOAD = 500 pounds",
              "THRUST LOAD = 200 pounds", "MOMENT LOAD = 100 inch-lbs."})
            QVERIFY2(page.hasText(text), text);
        const auto count = [&](Colour colour) {
            return std::count_if(page.lines.begin(), page.lines.end(),
                                 [&](const auto& line) { return line.pen.colour == colour; });
        };
        int spikes = 0, joins = 0;
        const int Z = graph.solver().BallCount;
        for (int i = 1; i <= Z; ++i) {
            const bool own = graph.solver().BallLoad(1, i) != 0.0;
            spikes += own ? 1 : 0;
            joins += own && graph.solver().BallLoad(1, i % Z + 1) != 0.0 ? 1 : 0;
        }
        QVERIFY(spikes > 0);
        QCOMPARE(static_cast<int>(count(rgb(1, 2, 3))), spikes + joins);
        QCOMPARE(static_cast<int>(count(rgb(0, 255, 0))), Z);
    }

    void aCancelledPrintLeavesTheScreen() {
        Graph graph;
        graph.printer.accepts = false;
        graph.click(kForm, "Command3");
        QVERIFY(graph.printer.documents.empty());
        QCOMPARE(graph.inFront(), std::string(kForm));
    }

    void anotherOpeningKeepsColoursAndTakesTheNewLoads() {
        Graph graph;
        graph.colourDialog.choice = rgb(255, 255, 240);
        graph.click(kForm, "Picture5");
        graph.move("VScroll2", 1);
        graph.click(kForm, "Command1");
        graph.open("Command5");
        QCOMPARE(graph.image().pixelColor(3, 3), QColor(255, 255, 240));
        QCOMPARE(graph.bar("VScroll2").value(), static_cast<int>(std::floor(graph.largestLoad())));
    }

    void withoutASolveItSaysSo() {
        Program program;
        program.useUnits("US");
        program.screens.show(FormName(kForm));
        QCOMPARE(program.control<QLabel>(kForm, "Readout").text(), QString("No ball carries a load."));
        QTest::keyClick(&program.control<QWidget>(kForm, "Picture1"), Qt::Key_Right);
        QTest::mouseMove(&program.control<QWidget>(kForm, "Picture1"), QPoint(50, 50));
        program.click(kForm, "Command2");
        QVERIFY(program.messages.shown.empty());
    }

    void theKeyboardReachesEveryControl() {
        Graph graph;
        compareKeyboard(*graph.screens.current());
    }

    void comingBackLeavesTheLifeAsItWas() {
        Graph graph;
        graph.move("VScroll2", 3);
        graph.compareComingBack([&] { graph.click(kForm, "Command1"); });
        graph.open("Command5");
        graph.compareComingBack([&] { graph.screens.current()->close(); });
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::tlodestarballloadsTest)
#include "tlodestarballloadsTest.moc"
