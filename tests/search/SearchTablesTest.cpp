#include <string>

#include <gtest/gtest.h>

#include "catalogue/SmallCatalogue.h"
#include "numbers/RuntimeError.h"
#include "state/LoadEntry.h"
#include "support/FaultOf.h"
#include "support/SearchCases.h"

namespace norlaplan {
namespace {

const std::string kHead = "0.6,,,,,,,,,\r\n13,,,,,,,,,\r\n";

/// A search in a small catalogue whose section table of 13 mm is the test's.
struct Searching {
    Searching() {
        for (const char* const family : {"A", "C", "X"}) {
            for (const char* const section : {"8-", "20-"})
                tables.write(section + std::string(family) + ".csv", kHead);
        }
        tables.write("SPEEDX.CSV", testing::speedBlock("P", 1) + "," + testing::speedBlock("P", 101) + "\n");
        tables.write("SPEEDA.CSV", testing::speedBlock("R", 1) + "\n");
        state.criteria = {1.0, 20.0, 0.1, 3.0, 1.0, 20.0, 0.1, 3.0};
        state.loads.radialLoadDisplay = 500.0;
        convertLoads(state);
    }
    void style(const char* caption, const char* letter) { state.style = {caption, letter}; }

    SearchEnd run() {
        testing::NeverStops watch;
        return RunBearingSearch(state, ProgramFolder(tables.path()), messages, watch);
    }
    std::vector<std::string> names() const {
        std::vector<std::string> all;
        for (const SearchHit& hit : state.search.rows)
            all.push_back(hit.name);
        return all;
    }

