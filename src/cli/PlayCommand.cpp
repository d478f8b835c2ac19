#include <span>

#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/TextTable.h"
#include "fits/PlayCurve.h"
#include "numbers/FormatNumber.h"
#include "state/DisplayUnits.h"
#include "state/MenuConditions.h"

namespace norlaplan::cli {
namespace {

Json playJson(const PlayCurve& play) {
    const auto rows = std::span(play.rows).subspan(1, static_cast<std::size_t>(play.rowCount));
    return {{"rowCount", play.rowCount},
            {"curve", rowsJson(rows, &PlayPoint::clearance, &PlayPoint::axialPlay, &PlayPoint::tilt)},
            {"clearanceLow", toJson(play.clearanceLow)},
            {"clearanceHigh", toJson(play.clearanceHigh)},
            {"curveClearanceMax", toJson(play.curveClearanceMax)},
            {"playAtLow", toJson(play.playAtLow)},
            {"playAtHigh", toJson(play.playAtHigh)},
            {"tiltAtLow", toJson(play.tiltAtLow)},
            {"tiltAtHigh", toJson(play.tiltAtHigh)},
            {"sx", play.sx},
            {"sy", play.sy},
            {"sTilt", play.sTilt}};
}

std::string curveTable(const ProgramState& state) {
    const UnitMode& units = state.units;
    const PlayCurve& play = state.play;
    const char* const clearance = isMetric(units) ? "0.00000" : "0.0000";
    const char* const length = isMetric(units) ? "0.0000" : "0.00000";
    TextRows table = {
        {"Clearance (" + units.lengthUnit + ")", "Axial play (" + units.lengthUnit + ")", "Tilt (radians)"}};
    for (int i = 1; i <= play.rowCount; ++i) {
        const PlayPoint& row = play.row(i);
        table.push_back({FormatNumber(row.clearance, clearance), FormatNumber(row.axialPlay, length),
                         FormatNumber(row.tilt, "0.00000")});
    }
    return textTable(table, true);
}

/// The bearing's own range and what the curve has there.
std::string rangeText(const ProgramState& state) {
    const UnitMode& units = state.units;
    const PlayCurve& play = state.play;
    const auto length = [&](double shown) { return FormatNumber(shown, units.lengthPicture); };
    const auto tilt = [](double radians) { return FormatNumber(radians, "0.00000"); };
    return "Clearance " + length(play.clearanceLow * units.lengthFactor) + " to " +
           length(play.clearanceHigh * units.lengthFactor) + " " + units.lengthUnit + ": axial play " +
           length(play.playAtLow) + " to " + length(play.playAtHigh) + " " + units.lengthUnit + ", tilt " +
           tilt(play.tiltAtLow) + " to " + tilt(play.tiltAtHigh) + " radians\n";
}

}  // namespace

void calculatePlay(Session& session, const PartNumberOption& number) {
    session.decode(number);
    ProgramState& state = session.state();
    refuse(axialPlayRefusal(state));
    computePlayCurve(state.bearing, state.units, state.play);
}

CommandResult playCommand(Session& session, const PartNumberOption& number) {
    calculatePlay(session, number);
    const ProgramState& state = session.state();
    return {playJson(state.play),
            state.bearing.partNumber + "\n" + rangeText(state) + "\n" + curveTable(state)};
}

}  // namespace norlaplan::cli
