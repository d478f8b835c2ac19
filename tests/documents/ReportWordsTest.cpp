#include <algorithm>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "documents/LoadLifeReport.h"
#include "documents/ReportSamples.h"
#include "documents/SearchReport.h"
#include "support/RecordingPorts.h"

/// The saved reports word for word, and where the tab stops put their columns.
namespace norlaplan {
namespace {

using testing::FixedClock;

ProgramState loadLife(double speed) {
    ProgramState state = testing::sampleLife(speed);
    state.loads.axialLoadDisplay = 50.0;
    state.loads.momentLoadDisplay = 3456.0;
    state.life.speedVerdict = "Too fast.";
    state.life.speedVerdictColor = 12;
    return state;
}

ProgramState searched(const std::string& letter = "X", const std::string& caption = "4-POINT CONTACT") {
    ProgramState state = testing::sampleSearch(letter, caption);
    state.search.rows = {{"K1", "100", "1234567", "2058", "5.0000", "6.0000", "0.5000", "YES "},
                         {"K2", "99", "2234567", "3058", "5.0000", "6.0000", "0.5000", "NO "}};
    return state;
}

/// The document behind its head, without line ends.
std::string body(std::string rtf) {
    rtf.erase(0, rtf.find("{\\f1\r\n\\par\\par}") == std::string::npos ? rtf.find("{\\f1\\par\\par}") : 0);
    std::erase(rtf, '\r');
    std::erase(rtf, '\n');
    return rtf;
}

std::string loadLifeBody(const ProgramState& state) {
    FixedClock clock;
    return body(loadLifeRtf(state, clock));
}
std::string searchBody(const ProgramState& state) {
    FixedClock clock;
    return body(searchRtf(state, clock));
}

std::string withoutTabStops(const std::string& rtf) {
    return std::regex_replace(rtf, std::regex(R"(\\pard(\\tx\d+)+)"), "");
}

std::string joined(const std::vector<std::string>& pieces) {
    std::string text;
    for (const std::string& piece : pieces)
        text += piece;
    return text;
}

const std::string kFooter =
    "{\\footer \\pard\\plain \\qc\\widctlpar\\tqc\\tx4320\\tqr\\tx8640\\adjustright\\fs16\\cgrid"
    "{NORLAPLAN-MM version 1.00  Ann        Saved  3/14/26 9:26 AM\\par }}";

const std::string kLoadLifeNotes = joined({
    "{\\fs24\\b\\cf6 The Static Safety Factor is based on non-detrimental permanent deformation, and}\\par",
    "{\\fs24\\b\\cf6 the assumption that the inner and outer bearing races are radially restrained by}\\par",
    "{\\fs24\\b\\cf6 a rigid shaft and housing.}\\par\\par",
    "{\\fs24\\b\\cf1 The starting torque is based on light oil lubrication.  Torque values for grease "
    "will}\\par",
    "{\\fs24\\b\\cf1 generally be higher.  The effect of grease on bearing torque over temperature}\\par",
    "{\\fs24\\b\\cf1 can vary significantly and is best found by testing.}\\par\\par",
    "{\\fs24\\b\\cf1 Results shown are for the external load case only and do not include the effect }\\par",
    "{\\fs24\\b\\cf1 of any preload.}\\par\\par",
});

const std::string kLoadLifeHead = joined({
    "{\\f1\\par\\par}\\pard\\par{\\fs28\\cf1\\b RESULTS OF LOAD-LIFE CALCULATION FOR : ",
    "\\ul K19013FR0A}\\plain\\par\\par",
    "{\\fs24\\cf1 Bore = \\tab 7.5000 inches\\tab\\tab Radial Load =\\tab\\tab 1,200 pounds}",
    "{\\par\\fs24\\cf1 Outer Dia. =\\tab 8.5000 inches\\tab\\tab Axial Load =\\tab\\tab 50 pounds}",
    "{\\par\\fs24\\cf1 Height =\\tab 1.0000 inches\\tab\\tab Moment Load =\\tab 3,456 inch-lbs.}",
    "\\par\\par",
});

TEST(LoadLifeWords, WithASpeed) {
    EXPECT_EQ(withoutTabStops(loadLifeBody(loadLife(400.0))),
              kLoadLifeHead +
                  joined({"{\\tab\\tab\\tab\\tab\\fs24\\ Speed = 400 RPM}\\par\\par",
                          "{\\fs24\\b L\\sub 10 \\nosupersub Life in Revolutions = \\tab 1162182300}",
                          "{\\fs24\\tab\\b L\\sub 10 \\nosupersub Life in Hours = \\tab 48424.25}\\par\\par",
                          "{\\fs24\\b\\cf6 Static Safety Factor is =  2.5}",
                          "{\\tab\\fs24\\b\\cf1 Estimated Starting Torque = 1.0 inch-lbs.}\\par\\par",
                          "{\\fs20\\cf6\\b Too fast.}\\par\\par"}) +
                  kLoadLifeNotes + kFooter + "}{\\par }}");
}

TEST(LoadLifeWords, WithoutASpeed) {
    ProgramState state = loadLife(0.0);
    state.life.torqueDisplay = 0.994;
    EXPECT_EQ(withoutTabStops(loadLifeBody(state)),
              kLoadLifeHead +
                  joined({"\\par{\\fs24\\b L\\sub 10 \\nosupersub Life in Revolutions = \\tab 1162182300}",
                          "\\par\\par{\\fs24\\b\\cf6 Static Safety Factor is =  2.5}",
                          "{\\tab\\fs24\\b\\cf1 Estimated Starting Torque = 0.99 inch-lbs.}\\par\\par"}) +
                  kLoadLifeNotes + kFooter + "}{\\par }}");
}

TEST(LoadLifeWords, InMetricUnits) {
    ProgramState state = loadLife(0.0);
    ApplyUnitSystem("METRIC", state.units);
    const std::string text = withoutTabStops(loadLifeBody(state));
    // 7.5 x 25.4 = 190.5 and 8.5 x 25.4 = 215.9
    for (const char* const words : {"Bore = \\tab 190.500 mm\\tab", "Outer Dia. =\\tab 215.900 mm\\tab",
                                    "Height =\\tab 25.400 mm\\tab", "\\tab 1,200 N}", "\\tab 3,456 N-m}"})
        EXPECT_NE(text.find(words), std::string::npos) << words << "\n" << text;
}

const std::string kSearchHead = joined({
    "{\\f1\\par\\par}\\pard\\par\\par\\par{\\fs28\\cf1\\b RESULTS OF BEARING SEARCH FOR : ",
    "\\ul 4-POINT CONTACT\\plain\\par\\par",
    "{\\fs24\\cf1 Minimum Bore = \\tab 5.0000 inches\\tab\\tab Radial Load =\\tab\\tab 1,234 lbs}",
    "{\\par\\fs24\\cf1 Maximum O.D. =\\tab 9.0000 inches\\tab\\tab Axial Load =\\tab\\tab 50 lbs}",
    "{\\par\\fs24\\cf1 Minimum Height =\\tab 0.2000 inches\\tab\\tab\\tab Moment Load =\\tab 10 in-lbs}",
    "{\\par\\fs24\\cf1 Maximum Height =\\tab 1.2000 inches\\tab\\tab\\tab\\fs24\\ Speed = \\tab\\tab 100 "
    "rpm}",
    "\\par\\par{\\fs24\\b\\cf2 BEARING\\tab\\tab\\ L\\sub 10 \\nosupersub  LIFE\\tab\\tab\\tab\\ L\\sub 10 ",
    "\\nosupersub  LIFE (hours)}\\par",
});

TEST(SearchWords, OfAListInOrder) {
    EXPECT_EQ(withoutTabStops(searchBody(searched())),
              kSearchHead +
                  joined({"{{\\cf1 K1\\tab\\tab\\ 1.235E+06\\tab\\tab\\tab\\ 2.058E+03}\\par",
                          "{\\cf1 K2\\tab\\tab\\ 2.235E+06\\tab\\tab\\tab\\ 3.058E+03",
                          "\\tab\\tab\\tab\\cf6 Over Speed!}\\par"}) +
                  kFooter + "}{\\par }}}}");
}

/// A text of a paragraph with the tab stop that it begins at, in twips; 0 at the paragraph's left edge.
struct Cell {
    int stop = 0;
    std::string text;
};

/// The cells of the paragraph that holds the words. Its stops are those behind the last word that takes all
/// away, in it or before it.
std::vector<Cell> cellsOf(const std::string& rtf, const std::string& held) {
    const std::regex paragraphEnd(R"(\\par(?![a-z]))");
    const std::regex stop(R"(\\tx(\d+))");
    std::string paragraph;
    std::vector<int> stops;
    for (std::sregex_token_iterator at(rtf.begin(), rtf.end(), paragraphEnd, -1), end; at != end; ++at) {
        const std::string text = *at;
        if (const std::size_t reset = text.rfind("\\pard"); reset != std::string::npos) {
            stops.clear();
            for (std::sregex_iterator
                     one(text.begin() + static_cast<std::ptrdiff_t>(reset), text.end(), stop),
                 none;
                 one != none; ++one)
                stops.push_back(std::stoi((*one)[1]));
        }
        paragraph = text;
        if (text.find(held) != std::string::npos) break;
    }
    EXPECT_TRUE(std::is_sorted(stops.begin(), stops.end())) << held;
    std::vector<Cell> cells;
    std::size_t tabs = 0;
    const std::regex tab(R"(\\tab ?)");
    for (std::sregex_token_iterator at(paragraph.begin(), paragraph.end(), tab, -1), end; at != end;
         ++at, ++tabs) {
        std::string text = std::regex_replace(at->str(), std::regex(R"([{}]|\\[a-z]+\d* ?|\\)"), "");
        text.erase(0, text.find_first_not_of(' '));
        if (text.empty()) continue;
        EXPECT_LE(tabs, stops.size()) << held << ": a tab without a stop of its own";
        cells.push_back({tabs == 0 || tabs > stops.size() ? 0 : stops[tabs - 1], text});
    }
    return cells;
}

/// Fails unless the paragraphs that hold the words have their cells at the same stops.
void expectColumns(const std::string& rtf, const std::vector<std::string>& rows, std::size_t count) {
    const std::vector<Cell> first = cellsOf(rtf, rows[0]);
    ASSERT_EQ(first.size(), count) << rows[0];
    for (const std::string& row : rows) {
        const std::vector<Cell> cells = cellsOf(rtf, row);
        ASSERT_EQ(cells.size(), count) << row;
        for (std::size_t i = 0; i < count; ++i)
            EXPECT_EQ(cells[i].stop, first[i].stop) << row << ": " << cells[i].text;
    }
}

TEST(LoadLifeColumns, StandBelowOneAnother) {
    const std::string rtf = loadLifeBody(loadLife(400.0));
    expectColumns(rtf, {"Bore =", "Outer Dia. =", "Height ="}, 4);
    const std::vector<Cell> speed = cellsOf(rtf, "Speed =");
    ASSERT_EQ(speed.size(), 1U);
    EXPECT_EQ(speed[0].stop, cellsOf(rtf, "Bore =")[2].stop) << "in the column of the loads";
}

TEST(SearchColumns, StandBelowOneAnother) {
    const std::string rtf = searchBody(searched());
    expectColumns(rtf, {"Minimum Bore =", "Maximum O.D. =", "Minimum Height =", "Maximum Height ="}, 4);
    expectColumns(rtf, {"BEARING\\tab", "K1"}, 3);
    // A quarter of an inch and more between the figures' column and the mark.
    const std::vector<Cell> over = cellsOf(rtf, "K2");
    ASSERT_EQ(over.size(), 4U);
    EXPECT_GT(over[3].stop, over[2].stop + 360);
}

TEST(SearchColumns, GoOnOnFurtherPages) {
    ProgramState state = searched();
    while (state.search.rows.size() < 40)
        state.search.rows.push_back(
            {"N" + std::to_string(state.search.rows.size()) + "E", "900", "1", "2", "5", "6", "0.5", "YES "});
    const std::string rtf = searchBody(state);
    expectColumns(rtf, {"K1", "N35E"}, 3);
}

}  // namespace
}  // namespace norlaplan
