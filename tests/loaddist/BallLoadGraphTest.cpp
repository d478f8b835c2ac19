#include <algorithm>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "loaddist/BallLoadGraph.h"
#include "loaddist/radlodestar2.h"
#include "support/FaultOf.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::RecordingCanvas;

constexpr PageBox kBox{1.0, 8.8, 8.8, 1.0};  // 7.8 inches: with a circle of 10 pounds 0.3 inches a pound

/// Four balls. Row 1 carries 10, 5 and 2.5 pounds on balls 1, 2 and 4, row 2 carries 4 on ball 3.
SolverState fourBalls() {
    SolverState solver;
    solver.BallCount = 4;
    ResetAnalysis(solver);
    solver.BallLoad(1, 1) = 10.0;
    solver.BallLoad(1, 2) = 5.0;
    solver.BallLoad(1, 4) = 2.5;
    solver.BallLoad(2, 3) = 4.0;
    solver.BallAngleText(1, 1) = "30.126";
    solver.BallAngleText(1, 3) = "  N/A ";
    solver.BallAngleText(2, 3) = "29.500";
    solver.MaxBallLoad = 10.0;
    return solver;
}

/// A place of the drawing, in pounds, y downward, on the page.
PagePoint at(double x, double y) {
    return {4.9 + 0.3 * x, 4.9 - 0.3 * y};
}

bool near(PagePoint a, PagePoint b) {
    return std::hypot(a.x - b.x, a.y - b.y) < 1e-6;
}

bool hasLine(const RecordingCanvas& canvas, PagePoint from, PagePoint to, Colour colour, double width) {
    return std::any_of(canvas.lines.begin(), canvas.lines.end(), [&](const auto& line) {
        return near(line.from, from) && near(line.to, to) && line.pen.colour == colour &&
               line.pen.width == width;
    });
}

RecordingCanvas drawn(const SolverState& solver, const BallLoadView& view, bool onPaper = false) {
    RecordingCanvas canvas;
    drawBallLoads(solver, view, kBox, onPaper, canvas);
    return canvas;
}

const double kCosine80 = std::cos(80.0 * M_PI / 180.0);

TEST(BallLoadGraph, StandsSpikesOnTheBallCircleRowOneUpRowTwoDown) {
    const RecordingCanvas canvas = drawn(fourBalls(), openingView(fourBalls()));
    const double depth = 10.0 * kCosine80;
    EXPECT_TRUE(hasLine(canvas, at(10, 0), at(10, -10), colours::kBlue, 9525.0));
    EXPECT_TRUE(hasLine(canvas, at(0, depth), at(0, depth - 5.0), colours::kBlue, 9525.0));
    EXPECT_TRUE(hasLine(canvas, at(0, -depth), at(0, -depth - 2.5), colours::kBlue, 9525.0));
    EXPECT_TRUE(hasLine(canvas, at(-10, 0), at(-10, 4), colours::kRed, 9525.0));
    for (const auto& [from, to] :
         {std::pair{at(10, 0), at(0, depth)}, std::pair{at(0, depth), at(-10, 0)},
          std::pair{at(-10, 0), at(0, -depth)}, std::pair{at(0, -depth), at(10, 0)}}) {
        EXPECT_TRUE(hasLine(canvas, from, to, colours::kGreen, 9525.0)) << "base ellipse";
    }
}

TEST(BallLoadGraph, StepsFromBallToBallIn32Bits) {
    SolverState solver;
    solver.BallCount = 7;
    ResetAnalysis(solver);
    solver.BallLoad(1, 7) = solver.MaxBallLoad = 10.0;
    const RecordingCanvas canvas = drawn(solver, openingView(solver));
    const double angle = 6.0 * static_cast<double>(static_cast<float>(6.28318530718 / 7.0));
    const PagePoint foot = at(10.0 * std::cos(angle), 10.0 * std::sin(angle) * kCosine80);
    // With 64 bits of the step the foot would stand 1e-7 inches beside it.
    EXPECT_TRUE(std::any_of(canvas.lines.begin(), canvas.lines.end(), [&](const auto& line) {
        return std::hypot(line.from.x - foot.x, line.from.y - foot.y) < 1e-8;
    }));
}

TEST(BallLoadGraph, ConnectsTipsUnlessOneOfTheTwoBallsCarriesNothing) {
    const RecordingCanvas canvas = drawn(fourBalls(), openingView(fourBalls()));
    const double depth = 10.0 * kCosine80;
    EXPECT_TRUE(hasLine(canvas, at(10, -10), at(0, depth - 5.0), colours::kBlue, 19050.0));
    EXPECT_TRUE(hasLine(canvas, at(10, -10), at(0, -depth - 2.5), colours::kBlue, 19050.0))
        << "first to last";
    const auto connections = std::count_if(canvas.lines.begin(), canvas.lines.end(), [](const auto& line) {
        return line.pen.width == 19050.0 && line.pen.colour != colours::kPurple;
    });
    EXPECT_EQ(connections, 2) << "none to ball 3 of row 1, none in row 2, whose only ball is alone";
}

