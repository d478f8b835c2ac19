#include <string>

#include <benchmark/benchmark.h>

#include "catalogue/Subroutines.h"
#include "support/Folders.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

struct Nowhere : SheetStorePort {
    void store(const SheetFiles&) override {}
};

void decode(benchmark::State& bench, SheetStorePort* sheets) {
    const ProgramFolder folder(testing::programFolder());
    testing::RecordingMessages messages;
    testing::FixedClock clock;
    DecodeServices services{folder, messages, clock, sheets};
    ProgramState state;
    for (auto _ : bench) {
        std::string number = "K19013XP0";
        if (DecodePartNumber(state, number, services).end != DecodeEnd::Decoded)
            bench.SkipWithError("refused");
    }
}

void decodeAlone(benchmark::State& bench) {
    decode(bench, nullptr);
}
BENCHMARK(decodeAlone);

void decodeWithSheet(benchmark::State& bench) {
    Nowhere sheets;
    decode(bench, &sheets);
}
BENCHMARK(decodeWithSheet);

}  // namespace
}  // namespace norlaplan
