#include <string>

#include <gtest/gtest.h>

#include "documents/RTFroutines.h"
#include "documents/RtfGraph.h"
#include "numbers/RuntimeError.h"
#include "support/ExpectGraphText.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

/// Plot from (1, 4) to (7, 8): 2 inches a unit along x, 0.2 inch a unit along y.
RtfGraphPage sample() {
    RtfGraphPage graph;
    graph.partNumber = "K19013CP0";
    graph.title = "TITLE";
    graph.xTitle = "X TITLE";
    graph.yTitle = "Y TITLE";
    graph.origin = {1.0, 4.0};
    graph.width = 6.0;
    graph.height = 4.0;
    graph.xMost = 3.0;
    graph.yMost = 20.0;
    graph.xStep = 1.0;
    graph.yStep = 10.0;
    graph.points = {{1.0, 5.0}, {2.0, 12.0}, {3.5, 19.0}};
    return graph;
}

RtfDocument documentOf(const RtfGraphPage& graph) {
    RtfDocument document;
    document.RtfGraph(graph);
    return document;
}

std::vector<SheetLine> linesOf(const RtfDocument& document) {
    std::vector<SheetLine> lines;
    for (const SheetRecord& record : readSheetRecords(document.records()))
        lines.push_back(std::get<SheetLine>(record));
    return lines;
}

bool has(const RtfDocument& document, const std::string& text) {
    return document.rtf().find(text) != std::string::npos;
}

void expectLine(const SheetLine& line, PagePoint from, PagePoint to) {
    EXPECT_NEAR(line.from.x, from.x, 1e-9);
    EXPECT_NEAR(line.from.y, from.y, 1e-9);
    EXPECT_NEAR(line.to.x, to.x, 1e-9);
    EXPECT_NEAR(line.to.y, to.y, 1e-9);
}

TEST(RtfGraph, RecordsItsLinesAndNoneOfItsTexts) {
    const RtfDocument document = documentOf(sample());
    // 4 x lines, 3 y lines, 2 of the curve, 4 of the frame; 4 titles and 7 labels.
    EXPECT_EQ(linesOf(document).size(), 13U);
    EXPECT_EQ(document.shapeCounter(), 13 + 11);
    for (const char* const text : {"K19013CP0", "TITLE", "X TITLE", "Y TITLE"})
        EXPECT_TRUE(has(document, std::string(" ") + text + "\\par")) << text;
}

// x0 = 1, y0 = 4 and H = 4.
TEST(RtfGraph, HasItsTitlesInTheirPlaces) {
    const Graph graph = rtfGraph(sample());
    const auto expectText = [](const GraphText& text, const char* words, const PageBox& box, double points,
                               Colour colour, bool vertical) {
        testing::expectGraphText(text, words, box, points, colour);
        EXPECT_EQ(text.look.vertical, vertical) << words;
        EXPECT_FALSE(text.look.bold) << words;
    };
    expectText(graph.number, "K19013CP0", {2.05, 9.25, 6.55, 8.5}, 24.0, rgb(255, 0, 0), false);
    expectText(graph.title, "TITLE", {1.05, 8.85, 7.55, 8.5}, 14.0, rgb(0, 0, 255), false);
    expectText(graph.xTitle, "X TITLE", {1.05, 3.8, 7.55, 3.5}, 12.0, rgb(0, 0, 255), false);
    expectText(graph.yTitle, "Y TITLE", {0.2, 7.6, 0.6, 4.0}, 10.0, rgb(0, 0, 255), true);
}

TEST(RtfGraph, DrawsGridLinesInsideAndTicksAtTheEnds) {
    const auto lines = linesOf(documentOf(sample()));
    expectLine(lines[0], {1.0, 3.95}, {1.0, 4.0});
    expectLine(lines[1], {3.0, 3.95}, {3.0, 8.0});
    expectLine(lines[3], {7.0, 3.95}, {7.0, 4.0});
    expectLine(lines[4], {0.95, 4.0}, {1.0, 4.0});
    expectLine(lines[5], {0.95, 6.0}, {7.0, 6.0});
    expectLine(lines[6], {0.95, 8.0}, {1.0, 8.0});
    EXPECT_EQ(lines[1].colour, 12632256U);
    EXPECT_EQ(lines[1].width, 9525.0);
}

TEST(RtfGraph, StartsItsCurveInTheCornerAndLeavesOutWhatIsBeyondTheScale) {
    const auto lines = linesOf(documentOf(sample()));
    expectLine(lines[7], {1.0, 4.0}, {3.0, 5.0});
    expectLine(lines[8], {3.0, 5.0}, {5.0, 6.4});
    EXPECT_EQ(lines[8].colour, 255U);
    EXPECT_EQ(lines[8].width, 19050.0);
    expectLine(lines[9], {1.0, 4.0}, {7.0, 4.0});
    EXPECT_EQ(lines[9].colour, 0U);
}

