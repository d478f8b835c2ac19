#include "loaddist/ContactDrawing.h"

#include <cmath>

#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

constexpr double kThin = 9525.0;  // EMU
constexpr double kThick = 19050.0;
const PagePen kGroovePen{colours::kBlack, kThin, 0};
const PagePen kShoulderPen{rgb(0, 128, 0), kThin, 0};
const PagePen kOutlinePen{rgb(0, 128, 0), kThick, 0};
const PagePen kEllipsePen{rgb(0, 0, 128), kThin, 0};
const PagePen kDimensionPen{rgb(128, 0, 0), kThin, 0};
const PagePen kCentrePen{rgb(128, 0, 0), kThin, 6};
const PagePen kAxisPen{rgb(128, 0, 0), kThin, 8};

PagePoint along(PagePoint from, PagePoint direction, double distance) {
    return {from.x + distance * direction.x, from.y + distance * direction.y};
}

PagePoint reversed(PagePoint direction) {
    return {-direction.x, -direction.y};
}

PagePoint middle(PagePoint a, PagePoint b) {
    return {(a.x + b.x) / 2.0, (a.y + b.y) / 2.0};
}

PagePoint unitVector(PagePoint from, PagePoint to, PagePoint otherwise) {
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    if (length == 0.0) return otherwise;
    return {(to.x - from.x) / length, (to.y - from.y) / length};
}

class ContactDrawer {
  public:
    ContactDrawer(const ContactSection& section, DrawingWindow& window)
        : s_(section),
          window_(window),
          w1_(0.1 * section.D),
          w2_(0.2 * section.D),
          w3_(0.05 * section.D),
          chamfer_(section.D / 10.0),
          step_(section.D / 5.0) {}

    void draw() {
        drawUpperGroove();
        drawLowerGroove();
        drawContactLine();
        drawEllipse();
        drawLand();
        drawCentre();
        drawAngle();
        drawShoulderDiameter();
        drawRing();
        drawRingAxis();
        // The dimensions come last, where the lines leave room for them.
        // The land's number is what the drawing is for: a window on the land alone shows it there.
        const bool shown = window_.shows(window_.place(landAt_));
        window_.freeText(shown ? landAt_ : middle(s_.edge, s_.p2), FormatNumber(s_.land(), "0.000"),
                         textLook(14.0));
        if (s_.e != 0.0) {
            window_.freeText(along(s_.upperGroove, {-std::cos(s_.e / 2.0), std::sin(s_.e / 2.0)}, s_.D / 3.0),
                             FormatNumber(s_.e * 180.0 / PiValue, "#.00") + "°", textLook(12.0));
        }
        window_.freeText(diameterAt_, "Ø " + FormatNumber(2.0 * s_.shoulder, "#.###"), textLook(12.0));
    }

  private:
    static TextLook textLook(double points) {
        TextLook look;
        look.typeface = Typeface::Arial;
        look.points = points;
        look.colour = kDimensionPen.colour;
        return look;
    }

    void drawUpperGroove() {
        window_.arc(s_.upperGroove, s_.r, PiValue / 2.0 + s_.t1, PiValue - s_.t2, kGroovePen);
        window_.arc(s_.upperCorner, s_.k, 3.0 * PiValue / 2.0 + s_.t1, TwoPiValue, kShoulderPen);
        window_.line({s_.shoulder, s_.D}, {s_.shoulder, s_.upperCorner.y}, kShoulderPen);
    }

    void drawLowerGroove() {
        window_.arc(s_.lowerGroove, s_.r, PiValue, 3.0 * PiValue / 2.0 - s_.t4, kGroovePen);
        window_.arc(s_.lowerCorner, s_.k, 0.0, PiValue / 2.0 - s_.t4, kShoulderPen);
        window_.line({s_.shoulder, -s_.D}, {s_.shoulder, s_.lowerCorner.y}, kShoulderPen);
    }

    PagePoint contactDirection() const { return {-std::cos(s_.e), std::sin(s_.e)}; }

    void drawContactLine() {
        window_.line(s_.upperGroove, along(s_.upperGroove, contactDirection(), s_.r), kDimensionPen);
    }

    /// The oval of four arcs about the ellipse's axes: two about centres on the long axis, two about centres
    /// on the short one, which meet with a common tangent.
    void drawEllipse() {
        const PagePoint m = middle(s_.p1, s_.p2);
        const double a = std::hypot(s_.p2.x - s_.p1.x, s_.p2.y - s_.p1.y) / 2.0;
        const double b = s_.B;
        if (a <= b || b <= 0.0) return;
        const double diagonal = std::hypot(a, b);
        const double small = diagonal * (diagonal - (a - b)) / (2.0 * a);
        const double large = diagonal * (diagonal + (a - b)) / (2.0 * b);
        const PagePoint longWay = unitVector(s_.p1, s_.p2, {1.0, 0.0});
        const PagePoint shortWay = contactDirection();
        const double turn = std::atan2(longWay.y, longWay.x);
        const double side = longWay.x * shortWay.y - longWay.y * shortWay.x > 0.0 ? 1.0 : -1.0;
        const double meet = std::atan2(large - b, a - small);
        for (const double end : {1.0, -1.0}) {
            const double towards = end > 0.0 ? turn : turn + PiValue;
            window_.arc(along(m, longWay, end * (a - small)), small, towards - meet, towards + meet,
                        kEllipsePen);
            const double up = turn + side * end * PiValue / 2.0;
            const double half = PiValue / 2.0 - meet;
            window_.arc(along(m, shortWay, end * (b - large)), large, up - half, up + half, kEllipsePen);
        }
        window_.line(s_.p1, s_.p2, kEllipsePen);
        window_.line(along(m, shortWay, b), along(m, shortWay, -b), kEllipsePen);
    }

