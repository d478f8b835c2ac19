#include <ctime>
#include <fstream>

#include "screens/Program.h"
#include "screens/Theme.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

/// The most memory that this process has held so far, in MB.
double peakMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / 1024.0;
    }
    return 0.0;
}

/// Notes the processor time at the first painting of a window.
class FirstPaint : public QObject {
  public:
    std::clock_t at = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint && at == 0) at = std::clock();
        return false;
    }
};

}  // namespace

class LightnessTest : public QObject {
    Q_OBJECT

  private slots:
    /// Processor time from the start of the process on, so that a busy machine doesn't count.
    void the_first_window_is_painted_within_three_tenths_of_a_second() {
        theme::apply();
        FirstPaint first;
        qApp->installEventFilter(&first);
        Program program;
        ShowStartScreen(program.screens);
        QTRY_VERIFY(first.at != 0);
        const double seconds = static_cast<double>(first.at) / CLOCKS_PER_SEC;
        qInfo("first paint after %.3f s of processor time", seconds);
        QVERIFY(seconds < 0.3);
    }

    void a_session_with_every_form_and_a_zoomed_sheet_stays_below_80_megabytes() {
#ifdef NORLAPLAN_SANITIZE
        QSKIP("the address sanitizer's own memory would be measured");
#endif
        Program program;
        ShowStartScreen(program.screens);
        program.click(forms::kStart, "Command1");
        program.click(forms::kMainMenu, "Command8");
        QTest::keyClicks(&program.control<QWidget>(forms::kPartNumber, "Text1"), "K19013XP0");
        program.click(forms::kPartNumber, "Command1");
        program.click(forms::kMainMenu, "Command9");
        program.screens.current()->grab();
        program.saveDialog.choice = SaveChoice{program.files.path() / "sheet.bmp", 2};
        program.click(forms::kDataSheet, "Command3");
        for (const FormName form :
             {forms::kTextViewer, forms::kUnits, forms::kSizes, forms::kSort, forms::kLoads, forms::kStyle}) {
            program.screens.show(forms::kMainMenu);
            program.screens.show(form);
            program.screens.current()->grab();
        }
        const double peak = peakMegabytes();
        qInfo("peak memory %.1f MB", peak);
        QVERIFY(peak < 80.0);
    }
};

QTEST_MAIN(LightnessTest)
#include "LightnessTest.moc"
