#include <QClipboard>
#include <QtTest>

#include "screens/GraphView.h"
#include "support/Ink.h"

namespace norlaplan {
namespace {

/// A straight line from (0, 0) to (10, 10) with eleven points to read off.
Graph line() {
    Graph graph = pictureGraph();
    graph.x.end = 10.0;
    graph.y.end = 10.0;
    graph.x.step = graph.x.last = graph.y.step = graph.y.last = 10.0;
    graph.curves = {{{{0.0, 0.0}, {10.0, 10.0}}, {graphcolours::kDarkRed, 19050.0, 0}}};
    graph.readout.unit = 10.0;
    graph.readout.perUnit = 10.0;
    for (int i = 0; i <= 10; ++i)
        graph.readout.points.push_back({{double(i), double(i)}, "point " + std::to_string(i)});
    return graph;
}

}  // namespace

class GraphViewTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        view_.resize(850, 500);
        view_.show();
    }
    void init() { view_.showGraph(line()); }

    void aPixelAndAPlaceAreEachOthersInverse() {
        const PagePoint place = view_.pageAt(view_.pixelAt({3.25, 1.5}));
        QVERIFY(std::abs(place.x - 3.25) < 1e-9 && std::abs(place.y - 1.5) < 1e-9);
        QCOMPARE(view_.pixelAt({0.0, 5.0}), QPointF(0.0, 0.0));
        QCOMPARE(view_.pixelAt({8.5, 0.0}), QPointF(850.0, 500.0));
    }

    void thePointNearThePointerIsMarkedAndTold() {
        std::string told = "nothing";
        view_.onReadout([&](const auto& mark) { told = mark ? mark->label.text : "none"; });
        moveTo(4.0);
        QCOMPARE(told, "point 4");
        const QImage marked = view_.grab().toImage();
        const QPoint at = view_.pixelAt(line().place({4.0, 4.0})).toPoint();
        // An arm of the cross stands 0.1 to 0.3 inches right of the point.
        QVERIFY(inkOf(marked, at + QPoint(20, 0)));
        QTest::mouseMove(&view_, {2, 2});
        QCOMPARE(told, "none");
        QVERIFY(!inkOf(view_.grab().toImage(), at + QPoint(20, 0)));
        view_.onReadout({});
    }

    void aPointerFarFromTheCurveMarksNothing() {
        const QPointF at = view_.pixelAt(line().place({4.0, 9.0}));
        QTest::mouseMove(&view_, at.toPoint());
        QVERIFY(!view_.mark());
    }

    void anotherGraphTakesTheMarkAway() {
        moveTo(5.0);
        QVERIFY(view_.mark());
        view_.showGraph(line());
        QVERIFY(!view_.mark());
    }

    void aGraphWithoutAScaleSaysSoAndLivesOn() {
        Graph graph = line();
        graph.x.end = 0.0;
        view_.showGraph(graph);
        QTest::mouseMove(&view_, {400, 200});
        QVERIFY(!view_.mark());
        QVERIFY(testing::inkBox(view_.grab().toImage(), {300, 200, 250, 100}).isValid());
    }

    void itKeepsItsShapeInAWideRoom() {
        view_.resize(1700, 500);
        QCOMPARE(view_.pixelAt({0.0, 5.0}), QPointF(425.0, 0.0));
        view_.resize(850, 500);
    }

    void copyPutsThePictureWithoutTheMarkOnTheClipboard() {
        moveTo(4.0);
        QTest::keyClick(&view_, Qt::Key_C, Qt::ControlModifier);
        const QImage copied = QApplication::clipboard()->image();
        QCOMPARE(copied.size(), QSize(1275, 750));
        const PagePoint at = line().place({4.0, 4.0});
        const QPoint dot(qRound(at.x * 150), qRound((5.0 - at.y) * 150));
        QVERIFY(inkOf(copied, dot));
        QVERIFY(!inkOf(copied, dot + QPoint(30, 0)));
    }

  private:
    static bool inkOf(const QImage& picture, QPoint at) {
        return testing::inkBox(picture, QRect(at - QPoint(1, 1), QSize(3, 3))).isValid();
    }
    /// The pointer to the line's point at x.
    void moveTo(double x) {
        QTest::mouseMove(&view_, {2, 2});
        QTest::mouseMove(&view_, view_.pixelAt(line().place({x, x})).toPoint());
    }

    GraphView view_{"Picture1", "A line"};
};

}  // namespace norlaplan

QTEST_MAIN(norlaplan::GraphViewTest)
#include "GraphViewTest.moc"
