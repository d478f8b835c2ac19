#include <cmath>
#include <filesystem>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "loaddist/radlodestar2.h"
#include "numbers/FormatNumber.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "search/HitLine.h"
#include "search/SearchEngine.h"
#include "state/LoadEntry.h"
#include "support/Folders.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::RecordingMessages;
using testing::TemporaryFolder;

/// Stops the search from a given row on; never when none is given.
class Watch : public SearchWatch {
  public:
    explicit Watch(int stopAt = -1) : stopAt_(stopAt) {}
    bool goOn(double done) override {
        EXPECT_GE(done, before_);
        EXPECT_LE(done, 1.0);
        before_ = done;
        return ++rows < stopAt_ || stopAt_ < 0;
    }
    int rows = 0;

  private:
    int stopAt_;
    double before_ = 0.0;
};

std::string rowOf(const std::string& name, int bore, int stock = 1, int speedIndex = 1) {
    return name + "," + std::to_string(stock) + "," + std::to_string(bore) + "," + std::to_string(bore + 26) +
           ",0,0,0,0.5," + std::to_string(speedIndex) + ",60\r\n";
}

std::string numbers(double first) {
    std::string text;
    for (int i = 0; i < 24; ++i)
        text += "," + plainText(first + i);
    return text;
}

/// A small catalogue of the middle section, with empty tables beside it, and the state of a search in it.
struct Catalogue {
    Catalogue() {
        section("");
        const std::string key = ",,,,,,,,,,,,,,,,,,,,,,,";
        place.write("Data Tables/SPEEDC.CSV", "P" + key + numbers(9.0) + "\r\n");
        place.write("Data Tables/SPEEDA.CSV", "R" + key + numbers(13.0) + "\r\n");
        place.write("Data Tables/SPEEDX.CSV", "Q" + key + numbers(1.0) + ",Q" + key + numbers(1.0) + "\r\n" +
                                                  "P" + key + numbers(20.0) + ",P" + key + numbers(8.0) +
                                                  "\r\n");
        place.write("Data Tables/CLS0.csv",
                    "head,,,,,,,,,\r\n100,0,0,0,0,0,0,.0006,.0014,0\r\n200,0,0,0,0,0,0,.001,.002,0\r\n");
        state.criteria = {1.0, 20.0, 0.1, 3.0, 1.0, 20.0, 0.1, 3.0};
        state.loads.radialLoadDisplay = 500.0;
        convertLoads(state);
        style("4-POINT CONTACT", "X");
    }

    void section(const std::string& rows) {
        for (const char* const family : {"C", "X", "A"}) {
            const std::string head = ".6,,,,,,,,,\r\n13,,,,,,,,,\r\n";
            place.write(std::string("Data Tables/13-") + family + ".csv", head + rows);
            place.write(std::string("Data Tables/8-") + family + ".csv", head);
            place.write(std::string("Data Tables/20-") + family + ".csv", head);
        }
    }

    void style(const std::string& caption, const std::string& letter) { state.style = {caption, letter}; }

    SearchEnd run(int stopAt = -1) {
        Watch watch(stopAt);
        return RunBearingSearch(state, ProgramFolder(place.path()), messages, watch);
    }

    TemporaryFolder place;
    ProgramState state;
    RecordingMessages messages;
};

TEST(Search, ListsEveryRowThatFitsWithItsTexts) {
    Catalogue catalogue;
    catalogue.section(rowOf("K10013XP0", 100, 1) + rowOf("K20013XP0", 200, 2));
    catalogue.state.loads.speed = 100.0;
    EXPECT_EQ(catalogue.run(), SearchEnd::Found);
    ASSERT_EQ(catalogue.state.search.rows.size(), 2U);
    EXPECT_EQ(catalogue.state.search.hitCount, 3);
    const SearchHit& hit = catalogue.state.search.rows[0];
    EXPECT_EQ(hit.name, "K10013XP0");
    EXPECT_EQ(hit.boreText, "3.9370") << "100 / 25.4";
    EXPECT_EQ(hit.odText, "4.9606") << "126 / 25.4";
    EXPECT_EQ(hit.heightText, "0.5118") << "13 / 25.4";
    EXPECT_EQ(hit.stock, "YES ");
    EXPECT_EQ(catalogue.state.search.rows[1].stock, "CALL");
}

