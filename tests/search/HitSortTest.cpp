#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "numbers/Text.h"
#include "search/HitChoice.h"
#include "search/HitSort.h"
#include "support/FaultOf.h"

namespace norlaplan {
namespace {

SearchHit hit(const std::string& name, const std::string& life, const std::string& bore,
              const std::string& stock) {
    return {name, "0", life, "0", bore, bore, "1", stock};
}

std::string names(const SearchResults& results) {
    std::string text;
    for (const SearchHit& row : results.rows)
        text += row.name;
    return text;
}

SearchResults sortedBy(int column, const std::string& direction) {
    SearchResults results;
    results.rows = {hit("a", "300", "7.5", "NO  "), hit("b", "100", "10.25", "CALL"),
                    hit("c", "300", "2.0", "YES "), hit("d", "20", "7.5", "YES ")};
    results.sortColumn = column;
    results.sortDirection = direction;
    sortHits(results);
    return results;
}

TEST(HitSort, GoesByNumbersAndNotByLetters) {
    EXPECT_EQ(names(sortedBy(kSortByBore, "UP")), "cadb");
    EXPECT_EQ(names(sortedBy(kSortByOd, "DOWN")), "badc");
}

TEST(HitSort, LeavesRowsWithEqualValuesInTheirOrder) {
    EXPECT_EQ(names(sortedBy(kSortByLife, "UP")), "dbac");
    EXPECT_EQ(names(sortedBy(kSortByLife, "DOWN")), "acbd");
}

TEST(HitSort, ByAvailabilityPutsStockFirstAndNoLastWithTextsOneBlankApart) {
    const SearchResults results = sortedBy(kSortByAvailability, "UP");
    EXPECT_EQ(names(results), "cdba");
    EXPECT_EQ(results.rows[0].stock, "YES ");
    EXPECT_EQ(results.rows[2].stock, "CALL ");
    EXPECT_EQ(results.rows[3].stock, "NO ");
}

SearchResults sortedByOther(int column, const std::string& direction) {
    SearchResults results;
    // Name, limit speed, life, hours, bore, O.D., height, stock.
    results.rows = {{"K2", "900", "1", "70", "1", "1", "0.5118", "YES "},
                    {"K10", "1000", "1", "8", "1", "1", "0.315", "YES "},
                    {"K1", "900", "1", "600", "1", "1", "1.0", "YES "}};
    results.sortColumn = column;
    results.sortDirection = direction;
    sortHits(results);
    return results;
}

TEST(HitSort, TakesEveryOtherColumnByItsValueAndNamesByTheirLetters) {
    EXPECT_EQ(names(sortedByOther(kSortByName, "UP")), "K1K10K2");
    EXPECT_EQ(names(sortedByOther(kSortByName, "DOWN")), "K2K10K1");
    EXPECT_EQ(names(sortedByOther(kSortByLimitSpeed, "UP")), "K2K1K10");
    EXPECT_EQ(names(sortedByOther(kSortByLimitSpeed, "DOWN")), "K10K2K1");
    EXPECT_EQ(names(sortedByOther(kSortByHours, "UP")), "K10K2K1");
    EXPECT_EQ(names(sortedByOther(kSortByHeight, "DOWN")), "K1K2K10");
}

TEST(HitSort, KnowsNoColumnBeforeTheFirstAndNoneBehindTheLast) {
    for (const int column : {0, 9})
        EXPECT_EQ(testing::faultOf([&] { sortedByOther(column, "UP"); }), fault::kSubscript) << column;
}

TEST(HitSort, MarksTheListToBeRebuilt) {
    const SearchResults results = sortedBy(kSortByBore, "UP");
    EXPECT_TRUE(results.listOnlyFlag && results.sorted);
}

/// Exchange of wrong neighbours until a pass makes none, typed as it is stated.
std::vector<SearchHit> exchangeSorted(std::vector<SearchHit> rows, bool up) {
    for (bool swapped = true; swapped;) {
        swapped = false;
        for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
            const float first = std::stof(rows[i].l10Revolutions);
            const float second = std::stof(rows[i + 1].l10Revolutions);
            if (up ? second < first : second > first) {
                std::swap(rows[i], rows[i + 1]);
                swapped = true;
            }
        }
    }
    return rows;
}

TEST(HitSort, GivesTheRowsOfAnExchangeSort) {
    SearchResults results;
    unsigned random = 7;
    for (int i = 0; i < 300; ++i) {
        random = random * 1664525U + 1013904223U;
        results.rows.push_back(hit(std::to_string(i), std::to_string(random >> 27U), "1", "YES "));
    }
    for (const bool up : {true, false}) {
        SearchResults sorted = results;
        sorted.sortColumn = kSortByLife;
        sorted.sortDirection = up ? "UP" : "DOWN";
        sortHits(sorted);
        SearchResults expected;
        expected.rows = exchangeSorted(results.rows, up);
        EXPECT_EQ(names(sorted), names(expected));
    }
}

TEST(HitChoice, MakesTheTrimmedNameThePartNumberAndShowsTheEnvelope) {
    ProgramState state;
    state.search.rows = {hit("K10013XP0 ", "1", "3.9370", "YES ")};
    const auto chosen = chosenHit(state, 1);
    ASSERT_TRUE(chosen.has_value());
    EXPECT_EQ(chosen->partNumber, "K10013XP0");
    EXPECT_EQ(state.bearing.partNumber, "") << "it is no bearing in hand before it is decoded";
    EXPECT_EQ(chosen->boreLine, "Bore = 3.9370 inches");
    EXPECT_EQ(chosen->odLine, "O.D. = 3.9370 inches");
    EXPECT_EQ(chosen->heightLine, "Height = 1 inches");
    EXPECT_EQ(chosen->spacerHint, "");
}

TEST(HitChoice, TakesTheSetWithoutSpacersForOneWithThem) {
    ProgramState state;
    state.style.searchStyleCaption = "BACK-TO-BACK SET WITH SPACERS";
    state.search.rows = {hit("K10013BR0A W/ 0.1764 spacers", "1", "3.9370", "YES ")};
    const auto chosen = chosenHit(state, 1);
    EXPECT_EQ(chosen->partNumber, "K10013BR0A");
    EXPECT_EQ(
        chosen->spacerHint,
        "   Data Sheet Available for                K10013BR0A                      without Spacers Only!");
}

SearchResults listOf(const std::vector<std::string>& named) {
    SearchResults results;
    for (const std::string& name : named)
        results.rows.push_back(hit(name, "1", "1", "YES "));
    return results;
}

TEST(HitChoice, IsFoundAgainByItsName) {
    const SearchResults results = listOf({"K10013XP0", "K11013XP0 ", "K11013XP0"});
    EXPECT_EQ(entryOf(results, "K11013XP0"), 2);
    EXPECT_EQ(entryOf(results, "K10013XP0 "), 1);
    EXPECT_EQ(entryOf(results, "K12013XP0"), 0);
    EXPECT_EQ(entryOf(results, ""), 0);
    EXPECT_EQ(entryOf(listOf({""}), ""), 0);
}

TEST(HitChoice, IsFoundAgainWhereItsSpacersHaveAnotherWidth) {
    const std::string inches = "K11013BR0A W/ 0.1764 spacers", millimetres = "K11013BR0A W/ 4.480 spacers";
    EXPECT_EQ(entryOf(listOf({"K10013BR0A W/ 0.1764 spacers", inches}), millimetres), 2);
    EXPECT_EQ(entryOf(listOf({inches, millimetres}), millimetres), 2) << "its own name goes before";
    EXPECT_EQ(entryOf(listOf({"K11013FR0A"}), "K11013BR0A"), 0);
    EXPECT_EQ(entryOf(listOf({"K11013XP0B"}), "K11013XP0A"), 0) << "the tenth character is the fit";
}

TEST(HitChoice, DoesNothingForNoEntry) {
    ProgramState state;
    EXPECT_FALSE(chosenHit(state, 0).has_value());
    EXPECT_FALSE(chosenHit(state, 1).has_value());
}

}  // namespace
}  // namespace norlaplan
