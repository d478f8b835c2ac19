#include <QGroupBox>
#include <QLabel>
#include <map>
#include <vector>

#include "screens/EqualSigns.h"
#include "screens/Program.h"
#include "screens/Theme.h"

namespace norlaplan::testing {
namespace {

using Places = std::map<std::string, QRect>;

/// The load-life screen of one bearing, opened with these loads.
struct Life : Program {
    Life() {
        useUnits("US");
        enterNumber("K19013XP0");
    }
    void solve(const char* speed, const char* moment = "100") {
        screens.showAlone(forms::kMainMenu);
        openLife("500", "200", moment, speed);
        QApplication::processEvents();
    }
    Form& form() { return screens.form(forms::kLife); }
    QLabel& label(const char* name) { return control<QLabel>(forms::kLife, name); }
    Places placesOf(std::initializer_list<const char*> names) {
        Places places;
        for (const char* const name : names) {
            const QWidget& widget = control<QWidget>(forms::kLife, name);
            places[name] = QRect(widget.mapTo(&form(), QPoint(0, 0)), widget.size());
        }
        return places;
    }
};

/// The first column of the window in which a letter of the label is seen, found by selecting it as a user
/// does. It is counted in the text as it is drawn, where several blanks are one.
int columnOf(QLabel& label, int letter) {
    label.setSelection(letter, 1);
    const QImage picture = label.grab().toImage();
    label.setSelection(0, 0);
    const QRgb marked = theme::accent().rgb();
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            if (picture.pixel(x, y) == marked) return label.mapTo(label.window(), QPoint(x, 0)).x();
        }
    }
    return -1;
}

int columnOfSign(QLabel& label) {
    return columnOf(label, static_cast<int>(label.text().simplified().indexOf('=')));
}

class LifeLooksTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { theme::apply(); }

    void theEqualSignsOfAFrameStandUnderEachOther_data() {
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("size") << QStringList{"Label1", "Label2", "Label3"};
        QTest::newRow("loads") << QStringList{"Label4", "Label5", "Label6", "Label7"};
        QTest::newRow("results") << QStringList{"Label8", "Label9", "Label10", "Label13"};
    }
    void theEqualSignsOfAFrameStandUnderEachOther() {
        QFETCH(QStringList, rows);
        Life life;
        life.solve("400");
        const int first = columnOfSign(life.label(qPrintable(rows[0])));
        QVERIFY(first > 0);
        for (const QString& row : rows) {
            const int column = columnOfSign(life.label(qPrintable(row)));
            QVERIFY2(std::abs(column - first) <= 1, qPrintable(QString("%1: %2").arg(row).arg(column)));
        }
    }

    void theValuesBehindTheSignsStandUnderEachOtherToo() {
        Life life;
        life.solve("400");
        // "SPEED =  400 RPM" has two blanks behind its sign, the others one.
        const auto columnOfValue = [&](const char* name) {
            QLabel& label = life.label(name);
            return columnOf(label, static_cast<int>(label.text().simplified().indexOf("= ")) + 2);
        };
        QVERIFY(std::abs(columnOfValue("Label4") - columnOfValue("Label7")) <= 1);
    }

    void theTextsStayAsTheyAreStated() {
        Life life;
        life.solve("400");
        QCOMPARE(life.label("Label4").text(), QString("RADIAL = 500 pounds"));
        QCOMPARE(life.label("Label7").text(), QString("SPEED =  400 RPM"));
        QVERIFY(life.label("Label8").text().startsWith("L10 LIFE = "));
        QVERIFY(life.label("Label13").text().startsWith("Estimated Starting Torque = "));
    }

    void aLabelWithoutTheSignStaysAtTheEdge() {
        QLabel with("longer text = 1"), without("text"), shorter("a = 1");
        alignEqualSigns(std::vector{&with, &without, &shorter});
        QCOMPARE(with.indent(), 0);
        QCOMPARE(without.indent(), 0);
        QVERIFY(shorter.indent() > 0);
        // Another text, another place.
        shorter.setText("longer text = 2");
        alignEqualSigns(std::vector{&with, &without, &shorter});
        QCOMPARE(shorter.indent(), 0);
    }

    void framesAndPicturesKeepTheirPlacesWhateverTheTextsSay() {
        Life life;
        const auto places = [&life] {
            return life.placesOf({"Frame1", "Frame2", "Frame3", "Frame5", "Image1", "Picture1"});
        };
        life.solve("400");
        const Places slow = places();
        const QSize window = life.form().size();
        life.solve("");
        QVERIFY(!life.label("Label7").isVisible());
        QVERIFY(!life.label("Label11").isVisible());
        QVERIFY(slow == places());
        life.solve("1234567");
        QVERIFY(life.label("Label11").text().startsWith("WARNING !!!"));
        QVERIFY(slow == places());
        life.solve("", "-2000");
        QVERIFY(life.label("Warning1").isVisible());
        QVERIFY(slow == places());
        QCOMPARE(life.form().size(), window);
    }

    void theResultsAreALineLowerWithoutASpeed() {
        Life life;
        life.solve("400");
        const QRect with = life.placesOf({"Frame4"})["Frame4"];
        const int line = life.label("Label10").y() - life.label("Label9").y();
        life.solve("");
        const QRect without = life.placesOf({"Frame4"})["Frame4"];
        QCOMPARE(without.topLeft(), with.topLeft());
        QCOMPARE(with.height() - without.height(), line);
    }

    void everyTextCanBeSelected() {
        Life life;
        life.solve("400");
        int labels = 0;
        for (const QLabel* const label : life.form().findChildren<QLabel*>()) {
            QVERIFY2(label->textInteractionFlags() & Qt::TextSelectableByMouse,
                     qPrintable(label->objectName()));
            ++labels;
        }
        QVERIFY(labels >= 14);
        QLabel& verdict = life.label("Label11");
        verdict.setSelection(4, 5);
        QCOMPARE(verdict.selectedText(), QString("speed"));
    }

    void theNamesOnTheSketchAreLargeEnoughToRead() {
        Life life;
        life.solve("400");
        const QImage sketch = life.control<QWidget>(forms::kLife, "Picture1").grab().toImage();
        // The right third holds nothing but "MOMENT", in blue.
        int top = sketch.height(), bottom = -1;
        for (int y = 0; y < sketch.height(); ++y) {
            for (int x = sketch.width() * 2 / 3; x < sketch.width(); ++x) {
                const QColor colour = sketch.pixelColor(x, y);
                if (colour.blue() - colour.red() < 60) continue;
                top = std::min(top, y);
                bottom = y;
            }
        }
        const int capitals = bottom - top + 1;
        QVERIFY2(capitals >= 8 && capitals <= 16, qPrintable(QString::number(capitals)));
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::LifeLooksTest)
#include "LifeLooksTest.moc"
