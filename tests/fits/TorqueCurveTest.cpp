#include <cmath>

#include <gtest/gtest.h>

#include "fits/PairTorque.h"
#include "fits/SampleBearings.h"
#include "fits/TorqueCurve.h"
#include "support/FaultOf.h"
#include "support/PlainTorque.h"

namespace norlaplan {
namespace {

using testing::faultOf;
using testing::fitLettersOf;
using testing::PlainTorque;
using testing::PlainTorqueCurve;
using testing::RecordingMessages;
using testing::SampleBearings;
using testing::sampleSizes;

constexpr double kThirty = 94.2477796077 / 180.0;

class TheTorqueCurve : public ::testing::TestWithParam<const char*> {
  protected:
    const BearingSpec& bearing() const { return run.state.bearing; }
    TorqueCurve curve() {
        TorqueCurve made;
        computeTorqueCurve(bearing(), made, run.messages);
        return made;
    }

    SampleBearings run;
    std::string style = GetParam();
    bool pair = style == "B" || style == "F";
};

TEST_P(TheTorqueCurve, EqualsThePlainCalculationToTheLastBitForEveryBearingOfTheCatalogue) {
    for (const std::string& size : sampleSizes()) {
        for (const std::string& letter : fitLettersOf(style)) {
            const std::string number = size + style + "P0" + letter;
            ASSERT_TRUE(run.decoded(number)) << number;
            const TorqueCurve found = curve();
            EXPECT_EQ(found.partNumber, number);
            const PlainTorque plain = PlainTorqueCurve(bearing()).curve();
            for (int i = 0; i <= 50; ++i) {
                const auto at = static_cast<std::size_t>(i);
                ASSERT_EQ(found.row(i).preload.stored(), plain.preload[at]) << number << " " << i;
                ASSERT_EQ(found.row(i).torque.stored(), plain.torque[at]) << number << " " << i;
            }
        }
    }
    EXPECT_TRUE(run.messages.asked.empty());
}

TEST_P(TheTorqueCurve, EqualsThePlainCalculationForEverySeparator) {
    const bool angular = pair;
    for (const std::string code : {"P", "R", "J", "N", "M", "W", "S", "F", "ZP", "ZV", "ZS", "ZT"}) {
        if (code[0] == 'Z' && (code == "ZS" ? false : angular != (code != "ZT"))) continue;
        run.state.bearing.zSeparatorChoice = code.substr(1);
        const std::string number = "K19013" + style + code.substr(0, 1) + "0E";
        ASSERT_TRUE(run.decoded(number)) << number << code;
        ASSERT_EQ(bearing().separatorCode, code);
        const TorqueCurve found = curve();
        const PlainTorque plain = PlainTorqueCurve(bearing()).curve();
        for (int i = 1; i <= 50; ++i)
            EXPECT_EQ(found.row(i).torque.stored(), plain.torque[static_cast<std::size_t>(i)]) << code << i;
    }
}

TEST_P(TheTorqueCurve, StartsWithAFewPoundsAndRisesWithThePreload) {
    for (const std::string& size : sampleSizes()) {
        ASSERT_TRUE(run.decoded(size + style + "P0E"));
        const TorqueCurve found = curve();
        EXPECT_EQ(found.row(0).preload, 0.0);
        EXPECT_EQ(found.row(0).torque, 0.0);
        EXPECT_GT(found.row(1).torque, 0.0) << size;
        for (int i = 2; i <= 50; ++i)
            EXPECT_GT(found.row(i).torque, found.row(i - 1).torque) << size << " " << i;
        EXPECT_EQ(found.row(51).torque, 0.0);
    }
}

/// What a single row's rings and balls give under the load that the torque tells of.
double preloadTakenUp(const BearingSpec& b, double torque) {
    const bool radial = b.styleLetter == "C";
    const double angle = radial ? 0.0 : kThirty;
    const double twice = radial ? 2.0 : 1.0;
    const double load = torque / (b.ballCount * b.pitchDiameter * (radial ? 0.001 : 0.006));
    const auto ring = [&](double diameter, double section, double width) {
        return diameter * diameter * b.ballCount * std::cos(angle) /
               (twice * section * width * 2.9e7 * b.pitchDiameter * M_PI);
    };
    const double rings = ring(b.outsideDiameter - b.outerSection, b.outerSection, b.outerWidth) +
                         ring(b.bore + b.innerSection, b.innerSection, b.innerWidth);
    const double contacts = b.ciPlusCo * 1.5621274e-5 / (std::cbrt(b.ballDiameter) * std::cos(angle));
    return rings * load + contacts * std::cbrt(load * load);
}

TEST_P(TheTorqueCurve, IsThatOfTheBallLoadWhichTakesUpThePreloadOfASingleRow) {
    if (pair) return;
    for (const std::string& size : sampleSizes()) {
        ASSERT_TRUE(run.decoded(size + style + "P0"));
        const TorqueCurve found = curve();
        for (int i = 1; i <= 50; ++i) {
            const double preload = i / 10000.0;
            // 32-bit torque and compliances, and a pound more or less in ten million of the last step.
            EXPECT_NEAR(preloadTakenUp(bearing(), found.row(i).torque) / preload, 1.0, 1e-5) << size << i;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Styles, TheTorqueCurve, ::testing::Values("X", "C", "F", "B"));

class ATorqueCurve : public ::testing::Test {
  protected:
    SampleBearings run;
    RecordingMessages messages;
    TorqueCurve curve;
};

TEST_F(ATorqueCurve, OfAPairStandsOnAnAngleThatMeetsTheBalanceWithinAHundredth) {
    for (const std::string& size : sampleSizes()) {
        ASSERT_TRUE(run.decoded(size + "BP0E"));
        const BearingSpec& b = run.bearing();
        PairTorque pair(b, messages);
        double before = kThirty;
        for (int i = 1; i <= 50; ++i) {
            const double angle = pair.contactAngle(i / 20000.0);
            // Beyond the free angle, and further with every preload.
            EXPECT_GT(angle, before) << size << i;
            before = angle;
        }
    }
}

TEST_F(ATorqueCurve, OfAPairDoublesWithASeparatorThatDrags) {
    ASSERT_TRUE(run.decoded("K19013BP0E"));
    run.state.bearing.separatorCode = "P";
    computeTorqueCurve(run.bearing(), curve, messages);
    for (const std::string separator : {"M", "F", "W"}) {
        run.state.bearing.separatorCode = separator;
        TorqueCurve dragging;
        computeTorqueCurve(run.bearing(), dragging, messages);
        for (int i = 1; i <= 50; ++i)
            EXPECT_FLOAT_EQ(dragging.row(i).torque.stored(), 2.0F * curve.row(i).torque.stored());
    }
}

TEST_F(ATorqueCurve, OfFaceToFaceIsThatOfBackToBack) {
    ASSERT_TRUE(run.decoded("K19013BP0E"));
    computeTorqueCurve(run.bearing(), curve, messages);
    TorqueCurve face;
    ASSERT_TRUE(run.decoded("K19013FP0E"));
    computeTorqueCurve(run.bearing(), face, messages);
    EXPECT_EQ(face.row(50).torque, curve.row(50).torque);
}

TEST_F(ATorqueCurve, IsKeptWhenTheStyleHasNone) {
    ASSERT_TRUE(run.decoded("K19013XP0"));
    computeTorqueCurve(run.bearing(), curve, messages);
    const double held = curve.row(50).torque;
    for (const std::string style : {"A", "U", "T"}) {
        ASSERT_TRUE(run.decoded("K19013" + style + "P0"));
        computeTorqueCurve(run.bearing(), curve, messages);
        EXPECT_EQ(curve.partNumber, "K19013XP0");
        EXPECT_EQ(curve.row(50).torque, held);
    }
}

TEST_F(ATorqueCurve, IsKeptWhenTheBearingHasNoSections) {
    ASSERT_TRUE(run.decoded("K19013XP0"));
    computeTorqueCurve(run.bearing(), curve, messages);
    for (const std::string style : {"X", "C", "F", "B"}) {
        BearingSpec empty;
        empty.styleLetter = style;
        EXPECT_EQ(faultOf([&] { computeTorqueCurve(empty, curve, messages); }), fault::kDivisionByZero)
            << style;
        BearingSpec flat = run.bearing();
        flat.styleLetter = style;
        flat.innerSection = 0.0;
        EXPECT_EQ(faultOf([&] { computeTorqueCurve(flat, curve, messages); }), fault::kDivisionByZero)
            << style;
    }
    EXPECT_EQ(curve.partNumber, "K19013XP0");
}

/// Whether a curve comes to its end, with a result or an error, before anybody has to be asked.
bool endsByItself(const BearingSpec& bearing) {
    RecordingMessages messages;
    TorqueCurve curve;
    try {
        computeTorqueCurve(bearing, curve, messages);
    } catch (const RuntimeError&) {
    } catch (const NotConverging&) {
    }
    return messages.asked.empty();
}

TEST_F(ATorqueCurve, ComesToAnEndForBearingsThatNoCatalogueHas) {
    const auto set = [](BearingSpec& b, int field, double value) {
        Single* const fields[] = {&b.ciPlusCo,   &b.ballDiameter, &b.pitchDiameter,   &b.innerSection,
                                  &b.innerWidth, &b.bore,         &b.outsideDiameter, &b.outerSection};
        *fields[field] = value;
    };
    for (const std::string style : {"X", "C", "F", "B"}) {
        ASSERT_TRUE(run.decoded("K19013" + style + "P0E"));
        for (int field = 0; field < 8; ++field) {
            for (const double value : {-1.0, 1e-30, 1e-6, 1e6, 1e30}) {
                BearingSpec odd = run.bearing();
                set(odd, field, value);
                EXPECT_TRUE(endsByItself(odd)) << style << field << " " << value;
            }
        }
        BearingSpec bare = run.bearing();
        bare.ballCount = 0;
        EXPECT_TRUE(endsByItself(bare)) << style;
    }
}

}  // namespace
}  // namespace norlaplan
