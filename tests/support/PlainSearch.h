#pragma once

#include <cmath>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "numbers/FormatNumber.h"
#include "numbers/Single.h"
#include "numbers/Text.h"
#include "state/SearchRecords.h"
#include "support/PlainSolver.h"

/// The search typed once more, plainly: the precision table is read from its top for every row, and every row
/// is solved by the plain solver. US units.
namespace norlaplan::plain {

using Table = std::vector<std::vector<std::string>>;

struct Envelope {
    float minBore = 0.0F, maxOd = 0.0F, minHeight = 0.0F, maxHeight = 0.0F;
};

struct SearchLoads {
    float radial = 0.0F, axial = 0.0F, speed = 0.0F;
};

inline Table readTable(const std::string& path) {
    std::ifstream file(path);
    Table rows;
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

/// The middle of the standard play band; nothing when no line has the bore.
inline std::optional<float> playOf(const Table& precision, float bore) {
    for (std::size_t k = 1; k < precision.size(); ++k) {
        if (inches(precision[k][0]) != bore) continue;
        return static_cast<float>((static_cast<double>(std::stof(precision[k][7])) +
                                   static_cast<double>(std::stof(precision[k][8]))) /
                                  2.0);
    }
    return std::nullopt;
}

/// The grease number of the speed table, for loads that are not pure thrust on "X".
inline double speedNumber(const std::string& tables, char family, int column) {
    const std::string key = family == 'A' ? "R" : "P";
    const std::size_t keyAt = family == 'X' ? 48 : 0;
    for (const auto& line : readTable(tables + "/SPEED" + family + ".CSV")) {
        if (line.at(keyAt) != key) continue;
        const std::string& number = line.at(keyAt + 23 + static_cast<std::size_t>(column));
        return family == 'X' ? std::stod(number) : static_cast<double>(std::stof(number));
    }
    return 0.0;
}

inline std::string wholeText(double value) {
    return plainText(Single(std::floor(value)));
}

/// What a life and the entered speed give: limit, life and hours as texts. An unstable row has the life 0 and
/// the load percentage of the row before it.
inline void rate(SearchHit& hit, const Result& result, float& percent, double table, double bore,
                 double speed) {
    const double life = result.life;
    if (!result.unstable) percent = static_cast<float>(100.0 / std::pow(life / 1000000.0, 1.0 / 3.0));
    float factor = 1.0F;
    if (percent > 20.0F) factor = static_cast<float>(1.1 - (0.3 / 50.0) * static_cast<double>(percent));
    if (percent > 150.0F) factor = 0.2F;
    hit.speedLimit = plainText(std::floor(static_cast<double>(factor) * table * 1000.0 / bore));
    hit.l10Revolutions = wholeText(life);
    hit.l10Hours = wholeText(static_cast<double>(static_cast<float>(life / (speed * 60.0))));
}

/// `caption` is one of the six; the loads are radial and axial, not thrust alone, and the speed is not 0.
inline std::vector<SearchHit> search(const std::string& tables, const std::string& caption,
                                     const Envelope& envelope, const SearchLoads& loads) {
    struct Section {
        const char* prefix;
        float ball, groove;
    };
    constexpr Section kSections[] = {
        {"8-", 0.15625F, 0.0828125F}, {"13-", 0.25F, 0.1325F}, {"20-", 0.375F, 0.19875F}};
    const char family = caption == "RADIAL CONTACT" ? 'C' : caption == "4-POINT CONTACT" ? 'X' : 'A';
    const bool set = family == 'A';
    const bool spacers = caption.find("SPACERS") != std::string::npos;
    const char style = !set ? family : caption[0];
    const char* const stocks[] = {"NO  ", "YES ", "CALL"};
    std::vector<SearchHit> found;
    float clearance = 0.0F;
    float percent = 0.0F;
    for (const Section& section : kSections) {
        const auto rows = readTable(tables + "/" + section.prefix + family + ".csv");
        const float height = inches(rows[1][0]);
        for (std::size_t i = 2; i < rows.size(); ++i) {
            const float bore = inches(rows[i][2]);
            const float od = inches(rows[i][3]);
            if (bore < envelope.minBore || od > envelope.maxOd) continue;
            const double scale = set ? 2.0 : 1.0;
            const double h = height;
            if (!spacers && h < static_cast<double>(envelope.minHeight) / scale) continue;
            if (h > static_cast<double>(envelope.maxHeight) / scale) continue;

            SearchHit hit;
            hit.boreText = FormatNumber(static_cast<double>(bore), "###0.0000");
            hit.odText = FormatNumber(static_cast<double>(od), "###0.0000");
            hit.stock = stocks[std::stoi(rows[i][1])];
            hit.name = rows[i][0];
            const float span = spacers ? static_cast<float>(static_cast<double>(envelope.maxHeight) - h)
                               : set   ? height
                                       : 0.0F;
            double shownHeight = h;
            if (set) {
                hit.name = hit.name.substr(0, 6) + style + "R0A";
                shownHeight = spacers ? static_cast<double>(envelope.maxHeight) : 2.0 * h;
                clearance = static_cast<float>(0.0005 / 2.0);
            } else if (const auto play = playOf(readTable(tables + "/CLS0.csv"), bore)) {
                clearance = *play;
            }
            if (spacers) {
                const std::string width = FormatNumber(static_cast<double>(span) - h, "###0.0000");
                hit.name += " W/ " + width + " spacers";
            }
            hit.heightText = FormatNumber(shownHeight, "###0.0000");

            const auto pitch = static_cast<float>(static_cast<double>(od + bore) / 2.0);
            const Bearing bearing{style,          pitch,           section.ball, std::stoi(rows[i][9]),
                                  section.groove, std::fabs(span), clearance,    30.0F,
                                  loads.radial,   loads.axial,     0.0F};
            const Result result = style == 'C' ? solveRadialRow(bearing) : solveCoupledRows(bearing);
            const double table = speedNumber(tables, family, std::stoi(rows[i][8]));
            rate(hit, result, percent, static_cast<double>(table), static_cast<double>(bore),
                 static_cast<double>(loads.speed));
            found.push_back(hit);
        }
    }
    return found;
}

}  // namespace norlaplan::plain
