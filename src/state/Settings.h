#pragma once

#include <string>

#include "state/ProgramFolder.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// Reads the nine lines of SETTINGS.INI into the user texts and `unitSystem`, in the file's order. A field is
/// set as soon as its line is read. Errors: 53 when the file is missing, 62 when it has fewer than nine
/// lines, 321 when it is larger than any settings.
void LoadSettings(ProgramState& state, const ProgramFolder& folder);

/// What is to be saved of the settings; the other lines stay as the file has them, since another program in
/// the same folder may have written them meanwhile.
enum class SettingsPart { All, User, Units };

/// Writes SETTINGS.INI. Empty user texts become one blank and an empty `unitSystem` becomes "US", in the
/// state too, since a line of the file must not be empty; line breaks inside a text become blanks. Errors as
/// `writeWholeFile`; the old file then still stands.
void SaveSettings(ProgramState& state, const ProgramFolder& folder, SettingsPart part = SettingsPart::All);

/// A text about the user as a field shows it: the blank that fills a line of the file shows as nothing.
std::string shownUserText(const std::string& text);

/// Reads the options of Extras.txt. Lines are compared whole after upper-casing; unknown ones are skipped.
/// False when the file can't be read: the options that were read before stay set. Error 321 for a file so
/// large that it can hold no options.
bool LoadExtras(ProgramState& state, const ProgramFolder& folder);

/// What the start screen does by itself once the files are read.
struct StartUp {
    bool pressStart = false;             ///< open the main menu at once
    bool pressEnterModelNumber = false;  ///< and go on to the part number screen
    bool showNedGrove = false;           ///< the start screen's changes for that option
    std::string notice;                  ///< a sentence for the user when the settings could not be read
    std::string extrasNotice;            ///< the same for the options
};

/// The start: settings, units, options. A missing settings file means US units. Any other fault of that file
/// ends the start where it stood, so that no option is read; the units then are the US ones of a new state.
StartUp startUp(ProgramState& state, const ProgramFolder& folder);

}  // namespace norlaplan
