#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "support/Folders.h"
#include "support/PlainSearch.h"

/// Load cases for every bearing that the sample catalogue can make: from no load to far beyond its capacity,
/// in all signs.
namespace norlaplan::testing {

struct GridBearing {
    std::string number, zChoice;
};

/// Parts of a bearing's static rating, or plainly a load: the last is near the end of a 32-bit number.
inline constexpr std::array<double, 9> kGridParts = {0.0, 1e-12, 1e-6, 0.003, 0.1, 1.0, 7.0, 1000.0, 1e30};
inline constexpr std::array<double, 4> kGridSpeeds = {0.0, 1.0, -250.0, 1e6};

/// One load of the grid: a part and its sign.
struct GridLoad {
    double radial, axial, moment, speed;
};

inline constexpr std::size_t kGridLoads =
    8 * kGridParts.size() * kGridParts.size() * kGridParts.size() * kGridSpeeds.size();

inline GridLoad gridLoad(std::size_t index) {
    const auto take = [&index](std::size_t count) {
        const std::size_t digit = index % count;
        index /= count;
        return digit;
    };
    const auto signedPart = [&] {
        const double part = kGridParts[take(kGridParts.size())];
        return take(2) == 0 ? part : -part;
    };
    GridLoad load{};
    load.radial = signedPart();
    load.axial = signedPart();
    load.moment = signedPart();
    load.speed = kGridSpeeds[take(kGridSpeeds.size())];
    return load;
}

/// Every row of the section tables as a part number of every style of its family with every fit letter and
/// with none. Materials, separators and precision classes take turns.
inline std::vector<GridBearing> gridBearings() {
    struct Separator {
        char code;
        const char* choice;
    };
    constexpr Separator kSeparators[] = {{'P', ""}, {'R', ""}, {'F', ""}, {'S', ""}, {'Z', "S"}, {'M', ""}};
    constexpr char kMaterials[] = {'K', 'S', 'N'};
    constexpr char kPrecisions[] = {'0', '1', '2', '4', '6'};
    std::vector<GridBearing> bearings;
    for (const std::string section : {"8", "13", "20"}) {
        for (const std::string family : {"A", "C", "X"}) {
            const auto rows = plain::readTable(
                (programFolder() / "Data Tables" / (section + "-" + family + ".csv")).string());
            for (std::size_t row = 2; row < rows.size(); ++row) {
                for (const char style : std::string(family == "A" ? "ABFTU" : family)) {
                    for (const char fit : std::string(" ABCDEFGHIJKLMNOPQRSTUVWXYZ")) {
                        const std::size_t turn = bearings.size();
                        const Separator& separator = kSeparators[turn % std::size(kSeparators)];
                        const std::string bore = std::string(3 - rows[row][2].size(), '0') + rows[row][2];
                        std::string number = kMaterials[turn % std::size(kMaterials)] + bore +
                                             (section == "8" ? "08" : section) + style + separator.code +
                                             kPrecisions[turn % std::size(kPrecisions)];
                        if (fit != ' ') number += fit;
                        bearings.push_back({number, separator.choice});
                    }
                }
            }
        }
    }
    return bearings;
}

}  // namespace norlaplan::testing
