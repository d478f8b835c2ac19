#include <QLabel>
#include <set>

#include "screens/Program.h"
#include "screens/Theme.h"

namespace norlaplan::testing {
namespace {

/// The screens that ask for numbers under a picture.
class EntryLooksTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { theme::apply(); }

    void aFieldIsAsWideAsANumberAndStandsByItsLabel_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("sizes") << QString::fromUtf8(forms::kSizes.text);
        QTest::newRow("loads") << QString::fromUtf8(forms::kLoads.text);
    }
    void aFieldIsAsWideAsANumberAndStandsByItsLabel() {
        QFETCH(QString, name);
        Program program;
        program.useUnits("US");
        program.state.style = {"4-POINT CONTACT", "X"};
        const QByteArray text = name.toUtf8();
        program.screens.show(FormName(text.constData()));
        QApplication::processEvents();
        Form& form = *program.screens.current();
        std::set<int> lefts, widths;
        for (const QLabel* const label : form.findChildren<QLabel*>()) {
            if (label->buddy() == nullptr) continue;
            const auto& field = dynamic_cast<const QLineEdit&>(*label->buddy());
            lefts.insert(field.mapTo(&form, QPoint(0, 0)).x());
            widths.insert(field.width());
            const int labelEnd =
                label->mapTo(&form, QPoint(label->fontMetrics().horizontalAdvance(label->text()), 0)).x();
            const int gap = *lefts.begin() - labelEnd;
            QVERIFY2(gap > 0 && gap < 120, qPrintable(label->text()));
        }
        QCOMPARE(lefts.size(), std::size_t{1});
        QCOMPARE(widths.size(), std::size_t{1});
        const int digit = form.fontMetrics().horizontalAdvance('0');
        QVERIFY2(*widths.begin() > 14 * digit && *widths.begin() < 30 * digit,
                 qPrintable(QString::number(*widths.begin())));
        // Labels and fields together stand in the middle of the window.
        const int right = form.width() - *lefts.begin() - *widths.begin();
        int left = form.width();
        for (const QLabel* const label : form.findChildren<QLabel*>()) {
            if (label->buddy() != nullptr) left = std::min(left, label->mapTo(&form, QPoint(0, 0)).x());
        }
        QVERIFY(std::abs(left - right) <= 2);
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::EntryLooksTest)
#include "EntryLooksTest.moc"