TEST(BallLoadGraph, DrawsAxesAndAngles) {
    const RecordingCanvas canvas = drawn(fourBalls(), openingView(fourBalls()));
    const Colour magenta = 16711935;
    EXPECT_TRUE(hasLine(canvas, at(-11, 0), at(11, 0), magenta, 19050.0));
    EXPECT_TRUE(hasLine(canvas, at(0, 11 * kCosine80), at(0, -11 * kCosine80), magenta, 19050.0));
    EXPECT_TRUE(hasLine(canvas, at(0, 1), at(0, -1), magenta, 19050.0));
    for (const char* const angle : {"0°", "90°", "180°", "270°"})
        EXPECT_TRUE(canvas.hasText(angle)) << angle;
    for (const auto& text : canvas.texts) {
        EXPECT_GT(text.box.left, kBox.left) << text.text;
        EXPECT_LT(text.box.right, kBox.right) << text.text;
    }
}

TEST(BallLoadGraph, TurnsTheCircleInItsCosineAlone) {
    SolverState solver = fourBalls();
    BallLoadView view = openingView(solver);
    view.GraphYaw = 90.0;
    view.GraphPitch = 0.0;
    // Ball 2 stands at (10 cos 180, 10 sin 90): the sine has no turn in it.
    EXPECT_TRUE(hasLine(drawn(solver, view), at(-10, 10), at(-10, 5), colours::kBlue, 9525.0));
}

// Half of each axis: 1.1 S cos(60) = 5.5 along the view, 1.1 S sin(60) = 9.526 across it, laid over by
// cos(45).
TEST(BallLoadGraph, TurnsAndTiltsItsAxes) {
    const SolverState solver = fourBalls();
    BallLoadView view = openingView(solver);
    view.GraphYaw = 60.0;
    view.GraphPitch = 45.0;
    const RecordingCanvas canvas = drawn(solver, view);
    const Colour magenta = 16711935;
    const double across = 11.0 * std::sqrt(0.75), down = 11.0 * std::sqrt(0.5);
    EXPECT_TRUE(hasLine(canvas, at(-5.5, 0), at(5.5, 0), magenta, 19050.0));
    EXPECT_TRUE(hasLine(canvas, at(-across, down), at(across, -down), magenta, 19050.0));
    EXPECT_TRUE(hasLine(canvas, at(0, 1), at(0, -1), magenta, 19050.0));
    // An angle stands at the end of its half axis.
    const auto place = [&](const std::string& angle) {
        for (const auto& text : canvas.texts) {
            if (text.text == angle) return PagePoint{text.box.left, text.box.top};
        }
        ADD_FAILURE() << angle;
        return PagePoint{};
    };
    const PagePoint middle = at(0, 0);
    EXPECT_GT(place("0°").x, middle.x);
    EXPECT_LT(place("180°").x, middle.x);
    EXPECT_GT(place("90°").x, middle.x);
    EXPECT_GT(place("90°").y, middle.y);
    EXPECT_LT(place("270°").x, middle.x);
    EXPECT_LT(place("270°").y, middle.y);
}

TEST(BallLoadGraph, OfARadialBearingHasOneRow) {
    SolverState solver = fourBalls();
    solver.StyleIsC = true;
    for (const auto& line : drawn(solver, openingView(solver)).lines)
        EXPECT_NE(line.pen.colour, colours::kRed);
}

TEST(BallLoadGraph, TakesFiveColoursAndLeavesThePaperWhite) {
    const SolverState solver = fourBalls();
    BallLoadView view = openingView(solver);
    EXPECT_EQ(view.colours.row1, 16711680U);
    EXPECT_EQ(view.colours.row2, 255U);
    EXPECT_EQ(view.colours.base, 65280U);
    EXPECT_EQ(view.colours.background, 0U);
    view.colours = {1, 2, 3, 4, 5};
    const RecordingCanvas screen = drawn(solver, view);
    ASSERT_EQ(screen.rectangles.size(), 1U);
    EXPECT_EQ(screen.rectangles[0].fill, Colour{4});
    for (const auto& line : screen.lines)
        EXPECT_TRUE(line.pen.colour >= 1 && line.pen.colour <= 5 && line.pen.colour != 4);
    EXPECT_TRUE(drawn(solver, view, true).rectangles.empty());
}

TEST(BallLoadGraph, CutsSpikesOffAtTheWindowsEdge) {
    const SolverState solver = fourBalls();
    BallLoadView view = openingView(solver);
    view.GraphRadius = 1.0;
    for (const auto& line : drawn(solver, view).lines) {
        EXPECT_LE(line.to.y, kBox.top + 1e-9);
        EXPECT_GE(line.to.y, kBox.bottom - 1e-9);
    }
}

