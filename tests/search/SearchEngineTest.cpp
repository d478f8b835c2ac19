#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "loaddist/radlodestar2.h"
#include "numbers/FormatNumber.h"
#include "search/HitLine.h"
#include "search/SearchCatalogue.h"

namespace norlaplan {
namespace {

using testing::RecordingMessages;
using testing::rowOf;
using testing::SearchCatalogue;

TEST(Search, ListsEveryRowThatFitsWithItsTexts) {
    SearchCatalogue catalogue;
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
    SearchCatalogue catalogue;
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
    SearchCatalogue catalogue;
    catalogue.section(rowOf("K10013XP0", 100) + rowOf("K15013XP0", 150) + rowOf("K20013XP0", 200));
    catalogue.state.criteria.minBore = 5.0;
    catalogue.state.criteria.maxOd = 8.0;
    catalogue.run();
    ASSERT_EQ(catalogue.state.search.rows.size(), 1U);
    EXPECT_EQ(catalogue.state.search.rows[0].name, "K15013XP0");
}

TEST(Search, TakesTheSetTwiceAsHighAndNamesIt) {
    SearchCatalogue catalogue;
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
    SearchCatalogue catalogue;
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
    SearchCatalogue catalogue;
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
    SearchCatalogue catalogue;
    catalogue.state.sizesChosen = true;
    EXPECT_EQ(catalogue.run(), SearchEnd::NoneFound);
    ASSERT_EQ(catalogue.messages.shown.size(), 1U);
    EXPECT_EQ(catalogue.messages.shown[0].title, "SEARCH PARAMETERS OUTSIDE OF SIZE RANGE");
    EXPECT_EQ(catalogue.messages.shown[0].prompt,
              "SORRY, NO BEARINGS WERE FOUND WHICH MET THE SIZE REQUIREMENTS");
    EXPECT_TRUE(catalogue.state.search.noResultFlag);
    EXPECT_FALSE(catalogue.state.sizesChosen);
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
    SearchCatalogue catalogue;
    catalogue.section(rowOf("K10013XP0", 100) + rowOf("K15013XP0", 150));
    catalogue.run();
    const Single ofTheFirst = (static_cast<double>(0.0006F) + static_cast<double>(0.0014F)) / 2.0;
    EXPECT_EQ(catalogue.state.search.rows.at(1).l10Revolutions, lifeAlone("K15013XP0", 150.0, ofTheFirst));
    EXPECT_NE(catalogue.state.search.rows.at(1).l10Revolutions, lifeAlone("K15013XP0", 150.0, 0.0));
}

TEST(Search, LeavesTheBearingInHandAndItsLifeAlone) {
    for (const int stopAt : {-1, 1}) {
        SearchCatalogue catalogue;
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
    SearchCatalogue first;
    first.section(rowOf("K15013XP0", 150));
    first.run();
    SearchCatalogue second;
    second.section(rowOf("K15013XP0", 150));
    second.state.bearing.meanClearance = 0.01;
    second.state.bearing.momentArm = 3.0;
    second.run();
    EXPECT_EQ(first.state.search.rows, second.state.search.rows);
}

TEST(Search, KeepsStaleHoursWithoutASpeed) {
    SearchCatalogue catalogue;
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
    SearchCatalogue tidy;
    tidy.section(rowOf("K10013XP0", 100, 0) + rowOf("K20013XP0", 200, 2));
    SearchCatalogue odd;
    odd.section(
        "  \"K10013XP0\" , , 100,\"126\"mm,0,0,0,0.5,1,60\r\n"
        "\"K20013XP0\",2,200\r\n226,0,,\r\n0.5, 1 , 60 balls");
    odd.place.write("Data Tables/cls0.csv", tidy.place.read("Data Tables/CLS0.csv"));
    for (SearchCatalogue* const catalogue : {&tidy, &odd}) {
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
    SearchCatalogue lacking;
    lacking.section(rows);
    SearchCatalogue whole;
    whole.section(rows);
    whole.place.write("Data Tables/CLS0.csv",
                      "head,,,,,,,,,\r\n200,0,0,0,0,0,0,.001,.002,0\r\n150,0,0,0,0,0,0,.0006,.0014,0\r\n"
                      "100,0,0,0,0,0,0,.0006,.0014,0\r\n");
    EXPECT_EQ(lacking.run(), SearchEnd::Found);
    EXPECT_EQ(whole.run(), SearchEnd::Found);
    EXPECT_EQ(lacking.state.search.rows, whole.state.search.rows);
}

}  // namespace
}  // namespace norlaplan
