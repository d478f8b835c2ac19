#include "Fuzzing.h"
#include "documents/ApplicationFile.h"

using namespace norlaplan;

namespace {

std::string rewritten(const std::string& text) {
    ProgramState state;
    const ReadApplication read = readApplicationFile(text);
    takeApplication(state, read);
    state.unitSystem = read.unitSystem;
    return applicationFile(state);
}

}  // namespace

/// Reads any bytes as the data file of the application form: what the form then writes is read as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const std::string once = rewritten(fuzz::textOf(data, size));
        fuzz::must(rewritten(once) == once, "a saved form is read as it was");
    } catch (const BadApplicationFile&) {
        return 0;
    }
    return 0;
}
