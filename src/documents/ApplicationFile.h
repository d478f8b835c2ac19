#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "state/ProgramState.h"

namespace norlaplan {

/// The data file of the application form: 66 lines that end in CR LF, one value a line. A line feed inside a
/// value is written as a vertical tab, so that the value stays on its line; the few control characters that
/// this takes are written as escapes, and everything else stands as it was entered (UTF-8).
std::string applicationFile(const ProgramState& state);

/// A file that is no data file of the form, and why, in a sentence for the user.
class BadApplicationFile : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What the form takes from a data file.
struct ReadApplication {
    ApplicationData data;
    UserInfo contact;  ///< of which the contact fields of the form are set
    std::string unitSystem;
};

/// Reads a data file. Error: `BadApplicationFile` for another version, another number of lines, or an option
/// that the form doesn't have.
ReadApplication readApplicationFile(std::string_view bytes);

/// Puts what was read into the form, and its contact fields into the user information.
void takeApplication(ProgramState& state, const ReadApplication& read);

/// Where the data file of a saved document goes: the document's path without its last three characters,
/// followed by ".KDN", so that "Form.rtf" has "Form..KDN" beside it.
std::string applicationFilePath(const std::string& documentPath);

}  // namespace norlaplan
