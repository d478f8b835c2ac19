#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "numbers/Text.h"
#include "search/SearchEngine.h"
#include "state/LoadEntry.h"
#include "support/PlainSearch.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

class NeverStops : public SearchWatch {
  public:
    bool goOn(double) override { return true; }
};

struct StyleCase {
    char letter;
    const char* caption;
    const char* table;
};

class PlainSearch : public ::testing::TestWithParam<StyleCase> {};

TEST_P(PlainSearch, FindsTheSameRowsWithTheSameLives) {
    const StyleCase& style = GetParam();
    ProgramState state;
    state.style = {style.caption, style.table};
    state.criteria = {0.5, 30.0, 0.1, 3.0, 0.5, 30.0, 0.1, 3.0};
    state.loads.radialLoadDisplay = 500.0;
    state.loads.axialLoadDisplay = style.letter == 'C' ? 0.0 : 100.0;
    convertLoads(state);
    testing::RecordingMessages messages;
    NeverStops watch;
    ASSERT_EQ(RunBearingSearch(state, ProgramFolder(NORLAPLAN_PROGRAM_FOLDER), messages, watch),
              SearchEnd::Found);
    const auto expected =
        plain::search(std::string(NORLAPLAN_PROGRAM_FOLDER) + "/Data Tables", style.letter,
                      {0.5F, 30.0F, 0.1F, 3.0F}, 500.0F, style.letter == 'C' ? 0.0F : 100.0F);
    ASSERT_EQ(state.search.rows.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(state.search.rows[i].name, expected[i].name);
        EXPECT_EQ(state.search.rows[i].l10Revolutions,
                  plainText(Single(std::floor(static_cast<double>(expected[i].life)))))
            << expected[i].name;
    }
}

INSTANTIATE_TEST_SUITE_P(Styles, PlainSearch,
                         ::testing::Values(StyleCase{'C', "RADIAL CONTACT", "C"},
                                           StyleCase{'X', "4-POINT CONTACT", "X"},
                                           StyleCase{'B', "BACK-TO-BACK SET", "A"}),
                         [](const auto& row) { return std::string(1, row.param.letter); });

}  // namespace
}  // namespace norlaplan
