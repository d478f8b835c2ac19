#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTimer>
#include <cmath>

#include "screens/SearchProgress.h"
#include "screens/SearchingUser.h"
#include "state/StyleTable.h"
#include "support/Folders.h"

namespace norlaplan::testing {
namespace {

/// From a style to a chosen bearing, by the controls that a user works with.
class SearchJourneyTest : public QObject {
    Q_OBJECT

  private:
    static void search(SearchingUser& program, std::size_t row, const char* speed = "") {
        program.chooseStyle(static_cast<int>(row) + 1);
        program.enterSizes("5", "9", ".2", "1.2");
        program.enterLoads("500", speed);
    }
    static QComboBox& list(Program& program) { return program.control<QComboBox>(forms::kResults, "Combo1"); }

  private slots:
    void listsWhatFitsForEveryStyle() {
        for (std::size_t row = 0; row < kStyles.size(); ++row) {
            SearchingUser program;
            search(program, row, "100");
            QCOMPARE(program.inFront(), std::string(forms::kResults));
            QCOMPARE(program.screens.form(forms::kResults).windowTitle(),
                     QString("LIFE CALCULATION RESULTS FOR ") + kStyles[row].caption);
            QVERIFY(list(program).count() > 0);
            QVERIFY(list(program).currentText().contains(" hrs.    STOCK - "));
            QVERIFY(program.control<QLabel>(forms::kResults, "Label8").isVisible());
            QVERIFY(program.control<QGroupBox>(forms::kResults, "Frame5").isVisible());
        }
    }

    void findsTheSameBearingsInBothUnits() {
        for (std::size_t row = 0; row < kStyles.size(); ++row) {
            SearchingUser us;
            us.useUnits("US");
            search(us, row, "100");
            SearchingUser metric;
            metric.useUnits("METRIC");
            metric.chooseStyle(static_cast<int>(row) + 1);
            metric.enterSizes("127", "228.6", "5.08", "30.48");
            metric.enterLoads("2224", "100");
            QCOMPARE(metric.inFront(), std::string(forms::kResults));
            QCOMPARE(list(metric).count(), list(us).count());
            for (std::size_t i = 0; i < us.state.search.rows.size(); ++i) {
                const SearchHit& inch = us.state.search.rows[i];
                const SearchHit& millimetre = metric.state.search.rows[i];
                QCOMPARE(millimetre.name.substr(0, 10), inch.name.substr(0, 10));
                const double bore = QString::fromStdString(millimetre.boreText).toDouble();
                QVERIFY(std::abs(bore / 25.4 - QString::fromStdString(inch.boreText).toDouble()) < 1e-4);
            }
            QVERIFY(metric.control<QLabel>(forms::kResults, "Label11").text().endsWith(" mm"));
            QCOMPARE(metric.control<QLabel>(forms::kResults, "Label5").text(), QString("RADIAL = 2224 N"));
        }
    }

    void setsTheLongLinesOfSetsWithSpacersInTheSmallerFont() {
        SearchingUser program;
        search(program, 0);
        QCOMPARE(list(program).font().families().value(0), QString("MS Sans Serif"));
        const double usual = list(program).font().pointSizeF();
        search(program, 3);
        QCOMPARE(list(program).font().families().value(0), QString("Small Fonts"));
        QCOMPARE(list(program).font().pointSizeF(), usual * 7.0 / 8.0);
        search(program, 1);
        QCOMPARE(list(program).font().pointSizeF(), usual);
    }

    void standsLowButWholeOnTheScreen() {
        SearchingUser program;
        search(program, 1);
        const Form& form = program.screens.form(forms::kResults);
        const QRect room = form.screen()->availableGeometry();
        QVERIFY(form.frameGeometry().bottom() <= room.bottom());
        // 9405 twips are 627 pixels; this screen holds the form only higher up.
        QVERIFY(form.y() == 627 || room.bottom() - form.frameGeometry().bottom() < 3);
    }

