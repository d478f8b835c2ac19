#include "capacity/SpeedLimits.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>

#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/PiValue.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr int kGrease = 0;
constexpr int kOil = 4;
constexpr int kMist = 8;
/// Surface speeds of the ball circle, inches a minute: balls that touch, and separators without a table.
constexpr double kTouchingBalls = 600.0;
constexpr double kLooseSeparators = 6000.0;

bool isOneOf(const std::string& code, std::initializer_list<std::string_view> codes) {
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

/// The fixed surface speed of the separator; 0 when a table tells.
double surfaceSpeed(const BearingSpec& bearing) {
    const std::string& code = bearing.separatorCode;
    if (code == "F") return kTouchingBalls;
    const bool ownTable = bearing.styleLetter == "X" || bearing.styleLetter == "C";
    const bool loose = ownTable ? isOneOf(code, {"ZS", "S", "ZT"}) : isOneOf(code, {"ZP", "S", "ZV", "ZS"});
    return loose ? kLooseSeparators : 0.0;
}

std::string tableSpeed(const BearingSpec& bearing, const SpeedBlock& block, int lubricationOffset) {
    const double index = bearing.speedColumnBase + lubricationOffset + bearing.speedIndex;
    if (index < 1.0 || index >= 25.0) raise(fault::kSubscript);
    const double number = block[static_cast<std::size_t>(index) - 1];
    return plainText(Int(divide(number * 1000.0, bearing.bore)));
}

/// The number of a speed text, which may be grouped.
double speedOf(const std::string& text) {
    return wholeNumberText(text).value_or(0.0);
}

Single workingLimit(const std::string& text, double factor) {
    return leadingNumber(FormatNumber(speedOf(text) * factor, "0"));
}

}  // namespace

Single loadLevelFactor(double loadPercent) {
    if (loadPercent <= 20.0) return 1.0;
    if (loadPercent <= 150.0) return 1.1 - (0.3 / 50.0) * loadPercent;
    return 0.2;
}

double loadPercentOfLife(double l10Revolutions) {
    return divide(100.0, power(l10Revolutions / 1000000.0, kOneThird));
}

bool takesSpeedsFromTable(const BearingSpec& bearing) {
    return surfaceSpeed(bearing) == 0.0;
}

void setBaseSpeeds(BearingSpec& bearing, const std::optional<SpeedLine>& line) {
    const bool fourPoint = bearing.styleLetter == "X";
    std::string& grease = fourPoint ? bearing.otherSpeedGrease : bearing.tableSpeedGrease;
    std::string& oil = fourPoint ? bearing.otherSpeedOil : bearing.tableSpeedOil;
    std::string& mist = fourPoint ? bearing.otherSpeedMist : bearing.tableSpeedMist;
    if (const double surface = surfaceSpeed(bearing); surface != 0.0) {
        grease = FormatNumber(divide(surface, bearing.pitchDiameter * PiValue), "##,##0");
        oil = "0";
        mist = "0";
        if (!fourPoint) return;
        bearing.thrustSpeedGrease = "0";
        bearing.thrustSpeedOil = "0";
        bearing.thrustSpeedMist = "0";
        return;
    }
    if (!line) return;
    if (fourPoint) {
        bearing.thrustSpeedGrease = tableSpeed(bearing, line->thrust, kGrease);
        bearing.thrustSpeedOil = tableSpeed(bearing, line->thrust, kOil);
        bearing.thrustSpeedMist = tableSpeed(bearing, line->thrust, kMist);
    }
    grease = tableSpeed(bearing, line->other, kGrease);
    oil = tableSpeed(bearing, line->other, kOil);
    mist = tableSpeed(bearing, line->other, kMist);
}

void setWorkingLimits(BearingSpec& bearing) {
    const bool fourPoint = bearing.styleLetter == "X";
    const double factor = bearing.speedFactor;
    bearing.limitSpeedGrease =
        workingLimit(fourPoint ? bearing.otherSpeedGrease : bearing.tableSpeedGrease, factor);
    bearing.limitSpeedOil = workingLimit(fourPoint ? bearing.otherSpeedOil : bearing.tableSpeedOil, factor);
    bearing.limitSpeedMist =
        workingLimit(fourPoint ? bearing.otherSpeedMist : bearing.tableSpeedMist, factor);
}

}  // namespace norlaplan
