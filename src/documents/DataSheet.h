#pragma once

#include <string>

#include "documents/Document.h"
#include "state/ProgramFolder.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// The technical data sheet of the current bearing, as an RTF document and as records. Errors: 53 for a
/// missing overlay drawing, 70 and 75 for one that can't be read, 321 for one that is too large.
SheetFiles makeDataSheet(const ProgramState& state, const ProgramFolder& folder, ClockPort& clock);

/// How the files of that sheet begin: number, units, scale, mass, and ratings with the separator. Files that
/// begin otherwise are those of another bearing, or of this one in other units or from other tables.
SheetFiles dataSheetBeginning(const ProgramState& state);

/// Raises what `makeDataSheet` would, and makes nothing: only the overlay drawings can be missing or
/// unreadable, since every number on the sheet is a stored one, which is finite.
void checkDataSheet(const BearingSpec& bearing, const ProgramFolder& folder);

/// A data sheet as a document, from the records of its drawing and its RTF text. Drawing raises
/// `BadSheetRecord`.
Document dataSheetDocument(const std::string& partNumber, std::string records,
                           std::function<std::string()> rtf);

/// The group of a document's footer with this line (UTF-8).
std::string documentFooter(const std::string& line);
/// The footer of a saved document: the program's name and version, a text, and when it was saved.
std::string savedFooter(const std::string& text, ClockPort& clock);

/// The program's name with its version, as documents and prints carry it.
constexpr const char* kProgramVersion = "NORLAPLAN-MM version 1.00";

}  // namespace norlaplan
