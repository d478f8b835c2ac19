#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QToolButton>

#include "screens/SearchingUser.h"
#include "screens/StepMark.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

struct Steps : SearchingUser {
    Steps() {
        useUnits("US");
        screens.show(forms::kMainMenu);
    }
    QString value(const char* step) {
        return control<QLabel>(forms::kMainMenu, qPrintable(QString(step) + "Value")).text().trimmed();
    }
    bool done(const char* step) {
        return control<StepMark>(forms::kMainMenu, qPrintable(QString(step) + "Step")).isDone();
    }
    /// From the main menu through the search's steps up to its loads.
    void chooseStyleSizesAndLoads() {
        chooseStyle(2);
        enterSizes("5", "9", ".5", "1.2");
        typeLoads("1200", "400");
        click(forms::kLoads, "Command3");
    }
};

}  // namespace

/// What the main menu shows of the steps that were done, and the choice of a style.
class StepsTest : public QObject {
    Q_OBJECT

  private slots:
    void a_new_program_has_no_step_done() {
        Steps program;
        for (const char* const step : {"Bearing", "Life", "Style", "Sizes", "Loads", "Results"}) {
            QCOMPARE(program.value(step), QString());
            QVERIFY(!program.done(step));
        }
        QCOMPARE(program.control<QLabel>(forms::kMainMenu, "Units").text(),
                 QString("US units: in, lb, in-lb"));
    }

    void the_search_path_shows_what_was_set_at_each_step() {
        Steps program;
        program.chooseStyleSizesAndLoads();
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(program.value("Style"), QString("4-point contact"));
        QCOMPARE(program.value("Sizes"), QString("5 to 9 in, 0.5 to 1.2 in high"));
        QCOMPARE(program.value("Loads"), QString("1,200 lb radial, 400 rpm"));
        for (const char* const step : {"Style", "Sizes", "Loads"})
            QVERIFY(program.done(step));
        QVERIFY(!program.done("Bearing"));
        QCOMPARE(program.control<QWidget>(forms::kMainMenu, "StyleStep").accessibleName(),
                 QString("Step 1, done"));
        QCOMPARE(program.control<QWidget>(forms::kMainMenu, "BearingStep").accessibleName(),
                 QString("Step 1"));
    }

    void the_list_stands_under_its_step_until_a_step_before_it_changes() {
        Steps program;
        program.chooseStyleSizesAndLoads();
        program.click(forms::kMainMenu, "Command7");
        QCOMPARE(program.inFront(), std::string(forms::kResults));
        const std::size_t found = program.state.search.rows.size();
        QVERIFY(found > 1);
        const QString name = QString::fromStdString(program.state.search.rows[1].name).trimmed();
        program.control<QComboBox>(forms::kResults, "Combo1").setCurrentIndex(1);
        program.screens.showAlone(forms::kMainMenu);
        QCOMPARE(program.value("Results"), QString("%1 bearings, %2 chosen").arg(found).arg(name));
        QVERIFY(program.done("Results"));
        program.click(forms::kMainMenu, "Command6");
        program.type(forms::kLoads, "Text1", "1300");
        program.click(forms::kLoads, "Command3");
        QCOMPARE(program.value("Results"), QString());
        QVERIFY(!program.done("Results"));
    }

    void a_decoded_bearing_and_its_life_are_shown_on_the_known_path() {
        Steps program;
        program.enterNumber("K19013XP0");
        // 190 and 216 mm by a cross-section of 13 mm.
        QCOMPARE(program.value("Bearing"), QString("4-point contact, 7.4803 x 8.5039 x 0.5118 in"));
        QVERIFY(program.done("Bearing"));
        QVERIFY(!program.done("Life"));
        program.openLife("500", "200");
        QCOMPARE(program.inFront(), std::string(forms::kLife));
        program.screens.showAlone(forms::kMainMenu);
        QCOMPARE(program.value("Life"), QString("500 lb radial, 200 lb axial, no speed"));
        QVERIFY(program.done("Life"));
        program.enterNumber("K10013XP0");
        QVERIFY(!program.done("Life"));
    }

    void a_change_of_units_shows_at_once() {
        Steps program;
        program.chooseStyleSizesAndLoads();
        program.screens.show(forms::kUnits);
        program.click(forms::kUnits, "Option2");
        program.click(forms::kUnits, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(program.control<QLabel>(forms::kMainMenu, "Units").text(),
                 QString("METRIC units: mm, N, N-m"));
        QCOMPARE(program.value("Sizes"), QString("127 to 228.6 mm, 12.7 to 30.48 mm high"));
        // 1,200 lb are 5337.87 N, shown and taken in whole newtons.
        QCOMPARE(program.value("Loads"), QString("5,338 N radial, 400 rpm"));
    }

    void new_takes_every_value_away() {
        Steps program;
        program.chooseStyleSizesAndLoads();
        program.control<QAction>(forms::kMainMenu, "New").trigger();
        for (const char* const step : {"Style", "Sizes", "Loads"}) {
            QCOMPARE(program.value(step), QString());
            QVERIFY(!program.done(step));
        }
    }

    void the_menu_keeps_its_size_in_the_middle_of_a_large_window() {
        Steps program;
        Form& menu = program.screens.form(forms::kMainMenu);
        QWidget& known = program.control<QWidget>(forms::kMainMenu, "KnownPath");
        QWidget& search = program.control<QWidget>(forms::kMainMenu, "SearchPath");
        menu.resize(1000, 800);
        QApplication::processEvents();
        const QSize before = known.size();
        menu.resize(1920, 1040);
        QApplication::processEvents();
        QCOMPARE(known.size(), before);
        const int left = known.mapTo(&menu, QPoint(0, 0)).x();
        const int right = menu.width() - search.mapTo(&menu, QPoint(search.width(), 0)).x();
        QVERIFY2(std::abs(left - right) <= 1, qPrintable(QString("%1 %2").arg(left).arg(right)));
        QVERIFY(left > 400);
    }

    void a_double_click_on_a_style_goes_on() {
        Steps program;
        program.click(forms::kMainMenu, "Command4");
        auto& picture = program.control<QToolButton>(forms::kStyle, "Image5");
        QTest::mouseClick(&picture, Qt::LeftButton);
        QCOMPARE(program.inFront(), std::string(forms::kStyle));
        QTest::mouseDClick(&picture, Qt::RightButton);
        QCOMPARE(program.inFront(), std::string(forms::kStyle));
        QTest::mouseDClick(&picture, Qt::LeftButton);
        QCOMPARE(program.inFront(), std::string(forms::kSizes));
        QCOMPARE(program.state.style.searchStyleCaption, std::string("RADIAL CONTACT"));
        QVERIFY(program.state.styleChosen);
        QVERIFY(program.messages.shown.empty());
    }
};

QTEST_MAIN(StepsTest)
#include "StepsTest.moc"
