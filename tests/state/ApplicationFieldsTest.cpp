#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <utility>
#include <vector>

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

using Unit = FieldUnit;

/// A value as it is laid down: its control or first option, its flag, tip and unit, in the order of a data
/// file.
struct Laid {
    const char* control;
    int flag;
    const char* tip;
    Unit unit;
};
constexpr Laid kLaid[] = {
    {"Text1", 1, "Company Contact Name", Unit::None},
    {"Text2", 2, "Company Name", Unit::None},
    {"Text3", 3, "Company Address Line 1", Unit::None},
    {"Text4", 4, "Company Address Line 2", Unit::None},
    {"Text5", 5, "Contact Job Title", Unit::None},
    {"Text6", 6, "Complete Phone Number", Unit::None},
    {"Text7", 7, "Complete Facsimile Number", Unit::None},
    {"Text8", 8, "How Bearing will be Used", Unit::None},
    {"Text9", 9, "Project Name", Unit::None},
    {"Text10", 10, "Number of Bearings needed", Unit::None},
    {"Option1", 11, "", Unit::None},
    {"Option6", 12, "", Unit::None},
    {"Text11", 13, "Maximum nonrotating Radial Load", Unit::Load},
    {"Text12", 14, "Maximum nonrotating Thrust Load", Unit::Load},
    {"Text13", 15, "Maximum nonrotating Moment Load", Unit::Moment},
    {"Text14", 16, "Average rotating Radial Load", Unit::Load},
    {"Text15", 17, "Average rotating Thrust Load", Unit::Load},
    {"Text16", 18, "Average rotating Moment Load", Unit::Moment},
    {"Check1", 0, "", Unit::None},
    {"Text17", 19, "Details of Shock or Vibration", Unit::None},
    {"Text18", 20, "Desired Factor of Safety", Unit::None},
    {"Option10", 21, "", Unit::None},
    {"Text19", 23, "Maximum expected RMP", Unit::Rpm},
    {"Text20", 24, "Minimum expected RPM", Unit::Rpm},
    {"Option12", 25, "", Unit::None},
    {"Text21", 26, "Angle of Oscillation", Unit::None},
    {"Text22", 27, "Cycles per second", Unit::None},
    {"Option14", 28, "", Unit::None},
    {"Text23", 29, "Inner Race Runout \"Full Indicator Movement\"", Unit::Length},
    {"Text24", 30, "Outer Race Radial Runout \"Full Indicator Movement\"", Unit::Length},
    {"Text25", 31, "Inner Race Axial Runout \"Full Indicator Movement\"", Unit::Length},
    {"Text26", 32, "Outer Race Axial Runout \"Full Indicator Movement\"", Unit::Length},
    {"Text27", 33, "Radial Play of Bearing(S)", Unit::Length},
    {"Text28", 34, "Axial Play of Bearing(S)", Unit::Length},
    {"Text29", 35, "Minimum Acceptable L10 Life", Unit::Hours},
    {"Text30", 36, "Average Expected Bearing L10 life", Unit::Hours},
    {"Text31", 37, "Alternate Life requirements", Unit::None},
    {"Text32", 38, "Typical Operating Temperature", Unit::Temperature},
    {"Text33", 39, "Coldest Expected Temperature", Unit::Temperature},
    {"Text34", 40, "Hottest Expected Temperature", Unit::Temperature},
    {"Text35", 41, "\"+\" is shaft hotter, \"-\" is shaft cooler than housing", Unit::Temperature},
    {"Text36", 42, "Type , name and manufacturer of lubricant desired", Unit::None},
    {"Text37", 43, "Initial fill, grease injection, oil bath, etc.", Unit::None},
    {"Text38", 44, "Bearing Inner Diameter", Unit::Length},
    {"Text39", 45, "Bearing Outer Diameter", Unit::Length},
    {"Text40", 46, "Overall Width of bearing in Axial Direction", Unit::Length},
    {"Text41", 47, "Smallest Acceptable Inner Diameter", Unit::Length},
    {"Text42", 48, "Largest Acceptable Outer Diameter", Unit::Length},
    {"Text43", 49, "Maximum overall axial width", Unit::Length},
    {"Text44", 50,
     "Style of bearing such as \"Radial\",  \"4-Point Contact\", \"Duplexed Back-to-Back\", etc.",
     Unit::None},
    {"Option21", 51, "", Unit::None},
    {"Option23", 52, "", Unit::None},
    {"Text45", 53, "Material or Properties of the Shaft", Unit::None},
    {"Text46", 54, "Material or Properties of the Housing", Unit::None},
    {"Text47", 55, "Maximum Drive Torque Available to Rotate Bearing", Unit::None},
    {"Text48", 56, "Are Integral Seals Required in the Bearing?", Unit::None},
    {"Text49", 57, "Thin Dense Chrome, Cadmium, Etc.", Unit::None},
    {"Text50", 58, "Other", Unit::None},
    {"Text51", 59, "Any Additional Requirements not yet Specified", Unit::None},
};