TEST(Search, GivesTheLifeOfASolveOfItsOwn) {
    Catalogue catalogue;
    catalogue.section(rowOf("K10013XP0", 100));
    catalogue.state.loads.speed = 100.0;
    catalogue.run();
    ProgramState alone;
    alone.bearing.pitchDiameter = Single(Single(Single(126.0 / 25.4) + Single(100.0 / 25.4)) / 2.0);
    const Single clearance = (static_cast<double>(0.0006F) + static_cast<double>(0.0014F)) / 2.0;
    const SolveArguments arguments{
        "K10013XP0", alone.bearing.pitchDiameter, 0.25, 60, 0.1325, 0.0, clearance, 30.0, 500.0, 0.0, 0.0};
    const auto solved = SolveCoupledRows(alone, arguments, catalogue.messages);
    ASSERT_TRUE(solved.has_value());
    const double life = solved->lifeRevolutions;
    const SearchHit& hit = catalogue.state.search.rows.at(0);
    EXPECT_EQ(leadingNumber(hit.l10Revolutions), leadingNumber(plainText(Single(std::floor(life)))));
    EXPECT_EQ(hit.l10Hours, plainText(Single(std::floor(life / 6000.0))));
}

TEST(Search, KeepsOutWhatIsOutsideOfTheEnvelope) {
    Catalogue catalogue;
    catalogue.section(rowOf("K10013XP0", 100) + rowOf("K15013XP0", 150) + rowOf("K20013XP0", 200));
    catalogue.state.criteria.minBore = 5.0;
    catalogue.state.criteria.maxOd = 8.0;
    catalogue.run();
    ASSERT_EQ(catalogue.state.search.rows.size(), 1U);
    EXPECT_EQ(catalogue.state.search.rows[0].name, "K15013XP0");
}

TEST(Search, TakesTheSetTwiceAsHighAndNamesIt) {
    Catalogue catalogue;
    catalogue.section(rowOf("K10013AR0", 100));
    catalogue.style("BACK-TO-BACK SET", "A");
    catalogue.state.criteria.maxHeight = 1.0;
    EXPECT_EQ(catalogue.run(), SearchEnd::NoneFound) << "two rows of 0.5118 inch are higher than one inch";
    catalogue.state.criteria.maxHeight = 1.1;
    EXPECT_EQ(catalogue.run(), SearchEnd::Found);
    EXPECT_EQ(catalogue.state.search.rows[0].name, "K10013BR0A");
    EXPECT_EQ(catalogue.state.search.rows[0].heightText, "1.0236");
}

TEST(Search, FillsWhatIsLeftWithSpacersUpToTheMaximumHeight) {
    Catalogue catalogue;
    catalogue.section(rowOf("K10013AR0", 100));
    catalogue.style("FACE-TO-FACE SET WITH SPACERS", "A");
    catalogue.state.criteria.maxHeight = 1.2;
    catalogue.state.criteria.maxHeightDisplay = 1.2;
    EXPECT_EQ(catalogue.run(), SearchEnd::Found);
    // 1.2 - 2 x 13 / 25.4 = 0.17638
    EXPECT_EQ(catalogue.state.search.rows[0].name, "K10013FR0A W/ 0.1764 spacers");
    EXPECT_EQ(catalogue.state.search.rows[0].heightText, "1.2000");
}

TEST(Search, TakesTheThrustNumbersForAPureThrustLoadAlone) {
    Catalogue catalogue;
    catalogue.section(rowOf("K10013XP0", 100));
    catalogue.state.loads = {};
    catalogue.state.loads.axialLoadDisplay = 100.0;
    convertLoads(catalogue.state);
    catalogue.run();
    // A light load, so the factor is 1: 20 x 1000 / 3.93700790405, the 32-bit bore, is 5079.99996.
    EXPECT_EQ(catalogue.state.search.rows.at(0).speedLimit, "5079");
    catalogue.state.loads.momentLoadDisplay = 1.0;
    convertLoads(catalogue.state);
    catalogue.run();
    EXPECT_EQ(catalogue.state.search.rows.at(0).speedLimit, "2031")
        << "8 x 1000 / 3.93700790405 is 2031.99998";
}

TEST(Search, WithoutAFitSaysSoAndAsksForSizesAgain) {
    Catalogue catalogue;
    catalogue.state.sizesChosen = true;
    EXPECT_EQ(catalogue.run(), SearchEnd::NoneFound);
    ASSERT_EQ(catalogue.messages.shown.size(), 1U);
    EXPECT_EQ(catalogue.messages.shown[0].title, "SEARCH PARAMETERS OUTSIDE OF SIZE RANGE");
    EXPECT_EQ(catalogue.messages.shown[0].prompt,
              "SORRY, NO BEARINGS WERE FOUND WHICH MET THE SIZE REQUIREMENTS");
    EXPECT_TRUE(catalogue.state.search.noResultFlag);
    EXPECT_FALSE(catalogue.state.sizesChosen);
}

