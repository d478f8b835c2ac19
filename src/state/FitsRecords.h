#pragma once

#include <array>
#include <string>

#include "numbers/Single.h"

namespace norlaplan {

/// One point of the torque curve: preload in inches, torque in inch-pounds.
struct TorquePoint {
    Single preload, torque;
};

/// Unmounted starting torque against preload. Rows count from 1; row 0 stays zero.
struct TorqueCurve {
    static constexpr int kPoints = 50;

    std::string partNumber;  ///< of the bearing that it was computed for
    std::array<TorquePoint, kPoints + 2> rows;

    const TorquePoint& row(int number) const { return rows[static_cast<std::size_t>(number)]; }
    TorquePoint& row(int number) { return rows[static_cast<std::size_t>(number)]; }
};

/// One point of the play curve: clearance and axial play in display length, tilt in radians.
struct PlayPoint {
    Single clearance, axialPlay, tilt;
};

/// Axial play and tilt against diametral clearance, with the bearing's own range and the graphs' scales.
struct PlayCurve {
    static constexpr int kMostRows = 122;

    std::string partNumber;  ///< of the bearing that it was computed for
    int rowCount = 0;
    std::array<PlayPoint, kMostRows + 1> rows;  ///< rows count from 1
    std::string cosineText;                     ///< the last row's cosine, in its 15 digits
    Single clearanceLow, clearanceHigh;         ///< the marked range, inches
    Single curveClearanceMax;                   ///< end of the clearances, inches
    Single playAtLow, playAtHigh;               ///< display length
    Single tiltAtLow, tiltAtHigh;               ///< radians
    double sx = 0.0, sy = 0.0, sTilt = 0.0;     ///< drawing inches per unit of the stored columns

    const PlayPoint& row(int number) const { return rows[static_cast<std::size_t>(number)]; }
    PlayPoint& row(int number) { return rows[static_cast<std::size_t>(number)]; }
    const PlayPoint& last() const { return row(rowCount); }
};

/// Shaft and housing for a range of temperature: what was entered and what came of it. Temperatures in
/// degrees Fahrenheit, expansions per degree Fahrenheit, sizes in inches at room temperature.
struct ThermalFits {
    // The four fields of the screen, in display units.
    std::string highTempText, lowTempText, shaftExpansionText, housingExpansionText;
    std::string fitTempUnit, expansionUnit;

    std::string partNumber;  ///< of the bearing of the results; empty with none yet
    Single highTemp, lowTemp;
    Single shaftExpansion, housingExpansion;
    Single shaftSize, housingSize;
    std::string shaftLine, housingLine, comment;
};

}  // namespace norlaplan