TEST(RtfGraph, LabelsXByTheUnitsAndZeroAsThePlainDigit) {
    RtfGraphPage graph = sample();
    EXPECT_TRUE(has(documentOf(graph), " 2.0000\\par"));
    EXPECT_TRUE(has(documentOf(graph), " 0\\par"));
    graph.metric = true;
    EXPECT_TRUE(has(documentOf(graph), " 2.000\\par"));
}

TEST(RtfGraph, LabelsYByThePowerOfTenOfItsScale) {
    const struct {
        double most;
        const char* half;
    } rows[] = {{20.0, " 10\\par"},       {2.0, " 1.0000\\par"},   {0.2, " 0.1000\\par"},
                {0.02, " 0.010\\par"},    {0.002, " 0.0010\\par"}, {0.0002, " 0.00010\\par"},
                {0.00002, " 0.0000\\par"}};
    for (const auto& row : rows) {
        RtfGraphPage graph = sample();
        graph.yMost = row.most;
        graph.yStep = row.most / 2.0;
        EXPECT_TRUE(has(documentOf(graph), row.half)) << row.most;
    }
}

// The labels' boxes are told as seen from the plot's corner at (1, 4), 2 inches a unit along x.
TEST(RtfGraph, HasItsLabelsInTheirPlaces) {
    const auto boxOf = [](const RtfGraphPage& page, const std::string& label) {
        testing::RecordingCanvas canvas;
        drawGraph(rtfGraph(page), canvas);
        for (const auto& text : canvas.texts) {
            if (text.text != label) continue;
            EXPECT_EQ(text.look.points, 8.0) << label;
            EXPECT_EQ(text.look.colour, colours::kBlack) << label;
            EXPECT_EQ(text.look.alignment, Alignment::Centre) << label;
            return text.box;
        }
        ADD_FAILURE() << label;
        return PageBox{};
    };
    const auto expectBox = [&](const RtfGraphPage& page, const std::string& label, const PageBox& box) {
        const PageBox found = boxOf(page, label);
        EXPECT_NEAR(found.left, box.left, 1e-9) << label;
        EXPECT_NEAR(found.top, box.top, 1e-9) << label;
        EXPECT_NEAR(found.right, box.right, 1e-9) << label;
        EXPECT_NEAR(found.bottom, box.bottom, 1e-9) << label;
    };
    RtfGraphPage page = sample();
    expectBox(page, "0", {0.84, 4.0, 1.14, 3.7});
    expectBox(page, "2.0000", {4.65, 4.0, 5.4, 3.7});
    // 10 is half of the height of 4.
    expectBox(page, "10", {0.5, 6.11, 1.05, 5.81});
    page.yMost = 0.0002;
    page.yStep = 0.0001;
    expectBox(page, "0.00010", {0.4, 6.11, 1.05, 5.81});
}

TEST(RtfGraph, NeedsStepsThatAPageCanHold) {
    for (const double step : {0.0, -1.0, 1e-300}) {
        RtfGraphPage graph = sample();
        graph.xStep = step;
        EXPECT_THROW(documentOf(graph), RuntimeError);
    }
}

TEST(RtfPlainText, IsCentredAndLeavesNoRecord) {
    RtfDocument document;
    document.RtfPlainText({{1.0, 10.0, 3.0, 9.5}, 8.0, "black", "label", false, "TNR"});
    EXPECT_TRUE(document.records().empty());
    EXPECT_EQ(document.shapeCounter(), 1);
    EXPECT_TRUE(has(document, "\\qc"));
    EXPECT_TRUE(has(document, "{\\sp{\\sn fFilled}{\\sv 0}}"));
}

TEST(RtfLogoPicture, CarriesTheNumberOfItsOwnShape) {
    RtfDocument document;
    document.RTFLINE({1, 1}, {2, 1}, 0, 9525.0);
    document.RtfLogoPicture();
    EXPECT_TRUE(has(document, "{\\pict{\\*\\picprop\\shplid1028{"));
    EXPECT_EQ(document.shapeCounter(), 2);
}

TEST(RtfShapes, BeyondAnyPageStayWithinWhatTwipsCanTell) {
    RtfDocument document;
    document.RTFLINE({-1e300, 1e30}, {1e300, -1e30}, 0, 9525.0);
    document.RTFCIRCLE({1e12, 0}, 1e12, 0, 9525.0);
    document.RTFDATASHEETTEXT({{4.0, 1e11, 5.0, 1e11}, 7.0, "RED", "far", false, "TNR"});
    EXPECT_EQ(readSheetRecords(document.records()).size(), 3U);
    // 1440 x (11 - 1000)
    EXPECT_TRUE(has(document, "\\shptop-1424160"));
    EXPECT_FALSE(has(document, "-2147483648"));
}

}  // namespace
}  // namespace norlaplan