    void showsNoHoursWithoutASpeed() {
        SearchingUser program;
        search(program, 1);
        QVERIFY(!list(program).currentText().contains("hrs."));
        QVERIFY(!program.control<QLabel>(forms::kResults, "Label8").isVisible());
    }

    void wantsAStyleFirst() {
        SearchingUser program;
        program.screens.showAlone(forms::kMainMenu);
        program.click(forms::kMainMenu, "Command4");
        program.click(forms::kStyle, "Command1");
        QCOMPARE(program.lastMessage().title, std::string("No bearing style chosen"));
        QCOMPARE(program.inFront(), std::string(forms::kStyle));
    }

    void wantsEverySizeAndSwapsThoseInTheWrongOrder() {
        SearchingUser program;
        program.chooseStyle(2);
        program.click(forms::kSizes, "Command2");
        QCOMPARE(program.lastMessage().prompt, std::string("Please Enter Minimum Bore"));
        program.enterSizes("9", "5", "1.2", ".2");
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        QCOMPARE(program.state.criteria.minBore, Single(5.0));
        QCOMPARE(program.control<QLineEdit>(forms::kSizes, "Text1").text(), QString("5"));
    }

    void comesBackToTheSizesWhenNothingFits() {
        SearchingUser program;
        program.chooseStyle(2);
        program.enterSizes("1", "1.1", "1", "2");
        program.enterLoads("500");
        QCOMPARE(program.lastMessage().title, std::string("SEARCH PARAMETERS OUTSIDE OF SIZE RANGE"));
        QCOMPARE(program.inFront(), std::string(forms::kSizes));
    }

    void comesBackToTheLoadsWithARunTimeErrorWhenATableIsMissing() {
        SearchingUser program;
        program.chooseStyle(2);
        program.enterSizes("5", "9", ".2", "1.2");
        std::filesystem::remove(program.files.path() / "Data Tables");
        program.enterLoads("500");
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '53'"));
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        QVERIFY(program.state.search.rows.empty());
    }

    void holdsThreeHundredRowsAndTellsOfOneMoreAsARunTimeError() {
        SearchingUser program;
        const std::filesystem::path tables = program.files.path() / "Data Tables";
        std::filesystem::remove(tables);
        std::filesystem::copy(programFolder() / "Data Tables", tables);
        const auto writeRows = [&](int count) {
            std::string table = ",,,,,,,,,\r\n13,,,,,,,,,\r\n";
            for (int i = 0; i < count; ++i)
                table += "K10013XP0,1,100,126,0,0,0,.5,1,40\r\n";
            program.files.write("Data Tables/13-X.csv", table);
        };
        writeRows(300);
        program.chooseStyle(2);
        program.enterSizes("3.9", "5", ".5", "1.2");
        program.enterLoads("500");
        QCOMPARE(program.inFront(), std::string(forms::kResults));
        QCOMPARE(list(program).count(), 300);
        program.click(forms::kResults, "Command2");
        writeRows(301);
        program.click(forms::kLoads, "Command1");
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '9'"));
        QVERIFY(program.lastMessage().prompt.starts_with("Subscript out of range"));
        QCOMPARE(program.messages.shown.size(), std::size_t{1});
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        QVERIFY(program.state.search.rows.empty());
        QCOMPARE(program.control<QLineEdit>(forms::kLoads, "Text1").text(), QString("500"));
        QCOMPARE(program.state.entries.minBore, std::string("3.9"));
        writeRows(1);
        program.click(forms::kLoads, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kResults));
        QCOMPARE(list(program).count(), 1);
        QCOMPARE(program.control<QGroupBox>(forms::kResults, "Frame5").title(), QString("K10013XP0"));
    }

