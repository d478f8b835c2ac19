#pragma once

#include <filesystem>
#include <string>

#include "catalogue/Subroutines.h"
#include "support/Folders.h"
#include "support/RecordingPorts.h"

namespace norlaplan::testing {

/// A decode with everything around it, on a program folder of the test's choice.
struct Decoding {
    explicit Decoding(const std::filesystem::path& root) : folder(root) {}

    DecodeResult decode(const std::string& number) {
        state.bearing.partNumber = number;
        DecodeServices services{folder, messages, clock, &sheets};
        return DecodePartNumber(state, state.bearing.partNumber, services);
    }
    const BearingSpec& bearing() const { return state.bearing; }

    ProgramFolder folder;
    RecordingMessages messages;
    FixedClock clock;
    MemorySheets sheets;
    ProgramState state;
};

/// The program folder as it is shipped.
inline std::filesystem::path shippedFolder() {
    return sourceFolder() / "data";
}

}  // namespace norlaplan::testing
