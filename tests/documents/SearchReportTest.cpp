#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "documents/ReportSamples.h"
#include "documents/SearchReport.h"
#include "support/OnPaper.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::FixedClock;
using testing::RecordingCanvas;

/// The results of a search with so many rows named ROW1, ROW2 ...; every second one is over its limit.
ProgramState resultsOf(std::size_t rows, const std::string& caption = "4-POINT CONTACT",
                       const std::string& letter = "X") {
    ProgramState state = testing::sampleSearch(letter, caption);
    for (std::size_t i = 1; i <= rows; ++i) {
        state.search.rows.push_back({"ROW" + std::to_string(i), i % 2 == 0 ? "99" : "100", "1234567", "2058",
                                     "5.0000", "6.0000", "0.5000", "YES "});
    }
    state.search.hitCount = static_cast<int>(rows) + 1;
    return state;
}

std::string rtfOf(const ProgramState& state) {
    FixedClock clock;
    return searchRtf(state, clock);
}

std::size_t countOf(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

RecordingCanvas printed(const ProgramState& state) {
    RecordingCanvas canvas;
    FixedClock clock;
    printSearch(state, clock, canvas);
    return canvas;
}

TEST(SearchRtf, HoldsTheStatedLinesInTheirOrder) {
    const std::string rtf = rtfOf(resultsOf(2));
    std::size_t at = 0;
    for (const char* const line :
         {"{\\f1\\par\\par}",
          "\\pard",
          "\\par\\par\\par",
          "{\\fs28\\cf1\\b RESULTS OF BEARING SEARCH FOR : ",
          "\\ul 4-POINT CONTACT",
          "\\plain",
          "{\\fs24\\cf1 Minimum Bore = \\tab 5.0000",
          "\\tab\\tab Radial Load =",
          "\\tab\\tab 1,234",
          "{\\par\\fs24\\cf1 Maximum O.D. =\\tab 9.0000",
          "\\tab\\tab Axial Load =",
          "{\\par\\fs24\\cf1 Minimum Height =\\tab 0.2000",
          "\\tab\\tab\\tab Moment Load =",
          "\\tab 10",
          "{\\par\\fs24\\cf1 Maximum Height =\\tab 1.2000",
          "\\tab\\tab\\tab\\fs24\\ Speed = \\tab\\tab 100",
          " rpm}",
          "\\par\\par",
          "{\\fs24\\b\\cf2 BEARING\\tab\\tab\\ L\\sub 10 \\nosupersub  LIFE\\tab\\tab\\",
          "{\\cf1 ROW1",
          "\\tab\\tab\\ 1.235E+06",
          "\\tab\\tab\\tab\\ 2.058E+03",
          "}",
          "{\\cf1 ROW2",
          "\\tab\\tab\\tab\\cf6 Over Speed!}",
          "{\\footer \\pard\\plain \\qc\\widctlpar\\tqc\\tx4320\\tqr\\tx8640\\adjustright\\fs16\\cgrid",
          "NORLAPLAN-MM version 1.00  Ann        Saved  3/14/26 9:26 AM",
          "}{\\par }}}}"}) {
        const std::size_t found = rtf.find(line, at);
        ASSERT_NE(found, std::string::npos) << line;
        at = found;
    }
    EXPECT_EQ(countOf(rtf, "Over Speed!"), 1U) << "a limit at the speed is not below it";
}

TEST(SearchRtf, StartsANewPageAfterEachTwentyNineRows) {
    const std::string page = "\\par }\\pard \\qr\\widctlpar\\adjustright {\\cgrid0  \\page }";
    EXPECT_EQ(countOf(rtfOf(resultsOf(29)), page), 0U);
    EXPECT_EQ(countOf(rtfOf(resultsOf(30)), page), 1U);
    EXPECT_EQ(countOf(rtfOf(resultsOf(300)), page), 10U);
    const std::string rtf = rtfOf(resultsOf(30));
    EXPECT_GT(rtf.find("ROW30"), rtf.find(page));
    EXPECT_LT(rtf.find("ROW29"), rtf.find(page));
}

TEST(SearchReports, SayUnderTheHeadOfTheListThatTheHoursDoNotApplyWithNoSpeed) {
    constexpr const char* kNote = "No speed was entered: the hours do not apply.";
    ProgramState state = resultsOf(70);
    EXPECT_EQ(countOf(rtfOf(state), kNote), 0U);
    EXPECT_FALSE(printed(state).hasText(kNote));
    state.loads.speed = 0.0;
    const std::string rtf = rtfOf(state);
    EXPECT_EQ(countOf(rtf, kNote), 1U);
    EXPECT_GT(rtf.find(kNote), rtf.find("LIFE (hours)"));
    EXPECT_LT(rtf.find(kNote), rtf.find("ROW1"));
    // On paper the head stands on every page: 26 rows, 40 rows, 4 rows.
    const RecordingCanvas canvas = printed(state);
    double note = 0.0;
    int notes = 0;
    for (const auto& text : canvas.texts) {
        if (text.text == "Basic Bearing") note = text.box.bottom;
        if (text.text == kNote) {
            ++notes;
            EXPECT_LT(text.box.top, note) << "under the head";
            note = text.box.bottom;
        }
        if (text.text.rfind("ROW", 0) == 0) {
            EXPECT_LT(text.box.top, note) << text.text;
            EXPECT_GT(text.box.bottom, 0.8) << text.text;
        }
    }
    EXPECT_EQ(notes, 3);
}

TEST(SearchRtf, CutsTheNameOfASetBeforeItsSuffix) {
    for (const auto& [caption, suffix] :
         {std::pair{"BACK-TO-BACK SET WITH SPACERS", "BR0A W/ 0.1000 spacers"},
          std::pair{"FACE-TO-FACE SET", "FR0A"}}) {
        ProgramState state = resultsOf(1, caption, "A");
        state.search.rows[0].name = std::string("K19013") + suffix;
        const std::string rtf = rtfOf(state);
        EXPECT_NE(rtf.find("{\\cf1 K19013 \r\n"), std::string::npos) << caption;
        EXPECT_EQ(rtf.find(suffix), std::string::npos);
    }
}

TEST(SearchRtf, ClosesEveryGroupForAnyNumberOfPages) {
    for (const std::size_t rows : {1U, 30U, 300U}) {
        const std::string rtf = rtfOf(resultsOf(rows));
        EXPECT_EQ(countOf(rtf, "{"), countOf(rtf, "}")) << rows;
    }
}

bool footerHolds(const RecordingCanvas& canvas, const std::string& part) {
    for (const auto& text : canvas.texts) {
        if (text.box.top < 1.0 && text.text.find(part) != std::string::npos) return true;
    }
    return false;
}

TEST(SearchPrint, HoldsTheStatedTexts) {
    const RecordingCanvas canvas = printed(resultsOf(2));
    for (const char* const text : {"RESULTS OF BEARING SEARCH FOR : ",
                                   "4-POINT CONTACT",
                                   "Minimum Bore =  ",
                                   "Radial Load = ",
                                   "Maximum O.D. =  ",
                                   "Axial Load =  ",
                                   "Minimum Height =",
                                   "Moment Load = ",
                                   "Maximum Height =",
                                   "Speed =       ",
                                   " rpm",
                                   "5.0000",
                                   "1,234",
                                   "BEARING",
                                   "NUMBER",
                                   "Basic Bearing",
                                   "L",
                                   "10",
                                   " LIFE ",
                                   " (revolutions) ",
                                   " (hours)",
                                   "Stock Availability",
                                   "ROW1",
                                   "1.235E+06",
                                   "2.058E+03",
                                   "YES ",
                                   "Over Speed!"}) {
        EXPECT_TRUE(canvas.hasText(text)) << text;
    }
    for (const char* const text : {"NORLAPLAN-MM version 1.00", "Printed: 3/14/26 9:26 AM", "Page 1 of 1"}) {
        EXPECT_TRUE(footerHolds(canvas, text)) << text;
    }
}

TEST(SearchPrint, NamesTheSortOfASortedListOnly) {
    ProgramState state = resultsOf(2);
    EXPECT_FALSE(printed(state).hasText("BEARINGS SORTED IN ASCENDING ORDER BY BORE SIZE"));
    state.search.sorted = true;
    EXPECT_TRUE(printed(state).hasText("BEARINGS SORTED IN ASCENDING ORDER BY BORE SIZE"));
    state.search.sortDirection = "DOWN";
    const std::pair<int, const char*> columns[] = {
        {1, "BEARING NUMBER"}, {2, "LIMIT SPEED"}, {3, "L10 LIFE"},    {4, "L10 LIFE IN HOURS"},
        {6, "O.D. SIZE"},      {7, "HEIGHT"},      {8, "AVAILABILITY"}};
    for (const auto& [column, name] : columns) {
        state.search.sortColumn = column;
        EXPECT_TRUE(printed(state).hasText(std::string("BEARINGS SORTED IN DESCENDING ORDER BY ") + name));
    }
}

TEST(SearchPrint, PutsEveryRowAboveTheFooterOfItsPage) {
    const RecordingCanvas canvas = printed(resultsOf(300));
    EXPECT_EQ(canvas.pages, 8);
    EXPECT_TRUE(footerHolds(canvas, "Page 8 of 8"));
    std::size_t rows = 0;
    for (const auto& text : canvas.texts) {
        if (text.text.rfind("ROW", 0) != 0) continue;
        ++rows;
        EXPECT_GT(text.box.bottom, 0.8) << text.text;
    }
    EXPECT_EQ(rows, 300U);
}

TEST(SearchPrint, TakesTwentySixRowsOnTheFirstPageAndFortyOnEachFurtherOne) {
    EXPECT_EQ(searchPages(1), 1);
    EXPECT_EQ(searchPages(26), 1);
    EXPECT_EQ(searchPages(27), 2);
    EXPECT_EQ(searchPages(66), 2);
    EXPECT_EQ(searchPages(67), 3);
    EXPECT_EQ(searchPages(300), 8);
}

TEST(SearchPrint, StandsOnItsPaper) {
    for (const std::size_t rows : {std::size_t{0}, std::size_t{1}, std::size_t{60}})
        EXPECT_EQ(testing::offPaper(printed(resultsOf(rows)), papers::kLetter), "") << rows;
}

/// Rows K0 to K79 of face-to-face sets with spacers, of which every one so many is out of balance.
ProgramState setsWithChecks(std::size_t rows, std::size_t every) {
    ProgramState state = resultsOf(rows, "FACE-TO-FACE SET WITH SPACERS", "A");
    for (std::size_t i = 0; i < rows; ++i) {
        state.search.rows[i].name = "K" + std::to_string(i) + "FR0A W/ 0.1764 spacers";
        state.search.rows[i].checks.unbalanced = i % every == 0;
    }
    return state;
}

TEST(CheckLines, NameTheBearingsOfEachKind) {
    ProgramState state = setsWithChecks(5, 2);
    state.search.rows[2].checks.shorterRowLife = 28572300.0;
    state.search.rows[3].checks.shorterRowLife = 5.0;
    EXPECT_EQ(checkLines(state.search.rows, nameWithoutSpacers),
              (std::vector<std::string>{
                  "The ball loads do not balance the applied loads. Bearings: K0FR0A, K2FR0A, K4FR0A",
                  "Row 2 has the shorter life. Bearings: K2FR0A, K3FR0A"}));
    EXPECT_TRUE(checkLines(resultsOf(3).search.rows, nameWithoutSpacers).empty());
}

TEST(SearchRtf, NamesUnderTheListTheRowsWhoseLifeIsNotToBeTrusted) {
    const std::string rtf = rtfOf(setsWithChecks(3, 2));
    const std::size_t line = rtf.find("The ball loads do not balance the applied loads. Bearings: K0, K2}");
    ASSERT_NE(line, std::string::npos) << "by the names of the list's column";
    EXPECT_GT(line, rtf.find("{\\cf1 K2 "));
    EXPECT_LT(line, rtf.find("{\\footer"));
    EXPECT_EQ(countOf(rtf, "{"), countOf(rtf, "}"));
    EXPECT_EQ(countOf(rtfOf(resultsOf(3)), "Bearings:"), 0U);
}

TEST(SearchPrint, NamesUnderTheListTheRowsWhoseLifeIsNotToBeTrusted) {
    for (const std::size_t rows : {2U, 26U, 27U, 66U, 300U}) {
        const RecordingCanvas canvas = printed(setsWithChecks(rows, 1));
        std::string told;
        bool begun = false;
        for (const auto& text : canvas.texts) {
            if (text.text.starts_with("The ball loads do not balance")) begun = true;
            const bool ofThePage = text.text.find("Page ") != std::string::npos ||
                                   text.text.starts_with("NORLAPLAN") || text.text == "VARDEN";
            if (ofThePage || !begun) continue;
            told += (told.empty() ? "" : " ") + text.text;
            EXPECT_GT(text.box.bottom, 0.8) << "above the footer";
            EXPECT_LE(text.box.left, 1.0);
        }
        std::string expected = "The ball loads do not balance the applied loads. Bearings:";
        for (std::size_t i = 0; i < rows; ++i)
            expected += " K" + std::to_string(i) + "FR0A" + (i + 1 < rows ? "," : "");
        EXPECT_EQ(told, expected) << rows;
        EXPECT_TRUE(footerHolds(
            canvas, "Page " + std::to_string(canvas.pages) + " of " + std::to_string(canvas.pages)))
            << "the footers count the pages that the names take";
        for (int page = 1; page < canvas.pages; ++page) {
            EXPECT_TRUE(
                footerHolds(canvas, "Page " + std::to_string(page) + " of " + std::to_string(canvas.pages)));
        }
    }
}

}  // namespace
}  // namespace norlaplan
