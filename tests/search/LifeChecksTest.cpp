#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "capacity/LoadLife.h"
#include "catalogue/Decoding.h"
#include "search/HitSort.h"
#include "state/LoadEntry.h"
#include "support/SearchCases.h"

namespace norlaplan {
namespace {

struct Loads {
    double radial, axial, moment;
};

/// From next to nothing to more than the smaller bearings carry.
constexpr Loads kLoads[] = {{1.5, 0, 0}, {10, 0, 0}, {400, 0, 0}, {20, 300, 0}, {5, 10, 40}};

ProgramState stateOf(const testing::SearchCase& style, const Loads& loads) {
    ProgramState state = testing::searchState(style);
    const bool radial = style.letter[0] == 'C';
    state.loads = {};
    state.loads.radialLoadDisplay = loads.radial;
    state.loads.axialLoadDisplay = radial ? 0.0 : loads.axial;
    state.loads.momentLoadDisplay = radial ? 0.0 : loads.moment;
    convertLoads(state);
    return state;
}

std::vector<SearchHit> searched(ProgramState& state) {
    testing::RecordingMessages messages;
    testing::NeverStops watch;
    RunBearingSearch(state, ProgramFolder(testing::programFolder()), messages, watch);
    return state.search.rows;
}

/// The number of the row's bearing. A set is searched with a mean clearance of a quarter of a thousandth: the
/// middle of fit B.
std::string numberOf(const SearchHit& hit, const testing::SearchCase& style) {
    return style.letter[0] == 'A' ? hit.name.substr(0, 9) + "B" : hit.name;
}

/// The warnings of a life in the words of the checks. Their figures differ in the last digits: a decode takes
/// the pitch diameter from the millimetres and a search from the inches.
std::vector<std::string> namesOf(const std::vector<std::string>& warnings) {
    std::vector<std::string> names;
    for (const std::string& warning : warnings) {
        if (warning == "The ball loads do not balance the applied loads.") {
            names.emplace_back("unbalanced");
        } else if (warning.starts_with("Row 2 has the shorter life: ")) {
            names.emplace_back("row 2 shorter");
        } else {
            names.push_back(warning);
        }
    }
    return names;
}

class ChecksOfARow : public ::testing::TestWithParam<testing::SearchCase> {};

TEST_P(ChecksOfARow, AreTheWarningsOfItsBearingUnderTheSameLoads) {
    const testing::SearchCase& style = GetParam();
    std::map<std::string, ProgramState> decoded;
    int marked = 0;
    for (const Loads& loads : kLoads) {
        ProgramState state = stateOf(style, loads);
        for (const SearchHit& hit : searched(state)) {
            if (hit.l10Revolutions == "0") continue;  // given up, which is told
            ProgramState& alone = decoded[hit.name];
            testing::RecordingMessages messages;
            if (alone.bearing.partNumber.empty()) {
                testing::Decoding decoding(testing::programFolder());
                decoding.decode(numberOf(hit, style));
                alone = decoding.state;
            }
            alone.loads = state.loads;
            ASSERT_TRUE(computeLoadLife(alone, messages)) << hit.name;
            EXPECT_EQ(checkNames(hit.checks), namesOf(alone.life.warnings))
                << hit.name << " " << loads.radial << " " << loads.axial << " " << loads.moment;
            marked += hit.checks.any() ? 1 : 0;
        }
    }
    const std::string caption = style.caption;
    if (caption == "FACE-TO-FACE SET") {
        EXPECT_GT(marked, 0);
    } else if (caption == "RADIAL CONTACT") {
        EXPECT_EQ(marked, 0) << "one row, and a bisection that always ends";
    }
}

INSTANTIATE_TEST_SUITE_P(WithoutSpacers, ChecksOfARow,
                         ::testing::Values(testing::kSearchCases[0], testing::kSearchCases[1],
                                           testing::kSearchCases[2], testing::kSearchCases[4]),
                         [](const auto& row) { return row.param.test; });

TEST(ChecksOfAList, MarkFaceToFaceSetsWithSpacersThatDoNotComeIntoBalance) {
    ProgramState state = stateOf(testing::kSearchCases[5], {10, 0, 0});
    state.criteria.maxHeight = 3.0;
    state.criteria.maxHeightDisplay = 3.0;
    const auto rows = searched(state);
    int unbalanced = 0;
    for (const SearchHit& hit : rows)
        unbalanced += hit.checks.unbalanced ? 1 : 0;
    EXPECT_GT(unbalanced, 0);
    EXPECT_LT(unbalanced, static_cast<int>(rows.size()));
}

TEST(ChecksOfAList, StayWithTheirRowsInASort) {
    SearchResults results;
    results.rows = {{"K10008FR0A", "1", "300", "", "4.0", "", "", "NO  ", {true, std::nullopt}},
                    {"K09008FR0A", "1", "100", "", "3.5", "", "", "YES ", {}},
                    {"K08008FR0A", "1", "200", "", "3.0", "", "", "CALL", {false, 150.0}}};
    for (const int column : {int(kSortByName), int(kSortByLife), int(kSortByAvailability)}) {
        results.sortColumn = column;
        sortHits(results);
        for (const SearchHit& hit : results.rows) {
            EXPECT_EQ(hit.checks.unbalanced, hit.name == "K10008FR0A") << column;
            EXPECT_EQ(hit.checks.shorterRowLife.has_value(), hit.name == "K08008FR0A") << column;
        }
    }
}

}  // namespace
}  // namespace norlaplan
