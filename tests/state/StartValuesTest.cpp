#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "state/BearingFields.h"
#include "state/LifeChecks.h"
#include "state/ProgramState.h"
#include "state/SolverFields.h"
#include "state/UnsavedApplication.h"
#include "support/RecordingPorts.h"

/// What stands in the program's record before anything is entered.
namespace norlaplan {
namespace {

/// Numbers start at 0, texts empty, flags not set.
const auto expectNothing = [](const std::string& name, const auto& value) {
    if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::string>) {
        EXPECT_EQ(value, "") << name;
    } else {
        EXPECT_EQ(static_cast<double>(value), 0.0) << name;
    }
};

TEST(StartValues, OfBearingAndSolverAreNothing) {
    const ProgramState state;
    visitBearing(state.bearing, expectNothing);
    visitSolver(state.solver, expectNothing);
    const SolverState& s = state.solver;
    for (const double value : {s.BallDiameter, s.InnerConformityPct, s.OuterConformityPct, s.AxialDisp,
                               s.RadialDisp, s.Tilt, s.CentreDistance, s.A0Cos, s.A0Sin, s.BallSpacing,
                               s.ArmOffset, s.ForceAxialSum, s.ForceRadialSum, s.MomentSum, s.CiCo})
        EXPECT_EQ(value, 0.0);
    EXPECT_EQ(s.solveNumber, 0);
    EXPECT_FALSE(s.converged);
    EXPECT_FALSE(s.SolveAborted);
    EXPECT_FALSE(s.StyleIsX || s.StyleIsB || s.StyleIsF || s.StyleIsC);
}

TEST(StartValues, OfTheStepsAreNothingDone) {
    const ProgramState state;
    EXPECT_FALSE(state.styleChosen || state.sizesChosen || state.loadsEntered);
    EXPECT_FALSE(state.sizeInputPending || state.knownBearingLoadInput);
    EXPECT_FALSE(state.search.noResultFlag || state.search.listOnlyFlag || state.search.sorted);
    EXPECT_FALSE(state.application.unsaved);
    for (const Int16& flag : state.application.complete)
        EXPECT_EQ(flag, 0);
    EXPECT_EQ(state.application.complete.size(), 60U) << "flags 1 to 59";
    EXPECT_EQ(state.helpTopic, 0);
    EXPECT_EQ(state.unitSystem, "");
    EXPECT_EQ(state.units.system, "US");
    EXPECT_EQ(state.torque.row(0).preload, 0.0);
    EXPECT_EQ(state.torque.rows.size(), 52U);
    EXPECT_EQ(state.play.rowCount, 0);
    EXPECT_EQ(state.play.rows.size(), 123U) << "rows 1 to 122";
    for (const double scale : {state.play.sx, state.play.sy, state.play.sTilt})
        EXPECT_EQ(scale, 0.0);
    const Options& o = state.options;
    for (const Flag option : {o.faxCoverEnabled, o.deflectionOption, o.larsHofmannOption, o.nedGroveOption,
                              o.ianMorayOption, o.skipIntroOption, o.ballShowOption, o.lubeFilmOption,
                              o.pathStressOption, o.samLundOption, o.tempFitsOption, o.qlxOption})
        EXPECT_EQ(option.value(), 0);
}

TEST(StartValues, OfASortAreTheBoreUpward) {
    const ProgramState state;
    EXPECT_EQ(state.search.sortColumn, 5);
    EXPECT_EQ(state.search.sortDirection, "UP");
}

TEST(StartValues, OfTheDeflectionGraphArePicturesAndNoAxes) {
    const ProgramState state;
    const GraphSettings& graph = state.graphSettings;
    for (const double axis : {graph.xMax, graph.yMax, graph.xMajor, graph.yMajor})
        EXPECT_EQ(axis, 0.0);
    EXPECT_EQ(graph.settingsAdjusted, "N");
    EXPECT_EQ(state.graphLoad, DeflectionLoad::Radial);
    EXPECT_EQ(state.deflection.input.preload, 0.0);
    EXPECT_EQ(state.deflection.input.maxRadialLoad, 0.0);
    EXPECT_EQ(state.deflection.input.maxAxialLoad, 0.0);
    EXPECT_EQ(state.deflection.input.maxMomentLoad, 0.0);
    EXPECT_FALSE(state.deflection.radialReliefLoad.has_value());
}

TEST(SortColumns, CountFromTheNameToTheAvailability) {
    EXPECT_EQ(kSortByName, 1);
    EXPECT_EQ(kSortByLimitSpeed, 2);
    EXPECT_EQ(kSortByLife, 3);
    EXPECT_EQ(kSortByHours, 4);
    EXPECT_EQ(kSortByBore, 5);
    EXPECT_EQ(kSortByOd, 6);
    EXPECT_EQ(kSortByHeight, 7);
    EXPECT_EQ(kSortByAvailability, 8);
}

TEST(Colours, HaveRedInTheLowByte) {
    EXPECT_EQ(rgb(1, 2, 3), 1U + 2U * 256U + 3U * 65536U);
    EXPECT_EQ(colours::kBlack, 0U);
    EXPECT_EQ(colours::kWhite, 0xFFFFFFU);
    EXPECT_EQ(colours::kRed, 0xFFU);
    EXPECT_EQ(colours::kGreen, 0xFF00U);
    EXPECT_EQ(colours::kBlue, 0xFF0000U);
    EXPECT_EQ(colours::kPurple, 0xFF00FFU);
}

TEST(Looks, ArePlainBlackTimesAndThinSolidLinesWhereNothingElseIsSaid) {
    const TextLook look;
    EXPECT_EQ(look.typeface, Typeface::Times);
    EXPECT_EQ(look.points, 10.0);
    EXPECT_EQ(look.colour, 0U);
    EXPECT_FALSE(look.bold || look.italic || look.underline || look.vertical || look.middle);
    EXPECT_EQ(look.alignment, Alignment::Left);
    const PagePen pen;
    EXPECT_EQ(pen.width, 9525.0) << "0.75 point";
    EXPECT_EQ(pen.colour, 0U);
    EXPECT_EQ(pen.dash, 0);
}

TEST(LifeChecks, AreToldInWholeSentencesAndByName) {
    EXPECT_TRUE(checkSentences({}).empty());
    EXPECT_TRUE(checkNames({}).empty());
    LifeChecks checks;
    checks.shorterRowLife = 28572300.0;
    EXPECT_EQ(checkSentences(checks),
              (std::vector<std::string>{"Row 2 has the shorter life: 28,572,300 revolutions"}));
    EXPECT_EQ(checkNames(checks), (std::vector<std::string>{"row 2 shorter"}));
    checks.unbalanced = true;
    EXPECT_EQ(checkSentences(checks),
              (std::vector<std::string>{"The ball loads do not balance the applied loads.",
                                        "Row 2 has the shorter life: 28,572,300 revolutions"}));
    EXPECT_EQ(checkNames(checks), (std::vector<std::string>{"unbalanced", "row 2 shorter"}));
}

TEST(UnsavedApplication, IsAskedAboutBeforeItGoes) {
    ProgramState state;
    testing::RecordingMessages messages;
    EXPECT_TRUE(mayLoseApplication(state, messages));
    EXPECT_TRUE(messages.asked.empty()) << "nothing to lose";
    state.application.unsaved = true;
    messages.answers = {Answer::No, Answer::Yes};
    EXPECT_FALSE(mayLoseApplication(state, messages));
    EXPECT_TRUE(mayLoseApplication(state, messages));
    ASSERT_EQ(messages.asked.size(), 2U);
    EXPECT_EQ(messages.asked[0].title, "Application Form");
    EXPECT_EQ(messages.asked[0].icon, Icon::Warning);
    EXPECT_NE(messages.asked[0].prompt.find("not saved"), std::string::npos);
}

}  // namespace
}  // namespace norlaplan
