#pragma once

#include <array>

#include "documents/Graph.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// A line of the drawing and of its legend.
struct FitLine {
    const char* name;
    Colour colour;
};

/// The lines in the order of the legend.
constexpr FitLine kBoreLine{"Bearing bore", colours::kBlack};
constexpr FitLine kHighLine{"High Temp", colours::kRed};
constexpr FitLine kLowLine{"Low Temp", colours::kBlue};
constexpr FitLine kRoomLine{"Room Temp", colours::kGreen};
constexpr FitLine kShaftLine{"Shaft", colours::kPurple};
constexpr FitLine kHousingLine{"Housing", rgb(0, 255, 255)};
/// The classic colour of tool tips.
constexpr FitLine kOdLine{"Bearing OD", rgb(255, 255, 225)};
inline constexpr std::array<FitLine, 7> kFitLegend = {kBoreLine,  kHighLine,    kLowLine, kRoomLine,
                                                      kShaftLine, kHousingLine, kOdLine};

/// The classic background of a picture: pale lines show on it.
constexpr Colour kFitGround = rgb(192, 192, 192);

/// The sizes of the parts against temperature, of the last calculation of `state.thermalFits`. Each size is a
/// line that rises with its expansion; the distance between a part and its ring is true to the height. The
/// picture runs from 0 to 1 both ways, and what lies outside it is cut off. Errors: 11 for temperatures that
/// leave the picture no width.
Graph thermalFitsGraph(const ProgramState& state);

}  // namespace norlaplan
