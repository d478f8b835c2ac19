#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "documents/Document.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// What is entered for a cover sheet. The message may have line feeds.
struct FaxCover {
    std::string addressee, faxNumber, subject, pageCount, message;
};

/// Width of one character in twips.
using CharacterWidth = std::function<double(std::string_view)>;

/// The message as it is printed, a line each. A line that has reached 10000 twips is broken at the next
/// blank, however far on that is, so that it runs past that point by the rest of the word. A text without
/// blanks isn't broken. A line feed in such a rest begins a new line, too, but the break at the blank still
/// comes.
std::vector<std::string> coverMessageLines(std::string_view message, const CharacterWidth& width);

/// The sentence that tells the number of pages.
std::string pagesSentence(const std::string& pageCount);

/// Prints the sheet. The foot stands at its place below the message; a message that is longer than the page
/// goes on on the next.
void printFaxCover(const FaxCover& cover, const UserInfo& user, ClockPort& clock, Canvas& canvas);

/// The sheet as a document that is only printed.
Document faxCoverDocument(const FaxCover& cover, const UserInfo& user, ClockPort& clock);

}  // namespace norlaplan
