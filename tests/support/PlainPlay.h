#pragma once

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "state/BearingSpec.h"

/// The play and tilt curve written down once more, line by line in plain numbers: no guards, no helpers.
namespace norlaplan::testing {

struct PlainPlay {
    struct Row {
        float clearance = 0, play = 0, tilt = 0;
    };
    std::vector<Row> rows;
    float most = 0;
    double low = 0, high = 0;  ///< the marked range, inches
    float playAtLow = 0, playAtHigh = 0, tiltAtLow = 0, tiltAtHigh = 0;
    double sx = 0, sy = 0, sTilt = 0;
};

inline PlainPlay plainPlay(const BearingSpec& b, float lengthFactor) {
    PlainPlay out;
    const double r = b.raceRadius, d = b.ballDiameter, dm = b.pitchDiameter, a0 = b.contactAngle;
    const double L = lengthFactor;
    const char letter = b.fitLetter[0];
    out.low = letter != ' ' && letter <= 'J' ? b.fitLow : b.stdClearanceLow;
    out.high = letter != ' ' && letter <= 'J' ? b.fitHigh : b.stdClearanceHigh;
    out.rows.push_back({0.0F, 0.0F, 0.0F});
    out.most = 0.006F;
    if (out.high >= static_cast<double>(0.006F)) out.most = 0.012F;
    for (double P = 0.0001; P <= static_cast<double>(out.most); P += 0.0001) {
        const double A = 2.0 * r - d;
        const float twoA = static_cast<float>(2.0 * A);
        double c = std::cos(a0) - P / static_cast<double>(twoA);
        char text[40];
        std::snprintf(text, sizeof text, "%.15g", c);
        c = std::strtod(text, nullptr);
        const double angle = std::atan(-c / std::sqrt(-c * c + 1.0)) + 2.0 * std::atan(1.0);
        const double offset = A * (std::sin(angle) - std::sin(a0));
        out.rows.push_back({static_cast<float>(L * P), static_cast<float>(2.0 * offset * L),
                            static_cast<float>(2.0 * offset / dm)});
    }
    out.sx = 7.25 / (L * static_cast<double>(out.most));
    out.sy = 4.0 / static_cast<double>(out.rows.back().play);
    out.sTilt = 4.0 / static_cast<double>(out.rows.back().tilt);
    for (const PlainPlay::Row& row : out.rows) {
        if (static_cast<float>(row.clearance / L - out.low) < 1e-5) {
            out.playAtLow = row.play;
            out.tiltAtLow = row.tilt;
        }
        if (static_cast<float>(row.clearance / L - out.high) < 1e-5) {
            out.playAtHigh = row.play;
            out.tiltAtHigh = row.tilt;
        }
    }
    return out;
}

}  // namespace norlaplan::testing
