#include "fits/PlayCurve.h"

#include <cmath>

#include "numbers/Arithmetic.h"
#include "numbers/DecimalText.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr double kClearanceStep = 0.0001;
constexpr double kPlotWidth = 7.25;
constexpr double kPlotHeight = 4.0;

/// The bearing's own range: that of a clearance letter, the standard one for every other.
void setRange(const BearingSpec& bearing, PlayCurve& curve) {
    const bool clearanceFit = bearing.fitLetter != " " && bearing.fitLetter <= "J";
    curve.clearanceLow = clearanceFit ? bearing.fitLow : bearing.stdClearanceLow;
    curve.clearanceHigh = clearanceFit ? bearing.fitHigh : bearing.stdClearanceHigh;
}

/// The arc cosine by the arc tangent.
double arcCosine(double c) {
    return std::atan(divide(-c, squareRoot(-c * c + 1.0))) + 2.0 * std::atan(1.0);
}

void addRows(const BearingSpec& bearing, const UnitMode& units, PlayCurve& curve) {
    const double A = 2.0 * bearing.raceRadius - bearing.ballDiameter;
    const Single twoA = 2.0 * A;
    curve.rowCount = 1;
    // The clearance adds up step by step: its last bits are those of the curve.
    // NOLINTNEXTLINE(clang-analyzer-security.FloatLoopCounter)
    for (double P = kClearanceStep; P <= curve.curveClearanceMax; P += kClearanceStep) {
        // The cosine goes through its text, and so keeps 15 digits.
        curve.cosineText = fifteenDigits(std::cos(bearing.contactAngle) - divide(P, twoA));
        const double b = arcCosine(leadingNumber(curve.cosineText));
        const double offset = A * (std::sin(b) - std::sin(bearing.contactAngle));
        ++curve.rowCount;
        curve.row(curve.rowCount) = {units.lengthFactor * P, 2.0 * offset * units.lengthFactor,
                                     divide(2.0 * offset, bearing.pitchDiameter)};
    }
}

/// The curve's values at the range's limits: those of the last row that isn't above them.
void setValuesAtLimits(const UnitMode& units, PlayCurve& curve) {
    constexpr double kSlack = 1e-5;
    const auto reaches = [&](const PlayPoint& row, double limit) {
        return Single(divide(row.clearance, units.lengthFactor) - limit) < kSlack;
    };
    for (int i = 1; i <= curve.rowCount; ++i) {
        const PlayPoint& row = curve.row(i);
        if (reaches(row, curve.clearanceLow)) {
            curve.playAtLow = row.axialPlay;
            curve.tiltAtLow = row.tilt;
        }
        if (reaches(row, curve.clearanceHigh)) {
            curve.playAtHigh = row.axialPlay;
            curve.tiltAtHigh = row.tilt;
        }
    }
}

}  // namespace

void computePlayCurve(const BearingSpec& bearing, const UnitMode& units, PlayCurve& curve) {
    PlayCurve computed;
    computed.partNumber = bearing.partNumber;
    setRange(bearing, computed);
    computed.curveClearanceMax = 0.006;
    if (computed.clearanceHigh >= computed.curveClearanceMax) computed.curveClearanceMax = 0.012;
    addRows(bearing, units, computed);
    computed.sx = divide(kPlotWidth, units.lengthFactor * computed.curveClearanceMax);
    computed.sy = divide(kPlotHeight, computed.last().axialPlay);
    computed.sTilt = divide(kPlotHeight, computed.last().tilt);
    // A range below every row leaves the values at its limits as they were.
    computed.playAtLow = curve.playAtLow;
    computed.playAtHigh = curve.playAtHigh;
    computed.tiltAtLow = curve.tiltAtLow;
    computed.tiltAtHigh = curve.tiltAtHigh;
    setValuesAtLimits(units, computed);
    curve = computed;
}

}  // namespace norlaplan
