#include <QtTest>

#include "screens/HitModel.h"
#include "screens/HitTable.h"

namespace norlaplan::testing {
namespace {

/// Two rows as a search leaves them, at 3000 rpm: the first keeps the speed, the second doesn't.
ProgramState twoRows(double speed) {
    ProgramState state;
    state.loads.speed = speed;
    state.search.rows = {
        {"K13008XP0", "3000", "1234567890", "46912", "5.1181", "5.7480", "0.3150", "CALL"},
        {"K14008XP0", "2999", "98765", "0", "5.5118", "6.1417", "0.3150", "YES "},
    };
    return state;
}

QStringList texts(const QStandardItemModel& model, int row) {
    QStringList cells;
    for (int column = kNameColumn; column < kHitColumns; ++column)
        cells.append(model.index(row, column).data().toString());
    return cells;
}

QStringList heads(const QStandardItemModel& model) {
    QStringList cells;
    for (int column = kNameColumn; column < kHitColumns; ++column)
        cells.append(model.headerData(column, Qt::Horizontal).toString().replace('\n', ' '));
    return cells;
}

class HitModelTest : public QObject {
    Q_OBJECT

  private slots:
    void eachColumnShowsItsPartOfTheRow() {
        QStandardItemModel model;
        fillHitModel(model, twoRows(3000.0), true);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(texts(model, 0), (QStringList{"K13008XP0", "5.1181", "5.7480", "0.3150", "1.23E+09",
                                               "46,912", "3,000", "CALL", "", ""}));
        QCOMPARE(texts(model, 1), (QStringList{"K14008XP0", "5.5118", "6.1417", "0.3150", "9.88E+04", "0",
                                               "2,999", "YES", "Over Speed!", ""}));
    }

    void theHeadsCarryTheUnits() {
        QStandardItemModel model;
        ProgramState state = twoRows(3000.0);
        fillHitModel(model, state, true);
        QCOMPARE(heads(model), (QStringList{"Bearing", "Bore (inches)", "O.D. (inches)", "Height (inches)",
                                            "L10 life (rev.)", "L10 life (hours)", "Limit speed (rpm)",
                                            "Stock", "Speed check", "Life check"}));
        ApplyUnitSystem("METRIC", state.units);
        fillHitModel(model, state, true);
        QCOMPARE(heads(model).mid(1, 3), (QStringList{"Bore (mm)", "O.D. (mm)", "Height (mm)"}));
    }

