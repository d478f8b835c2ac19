#include "cli/Session.h"

#include "catalogue/Subroutines.h"
#include "cli/CommandError.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "state/LoadEntry.h"
#include "state/Patience.h"
#include "state/Settings.h"

namespace norlaplan::cli {

Session::Session(const GlobalOptions& options) : folder_(options.programFolder), json_(options.json) {
    const StartUp start = startUp(state_, folder_);
    if (!start.notice.empty()) startNotices_.push_back({"SETTINGS.INI", start.notice, Icon::Warning});
    if (!start.extrasNotice.empty())
        startNotices_.push_back({"Extras.txt", start.extrasNotice, Icon::Warning});
    const std::string& units = options.units.empty() ? state_.unitSystem : options.units;
    state_.unitSystem = units == "METRIC" ? "METRIC" : "US";
    ApplyUnitSystem(state_.unitSystem, state_.units);
}

std::vector<Message> Session::warnings() const {
    std::vector<Message> all = startNotices_;
    all.insert(all.end(), messages_.messages().begin(), messages_.messages().end());
    return all;
}

void Session::decode(const PartNumberOption& option) {
    std::string number = option.number;
    const std::string upper = upperCase(number);
    if (upper.size() >= 8 && upper[7] == 'Z') state_.bearing.zSeparatorChoice = option.zSeparator;
    DecodeServices services{folder_, messages_, clock_, nullptr};
    const DecodeResult result = DecodePartNumber(state_, number, services);
    if (result.end == DecodeEnd::Decoded) return;
    if (!result.failed) failWithLastMessage();
    const Message told = messages_.takeLast();
    throw CommandError(ErrorKind::Runtime, told.title, told.prompt, result.faultNumber);
}

void Session::enter(const LoadOptions& loads) {
    prepareLoadEntry(state_);
    const bool radial = isRadialContact(state_);
    EntryTexts& texts = state_.entries;
    texts.radial = plainText(loads.radial);
    texts.axial = radial ? "" : plainText(loads.axial);
    texts.moment = radial ? "" : plainText(loads.moment);
    if (takesSpeed(state_)) texts.speed = plainText(loads.speed);
    refuse(enterLoads(state_));
}

void Session::failWithLastMessage() {
    // Nothing was shown: a question was answered No.
    if (messages_.messages().empty()) throw NotConverging();
    const Message told = messages_.takeLast();
    throw CommandError(ErrorKind::Message, told.title, told.prompt);
}

}  // namespace norlaplan::cli