TEST(ApplicationFields, AreAsLaidDownEachWithAPlaceOfItsOwn) {
    const auto fields = applicationFields();
    ASSERT_EQ(fields.size(), std::size(kLaid));
    for (std::size_t i = 0; i < fields.size(); ++i) {
        EXPECT_STREQ(fields[i].control, kLaid[i].control);
        EXPECT_EQ(fields[i].flag, kLaid[i].flag) << fields[i].control;
        EXPECT_STREQ(fields[i].tip, kLaid[i].tip) << fields[i].control;
        EXPECT_EQ(fields[i].unit, kLaid[i].unit) << fields[i].control;
        for (std::size_t j = 0; j < i; ++j) {
            const bool same = fields[i].isContact()
                                  ? fields[i].contact == fields[j].contact
                                  : fields[i].own == fields[j].own && !fields[j].isContact();
            EXPECT_FALSE(same) << fields[i].control << " and " << fields[j].control;
        }
    }
}

TEST(ApplicationFields, StandOnTheTabWhoseFlagsHoldTheirs) {
    const int lastFlags[] = {12, 22, 24, 27, 34, 37, 41, 43, 52, 54, 58, 59};
    for (const ApplicationField& field : applicationFields()) {
        if (field.flag == 0) continue;
        const auto* const last = std::lower_bound(std::begin(lastFlags), std::end(lastFlags), field.flag);
        EXPECT_EQ(field.tab, last - std::begin(lastFlags) + 1) << field.control;
    }
    EXPECT_EQ(applicationField("Check1").tab, 2);
}

/// The options of each group, with what they store.
TEST(ApplicationGroups, HaveTheirOptionsInOrder) {
    struct Option {
        std::string caption, value;
    };
    const auto plain = [](std::initializer_list<const char*> captions) {
        std::vector<Option> options;
        for (const char* const caption : captions)
            options.push_back({caption, caption});
        return options;
    };
    const std::vector<std::pair<const char*, std::vector<Option>>> expected = {
        {"Option1", plain({"EXPERIMENTAL", "PROTOTYPE", "PRODUCTION", "SPECIAL MACHINE", "OTHER"})},
        {"Option6", plain({"O.E.M.", "RESALE", "OWN USE", "REPLACEMENT"})},
        {"Option10", plain({"IS", "IS NOT"})},
        {"Option12", plain({"YES", "NO"})},
        {"Option14",
         {{"0 = PRECISION CLASS 1", "0"},
          {"1 = PRECISION CLASS 1 with CLASS 4 RUNOUTS", "1"},
          {"2 = PRECISION CLASS 1 with CLASS 6 RUNOUTS", "2"},
          {"3 = PRECISION CLASS 3", "3"},
          {"4 = PRECISION CLASS 4", "4"},
          {"6 = PRECISION CLASS 6", "6"},
          {"8 = OTHER - DEFINED BELOW", "8"}}},
        {"Option21", plain({"VERTICAL", "HORIZONTAL"})},
        {"Option23", plain({"INNER", "OUTER"})}};
    const auto groups = applicationGroups();
    ASSERT_EQ(groups.size(), expected.size());
    int number = 1;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        // A group's value is kept where the field of its first option keeps it.
        EXPECT_TRUE(groups[i].value == applicationField(expected[i].first).own) << expected[i].first;
        ASSERT_EQ(groups[i].options.size(), expected[i].second.size());
        for (std::size_t j = 0; j < groups[i].options.size(); ++j, ++number) {
            EXPECT_EQ(groups[i].options[j].control, "Option" + std::to_string(number));
            EXPECT_EQ(groups[i].options[j].caption, expected[i].second[j].caption);
            EXPECT_EQ(groups[i].options[j].value, expected[i].second[j].value);
        }
    }
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
