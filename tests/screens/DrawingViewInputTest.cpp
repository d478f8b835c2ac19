#include <QFrame>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtTest>

#include "screens/DrawingView.h"

namespace norlaplan::testing {
namespace {

/// A page of ten by five inches in a picture that is 1000 pixels wide and 300 high: a hundred pixels are an
/// inch, and two of the five inches don't fit.
struct Page {
    Page() {
        view.showDrawing({{10.0, 5.0}, [](Canvas&) {}});
        view.show();
        view.resize(view.size() + QSize(1000, 300) - view.viewport()->size());
        QApplication::processEvents();
        view.showPageWidth();
    }
    QWidget* picture() { return view.viewport(); }
    void drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(picture(), button, {}, from);
        QTest::mouseMove(picture(), to);
        QTest::mouseRelease(picture(), button, {}, to);
    }
    void turnWheel(QPoint turn) {
        QWheelEvent event(QPointF(500.0, 150.0), picture()->mapToGlobal(QPoint(500, 150)), {}, turn,
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(picture(), &event);
    }
    Qt::CursorShape cursor() { return picture()->cursor().shape(); }
    QRect lineAt(int number) {
        auto* const line = picture()->findChild<QFrame*>(QString("Line%1").arg(number));
        return line->isVisible() ? line->geometry() : QRect();
    }

    DrawingView view{"Picture1", "A page"};
};

bool isNear(double value, double expected) {
    return std::abs(value - expected) < 0.01;
}

/// Mouse, wheel and keys on a DrawingView: what DrawingViewInput makes of them.
class DrawingViewInputTest : public QObject {
    Q_OBJECT

  private slots:
    void aFrameHasTheShapeOfThePageWhicheverWayItIsDrawn_data() {
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("top");
        QTest::addColumn<double>("across");
        // Twice as wide as high; the longer of the two ways counts.
        QTest::newRow("right and down") << QPoint(200, 100) << QPoint(400, 120) << 2.0 << 4.0 << 2.0;
        QTest::newRow("more down than right") << QPoint(200, 100) << QPoint(240, 250) << 2.0 << 4.0 << 3.0;
        QTest::newRow("left and up") << QPoint(600, 250) << QPoint(400, 240) << 4.0 << 3.5 << 2.0;
        QTest::newRow("right and up") << QPoint(600, 250) << QPoint(800, 240) << 6.0 << 3.5 << 2.0;
        QTest::newRow("left and down") << QPoint(600, 50) << QPoint(400, 60) << 4.0 << 4.5 << 2.0;
        QTest::newRow("out at the right") << QPoint(900, 100) << QPoint(1500, 290) << 9.0 << 4.0 << 1.0;
        QTest::newRow("out at the left") << QPoint(100, 100) << QPoint(-500, 110) << 0.0 << 4.0 << 1.0;
        QTest::newRow("out at the top") << QPoint(500, 50) << QPoint(900, -200) << 5.0 << 5.0 << 1.0;
        QTest::newRow("straight down") << QPoint(300, 100) << QPoint(300, 200) << 3.0 << 4.0 << 2.0;
    }
    void aFrameHasTheShapeOfThePageWhicheverWayItIsDrawn() {
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        QFETCH(double, left);
        QFETCH(double, top);
        QFETCH(double, across);
        Page page;
        QCOMPARE(page.view.pixelsPerInch(), 100.0);
        page.drag(from, to);
        const PageBox area = page.view.area();
        QVERIFY2(isNear(area.left, left), qPrintable(QString::number(area.left)));
        QVERIFY2(isNear(area.top, top), qPrintable(QString::number(area.top)));
        QVERIFY2(isNear(area.right - area.left, across), qPrintable(QString::number(area.right - area.left)));
    }

    void aFrameOfLessThanAQuarterInchIsAClick() {
        Page page;
        page.drag({200, 100}, {224, 100});
        QCOMPARE(page.view.pixelsPerInch(), 100.0);
        page.drag({200, 100}, {226, 100});
        QVERIFY(isNear(page.view.pixelsPerInch(), 1000.0 / 0.26));
        // As far as it goes: 26 pixels are less than a hundredth of an inch here.
        page.drag({200, 100}, {226, 100});
        QVERIFY(isNear(page.view.pixelsPerInch(), 1000.0 / 0.26));
    }

    void fourLinesOfTwoPixelsShowTheFrame() {
        Page page;
        QTest::mousePress(page.picture(), Qt::LeftButton, {}, {200, 100});
        QTest::mouseMove(page.picture(), {400, 120});
        QCOMPARE(page.lineAt(1), QRect(200, 100, 200, 2));
        QCOMPARE(page.lineAt(2), QRect(200, 199, 200, 2));
        QCOMPARE(page.lineAt(3), QRect(200, 100, 2, 100));
        QCOMPARE(page.lineAt(4), QRect(399, 100, 2, 101));
        QTest::mouseMove(page.picture(), {300, 120});
        QCOMPARE(page.lineAt(1), QRect(200, 100, 100, 2));
        QTest::mouseRelease(page.picture(), Qt::LeftButton, {}, {201, 100});
        for (int line = 1; line <= 4; ++line)
            QCOMPARE(page.lineAt(line), QRect());
        QCOMPARE(page.view.pixelsPerInch(), 100.0);
    }

