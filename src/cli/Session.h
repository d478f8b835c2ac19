#pragma once

#include <string>

#include "cli/CliPorts.h"
#include "cli/Json.h"
#include "documents/DataSheet.h"
#include "state/ProgramFolder.h"
#include "state/ProgramState.h"

namespace norlaplan::cli {

/// The options before the command.
struct GlobalOptions {
    ProgramFolder programFolder{{}};
    std::string units;  ///< "US", "METRIC" or empty for those of the settings
    bool json = false;
};

/// A part number as a command takes it.
struct PartNumberOption {
    std::string number;
    std::string zSeparator;
};

/// Loads in display units; the speed in rpm.
struct LoadOptions {
    double radial = 0.0, axial = 0.0, moment = 0.0, speed = 0.0;
};

/// What a command gives: a result for programs and a text for people.
struct CommandResult {
    Json json = Json::object();
    std::string text;
};

/// One call: the state of the program with the ports of the command line. The calculations are the screens'
/// own.
class Session {
  public:
    /// Reads settings and options of the program folder, as the start of the program does.
    explicit Session(const GlobalOptions& options);

    ProgramState& state() { return state_; }
    const ProgramFolder& folder() const { return folder_; }
    CollectedMessages& messages() { return messages_; }
    ClockPort& clock() { return clock_; }
    /// The data sheet of the decoded bearing, which a decode here doesn't make. Errors as those of
    /// `makeDataSheet`.
    SheetFiles sheet() { return makeDataSheet(state_, folder_, clock_); }

    /// Whether the result goes out as JSON: the text for people is then not asked for.
    bool asksForJson() const { return json_; }

    /// What the user is told besides the result: that the settings are damaged, then the program's messages.
    std::vector<Message> warnings() const;

    /// Decodes the part number into the state. Errors: `CommandError` with the decoder's message or fault.
    void decode(const PartNumberOption& option);
    /// Enters the loads by the rules of the load screen. Errors: `CommandError` with its message.
    void enter(const LoadOptions& loads);
    /// Ends the command with the last message that was shown.
    [[noreturn]] void failWithLastMessage();

  private:
    ProgramState state_;
    ProgramFolder folder_;
    bool json_ = false;
    std::vector<Message> startNotices_;
    CollectedMessages messages_;
    SystemClock clock_;
};

}  // namespace norlaplan::cli
