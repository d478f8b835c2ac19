#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

#include "screens/HitModel.h"
#include "screens/HitTable.h"
#include "screens/Program.h"
#include "screens/Theme.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/ResultsControls.h"
#include "state/LoadEntry.h"
#include "state/SizeEntry.h"

namespace norlaplan::testing {
namespace {

/// A search for 4-point contact bearings with a handful of results, opened from the main menu.
struct Results : Program {
    explicit Results(const char* speed = "3000")
        : Results("US", {"4-POINT CONTACT", "X"}, {"5", "7", ".2", "1.2", "500", "200", "100", speed}) {}
    Results(const char* units, const BearingStyle& style, const EntryTexts& entries) {
        useUnits(units);
        state.style = style;
        state.styleChosen = true;
        state.entries = entries;
        enterSizes(state);
        enterLoads(state);
        screens.showAlone(forms::kMainMenu);
        click(forms::kMainMenu, "Command7");
    }
    QComboBox& list() { return control<QComboBox>(forms::kResults, "Combo1"); }
    HitTable& table() { return control<HitTable>(forms::kResults, "List1"); }
    QString cell(int row, int column) { return table().model()->index(row, column).data().toString(); }
    QString chosen() { return control<QGroupBox>(forms::kResults, "Frame5").title(); }
    std::vector<SearchHit> rows() const { return state.search.rows; }

