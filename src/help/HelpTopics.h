#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace norlaplan {

/// A topic of the help: its number and what the index calls it.
struct HelpTopic {
    int number;
    const char* caption;
};

/// Every topic, in the order of the index: numbers from 1 upwards without a gap.
std::span<const HelpTopic> helpTopics();

/// The document of a topic, as a file of the program folder: `\HELP\HELP4.RTF`.
std::string helpTopicFile(int number);

/// The topic that tells about a screen, by the screen's name ("Form9"). None for the viewer of the topics
/// itself and for a name that no screen has.
std::optional<int> topicOfScreen(std::string_view screen);

}  // namespace norlaplan
