#include "Fuzzing.h"
#include "catalogue/PartNumberMeaning.h"
#include "catalogue/Subroutines.h"
#include "numbers/Text.h"
#include "support/Folders.h"

using namespace norlaplan;

/// Decodes any bytes as a part number of the sample catalogue, the first one being the choice for a "Z": what
/// the entry screen says of it while it is typed is what the decoder then does.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ProgramFolder kFolder{testing::sourceFolder() / "data"};
    constexpr const char* kChoices[] = {"", "P", "V", "S", "T"};
    if (size == 0) return 0;
    const std::string choice = kChoices[data[0] % std::size(kChoices)];
    const std::string typed = fuzz::textOf(data + 1, size - 1);

    ProgramState state;
    state.bearing.zSeparatorChoice = choice;
    const PartNumberMeaning meaning = explainPartNumber(typed, choice, state.units, kFolder);
    std::string number = typed;
    fuzz::Impatient messages;
    testing::FixedClock clock;
    DecodeServices services{kFolder, messages, clock, nullptr};
    const DecodeResult result = DecodePartNumber(state, number, services);
    fuzz::must(!result.failed, "the sample catalogue has no fault");
    fuzz::must(meaning.complete == (result.end == DecodeEnd::Decoded),
               "what is explained is what is decoded");
    fuzz::must(state.bearing.partNumber.empty() == (result.end != DecodeEnd::Decoded),
               "a refused number leaves no bearing");
    return 0;
}
