#include <filesystem>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "numbers/RuntimeError.h"
#include "search/SearchCatalogue.h"

/// Searches that fault, are stopped or hold rows that never settle.
namespace norlaplan {
namespace {

using testing::numbers;
using testing::rowOf;
using testing::SearchCatalogue;
using testing::Watch;

int faultOf(SearchCatalogue& catalogue) {
    try {
        catalogue.run();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(Search, HoldsThreeHundredRowsAndFaultsAtTheNext) {
    SearchCatalogue catalogue;
    std::string rows;
    for (int i = 0; i < 300; ++i)
        rows += rowOf("K10013XP0", 100);
    catalogue.section(rows);
    EXPECT_EQ(catalogue.run(), SearchEnd::Found);
    EXPECT_EQ(catalogue.state.search.rows.size(), 300U);
    catalogue.section(rows + rowOf("K10013XP0", 100));
    EXPECT_EQ(faultOf(catalogue), fault::kSubscript);
    EXPECT_TRUE(catalogue.state.search.rows.empty());
}

TEST(Search, FaultsForASpeedIndexOutsideOfOneToFour) {
    for (const int index : {0, 5}) {
        SearchCatalogue catalogue;
        catalogue.section(rowOf("K10013XP0", 100, 1, index));
        EXPECT_EQ(faultOf(catalogue), fault::kSubscript) << index;
    }
}

TEST(Search, FaultsForASpeedTableWithoutItsKey) {
    for (const std::string& table : {std::string(), "J" + std::string(23, ',') + numbers(9.0) + "\r\n"}) {
        SearchCatalogue catalogue;
        catalogue.section(rowOf("K10013CP0", 100));
        catalogue.style("RADIAL CONTACT", "C");
        catalogue.place.write("Data Tables/SPEEDC.CSV", table);
        EXPECT_EQ(faultOf(catalogue), fault::kPastEnd);
    }
}

TEST(Search, StoppedKeepsNoRows) {
    SearchCatalogue catalogue;
    catalogue.section(rowOf("K10013XP0", 100) + rowOf("K15013XP0", 150) + rowOf("K20013XP0", 200));
    EXPECT_EQ(catalogue.run(3), SearchEnd::Stopped);
    EXPECT_TRUE(catalogue.state.search.rows.empty());
    EXPECT_TRUE(catalogue.messages.shown.empty());
}

/// Radial loads under which a row of the sample catalogue never settles.
struct Unsettled : SearchCatalogue {
    Unsettled() {
        folder = testing::programFolder();
        style("FACE-TO-FACE SET", "A");
        state.criteria = {0.0, 4.0, 0.0, 1.2, 0.0, 4.0, 0.0, 1.2};
    }
    SearchEnd go(SearchWatch& watch) {
        return RunBearingSearch(state, ProgramFolder(folder), messages, watch);
    }
    std::filesystem::path folder;
};

TEST(Search, AsksOnceWhetherToGoOnAndListsWhatIsGivenUpWithLifeZero) {
    Unsettled search;
    Watch watch;
    EXPECT_EQ(search.go(watch), SearchEnd::Found);
    ASSERT_EQ(search.messages.asked.size(), 1U);
    EXPECT_EQ(search.messages.asked[0].title, "Difficulty in solving this load case");
    int given = 0;
    for (const SearchHit& hit : search.state.search.rows)
        given += hit.l10Revolutions == "0" ? 1 : 0;
    EXPECT_GT(given, 0);
    EXPECT_LT(given, static_cast<int>(search.state.search.rows.size()));
    EXPECT_EQ(search.messages.shown,
              (std::vector<Message>{{"The calculation does not converge",
                                     std::to_string(given) +
                                         " bearings were given up and stand in the list with the life 0."}}));
    EXPECT_EQ(search.state.loads.radialLoad, 500.0);
    EXPECT_EQ(search.state.loads.axialLoad, 0.0) << "the rows after it have the loads that were entered";
}

TEST(Search, ThatWasToldToGoOnCanStillBeStoppedInARowThatNeverSettles) {
    class Impatient : public SearchWatch {
      public:
        bool goOn(double) override { return ++looks_ < 60; }

      private:
        int looks_ = 0;
    };
    Unsettled search;
    search.messages.answers = {Answer::Yes};
    Impatient watch;
    EXPECT_EQ(search.go(watch), SearchEnd::Stopped);
    EXPECT_TRUE(search.state.search.rows.empty());
    EXPECT_EQ(search.messages.asked.size(), 1U);
}

TEST(Search, CanBeStoppedWithinARowOfTensOfThousandsOfBalls) {
    SearchCatalogue catalogue;
    catalogue.section("K10013XP0,1,100,126,0,0,0,.5,1,30000\r\n");
    catalogue.style("4-POINT CONTACT", "X");
    catalogue.state.loads.radialLoadDisplay = 500.0;
    convertLoads(catalogue.state);
    Watch all;
    EXPECT_EQ(
        RunBearingSearch(catalogue.state, ProgramFolder(catalogue.place.path()), catalogue.messages, all),
        SearchEnd::Found);
    EXPECT_GT(all.rows, 3) << "a look for the row, and one for each of its passes";
    EXPECT_EQ(catalogue.run(3), SearchEnd::Stopped);
    EXPECT_TRUE(catalogue.state.search.rows.empty());
}

TEST(Search, TellsWhatToEnterInsteadOfALoadOfTheWrongSign) {
    for (const auto& [letter, word] : {std::pair{"C", "radial"}, std::pair{"X", "axial"}}) {
        SearchCatalogue catalogue;
        catalogue.section(rowOf(std::string("K10013") + letter + "P0", 100));
        catalogue.style(letter == std::string("C") ? "RADIAL CONTACT" : "4-POINT CONTACT", letter);
        catalogue.state.loads.radialLoadDisplay = letter == std::string("C") ? -5.0 : 5.0;
        catalogue.state.loads.axialLoadDisplay = -5.0;
        convertLoads(catalogue.state);
        try {
            catalogue.run();
            FAIL() << letter;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), fault::kInvalidCall);
            EXPECT_NE(std::string(error.what()).find(std::string("Enter the ") + word), std::string::npos);
        }
    }
}

TEST(Search, FaultsForARowThatCountsFewerBallsThanNone) {
    for (const char* const count : {"0", "-1", "-2"}) {
        SearchCatalogue catalogue;
        catalogue.section(std::string("K10013XP0,1,100,126,0,0,0,.5,1,") + count + "\r\n");
        EXPECT_NE(faultOf(catalogue), 0) << count;
        EXPECT_TRUE(catalogue.state.search.rows.empty());
    }
}

TEST(Search, StopsInALongPrecisionTable) {
    SearchCatalogue catalogue;
    catalogue.section(rowOf("K30013XP0", 300));
    std::string table = "head,,,,,,,,,\r\n";
    for (int i = 0; i < 5000; ++i)
        table += std::to_string(1000 + i) + ",0,0,0,0,0,0,.001,.002,0\r\n";
    catalogue.place.write("Data Tables/CLS0.csv", table);
    EXPECT_EQ(catalogue.run(500), SearchEnd::Stopped);
}

}  // namespace
}  // namespace norlaplan
