#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "capacity/LoadLife.h"
#include "loaddist/radlodestar2.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::RecordingMessages;

ProgramState stateOf(const char* style) {
    ProgramState state;
    BearingSpec& bearing = state.bearing;
    bearing.partNumber = std::string("K19013") + style + "P0";
    bearing.styleLetter = style;
    bearing.fitLetter = " ";
    bearing.separatorCode = "P";
    bearing.pitchDiameter = 8.0;
    bearing.ballDiameter = 0.25;
    bearing.raceRadius = 0.1325;
    bearing.ballCount = 80;
    bearing.height = 1.0236;
    bearing.stdClearanceLow = 0.0008;
    bearing.stdClearanceHigh = 0.0018;
    bearing.limitSpeedGrease = 1000.0;
    state.loads.radialLoad = 500.0;
    state.loads.axialLoad = 100.0;
    return state;
}

TEST(LoadLife, PicksTheClearanceByTheFit) {
    RecordingMessages messages;
    ProgramState standard = stateOf("X");
    computeLoadLife(standard, messages);
    EXPECT_NEAR(standard.bearing.meanClearance, 0.0013, 1e-9);
    EXPECT_EQ(standard.bearing.contactAngleDegrees, 30.0);

    ProgramState clearance = stateOf("X");
    clearance.bearing.fitLetter = "B";
    clearance.bearing.clearanceKind = "Clearance";
    clearance.bearing.fitLow = 0.0002;
    clearance.bearing.fitHigh = 0.0004;
    computeLoadLife(clearance, messages);
    EXPECT_NEAR(clearance.bearing.meanClearance, 0.0003, 1e-9);

    ProgramState special = stateOf("X");
    special.bearing.fitLetter = "Z";
    special.bearing.clearanceKind = "Special";
    special.bearing.meanClearance = 9.0;
    computeLoadLife(special, messages);
    EXPECT_EQ(special.bearing.meanClearance, 0.0);

    ProgramState preload = stateOf("B");
    preload.bearing.fitLetter = "N";
    preload.bearing.clearanceKind = "Preload";
    preload.bearing.meanClearance = -0.0002;
    preload.bearing.contactAngleDegrees = 30.5;
    computeLoadLife(preload, messages);
    EXPECT_NEAR(preload.bearing.meanClearance, -0.0002, 1e-9) << "a preload stands as the decoding left it";
    EXPECT_EQ(preload.bearing.contactAngleDegrees, 30.5);
}

TEST(LoadLife, TakesTheTorqueCoefficientByStyleAndForPairsBySeparator) {
    RecordingMessages messages;
    const auto coefficient = [&](const char* style, const char* separator) {
        ProgramState state = stateOf(style);
        state.bearing.separatorCode = separator;
        computeLoadLife(state, messages);
        return state.life.torqueCoefficient.stored();
    };
    EXPECT_EQ(coefficient("C", "F"), 0.002F);
    EXPECT_EQ(coefficient("X", "P"), 0.006F);
    EXPECT_EQ(coefficient("B", "P"), 0.002F);
    for (const char* const separator : {"F", "M", "W"})
        EXPECT_EQ(coefficient("B", separator), 0.004F);
}

TEST(LoadLife, CutsTheLifeAndRoundsHoursAndSafetyToOneDecimal) {
    RecordingMessages messages;
    ProgramState state = stateOf("X");
    state.loads.speed = 77.0;
    ASSERT_TRUE(computeLoadLife(state, messages));
    const double life = state.solver.L10OuterRotationRow1;
    EXPECT_EQ(state.life.l10Revolutions, std::floor(life));
    EXPECT_EQ(
        state.life.l10Hours.stored(),
        static_cast<float>(
            std::floor(static_cast<double>(static_cast<float>(life / (77.0 * 60.0))) * 10.0 + 0.5) / 10.0));
    const double safety = std::min<double>(state.solver.SafetyInner, state.solver.SafetyOuter);
    EXPECT_EQ(state.life.staticSafetyFactor.stored(),
              static_cast<float>(std::floor(safety * 10.0 + 0.5) / 10.0));
}

