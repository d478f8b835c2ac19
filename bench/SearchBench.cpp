#include <string>

#include <benchmark/benchmark.h>

#include "search/SearchEngine.h"
#include "state/LoadEntry.h"
#include "support/PlainSearch.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

class NeverStops : public SearchWatch {
  public:
    bool goOn(double) override { return true; }
};

void searchOfTheProgram(benchmark::State& bench, const char* caption, const char* table) {
    const ProgramFolder folder(NORLAPLAN_PROGRAM_FOLDER);
    testing::RecordingMessages messages;
    NeverStops watch;
    ProgramState state;
    state.style = {caption, table};
    state.criteria = {0.5, 30.0, 0.1, 3.0, 0.5, 30.0, 0.1, 3.0};
    state.loads.radialLoadDisplay = 500.0;
    state.loads.axialLoadDisplay = 100.0;
    convertLoads(state);
    for (auto _ : bench)
        benchmark::DoNotOptimize(RunBearingSearch(state, folder, messages, watch));
    bench.counters["rows"] = static_cast<double>(state.search.rows.size());
}
BENCHMARK_CAPTURE(searchOfTheProgram, C, "RADIAL CONTACT", "C")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchOfTheProgram, X, "4-POINT CONTACT", "X")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchOfTheProgram, B, "BACK-TO-BACK SET", "A")->Unit(benchmark::kMillisecond);

void searchPlainly(benchmark::State& bench, char style) {
    const std::string tables = std::string(NORLAPLAN_PROGRAM_FOLDER) + "/Data Tables";
    for (auto _ : bench) {
        benchmark::DoNotOptimize(plain::search(tables, style, {0.5F, 30.0F, 0.1F, 3.0F}, 500.0F, 100.0F));
    }
}
BENCHMARK_CAPTURE(searchPlainly, C, 'C')->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchPlainly, X, 'X')->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchPlainly, B, 'B')->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace norlaplan
