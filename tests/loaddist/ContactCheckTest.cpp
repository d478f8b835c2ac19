#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "loaddist/ContactDrawing.h"
#include "loaddist/radlodestar2.h"
#include "numbers/PiValue.h"
#include "numbers/Text.h"
#include "support/FaultOf.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::RecordingCanvas;

/// Three balls, of which the second and third of row 1 carry the same.
ProgramState solvedState() {
    ProgramState state;
    BearingSpec& bearing = state.bearing;
    bearing.partNumber = "K19013XP0";
    bearing.styleLetter = "X";
    bearing.ballDiameter = 0.25;
    bearing.pitchDiameter = 7.992;
    bearing.raceRadius = 0.1325;
    bearing.referenceDiameter1 = 7.812;
    bearing.crossSectionCode = 13.0;
    bearing.contactAngle = ThirtyDegrees;
    SolverState& solver = state.solver;
    solver.BallCount = 3;
    ResetAnalysis(solver);
    solver.BallLoad(1, 1) = 10.0;
    solver.BallLoad(1, 2) = solver.BallLoad(1, 3) = 1234.56;
    solver.BallLoad(2, 3) = 0.04;
    solver.InnerStress(1, 2) = 198338.39;
    solver.InnerSemiMajor(1, 2) = 0.0322;
    solver.InnerSemiMinor(1, 2) = 0.00271;
    solver.InnerSemiMajor(2, 3) = 0.001;
    solver.InnerSemiMinor(2, 3) = 0.0001;
    solver.BallAngleText(1, 2) = "30.126";
    solver.BallAngleText(2, 3) = "-5.250";
    return state;
}

TEST(ContactCheck, SaysTenTextsOfTheHeaviestBalls) {
    const ContactCheck check = checkContact(solvedState());
    EXPECT_EQ(check.rows[0].ball, 2) << "the first of two equal loads";
    EXPECT_EQ(check.rows[1].ball, 3);
    const std::array<std::string, 5> first = {
        "Max. Ball Load = 1,234.6 lbs.", "Maximum Avg. Stress = 198,338 psi",
        "Ellipse Major Axis = 0.0644 in.", "Ellipse Minor Axis = 0.0054 in.", "Contact Angle = 30.13°"};
    EXPECT_EQ(check.rows[0].lines(), first);
    EXPECT_EQ(check.rows[1].lines()[0], "Max. Ball Load = .0 lbs.");
    EXPECT_EQ(check.rows[1].lines()[4], "Contact Angle = -5.25°");
    EXPECT_EQ(plainText(check.rows[0].stress), "198338.39") << "the shortest text of 32 bits";
    EXPECT_EQ(check.groupCaption(1), "Contact Stress Row 1 Displayed");
    EXPECT_EQ(check.groupCaption(2), "Contact Stress Row 2");
}

TEST(ContactCheck, ShowsTheWantedRowOrTheOneThatCarriesLoad) {
    ProgramState state = solvedState();
    EXPECT_EQ(checkContact(state).row, 1);
    const ContactCheck second = checkContact(state, 2);
    EXPECT_EQ(second.row, 2);
    EXPECT_EQ(second.EllipseMajor, Single(0.001));
    EXPECT_EQ(second.EllipseAngle, Single(-5.25 * PiValue / 180.0));
    EXPECT_EQ(second.groupCaption(2), "Contact Stress Row 2 Displayed");
    state.solver.BallLoad(2, 3) = 0.0;
    EXPECT_EQ(checkContact(state, 2).row, 1);
    EXPECT_FALSE(checkContact(state, 2).canChoose(2));
    EXPECT_EQ(checkContact(state, 2).rows[1].ball, 1) << "stands for a row without load";
    for (const int ball : {1, 2, 3})
        state.solver.BallLoad(1, ball) = 0.0;
    state.solver.BallLoad(2, 1) = 1.0;
    EXPECT_EQ(checkContact(state, 1).row, 2);
}

TEST(ContactCheck, OfARadialBearingHasNoAngle) {
    ProgramState state = solvedState();
    state.bearing.styleLetter = "C";
    state.solver.BallAngleText(1, 2) = "";
    const ContactCheck check = checkContact(state);
    EXPECT_EQ(check.rows[0].lines()[4], "Contact Angle = 0°");
    EXPECT_EQ(check.EllipseAngle, 0.0);
}

