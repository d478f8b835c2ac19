#pragma once

#include <string>
#include <vector>

#include "loaddist/radlodestar2.h"
#include "support/PlainContact.h"

/// Bearings and loads that the solver's tests and benchmarks share.
namespace norlaplan::testing {

inline SolveArguments argumentsOf(const plain::Bearing& bearing) {
    return {std::string("K19013") + bearing.style + "P0",
            bearing.pitchDiameter,
            bearing.ballDiameter,
            bearing.balls,
            bearing.grooveRadius,
            bearing.spacing,
            bearing.clearance,
            bearing.angleDegrees,
            bearing.radialLoad,
            bearing.axialLoad,
            bearing.moment};
}

struct Section {
    float ball, groove, width;
};
constexpr Section kSections[] = {
    {0.15625F, 0.0828125F, 0.31496063F}, {0.25F, 0.1325F, 0.51181102F}, {0.375F, 0.19875F, 0.78740157F}};

/// Bearings of all sections under loads of many kinds.
inline std::vector<plain::Bearing> solverCases(char style) {
    std::vector<plain::Bearing> all;
    const float loads[][3] = {{500, 0, 0}, {1200, 300, 900}, {10, 800, 0}, {50, 100, 2000}, {300, 50, 10}};
    for (const Section& section : kSections) {
        for (const float pitch : {3.0F, 8.0F, 17.5F}) {
            for (const float clearance : {0.00025F, 0.0012F}) {
                for (const auto& load : loads) {
                    const int balls = static_cast<int>(0.8F * 3.14F * pitch / section.ball);
                    all.push_back({style, pitch, section.ball, balls, section.groove, section.width,
                                   clearance, 30.0F, load[0], load[1], load[2]});
                }
            }
        }
    }
    return all;
}

}  // namespace norlaplan::testing
