#include <set>
#include <string>

#include <gtest/gtest.h>

#include "help/HelpTopics.h"
#include "state/FileFault.h"
#include "state/ProgramFolder.h"
#include "support/FaultOf.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using namespace testing;

TEST(HelpTopics, HaveTheirCaptionsInTheOrderOfTheirNumbers) {
    const char* const captions[] = {"\"File \" -Menu",
                                    "Dimensions - Options",
                                    "User Information - Settings",
                                    "Deflection",
                                    "Preload Torque",
                                    "Bearing Definitions and Terms",
                                    "About Varden Corporation",
                                    "Revision History",
                                    "Application Form",
                                    "Bearing Training",
                                    "Set Style",
                                    "Set Sizes",
                                    "Load Input",
                                    "Search Results",
                                    "Sort List of Bearings",
                                    "Enter Model  Number",
                                    "Data Sheet",
                                    "Static + Dynamic Life",
                                    "Axial Play",
                                    "How To Use this Program",
                                    "Trouble Shooting"};
    ASSERT_EQ(helpTopics().size(), std::size(captions));
    for (std::size_t i = 0; i < std::size(captions); ++i) {
        EXPECT_EQ(helpTopics()[i].number, static_cast<int>(i) + 1);
        EXPECT_STREQ(helpTopics()[i].caption, captions[i]);
    }
}

TEST(HelpTopics, TheDocumentHasThePlainNumberInItsName) {
    EXPECT_EQ(helpTopicFile(4), "\\HELP\\HELP4.RTF");
    EXPECT_EQ(helpTopicFile(21), "\\HELP\\HELP21.RTF");
}

TEST(HelpTopics, AScreenOpensTheTopicThatTheIndexCallsByItsName) {
    const std::pair<const char*, int> screens[] = {
        {"Form6", 2},   {"Form11", 3},  {"Form24", 4},  {"Form23", 5},  {"Form10", 9},  {"form5", 10},
        {"Form16", 11}, {"Form12", 12}, {"Form14", 13}, {"Form15", 14}, {"Form13", 15}, {"Form9", 16},
        {"Form17", 17}, {"Form19", 18}, {"Form18", 19}, {"Form3", 20}};
    for (const auto& [screen, topic] : screens)
        EXPECT_EQ(topicOfScreen(screen), topic) << screen;
}

TEST(HelpTopics, AScreenWithoutATopicOfItsNameOpensTheOneOfWhatItShows) {
    const std::pair<const char*, int> screens[] = {
        {"Form1", 20}, {"Form2", 20}, {"Form22", 20},                                // how to use the program
        {"Form4", 7},  {"Form7", 7},  {"Form8", 7},   {"Form21", 7}, {"Form29", 7},  // the maker
        {"Form25", 4}, {"Form26", 4},                                                // deflection
        {"Form28", 1},    // opened by the file menu
        {"Form31", 17}};  // sizes of the data sheet
    for (const auto& [screen, topic] : screens)
        EXPECT_EQ(topicOfScreen(screen), topic) << screen;
}

TEST(HelpTopics, WhatLooksIntoALifeOpensTheTopicOfTheLife) {
    for (const char* const screen : {"Form27", "form30", "DataForm", "lodestarform", "tlodestarballloads"})
        EXPECT_EQ(topicOfScreen(screen), 18) << screen;
}

TEST(HelpTopics, TheViewerItselfAndAStrangerHaveNone) {
    EXPECT_EQ(topicOfScreen("Form20"), std::nullopt);
    EXPECT_EQ(topicOfScreen("Form99"), std::nullopt);
    EXPECT_EQ(topicOfScreen(""), std::nullopt);
}

TEST(FileFault, NamesTheFileBehindTheClassicText) {
    EXPECT_STREQ(fileFault(53, "/a b/c.rtf").what(), "File not found: /a b/c.rtf");
    EXPECT_STREQ(fileFault(76, "/a").what(), "Path not found: /a");
    EXPECT_STREQ(fileFault(481, "/a.jpg").what(), "Invalid picture: /a.jpg");
    EXPECT_EQ(fileFault(481, "/a.jpg").number(), 481);
}

TEST(FileFault, OfAReadKeepsItsNumber) {
    const TemporaryFolder files;
    files.write("help/ONE.rtf", "text");
    const ProgramFolder folder(files.path());
    EXPECT_EQ(folder.read("\\HELP\\one.RTF"), "text");
    EXPECT_EQ(faultOf([&] { folder.read("\\help\\two.rtf"); }), 53);
    EXPECT_EQ(faultOf([&] { folder.read("\\help"); }), 75);
    try {
        folder.read("\\help\\two.rtf");
    } catch (const RuntimeError& failure) {
        EXPECT_EQ(failure.what(), "File not found: " + (files.path() / "help/two.rtf").string());
    }
}

}  // namespace
}  // namespace norlaplan
