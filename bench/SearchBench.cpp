#include <string>

#include <benchmark/benchmark.h>

#include "search/SearchEngine.h"
#include "support/Folders.h"
#include "support/LongCatalogue.h"
#include "support/PlainSearch.h"
#include "support/RecordingPorts.h"
#include "support/SearchCases.h"

namespace norlaplan {
namespace {

void searchOfTheProgram(benchmark::State& bench, const testing::SearchCase& style) {
    const ProgramFolder folder(testing::programFolder());
    testing::RecordingMessages messages;
    testing::NeverStops watch;
    ProgramState state = testing::searchState(style);
    for (auto _ : bench)
        benchmark::DoNotOptimize(RunBearingSearch(state, folder, messages, watch));
    bench.counters["rows"] = static_cast<double>(state.search.rows.size());
}

void searchPlainly(benchmark::State& bench, const testing::SearchCase& style) {
    const std::string tables = (testing::programFolder() / "Data Tables").string();
    for (auto _ : bench) {
        benchmark::DoNotOptimize(
            plain::search(tables, style.caption, testing::kWideEnvelope, testing::searchLoads(style)));
    }
}

/// Reads a catalogue of that many rows: `hits` of them, spread evenly, fit the envelope.
void costOfARow(benchmark::State& bench, int hits) {
    const int rows = static_cast<int>(bench.range(0));
    const testing::LongCatalogue catalogue(rows, hits);
    testing::RecordingMessages messages;
    testing::NeverStops watch;
    ProgramState state = catalogue.state();
    for (auto _ : bench)
        benchmark::DoNotOptimize(RunBearingSearch(state, catalogue.folder(), messages, watch));
    bench.counters["row"] =
        benchmark::Counter(rows, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK_CAPTURE(costOfARow, filtered, 0)->RangeMultiplier(10)->Range(100, 10000);
BENCHMARK_CAPTURE(costOfARow, with100Hits, 100)->RangeMultiplier(10)->Range(100, 10000);

[[maybe_unused]] const bool kRegistered = [] {
    for (const testing::SearchCase& style : testing::kSearchCases) {
        const std::string name = style.test;
        benchmark::RegisterBenchmark(("searchOfTheProgram/" + name).c_str(), searchOfTheProgram, style)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("searchPlainly/" + name).c_str(), searchPlainly, style)
            ->Unit(benchmark::kMillisecond);
    }
    return true;
}();

}  // namespace
}  // namespace norlaplan
