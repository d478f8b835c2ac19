#pragma once

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/Subroutines.h"
#include "deflection/Deflection.h"
#include "support/Folders.h"
#include "support/RecordingPorts.h"

/// Bearings of the shipped catalogue for the tests of the deflection calculation.
namespace norlaplan::testing {

/// A bearing of the shipped catalogue.
inline BearingSpec bearingOf(const std::string& number) {
    const ProgramFolder folder(sourceFolder() / "data");
    RecordingMessages messages;
    FixedClock clock;
    MemorySheets sheets;
    ProgramState state;
    DecodeServices services{folder, messages, clock, &sheets};
    state.bearing.partNumber = number;
    DecodePartNumber(state, state.bearing.partNumber, services);
    return state.bearing;
}

/// Small, middle and large bearings of all sections of a style; pairs with a fit.
inline std::vector<std::string> numbersOfStyle(const std::string& style) {
    const std::string fit = style == "B" || style == "F" ? "T" : "";
    std::vector<std::string> numbers;
    for (const std::string size : {"04008", "19008", "04013", "19013", "36013", "06020", "19020", "50020"})
        numbers.push_back("K" + size + style + "P0" + fit);
    return numbers;
}

constexpr double kPreloads[] = {0.0, 0.0005, 0.001, 0.0035};

/// The proposed maxima with a preload, inches.
inline DeflectionInput usualInput(const BearingSpec& bearing, double preload) {
    const UnitMode units = initialUnits();
    DeflectionEntry entry = proposedDeflectionEntry(bearing, units);
    entry.preload = preload;
    return deflectionInput(entry, units);
}

inline DeflectionResult deflectionOf(const BearingSpec& bearing, const DeflectionInput& input) {
    RecordingMessages messages;
    return computeDeflection(bearing, input, Patience(messages));
}

}  // namespace norlaplan::testing
