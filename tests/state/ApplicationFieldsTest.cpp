#include <set>

#include <gtest/gtest.h>

#include "state/ApplicationFields.h"
#include "state/NewBearing.h"

namespace norlaplan {
namespace {

void enter(ApplicationForm& form, const char* control, const char* value) {
    const ApplicationField& field = applicationField(control);
    if (!field.isContact()) form.data.*field.own = value;
    noteEntry(form, field, value);
}

TEST(ApplicationFields, AreTheFiftyOneTextsTheGroupsAndTheCheckBox) {
    std::set<std::string> texts;
    int others = 0;
    for (const ApplicationField& field : applicationFields()) {
        if (field.isText())
            EXPECT_TRUE(texts.insert(field.control).second) << field.control;
        else
            ++others;
        EXPECT_NE(field.isContact(), field.own != nullptr) << field.control;
    }
    EXPECT_EQ(texts.size(), 51U);
    EXPECT_EQ(others, 8);
    int options = 0;
    for (const ApplicationGroup& group : applicationGroups())
        options += static_cast<int>(group.options.size());
    EXPECT_EQ(options, 24);
}

TEST(ApplicationFields, HaveEveryFlagButTheTwentySecondOnce) {
    std::multiset<int> flags;
    for (const ApplicationField& field : applicationFields())
        flags.insert(field.flag);
    EXPECT_EQ(flags.count(0), 1U);  // the check box
    for (int flag = 1; flag <= 59; ++flag)
        EXPECT_EQ(flags.count(flag), flag == 22 ? 0U : 1U) << flag;
}

TEST(ApplicationLights, AreRedYellowAndGreenByTheSumOfTheirFlags) {
    // The flags of each tab, as they are laid down.
    const int ranges[12][2] = {{1, 12},  {13, 22}, {23, 24}, {25, 27}, {28, 34}, {35, 37},
                               {38, 41}, {42, 43}, {44, 52}, {53, 54}, {55, 58}, {59, 59}};
    for (int tab = 1; tab <= 12; ++tab) {
        ApplicationForm form;
        EXPECT_EQ(statusLight(form, tab), Light::Red) << tab;
        const auto [first, last] = ranges[tab - 1];
        for (int flag = first; flag <= last; ++flag) {
            form.complete.at(static_cast<std::size_t>(flag)) = 1;
            EXPECT_EQ(statusLight(form, tab), flag == last ? Light::Green : Light::Yellow) << flag;
        }
        form = {};
        for (int flag = 1; flag <= 59; ++flag) {
            if (flag < first || flag > last) form.complete.at(static_cast<std::size_t>(flag)) = 1;
        }
        EXPECT_EQ(statusLight(form, tab), Light::Red) << tab;
    }
}

TEST(ApplicationLights, FollowATextAsItIsEnteredAndTakenAway) {
    ApplicationForm form;
    enter(form, "Text51", "x");
    EXPECT_EQ(form.complete[59], 1);
    EXPECT_EQ(statusLight(form, 12), Light::Green);
    enter(form, "Text51", "");
    EXPECT_EQ(form.complete[59], 0);
    EXPECT_EQ(statusLight(form, 12), Light::Red);
}

TEST(ApplicationLights, OfTheLoadsNeverComeToGreenSinceNothingSetsFlag22) {
    ApplicationForm form;
    for (const ApplicationField& field : applicationFields()) {
        if (field.tab == 2) noteEntry(form, field, field.isText() ? "1" : "IS");
    }
    EXPECT_EQ(statusLight(form, 2), Light::Yellow);
}

TEST(ApplicationLights, CountAngleAndFrequencyAsGivenWithNoOscillation) {
    ApplicationForm form;
    enter(form, "Option12", "NO");
    EXPECT_EQ(form.complete[26], 1);
    EXPECT_EQ(form.complete[27], 1);
    EXPECT_EQ(statusLight(form, 4), Light::Green);
    // Asked for again, they are missing again.
    enter(form, "Option12", "YES");
    EXPECT_EQ(statusLight(form, 4), Light::Yellow);
    EXPECT_EQ(form.complete[26], 0);
}

TEST(ApplicationDefaults, AreTheFirstPrecisionClassAndNoShock) {
    ApplicationData data;
    setApplicationDefaults(data);
    EXPECT_EQ(data.precisionClass, "0");
    EXPECT_EQ(data.shock, "NO");
    data.precisionClass = "8";
    data.shock = "YES";
    setApplicationDefaults(data);
    EXPECT_EQ(data.precisionClass, "8");
    EXPECT_EQ(data.shock, "YES");
}

TEST(NewBearing, ClearsTheApplicationFormButNotTheUserInformation) {
    ProgramState state;
    state.user.userName = "Ann";
    state.application.unsaved = true;
    enter(state.application, "Text51", "x");
    clearBearingAndLoads(state);
    EXPECT_EQ(state.application.data, ApplicationData());
    EXPECT_EQ(statusLight(state.application, 12), Light::Red);
    EXPECT_FALSE(state.application.unsaved);
    EXPECT_EQ(state.user.userName, "Ann");
}

}  // namespace
}  // namespace norlaplan
