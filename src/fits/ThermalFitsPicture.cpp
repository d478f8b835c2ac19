#include "documents/PrintedPage.h"
#include "fits/ThermalFitsGraph.h"
#include "fits/ThermalFitsReport.h"

namespace norlaplan {
namespace {

constexpr double kLeft = 0.5;
constexpr double kRight = kThermalFitsPicture.width - kLeft;

TextLook centredLook(double points, bool bold, Colour colour) {
    TextLook look = timesLook(points, bold, colour);
    look.alignment = Alignment::Centre;
    return look;
}

/// A sample line and its name for each line of the drawing, on the drawing's own ground: one of them is pale.
void drawLegend(const PageBox& box, Canvas& canvas) {
    constexpr std::size_t kColumns = 4;
    constexpr double kSample = 0.45;
    constexpr double kInset = 0.15;
    constexpr double kRow = 0.26;
    constexpr double kHalfLine = 0.07;
    canvas.rectangle(box, kFitGround, PagePen{});
    const double column = (box.right - box.left) / static_cast<double>(kColumns);
    for (std::size_t i = 0; i < kFitLegend.size(); ++i) {
        const double x = box.left + kInset + column * static_cast<double>(i % kColumns);
        const std::size_t row = i / kColumns;
        const double y = box.top - kRow * (0.75 + static_cast<double>(row));
        canvas.line({x, y}, {x + kSample, y}, {kFitLegend[i].colour, 19050.0, 0});
        canvas.text({x + kSample + 0.1, y + kHalfLine, x + column, y - kHalfLine}, kFitLegend[i].name,
                    timesLook(10.0));
    }
}

}  // namespace

void drawThermalFits(const ProgramState& state, Canvas& canvas) {
    const ThermalFits& fits = state.thermalFits;
    canvas.text({kLeft, 6.8, kRight, 6.55}, state.bearing.partNumber,
                centredLook(16.0, true, graphcolours::kDarkRed));
    canvas.text({kLeft, 6.5, kRight, 6.3}, "Size of parts vs. Temperature",
                centredLook(14.0, false, graphcolours::kDarkBlue));
    canvas.text({kLeft, 6.15, kRight, 5.98}, fits.shaftLine, centredLook(11.0, true, colours::kBlack));
    canvas.text({kLeft, 5.95, kRight, 5.78}, fits.housingLine, centredLook(11.0, true, colours::kBlack));
    canvas.text({kLeft, 5.72, kRight, 5.42}, fits.comment, centredLook(9.0, false, colours::kBlack));
    Graph graph = thermalFitsGraph(state);
    graph.origin = {kLeft, 1.2};
    graph.width = kRight - kLeft;
    graph.height = 4.2;
    drawGraph(graph, canvas);
    canvas.text({kLeft, 1.15, kRight, 0.97}, "Temperature increasing to the right",
                centredLook(10.0, false, graphcolours::kDarkBlue));
    drawLegend({kLeft, 0.88, kRight, 0.2}, canvas);
}

}  // namespace norlaplan
