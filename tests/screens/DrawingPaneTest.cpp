#include <QtTest>

#include "screens/DrawingPane.h"

namespace norlaplan::testing {
namespace {

/// The picture whose page is as large as its widget.
class DrawingPaneTest : public QObject {
    Q_OBJECT

  private slots:
    void aFrameStandsOnAllFourSides() {
        DrawingPane pane("Picture1", "", "A picture");
        pane.resize(61, 41);
        const QImage shown = pane.grab().toImage();
        const QColor frame = pane.palette().color(QPalette::Mid);
        QVERIFY(shown.pixelColor(30, 20) != frame);
        for (const QPoint edge : {QPoint(30, 0), QPoint(0, 20), QPoint(60, 20), QPoint(30, 40)})
            QCOMPARE(shown.pixelColor(edge), frame);
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::DrawingPaneTest)
#include "DrawingPaneTest.moc"
