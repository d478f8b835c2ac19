#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QScrollBar>
#include <QTabWidget>

#include "screens/Everything.h"
#include "screens/HitModel.h"
#include "screens/HitTable.h"
#include "screens/Theme.h"

namespace norlaplan::testing {
namespace {

QString nameOf(const QWidget& widget) {
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    return QString("%1 %2 %3")
        .arg(widget.metaObject()->className(), widget.objectName(),
             label == nullptr ? QString() : label->text());
}

/// The visible widgets that a layout has placed, also those of the layouts in it.
void collect(const QLayout& layout, QList<QWidget*>& found) {
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* const item = layout.itemAt(i);
        if (const QLayout* const inner = item->layout()) collect(*inner, found);
        if (QWidget* const widget = item->widget(); widget != nullptr && widget->isVisible()) found << widget;
    }
}

/// Two controls that lie over each other, or an empty text.
QString overlap(const Form& form) {
    for (const QLayout* const layout : form.findChildren<QLayout*>()) {
        QList<QWidget*> placed;
        collect(*layout, placed);
        for (qsizetype i = 0; i < placed.size(); ++i) {
            for (qsizetype j = i + 1; j < placed.size(); ++j) {
                // A stack shows one of its pages.
                if (placed[i]->parent() != placed[j]->parent()) continue;
                if (placed[i]->geometry().intersects(placed[j]->geometry()))
                    return nameOf(*placed[i]) + " and " + nameOf(*placed[j]);
            }
        }
    }
    return {};
}

/// A label that stands neither to the left of its field, on one of its lines, nor above it, or an empty text.
QString labelAstray(const Form& form) {
    for (const QLabel* const label : form.findChildren<QLabel*>()) {
        const QWidget* const field = label->buddy();
        if (field == nullptr || !label->isVisible() || !field->isVisible()) continue;
        const QRect text(label->mapTo(&form, QPoint(0, 0)), label->size());
        const QRect entry(field->mapTo(&form, QPoint(0, 0)), field->size());
        const int line = text.center().y();
        const bool before = text.right() < entry.left() && entry.top() <= line && line <= entry.bottom();
        const bool above = text.bottom() < entry.top() && text.left() <= entry.right();
        if (!before && !above) return nameOf(*label) + " of " + nameOf(*field);
    }
    return {};
}

/// Where things stand on the forms, whatever they are.
class LayoutTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { theme::apply(); }

    void nothingLiesOverAnythingAndLabelsStandAtTheirFields_data() {
        QTest::addColumn<QString>("name");
        for (const FormEntry& entry : formRegistry())
            QTest::addRow("%s", entry.name.text) << entry.name.text;
    }
    void nothingLiesOverAnythingAndLabelsStandAtTheirFields() {
        QFETCH(QString, name);
        Everything program;
        const QByteArray text = name.toUtf8();
        Form& form = program.open(FormName(text.constData()));
        form.prepareToShow(QRect(0, 0, 1600, 1000));
        auto* const tabs = form.findChild<QTabWidget*>();
        for (int tab = 0; tab < (tabs == nullptr ? 1 : tabs->count()); ++tab) {
            if (tabs != nullptr) tabs->setCurrentIndex(tab);
            QApplication::processEvents();
            QCOMPARE(overlap(form), QString());
            QCOMPARE(labelAstray(form), QString());
        }
    }

    void everyColumnOfTheListHasRoomInTheUsualWindow() {
        Program program;
        program.useUnits("METRIC");
        program.state.style = {"FACE-TO-FACE SET WITH SPACERS", "A"};
        program.state.styleChosen = true;
        program.state.entries = {"13", "100", "2.5", "76", "44", "", "", "100"};
        enterSizes(program.state);
        enterLoads(program.state);
        program.screens.showAlone(forms::kMainMenu);
        program.click(forms::kMainMenu, "Command7");
        program.screens.current()->prepareToShow(QRect(0, 0, 1600, 1000));
        QApplication::processEvents();
        const auto& table = program.control<HitTable>(forms::kResults, "List1");
        for (const int column : {kHoursColumn, kMarkColumn, kCheckColumn})
            QVERIFY(!table.isColumnHidden(column));
        QVERIFY(table.viewport()->width() > 0);
        const QHeaderView& heads = *table.header();
        for (int column = 0; column < heads.count(); ++column)
            QVERIFY(heads.isSectionHidden(column) ||
                    heads.sectionSize(column) >= heads.sectionSizeHint(column));
        QCOMPARE(table.horizontalScrollBar()->maximum(), 0);
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::LayoutTest)
#include "LayoutTest.moc"
