#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "catalogue/Decoding.h"

namespace norlaplan::testing {

/// The shipped catalogue in the units of the test's choice.
struct SampleBearings : Decoding {
    explicit SampleBearings(const std::string& units = "US") : Decoding(shippedFolder()) {
        state.unitSystem = units;
        ApplyUnitSystem(units, state.units);
    }

    bool decoded(const std::string& number) { return decode(number).end == DecodeEnd::Decoded; }
};

/// "K04013" and the like: every size of the catalogue, as a part number begins.
inline std::vector<std::string> sampleSizes() {
    std::vector<std::string> sizes;
    // Watched by the sanitizers a fifth of them shows as much: the lines are the same for each.
#ifdef NORLAPLAN_SANITIZE
    constexpr std::size_t kEach = 5;
#else
    constexpr std::size_t kEach = 1;
#endif
    std::size_t count = 0;
    for (const std::string section : {"8", "13", "20"}) {
        std::ifstream table(shippedFolder() / "Data Tables" / (section + "-X.csv"));
        std::string line;
        std::getline(table, line);
        std::getline(table, line);
        while (std::getline(table, line)) {
            if (line.size() > 6 && count++ % kEach == 0) sizes.push_back(line.substr(0, 6));
        }
    }
    return sizes;
}

/// A clearance letter, a preload letter, "Z" and, where the style does without, no letter.
inline std::vector<std::string> fitLettersOf(const std::string& style) {
    if (style == "B" || style == "F") return {"E", "R", "Z"};
    return {"E", "R", "Z", ""};
}

}  // namespace norlaplan::testing
