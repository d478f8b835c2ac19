#pragma once

#include "state/BearingSpec.h"

/// The thermal fits written down once more, line by line in plain numbers: no guards, no helpers.
namespace norlaplan::testing {

struct PlainFits {
    float shaftSize = 0, housingSize = 0;
    double clearance = 0;
};

/// Temperatures in degrees Fahrenheit, expansions per degree Fahrenheit.
inline PlainFits plainFits(const BearingSpec& b, float highTemp, float lowTemp, float shaft, float housing) {
    const double Tl = lowTemp - 68.0, Th = highTemp - 68.0;
    const double as = shaft, ah = housing, ab = b.bearingExpansion;
    const double d = b.bore, D = b.outsideDiameter, tb = b.boreTolerance;
    double A = D, B = tb + d, C = b.stdClearanceLow;
    const char letter = b.fitLetter[0];
    if (letter != ' ' && letter <= 'J') C = b.fitLow;
    if (letter >= 'K' && letter != 'Z') {
        A = b.preloadOd;
        B = b.preloadBore + tb;
        C = 0.0;
    }
    PlainFits out;
    out.clearance = C;
    double Hi, Lo;
    if (as <= ab) {
        out.shaftSize = static_cast<float>((B * (1.0 + Tl * ab) + C) / (1.0 + Tl * as));
        const double S = out.shaftSize;
        Lo = 0.0;
        const double R = B * (1.0 + Th * ab) - S * (1.0 + Th * as);
        Hi = R < 0.0 ? C + R : C;
    } else {
        out.shaftSize = static_cast<float>((B * (1.0 + Th * ab) + C) / (1.0 + Th * as));
        const double S = out.shaftSize;
        Hi = 0.0;
        const double R = B * (1.0 + Tl * ab) - S * (1.0 + Tl * as);
        Lo = R < 0.0 ? C + R : C;
    }
    if (ah <= ab)
        out.housingSize = static_cast<float>((A * (1.0 + Th * ab) - Hi) / (1.0 + Th * ah));
    else
        out.housingSize = static_cast<float>((A * (1.0 + Tl * ab) - Lo) / (1.0 + Tl * ah));
    return out;
}

}  // namespace norlaplan::testing
