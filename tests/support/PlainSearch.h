#pragma once

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/PlainSolver.h"

/// The search typed once more, plainly: the precision table is read from its top for every row, and every row
/// is solved by the plain solver.
namespace norlaplan::plain {

struct Envelope {
    float minBore = 0.0F, maxOd = 0.0F, minHeight = 0.0F, maxHeight = 0.0F;
};

struct FoundRow {
    std::string name;
    float life = 0.0F;
};

inline std::vector<std::vector<std::string>> readTable(const std::string& path) {
    std::ifstream file(path);
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(file, line);) {
        std::vector<std::string> fields;
        std::istringstream stream(line);
        for (std::string field; std::getline(stream, field, ',');)
            fields.push_back(field);
        rows.push_back(fields);
    }
    return rows;
}

inline float inches(const std::string& millimetres) {
    return static_cast<float>(static_cast<double>(std::stof(millimetres)) / 25.4);
}

/// `style` is "C", "X" or "B" (the plain back-to-back set).
inline std::vector<FoundRow> search(const std::string& tables, char style, const Envelope& envelope,
                                    float radialLoad, float axialLoad) {
    struct Section {
        const char* prefix;
        float ball, groove;
    };
    constexpr Section kSections[] = {
        {"8-", 0.15625F, 0.0828125F}, {"13-", 0.25F, 0.1325F}, {"20-", 0.375F, 0.19875F}};
    const bool set = style == 'B';
    std::vector<FoundRow> found;
    float clearance = 0.0F;
    for (const Section& section : kSections) {
        const auto rows = readTable(tables + "/" + section.prefix + (set ? 'A' : style) + ".csv");
        const float height = inches(rows[1][0]);
        for (std::size_t i = 2; i < rows.size(); ++i) {
            const float bore = inches(rows[i][2]);
            const float od = inches(rows[i][3]);
            if (bore < envelope.minBore || od > envelope.maxOd) continue;
            const double scale = set ? 2.0 : 1.0;
            if (static_cast<double>(height) < static_cast<double>(envelope.minHeight) / scale) continue;
            if (static_cast<double>(height) > static_cast<double>(envelope.maxHeight) / scale) continue;
            const auto pitch = static_cast<float>(static_cast<double>(od + bore) / 2.0);
            if (set) {
                clearance = static_cast<float>(0.0005 / 2.0);
            } else {
                const auto precision = readTable(tables + "/CLS0.csv");
                for (std::size_t k = 1; k < precision.size(); ++k) {
                    if (inches(precision[k][0]) != bore) continue;
                    clearance = static_cast<float>((static_cast<double>(std::stof(precision[k][7])) +
                                                    static_cast<double>(std::stof(precision[k][8]))) /
                                                   2.0);
                    break;
                }
            }
            const Bearing bearing{style,
                                  pitch,
                                  section.ball,
                                  std::stoi(rows[i][9]),
                                  section.groove,
                                  set ? height : 0.0F,
                                  clearance,
                                  30.0F,
                                  radialLoad,
                                  axialLoad,
                                  0.0F};
            const Result result = style == 'C' ? solveRadialRow(bearing) : solveCoupledRows(bearing);
            found.push_back({set ? rows[i][0].substr(0, 6) + "BR0A" : rows[i][0], result.life});
        }
    }
    return found;
}

}  // namespace norlaplan::plain
