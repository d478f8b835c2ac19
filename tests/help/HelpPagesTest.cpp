#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "help/RtfReader.h"
#include "support/Folders.h"

namespace norlaplan {
namespace {

using namespace testing;

/// Every document of the help folder, as the program folder holds it.
std::vector<std::filesystem::path> documents() {
    std::vector<std::filesystem::path> found;
    for (const auto& entry : std::filesystem::directory_iterator(programFolder() / "help"))
        if (entry.is_regular_file()) found.push_back(entry.path());
    std::sort(found.begin(), found.end());
    return found;
}

RichDocument read(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    return readRtf(bytes).value_or(RichDocument{});
}

std::vector<Paragraph> paragraphsOf(const RichDocument& document) {
    std::vector<Paragraph> all;
    for (const Block& block : document.blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block)) all.push_back(*paragraph);
        if (const auto* row = std::get_if<TableRow>(&block)) {
            for (const TableCell& cell : row->cells)
                all.insert(all.end(), cell.paragraphs.begin(), cell.paragraphs.end());
        }
    }
    return all;
}

std::vector<TextRun> runsOf(const std::vector<Paragraph>& paragraphs) {
    std::vector<TextRun> all;
    for (const Paragraph& paragraph : paragraphs)
        for (const Run& run : paragraph.runs)
            if (const auto* text = std::get_if<TextRun>(&run)) all.push_back(*text);
    return all;
}

std::vector<TextRun> runsOf(const std::filesystem::path& path) {
    return runsOf(paragraphsOf(read(path)));
}

TEST(TheHelpFolder, HoldsEveryTopicOfTheIndexAndTheIntroduction) {
    for (int topic = 1; topic <= 21; ++topic) {
        const std::string name = "HELP" + std::to_string(topic) + ".RTF";
        EXPECT_TRUE(std::filesystem::exists(programFolder() / "help" / name)) << name;
    }
    EXPECT_TRUE(std::filesystem::exists(programFolder() / "help" / "INTRO.RTF"));
}

TEST(AHelpDocument, IsReadWholeWithItsTitleFirst) {
    for (const auto& path : documents()) {
        const RichDocument document = read(path);
        EXPECT_FALSE(document.cutShort) << path;
        const auto runs = runsOf(path);
        ASSERT_GE(runs.size(), 20U) << path;
        for (const TextRun& run : runs)
            EXPECT_LE(run.look.points, runs.front().look.points) << path << ": " << run.text;
        EXPECT_EQ(runs.front().look.points, 20.0) << path;
    }
}

TEST(AHelpDocument, ShowsNoMarksOfItsMaking) {
    for (const auto& path : documents()) {
        for (const TextRun& run : runsOf(path)) {
            EXPECT_EQ(run.text.find_first_of("{}[]\\*|"), std::string::npos) << path << ": " << run.text;
            EXPECT_FALSE(run.look.hidden) << path;
        }
    }
}

TEST(AHelpDocument, HasOneFaceForTextsAndOneSizeForHeadings) {
    for (const auto& path : documents()) {
        for (const TextRun& run : runsOf(path)) {
            const std::string& font = run.look.font;
            EXPECT_TRUE(font == "Arial" || font == "Times New Roman" || font == "Courier New" ||
                        font == "Symbol")
                << path << ": " << font;
            if (run.look.points > 11.0 && run.look.points < 20.0 && run.look.bold) {
                EXPECT_EQ(run.look.points, 13.5) << path << ": " << run.text;
            }
        }
    }
}

TEST(AHelpDocument, HasTablesOfOneWidthWhoseColumnsStandInOrder) {
    constexpr int kLine = 9360;
    for (const auto& path : documents()) {
        for (const Block& block : read(path).blocks) {
            const auto* row = std::get_if<TableRow>(&block);
            if (row == nullptr) continue;
            ASSERT_FALSE(row->cells.empty()) << path;
            int edge = row->leftEdge;
            for (const TableCell& cell : row->cells) {
                EXPECT_GT(cell.look.rightEdge, edge + 500) << path;
                edge = cell.look.rightEdge;
            }
            EXPECT_LE(edge, kLine) << path;
        }
    }
}

}  // namespace
}  // namespace norlaplan