TEST(ContactCheck, BeforeAnySolveIsAFault) {
    EXPECT_EQ(testing::faultOf([] { checkContact(ProgramState()); }), fault::kSubscript);
}

ContactSection sectionOf(const ProgramState& state, int row = 1) {
    return contactSection(state.bearing, checkContact(state, row));
}

double distance(PagePoint a, PagePoint b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

TEST(Land, IsTheDistanceOfTwoPointsFoundByPlainGeometry) {
    struct Row {
        double section, ball, groove, pitch, shoulder, degrees, major, corner;
    };
    for (const Row& row : {Row{8, 0.15625, 0.0828125, 3.0, 2.9, 29.5, 0.01, 0.009},
                           Row{13, 0.25, 0.1325, 7.992, 7.812, 30.126, 0.0322, 0.01},
                           Row{20, 0.375, 0.19875, 17.5, 17.25, 41.0, 0.02, 0.012}}) {
        ProgramState state = solvedState();
        state.bearing.crossSectionCode = row.section;
        state.bearing.ballDiameter = row.ball;
        state.bearing.raceRadius = row.groove;
        state.bearing.pitchDiameter = row.pitch;
        state.bearing.referenceDiameter1 = row.shoulder;
        state.solver.InnerSemiMajor(1, 2) = row.major;
        state.solver.BallAngleText(1, 2) = std::to_string(row.degrees).substr(0, 6);
        // The groove's centre C; the corner's centre K touches the shoulder from inside and the groove's
        // circle from outside, so the edge E lies between them at the groove's radius from C.
        const double r = state.bearing.raceRadius;
        const double offset = r - state.bearing.ballDiameter / 2.0;
        const double cx = state.bearing.pitchDiameter / 2.0 + offset * std::sqrt(0.75);
        const double cy = -offset / 2.0;
        const double dx = state.bearing.referenceDiameter1 / 2.0 - row.corner - cx;
        const double dy = std::sqrt((r + row.corner) * (r + row.corner) - dx * dx);
        const PagePoint edge{cx + dx * r / (r + row.corner), cy + dy * r / (r + row.corner)};
        // The ellipse's end: the contact line turned by half of the ellipse's arc towards the edge.
        const double turned = row.degrees * M_PI / 180.0 + row.major / r;
        const PagePoint end{cx - r * std::cos(turned), cy + r * std::sin(turned)};
        EXPECT_NEAR(sectionOf(state).land(), distance(edge, end), 2e-8) << row.section;
    }
}

TEST(ContactSection, MeetsWhereItsArcsMeet) {
    const ContactSection s = sectionOf(solvedState());
    const double upperEnd = s.upperGroove.y + s.r * std::sin(PiValue - s.t2);
    EXPECT_NEAR(upperEnd, 0.0, 1e-12) << "the upper groove ends on the middle plane";
    EXPECT_NEAR(distance(s.upperCorner, s.upperGroove), s.r + s.k, 1e-12);
    EXPECT_NEAR(distance(s.lowerCorner, s.lowerGroove), s.r + s.k, 1e-12);
    EXPECT_EQ(s.lowerGroove.y, 0.0) << "built with an angle of 0, whatever the bearing's";
    EXPECT_NEAR(s.lowerGroove.x, 7.992 / 2.0 + 0.1325 - 0.125, 1e-6);
}

TEST(ContactSection, TellsAnEllipseThatRunsOverTheEdgeFromOneThatLeavesLand) {
    ProgramState state = solvedState();
    // How far along the groove its edge lies beyond the end of the contact line.
    const ContactSection s = sectionOf(state);
    const double edge = std::asin((s.edge.y - s.upperGroove.y) / s.r);
    const double reach = (edge - 30.126 * M_PI / 180.0) * s.r;
    ASSERT_GT(reach, 0.0);
    state.solver.InnerSemiMajor(1, 2) = reach - 0.001;
    EXPECT_FALSE(sectionOf(state).overruns());
    EXPECT_NEAR(sectionOf(state).land(), 0.001, 1e-4);
    state.solver.InnerSemiMajor(1, 2) = reach + 0.001;
    EXPECT_TRUE(sectionOf(state).overruns());
    EXPECT_NEAR(sectionOf(state).land(), 0.001, 1e-4);
    state.solver.BallAngleText(1, 2) = "-30.126";
    EXPECT_FALSE(sectionOf(state).overruns()) << "the other side of the groove";
}

TEST(ContactSection, OfAShoulderOutOfReachIsAFault) {
    ProgramState state = solvedState();
    state.bearing.referenceDiameter1 = 7.0;
    EXPECT_EQ(testing::faultOf([&] { sectionOf(state); }), fault::kInvalidCall);
}

constexpr PageBox kBox{1.0, 9.0, 7.0, 3.0};

struct Drawing {
    explicit Drawing(const ContactSection& section) : Drawing(section, openingArea(section)) {}
    Drawing(const ContactSection& section, const DrawingArea& area) : window(canvas, kBox, area) {
        drawContact(section, window);
    }
    /// Whether a line of this colour has an end at a place of the drawing.
    bool touches(PagePoint at, Colour colour) const {
        const PagePoint place = window.place(at);
        return std::any_of(canvas.lines.begin(), canvas.lines.end(), [&](const auto& line) {
            return line.pen.colour == colour &&
                   (distance(line.from, place) < 1e-6 || distance(line.to, place) < 1e-6);
        });
    }
    RecordingCanvas canvas;
    DrawingWindow window;
};

constexpr Colour kDarkGreen = rgb(0, 128, 0);
constexpr Colour kDarkRed = rgb(128, 0, 0);
constexpr Colour kDarkBlue = rgb(0, 0, 128);

TEST(ContactDrawing, HasItsPartsWhereGeometryPutsThem) {
    const ContactSection s = sectionOf(solvedState());
    const Drawing drawing(s, wholeArea(s));
    EXPECT_TRUE(drawing.touches(s.edge, colours::kBlack));
    EXPECT_TRUE(drawing.touches(s.edge, kDarkGreen)) << "the corner goes on from the groove";
    EXPECT_TRUE(drawing.touches({s.shoulder, s.upperCorner.y}, kDarkGreen));
    EXPECT_TRUE(drawing.touches({s.shoulder, s.D}, kDarkGreen));
    EXPECT_TRUE(drawing.touches({s.shoulder, -s.D}, kDarkGreen));
    EXPECT_TRUE(drawing.touches({s.shoulder - s.D / 10.0, 1.1 * s.D}, kDarkGreen)) << "the chamfer";
    EXPECT_TRUE(drawing.touches({s.dm / 2.0 - s.D / 2.0, 0.0}, colours::kBlack))
        << "bottom of the lower groove";
    const PagePoint contact{s.upperGroove.x - s.r * std::cos(s.e), s.upperGroove.y + s.r * std::sin(s.e)};
    EXPECT_TRUE(drawing.touches(contact, kDarkRed));
    EXPECT_TRUE(drawing.touches(s.p1, kDarkBlue));
    EXPECT_TRUE(drawing.touches(s.p2, kDarkBlue));
    // The ring's axis, a fifth of the ball four times left of the shoulder's chamfer and the ball's width.
    const double axis = s.shoulder - 0.1 * s.D - s.D - 0.8 * s.D - 0.4 * s.D;
    EXPECT_TRUE(drawing.touches({axis, 1.3 * s.D}, kDarkRed));
    EXPECT_TRUE(drawing.canvas.hasText("Ø 7.812"));
    EXPECT_TRUE(drawing.canvas.hasText("30.13°"));
}

TEST(ContactDrawing, PrintsTheLand) {
    ProgramState state = solvedState();
    state.solver.InnerSemiMajor(1, 2) = 0.01;
    const ContactSection s = sectionOf(state);
    ASSERT_GT(s.land(), 0.01);
    const std::string text = std::to_string(s.land() + 0.0005).substr(0, 5);
    EXPECT_TRUE(Drawing(s).canvas.hasText(text)) << text;
}

TEST(ContactDrawing, PrintsTheLandInAWindowOnTheLandAlone) {
    ProgramState state = solvedState();
    state.solver.InnerSemiMajor(1, 2) = 0.01;
    const ContactSection s = sectionOf(state);
    // The dimension stands a quarter of the ball off the land; a tenth around it is seen.
    const double extent = 0.1 * s.D;
    const DrawingArea land{(s.edge.x + s.p2.x - extent) / 2.0, (s.edge.y + s.p2.y + extent) / 2.0, extent,
                           -extent};
    const std::string text = std::to_string(s.land() + 0.0005).substr(0, 5);
    EXPECT_TRUE(Drawing(s, land).canvas.hasText(text)) << text;
    const DrawingArea elsewhere{land.left + 10.0 * extent, land.top, extent, -extent};
    EXPECT_TRUE(Drawing(s, elsewhere).canvas.texts.empty());
}

TEST(ContactDrawing, ClosesTheOvalWithACommonTangent) {
    const ContactSection s = sectionOf(solvedState());
    const Drawing drawing(s);
    // The outline's chords, one behind the other, turn by little: four arcs that go over into each other.
    std::vector<RecordingCanvas::Line> outline;
    for (const auto& line : drawing.canvas.lines) {
        if (line.pen.colour == kDarkBlue) outline.push_back(line);
    }
    outline.resize(outline.size() - 2);  // the two axes
    ASSERT_GT(outline.size(), 20U);
    for (const auto& line : outline) {
        const auto follows = [&](PagePoint end) {
            return std::count_if(outline.begin(), outline.end(), [&](const auto& other) {
                return distance(other.from, end) < 1e-6 || distance(other.to, end) < 1e-6;
            });
        };
        EXPECT_EQ(follows(line.from), 2);
        EXPECT_EQ(follows(line.to), 2);
    }
}

bool crosses(const RecordingCanvas::Line& line, const PageBox& box) {
    // Walked in small steps: a plain stand-in for clipping.
    for (int i = 0; i <= 400; ++i) {
        const double x = line.from.x + (line.to.x - line.from.x) * i / 400.0;
        const double y = line.from.y + (line.to.y - line.from.y) * i / 400.0;
        if (x > box.left && x < box.right && y < box.top && y > box.bottom) return true;
    }
    return false;
}

TEST(ContactDrawing, KeepsLineWeightsAndLeavesDimensionsClearAtEveryZoom) {
    const ContactSection s = sectionOf(solvedState());
    DrawingArea area = openingArea(s);
    for (int i = 0; i < 12; ++i)
        area = areaAfterKey(area, ViewKey::PageDown, s);
    for (int i = 0; i < 30; ++i) {
        const Drawing drawing(s, area);
        for (const auto& line : drawing.canvas.lines) {
            EXPECT_TRUE(line.pen.width == 9525.0 || line.pen.width == 19050.0);
            for (const PagePoint& end : {line.from, line.to}) {
                EXPECT_GE(end.x, kBox.left - 1e-9);
                EXPECT_LE(end.x, kBox.right + 1e-9);
                EXPECT_GE(end.y, kBox.bottom - 1e-9);
                EXPECT_LE(end.y, kBox.top + 1e-9);
            }
        }
        for (const auto& text : drawing.canvas.texts) {
            EXPECT_GT(text.box.left, kBox.left);
            EXPECT_LT(text.box.right, kBox.right);
            for (const auto& line : drawing.canvas.lines)
                ASSERT_FALSE(crosses(line, text.box)) << text.text << " at zoom " << i;
        }
        area = areaAfterKey(area, ViewKey::PageUp, s);
    }
}

TEST(ContactDrawing, OfAFlatOrNegativeAngleIsDrawnToo) {
    ProgramState state = solvedState();
    EXPECT_TRUE(Drawing(sectionOf(state, 2)).canvas.hasText("-5.25°"));
    state.bearing.styleLetter = "C";
    state.bearing.contactAngle = 0.0;
    const Drawing radial(sectionOf(state));
    for (const auto& text : radial.canvas.texts)
        EXPECT_EQ(text.text.find("°"), std::string::npos) << text.text;
}

TEST(ContactArea, OpensAroundTheBallAndFollowsTheKeys) {
    const ContactSection s = sectionOf(solvedState());
    const DrawingArea area = openingArea(s);
    EXPECT_NEAR(area.left, 7.992 / 2.0 - 0.5, 1e-6);
    EXPECT_NEAR(area.top, 0.3125, 1e-9);
    EXPECT_NEAR(area.width, 0.625, 1e-9);
    EXPECT_NEAR(area.height, -0.625, 1e-9);
    EXPECT_NEAR(areaAfterKey(area, ViewKey::Up, s).top, area.top - 0.0625, 1e-9);
    EXPECT_NEAR(areaAfterKey(area, ViewKey::Down, s).top, area.top + 0.0625, 1e-9);
    EXPECT_NEAR(areaAfterKey(area, ViewKey::Left, s).left, area.left + 0.0625, 1e-9);
    EXPECT_NEAR(areaAfterKey(area, ViewKey::Right, s).left, area.left - 0.0625, 1e-9);
    const DrawingArea out = areaAfterKey(area, ViewKey::PageDown, s);
    EXPECT_NEAR(out.width, 0.6875, 1e-9);
    EXPECT_NEAR(out.left, area.left - 0.03125, 1e-9);
    EXPECT_NEAR(out.top, area.top + 0.03125, 1e-9) << "the middle stays";
    const DrawingArea back = areaAfterKey(out, ViewKey::PageUp, s);
    EXPECT_NEAR(back.left, area.left, 1e-12);
    EXPECT_NEAR(back.top, area.top, 1e-12);
    EXPECT_NEAR(back.height, area.height, 1e-12);
}

TEST(ContactArea, ZoomsBetweenATenthAndTenTimes) {
    const ContactSection s = sectionOf(solvedState());
    DrawingArea in = openingArea(s);
    DrawingArea out = in;
    for (int i = 0; i < 100; ++i) {
        in = areaAfterKey(in, ViewKey::PageUp, s);
        out = areaAfterKey(out, ViewKey::PageDown, s);
    }
    // One step of a tenth may still pass the limit.
    EXPECT_LE(in.width, 0.0625);
    EXPECT_GT(in.width, 0.0625 / 1.1 - 1e-9);
    EXPECT_GE(out.width, 6.25);
    EXPECT_LT(out.width, 6.25 * 1.1 + 1e-9);
}

TEST(ContactArea, BecomesTheFrameOfTheMouse) {
    const ContactSection s = sectionOf(solvedState());
    const WindowScale scale(kBox, openingArea(s));
    const auto area = areaOfFrame(scale, {4.0, 5.0}, {2.5, 6.5});
    ASSERT_TRUE(area.has_value());
    EXPECT_NEAR(area->width, 1.5 * 0.625 / 6.0, 1e-9);
    EXPECT_NEAR(area->height, -area->width, 1e-9);
    EXPECT_NEAR(area->left, scale.placeBack({2.5, 6.5}).x, 1e-12);
    EXPECT_NEAR(area->top, scale.placeBack({2.5, 6.5}).y, 1e-12);
    EXPECT_FALSE(areaOfFrame(scale, {4.0, 5.0}, {4.0, 5.0}).has_value());
    EXPECT_FALSE(areaOfFrame(scale, {4.0, 5.0}, {4.0, 6.0}).has_value()) << "a line has no extent";
}

TEST(ContactPrint, CarriesTheTextsOfBothRows) {
    RecordingCanvas canvas;
    testing::FixedClock clock;
    const ProgramState state = solvedState();
    printContactCheck(state, clock, checkContact(state), canvas);
    for (const char* const text :
         {"Compressive Stress for K19013XP0", "Contact Stress Row 1 Displayed", "Contact Stress Row 2",
          "Max. Ball Load = 1,234.6 lbs.", "Max. Ball Load = .0 lbs.",
          "Simulated Display of heaviest loaded ball for chosen row", "Ø 7.812",
          "Printed: 3/14/26 9:26 AM"}) {
        EXPECT_TRUE(canvas.hasText(text)) << text;
    }
    EXPECT_TRUE(std::any_of(canvas.texts.begin(), canvas.texts.end(), [](const auto& drawn) {
        return drawn.text == "Compressive Stress for K19013XP0" && drawn.look.points == 15.0 &&
               drawn.look.bold;
    }));
}

}  // namespace
}  // namespace norlaplan
