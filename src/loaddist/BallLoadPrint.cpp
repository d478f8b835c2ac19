#include <algorithm>

#include "documents/DataSheet.h"
#include "documents/LogoMetafile.h"
#include "documents/PrintedPage.h"
#include "documents/ReportTexts.h"
#include "loaddist/BallLoadGraph.h"
#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"

namespace norlaplan {
namespace {

// The page in the print's own units, twentieths of a point from the printable area's upper left corner.
constexpr double kUnitsPerInch = 1440.0;
constexpr double kUnitsWide = 15000.0;
constexpr double kUnitsHigh = 11550.0;
constexpr double kPageWidth = 11.0;
constexpr double kPageHeight = 8.5;
constexpr Paper kScreenPicture{8.5, 8.5};

PagePoint onPage(double x, double y) {
    return {(kPageWidth - kUnitsWide / kUnitsPerInch) / 2.0 + x / kUnitsPerInch,
            (kPageHeight + kUnitsHigh / kUnitsPerInch) / 2.0 - y / kUnitsPerInch};
}

PageBox boxAt(double x, double y, double width, double height) {
    const PagePoint leftTop = onPage(x, y);
    const PagePoint rightBottom = onPage(x + width, y + height);
    return {leftTop.x, leftTop.y, rightBottom.x, rightBottom.y};
}

double largestLoad(const SolverState& solver, int row) {
    double largest = 0.0;
    for (int ball = 1; ball <= solver.BallCount; ++ball)
        largest = std::max(largest, solver.BallLoad(row, ball));
    return largest;
}

class BallLoadPage {
  public:
    BallLoadPage(const ProgramState& state, Canvas& canvas) : state_(state), canvas_(canvas) {}

    void writeHead() {
        line(600.0, 800.0, state_.bearing.partNumber + " BALL LOAD GRAPHICAL DISPLAY", 16.0);
        line(600.0, 1500.0, "LOAD CASE:", kBody);
        const LoadCase& loads = state_.loads;
        line(900.0, 1800.0, "RADIAL LOAD = " + shownLoad(state_, loads.radialLoadDisplay), kBody);
        line(900.0, 2100.0, "THRUST LOAD = " + shownLoad(state_, loads.axialLoadDisplay), kBody);
        line(900.0, 2400.0, "MOMENT LOAD = " + shownMoment(state_, loads.momentLoadDisplay), kBody);
    }

    void writeRows() {
        line(600.0, 10300.0, rowText(1), kBody);
        if (state_.bearing.styleLetter != "C") line(600.0, 10600.0, rowText(2), kBody);
    }

  private:
    static constexpr double kBody = 12.0;

    void line(double x, double y, const std::string& text, double points) {
        canvas_.text(boxAt(x, y, kUnitsWide - x, 20.0 * points), text, timesLook(points));
    }

    std::string rowText(int row) const {
        const double load = divide(largestLoad(state_.solver, row), state_.units.forceFactor);
        return "Row " + std::to_string(row) + " Max. Load = " + FormatNumber(load, "##.0") + " " +
               state_.units.loadUnit;
    }

    const ProgramState& state_;
    Canvas& canvas_;
};

}  // namespace

void printBallLoads(const ProgramState& state, ClockPort& clock, const BallLoadView& view, Canvas& canvas) {
    drawPageBorder(canvas, papers::kLetterLandscape);
    drawLogo(canvas, onPage(8400.0, 575.0), 2880.0 / kUnitsPerInch);
    BallLoadPage page(state, canvas);
    page.writeHead();
    drawBallLoads(state.solver, view, boxAt(3300.0, 2200.0, 8700.0, 8700.0), true, canvas);
    page.writeRows();
    drawPageFooter(canvas, clock, "", papers::kLetterLandscape);
}

Document ballLoadsDocument(const ProgramState& state, const BallLoadView& view, ClockPort& clock) {
    Document document;
    document.title = "Ball loads of " + state.bearing.partNumber;
    document.filters.clear();
    document.pages = {papers::kLetterLandscape,
                      [&, view](Canvas& canvas) { printBallLoads(state, clock, view, canvas); }};
    document.picture = {kScreenPicture, [&, view](Canvas& canvas) {
                            drawBallLoads(state.solver, view, kScreenPicture.page(), false, canvas);
                        }};
    return document;
}

}  // namespace norlaplan
