#include <QApplication>
#include <QWidget>
#include <QtTest>

#include "screens/FlowRow.h"

namespace norlaplan::testing {
namespace {

/// A widget that would like to have a size and can do with half of it.
class Piece : public QWidget {
  public:
    explicit Piece(QSize wanted) : wanted_(wanted) {}
    QSize sizeHint() const override { return wanted_; }
    QSize minimumSizeHint() const override { return wanted_ / 2; }

  private:
    QSize wanted_;
};

/// A FlowRow of pieces in a window that has so much room. Ten pixels lie between what stands side by side.
struct Window {
    explicit Window(std::initializer_list<QSize> sizes) : row(new FlowRow) {
        whole.setLayout(row);
        row->setSpacing(10);
        for (const QSize& size : sizes) {
            pieces.append(new Piece(size));
            row->addWidget(pieces.last());
        }
    }
    /// The pieces' places, {left, top, width, height} each, when the row has this room at (100, 50).
    QList<QRect> placesIn(int width, int height = 200) {
        row->setGeometry(QRect(100, 50, width, height));
        QList<QRect> places;
        for (const QWidget* const piece : pieces)
            places << piece->geometry();
        return places;
    }

    QWidget whole;
    FlowRow* row;
    QList<QWidget*> pieces;
};

const QSize kSmall(60, 30), kWide(100, 30), kHigh(80, 40);
using Places = QList<QRect>;

/// Where FlowRow puts what it holds, by hand.
class FlowRowTest : public QObject {
    Q_OBJECT

  private slots:
    void standsFlushRightInOneRowWhereItFits() {
        Window window({kSmall, kWide, kHigh});
        // 60 + 10 + 100 + 10 + 80 are 260; 40 of 300 are left at the left.
        QCOMPARE(window.placesIn(300), Places({{140, 50, 60, 30}, {210, 50, 100, 30}, {320, 50, 80, 40}}));
        QCOMPARE(window.placesIn(260), Places({{100, 50, 60, 30}, {170, 50, 100, 30}, {280, 50, 80, 40}}));
    }

    void goesOnInFurtherRowsFlushRightToo() {
        Window window({kSmall, kWide, kHigh});
        // One pixel short of all three: the third goes below the higher of the two, 30 and 10 on.
        QCOMPARE(window.placesIn(259), Places({{189, 50, 60, 30}, {259, 50, 100, 30}, {279, 90, 80, 40}}));
        // 60 + 10 + 100 are 170: a pixel less, and each has a row of its own.
        QCOMPARE(window.placesIn(169), Places({{209, 50, 60, 30}, {169, 90, 100, 30}, {189, 130, 80, 40}}));
    }

    void hasItsFirstAtTheLeftWhereThatStandsApart() {
        Window window({kSmall, kWide, kHigh});
        window.row->setFirstApart(true);
        QCOMPARE(window.placesIn(300), Places({{100, 50, 60, 30}, {210, 50, 100, 30}, {320, 50, 80, 40}}));
    }

    void ofFramesSharesItsWholeWidthInRowsOfOneHeight() {
        Window window({kSmall, kWide, kHigh});
        window.row->setFilled(true);
        // 290 less 260 are 30, ten more for each; all are as high as the highest.
        QCOMPARE(window.placesIn(290), Places({{100, 50, 70, 40}, {180, 50, 110, 40}, {300, 50, 90, 40}}));
        // Two in the first row share 230 - 170 = 60; the third has the second row for itself.
        QCOMPARE(window.placesIn(230), Places({{100, 50, 90, 30}, {200, 50, 130, 30}, {100, 90, 230, 40}}));
        // Never wider than the row.
        QCOMPARE(window.placesIn(50), Places({{100, 50, 50, 30}, {100, 90, 50, 30}, {100, 130, 50, 40}}));
    }

    void isAsHighAsItsRowsWithTheGapsBetweenThem() {
        Window window({kSmall, kWide, kHigh});
        QVERIFY(window.row->hasHeightForWidth());
        QCOMPARE(window.row->heightForWidth(260), 40);
        QCOMPARE(window.row->heightForWidth(259), 30 + 10 + 40);
        QCOMPARE(window.row->heightForWidth(169), 30 + 10 + 30 + 10 + 40);
        QCOMPARE(Window({}).row->heightForWidth(100), 0);
    }

    void wouldLikeToBeOneRowAndCanDoWithItsWidestPiece() {
        Window window({kSmall, kWide, kHigh});
        QCOMPARE(window.row->sizeHint(), QSize(260, 40));
        QCOMPARE(window.row->minimumSize(), QSize(50, 20));
        QCOMPARE(Window({}).row->sizeHint(), QSize(0, 0));
    }

    void leavesNoRoomForWhatIsHidden() {
        Window window({kSmall, kWide, kHigh});
        window.pieces[1]->hide();
        QCOMPARE(window.row->sizeHint(), QSize(60 + 10 + 80, 40));
        QCOMPARE(window.row->heightForWidth(150), 40);
        window.row->setGeometry(QRect(0, 0, 200, 100));
        QCOMPARE(window.pieces[0]->geometry(), QRect(50, 0, 60, 30));
        QCOMPARE(window.pieces[2]->geometry(), QRect(120, 0, 80, 40));
        window.pieces[2]->hide();
        QCOMPARE(window.row->minimumSize(), QSize(30, 15));
    }

    void givesItsItemsByNumberAndTakesThemOut() {
        Window window({kSmall, kWide});
        QCOMPARE(window.row->count(), 2);
        QCOMPARE(window.row->itemAt(1)->widget(), window.pieces[1]);
        QCOMPARE(window.row->itemAt(2), nullptr);
        QCOMPARE(window.row->takeAt(2), nullptr);
        QCOMPARE(window.row->takeAt(-1), nullptr);
        QLayoutItem* const first = window.row->takeAt(0);
        QCOMPARE(first->widget(), window.pieces[0]);
        delete first;
        QCOMPARE(window.row->count(), 1);
        QCOMPARE(window.row->itemAt(0)->widget(), window.pieces[1]);
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::FlowRowTest)
#include "FlowRowTest.moc"
