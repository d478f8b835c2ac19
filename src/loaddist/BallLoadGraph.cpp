#include "loaddist/BallLoadGraph.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/PiValue.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr double kThin = 9525.0;  // EMU
constexpr double kThick = 19050.0;
constexpr double kMargin = 1.3;  // of the radius, around the middle
constexpr double kOpeningPitch = 80.0;

/// The ball circle in perspective, in pounds, y downward.
class Perspective {
  public:
    Perspective(const SolverState& solver, const BallLoadView& view)
        : S(view.GraphRadius),
          a(view.GraphYaw * PiValue / 180.0),
          v(view.GraphPitch * PiValue / 180.0),
          w(divide(TwoPiValue, solver.BallCount)) {}

    PagePoint onCircle(int k) const {
        return {S * std::cos(k * w + a), S * std::sin(k * w) * std::cos(v)};  // no turn in the sine
    }
    /// The tip of a ball's spike: row 1 stands up, row 2 down.
    static PagePoint tip(PagePoint foot, int row, double load) {
        return {foot.x, row == 1 ? foot.y - load : foot.y + load};
    }

    double S, a, v;
    Single w;  ///< `GraphSpacing`
};

void drawAxes(const Perspective& p, Colour colour, DrawingWindow& window) {
    const PagePen pen{colour, kThick, 0};
    const double S = p.S;
    const double ca = std::cos(p.a);
    const double sa = std::sin(p.a);
    const double cv = std::cos(p.v);
    window.line({-1.1 * S * ca, 0.0}, {1.1 * S * ca, 0.0}, pen);
    window.line({-1.1 * S * sa, 1.1 * S * cv}, {1.1 * S * sa, -1.1 * S * cv}, pen);
    window.line({0.0, 0.1 * S}, {0.0, -0.1 * S}, pen);
    TextLook look;
    look.typeface = Typeface::Arial;
    look.points = 9.0;
    look.colour = colour;
    window.text({1.15 * S * ca, -0.04 * S}, "0°", look);
    window.text({1.2 * S * sa - 0.01 * S, -1.3 * S * cv - 0.01 * S}, "90°", look);
    window.text({-1.3 * S * ca, -0.04 * S}, "180°", look);
    window.text({-1.2 * S * sa - 0.01 * S, 1.2 * S * cv + 0.01 * S}, "270°", look);
}

void drawRow(const SolverState& solver, const Perspective& p, int row, Colour colour, DrawingWindow& window) {
    const int Z = solver.BallCount;
    const auto tipOf = [&](int ball) {
        return Perspective::tip(p.onCircle(ball - 1), row, solver.BallLoad(row, ball));
    };
    for (int ball = 1; ball <= Z; ++ball) {
        if (solver.BallLoad(row, ball) == 0.0) continue;
        window.line(p.onCircle(ball - 1), tipOf(ball), {colour, kThin, 0});
    }
    const auto connect = [&](int one, int other) {
        if (solver.BallLoad(row, one) == 0.0 || solver.BallLoad(row, other) == 0.0) return;
        window.line(tipOf(one), tipOf(other), {colour, kThick, 0});
    };
    for (int ball = 1; ball < Z; ++ball)
        connect(ball, ball + 1);
    connect(1, Z);
}

double distanceToLine(PagePoint place, PagePoint from, PagePoint to) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double square = dx * dx + dy * dy;
    const double share =
        square == 0.0 ? 0.0
                      : std::clamp(((place.x - from.x) * dx + (place.y - from.y) * dy) / square, 0.0, 1.0);
    return std::hypot(place.x - from.x - share * dx, place.y - from.y - share * dy);
}

ShownBall shown(const SolverState& solver, const Perspective& p, const WindowScale& window, int row,
                int ball) {
    const PagePoint foot = p.onCircle(ball - 1);
    const double load = solver.BallLoad(row, ball);
    const std::string angle = trimmed(solver.BallAngleText(row, ball));
    return {row,
            ball,
            (ball - 1) * 360.0 / solver.BallCount,
            load,
            angle.empty() ? "0" : angle,
            window.place(foot),
            window.place(Perspective::tip(foot, row, load))};
}

}  // namespace

int shownRows(const SolverState& solver) {
    return solver.StyleIsC ? 1 : 2;
}

BallLoadView openingView(const SolverState& solver) {
    BallLoadView view;
    view.GraphRadius = solver.MaxBallLoad;
    return view;
}

BallLoadScrolls scrollsOf(const BallLoadView& view) {
    // Loads without bounds still leave the bar one.
    const auto whole = [](double value) {
        return static_cast<int>(Int(std::min(value, static_cast<double>(std::numeric_limits<int>::max()))));
    };
    return {{-180, 180, whole(view.GraphYaw)},
            {0, 90, whole(view.GraphPitch)},
            {0, whole(2.0 * view.GraphRadius), whole(view.GraphRadius)}};
}

void resetView(BallLoadView& view, const SolverState& solver) {
    view.GraphYaw = 0.0;
    view.GraphPitch = kOpeningPitch;
    view.GraphRadius = solver.MaxBallLoad;
}

DrawingArea ballLoadArea(const BallLoadView& view) {
    const double S = view.GraphRadius;
    return {-kMargin * S, -kMargin * S, 2.0 * kMargin * S, 2.0 * kMargin * S};
}

void drawBallLoads(const SolverState& solver, const BallLoadView& view, const PageBox& box, bool onPaper,
                   Canvas& canvas) {
    const Perspective p(solver, view);
    DrawingWindow window(canvas, box, ballLoadArea(view));
    if (!onPaper) canvas.rectangle(box, view.colours.background, std::nullopt);
    drawAxes(p, view.colours.axis, window);
    for (int i = 1; i <= solver.BallCount; ++i)
        window.line(p.onCircle(i - 1), p.onCircle(i), {view.colours.base, kThin, 0});
    drawRow(solver, p, 1, view.colours.row1, window);
    if (shownRows(solver) == 2) drawRow(solver, p, 2, view.colours.row2, window);
}

ShownBall shownBall(const SolverState& solver, const BallLoadView& view, const PageBox& box, int row,
                    int ball) {
    return shown(solver, Perspective(solver, view), WindowScale(box, ballLoadArea(view)), row, ball);
}

std::optional<ShownBall> ballAt(const SolverState& solver, const BallLoadView& view, const PageBox& box,
                                PagePoint place) {
    constexpr double kReach = 0.1;  // inches
    const Perspective p(solver, view);
    const WindowScale window(box, ballLoadArea(view));
    std::optional<ShownBall> nearest;
    double least = kReach;
    for (int row = 1; row <= shownRows(solver); ++row) {
        for (int ball = 1; ball <= solver.BallCount; ++ball) {
            const ShownBall one = shown(solver, p, window, row, ball);
            const double away = distanceToLine(place, one.foot, one.tip);
            if (away >= least) continue;
            least = away;
            nearest = one;
        }
    }
    return nearest;
}

std::string ballReadout(const ShownBall& ball, const UnitMode& units) {
    const bool touches = ball.contactAngle != "N/A";
    return "Row " + std::to_string(ball.row) + ", ball " + std::to_string(ball.ball) + " at " +
           FormatNumber(ball.angle, "0.0") +
           "°: " + FormatNumber(divide(ball.load, units.forceFactor), "#,##0.0") + " " + units.loadUnit +
           (touches ? ", contact angle " + FormatNumber(leadingNumber(ball.contactAngle), "0.00") + "°"
                    : ", out of touch");
}

}  // namespace norlaplan
