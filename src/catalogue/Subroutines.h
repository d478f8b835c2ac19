#pragma once

#include <optional>
#include <string>

#include "state/Ports.h"
#include "state/ProgramFolder.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// What a decode needs from around it.
struct DecodeServices {
    const ProgramFolder& folder;
    MessagePort& messages;
    ClockPort& clock;
    /// Where the data sheet goes; null where nobody reads it: its text, most of a decode's time, isn't made
    /// then.
    SheetStorePort* sheets;
};

enum class DecodeEnd {
    Decoded,      ///< the bearing is complete and its data sheet written
    BackToEntry,  ///< refused: the entry screen comes back, emptied
    Stopped,      ///< a fault ended the run where it was
};

/// How a decode ended. The user has been told already; the fault is for callers that report it in their own
/// way.
struct DecodeResult {
    DecodeEnd end = DecodeEnd::Decoded;
    bool failed = false;             ///< ended by a run-time failure and not by a refusal
    std::optional<int> faultNumber;  ///< of that failure; none for a calculation that doesn't converge
};

/// Turns a part number of 9 or 10 characters into the current bearing: checks it position by position, looks
/// it up in the catalogue, derives all further data and writes the data sheet, or does all of it that can
/// fail. The number is repaired in
/// place (upper case, letter O for 0, a dropped fit letter) and becomes `partNumber`; at a good end the state
/// knows that it holds the decoded bearing. Every refusal and failure is shown through the services; it
/// leaves a mix of old and new values behind, which nothing reads since `partNumber` is empty.
DecodeResult DecodePartNumber(ProgramState& state, std::string& number, DecodeServices& services);

}  // namespace norlaplan
