#include <string>

#include <gtest/gtest.h>

#include "search/SearchEngine.h"
#include "support/Folders.h"
#include "support/PlainSearch.h"
#include "support/RecordingPorts.h"
#include "support/SearchCases.h"

namespace norlaplan {
namespace {

class PlainSearch : public ::testing::TestWithParam<testing::SearchCase> {};

TEST_P(PlainSearch, FindsTheSameRows) {
    const testing::SearchCase& style = GetParam();
    ProgramState state = testing::searchState(style);
    testing::RecordingMessages messages;
    testing::NeverStops watch;
    ASSERT_EQ(RunBearingSearch(state, ProgramFolder(testing::programFolder()), messages, watch),
              SearchEnd::Found);
    const auto expected = plain::search((testing::programFolder() / "Data Tables").string(), style.caption,
                                        testing::kWideEnvelope, testing::searchLoads(style));
    ASSERT_EQ(state.search.rows.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const SearchHit& hit = state.search.rows[i];
        SCOPED_TRACE(expected[i].name);
        EXPECT_EQ(hit.name, expected[i].name);
        EXPECT_EQ(hit.speedLimit, expected[i].speedLimit);
        EXPECT_EQ(hit.l10Revolutions, expected[i].l10Revolutions);
        EXPECT_EQ(hit.l10Hours, expected[i].l10Hours);
        EXPECT_EQ(hit.boreText, expected[i].boreText);
        EXPECT_EQ(hit.odText, expected[i].odText);
        EXPECT_EQ(hit.heightText, expected[i].heightText);
        EXPECT_EQ(hit.stock, expected[i].stock);
    }
}

INSTANTIATE_TEST_SUITE_P(Styles, PlainSearch, ::testing::ValuesIn(testing::kSearchCases),
                         [](const auto& row) { return row.param.test; });

}  // namespace
}  // namespace norlaplan
