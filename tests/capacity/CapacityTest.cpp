#include <cmath>

#include <gtest/gtest.h>

#include "capacity/EllipseMatch.h"
#include "capacity/capacitymodule.h"
#include "numbers/PiValue.h"
#include "support/PlainCapacity.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::RecordingMessages;

struct Ratings {
    Single radial = -1.0, thrust = -1.0, moment = -1.0, ciPlusCo = -1.0;
};

Ratings ratingsOf(double pitch, double ball, int balls, double angle, double groove, const char* mode,
                  double arm = 0.0) {
    RecordingMessages messages;
    Patience patience(messages);
    Ratings ratings;
    ComputeCapacity(pitch, arm, ball, balls, angle, groove, mode, ratings.radial, ratings.thrust,
                    ratings.moment, ratings.ciPlusCo, patience);
    return ratings;
}

TEST(Capacity, AgreesWithThePlainTranscriptionToTheLastBit) {
    const double sections[][2] = {{0.15625, 0.0828125}, {0.25, 0.1325}, {0.375, 0.19875}};
    for (const auto& section : sections) {
        for (double pitch = 1.1; pitch < 20.5; pitch += 0.731) {
            const Ratings ratings = ratingsOf(pitch, section[0], 60, ThirtyDegrees, section[1], "A");
            const plain::Capacity expected =
                plain::capacityOfModeA(static_cast<float>(pitch), static_cast<float>(section[0]), 60,
                                       ThirtyDegrees, static_cast<float>(section[1]));
            EXPECT_EQ(ratings.radial.stored(), expected.radial);
            EXPECT_EQ(ratings.thrust.stored(), expected.thrust);
            EXPECT_EQ(ratings.ciPlusCo.stored(), expected.ciPlusCo);
        }
    }
}

TEST(Capacity, OfARadialBearingHasNeitherThrustNorMoment) {
    const Ratings ratings = ratingsOf(8.0, 0.25, 81, 0.0, 0.1325, "C");
    EXPECT_GT(ratings.radial, 0.0);
    EXPECT_EQ(ratings.thrust, 0.0);
    EXPECT_EQ(ratings.moment, 0.0);
}

TEST(Capacity, IsOneBranchForModesAAndUAndLeavesTheMoment) {
    const Ratings a = ratingsOf(8.0, 0.25, 81, ThirtyDegrees, 0.1325, "A");
    const Ratings u = ratingsOf(8.0, 0.25, 81, ThirtyDegrees, 0.1325, "U");
    EXPECT_EQ(a.radial.stored(), u.radial.stored());
    EXPECT_EQ(a.moment, -1.0);
}

TEST(Capacity, OfAnUnknownModeSetsTheContactConstantsAlone) {
    const Ratings ratings = ratingsOf(8.0, 0.25, 81, ThirtyDegrees, 0.1325, "T");
    EXPECT_EQ(ratings.radial, -1.0);
    EXPECT_EQ(ratings.thrust, -1.0);
    EXPECT_GT(ratings.ciPlusCo, 0.0);
}

TEST(Capacity, ThrustRestsOnBallsAndTheirNumberAlone) {
    const Ratings narrow = ratingsOf(8.0, 0.25, 64, ThirtyDegrees, 0.1325, "A");
    const Ratings wide = ratingsOf(8.0, 0.25, 64, ThirtyDegrees, 0.265, "A");
    // 0.5 x 0.25 x 0.25 x 15325 x 64^(2/3) = 0.03125 x 15325 x 16
    EXPECT_EQ(narrow.thrust, 7662.5);
    EXPECT_EQ(wide.thrust, 7662.5);
    EXPECT_NE(narrow.radial.stored(), wide.radial.stored());
}