    void sortsByEveryColumnBothWays() {
        SearchingUser program;
        search(program, 1, "100");
        const struct {
            const char* option;
            std::string SearchHit::*column;
        } columns[] = {{"Option1", &SearchHit::boreText},
                       {"Option2", &SearchHit::odText},
                       {"Option3", &SearchHit::l10Revolutions},
                       {"Option4", &SearchHit::stock}};
        for (const auto& [option, column] : columns) {
            for (const char* const direction : {"Option5", "Option6"}) {
                program.click(forms::kResults, "Command5");
                program.control<QRadioButton>(forms::kSort, option).setChecked(true);
                program.control<QRadioButton>(forms::kSort, direction).setChecked(true);
                program.click(forms::kSort, "Command1");
                const auto value = [column = column](const SearchHit& hit) {
                    const std::string& text = hit.*column;
                    if (text == "YES ") return 0.0;
                    if (text == "CALL ") return 1.0;
                    return text == "NO " ? 2.0 : QString::fromStdString(text).toDouble();
                };
                const auto& rows = program.state.search.rows;
                for (std::size_t i = 1; i < rows.size(); ++i) {
                    const double step = value(rows[i]) - value(rows[i - 1]);
                    QVERIFY(direction == std::string("Option5") ? step >= 0.0 : step <= 0.0);
                }
            }
        }
    }

    void sortsTheListAndDropsItsMarks() {
        SearchingUser program;
        search(program, 1, "3000");
        const int rows = list(program).count();
        QVERIFY(list(program).itemText(rows - 1).endsWith("Over Speed!"));
        program.click(forms::kResults, "Command5");
        QCOMPARE(program.inFront(), std::string(forms::kSort));
        program.control<QRadioButton>(forms::kSort, "Option3").setChecked(true);
        program.control<QRadioButton>(forms::kSort, "Option6").setChecked(true);
        program.click(forms::kSort, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kResults));
        QCOMPARE(list(program).count(), rows);
        for (int i = 0; i < rows; ++i)
            QVERIFY(!list(program).itemText(i).contains("Over Speed!"));
        double before = 1e30;
        for (const SearchHit& hit : program.state.search.rows) {
            const double life = QString::fromStdString(hit.l10Revolutions).toDouble();
            QVERIFY(life <= before);
            before = life;
        }
    }

    void keepsTheListWhenTheSortScreenIsClosed() {
        SearchingUser program;
        search(program, 1);
        const QString first = list(program).itemText(0);
        program.click(forms::kResults, "Command5");
        program.screens.form(forms::kSort).close();
        QCOMPARE(program.inFront(), std::string(forms::kResults));
        QCOMPARE(list(program).itemText(0), first);
    }