    void figuresAndTheirHeadsStandAtTheRightAndWordsAtTheLeft() {
        QStandardItemModel model;
        fillHitModel(model, twoRows(3000.0), true);
        for (int column = kNameColumn; column < kHitColumns; ++column) {
            const bool words = column == kNameColumn || column == kStockColumn || column >= kMarkColumn;
            const QVariant cell = model.index(0, column).data(Qt::TextAlignmentRole);
            const QVariant head = model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
            QCOMPARE(Qt::Alignment(cell.toInt()),
                     (words ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
            QCOMPARE(head.toInt(), cell.toInt());
        }
    }

    void aRebuiltLineHasNoMarkAndTheColumnHasItStill() {
        QStandardItemModel model;
        fillHitModel(model, twoRows(3000.0), true);
        QVERIFY(model.index(1, kLineColumn).data().toString().endsWith("   Over Speed!"));
        fillHitModel(model, twoRows(3000.0), false);
        QCOMPARE(model.index(1, kLineColumn).data().toString(),
                 QString("K14008XP0    9.88E+04 revs.    0.00E+00 hrs.    STOCK - YES "));
        QCOMPARE(model.index(1, kMarkColumn).data().toString(), QString("Over Speed!"));
    }

    void withNoSpeedThereAreNoHoursAndNoMarks() {
        QStandardItemModel model;
        ProgramState state = twoRows(0.0);
        fillHitModel(model, state, true);
        for (int row = 0; row < 2; ++row) {
            QCOMPARE(model.index(row, kHoursColumn).data().toString(), QString());
            QCOMPARE(model.index(row, kHoursColumn).data(kPlainTextRole).toString(), QString());
            QCOMPARE(model.index(row, kMarkColumn).data().toString(), QString());
            QVERIFY(!model.index(row, kLineColumn).data().toString().contains("hrs."));
        }
        // A limit below no speed at all is none that is passed.
        state.search.rows[0].speedLimit = "-5";
        fillHitModel(model, state, true);
        QCOMPARE(model.index(0, kMarkColumn).data().toString(), QString());
    }

    void aNewListTakesThePlaceOfTheOneBefore() {
        QStandardItemModel model;
        ProgramState state = twoRows(3000.0);
        fillHitModel(model, state, true);
        state.search.rows.erase(state.search.rows.begin());
        fillHitModel(model, state, true);
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.index(0, kNameColumn).data().toString(), QString("K14008XP0"));
    }

    void everyColumnOfARowIsSortedByAndFoundAgain() {
        for (int sort = kSortByName; sort <= kSortByAvailability; ++sort)
            QCOMPARE(sortColumnOf(columnSortedBy(sort)), sort);
        QCOMPARE(sortColumnOf(kLineColumn), 0);
        QCOMPARE(sortColumnOf(kMarkColumn), 0);
        QCOMPARE(sortColumnOf(kCheckColumn), 0);
        QCOMPARE(columnSortedBy(0), -1);
    }

    void theCopyHoldsHeadsAndAllDigitsOfTheColumnsOnShow() {
        QStandardItemModel model;
        HitTable table("List1");
        table.setModel(&model);
        fillHitModel(model, twoRows(3000.0), true);
        table.layOutColumns(true, false);
        QCOMPARE(table.tabSeparated(),
                 QString("Bearing\tBore (inches)\tO.D. (inches)\tHeight (inches)\tL10 life (rev.)\t"
                         "L10 life (hours)\tLimit speed (rpm)\tStock\tSpeed check\n"
                         "K13008XP0\t5.1181\t5.7480\t0.3150\t1234567890\t46912\t3000\tCALL\t\n"
                         "K14008XP0\t5.5118\t6.1417\t0.3150\t98765\t0\t2999\tYES\tOver Speed!\n"));
        fillHitModel(model, twoRows(0.0), true);
        table.layOutColumns(false, false);
        QCOMPARE(table.tabSeparated().section('\n', 1, 1),
                 QString("K13008XP0\t5.1181\t5.7480\t0.3150\t1234567890\t3000\tCALL"));
        QVERIFY(!table.tabSeparated().contains("hours"));
    }

    void aRowWhoseLifeIsNotToBeTrustedIsMarkedAndTellsWhyByItsTipAndAloud() {
        QStandardItemModel model;
        ProgramState state = twoRows(0.0);
        state.search.rows[0].checks.unbalanced = true;
        state.search.rows[1].checks = {true, 28572300.0};
        fillHitModel(model, state, true);
        const QString unbalanced = "The ball loads do not balance the applied loads.";
        const QString both = unbalanced + "\nRow 2 has the shorter life: 28,572,300 revolutions";
        QCOMPARE(model.index(0, kCheckColumn).data().toString(), QString("Unbalanced"));
        QCOMPARE(model.index(1, kCheckColumn).data().toString(), QString("Unbalanced, row 2"));
        for (const int role : {int(Qt::ToolTipRole), int(Qt::AccessibleTextRole)}) {
            QCOMPARE(model.index(0, kCheckColumn).data(role).toString(), unbalanced);
            QCOMPARE(model.index(1, kCheckColumn).data(role).toString(), both);
        }
        HitTable table("List1");
        table.setModel(&model);
        table.layOutColumns(false, hasChecks(state));
        QVERIFY(table.tabSeparated().section('\n', 0, 0).endsWith("\tStock\tLife check"));
        QVERIFY(table.tabSeparated().section('\n', 1, 1).endsWith("\tCALL\tunbalanced"));
        QVERIFY(table.tabSeparated().section('\n', 2, 2).endsWith("\tYES\tunbalanced; row 2 shorter"));
        QVERIFY(!hasChecks(twoRows(0.0)));
    }

    void rowsHaveTheHeightThatAPersonReadsWithEase() {
        QStandardItemModel model;
        HitTable table("List1");
        table.setModel(&model);
        fillHitModel(model, twoRows(3000.0), true);
        const int line = table.fontMetrics().height();
        const int row = table.visualRect(model.index(0, kNameColumn)).height();
        QVERIFY2(row >= line * 4 / 3 && row <= line * 2, qPrintable(QString::number(row)));
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::HitModelTest)
#include "HitModelTest.moc"
