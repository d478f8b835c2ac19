#include "state/Settings.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "numbers/Encoding.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "state/WholeFile.h"

namespace norlaplan {
namespace {

constexpr std::string_view kSettingsFile = "SETTINGS.INI";
constexpr std::string_view kExtrasFile = "Extras.txt";
constexpr std::string_view kFooterKeyword = "FOOTER";
constexpr const char* kFilling = " ";
/// Lines of text and no more; far beyond what anybody has written there.
constexpr std::size_t kMostSettings = 1U << 20U;

/// The lines of the settings file in their order: the one description that reads and writes it.
constexpr std::array<std::string UserInfo::*, 8> kUserLines = {
    &UserInfo::userName,     &UserInfo::userTitle, &UserInfo::userCompany, &UserInfo::userAddress1,
    &UserInfo::userAddress2, &UserInfo::userPhone, &UserInfo::userFax,     &UserInfo::userMailSuffix};

constexpr std::array<std::pair<std::string_view, Flag Options::*>, 12> kKeywords = {{
    {"FAX COVER", &Options::faxCoverEnabled},
    {"DEFLECTION", &Options::deflectionOption},
    {"LARS HOFMANN", &Options::larsHofmannOption},
    {"NED GROVE", &Options::nedGroveOption},
    {"IAN MORAY", &Options::ianMorayOption},
    {"SKIP INTRO", &Options::skipIntroOption},
    {"BALL SHOW", &Options::ballShowOption},
    {"LUBE FILM", &Options::lubeFilmOption},
    {"PATH STRESS", &Options::pathStressOption},
    {"SAM LUND", &Options::samLundOption},
    {"TEMPFITS", &Options::tempFitsOption},
    {"QLX", &Options::qlxOption},
}};

/// The lines of a text, one after the other; they end in CR LF or LF.
class Lines {
  public:
    explicit Lines(std::string_view text) : rest_(text) {}

    bool atEnd() const { return rest_.empty(); }

    /// The next line. Error 62 past the end.
    std::string_view next() {
        if (atEnd()) raise(fault::kPastEnd);
        const std::size_t end = std::min(rest_.find('\n'), rest_.size());
        std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        return line;
    }

  private:
    std::string_view rest_;
};

void applyOption(std::string_view line, Options& options) {
    const std::string upper = upperCase(line);
    for (const auto& [keyword, flag] : kKeywords) {
        if (upper == keyword) options.*flag = true;
    }
    if (upper.starts_with(kFooterKeyword)) options.footerText = line.substr(kFooterKeyword.size());
}

/// A text that is one line of the file and not an empty one.
void makeLine(std::string& text) {
    std::replace_if(
        text.begin(), text.end(), [](char character) { return character == '\r' || character == '\n'; }, ' ');
    if (text.empty()) text = kFilling;
}

/// "US" or "METRIC" as its line of the file says it; empty for anything else.
std::string unitSystemOf(const std::string& line) {
    const std::string units = upperCase(trimmed(line));
    return units == "US" || units == "METRIC" ? units : "";
}

/// The settings as they stand in the file; those of the state where there is no sound one.
ProgramState settingsOnFile(const ProgramState& state, const ProgramFolder& folder) {
    ProgramState read;
    try {
        LoadSettings(read, folder);
    } catch (const RuntimeError&) {
        read.user = state.user;
    }
    for (const auto field : kUserLines)
        makeLine(read.user.*field);
    read.unitSystem = unitSystemOf(read.unitSystem);
    if (read.unitSystem.empty()) read.unitSystem = state.unitSystem;
    return read;
}

}  // namespace

void LoadSettings(ProgramState& state, const ProgramFolder& folder) {
    const std::string text = fileText(folder.read(kSettingsFile, kMostSettings));
    Lines lines(text);
    for (const auto field : kUserLines)
        state.user.*field = lines.next();
    state.unitSystem = lines.next();
}

void SaveSettings(ProgramState& state, const ProgramFolder& folder, SettingsPart part) {
    for (const auto field : kUserLines)
        makeLine(state.user.*field);
    if (state.unitSystem.empty()) state.unitSystem = "US";
    const ProgramState onFile = settingsOnFile(state, folder);
    const UserInfo& user = part == SettingsPart::Units ? onFile.user : state.user;
    std::string text;
    for (const auto field : kUserLines)
        text += user.*field + "\r\n";
    text += (part == SettingsPart::User ? onFile : state).unitSystem + "\r\n";
    writeWholeFile(folder.toWrite(kSettingsFile), text);
}

std::string shownUserText(const std::string& text) {
    return text == kFilling ? "" : text;
}

bool LoadExtras(ProgramState& state, const ProgramFolder& folder) {
    std::string text;
    try {
        text = fileText(folder.read(kExtrasFile, kMostSettings));
    } catch (const RuntimeError& error) {
        // A missing file is no fault, and one that can't be read is passed over; this one is a mistake.
        if (error.number() == fault::kInvalidFormat) throw;
        return false;
    }
    for (Lines lines(text); !lines.atEnd();)
        applyOption(lines.next(), state.options);
    return true;
}

StartUp startUp(ProgramState& state, const ProgramFolder& folder) {
    StartUp outcome;
    try {
        LoadSettings(state, folder);
    } catch (const RuntimeError& error) {
        if (error.number() != fault::kFileNotFound) {
            outcome.notice = "SETTINGS.INI could not be read (" + std::string(error.what()) +
                             "). US units are used until the settings are saved again.";
            return outcome;
        }
        state.unitSystem = "US";
    }
    const std::string units = unitSystemOf(state.unitSystem);
    if (units.empty()) {
        outcome.notice = "The last line of SETTINGS.INI should be US or METRIC and is \"" + state.unitSystem +
                         "\". US units are used.";
    }
    state.unitSystem = units.empty() ? "US" : units;
    ApplyUnitSystem(state.unitSystem, state.units);
    try {
        if (!LoadExtras(state, folder)) return outcome;
    } catch (const RuntimeError& error) {
        outcome.extrasNotice =
            "Extras.txt could not be read (" + std::string(error.what()) + "). No option is set.";
        return outcome;
    }
    outcome.pressStart = state.options.skipIntroOption || state.options.ianMorayOption;
    outcome.pressEnterModelNumber = state.options.ianMorayOption;
    outcome.showNedGrove = state.options.nedGroveOption;
    return outcome;
}

}  // namespace norlaplan
