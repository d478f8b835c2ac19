#include <algorithm>
#include <string>
#include <vector>

#include "documents/SheetWriter.h"
#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"

namespace norlaplan {
namespace {

// The chart's frame in page inches, and its scale of load.
constexpr double kChartLeft = 4.45;
constexpr double kChartRight = 7.85;
constexpr double kChartBottom = 1.43;
constexpr double kChartTop = 3.08;
constexpr double kChartHeight = 1.65;
constexpr double kInchesPerPercent = 0.017;
/// Where full speed ends (20 per cent) and a fifth of it begins (150 per cent).
constexpr double kKnee = 4.79;
constexpr double kFoot = 7.0;
constexpr Colour kGridGrey = rgb(192, 192, 192);

struct Lubrication {
    double limit;
    Colour colour;
    const char* colourName;
    const char* name;
};

/// Loose separators are lubricated with grease alone; oil mist is for the finest precision.
std::vector<Lubrication> lubrications(const BearingSpec& bearing) {
    std::vector<Lubrication> shown = {{bearing.limitSpeedGrease, 16711680, "BLUE", "Grease Lubricated"}};
    if (bearing.separatorCode.starts_with("Z") || bearing.separatorCode == "S") return shown;
    shown.push_back({bearing.limitSpeedOil, 255, "RED", "Oil Lubricated"});
    if (bearing.precisionCode == "6") {
        shown.push_back({bearing.limitSpeedMist, 16711935, "PURPLE", "Oil Mist Lubricated"});
    }
    return shown;
}

void writeNoSpeeds(const SheetWriter& sheet) {
    sheet.box({4.125, 3.29, 7.9, 3.08}, "Speed Data", kHeadingFill, {11.0});
    double y = 2.95;
    for (const char* const words :
         {"This bearing has no ball separator or spacers.  This means that the load",
          "balls are in direct contact with each other.  During rotation, ball-to-ball",
          "friction is significant, and the lubricant properties are critical.  This bearing",
          "is best suited to intermittent or oscillatory rotation, therefore a maximum",
          "speed value is not provided.  For additional information, please contact",
          "Varden Engineering."}) {
        // The widest line just fits the panel; room beyond it keeps other fonts from breaking it.
        sheet.text({4.15, y, 8.3, y - 0.16}, words);
        y -= 0.17;
    }
}

void writeFrame(const SheetWriter& sheet) {
    sheet.text({4.85, 3.29, 7.8, 3.1}, "Maximum Limiting Speed vs. Load Level", {9.0, "BLUE", true});
    sheet.text({3.97, 2.75, 4.13, 1.75}, "Speed in RPM", {9.0, "BLACK", false, "TNR", true});
    sheet.text({5.4, 1.26, 7.4, 1.1}, "Percent of Dynamic Capacity");
    for (int i = 1; i < 5; ++i) {
        const double y = kChartBottom + 0.33 * i;
        sheet.line({4.4, y}, {kChartRight, y}, kGridGrey, kThin);
    }
    for (int percent = 25; percent <= 200; percent += 25) {
        const double x = kChartLeft + kInchesPerPercent * percent;
        const std::string label = " " + std::to_string(percent) + "%";
        const double half = 0.024 * static_cast<double>(label.size());
        sheet.line({x, kChartTop}, {x, kChartBottom}, kGridGrey, kThin);
        sheet.text({x - half, 1.41, x + half, 1.28}, label, {7.0});
    }
    for (const double y : {kChartBottom, kChartTop}) {
        sheet.line({4.4, y}, {kChartRight, y}, kGridGrey, kThin);
        sheet.line({kChartLeft, y}, {kChartRight, y}, colours::kBlack, kThin);
    }
}

void writeScale(const SheetWriter& sheet, double most) {
    for (int step = 1; step <= 5; ++step) {
        const double i = most / 5.0 * step;
        const double y = kChartBottom + kChartHeight * i / most;
        sheet.text({4.15, y + 0.05, 4.4, y - 0.05}, " " + FormatNumber(i, "0"), {7.0});
    }
}

/// One limit on the chart: where its curve begins and ends.
struct Curve {
    const Lubrication& lubrication;
    double high, low;  ///< page inches of full speed and of a fifth of it
};

std::vector<Curve> curvesOf(const std::vector<Lubrication>& shown, double most) {
    std::vector<Curve> curves;
    for (const Lubrication& lubrication : shown) {
        // Beyond the largest scale the curve runs along the chart's edge; its number still tells.
        const double limit = std::clamp(lubrication.limit, 0.0, most);
        curves.push_back({lubrication, kChartBottom + kChartHeight * limit / most,
                          kChartBottom + kChartHeight * 0.2 * limit / most});
    }
    return curves;
}

void writeCurve(const SheetWriter& sheet, const Curve& curve) {
    const Colour colour = curve.lubrication.colour;
    sheet.line({kKnee, curve.high}, {kChartLeft, curve.high}, colour, kDouble);
    sheet.line({kKnee, curve.high}, {kFoot, curve.low}, colour, kDouble);
    sheet.line({kFoot, curve.low}, {kChartRight, curve.low}, colour, kDouble);
}

// Figures of Times at the size of the chart's numbers, in inches.
constexpr double kFigureSize = 7.0;
constexpr double kEm = kFigureSize / 72.0;
constexpr double kFigureWidth = 0.5 * kEm;
constexpr double kFigureHeight = 0.676 * kEm;
constexpr double kTextTop = 0.891 * kEm;  ///< of a line of text above the feet of its figures
constexpr double kTextBox = 0.12;

/// The feet of a limit's figures: above its curve, or below it where the frame or the next curve is too near.
double feetOfFigures(const std::vector<Curve>& curves, const Curve& own) {
    constexpr double kNear = 0.015;
    constexpr double kFar = kTextBox - kTextTop;  // the box of the text then stands on the curve
    double next = kChartTop;
    for (const Curve& other : curves) {
        if (other.high > own.high) next = std::min(next, other.high);
    }
    const double free = next - own.high - kFigureHeight;
    if (free < 2.0 * kNear) return own.high - kFar - kFigureHeight;
    return own.high + std::min(free / 2.0, kFar);
}

/// White behind the figures, so that no grid line strikes them through; the curves go over it.
void writePatch(const SheetWriter& sheet, const std::string& figures, double feet) {
    constexpr double kEdge = 0.008;
    constexpr double kEmuPerInch = 914400.0;
    const double y = feet + kFigureHeight / 2.0;
    const double right = kChartLeft + kFigureWidth * static_cast<double>(figures.size());
    sheet.line({kChartLeft - kEdge, y}, {right + kEdge, y}, colours::kWhite,
               (kFigureHeight + 2.0 * kEdge) * kEmuPerInch);
}

void writeCurves(const SheetWriter& sheet, const std::vector<Lubrication>& shown, double most) {
    const std::vector<Curve> curves = curvesOf(shown, most);
    const auto figures = [](const Curve& curve) { return FormatNumber(curve.lubrication.limit, "0"); };
    for (const Curve& curve : curves)
        writePatch(sheet, figures(curve), feetOfFigures(curves, curve));
    for (const Curve& curve : curves)
        writeCurve(sheet, curve);
    for (const Curve& curve : curves) {
        const double top = feetOfFigures(curves, curve) + kTextTop;
        sheet.text({kChartLeft, top, kKnee, top - kTextBox}, figures(curve),
                   {kFigureSize, curve.lubrication.colourName});
    }
}

void writeLegend(const SheetWriter& sheet, const std::vector<Lubrication>& shown) {
    constexpr double kEntry = 0.16;
    constexpr double kTop = 3.03;
    const double bottom = kTop - 0.06 - kEntry * static_cast<double>(shown.size());
    sheet.box({6.5, kTop, 7.75, bottom}, "", kPaleFill, {7.0});
    double y = kTop - 0.03;
    for (const Lubrication& lubrication : shown) {
        sheet.line({6.55, y - kEntry / 2.0}, {6.85, y - kEntry / 2.0}, lubrication.colour, kDouble);
        sheet.text({6.9, y - 0.02, 7.75, y - kEntry}, lubrication.name, {7.0, lubrication.colourName});
        y -= kEntry;
    }
}

void writeFitNote(const SheetWriter& sheet) {
    sheet.box({4.6, 1.8, 5.9, 1.5}, "", kPaleFill, {7.0});
    // Three lines of this size just fit: the blanks in front stand on the frame, the lines close together.
    constexpr double kNoteLeft = 4.591;
    constexpr double kLine = 0.09;
    double y = 1.805;
    for (const char* const words : {" Speeds shown are for '0' preload ", " only.  Check actual fit value ",
                                    " for more information. "}) {
        sheet.text({kNoteLeft, y, 5.9, y - 0.13}, words, {7.0, "RED"});
        y -= kLine;
    }
}

}  // namespace

double NiceAxisMaximum(double x) {
    for (const double most :
         {100.0,  200.0,  300.0,  400.0,   500.0,   600.0,   800.0,   1000.0,  1500.0,  2000.0, 3000.0,
          4000.0, 5000.0, 7500.0, 10000.0, 15000.0, 20000.0, 25000.0, 30000.0, 35000.0, 40000.0}) {
        if (x <= most) return most;
    }
    return 50000.0;
}

void writeSpeedPanel(const SheetWriter& sheet) {
    if (sheet.bearing.separatorCode == "F") {
        writeNoSpeeds(sheet);
        return;
    }
    const std::vector<Lubrication> shown = lubrications(sheet.bearing);
    const double most = NiceAxisMaximum(shown.back().limit);
    writeFrame(sheet);
    writeScale(sheet, most);
    writeCurves(sheet, shown, most);
    writeLegend(sheet, shown);
    if (sheet.bearing.fitLetter != "Z") writeFitNote(sheet);
}

}  // namespace norlaplan
