#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "numbers/Text.h"
#include "search/HitChoice.h"
#include "search/HitSort.h"

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

TEST(HitChoice, DoesNothingForNoEntry) {
    ProgramState state;
    EXPECT_FALSE(chosenHit(state, 0).has_value());
    EXPECT_FALSE(chosenHit(state, 1).has_value());
}

}  // namespace
}  // namespace norlaplan