TEST(LoadLife, JudgesASpeedAtTheLimitAsWithinIt) {
    RecordingMessages messages;
    ProgramState state = stateOf("C");
    state.loads.speed = 1.0;
    ASSERT_TRUE(computeLoadLife(state, messages));
    const double limit = state.life.speedLimit;
    EXPECT_EQ(limit, std::floor(1000.0 * state.bearing.speedFactor));
    state.loads.speed = limit;
    computeLoadLife(state, messages);
    EXPECT_EQ(state.life.speedVerdictColor, 2);
    state.loads.speed = limit + 1.0;
    computeLoadLife(state, messages);
    EXPECT_EQ(state.life.speedVerdictColor, 4);
    EXPECT_EQ(state.life.speedVerdict, "WARNING !!!, the speed of " + plainText(limit + 1.0) +
                                           " RPM exceeds the maximum recommended limit of " +
                                           plainText(limit) + " RPM!");
}

TEST(LoadLife, IsThatOfTheBearingUntilSomethingIsAnother) {
    RecordingMessages messages;
    ProgramState state = stateOf("X");
    EXPECT_FALSE(hasLife(state));
    ASSERT_TRUE(computeLoadLife(state, messages));
    EXPECT_TRUE(hasLife(state));
    ProgramState other = state;
    other.bearing.partNumber = "K19013XP1";
    EXPECT_FALSE(hasLife(other));
    other = state;
    other.loads.axialLoad = 101.0;
    EXPECT_FALSE(hasLife(other));
}

TEST(LoadLife, GivesNothingForOtherStyles) {
    RecordingMessages messages;
    for (const char* const style : {"A", "U", "T"}) {
        ProgramState state = stateOf(style);
        EXPECT_FALSE(computeLoadLife(state, messages));
        EXPECT_TRUE(messages.shown.empty());
    }
}

TEST(LoadLife, SaysWhatToEnterInsteadOfANegativeLoad) {
    RecordingMessages messages;
    ProgramState state = stateOf("X");
    state.loads.axialLoad = -100.0;
    try {
        computeLoadLife(state, messages);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 5);
        EXPECT_NE(std::string(error.what()).find("positive"), std::string::npos);
    }
}

TEST(TorqueLine, OfAPairShowsOneDecimalAlsoBelowOne) {
    ProgramState pair = stateOf("F");
    pair.life.torqueLabel = "Estimated Starting Torque = ";
    pair.life.torqueDisplay = 0.4;
    EXPECT_EQ(torqueLine(pair), "Estimated Starting Torque = .4 inch-lbs. ");
    ProgramState radial = stateOf("C");
    radial.life.torqueLabel = "Estimated Starting Torque = ";
    radial.life.torqueDisplay = 0.4;
    EXPECT_EQ(torqueLine(radial), "Estimated Starting Torque = 0.40 inch-lbs. ");
    radial.life.torqueDisplay = 0.99;
    EXPECT_EQ(torqueLine(radial), "Estimated Starting Torque = 0.99 inch-lbs. ");
    radial.life.torqueDisplay = 1.0;
    EXPECT_EQ(torqueLine(radial), "Estimated Starting Torque = 1.0 inch-lbs. ");
    radial.life.torqueDisplay = 1.04;
    EXPECT_EQ(torqueLine(radial), "Estimated Starting Torque = 1.0 inch-lbs. ");
    radial.life.torqueDisplay = 1234.5;
    EXPECT_EQ(torqueLine(radial), "Estimated Starting Torque = 1,234.5 inch-lbs. ");
}

TEST(ResultLines, ShowNumbersPlainly) {
    ProgramState state = stateOf("X");
    state.life.l10Revolutions = 1162182300.0;
    state.life.l10Hours = 100.0;
    state.life.staticSafetyFactor = 1.3;
    EXPECT_EQ(lifeLine(state), "L10 LIFE = 1162182300 REVOLUTIONS");
    EXPECT_EQ(hoursLine(state), "");
    state.loads.speed = 10.0;
    EXPECT_EQ(hoursLine(state), "L10 LIFE = 100 HOURS");
    EXPECT_EQ(safetyLine(state), "STATIC SAFETY FACTOR = 1.3");
}

}  // namespace
}  // namespace norlaplan