    void otherButtonsStartNothingAndEndNothing() {
        Page page;
        page.drag({200, 100}, {400, 120}, Qt::RightButton);
        QCOMPARE(page.view.pixelsPerInch(), 100.0);
        QTest::mousePress(page.picture(), Qt::LeftButton, {}, {200, 100});
        QTest::mouseMove(page.picture(), {400, 120});
        QTest::mousePress(page.picture(), Qt::MiddleButton, {}, {400, 120});
        QTest::mouseRelease(page.picture(), Qt::RightButton, {}, {400, 120});
        QCOMPARE(page.lineAt(1), QRect(200, 100, 200, 2));
        QCOMPARE(page.cursor(), Qt::CrossCursor);
        QTest::mouseRelease(page.picture(), Qt::LeftButton, {}, {400, 120});
        QVERIFY(isNear(page.view.pixelsPerInch(), 500.0));
    }

    void theMiddleButtonMovesThePageWithThePointer() {
        Page page;
        QScrollBar& bar = *page.view.verticalScrollBar();
        QCOMPARE(bar.maximum(), 200);
        QTest::mousePress(page.picture(), Qt::MiddleButton, {}, {500, 250});
        QCOMPARE(page.cursor(), Qt::ClosedHandCursor);
        QTest::mouseMove(page.picture(), {480, 220});
        QCOMPARE(bar.value(), 30);
        QTest::mouseMove(page.picture(), {480, 230});
        QCOMPARE(bar.value(), 20);
        QTest::mouseRelease(page.picture(), Qt::MiddleButton, {}, {480, 230});
        QCOMPARE(page.cursor(), Qt::CrossCursor);
        QCOMPARE(page.view.pixelsPerInch(), 100.0);
        page.view.zoomIn();
        page.view.horizontalScrollBar()->setValue(100);
        page.drag({500, 100}, {440, 100}, Qt::MiddleButton);
        QCOMPARE(page.view.horizontalScrollBar()->value(), 160);
    }

    void spaceTurnsTheLeftButtonIntoAHand() {
        Page page;
        QTest::keyPress(page.picture(), Qt::Key_Space);
        QCOMPARE(page.cursor(), Qt::OpenHandCursor);
        QTest::mousePress(page.picture(), Qt::LeftButton, {}, {500, 250});
        QCOMPARE(page.cursor(), Qt::ClosedHandCursor);
        QTest::mouseMove(page.picture(), {500, 210});
        QCOMPARE(page.view.verticalScrollBar()->value(), 40);
        QCOMPARE(page.lineAt(1), QRect());
        QTest::mouseRelease(page.picture(), Qt::LeftButton, {}, {500, 210});
        QCOMPARE(page.cursor(), Qt::OpenHandCursor);
        QTest::keyRelease(page.picture(), Qt::Key_Space);
        QCOMPARE(page.cursor(), Qt::CrossCursor);
        // Elsewhere the key is let go unseen.
        QTest::keyPress(page.picture(), Qt::Key_Space);
        QFocusEvent gone(QEvent::FocusOut);
        QCoreApplication::sendEvent(&page.view, &gone);
        QCOMPARE(page.cursor(), Qt::CrossCursor);
    }

    void theWheelZoomsByAQuarterANotch() {
        Page page;
        page.turnWheel({0, 120});
        QVERIFY(isNear(page.view.pixelsPerInch(), 125.0));
        page.turnWheel({0, 240});
        QVERIFY(isNear(page.view.pixelsPerInch(), 125.0 * 1.5625));
        page.turnWheel({0, -360});
        QVERIFY(isNear(page.view.pixelsPerInch(), 100.0));
        page.turnWheel({120, 0});
        QVERIFY(isNear(page.view.pixelsPerInch(), 100.0));
        // Not smaller than the whole page in the picture's height, 300 pixels for five inches.
        page.turnWheel({0, -12000});
        QVERIFY(isNear(page.view.pixelsPerInch(), 60.0));
    }

    void keysZoomAndMove() {
        Page page;
        const auto press = [&](Qt::Key key) { QTest::keyClick(page.picture(), key); };
        press(Qt::Key_Plus);
        QVERIFY(isNear(page.view.pixelsPerInch(), 125.0));
        press(Qt::Key_Equal);
        QVERIFY(isNear(page.view.pixelsPerInch(), 156.25));
        press(Qt::Key_Minus);
        QVERIFY(isNear(page.view.pixelsPerInch(), 125.0));
        press(Qt::Key_End);
        const int last = page.view.verticalScrollBar()->maximum();
        QVERIFY(last > 200);
        QCOMPARE(page.view.verticalScrollBar()->value(), last);
        press(Qt::Key_Home);
        QCOMPARE(page.view.verticalScrollBar()->value(), 0);
        press(Qt::Key_0);
        QVERIFY(isNear(page.view.pixelsPerInch(), 60.0));
        press(Qt::Key_A);
        QVERIFY(isNear(page.view.pixelsPerInch(), 60.0));
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::DrawingViewInputTest)
#include "DrawingViewInputTest.moc"