    void makesTheChosenBearingTheCurrentOne() {
        SearchingUser program;
        search(program, 1);
        list(program).setCurrentIndex(1);
        const std::string chosen = program.state.search.rows[1].name;
        QCOMPARE(program.control<QGroupBox>(forms::kResults, "Frame5").title().toStdString(), chosen);
        program.click(forms::kResults, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(program.state.bearing.partNumber, chosen);
        QVERIFY(program.state.bearing.dynamicRadial > 0.0);
    }

    void shortCutsToTheDataSheetOfTheSetWithoutSpacers() {
        SearchingUser program;
        search(program, 3);
        QVERIFY(program.control<QLabel>(forms::kResults, "Label14").isVisible());
        const std::string number = program.state.search.rows[0].name.substr(0, 9) + "A";
        program.click(forms::kResults, "Command4");
        QCOMPARE(program.inFront(), std::string(forms::kDataSheet));
        QCOMPARE(program.state.bearing.partNumber, number);
        QVERIFY(program.files.read("CONDENSED.DAT").find(number) != std::string::npos);
    }

    void aRowThatNeverSettlesIsStoppedByEscapeAfterTheBarHasComeUp() {
        SearchingUser program;
        program.messages.answers = {Answer::Yes};
        bool barWasThere = false;
        QTimer escape;
        QObject::connect(&escape, &QTimer::timeout, [&] {
            auto* const bar =
                program.screens.form(forms::kResults).findChild<QProgressDialog*>("SearchProgress");
            if (bar == nullptr || !bar->isVisible()) return;
            barWasThere = true;
            QTest::keyClick(bar, Qt::Key_Escape);
        });
        escape.start(50);
        program.chooseStyle(3);
        program.enterSizes("0", "4", "0", "1.2");
        program.enterLoads("500");
        QVERIFY(barWasThere);
        QCOMPARE(program.messages.asked.size(), std::size_t{1});
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        QVERIFY(program.state.search.rows.empty());
    }

    void theBarComesUpForALongSearchAndNeverByItself() {
        QWidget form;
        form.show();
        SearchProgress progress(form);
        auto* const bar = form.findChild<QProgressDialog*>("SearchProgress");
        QCOMPARE(bar->labelText(), QString("Searching the catalog.  Escape stops."));
        QCOMPARE(bar->findChild<QPushButton*>()->text(), QString("Stop"));
        for (const QTimer* const timer : bar->findChildren<QTimer*>())
            QVERIFY2(!timer->isActive(), "it would come up over a question");
        QVERIFY(progress.goOn(0.1));
        QVERIFY(!bar->isVisible());
        QTest::qSleep(550);
        QVERIFY(progress.goOn(0.2));
        QVERIFY(bar->isVisible());
    }

    void showsEveryEnteredNumberAsItIs() {
        SearchingUser program;
        program.chooseStyle(2);
        program.enterSizes("5", "9.25", ".2", "1.2");
        program.enterLoads("1200.5");
        QCOMPARE(program.control<QLabel>(forms::kResults, "Label1").text(),
                 QString("MINIMUM BORE   = 5 inches"));
        QCOMPARE(program.control<QLabel>(forms::kResults, "Label2").text(),
                 QString("MAXIMUM O.D.   = 9.25 inches"));
        QCOMPARE(program.control<QLabel>(forms::kResults, "Label5").text(), QString("RADIAL = 1200.5 lbs"));
    }

    void aChosenBearingWhoseSheetCannotBeWrittenIsToldEachTime() {
        SearchingUser program;
        std::filesystem::create_directory(program.files.path() / "CONDENSED.DAT");
        search(program, 1);
        for (std::size_t times = 1; times <= 2; ++times) {
            program.click(forms::kResults, "Command4");
            QCOMPARE(program.messages.shown.size(), times);
            QCOMPARE(program.lastMessage().title, std::string("Please contact Varden with 75"));
            QCOMPARE(program.inFront(), std::string(forms::kResults));
        }
        program.click(forms::kResults, "Command1");
        QCOMPARE(program.messages.shown.size(), std::size_t{3});
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QVERIFY(program.state.bearing.partNumber.empty());
    }

    void savesAndPrintsTheList() {
        SearchingUser program;
        search(program, 1, "100");
        program.saveDialog.choice = SaveChoice{program.files.path() / "list.rtf", 1};
        program.click(forms::kResults, "Command6");
        QCOMPARE(program.saveDialog.requests.back().name, std::string("Search Results.rtf"));
        QVERIFY(program.files.read("list.rtf").find(program.state.search.rows[0].name) != std::string::npos);
        program.click(forms::kResults, "Command3");
        QVERIFY(program.printer.canvas.hasText("RESULTS OF BEARING SEARCH FOR : "));
    }

    void convertsWhatWasEnteredOnAChangeOfUnits() {
        SearchingUser program;
        program.state.unitSystem = "US";
        search(program, 1);
        program.screens.showAlone(forms::kMainMenu);
        program.screens.show(forms::kUnits);
        program.control<QRadioButton>(forms::kUnits, "Option2").setChecked(true);
        program.click(forms::kUnits, "Command1");
        QCOMPARE(program.state.entries.minBore, std::string("127.000"));
        QCOMPARE(program.state.entries.radial, std::string("2224"));
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::SearchJourneyTest)
#include "SearchJourneyTest.moc"