TEST(Capacity, OfAPairMultipliesTheRadialAndNotTheMomentByTheTwoRows) {
    const Ratings one = ratingsOf(8.0, 0.25, 81, ThirtyDegrees, 0.1325, "A");
    const Ratings pair = ratingsOf(8.0, 0.25, 81, ThirtyDegrees, 0.1325, "B", 9.0);
    EXPECT_NEAR(pair.radial / one.radial, std::pow(2.0, 0.7), 1e-6);
    EXPECT_NEAR(pair.moment / one.radial, 9.0 * std::tan(ThirtyDegrees), 1e-5);
    const Ratings four = ratingsOf(8.0, 0.25, 81, ThirtyDegrees, 0.1325, "X", 9.0);
    EXPECT_NEAR(four.radial / one.radial, std::pow(2.0, 0.7) * 0.9 / 0.95, 1e-6);
    EXPECT_NEAR(four.moment / one.radial, 8.0 * std::tan(ThirtyDegrees), 1e-5)
        << "the arm is the pitch diameter";
}

TEST(EllipseMatch, StopsOnePanelShortOfAQuarterTurnAndJustAboveItsTarget) {
    RecordingMessages messages;
    Patience patience(messages);
    for (const double target : {0.5, 0.9, 0.95}) {
        const EllipseMatch match = matchEllipseTo(target, patience);
        const double modulus = std::sin(match.b);
        // What is missing is the last of 1000 panels, where the integrands are 1 / cos b and cos b.
        const double panel = PiValue / 2000.0;
        EXPECT_NEAR(match.K + panel / std::cos(match.b), std::comp_ellint_1(modulus), 1e-4) << target;
        EXPECT_NEAR(match.E + panel * std::cos(match.b), std::comp_ellint_2(modulus), 1e-4) << target;
        const double cotangent = 1.0 / std::tan(match.b);
        const double ratio = 1.0 - 2.0 * cotangent * cotangent * (match.K - match.E) / match.E;
        EXPECT_GE(ratio, target);
        EXPECT_LE(ratio, target + 1e-5);
    }
}

BearingSpec bearingOf(const char* style) {
    BearingSpec bearing;
    bearing.styleLetter = style;
    bearing.pitchDiameter = 8.0;
    bearing.ballDiameter = 0.25;
    bearing.ballCount = 80;
    bearing.raceRadius = 0.1325;
    bearing.staticFactor = 1.0;
    bearing.momentArm = 9.0;
    RecordingMessages messages;
    Patience patience(messages);
    completeRatings(bearing, patience);
    return bearing;
}

// 2280 x 80 x 0.0625 = 11400; 11400 x 80 x 0.0625 = 57000. sin 30 = 0.5, cos 30 = 0.8660254.
TEST(StaticRatings, FollowTheStyle) {
    const BearingSpec c = bearingOf("C");
    EXPECT_EQ(c.staticRadial, 11400.0);
    EXPECT_EQ(c.staticThrust, 0.0);
    EXPECT_EQ(c.momentArm, 0.0) << "that of a pair before it";
    const BearingSpec x = bearingOf("X");
    EXPECT_EQ(x.staticRadial, 11400.0);
    EXPECT_NEAR(x.staticThrust, 28500.0, 0.01);
    EXPECT_NEAR(x.staticMoment, 45600.0, 0.01);
    const BearingSpec a = bearingOf("A");
    EXPECT_NEAR(a.staticRadial, 9872.69, 0.01);
    EXPECT_EQ(a.staticMoment, 0.0);
    const BearingSpec b = bearingOf("B");
    EXPECT_NEAR(b.staticRadial, 19745.38, 0.02);
    EXPECT_NEAR(b.staticThrust, 28500.0, 0.01) << "a pair keeps the thrust of one row";
    EXPECT_NEAR(b.staticMoment, 9872.69 * 9.0 * 0.57735027, 0.5) << "from the single row's radial rating";
    const BearingSpec t = bearingOf("T");
    EXPECT_NEAR(t.staticThrust, 57000.0, 0.02);
    EXPECT_EQ(t.dynamicMoment, 0.0);
    EXPECT_NEAR(t.dynamicThrust / a.dynamicThrust, std::pow(2.0, 0.7), 1e-6);
}

}  // namespace
}  // namespace norlaplan
