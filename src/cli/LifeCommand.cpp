#include <vector>

#include "cli/Commands.h"
#include "cli/LifeFields.h"
#include "cli/LoadedBearing.h"
#include "cli/TextTable.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"
#include "state/SolverFields.h"

namespace norlaplan::cli {
namespace {

Json solverJson(const SolverState& solver) {
    Json json = Json::object();
    visitSolver(solver, [&](const char* name, const auto& value) { json[name] = toJson(value); });
    return json;
}

/// Calls `visit(row, ball)` for every ball, row by row.
template <typename Visit>
void forEachBall(const SolverState& solver, Visit visit) {
    for (int row = 1; row <= solver.RowCount; ++row) {
        for (int ball = 1; ball <= solver.BallCount; ++ball)
            visit(row, ball);
    }
}

Json ballsJson(const SolverState& solver) {
    Json balls = Json::array();
    forEachBall(solver, [&](int row, int ball) {
        Json json = {{"row", row}, {"ball", ball}};
        visitBall(solver, row, ball,
                  [&](const char* name, const auto& value) { json[name] = toJson(value); });
        balls.push_back(std::move(json));
    });
    return balls;
}

Json lifeJson(const ProgramState& state) {
    Json json;
    visitLife(state, [&](const char* name, const auto* value) { json[name] = jsonOrNull(value); });
    json["solver"] = solverJson(state.solver);
    json["balls"] = ballsJson(state.solver);
    return json;
}

std::string ballTable(const SolverState& solver) {
    TextRows rows = {{"Row", "Ball", "Deflection (in)", "Load (lb)", "Angle (deg)", "Inner stress (psi)",
                      "Outer stress (psi)"}};
    forEachBall(solver, [&](int row, int ball) {
        rows.push_back(
            {plainText(row), plainText(ball), FormatNumber(solver.BallDeflection(row, ball), "0.000000"),
             FormatNumber(solver.BallLoad(row, ball), "0.00"), trimmed(solver.BallAngleText(row, ball)),
             FormatNumber(solver.InnerStress(row, ball), "#,##0"),
             FormatNumber(solver.OuterStress(row, ball), "#,##0")});
    });
    return textTable(rows, true);
}

std::string lifeText(const ProgramState& state) {
    std::string text = state.bearing.partNumber + "\n";
    for (const std::string& line : {lifeLine(state), hoursLine(state), safetyLine(state), torqueLine(state),
                                    state.loads.speed != 0.0 ? state.life.speedVerdict : std::string()}) {
        if (!line.empty()) text += line + "\n";
    }
    return text + "\n" + ballTable(state.solver);
}

}  // namespace

CommandResult lifeCommand(Session& session, const PartNumberOption& number, const LoadOptions& loads) {
    calculateLife(session, number, loads);
    if (session.asksForJson()) return {lifeJson(session.state()), ""};
    return {Json::object(), lifeText(session.state())};
}

}  // namespace norlaplan::cli
