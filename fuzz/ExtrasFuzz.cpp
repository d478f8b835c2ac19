#include "Fuzzing.h"
#include "state/Settings.h"

using namespace norlaplan;

/// Reads any bytes as Extras.txt, at the start of the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const testing::TemporaryFolder kScratch;
    const ProgramFolder folder(kScratch.path());
    const std::string text = fuzz::textOf(data, size);
    kScratch.write("Extras.txt", text);
    ProgramState state;
    const StartUp start = startUp(state, folder);
    fuzz::must(start.extrasNotice.empty(), "a small file is read");
    fuzz::must(state.options.footerText.find('\n') == std::string::npos, "a footer is one line");
    fuzz::must(!start.pressEnterModelNumber || start.pressStart, "no part number screen without the menu");
    if (text.find_first_of("Qq") == std::string::npos)
        fuzz::must(!state.options.qlxOption, "no option without its keyword");
    return 0;
}
