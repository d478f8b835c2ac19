#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <algorithm>
#include <set>
#include <utility>

#include "screens/Everything.h"

namespace norlaplan::testing {
namespace {

/// A group of the application form: its frame, its caption, its texts and choices in the record's order, from
/// the one to the other.
struct Group {
    int tab;
    const char* frame;
    const char* caption;
    QStringList controls;
};

QStringList from(const char* kind, int first, int last) {
    QStringList names;
    for (int number = first; number <= last; ++number)
        names << kind + QString::number(number);
    return names;
}

/// The twelve sections in the order of the data file.
const QList<Group>& groups() {
    static const QList<Group> all = {
        {1, "Frame1", "CONTACT", from("Text", 1, 7)},
        {1, "Frame2", "APPLICATION", from("Text", 8, 10)},
        {1, "Frame3", "TYPE", from("Option", 1, 5)},
        {1, "Frame4", "USAGE", from("Option", 6, 9)},
        {2, "Frame5", "STATIC LOADS, MAXIMUM", from("Text", 11, 13)},
        {2, "Frame6", "DYNAMIC LOADS, AVERAGE", from("Text", 14, 16)},
        {2, "Frame7", "SHOCK", QStringList("Check1") + from("Text", 17, 17)},
        {2, "Frame8", "SAFETY", from("Text", 18, 18) + from("Option", 10, 11)},
        {3, "Frame9", "SPEED", from("Text", 19, 20)},
        {4, "Frame10", "WILL THE BEARING OSCILLATE?", from("Option", 12, 13)},
        {4, "Frame11", "OSCILLATION", from("Text", 21, 22)},
        {5, "Frame12", "PRECISION CLASS", from("Option", 14, 20)},
        {5, "Frame13", "PERMISSIBLE ECCENTRICITY", from("Text", 23, 24)},
        {5, "Frame14", "PERMISSIBLE FACE RUN-OUT", from("Text", 25, 26)},
        {5, "Frame15", "PERMISSIBLE LOOSENESS", from("Text", 27, 28)},
        {6, "Frame16", "LIFE", from("Text", 29, 31)},
        {7, "Frame17", "TEMPERATURE", from("Text", 32, 35)},
        {8, "Frame18", "LUBRICATION", from("Text", 36, 37)},
        {9, "Frame19", "PREFERRED SIZE", from("Text", 38, 40)},
        {9, "Frame20", "ENVELOPE SIZE", from("Text", 41, 43)},
        {9, "Frame21", "BEARING TYPE", from("Text", 44, 44)},
        {9, "Frame22", "BEARING AXIS", from("Option", 21, 22)},
        {9, "Frame23", "ROTATING RACE RELATIVE TO LOAD", from("Option", 23, 24)},
        {10, "Frame24", "MATERIAL", from("Text", 45, 46)},
        {11, "Frame25", "SPECIAL REQUIREMENTS", from("Text", 47, 50)},
        {12, "Frame26", "REMARKS", from("Text", 51, 51)},
    };
    return all;
}

/// What ApplicationPages puts onto the form's tabs. What asks for more is chosen, so that all of it is there
/// to be seen.
struct Form10 : Everything {
    Form10() {
        Form& form = open(forms::kApplication);
        form.prepareToShow(QRect(0, 0, 1600, 1200));
        QApplication::setActiveWindow(&form);
        for (const char* const asks : {"Check1", "Option12", "Option20"})
            named<QAbstractButton>(asks).click();
    }
    template <typename Widget = QWidget>
    Widget& named(const QString& name) {
        return control<Widget>(forms::kApplication, qPrintable(name));
    }
    void turnTo(int tab) {
        control<QTabWidget>(forms::kApplication, "SSTab1").setCurrentIndex(tab - 1);
        QApplication::processEvents();
    }
    QPoint placeOf(const QString& name) {
        QWidget& widget = named(name);
        return widget.mapTo(widget.window(), QPoint(0, 0));
    }
};

class ApplicationPagesTest : public QObject {
    Q_OBJECT

  private slots:
    void eachGroupStandsInItsFrameOnItsTab() {
        Form10 program;
        auto& tabs = program.named<QTabWidget>("SSTab1");
        for (const Group& group : groups()) {
            auto& frame = program.named<QGroupBox>(group.frame);
            QCOMPARE(frame.title(), QString(group.caption));
            QVERIFY2(tabs.widget(group.tab - 1)->isAncestorOf(&frame), group.frame);
            for (const QString& name : group.controls)
                QVERIFY2(frame.isAncestorOf(&program.named(name)), qPrintable(name));
        }
    }

    void theTabKeyAsksInTheOrderOfTheRecord() {
        Form10 program;
        QStringList asked, expected;
        for (const Group& group : groups())
            expected << group.controls;
        const QWidget& form = *program.screens.current();
        for (const QWidget* next = form.nextInFocusChain(); next != &form; next = next->nextInFocusChain()) {
            if (expected.contains(next->objectName())) asked << next->objectName();
        }
        QCOMPARE(asked, expected);
    }

    void whatIsAskedInAFrameIsReadInThatOrder() {
        Form10 program;
        for (const Group& group : groups()) {
            program.turnTo(group.tab);
            QStringList byLines = group.controls, byColumns = group.controls;
            // Controls of one line don't all begin at the same pixel.
            const auto line = [&](const QString& name) { return program.placeOf(name).y() / 12; };
            const auto column = [&](const QString& name) { return program.placeOf(name).x(); };
            std::stable_sort(byLines.begin(), byLines.end(), [&](const QString& a, const QString& b) {
                return std::pair(line(a), column(a)) < std::pair(line(b), column(b));
            });
            std::stable_sort(byColumns.begin(), byColumns.end(), [&](const QString& a, const QString& b) {
                return std::pair(column(a), line(a)) < std::pair(column(b), line(b));
            });
            QVERIFY2(byLines == group.controls || byColumns == group.controls,
                     qPrintable(QString(group.frame) + ": " + byLines.join(" ")));
        }
    }

    void framesAreReadFromAboveAndThenFromTheLeft() {
        Form10 program;
        const Group* before = nullptr;
        for (const Group& group : groups()) {
            program.turnTo(group.tab);
            QVERIFY2(program.named(group.frame).isVisible(), group.frame);
            if (before != nullptr && before->tab == group.tab) {
                const QRect last = program.named(before->frame).geometry(),
                            own = program.named(group.frame).geometry();
                const bool below = own.top() > last.bottom();
                const bool beside =
                    own.top() == last.top() && own.left() > last.right() && own.height() == last.height();
                QVERIFY2(below || beside, group.frame);
            }
            before = &group;
        }
    }

    void labelsOfAPageAreAsWideAsEachOther() {
        Form10 program;
        for (int tab = 1; tab <= 12; ++tab) {
            program.turnTo(tab);
            std::set<int> widths;
            for (const auto* const label :
                 program.named<QTabWidget>("SSTab1").currentWidget()->findChildren<QLabel*>()) {
                if (label->isVisible() && label->buddy() != nullptr) widths.insert(label->width());
            }
            QVERIFY2(widths.size() <= 1, qPrintable(QString::number(tab)));
        }
    }

    void theLongestTextFillsItsPage() {
        Form10 program;
        program.turnTo(12);
        const auto& remarks = program.named<QPlainTextEdit>("Text51");
        const QWidget& page = *program.named<QTabWidget>("SSTab1").currentWidget();
        QVERIFY(remarks.height() > page.height() / 2);
        QVERIFY(remarks.width() > page.width() * 9 / 10);
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::ApplicationPagesTest)
#include "ApplicationPagesTest.moc"
