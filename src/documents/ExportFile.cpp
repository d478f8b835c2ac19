#include "documents/ExportFile.h"

#include <vector>

#include "numbers/DecimalText.h"

namespace norlaplan {
namespace {

constexpr const char* kTrue = "#True#";
constexpr const char* kFalse = "#False#";
constexpr const char* kEmpty = "\"\"";
constexpr double kModulus = 29000000.0;
constexpr std::size_t kMetricLines = 65;

const char* by(bool holds) {
    return holds ? kTrue : kFalse;
}

std::string quoted(const std::string& value) {
    return '"' + value + '"';
}
std::string number(double value) {
    return quoted(printedNumber(value) + " ");
}

/// Lines 1 to 25: what kind of bearing it is. Line 21 lacks its closing mark in US units: the sibling program
/// knows it so.
std::vector<std::string> kindLines(const ProgramState& state) {
    const BearingSpec& bearing = state.bearing;
    const bool metric = state.unitSystem == "METRIC";
    const std::string& style = bearing.styleLetter;
    const bool clearance = bearing.fitLetter < "K" || bearing.fitLetter >= "Z";
    return {"Version 0.9.61",
            kEmpty,
            kEmpty,
            by(metric),
            by(!metric),
            by(metric),
            by(!metric),
            quoted(bearing.partNumber),
            "0",
            "0",
            "-1",
            "-1",
            "0",
            "0",
            "0",
            "-1",
            by(style == "U" || style == "A"),
            "0",
            "1",
            "0",
            metric ? kTrue : "#False",
            by(clearance),
            by(!clearance),
            by(style == "B"),
            by(style == "F")};
}

/// Lines 26 to 63: settings of the sibling program. Line 48 lacks its closing mark, too.
std::vector<std::string> settingLines(const BearingSpec& bearing) {
    return {"1",
            kTrue,
            kFalse,
            kFalse,
            by(bearing.styleLetter == "X"),
            kTrue,
            kTrue,
            kFalse,
            kFalse,
            "0",
            kTrue,
            kTrue,
            kFalse,
            "1",
            "1",
            kFalse,
            kTrue,
            kFalse,
            kFalse,
            kFalse,
            kFalse,
            kFalse,
            "#True",
            kFalse,
            kFalse,
            kFalse,
            kFalse,
            kFalse,
            kFalse,
            "0",
            by(bearing.styleLetter == "C"),
            kFalse,
            "0",
            "1",
            kFalse,
            by(bearing.zSeparatorChoice == "P"),
            kFalse,
            by(bearing.zSeparatorChoice == "V")};
}

/// Lines 64 to 73.
std::vector<std::string> numberLines(const ProgramState& state) {
    const BearingSpec& bearing = state.bearing;
    const double length = state.units.lengthFactor;
    return {number(bearing.ballDiameter * length),
            number(bearing.pitchDiameter * length),
            number(kModulus),
            quoted("0.25"),
            kEmpty,
            kEmpty,
            quoted("0.04"),
            quoted("53"),
            number(bearing.ciPlusCo),
            number(state.solver.ContactAngleDeg)};
}

}  // namespace

bool exportEndsEarly(const ProgramState& state) {
    return state.unitSystem == "METRIC";
}

std::string qlxText(const ProgramState& state) {
    std::vector<std::string> lines = kindLines(state);
    for (const auto& more : {settingLines(state.bearing), numberLines(state)})
        lines.insert(lines.end(), more.begin(), more.end());
    if (exportEndsEarly(state)) lines.resize(kMetricLines);
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

}  // namespace norlaplan
