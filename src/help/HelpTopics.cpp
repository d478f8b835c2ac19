#include "help/HelpTopics.h"

namespace norlaplan {
namespace {

enum Topic {
    kFileMenu = 1,
    kDimensions,
    kUserInformation,
    kDeflection,
    kPreloadTorque,
    kDefinitions,
    kAboutTheMaker,
    kRevisionHistory,
    kApplicationForm,
    kTraining,
    kStyle,
    kSizes,
    kLoadInput,
    kSearchResults,
    kSort,
    kModelNumber,
    kDataSheet,
    kLife,
    kAxialPlay,
    kHowToUse,
    kTroubleShooting
};

constexpr HelpTopic kTopics[] = {
    {kFileMenu, "\"File \" -Menu"},
    {kDimensions, "Dimensions - Options"},
    {kUserInformation, "User Information - Settings"},
    {kDeflection, "Deflection"},
    {kPreloadTorque, "Preload Torque"},
    {kDefinitions, "Bearing Definitions and Terms"},
    {kAboutTheMaker, "About Varden Corporation"},
    {kRevisionHistory, "Revision History"},
    {kApplicationForm, "Application Form"},
    {kTraining, "Bearing Training"},
    {kStyle, "Set Style"},
    {kSizes, "Set Sizes"},
    {kLoadInput, "Load Input"},
    {kSearchResults, "Search Results"},
    {kSort, "Sort List of Bearings"},
    {kModelNumber, "Enter Model  Number"},
    {kDataSheet, "Data Sheet"},
    {kLife, "Static + Dynamic Life"},
    {kAxialPlay, "Axial Play"},
    {kHowToUse, "How To Use this Program"},
    {kTroubleShooting, "Trouble Shooting"},
};

struct ScreenTopic {
    std::string_view screen;
    Topic topic;
};

constexpr ScreenTopic kScreens[] = {
    {"Form1", kHowToUse},
    {"Form2", kHowToUse},
    {"Form3", kHowToUse},
    {"Form4", kAboutTheMaker},
    {"form5", kTraining},
    {"Form6", kDimensions},
    {"Form7", kAboutTheMaker},
    {"Form8", kAboutTheMaker},
    {"Form9", kModelNumber},
    {"Form10", kApplicationForm},
    {"Form11", kUserInformation},
    {"Form12", kSizes},
    {"Form13", kSort},
    {"Form14", kLoadInput},
    {"Form15", kSearchResults},
    {"Form16", kStyle},
    {"Form17", kDataSheet},
    {"Form18", kAxialPlay},
    {"Form19", kLife},
    {"Form21", kAboutTheMaker},
    {"Form22", kHowToUse},
    {"Form23", kPreloadTorque},
    {"Form24", kDeflection},
    {"Form25", kDeflection},
    {"Form26", kDeflection},
    {"Form27", kLife},
    {"Form28", kFileMenu},
    {"Form29", kAboutTheMaker},
    {"form30", kLife},
    // Shaft and housing sizes are told with those of the data sheet.
    {"Form31", kDataSheet},
    {"DataForm", kLife},
    {"lodestarform", kLife},
    {"tlodestarballloads", kLife},
};

}  // namespace

std::span<const HelpTopic> helpTopics() {
    return kTopics;
}

std::string helpTopicFile(int number) {
    return "\\HELP\\HELP" + std::to_string(number) + ".RTF";
}

std::optional<int> topicOfScreen(std::string_view screen) {
    for (const ScreenTopic& entry : kScreens) {
        if (entry.screen == screen) return entry.topic;
    }
    return std::nullopt;
}

}  // namespace norlaplan
