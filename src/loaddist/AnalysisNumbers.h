#pragma once

#include <span>

#include "state/ProgramState.h"

namespace norlaplan {

/// A number that the analysis form shows and takes, under the name of its field.
struct AnalysisNumber {
    const char* control;
    double (*value)(const ProgramState&);         ///< in the unit of the field
    void (*store)(ProgramState&, double number);  ///< stores an entry, with all that it brings about
    const char* picture;  ///< in which it shows where it was worked out from another entry; none: all digits
    bool given;           ///< a solve or an entry sets it; false for a companion in the other unit
};

/// All of them. Storing raises error 6 for what doesn't fit, and what `loaddist/AnalysisEntry.h` says.
std::span<const AnalysisNumber> analysisNumbers();

/// A text that the form shows and takes.
struct AnalysisText {
    const char* control;
    std::string AnalysisNotes::*text;
};
std::span<const AnalysisText> analysisTexts();

/// The text of a number: as it was given, with all its digits, or worked out, in its picture.
std::string analysisText(const AnalysisNumber& number, const ProgramState& state, bool asGiven);

}  // namespace norlaplan