    void clickHead(int column) {
        QHeaderView& heads = *table().header();
        const int x = heads.sectionViewportPosition(column) + heads.sectionSize(column) / 2;
        QTest::mouseClick(heads.viewport(), Qt::LeftButton, {}, {x, heads.height() / 2});
    }
    void sortOnTheSortScreen(const char* column, const char* direction) {
        click(forms::kResults, "Command5");
        control<QRadioButton>(forms::kSort, column).setChecked(true);
        control<QRadioButton>(forms::kSort, direction).setChecked(true);
        click(forms::kSort, "Command1");
    }
    /// The form in front, in a room of this size.
    Form& inRoom(int width, int height) {
        Form& form = *screens.current();
        form.prepareToShow(QRect(0, 0, width, height));
        QApplication::processEvents();
        return form;
    }
    bool isMarked(const char* option) { return control<QRadioButton>(forms::kSort, option).isChecked(); }
};

/// The columns that both ways of sorting know, with the option of the sort screen.
constexpr struct {
    int column;
    const char* option;
} kBothWays[] = {
    {kBoreColumn, "Option1"}, {kOdColumn, "Option2"}, {kLifeColumn, "Option3"}, {kStockColumn, "Option4"}};

double figureOf(const std::string& text) {
    return QString::fromStdString(text).toDouble();
}

class ResultsListTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { theme::apply(); }

    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kResults, {kResultsRows, resultsScenes()}), QStringList());
        QCOMPARE(controlsThatDiffer(forms::kSort, {kResultsRows, resultsScenes()}), QStringList());
    }

    void theTableHoldsWhatTheRowsHold() {
        Results program;
        const std::vector<SearchHit> rows = program.rows();
        QVERIFY(rows.size() > 4);
        QCOMPARE(program.table().model()->rowCount(), static_cast<int>(rows.size()));
        for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
            const SearchHit& hit = rows[static_cast<std::size_t>(row)];
            const auto plain = [&](int column) {
                return program.table().model()->index(row, column).data(kPlainTextRole).toString();
            };
            QCOMPARE(program.cell(row, kNameColumn), QString::fromStdString(hit.name));
            QCOMPARE(program.cell(row, kBoreColumn), QString::fromStdString(hit.boreText));
            QCOMPARE(program.cell(row, kOdColumn), QString::fromStdString(hit.odText));
            QCOMPARE(program.cell(row, kHeightColumn), QString::fromStdString(hit.heightText));
            QCOMPARE(plain(kLifeColumn), QString::fromStdString(hit.l10Revolutions));
            QCOMPARE(plain(kHoursColumn), QString::fromStdString(hit.l10Hours));
            QCOMPARE(plain(kLimitSpeedColumn), QString::fromStdString(hit.speedLimit));
            QCOMPARE(program.cell(row, kStockColumn), QString::fromStdString(hit.stock).trimmed());
            QCOMPARE(program.cell(row, kMarkColumn) == "Over Speed!", figureOf(hit.speedLimit) < 3000.0);
        }
    }

    void withNoSpeedTheColumnsOfASpeedAreNotThere() {
        Results with;
        QVERIFY(!with.table().isColumnHidden(kHoursColumn) && !with.table().isColumnHidden(kMarkColumn));
        Results without("");
        QVERIFY(without.table().isColumnHidden(kHoursColumn) && without.table().isColumnHidden(kMarkColumn));
        QVERIFY(!without.table().isColumnHidden(kLimitSpeedColumn));
        QVERIFY(with.table().isColumnHidden(kLineColumn) && without.table().isColumnHidden(kLineColumn));
    }

    void aHeadSortsAsTheSortScreenDoes() {
        for (const auto& [column, option] : kBothWays) {
            Results byHead, byScreen;
            byHead.clickHead(column);
            byScreen.sortOnTheSortScreen(option, "Option5");
            QCOMPARE(byHead.rows(), byScreen.rows());
            byHead.clickHead(column);
            byScreen.sortOnTheSortScreen(option, "Option6");
            QCOMPARE(byHead.rows(), byScreen.rows());
            QCOMPARE(byHead.table().model()->rowCount(), static_cast<int>(byHead.rows().size()));
            QCOMPARE(byHead.cell(0, kNameColumn), QString::fromStdString(byHead.rows()[0].name));
        }
    }

    void theArrowAndTheSortScreenAgree() {
        Results program;
        QCOMPARE(program.table().header()->sortIndicatorSection(), -1);
        for (const auto& [column, option] : kBothWays) {
            program.sortOnTheSortScreen(option, "Option6");
            QCOMPARE(program.table().header()->sortIndicatorSection(), column);
            QCOMPARE(program.table().header()->sortIndicatorOrder(), Qt::DescendingOrder);
            program.clickHead(column);
            QCOMPARE(program.table().header()->sortIndicatorOrder(), Qt::AscendingOrder);
            program.click(forms::kResults, "Command5");
            QVERIFY(program.isMarked(option) && program.isMarked("Option5"));
            program.screens.form(forms::kSort).close();
        }
    }

    void theOtherHeadsSortByTheirValues() {
        const struct {
            int column;
            std::string SearchHit::*text;
        } others[] = {{kHeightColumn, &SearchHit::heightText},
                      {kHoursColumn, &SearchHit::l10Hours},
                      {kLimitSpeedColumn, &SearchHit::speedLimit}};
        for (const auto& [column, text] : others) {
            Results program;
            auto expected = program.rows();
            std::stable_sort(expected.begin(), expected.end(),
                             [text = text](const SearchHit& a, const SearchHit& b) {
                                 return figureOf(a.*text) > figureOf(b.*text);
                             });
            program.clickHead(column);
            program.clickHead(column);
            QCOMPARE(program.rows(), expected);
            QCOMPARE(program.table().header()->sortIndicatorSection(), column);
        }
        Results program;
        program.clickHead(kNameColumn);
        const auto rows = program.rows();
        QVERIFY(std::is_sorted(rows.begin(), rows.end(),
                               [](const SearchHit& a, const SearchHit& b) { return a.name < b.name; }));
    }

    void theMarkIsNothingToSortBy() {
        Results program;
        const auto before = program.rows();
        program.clickHead(kMarkColumn);
        QCOMPARE(program.rows(), before);
        QCOMPARE(program.table().header()->sortIndicatorSection(), -1);
        QVERIFY(program.list().itemText(0).endsWith("Over Speed!"));
    }

    void afterASortTheTableStillHasTheMarksAndTheLinesHaveNone() {
        Results program;
        program.clickHead(kBoreColumn);
        int marks = 0;
        for (int row = 0; row < program.list().count(); ++row) {
            QVERIFY(!program.list().itemText(row).contains("Over Speed!"));
            if (program.cell(row, kMarkColumn) == "Over Speed!") ++marks;
        }
        const auto rows = program.rows();
        QCOMPARE(marks, static_cast<int>(std::count_if(rows.begin(), rows.end(), [](const SearchHit& hit) {
                     return figureOf(hit.speedLimit) < 3000.0;
                 })));
        QVERIFY(marks > 0);
    }

    void aSortByAHeadKeepsTheChoiceAndOneOnTheSortScreenShowsTheFirstLine() {
        Results program;
        program.list().setCurrentIndex(2);
        const QString chosen = program.chosen();
        program.clickHead(kLifeColumn);
        program.clickHead(kLifeColumn);
        QCOMPARE(program.chosen(), chosen);
        QCOMPARE(program.cell(program.list().currentIndex(), kNameColumn), chosen);
        QCOMPARE(program.table().currentIndex().row(), program.list().currentIndex());
        program.sortOnTheSortScreen("Option3", "Option5");
        QCOMPARE(program.list().currentIndex(), 0);
        QCOMPARE(program.chosen(), program.cell(0, kNameColumn));
    }

    void arrowsChooseAndEnterLeadsToTheDataSheet() {
        Results program;
        QCOMPARE(program.screens.current()->focusWidget(), &program.table());
        QTest::keyClick(&program.table(), Qt::Key_Down);
        QCOMPARE(program.list().currentIndex(), 1);
        QCOMPARE(program.chosen(), program.cell(1, kNameColumn));
        QTest::keyClick(&program.table(), Qt::Key_Return);
        QCOMPARE(program.inFront(), std::string(forms::kDataSheet));
        QCOMPARE(program.state.bearing.partNumber, program.rows()[1].name);
    }

    void aDoubleClickLeadsToTheDataSheetOfItsRow() {
        Results program;
        const QPoint place =
            program.table().visualRect(program.table().model()->index(2, kNameColumn)).center();
        QTest::mouseClick(program.table().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(program.table().viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(program.inFront(), std::string(forms::kDataSheet));
        QCOMPARE(program.state.bearing.partNumber, program.rows()[2].name);
    }

    void theClosedDataSheetLeadsBackToTheListAsItWas() {
        Results program;
        program.clickHead(kLifeColumn);
        program.list().setCurrentIndex(3);
        const auto rows = program.rows();
        const QString chosen = program.chosen();
        program.click(forms::kResults, "Command4");
        QTest::keyClick(program.screens.current(), Qt::Key_Escape);
        QCOMPARE(program.inFront(), std::string(forms::kResults));
        QCOMPARE(program.rows(), rows);
        QCOMPARE(program.list().currentIndex(), 3);
        QCOMPARE(program.chosen(), chosen);
        QCOMPARE(program.table().header()->sortIndicatorSection(), int(kLifeColumn));
    }

    void theMainMenuOfTheDataSheetLeadsToTheMenu() {
        Results program;
        program.click(forms::kResults, "Command4");
        program.click(forms::kDataSheet, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
    }

    void aNewSearchFindsTheChoiceAgain() {
        Results program;
        program.list().setCurrentIndex(3);
        const QString chosen = program.chosen();
        program.click(forms::kResults, "Command2");
        program.click(forms::kLoads, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kResults));
        QCOMPARE(program.chosen(), chosen);
        QCOMPARE(program.list().currentIndex(), 3);
        // In a wider envelope it stands at another place.
        program.state.entries.minBore = "4";
        enterSizes(program.state);
        program.screens.showAlone(forms::kMainMenu);
        program.click(forms::kMainMenu, "Command7");
        QCOMPARE(program.chosen(), chosen);
        QVERIFY(program.list().currentIndex() > 3);
        QCOMPARE(program.cell(program.table().currentIndex().row(), kNameColumn), chosen);
    }

    void aChoiceThatIsNotListedAnyMoreGivesWayToTheFirstRow() {
        Results program;
        program.list().setCurrentIndex(0);
        const QString before = program.chosen();
        program.state.entries.minBore = "5.3";
        enterSizes(program.state);
        program.screens.showAlone(forms::kMainMenu);
        program.click(forms::kMainMenu, "Command7");
        QCOMPARE(program.list().currentIndex(), 0);
        QVERIFY(program.chosen() != before);
    }

    void newForgetsTheChoice() {
        Results program;
        program.list().setCurrentIndex(2);
        program.screens.showAlone(forms::kMainMenu);
        program.control<QAction>(forms::kMainMenu, "New").trigger();
        QCOMPARE(program.state.search.chosenName, std::string());
    }

    void theTableIsCopiedByKeyAndByItsMenu() {
        Results program;
        QApplication::setActiveWindow(program.screens.current());
        program.table().setFocus();
        QApplication::clipboard()->clear();
        QTest::keyClick(&program.table(), Qt::Key_C, Qt::ControlModifier);
        const QString copied = QApplication::clipboard()->text();
        QCOMPARE(copied.count('\n'), program.list().count() + 1);
        QVERIFY(copied.startsWith("Bearing\tBore (inches)\t"));
        QCOMPARE(copied.section('\n', 1, 1).section('\t', 0, 0).toStdString(), program.rows()[0].name);
        QCOMPARE(copied.section('\n', 1, 1).section('\t', 4, 4).toStdString(),
                 program.rows()[0].l10Revolutions);
        QCOMPARE(program.table().contextMenuPolicy(), Qt::ActionsContextMenu);
        QApplication::clipboard()->clear();
        for (QAction* const action : program.table().actions()) {
            if (action->text() == "&Copy") action->trigger();
        }
        QCOMPARE(QApplication::clipboard()->text(), copied);
    }

    void theLongestNamesLeaveEveryColumnInSight() {
        Results program("METRIC", {"BACK-TO-BACK SET WITH SPACERS", "A"},
                        {"100", "228.6", "5", "30.48", "2224", "0", "0", "3000"});
        Form& form = *program.screens.current();
        QApplication::processEvents();
        // What a screen of 1024x768 leaves beside the borders and below a title bar.
        const QSize wanted = form.sizeHint();
        QVERIFY2(wanted.width() <= 1016 && wanted.height() <= 700,
                 qPrintable(QString("%1x%2").arg(wanted.width()).arg(wanted.height())));
        form.resize(form.sizeHint());
        QApplication::processEvents();
        QVERIFY(program.list().itemText(0).contains("W/ 14.480 spacers"));
        QCOMPARE(program.table().horizontalScrollBar()->maximum(), 0);
    }

    void onASmallScreenThePageGoesOnDownwardAndNotSideways() {
        Results program;
        const Form& form = program.inRoom(512, 384);
        QVERIFY(form.width() <= 512);
        const auto* const page = form.findChild<QScrollArea*>();
        QCOMPARE(page->horizontalScrollBar()->maximum(), 0);
        QVERIFY(page->verticalScrollBar()->maximum() > 0);
        const QWidget& sizes = program.control<QWidget>(forms::kResults, "Frame1");
        const QWidget& loads = program.control<QWidget>(forms::kResults, "Frame2");
        QVERIFY(loads.y() > sizes.y() + sizes.height() - 1);
        QCOMPARE(loads.x(), sizes.x());
    }

    void theFramesShareTheWidth() {
        Results program;
        program.inRoom(1024, 740);
        const QWidget& sizes = program.control<QWidget>(forms::kResults, "Frame1");
        const QWidget& style = program.control<QWidget>(forms::kResults, "Frame4");
        const QWidget& results = program.control<QWidget>(forms::kResults, "Frame3");
        QCOMPARE(style.y(), sizes.y());
        QCOMPARE(style.height(), sizes.height());
        QCOMPARE(sizes.x(), results.x());
        QVERIFY(results.geometry().right() - style.geometry().right() < 3);
    }

    void rowsWhoseLifeIsNotToBeTrustedAreMarkedAndTheChosenOneTellsWhy() {
        Results usual;
        QVERIFY(usual.table().isColumnHidden(kCheckColumn));
        Results program("US", {"FACE-TO-FACE SET WITH SPACERS", "A"},
                        {".5", "4", ".1", "3", "10", "", "", ""});
        QVERIFY(!program.table().isColumnHidden(kCheckColumn));
        const auto& warning = program.control<QLabel>(forms::kResults, "Warning1");
        QApplication::processEvents();
        const QRect table = program.table().geometry();
        int marked = 0;
        for (int row = 0; row < program.list().count(); ++row) {
            const LifeChecks checks = program.rows()[static_cast<std::size_t>(row)].checks;
            program.list().setCurrentIndex(row);
            QApplication::processEvents();
            QCOMPARE(program.cell(row, kCheckColumn).startsWith("Unbalanced"), checks.unbalanced);
            QCOMPARE(warning.isVisible(), checks.any());
            QCOMPARE(program.cell(row, kLifeColumn).startsWith("! "), checks.any());
            QCOMPARE(
                program.table().model()->index(row, kLifeColumn).data(Qt::ToolTipRole).toString().isEmpty(),
                !checks.any());
            QCOMPARE(warning.text().startsWith("The ball loads do not balance the applied loads."),
                     checks.unbalanced);
            QCOMPARE(program.table().geometry(), table);
            marked += checks.unbalanced ? 1 : 0;
        }
        QVERIFY(marked > 0 && marked < program.list().count());
        QCOMPARE(warning.palette().color(QPalette::WindowText), theme::badColour(QGuiApplication::palette()));
    }

    void theChosenBearingMakesNothingJump() {
        Results program;
        QApplication::processEvents();
        const QSize window = program.screens.current()->size();
        const QRect table = program.table().geometry();
        QVERIFY(program.control<QGroupBox>(forms::kResults, "Frame5").isVisible());
        for (int row = 0; row < program.list().count(); ++row) {
            program.list().setCurrentIndex(row);
            QApplication::processEvents();
            QCOMPARE(program.screens.current()->size(), window);
            QCOMPARE(program.table().geometry(), table);
        }
        program.control<QGroupBox>(forms::kResults, "Frame5").hide();
        QApplication::processEvents();
        QCOMPARE(program.table().geometry(), table);
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::ResultsListTest)
#include "ResultsListTest.moc"