int faultOf(Catalogue& catalogue) {
    try {
        catalogue.run();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(Search, HoldsThreeHundredRowsAndFaultsAtTheNext) {
    Catalogue catalogue;
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
        Catalogue catalogue;
        catalogue.section(rowOf("K10013XP0", 100, 1, index));
        EXPECT_EQ(faultOf(catalogue), fault::kSubscript) << index;
    }
}

TEST(Search, FaultsForASpeedTableWithoutItsKey) {
    for (const std::string& table : {std::string(), "J" + std::string(23, ',') + numbers(9.0) + "\r\n"}) {
        Catalogue catalogue;
        catalogue.section(rowOf("K10013CP0", 100));
        catalogue.style("RADIAL CONTACT", "C");
        catalogue.place.write("Data Tables/SPEEDC.CSV", table);
        EXPECT_EQ(faultOf(catalogue), fault::kPastEnd);
    }
}

TEST(Search, StoppedKeepsNoRows) {
    Catalogue catalogue;
    catalogue.section(rowOf("K10013XP0", 100) + rowOf("K15013XP0", 150) + rowOf("K20013XP0", 200));
    EXPECT_EQ(catalogue.run(3), SearchEnd::Stopped);
    EXPECT_TRUE(catalogue.state.search.rows.empty());
    EXPECT_TRUE(catalogue.messages.shown.empty());
}

/// The life of a bearing of the catalogue above, solved by itself.
std::string lifeAlone(const char* name, double boreMm, Single clearance) {
    ProgramState alone;
    const Single bore = boreMm / 25.4;
    alone.bearing.pitchDiameter = Single(Single((boreMm + 26.0) / 25.4) + bore) / 2.0;
    RecordingMessages messages;
    const SolveArguments arguments{
        name, alone.bearing.pitchDiameter, 0.25, 60, 0.1325, 0.0, clearance, 30.0, 500.0, 0.0, 0.0};
    return plainText(Single(std::floor(SolveCoupledRows(alone, arguments, messages)->lifeRevolutions)));
}

TEST(Search, KeepsThePreviousRowsClearanceWhereThePrecisionTableHasNoLine) {
    Catalogue catalogue;
    catalogue.section(rowOf("K10013XP0", 100) + rowOf("K15013XP0", 150));
    catalogue.run();
    const Single ofTheFirst = (static_cast<double>(0.0006F) + static_cast<double>(0.0014F)) / 2.0;
    EXPECT_EQ(catalogue.state.search.rows.at(1).l10Revolutions, lifeAlone("K15013XP0", 150.0, ofTheFirst));
    EXPECT_NE(catalogue.state.search.rows.at(1).l10Revolutions, lifeAlone("K15013XP0", 150.0, 0.0));
}

TEST(Search, LeavesTheBearingInHandAndItsLifeAlone) {
    for (const int stopAt : {-1, 1}) {
        Catalogue catalogue;
        catalogue.section(rowOf("K10013XP0", 100) + rowOf("K15013XP0", 150));
        BearingSpec& inHand = catalogue.state.bearing;
        inHand.partNumber = "K19013XP0";
        inHand.bore = 7.5;
        inHand.ballCount = 81;
        inHand.meanClearance = 0.001;
        inHand.styleLetter = "X";
        catalogue.state.life.l10Revolutions = 5.0;
        catalogue.state.solver.BallCount = 81;
        catalogue.run(stopAt);
        EXPECT_EQ(inHand.bore, 7.5);
        EXPECT_EQ(inHand.ballCount, 81);
        EXPECT_EQ(inHand.meanClearance, Single(0.001));
        EXPECT_EQ(inHand.pitchDiameter, 0.0);
        EXPECT_EQ(catalogue.state.life.l10Revolutions, 5.0);
        EXPECT_EQ(catalogue.state.solver.BallCount, 81);
        EXPECT_EQ(catalogue.state.loads.radialLoadDisplay, 500.0);
    }
}

TEST(Search, IsTheSameWhateverBearingIsInHand) {
    Catalogue first;
    first.section(rowOf("K15013XP0", 150));
    first.run();
    Catalogue second;
    second.section(rowOf("K15013XP0", 150));
    second.state.bearing.meanClearance = 0.01;
    second.state.bearing.momentArm = 3.0;
    second.run();
    EXPECT_EQ(first.state.search.rows, second.state.search.rows);
}

TEST(Search, KeepsStaleHoursWithoutASpeed) {
    Catalogue catalogue;
    catalogue.section(rowOf("K10013XP0", 100));
    catalogue.state.loads.speed = 100.0;
    catalogue.run();
    const std::string hours = catalogue.state.search.rows.at(0).l10Hours;
    EXPECT_NE(hours, "0");
    catalogue.state.loads.speed = 0.0;
    catalogue.run();
    EXPECT_EQ(catalogue.state.search.rows.at(0).l10Hours, hours);
}

TEST(HitLine, ShowsHoursAndMarkOnlyWithASpeed) {
    ProgramState state;
    const SearchHit hit{"K10013XP0", "900", "123456789", "2345", "", "", "", "CALL"};
    EXPECT_EQ(FormatHitLine(state, hit, "   Over Speed!"), "K10013XP0    1.23E+08 revs.    STOCK - CALL");
    state.loads.speed = 1000.0;
    EXPECT_EQ(FormatHitLine(state, hit, overSpeedMark(state, hit)),
              "K10013XP0    1.23E+08 revs.    2.35E+03 hrs.    STOCK - CALL   Over Speed!");
    state.loads.speed = 900.0;
    EXPECT_EQ(overSpeedMark(state, hit), "") << "a speed at the limit is not over it";
}

/// A catalogue with blanks, quotes, empty fields and rows over several lines gives what the tidy one gives.
TEST(Search, ReadsACatalogueWithOddFields) {
    Catalogue tidy;
    tidy.section(rowOf("K10013XP0", 100, 0) + rowOf("K20013XP0", 200, 2));
    Catalogue odd;
    odd.section(
        "  \"K10013XP0\" , , 100,\"126\"mm,0,0,0,0.5,1,60\r\n"
        "\"K20013XP0\",2,200\r\n226,0,,\r\n0.5, 1 , 60 balls");
    odd.place.write("Data Tables/cls0.csv", tidy.place.read("Data Tables/CLS0.csv"));
    for (Catalogue* const catalogue : {&tidy, &odd}) {
        catalogue->state.loads.speed = 100.0;
        ASSERT_EQ(catalogue->run(), SearchEnd::Found);
        ASSERT_EQ(catalogue->state.search.rows.size(), 2U);
    }
    for (std::size_t i = 0; i < 2; ++i)
        EXPECT_EQ(odd.state.search.rows[i], tidy.state.search.rows[i]) << i;
    EXPECT_EQ(odd.state.search.rows[0].stock, "NO  ") << "a blank stock field is 0";
}

TEST(Search, TakesABoreThatThePrecisionTableLacksWithThePreviousRowsClearance) {
    const std::string rows = rowOf("K10013XP0", 100) + rowOf("K15013XP0", 150) + rowOf("K20013XP0", 200);
    Catalogue lacking;
    lacking.section(rows);
    Catalogue whole;
    whole.section(rows);
    whole.place.write("Data Tables/CLS0.csv",
                      "head,,,,,,,,,\r\n200,0,0,0,0,0,0,.001,.002,0\r\n150,0,0,0,0,0,0,.0006,.0014,0\r\n"
                      "100,0,0,0,0,0,0,.0006,.0014,0\r\n");
    EXPECT_EQ(lacking.run(), SearchEnd::Found);
    EXPECT_EQ(whole.run(), SearchEnd::Found);
    EXPECT_EQ(lacking.state.search.rows, whole.state.search.rows);
}

/// Radial loads under which a row of the sample catalogue never settles.
struct Unsettled : Catalogue {
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
    Catalogue catalogue;
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
        Catalogue catalogue;
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
        Catalogue catalogue;
        catalogue.section(std::string("K10013XP0,1,100,126,0,0,0,.5,1,") + count + "\r\n");
        EXPECT_NE(faultOf(catalogue), 0) << count;
        EXPECT_TRUE(catalogue.state.search.rows.empty());
    }
}

TEST(Search, StopsInALongPrecisionTable) {
    Catalogue catalogue;
    catalogue.section(rowOf("K30013XP0", 300));
    std::string table = "head,,,,,,,,,\r\n";
    for (int i = 0; i < 5000; ++i)
        table += std::to_string(1000 + i) + ",0,0,0,0,0,0,.001,.002,0\r\n";
    catalogue.place.write("Data Tables/CLS0.csv", table);
    EXPECT_EQ(catalogue.run(500), SearchEnd::Stopped);
}

}  // namespace
}  // namespace norlaplan
