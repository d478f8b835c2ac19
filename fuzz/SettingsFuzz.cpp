#include "Fuzzing.h"
#include "numbers/RuntimeError.h"
#include "state/Settings.h"

using namespace norlaplan;

/// Reads any bytes as SETTINGS.INI: the start ends with units that it knows, and what was read is read again
/// as it was after it has been written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const testing::TemporaryFolder kScratch;
    const ProgramFolder folder(kScratch.path());
    kScratch.write("SETTINGS.INI", fuzz::textOf(data, size));
    ProgramState started;
    const StartUp start = startUp(started, folder);
    fuzz::must(start.notice.empty() || started.unitSystem != "METRIC", "metric units are never a guess");
    fuzz::must(started.unitSystem == "US" || started.unitSystem == "METRIC" || !start.notice.empty(),
               "the start knows its units, or tells");

    ProgramState state;
    try {
        LoadSettings(state, folder);
    } catch (const RuntimeError&) {
        return 0;
    }
    SaveSettings(state, folder);
    ProgramState again;
    LoadSettings(again, folder);
    fuzz::must(again.user.userName == state.user.userName && again.user.userFax == state.user.userFax &&
                   again.user.userMailSuffix == state.user.userMailSuffix &&
                   again.unitSystem == state.unitSystem,
               "saved settings are read as they were");
    return 0;
}
