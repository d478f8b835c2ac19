#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <vector>

/// The line weights of all pictures, in their logical pixels.
namespace lines {
constexpr double kOutline = 1.7;
constexpr double kThin = 0.8;
constexpr double kCentre = 1.2;
QColor centreColour();  ///< of axes and contact lines
}  // namespace lines

/// The tints of cut parts.
namespace tints {
QColor steel();
QColor spacer();
}  // namespace tints

/// A cut surface: tinted, hatched under 45 degrees, rising or falling, and outlined.
void fillSection(QPainter& painter, const QPainterPath& path, const QColor& tint, bool rising);

/// One row of a bearing's section: its centre in picture units and how its contact lines run.
struct Row {
    double x = 0.0;              ///< along the axis
    std::vector<double> angles;  ///< contact lines, degrees; positive rises to the right
};

/// A style as its pictures show it: rows along the axis, which lies level below the section.
struct Style {
    const char* stem;  ///< of the file names
    std::vector<Row> rows;
    double spacer = 0.0;  ///< width between two rows, in units of the section's side
    bool radialOnly = false;
};

/// The six styles of the search path.
const std::vector<Style>& styles();

/// A ball, cut or seen.
void drawBall(QPainter& painter, QPointF middle, double radius);

/// Where a section's rings, gap and spacers lie in the picture.
struct Placement {
    double left = 0.0, right = 0.0;  ///< ends along the axis
    double top = 0.0, side = 0.0;    ///< outer surface and height of the section
    double bottom() const { return top + side; }
};

/// Draws the section with its side `side` around the middle `middle`, outer ring above. `mirrored` turns it
/// upside down for the other half of the bearing. Gives where it lies.
Placement drawSection(QPainter& painter, const Style& style, QPointF middle, double side,
                      bool mirrored = false);
