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

void writeCurve(const SheetWriter& sheet, const Lubrication& lubrication, double most) {
    // Beyond the largest scale the curve runs along the chart's edge; its number still tells.
    const double limit = std::clamp(lubrication.limit, 0.0, most);
    const double y = kChartBottom + kChartHeight * limit / most;
    const double y2 = kChartBottom + kChartHeight * 0.2 * limit / most;
    sheet.line({kKnee, y}, {kChartLeft, y}, lubrication.colour, kDouble);
    sheet.line({kKnee, y}, {kFoot, y2}, lubrication.colour, kDouble);
    sheet.line({kFoot, y2}, {kChartRight, y2}, lubrication.colour, kDouble);
    sheet.text({kChartLeft, y + 0.12, kKnee, y}, FormatNumber(lubrication.limit, "0"),
               {7.0, lubrication.colourName});
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
    double y = 1.803;
    for (const char* const words : {" Speeds shown are for '0' preload ", " only.  Check actual fit value ",
                                    " for more information. "}) {
        sheet.text({4.6, y, 5.9, y - 0.13}, words, {7.0, "RED"});
        y -= 0.095;
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
    for (const Lubrication& lubrication : shown)
        writeCurve(sheet, lubrication, most);
    writeLegend(sheet, shown);
    if (sheet.bearing.fitLetter != "Z") writeFitNote(sheet);
}

}  // namespace norlaplan
