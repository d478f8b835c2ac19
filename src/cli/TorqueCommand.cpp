#include <span>

#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/TextTable.h"
#include "fits/TorqueAxes.h"
#include "fits/TorqueCurve.h"
#include "numbers/FormatNumber.h"
#include "state/DisplayUnits.h"
#include "state/MenuConditions.h"

namespace norlaplan::cli {
namespace {

Json axesJson(const TorqueAxes& axes) {
    return {{"xMax", axes.xMax}, {"xStep", axes.xStep}, {"yMax", axes.yMax}, {"yStep", axes.yStep},
            {"yExp", axes.yExp}, {"yMant", axes.yMant}, {"sx", axes.sx},     {"sy", axes.sy}};
}

std::string curveTable(const ProgramState& state) {
    const UnitMode& units = state.units;
    const bool metric = isMetric(units);
    TextRows table = {{"Preload (" + units.lengthUnit + ")", "Torque (" + units.momentUnit + ")"}};
    for (int i = 1; i <= TorqueCurve::kPoints; ++i) {
        const TorquePoint& row = state.torque.row(i);
        table.push_back({FormatNumber(row.preload * units.lengthFactor, metric ? "0.00000" : "0.0000"),
                         FormatNumber(row.torque / units.momentFactor, metric ? "0.0000" : "0.000")});
    }
    return textTable(table, true);
}

}  // namespace

void calculateTorque(Session& session, const PartNumberOption& number) {
    session.decode(number);
    ProgramState& state = session.state();
    refuse(preloadTorqueRefusal(state));
    computeTorqueCurve(state.bearing, state.torque, session.messages());
}

CommandResult torqueCommand(Session& session, const PartNumberOption& number) {
    calculateTorque(session, number);
    const ProgramState& state = session.state();
    CommandResult result;
    result.json["curve"] = rowsJson(std::span(state.torque.rows).subspan(1, TorqueCurve::kPoints),
                                    &TorquePoint::preload, &TorquePoint::torque);
    result.json["axes"] = axesJson(computeTorqueAxes(state.torque, state.units));
    result.text = state.bearing.partNumber + "\n\n" + curveTable(state);
    return result;
}

}  // namespace norlaplan::cli