TEST(BallLoadGraph, HasScrollBarsForTurnTiltAndRadius) {
    SolverState solver = fourBalls();
    solver.MaxBallLoad = 25.75;
    BallLoadView view = openingView(solver);
    const BallLoadScrolls scrolls = scrollsOf(view);
    EXPECT_EQ(scrolls.yaw.value, 0);
    EXPECT_EQ(scrolls.pitch.value, 80);
    EXPECT_EQ(scrolls.radius.most, 51);
    EXPECT_EQ(scrolls.radius.value, 25);
    view.GraphYaw = 45.0;
    view.GraphPitch = 10.0;
    view.GraphRadius = 0.0;
    EXPECT_EQ(testing::faultOf([&] { drawn(solver, view); }), fault::kDivisionByZero);
    resetView(view, solver);
    EXPECT_EQ(view.GraphYaw, 0.0);
    EXPECT_EQ(view.GraphPitch, 80.0);
    EXPECT_EQ(view.GraphRadius, 25.75);
    EXPECT_NO_THROW(drawn(solver, view));
}

TEST(BallLoadGraph, DrawsAtTheEndsOfItsScrollBars) {
    const SolverState solver = fourBalls();
    BallLoadView view = openingView(solver);
    const BallLoadScrolls scrolls = scrollsOf(view);
    for (const int yaw : {scrolls.yaw.least, scrolls.yaw.most}) {
        for (const int pitch : {scrolls.pitch.least, scrolls.pitch.most}) {
            view.GraphYaw = yaw;
            view.GraphPitch = pitch;
            view.GraphRadius = scrolls.radius.most;
            EXPECT_GT(drawn(solver, view).lines.size(), 8U);
        }
    }
}

TEST(BallLoadGraph, TellsTheBallUnderThePointer) {
    const SolverState solver = fourBalls();
    const BallLoadView view = openingView(solver);
    const auto first = ballAt(solver, view, kBox, at(10.1, -6));
    ASSERT_TRUE(first.has_value());
    EXPECT_EQ(first->row, 1);
    EXPECT_EQ(first->ball, 1);
    EXPECT_EQ(first->load, 10.0);
    const auto second = ballAt(solver, view, kBox, at(-10, 3));
    ASSERT_TRUE(second.has_value());
    EXPECT_EQ(second->row, 2);
    EXPECT_EQ(second->ball, 3);
    EXPECT_EQ(second->angle, 180.0);
    EXPECT_FALSE(ballAt(solver, view, kBox, at(5, -8)).has_value());
    UnitMode units;
    ApplyUnitSystem("US", units);
    EXPECT_EQ(ballReadout(*first, units), "Row 1, ball 1 at 0.0°: 10.0 lbs, contact angle 30.13°");
    ApplyUnitSystem("METRIC", units);
    EXPECT_EQ(ballReadout(*second, units), "Row 2, ball 3 at 180.0°: 17.8 N, contact angle 29.50°");
    const auto idle = ballAt(solver, view, kBox, at(-10, -0.1));
    ASSERT_TRUE(idle.has_value());
    EXPECT_EQ(ballReadout(*idle, units), "Row 1, ball 3 at 180.0°: 0.0 N, out of touch");
}

TEST(BallLoadPrint, CarriesTheLoadCaseAndBothRows) {
    ProgramState state;
    state.bearing.partNumber = "K19013XP0";
    state.bearing.styleLetter = "X";
    state.solver = fourBalls();
    state.loads.radialLoadDisplay = 1200.0;
    state.loads.momentLoadDisplay = -900.0;
    RecordingCanvas canvas;
    testing::FixedClock clock;
    printBallLoads(state, clock, openingView(state.solver), canvas);
    for (const char* const text :
         {"K19013XP0 BALL LOAD GRAPHICAL DISPLAY", "LOAD CASE:", "RADIAL LOAD = 1,200 pounds",
          "THRUST LOAD = 0 pounds", "MOMENT LOAD = -900 inch-lbs.", "Row 1 Max. Load = 10.0 lbs",
          "Row 2 Max. Load = 4.0 lbs", "NORLAPLAN-MM version 1.00", "Printed: 3/14/26 9:26 AM", "VARDEN"}) {
        EXPECT_TRUE(canvas.hasText(text)) << text;
    }
    for (const auto& text : canvas.texts) {
        EXPECT_GE(text.box.left, 0.25) << text.text;
        EXPECT_LE(text.box.top, 8.25) << text.text;
        EXPECT_GE(text.box.bottom, 0.25) << text.text;
    }
    for (const auto& rectangle : canvas.rectangles)
        EXPECT_FALSE(rectangle.fill) << "the paper is the ground";
    state.bearing.styleLetter = "C";
    RecordingCanvas radial;
    printBallLoads(state, clock, openingView(state.solver), radial);
    EXPECT_FALSE(radial.hasText("Row 2 Max. Load = 4.0 lbs"));
}

}  // namespace
}  // namespace norlaplan
