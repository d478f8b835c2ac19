#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <cmath>

#include "screens/Program.h"

namespace norlaplan::testing {

/// The program up to the load-life screen of one bearing, with the analysis switched on by the option file.
struct Analysis : Program {
    explicit Analysis(const std::string& units = "US", const char* keyword = "LARS HOFMANN") {
        files.write("Extras.txt", std::string(keyword) + "\r\n");
        ShowStartScreen(screens);
        click(forms::kStart, "Command1");
        useUnits(units);
    }
    void solve(const char* number, const char* radial = "500", const char* axial = "200",
               const char* moment = "100") {
        enterNumber(number);
        openLife(radial, axial, moment);
    }
    void openAnalysis() { click(forms::kLife, "Command8"); }

    QLineEdit& field(const char* name) { return control<QLineEdit>(forms::kAnalysis, name); }
    std::string shown(const char* name) { return field(name).text().toStdString(); }
    std::string caption(const char* name) {
        return control<QLabel>(forms::kAnalysis, name).text().toStdString();
    }
    /// Fails the test unless the number in the field is this one, to the digits that 32 bits have.
    void compareNumber(const char* name, double expected) {
        const double number = field(name).text().toDouble();
        QVERIFY2(std::abs(number - expected) <= 1e-6 * std::abs(expected),
                 qPrintable(QString("%1: %2 for %3").arg(name, field(name).text()).arg(expected)));
    }
    /// Types over what stands in the field and leaves it by Enter.
    void enter(const char* name, const char* text) {
        field(name).setFocus();
        field(name).selectAll();
        QTest::keyClick(&field(name), Qt::Key_Delete);
        QTest::keyClicks(&field(name), text);
        QTest::keyClick(&field(name), Qt::Key_Return);
    }
    void mark(const char* option) { control<QRadioButton>(forms::kAnalysis, option).click(); }
    void pick(const char* list, int row) {
        auto& combo = control<QComboBox>(forms::kAnalysis, list);
        combo.setCurrentIndex(row);
        emit combo.activated(row);
    }
    bool visible(const char* name) { return control<QWidget>(forms::kAnalysis, name).isVisible(); }
};

/// Styles C, X, B and F in both units of the program, as rows of a test.
inline void stylesAndUnits() {
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("units");
    for (const char* const units : {"US", "METRIC"}) {
        for (const char* const number : {"K19013CP0", "K19013XP0", "K10013BP0C", "K19013FR0A"})
            QTest::newRow(qPrintable(QString("%1 %2").arg(number, units))) << number << units;
    }
}

}  // namespace norlaplan::testing