    testing::SmallCatalogue tables;
    ProgramState state;
    testing::RecordingMessages messages;
};

TEST(ASearch, TellsOnceOfTheFieldsThatAreNoNumbers) {
    Searching search;
    search.style("4-POINT CONTACT", "X");
    search.tables.write("13-X.csv", kHead +
                                        "K10013XP0,1,100,126,0,0,0,abc,1,60 balls\r\n"
                                        "K19013XP0,x,190,216,0,0,0,0.6,1,60\r\n");
    EXPECT_EQ(search.run(), SearchEnd::Found);
    EXPECT_EQ(search.names(), (std::vector<std::string>{"K10013XP0", "K19013XP0"}));
    EXPECT_EQ(search.state.search.rows[1].stock, "NO  ") << "read as 0, as ever";
    ASSERT_EQ(search.messages.shown.size(), 1U);
    EXPECT_EQ(search.messages.shown[0],
              (Message{"Catalog Tables",
                       "Table 13-X.CSV, row 3, column 10: \"60 balls\" is not a number and is read as 60.\n"
                       "Table 13-X.CSV, row 4, column 2: \"x\" is not a number and is read as 0.",
                       Icon::Warning}))
        << "the mass is used by no search";
}

TEST(ASearch, TellsOfASizeThatItCouldNotReadThoughTheRowIsThenOutsideOfTheEnvelope) {
    Searching search;
    search.style("4-POINT CONTACT", "X");
    search.tables.write("13-X.csv", kHead +
                                        "K10013XP0,1,100,126,0,0,0,0,1,60\r\n"
                                        "K19013XP0,1,O190,216,0,0,0,0.6,one,sixty\r\n");
    search.run();
    EXPECT_EQ(search.names(), std::vector<std::string>{"K10013XP0"});
    ASSERT_EQ(search.messages.shown.size(), 1U);
    EXPECT_EQ(search.messages.shown[0].prompt,
              "Table 13-X.CSV, row 4, column 3: \"O190\" is not a number and is read as 0.");
}

TEST(ASearch, SaysNothingOfARowThatDoesNotFit) {
    Searching search;
    search.style("4-POINT CONTACT", "X");
    search.tables.write("13-X.csv", kHead +
                                        "K10013XP0,1,100,126,0,0,0,0,1,60\r\n"
                                        "wrong,x,1,2,a,b,c,d,e,f\r\n");
    search.run();
    EXPECT_TRUE(search.messages.shown.empty());
}

TEST(ASearch, SaysNothingOfTheSpeedsOfAnotherSeparator) {
    Searching search;
    search.style("4-POINT CONTACT", "X");
    search.tables.write("13-X.csv", kHead + "K10013XP0,1,100,126,0,0,0,0,1,60\r\n");
    std::string other = testing::speedBlock("J", 1) + "," + testing::speedBlock("J", 101) + "\n";
    other.replace(other.find(",105"), 4, ",1O5");
    search.tables.write("SPEEDX.CSV", other + search.tables.read("SPEEDX.CSV"));
    EXPECT_EQ(search.run(), SearchEnd::Found);
    EXPECT_TRUE(search.messages.shown.empty());
}

TEST(ASearch, ShowsSizesInMillimetres) {
    Searching search;
    ApplyUnitSystem("METRIC", search.state.units);
    search.style("4-POINT CONTACT", "X");
    search.tables.write("13-X.csv", kHead + "K10013XP0,1,100,126,0,0,0,0,1,60\r\n");
    EXPECT_EQ(search.run(), SearchEnd::Found);
    const SearchHit& hit = search.state.search.rows.at(0);
    EXPECT_EQ(hit.boreText + " " + hit.odText + " " + hit.heightText, "100.000 126.000 13.000");
}

TEST(ASearch, ListsABearingThatNeverConvergesWithTheLifeZero) {
    Searching search;
    search.style("RADIAL CONTACT", "C");
    search.tables.write("13-C.csv", kHead + "K10013CP0,1,100,126,0,0,0,0,1,60\r\n");
    // The last digit of such a load is coarser than what the balance may miss.
    search.state.loads.radialLoadDisplay = 3e10;
    convertLoads(search.state);
    EXPECT_EQ(search.run(), SearchEnd::Found);
    EXPECT_EQ(search.state.search.rows.at(0).l10Revolutions, "0");
    ASSERT_EQ(search.messages.shown.size(), 1U);
    EXPECT_EQ(search.messages.shown[0],
              (Message{"The calculation does not converge",
                       "1 bearing was given up and stand in the list with the life 0."}));
}

TEST(ASearch, TellsOfAClearanceThatIsNoNumber) {
    Searching search;
    search.style("RADIAL CONTACT", "C");
    search.tables.write("13-C.csv", kHead +
                                        "K10013CP0,1,100,126,0,0,0,0,1,60\r\n"
                                        "K19013CP0,1,190,216,0,0,0,0,1,60\r\n");
    search.tables.write("CLS0.csv",
                        ",,,,,,,,,\n"
                        "100,x,x,x,x,x,x,.0O1,.002,x\n"
                        "190,x,x,x,x,x,x,.001,.002,x\n");
    search.run();
    EXPECT_EQ(search.names().size(), 2U);
    ASSERT_EQ(search.messages.shown.size(), 1U);
    EXPECT_EQ(search.messages.shown[0].prompt,
              "Table cls0.csv, row 2, column 8: \".0O1\" is not a number and is read as 0.")
        << "tolerances are used by no search";
}

TEST(ASearch, EndsInAnOverflowForAClearanceRowWithANumberBeyond32Bits) {
    for (int wrong = 0; wrong < 10; ++wrong) {
        Searching search;
        search.style("RADIAL CONTACT", "C");
        search.tables.write("13-C.csv", kHead + "K10013CP0,1,100,126,0,0,0,0,1,60\r\n");
        std::string row;
        for (int column = 0; column < 10; ++column)
            row += (column > 0 ? "," : "") + std::string(column == wrong ? "1E39" : "0");
        search.tables.write("CLS0.csv", ",,,,,,,,,\n" + row + "\n");
        EXPECT_EQ(testing::faultOf([&] { search.run(); }), fault::kOverflow) << wrong;
    }
}

TEST(ASearch, RoundsTheHeightOfATableTo32BitsBeforeItIsInches) {
    const auto inches = static_cast<float>(static_cast<double>(12.4F) / 25.4);
    ASSERT_NE(inches, static_cast<float>(12.4 / 25.4));
    Searching search;
    search.style("4-POINT CONTACT", "X");
    search.tables.write("13-X.csv", "0.6,,,,,,,,,\r\n12.4,,,,,,,,,\r\nK10013XP0,1,100,126,0,0,0,0,1,60\r\n");
    search.state.criteria.minHeight = search.state.criteria.maxHeight = Single(static_cast<double>(inches));
    EXPECT_EQ(search.run(), SearchEnd::Found);
}

TEST(ASearch, ExplainsAnErrorThatAWrongFieldLeadsTo) {
    Searching search;
    search.style("4-POINT CONTACT", "X");
    search.tables.write("13-X.csv", kHead + "K10013XP0,1,100,126,0,0,0,0,first,60\r\n");
    EXPECT_THROW(search.run(), RuntimeError);
    ASSERT_EQ(search.messages.shown.size(), 1U);
    EXPECT_NE(search.messages.shown[0].prompt.find("row 3, column 9: \"first\""), std::string::npos);
}

TEST(ASearch, LeavesOutANameOfAnotherStyleAndSaysSo) {
    for (const auto& [caption, letter, good, wrong] :
         {std::tuple{"RADIAL CONTACT", "C", "K10013CP0", "K19013XP0"},
          std::tuple{"4-POINT CONTACT", "X", "K10013XP0", "K19013CP0"},
          std::tuple{"BACK-TO-BACK SET", "A", "K10013AR0", "K19013XR0"},
          std::tuple{"FACE-TO-FACE SET", "A", "K10013UR0", "K19013"}}) {
        Searching search;
        search.style(caption, letter);
        search.tables.write(
            "13-" + std::string(letter) + ".csv",
            kHead + good + ",1,100,126,0,0,0,0,1,60\r\n" + wrong + ",1,190,216,0,0,0,0,1,60\r\n");
        EXPECT_EQ(search.run(), SearchEnd::Found);
        ASSERT_EQ(search.names().size(), 1U) << caption;
        EXPECT_EQ(search.names()[0].substr(0, 6), "K10013");
        ASSERT_EQ(search.messages.shown.size(), 1U) << caption;
        EXPECT_EQ(search.messages.shown[0].prompt, "Table 13-" + std::string(letter) +
                                                       ".CSV, row 4, column 1: \"" + wrong +
                                                       "\" names no bearing of this table and is left out.");
    }
}

}  // namespace
}  // namespace norlaplan
