#pragma once

#include <optional>
#include <string>

#include "documents/Document.h"
#include "loaddist/DrawingWindow.h"
#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// What the user can colour.
struct BallLoadColours {
    Colour row1 = colours::kBlue;
    Colour row2 = colours::kRed;
    Colour base = colours::kGreen;
    Colour background = colours::kBlack;
    Colour axis = colours::kPurple;
};

/// Rows that the drawing has: a radial bearing has one.
int shownRows(const SolverState& solver);

/// How the ball circle is looked at.
struct BallLoadView {
    Single GraphYaw;           ///< around the vertical axis, degrees
    Single GraphPitch = 80.0;  ///< tilt, degrees
    Single GraphRadius;        ///< of the circle, pounds
    BallLoadColours colours;
};

/// A scroll bar: where it starts and ends and where it stands.
struct ScrollPosition {
    int least = 0, most = 0, value = 0;
};

/// The positions of the three bars. They hold whole numbers; the view keeps what it has until the user moves
/// one.
struct BallLoadScrolls {
    ScrollPosition yaw, pitch, radius;
};

/// The view that the screen opens with: the circle is as large as the largest ball load.
BallLoadView openingView(const SolverState& solver);
BallLoadScrolls scrollsOf(const BallLoadView& view);
/// What a refresh that failed goes back to: no turn, the opening tilt, and a circle for the solve's loads.
void resetView(BallLoadView& view, const SolverState& solver);

/// The part of the drawing that is shown, in pounds, y downward.
DrawingArea ballLoadArea(const BallLoadView& view);

/// Draws axes, base ellipse and the loads as spikes on it: row 1 up, row 2, which a radial bearing doesn't
/// have, down. `onPaper` leaves the background out. Errors: 11 for a circle without radius or no balls.
void drawBallLoads(const SolverState& solver, const BallLoadView& view, const PageBox& box, bool onPaper,
                   Canvas& canvas);

/// One ball of the drawing.
struct ShownBall {
    int row = 0, ball = 0;
    double angle = 0.0;        ///< around the bearing, degrees
    double load = 0.0;         ///< pounds
    std::string contactAngle;  ///< as text, degrees; "N/A" for a ball out of touch
    PagePoint foot, tip;       ///< its spike on the page
};

/// A ball of the drawing, both numbers counted from 1. Errors as those of `drawBallLoads`.
ShownBall shownBall(const SolverState& solver, const BallLoadView& view, const PageBox& box, int row,
                    int ball);
/// The ball whose spike passes nearest to a place on the page, within a tenth of an inch.
std::optional<ShownBall> ballAt(const SolverState& solver, const BallLoadView& view, const PageBox& box,
                                PagePoint place);
/// Row, number, angle, load in display units and contact angle.
std::string ballReadout(const ShownBall& ball, const UnitMode& units);

/// The load case and the drawing on a letter page, landscape: 11 inches wide and 8.5 high.
void printBallLoads(const ProgramState& state, ClockPort& clock, const BallLoadView& view, Canvas& canvas);

/// The page as a document, which a bitmap shows as the screen's picture; there is no RTF form. It reads the
/// state when it is written.
Document ballLoadsDocument(const ProgramState& state, const BallLoadView& view, ClockPort& clock);

}  // namespace norlaplan
