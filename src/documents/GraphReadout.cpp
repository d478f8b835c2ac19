#include <array>
#include <cmath>

#include "documents/Graph.h"
#include "numbers/Arithmetic.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

constexpr double kReach = 0.5;
constexpr double kGap = 0.1;
constexpr double kArm = 0.2;
constexpr int kArms = 6;
const PagePen kPen{colours::kBlack, 9525.0, 0};

std::vector<GraphMark::Arm> armsAround(PagePoint at) {
    std::vector<GraphMark::Arm> arms;
    for (int i = 0; i < kArms; ++i) {
        const double angle = i * TwoPiValue / kArms;
        const auto out = [&](double by) {
            return PagePoint{at.x + by * std::cos(angle), at.y + by * std::sin(angle)};
        };
        arms.push_back({out(kGap), out(kGap + kArm)});
    }
    return arms;
}

GraphText labelOf(const GraphReadout::Point& point, PagePoint at) {
    constexpr double kAside = 0.2;
    constexpr double kWidth = 1.2;
    constexpr double kHeight = 0.17;
    constexpr double kPoints = 10.0;
    const double left = point.labelLeft ? at.x - kAside - kWidth : at.x + kAside;
    const double top = at.y + point.labelAbove;
    GraphText label;
    label.box = {left, top, left + kWidth, top - kHeight};
    label.text = point.text;
    label.look.points = kPoints;
    label.look.alignment = point.labelLeft ? Alignment::Right : Alignment::Left;
    return label;
}

}  // namespace

std::optional<GraphMark> pointReadout(const Graph& graph, PagePoint pointer) {
    const GraphReadout& readout = graph.readout;
    if (readout.points.empty()) return std::nullopt;
    const double scale = divide(graph.width, graph.x.end) * readout.unit;
    const double n = Int(divide(pointer.x - graph.origin.x, scale) * readout.perUnit + 0.5) + 1.0;
    if (n <= 0.0 || n > static_cast<double>(readout.points.size())) return std::nullopt;
    const GraphReadout::Point& point = readout.points[static_cast<std::size_t>(n) - 1];
    const PagePoint at = graph.place(point.at);
    if (std::hypot(pointer.x - at.x, pointer.y - at.y) >= kReach) return std::nullopt;
    return GraphMark{at, armsAround(at), labelOf(point, at)};
}

void drawMark(const GraphMark& mark, Canvas& canvas) {
    for (const GraphMark::Arm& arm : mark.arms)
        canvas.line(arm.from, arm.to, kPen);
    canvas.text(mark.label.box, mark.label.text, mark.label.look);
}

}  // namespace norlaplan
