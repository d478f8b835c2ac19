#include "capacity/LoadLife.h"

#include <optional>
#include <string_view>

#include "capacity/SolveAdvice.h"
#include "capacity/SpeedLimits.h"
#include "loaddist/AssembleRows.h"
#include "loaddist/ResultWarnings.h"
#include "loaddist/radlodestar2.h"
#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr int kWithinLimit = 2;
constexpr int kOverLimit = 4;

void pickClearance(BearingSpec& bearing) {
    if (bearing.fitLetter == " ") {
        bearing.meanClearance = (bearing.stdClearanceLow + bearing.stdClearanceHigh) / 2.0;
    } else if (bearing.clearanceKind == "Preload") {
        return;
    } else if (bearing.clearanceKind == "Clearance") {
        bearing.meanClearance = (bearing.fitLow + bearing.fitHigh) / 2.0;
    } else if (bearing.fitLetter == "Z") {
        bearing.meanClearance = 0.0;
    }
    bearing.contactAngleDegrees = 30.0;
}

SolveArguments argumentsFor(const ProgramState& state, double spacing) {
    const BearingSpec& bearing = state.bearing;
    const LoadCase& loads = state.loads;
    return {bearing.partNumber,    bearing.pitchDiameter,
            bearing.ballDiameter,  bearing.ballCount,
            bearing.raceRadius,    spacing,
            bearing.meanClearance, bearing.contactAngleDegrees,
            loads.radialLoad,      loads.axialLoad,
            loads.momentLoad};
}

bool isLoadedPair(const std::string& style) {
    return style == "B" || style == "F";
}

/// The solve of the bearing's style; nothing for another style or an aborted solve.
std::optional<SolveResult> solve(ProgramState& state, MessagePort& messages) {
    BearingSpec& bearing = state.bearing;
    if (bearing.styleLetter == "C") {
        state.life.torqueCoefficient = 0.002;
        return SolveRadialRow(state, argumentsFor(state, 0.0), messages);
    }
    if (bearing.styleLetter == "X") {
        state.life.torqueCoefficient = 0.006;
        bearing.momentArm = bearing.pitchDiameter;
        bearing.contactAngleDegrees = 30.0;
        return SolveCoupledRows(state, argumentsFor(state, 0.0), messages);
    }
    if (!isLoadedPair(bearing.styleLetter)) return std::nullopt;
    const std::string& separator = bearing.separatorCode;
    const bool dragging = separator == "F" || separator == "M" || separator == "W";
    state.life.torqueCoefficient = dragging ? 0.004 : 0.002;
    return SolveCoupledRows(state, argumentsFor(state, bearing.height / 2.0), messages);
}

void judgeSpeed(ProgramState& state) {
    LifeResult& life = state.life;
    BearingSpec& bearing = state.bearing;
    life.loadPercent = loadPercentOfLife(life.l10Revolutions);
    bearing.speedFactor = loadLevelFactor(life.loadPercent);
    life.speedLimit = Int(bearing.limitSpeedGrease * bearing.speedFactor);
    const std::string speed = plainText(state.loads.speed);
    const std::string limit = plainText(life.speedLimit);
    if (state.loads.speed > life.speedLimit) {
        life.speedVerdict = "WARNING !!!, the speed of " + speed +
                            " RPM exceeds the maximum recommended limit of " + limit + " RPM!";
        life.speedVerdictColor = kOverLimit;
    } else {
        life.speedVerdict =
            "The speed of " + speed + " RPM is below the recommended limit of " + limit + " RPM.";
        life.speedVerdictColor = kWithinLimit;
    }
}

}  // namespace

bool computeLoadLife(ProgramState& state, MessagePort& messages, BallAngles angles) {
    LifeResult& life = state.life;
    life = {};
    pickClearance(state.bearing);
    state.solver.SolveAborted = false;
    const std::optional<SolveResult> result = solveWithAdvice(state.bearing.styleLetter == "C", state.loads,
                                                              [&] { return solve(state, messages); });
    if (!result) return false;
    if (angles == BallAngles::Written && state.solver.RowCount == 2) writeBallAngles(state.solver);
    life.staticSafetyFactor = result->safetyFactor;
    life.l10Revolutions = result->lifeRevolutions;
    life.startingTorque = result->torque;
    life.warnings = resultWarnings(state.solver);
    const double speed = state.loads.speed;
    if (speed > 0.0) {
        life.l10Hours = life.l10Revolutions / (speed * 60.0);
        life.l10Hours = Int(life.l10Hours * 10.0 + 0.5) / 10.0;
    }
    life.l10Revolutions = Int(life.l10Revolutions);
    life.staticSafetyFactor = Int(life.staticSafetyFactor * 10.0 + 0.5) / 10.0;
    life.torqueDisplay = divide(life.startingTorque, state.units.momentFactor);
    life.torqueLabel = "Estimated Starting Torque = ";
    if (speed != 0.0) judgeSpeed(state);
    life.partNumber = state.bearing.partNumber;
    life.zSeparatorChoice = state.bearing.zSeparatorChoice;
    life.unitSystem = state.units.system;
    life.loads = state.loads;
    return true;
}

bool hasLife(const ProgramState& state) {
    const LifeResult& life = state.life;
    return !life.partNumber.empty() && life.partNumber == state.bearing.partNumber &&
           life.zSeparatorChoice == state.bearing.zSeparatorChoice && life.unitSystem == state.units.system &&
           life.loads == state.loads;
}

std::string lifeLine(const ProgramState& state) {
    return "L10 LIFE = " + plainText(state.life.l10Revolutions) + " REVOLUTIONS";
}

std::string hoursLine(const ProgramState& state) {
    if (!(state.loads.speed > 0.0)) return "";
    return "L10 LIFE = " + plainText(state.life.l10Hours) + " HOURS";
}

std::string safetyLine(const ProgramState& state) {
    return "STATIC SAFETY FACTOR = " + plainText(state.life.staticSafetyFactor);
}

std::string torqueLine(const ProgramState& state) {
    const bool pair = isLoadedPair(state.bearing.styleLetter);
    // A pair's torque below 1 shows with one decimal as well.
    const std::string_view picture = pair || state.life.torqueDisplay >= 1.0 ? "#,###.0" : "0.00";
    return state.life.torqueLabel + FormatNumber(state.life.torqueDisplay, picture) + " " +
           state.units.momentUnitWord + " ";
}

}  // namespace norlaplan
