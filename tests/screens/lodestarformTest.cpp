#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QTreeView>

#include "numbers/Text.h"
#include "screens/AnalysisProgram.h"
#include "screens/controls/AnalysisControls.h"
#include "screens/controls/ControlsOfAForm.h"
#include "support/HandPictures.h"

namespace norlaplan::testing {
namespace {

/// The screen of the balls, opened through the analysis.
struct Balls : Analysis {
    using Analysis::Analysis;

    void open(const char* number, const char* radial = "500", const char* axial = "200",
              const char* moment = "100") {
        solve(number, radial, axial, moment);
        openAnalysis();
        click(forms::kAnalysis, "Command1");
        QApplication::processEvents();
    }
    QTreeView& grid(int row) {
        return control<QTreeView>(forms::kBallResults, row == 1 ? "MSFlexGrid1" : "MSFlexGrid3");
    }
    QString cell(int row, int line, int column) {
        return grid(row).model()->index(line, column).data().toString();
    }
    QStringList column(int row, int column) {
        QStringList texts;
        for (int line = 0; line < grid(row).model()->rowCount(); ++line)
            texts.append(cell(row, line, column));
        return texts;
    }
    void clickHead(int row, int column) {
        QHeaderView& head = *grid(row).header();
        const QPoint middle(head.sectionViewportPosition(column) + head.sectionSize(column) / 2,
                            head.height() / 2);
        QTest::mouseClick(head.viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    }
};

/// The cells of a ball, by pictures written out by hand.
QStringList cellsByHand(const SolverState& s, int row, int ball) {
    using namespace hand;
    const auto twice = [](double half) { return QString::fromStdString(fixedPoint(2.0 * half, 4)); };
    return {QString::number(ball),
            QString::fromStdString(pointed(s.BallDeflection(row, ball), 6)),
            QString::fromStdString(plainText(s.BallLoad(row, ball))).left(5),
            QString::fromStdString(s.BallAngleText(row, ball)).trimmed(),
            QString::fromStdString(grouped(s.InnerStress(row, ball))),
            QString::fromStdString(grouped(s.OuterStress(row, ball))),
            twice(s.InnerSemiMajor(row, ball)),
            twice(s.InnerSemiMinor(row, ball)),
            twice(s.OuterSemiMajor(row, ball)),
            twice(s.OuterSemiMinor(row, ball))};
}

class lodestarformTest : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kBallResults, {kAnalysisRows, analysisScenes()}), QStringList());
    }

    void showsALineForEveryBallOfBothRows_data() { stylesAndUnits(); }
    void showsALineForEveryBallOfBothRows() {
        QFETCH(QString, number);
        QFETCH(QString, units);
        Balls program(units.toStdString());
        program.open(qPrintable(number));
        QCOMPARE(program.screens.current()->windowTitle(), QString("INDIVIDUAL BALL DATA"));
        for (const char* const frame : {"Frame1", "Frame4"})
            QVERIFY(program.control<QWidget>(forms::kBallResults, frame).isVisible());
        const SolverState& solver = program.state.solver;
        for (const int row : {1, 2}) {
            QCOMPARE(program.grid(row).model()->rowCount(), int{program.state.bearing.ballCount});
            for (int ball = 1; ball <= program.state.bearing.ballCount; ++ball) {
                const QStringList expected = cellsByHand(solver, row, ball);
                for (int column = 0; column < 10; ++column)
                    QCOMPARE(program.cell(row, ball - 1, column), expected[column]);
            }
        }
    }

    void theHeadsStandInTwoLines() {
        Balls program;
        program.open("K19013XP0");
        const QStringList heads = {"Ball\nNo.",
                                   "Ball\nDefl. (in)",
                                   "Normal\nForce (lb)",
                                   "Contact\nAngle",
                                   "Max. Hertz\nInner Race",
                                   "Stress (PSI)\nOuter Race",
                                   "Inner\nMajor Dia",
                                   "Ellipse (in)\nMinor Dia",
                                   "Outer\nMajor Dia",
                                   "Ellipse (in)\nMinor Dia"};
        for (const int row : {1, 2}) {
            QCOMPARE(program.grid(row).model()->columnCount(), 10);
            for (int column = 0; column < 10; ++column)
                QCOMPARE(program.grid(row).model()->headerData(column, Qt::Horizontal).toString(),
                         heads[column]);
        }
    }

    void theColumnsShareTheWindowInTheirProportion() {
        Balls program;
        program.open("K19013XP0");
        const QHeaderView& head = *program.grid(1).header();
        const std::array<double, 9> twips = {400, 800, 800, 700, 950, 950, 850, 850, 850};
        for (int column = 1; column < 9; ++column) {
            const double ratio = double(head.sectionSize(column)) / head.sectionSize(1);
            QVERIFY2(std::abs(ratio - twips[static_cast<std::size_t>(column)] / 800.0) < 0.25,
                     qPrintable(QString("%1: %2").arg(column).arg(ratio)));
        }
        for (int column = 1; column < 10; ++column) {
            const auto alignment =
                program.grid(1).model()->index(0, column).data(Qt::TextAlignmentRole).toInt();
            QCOMPARE(Qt::Alignment(alignment), Qt::AlignHCenter | Qt::AlignVCenter);
        }
    }

    void theSecondRowOfARadialBearingCarriesNothing() {
        Balls program;
        program.open("K19013CP0", "500", "", "");
        for (int line = 0; line < program.state.solver.BallCount; ++line) {
            QCOMPARE(program.cell(2, line, 2), QString("0"));
            QCOMPARE(program.cell(2, line, 4), QString());
        }
        QVERIFY(program.messages.shown.empty());
    }

    void aHeadSortsByTheNumbersAndASecondClickTurnsTheOrder_data() {
        QTest::addColumn<int>("column");
        QTest::newRow("number") << 0;
        QTest::newRow("force") << 2;
        QTest::newRow("stress") << 4;
        QTest::newRow("ellipse") << 9;
    }
    void aHeadSortsByTheNumbersAndASecondClickTurnsTheOrder() {
        QFETCH(int, column);
        Balls program;
        program.open("K19013XP0", "1000", "0", "500");
        const auto numbers = [&] {
            std::vector<double> values;
            for (const QString& ball : program.column(1, 0)) {
                const SolverState& s = program.state.solver;
                const int i = ball.toInt();
                values.push_back(column == 0   ? i
                                 : column == 2 ? s.BallLoad(1, i)
                                 : column == 4 ? double{s.InnerStress(1, i)}
                                               : double{s.OuterSemiMinor(1, i)});
            }
            return values;
        };
        program.clickHead(1, column == 0 ? 2 : column);
        if (column == 0) program.clickHead(1, 0);
        std::vector<double> order = numbers();
        const bool rising = program.grid(1).header()->sortIndicatorOrder() == Qt::AscendingOrder;
        QVERIFY(rising ? std::is_sorted(order.begin(), order.end())
                       : std::is_sorted(order.rbegin(), order.rend()));
        QVERIFY(order.front() != order.back());
        program.clickHead(1, column);
        order = numbers();
        QVERIFY(rising ? std::is_sorted(order.rbegin(), order.rend())
                       : std::is_sorted(order.begin(), order.end()));
        // The other row keeps its order.
        QCOMPARE(program.cell(2, 0, 0), QString("1"));
        QCOMPARE(program.cell(2, 9, 0), QString("10"));
    }

    void ballsWithoutLoadComeBeforeEveryContactAngle() {
        Balls program;
        program.open("K19013XP0", "1000", "0", "500");
        QVERIFY(program.column(1, 3).contains("N/A"));
        program.grid(1).sortByColumn(3, Qt::AscendingOrder);
        const QStringList angles = program.column(1, 3);
        const auto free = angles.count("N/A");
        QVERIFY(free > 0 && free < angles.size());
        for (int i = 0; i < free; ++i)
            QCOMPARE(angles[i], QString("N/A"));
        for (qsizetype i = free + 1; i < angles.size(); ++i)
            QVERIFY(angles[i - 1].toDouble() <= angles[i].toDouble());
    }

    void theSpaceBarSortsByTheColumnOfTheCell() {
        Balls program;
        program.open("K19013XP0", "1000", "0", "500");
        QApplication::setActiveWindow(program.screens.current());
        QTreeView& grid = program.grid(1);
        grid.setFocus();
        grid.setCurrentIndex(grid.model()->index(0, 2));
        const auto loads = [&] {
            std::vector<double> values;
            for (const QString& ball : program.column(1, 0))
                values.push_back(program.state.solver.BallLoad(1, ball.toInt()));
            return values;
        };
        QTest::keyClick(&grid, Qt::Key_Space);
        std::vector<double> order = loads();
        QVERIFY(std::is_sorted(order.begin(), order.end()));
        grid.setCurrentIndex(grid.model()->index(0, 2));
        QTest::keyClick(&grid, Qt::Key_Space);
        order = loads();
        QVERIFY(std::is_sorted(order.rbegin(), order.rend()));
    }

    void theCopyHoldsHeadsAndAllDigitsInTheOrderOnShow() {
        Balls program;
        program.open("K19013XP0", "1000", "0", "500");
        QApplication::setActiveWindow(program.screens.current());
        QTreeView& grid = program.grid(1);
        grid.sortByColumn(2, Qt::DescendingOrder);
        grid.setFocus();
        QApplication::clipboard()->clear();
        QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = QApplication::clipboard()->text().split('\n');
        const SolverState& s = program.state.solver;
        QCOMPARE(lines.size(), s.BallCount + 2);
        QCOMPARE(lines[0], QString("Ball No.\tBall Defl. (in)\tNormal Force (lb)\tContact Angle\tMax. Hertz "
                                   "Inner Race\tStress (PSI) Outer Race\tInner Major Dia\tEllipse (in) Minor "
                                   "Dia\tOuter Major Dia\tEllipse (in) Minor Dia"));
        QCOMPARE(lines.last(), QString());
        const QStringList first = lines[1].split('\t');
        QCOMPARE(first.size(), 10);
        QCOMPARE(first[0].toInt(), int{s.MaxBallNumber});
        const int ball = s.MaxBallNumber;
        QCOMPARE(first[1].toDouble(), s.BallDeflection(1, ball));
        QCOMPARE(first[2].toDouble(), s.BallLoad(1, ball));
        QCOMPARE(first[4].toFloat(), s.InnerStress(1, ball).stored());
        QCOMPARE(first[9].toFloat(), 2.0F * s.OuterSemiMinor(1, ball).stored());
        QVERIFY(!lines[1].contains(','));
        QVERIFY(lines[s.BallCount].contains("\tN/A\t"));
    }

    void anEditedBallCountLeavesTheLinesOfTheSolve() {
        Analysis program;
        program.solve("K19013XP0");
        program.openAnalysis();
        const int balls = program.state.solver.BallCount;
        program.enter("Text3", "3");
        program.click(forms::kAnalysis, "Command1");
        QCOMPARE(program.control<QTreeView>(forms::kBallResults, "MSFlexGrid1").model()->rowCount(), balls);
    }

    void theNextSolveShowsItsOwnBallsInTheirOrder() {
        Balls program;
        program.open("K19013XP0");
        program.grid(1).sortByColumn(2, Qt::DescendingOrder);
        program.click(forms::kBallResults, "Command2");
        QCOMPARE(program.inFront(), std::string(forms::kLife));
        program.open("K10013BP0C", "300", "100", "");
        QCOMPARE(program.grid(1).model()->rowCount(), int{program.state.bearing.ballCount});
        QCOMPARE(program.cell(1, 0, 0), QString("1"));
        QCOMPARE(program.cell(1, 0, 2), cellsByHand(program.state.solver, 1, 1)[2]);
        QCOMPARE(program.control<QLabel>(forms::kBallResults, "Label1").text(), QString("K10013BP0C"));
    }

    void leadsBackToTheAnalysis() {
        Balls program;
        program.open("K19013XP0");
        program.click(forms::kBallResults, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kAnalysis));
        program.click(forms::kAnalysis, "Command3");
        QCOMPARE(program.inFront(), std::string(forms::kLife));
    }

    void beforeASolveThereAreHeadsAlone() {
        Program program;
        program.screens.show(forms::kBallResults);
        const auto& grid = program.control<QTreeView>(forms::kBallResults, "MSFlexGrid1");
        QCOMPARE(grid.model()->columnCount(), 10);
        QCOMPARE(grid.model()->rowCount(), 0);
        QVERIFY(program.messages.shown.empty());
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::lodestarformTest)
#include "lodestarformTest.moc"
