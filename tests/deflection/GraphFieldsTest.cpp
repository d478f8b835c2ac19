#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "deflection/GraphFields.h"

namespace norlaplan {
namespace {

const GraphFields kGood = {"4000", "1,000", "0.0013", "1e-4"};

TEST(TheUsersOwnAxes, AreTakenAsEnteredAndMarkedAdjusted) {
    const auto entered = adjustedSettings({}, kGood);
    const GraphSettings settings = std::get<GraphSettings>(entered);
    EXPECT_EQ(settings.xMax, 4000.0);
    EXPECT_EQ(settings.xMajor, 1000.0);
    EXPECT_EQ(settings.yMax, 0.0013);
    EXPECT_EQ(settings.yMajor, 0.0001);
    EXPECT_EQ(settings.settingsAdjusted, "Y");
}

TEST(TheUsersOwnAxes, ComeBackAsTheTextsThatWereEntered) {
    GraphSettings settings;
    settings.xMax = 4000.0;
    settings.xMajor = 0.1 + 0.2;
    settings.yMax = 13.0 * 0.0001;
    settings.yMajor = 0.5;
    const GraphFields fields = graphFields(settings);
    EXPECT_EQ(fields.xMax, "4000");
    EXPECT_EQ(fields.xMajor, "0.3");
    EXPECT_EQ(fields.yMax, "0.0013");
    EXPECT_EQ(fields.yMajor, "0.5");
}

struct BadAxis {
    std::string GraphFields::*field;
    const char* text;
    const char* prompt;
};

class ABadAxis : public ::testing::TestWithParam<BadAxis> {};

TEST_P(ABadAxis, IsADataError) {
    GraphFields fields = kGood;
    fields.*GetParam().field = GetParam().text;
    const auto entered = adjustedSettings({}, fields);
    const GraphRefusal refusal = std::get<GraphRefusal>(entered);
    EXPECT_EQ(refusal.title, "data error");
    EXPECT_EQ(refusal.prompt, GetParam().prompt);
    EXPECT_EQ(refusal.field, GetParam().field);
}

constexpr const char* kNotAbove = "Invalid input\n\nMaximum and major unit must be above 0.";
constexpr const char* kTooFine = "Invalid input\n\nThe major unit divides the axis into more than 100 steps.";

INSTANTIATE_TEST_SUITE_P(All, ABadAxis,
                         ::testing::Values(BadAxis{&GraphFields::xMax, "abc", "Invalid input"},
                                           BadAxis{&GraphFields::xMajor, "", "Invalid input"},
                                           BadAxis{&GraphFields::yMax, "1e999", "Invalid input"},
                                           BadAxis{&GraphFields::yMajor, "5 in", "Invalid input"},
                                           BadAxis{&GraphFields::xMax, "0", kNotAbove},
                                           BadAxis{&GraphFields::yMajor, "-1", kNotAbove},
                                           BadAxis{&GraphFields::xMajor, "0.004", kTooFine},
                                           BadAxis{&GraphFields::yMajor, "1.29e-5", kTooFine}));

TEST(TheUsersOwnAxes, MayHaveAHundredSteps) {
    GraphFields fields = kGood;
    fields.xMajor = "40";
    EXPECT_TRUE(std::holds_alternative<GraphSettings>(adjustedSettings({}, fields)));
}

}  // namespace
}  // namespace norlaplan
