#include "fits/ThermalFitsGraph.h"

#include <algorithm>
#include <optional>

#include "fits/ThermalFits.h"
#include "numbers/Arithmetic.h"

namespace norlaplan {
namespace {

/// The height of the picture for a degree of its width and an inch of the outside diameter.
constexpr double kHeightPerDegree = 1.3e-05;
constexpr double kHeightFactor = 2.25;
constexpr double kPen = 19050.0;

struct Segment {
    PagePoint from, to;
};

/// Narrows the part of a segment that lies from 0 to 1 in one direction; `begin` and `end` are parts of it.
void keepInside(double from, double to, double& begin, double& end) {
    const double run = to - from;
    if (run == 0.0) {
        if (from < 0.0 || from > 1.0) end = -1.0;
        return;
    }
    const double enters = std::min((0.0 - from) / run, (1.0 - from) / run);
    const double leaves = std::max((0.0 - from) / run, (1.0 - from) / run);
    begin = std::max(begin, enters);
    end = std::min(end, leaves);
}

/// What of the segment lies in the picture.
std::optional<Segment> cut(const Segment& whole) {
    double begin = 0.0;
    double end = 1.0;
    keepInside(whole.from.x, whole.to.x, begin, end);
    keepInside(whole.from.y, whole.to.y, begin, end);
    if (begin > end) return std::nullopt;
    const auto at = [&](double part) {
        return PagePoint{
            std::clamp(whole.from.x + part * (whole.to.x - whole.from.x), 0.0, 1.0),
            std::clamp(whole.from.y + part * (whole.to.y - whole.from.y), 0.0, 1.0),
        };
    };
    return Segment{at(begin), at(end)};
}

/// The drawing in degrees across and inches up.
class FitPicture {
  public:
    explicit FitPicture(const ProgramState& state) {
        const double high = state.thermalFits.highTemp;
        const double low = state.thermalFits.lowTemp;
        left_ = low - (high - low) * 0.25;
        right_ = (low + high) * 0.25 + high;
        height_ = kHeightPerDegree * (right_ - left_) * state.bearing.outsideDiameter * kHeightFactor;
    }

    double left() const { return left_; }
    double right() const { return right_; }
    double height() const { return height_; }

    void upright(double temperature, const FitLine& line) {
        const double x = divide(temperature - left_, right_ - left_);
        add({{x, 0.0}, {x, 1.0}}, line);
    }
    /// A size that grows with the temperature: y = offset + growth x (temperature - room temperature).
    void slope(double from, double to, double growth, double offset, const FitLine& line) {
        const auto at = [&](double x) {
            return PagePoint{divide(x - left_, right_ - left_),
                             divide(offset + growth * (x - kRoomTemperature), height_)};
        };
        add({at(from), at(to)}, line);
    }
    const std::vector<GraphCurve>& curves() const { return curves_; }

  private:
    void add(const Segment& whole, const FitLine& line) {
        if (const auto inside = cut(whole))
            curves_.push_back({{inside->from, inside->to}, {line.colour, kPen, 0}});
    }

    double left_ = 0.0, right_ = 0.0, height_ = 0.0;
    std::vector<GraphCurve> curves_;
};

}  // namespace

Graph thermalFitsGraph(const ProgramState& state) {
    Graph graph = pictureGraph();
    graph.origin = {0.0, 0.0};
    graph.width = 8.5;
    graph.height = 5.0;
    graph.grid.reset();
    graph.x.end = graph.y.end = 1.0;
    graph.bands = {{{0.0, 0.0}, {1.0, 1.0}, kFitGround}};
    const ThermalFits& fits = state.thermalFits;
    const std::optional<FitGoal> goal = fitGoal(state.bearing);
    if (!goal || fits.partNumber.empty()) return graph;

    FitPicture picture(state);
    const double Y = picture.height();
    const double expansion = state.bearing.bearingExpansion;
    picture.upright(fits.lowTemp, kLowLine);
    picture.upright(fits.highTemp, kHighLine);
    picture.upright(kRoomTemperature, kRoomLine);
    picture.slope(picture.left(), picture.right(), goal->bore * expansion, 0.4 * Y, kBoreLine);
    picture.slope(picture.left(), picture.right(), goal->od * expansion, 0.6 * Y, kOdLine);
    picture.slope(fits.lowTemp, fits.highTemp, fits.shaftSize * fits.shaftExpansion,
                  0.4 * Y - (goal->bore - fits.shaftSize), kShaftLine);
    picture.slope(fits.lowTemp, fits.highTemp, fits.housingSize * fits.housingExpansion,
                  0.6 * Y + (fits.housingSize - goal->od), kHousingLine);
    graph.curves = picture.curves();
    return graph;
}

}  // namespace norlaplan
