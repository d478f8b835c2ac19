#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "documents/ExportFile.h"

namespace norlaplan {
namespace {

/// A four-point contact bearing in US units, with values that print to few digits.
ProgramState fourPoint() {
    ProgramState state;
    state.unitSystem = "US";
    state.bearing.partNumber = "K19013XP0";
    state.bearing.styleLetter = "X";
    state.bearing.fitLetter = " ";
    state.bearing.ballDiameter = 0.15625;
    state.bearing.pitchDiameter = 8.0;
    state.bearing.ciPlusCo = 0.5;
    state.solver.ContactAngleDeg = 30.0;
    return state;
}

std::vector<std::string> linesOf(const ProgramState& state) {
    std::vector<std::string> lines;
    std::string text = qlxText(state);
    for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n")) {
        lines.push_back(text.substr(0, end));
        text.erase(0, end + 2);
    }
    EXPECT_EQ(text, "") << "behind the last line end";
    return lines;
}

/// A line by its number, counted from 1.
std::string line(const ProgramState& state, std::size_t number) {
    return linesOf(state).at(number - 1);
}

const std::vector<std::string> kFourPointLines = {"Version 0.9.61",
                                                  "\"\"",
                                                  "\"\"",
                                                  "#False#",
                                                  "#True#",
                                                  "#False#",
                                                  "#True#",
                                                  "\"K19013XP0\"",
                                                  "0",
                                                  "0",
                                                  "-1",
                                                  "-1",
                                                  "0",
                                                  "0",
                                                  "0",
                                                  "-1",
                                                  "#False#",
                                                  "0",
                                                  "1",
                                                  "0",
                                                  "#False",
                                                  "#True#",
                                                  "#False#",
                                                  "#False#",
                                                  "#False#",
                                                  "1",
                                                  "#True#",
                                                  "#False#",
                                                  "#False#",
                                                  "#True#",
                                                  "#True#",
                                                  "#True#",
                                                  "#False#",
                                                  "#False#",
                                                  "0",
                                                  "#True#",
                                                  "#True#",
                                                  "#False#",
                                                  "1",
                                                  "1",
                                                  "#False#",
                                                  "#True#",
                                                  "#False#",
                                                  "#False#",
                                                  "#False#",
                                                  "#False#",
                                                  "#False#",
                                                  "#True",
                                                  "#False#",
                                                  "#False#",
                                                  "#False#",
                                                  "#False#",
                                                  "#False#",
                                                  "#False#",
                                                  "0",
                                                  "#False#",
                                                  "#False#",
                                                  "0",
                                                  "1",
                                                  "#False#",
                                                  "#False#",
                                                  "#False#",
                                                  "#False#",
                                                  "\" .15625 \"",
                                                  "\" 8 \"",
                                                  "\" 2.9E+07 \"",
                                                  "\"0.25\"",
                                                  "\"\"",
                                                  "\"\"",
                                                  "\"0.04\"",
                                                  "\"53\"",
                                                  "\" .5 \"",
                                                  "\" 30 \""};

TEST(ExportFile, HasSeventyThreeLinesToTheCharacterInUsUnits) {
    ASSERT_EQ(kFourPointLines.size(), 73U);
    const std::vector<std::string> lines = linesOf(fourPoint());
    ASSERT_EQ(lines.size(), 73U);
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i], kFourPointLines[i]) << "line " << i + 1;
}

TEST(ExportFile, OfMetricUnitsStopsAfterLine65) {
    ProgramState state = fourPoint();
    state.unitSystem = "METRIC";
    ApplyUnitSystem("METRIC", state.units);
    const std::vector<std::string> lines = linesOf(state);
    ASSERT_EQ(lines.size(), 65U);
    EXPECT_TRUE(exportEndsEarly(state));
    std::vector<std::string> wanted(kFourPointLines.begin(), kFourPointLines.begin() + 65);
    wanted[3] = wanted[5] = "#True#";
    wanted[4] = wanted[6] = "#False#";
    // In US units this line lacks its last mark.
    wanted[20] = "#True#";
    // 0.15625 x 25.4 and 8 x 25.4.
    wanted[63] = "\" 3.96875 \"";
    wanted[64] = "\" 203.2 \"";
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i], wanted[i]) << "line " << i + 1;
}

TEST(ExportFile, TellsTheStyle) {
    const struct {
        const char* style;
        const char* single;  // line 17
        const char* back;    // line 24
        const char* face;    // line 25
        const char* four;    // line 30
        const char* radial;  // line 56
    } rows[] = {{"A", "#True#", "#False#", "#False#", "#False#", "#False#"},
                {"U", "#True#", "#False#", "#False#", "#False#", "#False#"},
                {"B", "#False#", "#True#", "#False#", "#False#", "#False#"},
                {"F", "#False#", "#False#", "#True#", "#False#", "#False#"},
                {"X", "#False#", "#False#", "#False#", "#True#", "#False#"},
                {"C", "#False#", "#False#", "#False#", "#False#", "#True#"},
                {"T", "#False#", "#False#", "#False#", "#False#", "#False#"}};
    for (const auto& row : rows) {
        ProgramState state = fourPoint();
        state.bearing.styleLetter = row.style;
        EXPECT_EQ(line(state, 17), row.single) << row.style;
        EXPECT_EQ(line(state, 24), row.back) << row.style;
        EXPECT_EQ(line(state, 25), row.face) << row.style;
        EXPECT_EQ(line(state, 30), row.four) << row.style;
        EXPECT_EQ(line(state, 56), row.radial) << row.style;
    }
}

TEST(ExportFile, TakesFitsBelowKAndFromZOnAsClearance) {
    for (const char* const fit : {" ", "A", "J", "Z"}) {
        ProgramState state = fourPoint();
        state.bearing.fitLetter = fit;
        EXPECT_EQ(line(state, 22), "#True#") << fit;
        EXPECT_EQ(line(state, 23), "#False#") << fit;
    }
    for (const char* const fit : {"K", "L", "Y"}) {
        ProgramState state = fourPoint();
        state.bearing.fitLetter = fit;
        EXPECT_EQ(line(state, 22), "#False#") << fit;
        EXPECT_EQ(line(state, 23), "#True#") << fit;
    }
}

TEST(ExportFile, TellsTheToroidsOfASpecialSeparator) {
    ProgramState state = fourPoint();
    state.bearing.zSeparatorChoice = "P";
    EXPECT_EQ(line(state, 61), "#True#");
    EXPECT_EQ(line(state, 63), "#False#");
    state.bearing.zSeparatorChoice = "V";
    EXPECT_EQ(line(state, 61), "#False#");
    EXPECT_EQ(line(state, 63), "#True#");
}

TEST(ExportFile, HasNoContactAngleBeforeAnySolution) {
    ProgramState state = fourPoint();
    state.solver.ContactAngleDeg = 0.0;
    EXPECT_EQ(line(state, 73), "\" 0 \"");
}

}  // namespace
}  // namespace norlaplan
