#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "state/ProgramFolder.h"
#include "state/UnitMode.h"

namespace norlaplan {

enum class Verdict {
    Missing,  ///< not typed yet
    Good,
    Wrong,
    Dropped,  ///< a fit letter on a style that has none: a decode warns and goes on without it
};

/// One character of a part number, upper-cased and repaired.
struct NumberPlace {
    std::string character;
    Verdict verdict = Verdict::Missing;
};

/// A code of a part number: the characters that it takes and what they say.
struct NumberCode {
    std::size_t first, last;  ///< positions, from 1
    const char* name;         ///< "Bore"
    std::string meaning;      ///< "190 mm"; empty as long as the code isn't whole and good
    std::string allowed;      ///< what may stand there, "08, 13 or 20", or what the tables lack
};

/// What a part number says, also while it is being typed.
struct PartNumberMeaning {
    std::array<NumberPlace, 10> places;
    std::array<NumberCode, 7> codes;
    std::size_t wrongPosition = 0;  ///< the first wrong one, from 1; 11 for a number that is too long; 0 none
    std::string reason;             ///< why: "Style: A, B, C, F, T, U or X"
    bool complete = false;          ///< by its characters and the tables a decode would take it
};

/// Reads a part number position by position, by the rules and tables of the decoder. `zChoice` is the letter
/// that goes with a "Z" separator, empty when none is chosen; lengths are told in `units`. A table that can't
/// be read says nothing: its codes are judged by their characters alone. Never fails, and keeps nothing.
PartNumberMeaning explainPartNumber(const std::string& typed, const std::string& zChoice,
                                    const UnitMode& units, const ProgramFolder& folder);

}  // namespace norlaplan