    /// The dimension between the groove's edge and the ellipse's end, drawn on the ring's side of the groove.
    void drawLand() {
        const PagePoint chord = unitVector(s_.edge, s_.p2, {-std::cos(s_.t1), -std::sin(s_.t1)});
        PagePoint outward{chord.y, -chord.x};
        const PagePoint between = middle(s_.edge, s_.p2);
        if (outward.x * (between.x - s_.upperGroove.x) + outward.y * (between.y - s_.upperGroove.y) < 0.0)
            outward = reversed(outward);
        const double dimension = w1_ + w2_ - w3_;
        for (const auto& [end, direction] : {std::pair{s_.edge, chord}, std::pair{s_.p2, reversed(chord)}}) {
            window_.line(along(end, outward, w1_), along(end, outward, w1_ + w2_), kDimensionPen);
            const PagePoint tip = along(end, outward, dimension);
            window_.arrow(tip, direction, w3_, w3_ / 4.0, kDimensionPen);
            window_.line(tip, along(tip, direction, -(w3_ + w2_)), kDimensionPen);
        }
        landAt_ = along(between, outward, dimension);
    }

    void drawCentre() {
        const PagePoint c = s_.upperGroove;
        window_.line({c.x - w1_ / 2.0, c.y}, {c.x + w1_ / 2.0, c.y}, kDimensionPen);
        window_.line({c.x, c.y - w1_ / 2.0}, {c.x, c.y + w1_ / 2.0}, kDimensionPen);
        window_.line({s_.dm / 2.0 - 0.6 * s_.D, c.y}, {c.x - w1_, c.y}, kCentrePen);
        window_.line({c.x + w1_, c.y}, {s_.dm / 2.0 + 0.6 * s_.D, c.y}, kCentrePen);
    }

    /// The contact angle between its line and the centre line: arrows inside where they have room, otherwise
    /// from outside.
    void drawAngle() {
        if (s_.e == 0.0) return;
        const double radius = s_.D / 3.0;
        const double s = 3.0 * w3_ / s_.D;
        const double low = std::fmin(PiValue, PiValue - s_.e);
        const double high = std::fmax(PiValue, PiValue - s_.e);
        const bool inside = high - low > 2.0 * s;
        if (inside) {
            window_.arc(s_.upperGroove, radius, low + s, high - s, kDimensionPen);
        } else {
            window_.arc(s_.upperGroove, radius, low - 2.0 * s, low - s, kDimensionPen);
            window_.arc(s_.upperGroove, radius, high + s, high + 2.0 * s, kDimensionPen);
        }
        for (const double end : {low, high}) {
            const double onward = (end == high) == inside ? 1.0 : -1.0;
            // The head is a chord of the arc from its base to its tip.
            const auto at = [&](double angle) {
                return along(s_.upperGroove, {std::cos(angle), std::sin(angle)}, radius);
            };
            const PagePoint tip = at(end);
            const PagePoint base = at(end - onward * s);
            window_.arrow(tip, unitVector(base, tip, {0.0, 1.0}), std::hypot(tip.x - base.x, tip.y - base.y),
                          w3_ / 4.0, kDimensionPen);
        }
    }

    void drawShoulderDiameter() {
        const PagePoint tip{s_.shoulder, s_.lowerCorner.y - 0.05 * s_.D};
        const PagePoint tail{tip.x + 4.0 * w3_, tip.y};
        window_.arrow(tip, {-1.0, 0.0}, w3_, w3_ / 4.0, kDimensionPen);
        window_.line(tail, tip, kDimensionPen);
        diameterAt_ = tail;
    }

    double breakX() const { return s_.shoulder - chamfer_ - s_.D - 4.0 * step_; }
    double faceY() const { return s_.D + chamfer_; }

    void drawRing() {
        for (const double side : {1.0, -1.0}) {
            const PagePoint corner{s_.shoulder - chamfer_, side * faceY()};
            window_.line({s_.shoulder, side * s_.D}, corner, kOutlinePen);
            window_.line(corner, {breakX(), side * faceY()}, kOutlinePen);
        }
        constexpr int kSteps = 22;
        const auto at = [&](int i) {
            const double y = faceY() - 2.0 * faceY() * i / kSteps;
            return PagePoint{breakX() + step_ * std::sin(2.0 * PiValue * y / (2.0 * faceY())), y};
        };
        for (int i = 0; i < kSteps; ++i)
            window_.line(at(i), at(i + 1), kOutlinePen);
    }

    void drawRingAxis() {
        const double x = breakX() - 2.0 * step_;
        const double end = faceY() + step_;
        window_.line({x, end}, {x, -end}, kAxisPen);
        const double top = faceY() + 2.0 * step_;
        window_.line({x, top}, {x, top - 0.1 * s_.D}, kDimensionPen);
        window_.line({x, top - 0.1 * s_.D}, {x + 0.06 * s_.D, top - 0.1 * s_.D}, kDimensionPen);
        window_.arc({x, top - 0.05 * s_.D}, 0.03 * s_.D, 0.52, 5.76, kDimensionPen);
    }

    const ContactSection& s_;
    DrawingWindow& window_;
    double w1_, w2_, w3_;
    double chamfer_, step_;
    PagePoint landAt_, diameterAt_;
};

}  // namespace

void drawContact(const ContactSection& section, DrawingWindow& window) {
    ContactDrawer(section, window).draw();
}

}  // namespace norlaplan
